// Phase: atan2(im, re) in radians.
//
// Single-precision sources use the four-lane atan2 kernel (at most 2 ulp);
// double sources the double-precision atan2d (at most 2 ulp, the same bits
// on every target); 16-bit sources atan2d of the exact parts, rounded once
// to single.
//
// Scaled 16-bit results follow their own rule:
//   scaleFactor 2 or more: zeros (every angle times 1/4 and more is taken
//     as 0, although angles above 2 radians would round to 1);
//   -28 to 1: the single-precision angle (the double angle rounded once)
//     times the single-precision factor 2^-scaleFactor, rounded to nearest
//     with ties to even, saturated;
//   below -28: the double angle times the single-precision factor, rounded
//     half away from zero, saturated. The factor overflows to infinity from
//     -128 on; a zero angle then still gives 0.
// Scaled 32-bit results round angle * 2^-scaleFactor (in double) by the
// library's rule: nearest, ties to even, saturated.
#include <math.h>

#include "convert/complex_access.h"
#include "frame/detail/rounding.h"
#include "kernels/math_f64.h"

namespace veks {
namespace {

struct Phase32f {
    template <class Src>
    static void run(const Src& s, T32f* pDst, size_t n) {
        kern::phase32f(vectorView(s), pDst, n);
    }
};

inline double angle(double re, double im) { return kern::atan2d(im, re); }

struct Phase64f : ElementOp<Phase64f> {
    static T64f apply(T64f re, T64f im) { return angle(re, im); }
};

struct Phase16s32f : ElementOp<Phase16s32f> {
    static T32f apply(T16s re, T16s im) { return static_cast<T32f>(angle(re, im)); }
};

struct Phase16sSfs {
    template <class Src>
    static void run(const Src& s, T16s* pDst, size_t n, int sf) {
        if (sf >= 2) {
            for (size_t i = 0; i < n; ++i) pDst[i] = 0;
            return;
        }
        // 2^-sf in single precision: infinite from -128 on.
        const float factor = sf <= -128 ? __builtin_inff() : ldexpf(1.0f, -sf);
        if (sf >= -28) {
            for (size_t i = 0; i < n; ++i) {
                const float a = static_cast<float>(angle(s.re(i), s.im(i)));
                pDst[i] = saturateIntegral<T16s>(__builtin_roundevenf(a * factor));
            }
            return;
        }
        for (size_t i = 0; i < n; ++i) {
            const double v = angle(s.re(i), s.im(i)) * static_cast<double>(factor);
            // Half away from zero: add or subtract one half, then truncate.
            pDst[i] = saturateIntegral<T16s>(__builtin_trunc(v < 0 ? v - 0.5 : v + 0.5));
        }
    }
};

struct Phase32scSfs : ElementOp<Phase32scSfs> {
    // |angle| <= pi: beyond +-1100 every scale factor gives what +-1100 gives.
    static T32s apply(T32s re, T32s im, int sf) {
        return roundSat<T32s>(angle(re, im), VEK_ROUND_NEAR, sf < -1100 ? -1100 : sf > 1100 ? 1100 : sf);
    }
};

}  // namespace
}  // namespace veks

using veks::Phase16s32f;
using veks::Phase16sSfs;
using veks::Phase32f;
using veks::Phase32scSfs;
using veks::Phase64f;

VEKS_PARTS_MAP(veksPhase_16s32f, Phase16s32f, T16s, T32f)
VEKS_PARTS_MAP_SFS(veksPhase_16s_Sfs, Phase16sSfs, T16s, T16s)
VEKS_CPLX_MAP(veksPhase_16sc32f, Phase16s32f, T16sc, T32f)
VEKS_CPLX_MAP_SFS(veksPhase_16sc_Sfs, Phase16sSfs, T16sc, T16s)
VEKS_PARTS_MAP(veksPhase_32f, Phase32f, T32f, T32f)
VEKS_CPLX_MAP(veksPhase_32fc, Phase32f, T32fc, T32f)
VEKS_CPLX_MAP_SFS(veksPhase_32sc_Sfs, Phase32scSfs, T32sc, T32s)
VEKS_PARTS_MAP(veksPhase_64f, Phase64f, T64f, T64f)
VEKS_CPLX_MAP(veksPhase_64fc, Phase64f, T64fc, T64f)

// Magnitude, MagSquared and PowerSpectr.
//
// Floating members use the textbook formulas in their own precision, in the
// fixed order re * re + im * im (then sqrt): single-precision sources in
// single precision, double in double. 16-bit sources form the exact integer
// sum of squares first. Scaled integer members round the exact value by the
// library's scale-factor rule (nearest, ties to even, saturated), except
// MagSquared_32sc32s_Sfs, which forms its sum in double precision.
#include <math.h>

#include "convert/complex_access.h"
#include "frame/detail/rounding.h"
#include "frame/detail/scale.h"

namespace veks {
namespace {

// floor(sqrt(n)) for any 64-bit n: the double estimate is off by at most
// one or two and corrected on integers (squares of values below 2^32 do
// not wrap).
inline uint64_t isqrt(uint64_t n) {
    const uint64_t top = 0xFFFFFFFFu;
    uint64_t r = static_cast<uint64_t>(sqrt(static_cast<double>(n)));
    if (r > top) r = top;
    while (r * r > n) --r;
    while (r < top && (r + 1) * (r + 1) <= n) ++r;
    return r;
}

// sqrt(n) * 2^-sf rounded to nearest, ties to even, and clamped to hi, for
// n <= 2^63 and hi < 2^32: the rounding is decided on integers, so it is
// exact for every scale factor.
inline uint64_t sqrtScaled(uint64_t n, int sf, uint64_t hi) {
    if (n == 0) return 0;
    if (sf <= -32) return hi;  // sqrt(n) >= 1 and hi < 2^32
    if (sf <= 0) {
        const int k = -sf;
        const uint64_t r = isqrt(n);
        if ((r << k) > hi) return hi;
        // Now n * 4^k < 2^64: round sqrt(n * 4^k) to nearest; sqrt(m) can
        // never be exactly halfway (4m is not an odd square).
        const uint64_t m = n << (2 * k);
        const uint64_t rm = isqrt(m);
        const uint64_t v = rm + (m - rm * rm > rm ? 1 : 0);
        return v > hi ? hi : v;
    }
    if (sf >= 33) return 0;  // sqrt(n) < 2^32 = 2^(sf - 1) or less: below one half
    const uint64_t q = isqrt(n) >> sf;
    // Halfway point between q and q + 1, in units of sqrt(n): t = (2q + 1) 2^(sf-1).
    const uint64_t t = (2 * q + 1) << (sf - 1);
    const uint64_t tt = t * t;
    const bool up = n > tt || (n == tt && (q & 1));
    const uint64_t v = q + (up ? 1 : 0);
    return v > hi ? hi : v;
}

inline uint64_t sumSquares(int64_t re, int64_t im) {
    return static_cast<uint64_t>(re * re) + static_cast<uint64_t>(im * im);
}

// ---- Magnitude --------------------------------------------------------------

struct Magnitude32f {
    template <class Src>
    static void run(const Src& s, T32f* pDst, size_t n) {
        kern::magnitude32f(vectorView(s), pDst, n);
    }
};

struct Magnitude64f : ElementOp<Magnitude64f> {
    static T64f apply(T64f re, T64f im) { return sqrt(re * re + im * im); }
};

// 16-bit parts: sqrt of the exact sum in double, rounded once to single.
struct Magnitude16s32f : ElementOp<Magnitude16s32f> {
    static T32f apply(T16s re, T16s im) {
        return static_cast<T32f>(sqrt(static_cast<double>(sumSquares(re, im))));
    }
};

template <class TDst>
struct MagnitudeSfs : ElementOp<MagnitudeSfs<TDst>> {
    template <class B>
    static TDst apply(B re, B im, int sf) {
        return static_cast<TDst>(sqrtScaled(sumSquares(re, im), sf, static_cast<uint64_t>(Range<TDst>::hi)));
    }
};

// ---- PowerSpectr and MagSquared ------------------------------------------------

template <class F>
struct PowerFloat : ElementOp<PowerFloat<F>> {
    static F apply(F re, F im) { return re * re + im * im; }
};

// Exact sum of squares of 16-bit parts, rounded once to single.
struct Power16s32f : ElementOp<Power16s32f> {
    static T32f apply(T16s re, T16s im) { return static_cast<T32f>(static_cast<int64_t>(sumSquares(re, im))); }
};

struct Power16sSfs : ElementOp<Power16sSfs> {
    static T16s apply(T16s re, T16s im, int sf) {
        // |s| <= 2^31: beyond +-64 every scale factor gives what +-64 gives.
        return scaleSat<T16s>(static_cast<int64_t>(sumSquares(re, im)), sf < -64 ? -64 : sf > 64 ? 64 : sf);
    }
};

struct MagSquared32fc64f : ElementOp<MagSquared32fc64f> {
    static T64f apply(T32f re, T32f im) {
        const T64f r = re, i = im;
        return r * r + i * i;
    }
};

// The sum of squares is formed in double precision, multiplied by 2^-sf
// (a double), rounded to nearest with ties to even and saturated. Past 63
// every result is zero; at -31 and below every non-zero one saturates.
struct MagSquared32scSfs {
    template <class Src>
    static void run(const Src& s, T32s* pDst, size_t n, int sf) {
        if (sf > 63) {
            for (size_t i = 0; i < n; ++i) pDst[i] = 0;
            return;
        }
        if (sf <= -31) {
            for (size_t i = 0; i < n; ++i) pDst[i] = (s.re(i) == 0 && s.im(i) == 0) ? 0 : Range<T32s>::hi;
            return;
        }
        const double factor = ldexp(1.0, -sf);
        for (size_t i = 0; i < n; ++i) {
            const double re = s.re(i), im = s.im(i);
            pDst[i] = saturateIntegral<T32s>(__builtin_roundeven((re * re + im * im) * factor));
        }
    }
};

}  // namespace
}  // namespace veks

using veks::Magnitude16s32f;
using veks::Magnitude32f;
using veks::Magnitude64f;
using veks::MagnitudeSfs;
using veks::MagSquared32fc64f;
using veks::MagSquared32scSfs;
using veks::Power16s32f;
using veks::Power16sSfs;
using veks::PowerFloat;

VEKS_PARTS_MAP(veksMagnitude_16s32f, Magnitude16s32f, T16s, T32f)
VEKS_PARTS_MAP_SFS(veksMagnitude_16s_Sfs, MagnitudeSfs<T16s>, T16s, T16s)
VEKS_CPLX_MAP(veksMagnitude_16sc32f, Magnitude16s32f, T16sc, T32f)
VEKS_CPLX_MAP_SFS(veksMagnitude_16sc_Sfs, MagnitudeSfs<T16s>, T16sc, T16s)
VEKS_PARTS_MAP(veksMagnitude_32f, Magnitude32f, T32f, T32f)
VEKS_CPLX_MAP(veksMagnitude_32fc, Magnitude32f, T32fc, T32f)
VEKS_CPLX_MAP_SFS(veksMagnitude_32sc_Sfs, MagnitudeSfs<T32s>, T32sc, T32s)
VEKS_PARTS_MAP(veksMagnitude_64f, Magnitude64f, T64f, T64f)
VEKS_CPLX_MAP(veksMagnitude_64fc, Magnitude64f, T64fc, T64f)

VEKS_CPLX_MAP(veksMagSquared_32fc64f, MagSquared32fc64f, T32fc, T64f)
VEKS_CPLX_MAP_SFS(veksMagSquared_32sc32s_Sfs, MagSquared32scSfs, T32sc, T32s)

VEKS_PARTS_MAP(veksPowerSpectr_16s32f, Power16s32f, T16s, T32f)
VEKS_PARTS_MAP_SFS(veksPowerSpectr_16s_Sfs, Power16sSfs, T16s, T16s)
VEKS_CPLX_MAP(veksPowerSpectr_16sc32f, Power16s32f, T16sc, T32f)
VEKS_CPLX_MAP_SFS(veksPowerSpectr_16sc_Sfs, Power16sSfs, T16sc, T16s)
VEKS_PARTS_MAP(veksPowerSpectr_32f, PowerFloat<T32f>, T32f, T32f)
VEKS_CPLX_MAP(veksPowerSpectr_32fc, PowerFloat<T32f>, T32fc, T32f)
VEKS_PARTS_MAP(veksPowerSpectr_64f, PowerFloat<T64f>, T64f, T64f)
VEKS_CPLX_MAP(veksPowerSpectr_64fc, PowerFloat<T64f>, T64fc, T64f)

// Preemphasize: y(n) = x(n) - val * x(n - 1), with x(-1) = *pMem (0 when
// pMem is null); afterwards *pMem holds the last input x(len - 1), taken
// before an in-place call overwrites it. val is not validated.
//   32f: the product is rounded to single, then subtracted, so splitting a
//        block into calls gives the same bits.
//   16s: the exact difference, rounded to nearest with ties to even and
//        saturated.
#include <math.h>

#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/scale.h"

namespace veks {
namespace {

inline T32f emphasize(T32f x, T32f prev, T32f val) { return x - val * prev; }

// x - val * prev without any intermediate rounding: the product of a 24-bit
// and a 16-bit significand is exact in double, and is split into its integer
// part and a fraction in [0, 1), so the rounding is decided exactly.
inline T16s emphasize(T16s x, T16s prev, T32f val) {
    const double prod = static_cast<double>(val) * static_cast<double>(prev);
    if (!(prod == prod)) return 0;
    const double fl = floor(prod);
    const double frac = prod - fl;  // exact
    if (fl > 1e12) return Range<T16s>::lo;  // x - prod far below the range
    if (fl < -1e12) return Range<T16s>::hi;
    int64_t r = static_cast<int64_t>(x) - static_cast<int64_t>(fl);  // x - prod = r - frac
    if (frac > 0.5 || (frac == 0.5 && (r & 1))) r -= 1;
    return saturate<T16s>(r);
}

template <class T>
void run(const T* pSrc, T* pDst, size_t n, T32f val, T* pMem) {
    T prev = pMem ? *pMem : T(0);
    for (size_t i = 0; i < n; ++i) {
        const T x = pSrc[i];
        pDst[i] = emphasize(x, prev, val);
        prev = x;
    }
    if (pMem) *pMem = prev;
}

template <class T>
VekResult preemphasize(const T* pSrc, T* pDst, int len, T32f val, T* pMem) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    run(pSrc, pDst, static_cast<size_t>(len), val, pMem);
    return VEK_OK;
}

template <class T>
VekResult preemphasizeInPlace(T* pSrcDst, int len, T32f val, T* pMem) {
    if (VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    run(pSrcDst, pSrcDst, static_cast<size_t>(len), val, pMem);
    return VEK_OK;
}

}  // namespace
}  // namespace veks

#define VEKS_PREEMPHASIZE(name, T)                                                  \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len, T32f val, T* pMem) { \
        return veks::preemphasize(pSrc, pDst, len, val, pMem);                      \
    }
#define VEKS_PREEMPHASIZE_I(name, T)                                         \
    VEKS_EXPORT VekResult name(T* pSrcDst, int len, T32f val, T* pMem) {     \
        return veks::preemphasizeInPlace(pSrcDst, len, val, pMem);           \
    }

VEKS_PREEMPHASIZE(veksPreemphasize_32f, T32f)
VEKS_PREEMPHASIZE_I(veksPreemphasize_32f_I, T32f)
VEKS_PREEMPHASIZE(veksPreemphasize_16s, T16s)
VEKS_PREEMPHASIZE_I(veksPreemphasize_16s_I, T16s)

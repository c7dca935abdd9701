// JoinScaled and SplitScaled: several single-precision channels in [-1, 1]
// interleaved into one 16- or 24-bit integer stream, and back.
//
// Join: v clamped to [-1, 1] (a NaN meets the upper clamp and takes it),
// then v * (2^(B-1) - 0.5) - 0.5 rounded to nearest, ties to even, so -1.0
// gives the minimum and 1.0 the maximum. The product is exact in double
// precision, and the rounding of y - 0.5 is taken from y itself: floor(y),
// except that an integral y is a tie between y - 1 and y.
//
// Split: x becomes (2x + 1) / (2^B - 1). For 16 bits this is computed in
// single precision as x * 3.051804378628731e-05 + 1.5259021893143654e-05
// (both constants are single-precision values), which maps -32768 to -1.0
// and 32767 to 1.0 exactly; for 24 bits, where single precision is too
// short for that form, as (2x + 1) / 16777215 in double precision, rounded
// once to single. Both run with the rounding set to nearest.
#include <math.h>
#include <stddef.h>

#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/rounding.h"
#include "frame/detail/traits.h"

namespace veks {
namespace {

template <class TDst>
struct Scaled;
template <>
struct Scaled<T16s> {
    static constexpr double kHalfSpan = 32767.5;
    static void put(T16s& d, int32_t v) { d = static_cast<T16s>(v); }
    static float get(const T16s& s) {
        return static_cast<float>(s) * 3.051804378628731e-05f + 1.5259021893143654e-05f;
    }
};
template <>
struct Scaled<T24s> {
    static constexpr double kHalfSpan = 8388607.5;
    static void put(T24s& d, int32_t v) { d = narrow24s(v); }
    static float get(const T24s& s) { return static_cast<float>((2.0 * widen(s) + 1.0) / 16777215.0); }
};

inline int32_t joinValue(float v, double halfSpan) {
    v = v < 1.0f ? v : 1.0f;  // NaN takes the upper bound
    v = v > -1.0f ? v : -1.0f;
    const double y = static_cast<double>(v) * halfSpan;  // exact
    const double f = floor(y);
    const int32_t r = static_cast<int32_t>(f);
    return (f == y && (r & 1)) ? r - 1 : r;
}

template <class TDst>
VekResult joinScaled(const T32f* const* pSrc, int nChannels, int chanLen, TDst* pDst) {
    if (pDst == nullptr) return VEK_ERR_NULL_POINTER;
    if (nChannels < 1 || chanLen < 1) return VEK_ERR_SIZE;
    if (pSrc == nullptr) return VEK_ERR_NULL_POINTER;
    for (int c = 0; c < nChannels; ++c)
        if (pSrc[c] == nullptr) return VEK_ERR_NULL_POINTER;
    const size_t nc = static_cast<size_t>(nChannels);
    for (int c = 0; c < nChannels; ++c) {
        const T32f* s = pSrc[c];
        TDst* d = pDst + c;
        for (size_t i = 0; i < static_cast<size_t>(chanLen); ++i, d += nc)
            Scaled<TDst>::put(*d, joinValue(s[i], Scaled<TDst>::kHalfSpan));
    }
    return VEK_OK;
}

template <class TSrc>
VekResult splitScaled(const TSrc* pSrc, T32f** pDst, int nChannels, int chanLen) {
    if (pSrc == nullptr) return VEK_ERR_NULL_POINTER;
    if (nChannels < 1 || chanLen < 1) return VEK_ERR_SIZE;
    if (pDst == nullptr) return VEK_ERR_NULL_POINTER;
    for (int c = 0; c < nChannels; ++c)
        if (pDst[c] == nullptr) return VEK_ERR_NULL_POINTER;
    RoundingGuard g(RoundingGuard::Nearest);
    const size_t nc = static_cast<size_t>(nChannels);
    for (int c = 0; c < nChannels; ++c) {
        T32f* d = pDst[c];
        const TSrc* s = pSrc + c;
        for (size_t i = 0; i < static_cast<size_t>(chanLen); ++i, s += nc) d[i] = Scaled<TSrc>::get(*s);
    }
    return VEK_OK;
}

}  // namespace
}  // namespace veks

VEKS_EXPORT VekResult veksJoinScaled_32f16s_D2L(const T32f* const* pSrc, int nChannels, int chanLen, T16s* pDst) {
    return veks::joinScaled(pSrc, nChannels, chanLen, pDst);
}
VEKS_EXPORT VekResult veksJoinScaled_32f24s_D2L(const T32f* const* pSrc, int nChannels, int chanLen, T24s* pDst) {
    return veks::joinScaled(pSrc, nChannels, chanLen, pDst);
}
VEKS_EXPORT VekResult veksSplitScaled_16s32f_D2L(const T16s* pSrc, T32f** pDst, int nChannels, int chanLen) {
    return veks::splitScaled(pSrc, pDst, nChannels, chanLen);
}
VEKS_EXPORT VekResult veksSplitScaled_24s32f_D2L(const T24s* pSrc, T32f** pDst, int nChannels, int chanLen) {
    return veks::splitScaled(pSrc, pDst, nChannels, chanLen);
}

// Copy, Move, Set and Zero: every typed form works on raw bytes, the element
// type fixing only the width (and, for Set, the width of the repeated value).
// Values are never converted, so NaN payloads and negative zeros survive.
//
// Forms of equal width that never look at the values share one body: the
// alias rows make the other names further symbols of the first one's code.
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "kernels/copy.h"

namespace veks {
namespace {

template <class T>
VekResult copyElems(const T* pSrc, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    kern::copyBytes(pDst, pSrc, static_cast<size_t>(len) * sizeof(T));
    return VEK_OK;
}

template <class T>
VekResult moveElems(const T* pSrc, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    kern::moveBytes(pDst, pSrc, static_cast<size_t>(len) * sizeof(T));
    return VEK_OK;
}

template <class T>
VekResult zeroElems(T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pDst)) return st;
    kern::fillBytes(pDst, 0, static_cast<size_t>(len) * sizeof(T));
    return VEK_OK;
}

// The value repeated over 16 bytes, built from the registers it arrived in
// (a round trip through memory would stall on reading back in one piece
// what was stored in two).
inline __m128i splatValue(T16s v) { return _mm_set1_epi16(v); }
inline __m128i splatValue(T16sc v) { return _mm_setr_epi16(v.re, v.im, v.re, v.im, v.re, v.im, v.re, v.im); }
inline __m128i splatValue(T32s v) { return _mm_set1_epi32(v); }
inline __m128i splatValue(T32f v) { return _mm_castps_si128(_mm_set1_ps(v)); }
inline __m128i splatValue(T32sc v) { return _mm_setr_epi32(v.re, v.im, v.re, v.im); }
inline __m128i splatValue(T32fc v) { return _mm_castps_si128(_mm_setr_ps(v.re, v.im, v.re, v.im)); }
inline __m128i splatValue(T64s v) { return _mm_set1_epi64x(v); }
inline __m128i splatValue(T64f v) { return _mm_castpd_si128(_mm_set1_pd(v)); }
inline __m128i splatValue(T64sc v) { return _mm_set_epi64x(v.im, v.re); }
inline __m128i splatValue(T64fc v) { return _mm_castpd_si128(_mm_unpacklo_pd(_mm_set_sd(v.re), _mm_set_sd(v.im))); }

template <class T>
VekResult setElems(T val, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pDst)) return st;
    if constexpr (sizeof(T) == 1) {
        kern::fillBytes(pDst, static_cast<unsigned char>(val), static_cast<size_t>(len));
    } else {
        kern::fillPattern<sizeof(T)>(pDst, splatValue(val), static_cast<size_t>(len));
    }
    return VEK_OK;
}

}  // namespace
}  // namespace veks

#define VEKS_COPY(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) { return veks::copyElems(pSrc, pDst, len); }
#define VEKS_MOVE(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) { return veks::moveElems(pSrc, pDst, len); }
#define VEKS_ZERO(name, T) \
    VEKS_EXPORT VekResult name(T* pDst, int len) { return veks::zeroElems(pDst, len); }
#define VEKS_SET(name, T) \
    VEKS_EXPORT VekResult name(T val, T* pDst, int len) { return veks::setElems(val, pDst, len); }

// Set passes its value by value, and on x86_64 a floating value travels in a
// vector register where an integer one travels in a general register: the
// pairs of equal width can share one code address only where every argument
// is on the stack (32-bit x86). Elsewhere each has its own entry into the
// same byte routine.
#if defined(__i386__)
// The value's type differs between the pair, its bytes on the stack do not.
#pragma GCC diagnostic ignored "-Wattribute-alias"
#define VEKS_SET_SHARED(name, T, target) VEKS_ALIAS(VekResult, name, (T val, T * pDst, int len), target)
#else
#define VEKS_SET_SHARED(name, T, target) VEKS_SET(name, T)
#endif

VEKS_COPY(veksCopy_8u, T8u)
VEKS_COPY(veksCopy_16s, T16s)
VEKS_COPY(veksCopy_32f, T32f)
VEKS_ALIAS(VekResult, veksCopy_32s, (const T32s* pSrc, T32s* pDst, int len), veksCopy_32f);
VEKS_ALIAS(VekResult, veksCopy_16sc, (const T16sc* pSrc, T16sc* pDst, int len), veksCopy_32f);
VEKS_COPY(veksCopy_64f, T64f)
VEKS_ALIAS(VekResult, veksCopy_64s, (const T64s* pSrc, T64s* pDst, int len), veksCopy_64f);
VEKS_ALIAS(VekResult, veksCopy_32fc, (const T32fc* pSrc, T32fc* pDst, int len), veksCopy_64f);
VEKS_ALIAS(VekResult, veksCopy_32sc, (const T32sc* pSrc, T32sc* pDst, int len), veksCopy_64f);
VEKS_COPY(veksCopy_64fc, T64fc)
VEKS_ALIAS(VekResult, veksCopy_64sc, (const T64sc* pSrc, T64sc* pDst, int len), veksCopy_64fc);

VEKS_MOVE(veksMove_8u, T8u)
VEKS_MOVE(veksMove_16s, T16s)
VEKS_MOVE(veksMove_32f, T32f)
VEKS_ALIAS(VekResult, veksMove_32s, (const T32s* pSrc, T32s* pDst, int len), veksMove_32f);
VEKS_ALIAS(VekResult, veksMove_16sc, (const T16sc* pSrc, T16sc* pDst, int len), veksMove_32f);
VEKS_MOVE(veksMove_64f, T64f)
VEKS_ALIAS(VekResult, veksMove_64s, (const T64s* pSrc, T64s* pDst, int len), veksMove_64f);
VEKS_ALIAS(VekResult, veksMove_32fc, (const T32fc* pSrc, T32fc* pDst, int len), veksMove_64f);
VEKS_ALIAS(VekResult, veksMove_32sc, (const T32sc* pSrc, T32sc* pDst, int len), veksMove_64f);
VEKS_MOVE(veksMove_64fc, T64fc)
VEKS_ALIAS(VekResult, veksMove_64sc, (const T64sc* pSrc, T64sc* pDst, int len), veksMove_64fc);

VEKS_ZERO(veksZero_8u, T8u)
VEKS_ZERO(veksZero_16s, T16s)
VEKS_ZERO(veksZero_32f, T32f)
VEKS_ALIAS(VekResult, veksZero_32s, (T32s * pDst, int len), veksZero_32f);
VEKS_ALIAS(VekResult, veksZero_16sc, (T16sc * pDst, int len), veksZero_32f);
VEKS_ZERO(veksZero_64f, T64f)
VEKS_ALIAS(VekResult, veksZero_64s, (T64s * pDst, int len), veksZero_64f);
VEKS_ALIAS(VekResult, veksZero_32fc, (T32fc * pDst, int len), veksZero_64f);
VEKS_ALIAS(VekResult, veksZero_32sc, (T32sc * pDst, int len), veksZero_64f);
VEKS_ZERO(veksZero_64fc, T64fc)
VEKS_ALIAS(VekResult, veksZero_64sc, (T64sc * pDst, int len), veksZero_64fc);

VEKS_SET(veksSet_8u, T8u)
VEKS_SET(veksSet_16s, T16s)
VEKS_SET(veksSet_16sc, T16sc)
VEKS_SET(veksSet_32s, T32s)
VEKS_SET(veksSet_32f, T32f)
VEKS_SET(veksSet_32fc, T32fc)
VEKS_SET_SHARED(veksSet_32sc, T32sc, veksSet_32fc);
VEKS_SET(veksSet_64f, T64f)
VEKS_SET_SHARED(veksSet_64s, T64s, veksSet_64f);
VEKS_SET(veksSet_64fc, T64fc)
VEKS_SET(veksSet_64sc, T64sc)

// Bitwise And, Or, Xor (with a vector or a constant), Not, and shifts by a
// constant count. Signed data uses the unsigned member of its width.
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "kernels/bits.h"

using namespace veks;
using kern::Arr;
using kern::Bcast;

// (pSrc1, pSrc2, pDst, len) and (pSrc, pSrcDst, len)
#define VEKS_BITS(name, Op, T)                                                     \
    VEKS_EXPORT VekResult name(const T* pSrc1, const T* pSrc2, T* pDst, int len) { \
        if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st; \
        kern::bitsLoop<Op>(Arr<T>{pSrc1}, Arr<T>{pSrc2}, pDst, len);               \
        return VEK_OK;                                                             \
    }
#define VEKS_BITS_I(name, Op, T)                                                   \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len) {               \
        if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;      \
        kern::bitsLoop<Op>(Arr<T>{pSrc}, Arr<T>{pSrcDst}, pSrcDst, len);           \
        return VEK_OK;                                                             \
    }
// (pSrc, val, pDst, len) and (val, pSrcDst, len)
#define VEKS_BITS_C(name, Op, T)                                                   \
    VEKS_EXPORT VekResult name(const T* pSrc, T val, T* pDst, int len) {           \
        if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;         \
        kern::bitsLoop<Op>(Arr<T>{pSrc}, Bcast<T>{val}, pDst, len);                \
        return VEK_OK;                                                             \
    }
#define VEKS_BITS_CI(name, Op, T)                                                  \
    VEKS_EXPORT VekResult name(T val, T* pSrcDst, int len) {                       \
        if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;            \
        kern::bitsLoop<Op>(Arr<T>{pSrcDst}, Bcast<T>{val}, pSrcDst, len);          \
        return VEK_OK;                                                             \
    }
// Not: exclusive or with all ones.
#define VEKS_NOT(name, T)                                                          \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) {                  \
        if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;         \
        kern::bitsLoop<kern::XorBits>(Arr<T>{pSrc}, Bcast<T>{static_cast<T>(~T(0))}, pDst, len); \
        return VEK_OK;                                                             \
    }
#define VEKS_NOT_I(name, T)                                                        \
    VEKS_EXPORT VekResult name(T* pSrcDst, int len) {                              \
        if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;            \
        kern::bitsLoop<kern::XorBits>(Arr<T>{pSrcDst}, Bcast<T>{static_cast<T>(~T(0))}, pSrcDst, len); \
        return VEK_OK;                                                             \
    }
// (pSrc, val, pDst, len) and (val, pSrcDst, len); a negative count is refused
// after the common checks.
#define VEKS_SHIFT(name, Left, T)                                                  \
    VEKS_EXPORT VekResult name(const T* pSrc, int val, T* pDst, int len) {         \
        if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;         \
        if (val < 0) return VEK_ERR_SHIFT;                                         \
        kern::shiftLoop<Left>(pSrc, pDst, len, val);                               \
        return VEK_OK;                                                             \
    }
#define VEKS_SHIFT_I(name, Left, T)                                                \
    VEKS_EXPORT VekResult name(int val, T* pSrcDst, int len) {                     \
        if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;            \
        if (val < 0) return VEK_ERR_SHIFT;                                         \
        kern::shiftLoop<Left>(pSrcDst, pSrcDst, len, val);                         \
        return VEK_OK;                                                             \
    }

VEKS_BITS(veksAnd_8u, kern::AndBits, T8u)
VEKS_BITS_I(veksAnd_8u_I, kern::AndBits, T8u)
VEKS_BITS(veksAnd_16u, kern::AndBits, T16u)
VEKS_BITS_I(veksAnd_16u_I, kern::AndBits, T16u)
VEKS_BITS(veksAnd_32u, kern::AndBits, T32u)
VEKS_BITS_I(veksAnd_32u_I, kern::AndBits, T32u)
VEKS_BITS_C(veksAndC_8u, kern::AndBits, T8u)
VEKS_BITS_CI(veksAndC_8u_I, kern::AndBits, T8u)
VEKS_BITS_C(veksAndC_16u, kern::AndBits, T16u)
VEKS_BITS_CI(veksAndC_16u_I, kern::AndBits, T16u)
VEKS_BITS_C(veksAndC_32u, kern::AndBits, T32u)
VEKS_BITS_CI(veksAndC_32u_I, kern::AndBits, T32u)
VEKS_BITS(veksOr_8u, kern::OrBits, T8u)
VEKS_BITS_I(veksOr_8u_I, kern::OrBits, T8u)
VEKS_BITS(veksOr_16u, kern::OrBits, T16u)
VEKS_BITS_I(veksOr_16u_I, kern::OrBits, T16u)
VEKS_BITS(veksOr_32u, kern::OrBits, T32u)
VEKS_BITS_I(veksOr_32u_I, kern::OrBits, T32u)
VEKS_BITS_C(veksOrC_8u, kern::OrBits, T8u)
VEKS_BITS_CI(veksOrC_8u_I, kern::OrBits, T8u)
VEKS_BITS_C(veksOrC_16u, kern::OrBits, T16u)
VEKS_BITS_CI(veksOrC_16u_I, kern::OrBits, T16u)
VEKS_BITS_C(veksOrC_32u, kern::OrBits, T32u)
VEKS_BITS_CI(veksOrC_32u_I, kern::OrBits, T32u)
VEKS_BITS(veksXor_8u, kern::XorBits, T8u)
VEKS_BITS_I(veksXor_8u_I, kern::XorBits, T8u)
VEKS_BITS(veksXor_16u, kern::XorBits, T16u)
VEKS_BITS_I(veksXor_16u_I, kern::XorBits, T16u)
VEKS_BITS(veksXor_32u, kern::XorBits, T32u)
VEKS_BITS_I(veksXor_32u_I, kern::XorBits, T32u)
VEKS_BITS_C(veksXorC_8u, kern::XorBits, T8u)
VEKS_BITS_CI(veksXorC_8u_I, kern::XorBits, T8u)
VEKS_BITS_C(veksXorC_16u, kern::XorBits, T16u)
VEKS_BITS_CI(veksXorC_16u_I, kern::XorBits, T16u)
VEKS_BITS_C(veksXorC_32u, kern::XorBits, T32u)
VEKS_BITS_CI(veksXorC_32u_I, kern::XorBits, T32u)
VEKS_NOT(veksNot_8u, T8u)
VEKS_NOT_I(veksNot_8u_I, T8u)
VEKS_NOT(veksNot_16u, T16u)
VEKS_NOT_I(veksNot_16u_I, T16u)
VEKS_NOT(veksNot_32u, T32u)
VEKS_NOT_I(veksNot_32u_I, T32u)

VEKS_SHIFT(veksLShiftC_8u, true, T8u)
VEKS_SHIFT_I(veksLShiftC_8u_I, true, T8u)
VEKS_SHIFT(veksLShiftC_16u, true, T16u)
VEKS_SHIFT_I(veksLShiftC_16u_I, true, T16u)
VEKS_SHIFT(veksLShiftC_16s, true, T16s)
VEKS_SHIFT_I(veksLShiftC_16s_I, true, T16s)
VEKS_SHIFT(veksLShiftC_32u, true, T32u)
VEKS_SHIFT_I(veksLShiftC_32u_I, true, T32u)
VEKS_SHIFT(veksLShiftC_32s, true, T32s)
VEKS_SHIFT_I(veksLShiftC_32s_I, true, T32s)
VEKS_SHIFT(veksRShiftC_8u, false, T8u)
VEKS_SHIFT_I(veksRShiftC_8u_I, false, T8u)
VEKS_SHIFT(veksRShiftC_16u, false, T16u)
VEKS_SHIFT_I(veksRShiftC_16u_I, false, T16u)
VEKS_SHIFT(veksRShiftC_16s, false, T16s)
VEKS_SHIFT_I(veksRShiftC_16s_I, false, T16s)
VEKS_SHIFT(veksRShiftC_32u, false, T32u)
VEKS_SHIFT_I(veksRShiftC_32u_I, false, T32u)
VEKS_SHIFT(veksRShiftC_32s, false, T32s)
VEKS_SHIFT_I(veksRShiftC_32s_I, false, T32s)

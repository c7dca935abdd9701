// Div (second operand divided by the first), DivC (element / constant),
// DivCRev (constant / element) and the Div_Round forms.
#include "arith/divide.h"
#include "frame/detail/check.h"
#include "frame/detail/export.h"

using namespace veks;
using arith::Arr;
using arith::Bcast;

// Integer quotient pSrc2 / pSrc1 (in place pSrcDst / pSrc), scaled,
// rounded by the processor's setting; a zero divisor is warned about.
#define VEKS_DIV_SFS(name, T1, T2, TD)                                                                  \
    VEKS_EXPORT VekResult name(const T1* pSrc1, const T2* pSrc2, TD* pDst, int len, int scaleFactor) {  \
        if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;                      \
        return arith::divideInt(Arr<T1>{pSrc1}, Arr<T2>{pSrc2}, pDst, len, scaleFactor, kern::kRoundCurrent); \
    }
#define VEKS_DIV_ISFS(name, T)                                                                 \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len, int scaleFactor) {          \
        if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;                  \
        return arith::divideInt(Arr<T>{pSrc}, Arr<T>{pSrcDst}, pSrcDst, len, scaleFactor, kern::kRoundCurrent); \
    }
// The same with a rounding mode, checked after pointers and length.
#define VEKS_DIV_ROUND_SFS(name, T)                                                                           \
    VEKS_EXPORT VekResult name(const T* pSrc1, const T* pSrc2, T* pDst, int len, int rndMode, int scaleFactor) { \
        if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;                            \
        if (const VekResult st = checkRoundMode(rndMode)) return st;                                          \
        return arith::divideInt(Arr<T>{pSrc1}, Arr<T>{pSrc2}, pDst, len, scaleFactor, rndMode);               \
    }
#define VEKS_DIV_ROUND_ISFS(name, T)                                                                \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len, int rndMode, int scaleFactor) {  \
        if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;                       \
        if (const VekResult st = checkRoundMode(rndMode)) return st;                                \
        return arith::divideInt(Arr<T>{pSrc}, Arr<T>{pSrcDst}, pSrcDst, len, scaleFactor, rndMode); \
    }
// Integer element / val; a zero val is an error.
#define VEKS_DIVC_SFS(name, T)                                                                       \
    VEKS_EXPORT VekResult name(const T* pSrc, T val, T* pDst, int len, int scaleFactor) {            \
        if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;                           \
        if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;                                          \
        return arith::divideInt(Bcast<T>{val}, Arr<T>{pSrc}, pDst, len, scaleFactor, kern::kRoundCurrent); \
    }
#define VEKS_DIVC_ISFS(name, T)                                                                         \
    VEKS_EXPORT VekResult name(T val, T* pSrcDst, int len, int scaleFactor) {                           \
        if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;                                 \
        if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;                                             \
        return arith::divideInt(Bcast<T>{val}, Arr<T>{pSrcDst}, pSrcDst, len, scaleFactor, kern::kRoundCurrent); \
    }
// Floating quotients: Div_32f by the refined reciprocal, the others in full.
#define VEKS_DIV_FLOAT(name, fn, T)                                                 \
    VEKS_EXPORT VekResult name(const T* pSrc1, const T* pSrc2, T* pDst, int len) {  \
        if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;  \
        return arith::fn(Arr<T>{pSrc1}, Arr<T>{pSrc2}, pDst, len);                  \
    }
#define VEKS_DIV_FLOAT_I(name, fn, T)                                               \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len) {                \
        if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;       \
        return arith::fn(Arr<T>{pSrc}, Arr<T>{pSrcDst}, pSrcDst, len);              \
    }
#define VEKS_DIVC_FLOAT(name, T)                                                    \
    VEKS_EXPORT VekResult name(const T* pSrc, T val, T* pDst, int len) {            \
        if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;          \
        if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;                         \
        return arith::divideFull(Bcast<T>{val}, Arr<T>{pSrc}, pDst, len);           \
    }
#define VEKS_DIVC_FLOAT_I(name, T)                                                  \
    VEKS_EXPORT VekResult name(T val, T* pSrcDst, int len) {                        \
        if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;             \
        if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;                         \
        return arith::divideFull(Bcast<T>{val}, Arr<T>{pSrcDst}, pSrcDst, len);     \
    }

// Div
VEKS_DIV_ISFS(veksDiv_16s_ISfs, T16s)
VEKS_DIV_SFS(veksDiv_16s_Sfs, T16s, T16s, T16s)

VEKS_EXPORT VekResult veksDiv_16sc_ISfs(const T16sc* pSrc, T16sc* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;
    return arith::divide16sc(Arr<T16sc>{pSrc}, Arr<T16sc>{pSrcDst}, pSrcDst, len, scaleFactor);
}
VEKS_EXPORT VekResult veksDiv_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;
    return arith::divide16sc(Arr<T16sc>{pSrc1}, Arr<T16sc>{pSrc2}, pDst, len, scaleFactor);
}

VEKS_DIV_ISFS(veksDiv_16u_ISfs, T16u)
VEKS_DIV_SFS(veksDiv_16u_Sfs, T16u, T16u, T16u)
VEKS_DIV_FLOAT(veksDiv_32f, divide32f, T32f)
VEKS_DIV_FLOAT_I(veksDiv_32f_I, divide32f, T32f)
VEKS_DIV_FLOAT(veksDiv_32fc, divideFull, T32fc)
VEKS_DIV_FLOAT_I(veksDiv_32fc_I, divideFull, T32fc)
VEKS_DIV_SFS(veksDiv_32s16s_Sfs, T32s, T16s, T16s)
VEKS_DIV_ISFS(veksDiv_32s_ISfs, T32s)
VEKS_DIV_SFS(veksDiv_32s_Sfs, T32s, T32s, T32s)
VEKS_DIV_FLOAT(veksDiv_64f, divideFull, T64f)
VEKS_DIV_FLOAT_I(veksDiv_64f_I, divideFull, T64f)
VEKS_DIV_FLOAT(veksDiv_64fc, divideFull, T64fc)
VEKS_DIV_FLOAT_I(veksDiv_64fc_I, divideFull, T64fc)
VEKS_DIV_ISFS(veksDiv_8u_ISfs, T8u)
VEKS_DIV_SFS(veksDiv_8u_Sfs, T8u, T8u, T8u)
VEKS_DIV_ROUND_ISFS(veksDiv_Round_16s_ISfs, T16s)
VEKS_DIV_ROUND_SFS(veksDiv_Round_16s_Sfs, T16s)
VEKS_DIV_ROUND_ISFS(veksDiv_Round_16u_ISfs, T16u)
VEKS_DIV_ROUND_SFS(veksDiv_Round_16u_Sfs, T16u)
VEKS_DIV_ROUND_ISFS(veksDiv_Round_8u_ISfs, T8u)
VEKS_DIV_ROUND_SFS(veksDiv_Round_8u_Sfs, T8u)

// DivC
VEKS_DIVC_ISFS(veksDivC_16s_ISfs, T16s)
VEKS_DIVC_SFS(veksDivC_16s_Sfs, T16s)

VEKS_EXPORT VekResult veksDivC_16sc_ISfs(T16sc val, T16sc* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;
    return arith::divide16sc(Bcast<T16sc>{val}, Arr<T16sc>{pSrcDst}, pSrcDst, len, scaleFactor);
}
VEKS_EXPORT VekResult veksDivC_16sc_Sfs(const T16sc* pSrc, T16sc val, T16sc* pDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    if (arith::isZero(val)) return VEK_ERR_DIV_BY_ZERO;
    return arith::divide16sc(Bcast<T16sc>{val}, Arr<T16sc>{pSrc}, pDst, len, scaleFactor);
}

VEKS_DIVC_ISFS(veksDivC_16u_ISfs, T16u)
VEKS_DIVC_SFS(veksDivC_16u_Sfs, T16u)

// Multiplication by the single-precision reciprocal of val, through the
// MulC body: its results, not those of a correctly rounded division.
VEKS_EXPORT VekResult veksDivC_32f(const T32f* pSrc, T32f val, T32f* pDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    if (val == 0) return VEK_ERR_DIV_BY_ZERO;
    return veksMulC_32f(pSrc, 1.0f / val, pDst, len);
}
VEKS_EXPORT VekResult veksDivC_32f_I(T32f val, T32f* pSrcDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    if (val == 0) return VEK_ERR_DIV_BY_ZERO;
    return veksMulC_32f_I(1.0f / val, pSrcDst, len);
}

VEKS_DIVC_FLOAT(veksDivC_32fc, T32fc)
VEKS_DIVC_FLOAT_I(veksDivC_32fc_I, T32fc)
VEKS_DIVC_FLOAT(veksDivC_64f, T64f)
VEKS_DIVC_FLOAT_I(veksDivC_64f_I, T64f)
VEKS_DIVC_FLOAT(veksDivC_64fc, T64fc)
VEKS_DIVC_FLOAT_I(veksDivC_64fc_I, T64fc)

// element / val * 2^-scaleFactor from the exact rational, ties to even,
// saturated. Deliberately apart from the family: len is an unsigned count
// (only 0 is refused), and a zero val is no error: non-zero elements go to
// the end of the range their sign points to, zeros stay, and the call warns.
VEKS_EXPORT VekResult veksDivC_64s_ISfs(T64s val, T64s* pSrcDst, int len, int scaleFactor) {
    if (pSrcDst == nullptr) return VEK_ERR_NULL_POINTER;
    const uint32_t count = static_cast<uint32_t>(len);
    if (count == 0) return VEK_ERR_SIZE;
    if (val == 0) {
        for (uint32_t i = 0; i < count; ++i)
            pSrcDst[i] = pSrcDst[i] > 0 ? INT64_MAX : pSrcDst[i] < 0 ? INT64_MIN : 0;
        return VEK_WRN_DIV_BY_ZERO;
    }
    for (uint32_t i = 0; i < count; ++i) pSrcDst[i] = arith::divScale64(pSrcDst[i], val, scaleFactor);
    return VEK_OK;
}

VEKS_DIVC_ISFS(veksDivC_8u_ISfs, T8u)
VEKS_DIVC_SFS(veksDivC_8u_Sfs, T8u)

// DivCRev: val / element. A zero element warns; with val 0 every result is 0.
VEKS_EXPORT VekResult veksDivCRev_16u(const T16u* pSrc, T16u val, T16u* pDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    return arith::divideInt(Arr<T16u>{pSrc}, Bcast<T16u>{val}, pDst, len, 0, kern::kRoundCurrent);
}
VEKS_EXPORT VekResult veksDivCRev_16u_I(T16u val, T16u* pSrcDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    return arith::divideInt(Arr<T16u>{pSrcDst}, Bcast<T16u>{val}, pSrcDst, len, 0, kern::kRoundCurrent);
}
VEKS_EXPORT VekResult veksDivCRev_32f(const T32f* pSrc, T32f val, T32f* pDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    return arith::divide32f(Arr<T32f>{pSrc}, Bcast<T32f>{val}, pDst, len);
}
VEKS_EXPORT VekResult veksDivCRev_32f_I(T32f val, T32f* pSrcDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    return arith::divide32f(Arr<T32f>{pSrcDst}, Bcast<T32f>{val}, pSrcDst, len);
}

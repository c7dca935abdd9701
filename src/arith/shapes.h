// The argument shapes of the arithmetic exports. Each macro takes the full
// export name and expands to the extern "C" function: validate in the fixed
// order (null pointers, then len < 1), then run the family template. The
// source of an in-place form is also its destination.
#pragma once

#include "arith/family.h"
#include "frame/detail/check.h"
#include "frame/detail/export.h"

// (pSrc1, pSrc2, pDst, len [, scaleFactor])
#define VEKS_BINARY(name, Op, T1, T2, TD)                                                   \
    VEKS_EXPORT VekResult name(const T1* pSrc1, const T2* pSrc2, TD* pDst, int len) {      \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;    \
        veks::arith::run<Op>(veks::arith::Arr<T1>{pSrc1}, veks::arith::Arr<T2>{pSrc2}, pDst, len, 0); \
        return VEK_OK;                                                                      \
    }
#define VEKS_BINARY_SFS(name, Op, T1, T2, TD)                                                          \
    VEKS_EXPORT VekResult name(const T1* pSrc1, const T2* pSrc2, TD* pDst, int len, int scaleFactor) { \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;               \
        veks::arith::run<Op>(veks::arith::Arr<T1>{pSrc1}, veks::arith::Arr<T2>{pSrc2}, pDst, len, scaleFactor); \
        return VEK_OK;                                                                                 \
    }

// (pSrc, pSrcDst, len [, scaleFactor]): pSrcDst = Op(pSrc, pSrcDst)
#define VEKS_BINARY_I(name, Op, T1, TD)                                                   \
    VEKS_EXPORT VekResult name(const T1* pSrc, TD* pSrcDst, int len) {                    \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pSrcDst)) return st;       \
        veks::arith::run<Op>(veks::arith::Arr<T1>{pSrc}, veks::arith::Arr<TD>{pSrcDst}, pSrcDst, len, 0); \
        return VEK_OK;                                                                    \
    }
#define VEKS_BINARY_ISFS(name, Op, T1, TD)                                                 \
    VEKS_EXPORT VekResult name(const T1* pSrc, TD* pSrcDst, int len, int scaleFactor) {    \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pSrcDst)) return st;        \
        veks::arith::run<Op>(veks::arith::Arr<T1>{pSrc}, veks::arith::Arr<TD>{pSrcDst}, pSrcDst, len, scaleFactor); \
        return VEK_OK;                                                                     \
    }

// (pSrc, val, pDst, len [, scaleFactor]): pDst = Op(pSrc, val)
#define VEKS_CONST(name, Op, T, TD)                                                      \
    VEKS_EXPORT VekResult name(const T* pSrc, T val, TD* pDst, int len) {                \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;         \
        veks::arith::run<Op>(veks::arith::Arr<T>{pSrc}, veks::arith::Bcast<T>{val}, pDst, len, 0); \
        return VEK_OK;                                                                   \
    }
#define VEKS_CONST_SFS(name, Op, T, TD)                                                          \
    VEKS_EXPORT VekResult name(const T* pSrc, T val, TD* pDst, int len, int scaleFactor) {       \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;                 \
        veks::arith::run<Op>(veks::arith::Arr<T>{pSrc}, veks::arith::Bcast<T>{val}, pDst, len, scaleFactor); \
        return VEK_OK;                                                                           \
    }

// (val, pSrcDst, len [, scaleFactor]): pSrcDst = Op(pSrcDst, val)
#define VEKS_CONST_I(name, Op, T)                                                        \
    VEKS_EXPORT VekResult name(T val, T* pSrcDst, int len) {                             \
        if (const VekResult st = veks::checkPtrsLen(len, pSrcDst)) return st;            \
        veks::arith::run<Op>(veks::arith::Arr<T>{pSrcDst}, veks::arith::Bcast<T>{val}, pSrcDst, len, 0); \
        return VEK_OK;                                                                   \
    }
#define VEKS_CONST_ISFS(name, Op, T)                                                         \
    VEKS_EXPORT VekResult name(T val, T* pSrcDst, int len, int scaleFactor) {                \
        if (const VekResult st = veks::checkPtrsLen(len, pSrcDst)) return st;                \
        if (veks::arith::constIsIdentity<Op, T, T>(val, scaleFactor)) return VEK_OK;         \
        veks::arith::run<Op>(veks::arith::Arr<T>{pSrcDst}, veks::arith::Bcast<T>{val}, pSrcDst, len, scaleFactor); \
        return VEK_OK;                                                                       \
    }

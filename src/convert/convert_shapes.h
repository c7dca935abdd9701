// The argument shapes of the Convert exports. Each shape validates in the
// library's order (pointers, length, then its own parameters) and runs
// Convert<TSrc, TDst>::run. A row writes the export's full name:
//   VEKS_CONVERT_RND_SFS(veksConvert_32f16s_Sfs, T32f, T16s)
#pragma once

#include "convert/convert.h"
#include "frame/detail/check.h"
#include "frame/detail/export.h"

namespace veks {
namespace convert {

// The half-precision members accept only rounding toward zero and to nearest.
inline VekResult checkHalfRoundMode(int rndMode) {
    return rndMode == VEK_ROUND_ZERO || rndMode == VEK_ROUND_NEAR ? VEK_OK : VEK_ERR_ROUND_MODE;
}

}  // namespace convert
}  // namespace veks

// (pSrc, pDst, len): exact widening, or rounding to nearest even.
#define VEKS_CONVERT(name, TSrc, TDst)                                                    \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len) {                   \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;          \
        veks::convert::Convert<TSrc, TDst>::run(pSrc, pDst, static_cast<size_t>(len),    \
                                                VEK_ROUND_NEAR, 0);                        \
        return VEK_OK;                                                                    \
    }

// (pSrc, pDst, len, scaleFactor): results times 2^-scaleFactor, to nearest even.
#define VEKS_CONVERT_SFS(name, TSrc, TDst)                                                \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len, int scaleFactor) {  \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;          \
        veks::convert::Convert<TSrc, TDst>::run(pSrc, pDst, static_cast<size_t>(len),    \
                                                VEK_ROUND_NEAR, scaleFactor);              \
        return VEK_OK;                                                                    \
    }

// (pSrc, pDst, len, rndMode, scaleFactor): every rndMode is accepted; values
// other than 0 and 1 round half away from zero.
#define VEKS_CONVERT_RND_SFS(name, TSrc, TDst)                                             \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len, int rndMode,         \
                               int scaleFactor) {                                          \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;           \
        veks::convert::Convert<TSrc, TDst>::run(pSrc, pDst, static_cast<size_t>(len),     \
                                                rndMode, scaleFactor);                      \
        return VEK_OK;                                                                     \
    }

// As above, but the length is an unsigned count: only 0 is refused.
#define VEKS_CONVERT_RND_SFS_COUNT(name, TSrc, TDst)                                       \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len, int rndMode,         \
                               int scaleFactor) {                                          \
        if (veks::anyNull(pSrc, pDst)) return VEK_ERR_NULL_POINTER;                        \
        if (len == 0) return VEK_ERR_SIZE;                                                 \
        veks::convert::Convert<TSrc, TDst>::run(pSrc, pDst, static_cast<unsigned>(len),   \
                                                rndMode, scaleFactor);                      \
        return VEK_OK;                                                                     \
    }

// Half precision: (pSrc, pDst, len[, rndMode[, scaleFactor]]), rndMode 0 or 1.
#define VEKS_CONVERT_HALF(name, TSrc, TDst)                                                \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len) {                    \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;           \
        veks::convert::Convert<TSrc, TDst, true>::run(pSrc, pDst, static_cast<size_t>(len), \
                                                      VEK_ROUND_NEAR, 0);                   \
        return VEK_OK;                                                                     \
    }

#define VEKS_CONVERT_HALF_RND(name, TSrc, TDst)                                            \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len, int rndMode) {       \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;           \
        if (const VekResult st = veks::convert::checkHalfRoundMode(rndMode)) return st;    \
        veks::convert::Convert<TSrc, TDst, true>::run(pSrc, pDst, static_cast<size_t>(len), \
                                                      rndMode, 0);                          \
        return VEK_OK;                                                                     \
    }

#define VEKS_CONVERT_HALF_RND_SFS(name, TSrc, TDst)                                        \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len, int rndMode,         \
                               int scaleFactor) {                                          \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;           \
        if (const VekResult st = veks::convert::checkHalfRoundMode(rndMode)) return st;    \
        veks::convert::Convert<TSrc, TDst, true>::run(pSrc, pDst, static_cast<size_t>(len), \
                                                      rndMode, scaleFactor);                \
        return VEK_OK;                                                                     \
    }

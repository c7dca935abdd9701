// Mul and MulC: products of two vectors, and of a vector and a constant;
// complex products part by part from exact sums of two products.
#include "arith/shapes.h"
#include "frame/detail/rounding.h"
#include "kernels/float_to_int.h"

using namespace veks;

// Mul
VEKS_BINARY(veksMul_16s, kern::MulRealOp, T16s, T16s, T16s)
VEKS_BINARY(veksMul_16s32f, kern::MulRealOp, T16s, T16s, T32f)
VEKS_BINARY_SFS(veksMul_16s32s_Sfs, kern::MulRealOp, T16s, T16s, T32s)
VEKS_BINARY_I(veksMul_16s_I, kern::MulRealOp, T16s, T16s)
VEKS_BINARY_ISFS(veksMul_16s_ISfs, kern::MulRealOp, T16s, T16s)
VEKS_BINARY_SFS(veksMul_16s_Sfs, kern::MulRealOp, T16s, T16s, T16s)
VEKS_BINARY_ISFS(veksMul_16sc_ISfs, kern::MulCplxOp, T16sc, T16sc)
VEKS_BINARY_SFS(veksMul_16u16s_Sfs, kern::MulRealOp, T16u, T16s, T16s)
VEKS_BINARY_ISFS(veksMul_16u_ISfs, kern::MulUnsignedOp, T16u, T16u)
VEKS_BINARY_SFS(veksMul_16u_Sfs, kern::MulUnsignedOp, T16u, T16u, T16u)
VEKS_BINARY(veksMul_32f, kern::MulRealOp, T32f, T32f, T32f)
VEKS_BINARY(veksMul_32f32fc, kern::MulRealOp, T32f, T32fc, T32fc)
VEKS_BINARY_I(veksMul_32f32fc_I, kern::MulRealOp, T32f, T32fc)
VEKS_BINARY_I(veksMul_32f_I, kern::MulRealOp, T32f, T32f)
VEKS_BINARY(veksMul_32fc, kern::MulCplxOp, T32fc, T32fc, T32fc)
VEKS_BINARY_I(veksMul_32fc_I, kern::MulCplxOp, T32fc, T32fc)
VEKS_BINARY_ISFS(veksMul_32s32sc_ISfs, kern::MulRealOp, T32s, T32sc)
VEKS_BINARY_SFS(veksMul_32s32sc_Sfs, kern::MulRealOp, T32s, T32sc, T32sc)
VEKS_BINARY_ISFS(veksMul_32s_ISfs, kern::MulRealOp, T32s, T32s)
VEKS_BINARY_SFS(veksMul_32s_Sfs, kern::MulRealOp, T32s, T32s, T32s)
VEKS_BINARY_ISFS(veksMul_32sc_ISfs, kern::MulCplxOp, T32sc, T32sc)
VEKS_BINARY_SFS(veksMul_32sc_Sfs, kern::MulCplxOp, T32sc, T32sc, T32sc)
VEKS_BINARY(veksMul_64f, kern::MulRealOp, T64f, T64f, T64f)
VEKS_BINARY_I(veksMul_64f_I, kern::MulRealOp, T64f, T64f)
VEKS_BINARY(veksMul_64fc, kern::MulCplxOp, T64fc, T64fc, T64fc)
VEKS_BINARY_I(veksMul_64fc_I, kern::MulCplxOp, T64fc, T64fc)
VEKS_BINARY(veksMul_8u16u, kern::MulRealOp, T8u, T8u, T16u)
VEKS_BINARY_ISFS(veksMul_8u_ISfs, kern::MulRealOp, T8u, T8u)
VEKS_BINARY_SFS(veksMul_8u_Sfs, kern::MulRealOp, T8u, T8u, T8u)
VEKS_BINARY_SFS(veksMul_Low_32s_Sfs, kern::MulLowOp, T32s, T32s, T32s)

// A destination equal to either source runs the in-place form with the
// other source (the product is commutative), before any null test.
VEKS_EXPORT VekResult veksMul_16sc_Sfs(const T16sc* pSrc1, const T16sc* pSrc2, T16sc* pDst, int len, int scaleFactor) {
    if (pSrc2 == pDst) return veksMul_16sc_ISfs(pSrc1, pDst, len, scaleFactor);
    if (pSrc1 == pDst) return veksMul_16sc_ISfs(pSrc2, pDst, len, scaleFactor);
    if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pDst)) return st;
    arith::run<kern::MulCplxOp>(arith::Arr<T16sc>{pSrc1}, arith::Arr<T16sc>{pSrc2}, pDst, len, scaleFactor);
    return VEK_OK;
}

// MulC
VEKS_CONST_I(veksMulC_16s_I, kern::MulRealOp, T16s)
VEKS_CONST_ISFS(veksMulC_16s_ISfs, kern::MulRealOp, T16s)
VEKS_CONST_SFS(veksMulC_16s_Sfs, kern::MulRealOp, T16s, T16s)
VEKS_CONST_ISFS(veksMulC_16sc_ISfs, kern::MulCplxOp, T16sc)
VEKS_CONST_SFS(veksMulC_16sc_Sfs, kern::MulCplxOp, T16sc, T16sc)
VEKS_CONST_ISFS(veksMulC_16u_ISfs, kern::MulUnsignedOp, T16u)
VEKS_CONST_SFS(veksMulC_16u_Sfs, kern::MulUnsignedOp, T16u, T16u)
VEKS_CONST(veksMulC_32f, kern::MulRealOp, T32f, T32f)
VEKS_CONST_I(veksMulC_32f_I, kern::MulRealOp, T32f)
VEKS_CONST(veksMulC_32fc, kern::MulCplxOp, T32fc, T32fc)
VEKS_CONST_I(veksMulC_32fc_I, kern::MulCplxOp, T32fc)
VEKS_CONST_ISFS(veksMulC_32s_ISfs, kern::MulRealOp, T32s)
VEKS_CONST_SFS(veksMulC_32s_Sfs, kern::MulRealOp, T32s, T32s)
VEKS_CONST_ISFS(veksMulC_32sc_ISfs, kern::MulCplxOp, T32sc)
VEKS_CONST_SFS(veksMulC_32sc_Sfs, kern::MulCplxOp, T32sc, T32sc)
VEKS_CONST(veksMulC_64f, kern::MulRealOp, T64f, T64f)
VEKS_CONST_I(veksMulC_64f_I, kern::MulRealOp, T64f)
VEKS_CONST(veksMulC_64fc, kern::MulCplxOp, T64fc, T64fc)
VEKS_CONST_I(veksMulC_64fc_I, kern::MulCplxOp, T64fc)
VEKS_CONST_ISFS(veksMulC_64s_ISfs, kern::MulRealOp, T64s)
VEKS_CONST_ISFS(veksMulC_8u_ISfs, kern::MulRealOp, T8u)
VEKS_CONST_SFS(veksMulC_8u_Sfs, kern::MulRealOp, T8u, T8u)

// element * val * 2^-scaleFactor, rounded to nearest even under a forced
// rounding setting, saturated to T16s.
VEKS_EXPORT VekResult veksMulC_32f16s_Sfs(const T32f* pSrc, T32f val, T16s* pDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    const RoundingGuard nearest(RoundingGuard::Nearest);
    kern::mulScaleRound16sLoop(pSrc, val, pDst, len, scaleFactor);
    return VEK_OK;
}

VEKS_EXPORT VekResult veksMulC_Low_32f16s(const T32f* pSrc, T32f val, T16s* pDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    const RoundingGuard nearest(RoundingGuard::Nearest);
    kern::mulScaleRound16sLoop(pSrc, val, pDst, len, 0);
    return VEK_OK;
}

namespace {
// A 64-bit integer to double with one rounding by the SSE setting: both
// halves convert exactly and their sum rounds once. (A plain conversion on
// 32-bit x86 goes through the x87 unit and its own rounding setting.)
inline double toDouble(T64s x) {
    const double hi = static_cast<double>(static_cast<int32_t>(x >> 32)) * 4294967296.0;
    const double lo = static_cast<double>(static_cast<uint32_t>(x));
    return hi + lo;
}
}  // namespace

// element (converted to double) * val * 2^-scaleFactor, rounded to nearest
// even under a forced rounding setting, saturated to T64s.
VEKS_EXPORT VekResult veksMulC_64f64s_ISfs(T64f val, T64s* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    const RoundingGuard nearest(RoundingGuard::Nearest);
    for (int i = 0; i < len; ++i)
        pSrcDst[i] = roundSat<T64s>(toDouble(pSrcDst[i]) * val, VEK_ROUND_NEAR, scaleFactor);
    return VEK_OK;
}

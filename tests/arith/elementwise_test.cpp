// Add, Sub, Mul and their constant forms against the reference models.
#include "harness.h"

namespace {

template <class T>
ref::Big big(T v) {
    if constexpr (std::is_same<T, T64u>::value)
        return ref::bigOfU(v);
    else
        return ref::bigOf(v);
}

// The rule for one element: the exact value of the operation, scaled and
// saturated for integers; part by part for complex sums and for a real
// vector times a complex one.
template <class T1, class T2, class TD, ref::Op op>
TD refOf(T1 x1, T2 x2, int sf) {
    if constexpr (at::Cplx<TD>::value && !at::Cplx<T1>::value) {
        return TD{refOf<T1, decltype(x2.re), decltype(TD{}.re), op>(x1, x2.re, sf),
                  refOf<T1, decltype(x2.re), decltype(TD{}.re), op>(x1, x2.im, sf)};
    } else if constexpr (at::Cplx<TD>::value && op == ref::Op::Mul) {
        using B = decltype(TD{}.re);
        if constexpr (std::is_floating_point<B>::value) {
            return ref::mulComplex(x1, x2);
        } else {
            // 32-bit parts give exact values up to 2^63: kept as Big values.
            const ref::Big re = ref::addBig(ref::mulBig(x1.re, x2.re), ref::negBig(ref::mulBig(x1.im, x2.im)));
            const ref::Big im = ref::addBig(ref::mulBig(x1.re, x2.im), ref::mulBig(x1.im, x2.re));
            return TD{ref::scaleWide<B>(re, sf), ref::scaleWide<B>(im, sf)};
        }
    } else if constexpr (at::Cplx<TD>::value) {
        using B = decltype(TD{}.re);
        return TD{refOf<B, B, B, op>(x1.re, x2.re, sf), refOf<B, B, B, op>(x1.im, x2.im, sf)};
    } else if constexpr (std::is_floating_point<TD>::value) {
        return ref::apply<TD>(op, static_cast<TD>(x1), static_cast<TD>(x2));
    } else {
        return ref::scaleWide<TD>(ref::applyBig(op, big(x1), big(x2)), sf);
    }
}

// The product wrapped to its low 32 bits, then scaled.
T32s refMulLow(T32s x1, T32s x2, int sf) {
    const uint32_t low = static_cast<uint32_t>(x1) * static_cast<uint32_t>(x2);
    return ref::scaleWide<T32s>(ref::bigOf(static_cast<int32_t>(low)), sf);
}

template <class V>
void visitCases(V&& v) {
    AT_BIN(veksAdd_16s, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_BIN(veksAdd_16s32f, T16s, T16s, T32f, refOf<T16s, T16s, T32f, ref::Op::Add>);
    AT_BIN_I(veksAdd_16s32s_I, T16s, T32s, refOf<T16s, T32s, T32s, ref::Op::Add>);
    AT_BIN_I(veksAdd_16s_I, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_16s_ISfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_16s_Sfs, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_16sc_ISfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_16sc_Sfs, T16sc, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Add>);
    AT_BIN(veksAdd_16u, T16u, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_16u_ISfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_16u_Sfs, T16u, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Add>);
    AT_BIN(veksAdd_32f, T32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Add>);
    AT_BIN_I(veksAdd_32f_I, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Add>);
    AT_BIN(veksAdd_32fc, T32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Add>);
    AT_BIN_I(veksAdd_32fc_I, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_32s_ISfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_32s_Sfs, T32s, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_32sc_ISfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_32sc_Sfs, T32sc, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Add>);
    AT_BIN(veksAdd_32u, T32u, T32u, T32u, refOf<T32u, T32u, T32u, ref::Op::Add>);
    AT_BIN(veksAdd_64f, T64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Add>);
    AT_BIN_I(veksAdd_64f_I, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Add>);
    AT_BIN(veksAdd_64fc, T64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Add>);
    AT_BIN_I(veksAdd_64fc_I, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_64s_Sfs, T64s, T64s, T64s, refOf<T64s, T64s, T64s, ref::Op::Add>);
    AT_BIN(veksAdd_8u16u, T8u, T8u, T16u, refOf<T8u, T8u, T16u, ref::Op::Add>);
    AT_BIN_I_SFS(veksAdd_8u_ISfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Add>);
    AT_BIN_SFS(veksAdd_8u_Sfs, T8u, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Add>);
    AT_C_I(veksAddC_16s_I, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_16s_ISfs, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_C_SFS(veksAddC_16s_Sfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_16sc_ISfs, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Add>);
    AT_C_SFS(veksAddC_16sc_Sfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_16u_ISfs, T16u, refOf<T16u, T16u, T16u, ref::Op::Add>);
    AT_C_SFS(veksAddC_16u_Sfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Add>);
    AT_C(veksAddC_32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Add>);
    AT_C_I(veksAddC_32f_I, T32f, refOf<T32f, T32f, T32f, ref::Op::Add>);
    AT_C(veksAddC_32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Add>);
    AT_C_I(veksAddC_32fc_I, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_32s_ISfs, T32s, refOf<T32s, T32s, T32s, ref::Op::Add>);
    AT_C_SFS(veksAddC_32s_Sfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_32sc_ISfs, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Add>);
    AT_C_SFS(veksAddC_32sc_Sfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Add>);
    AT_C(veksAddC_64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Add>);
    AT_C_I(veksAddC_64f_I, T64f, refOf<T64f, T64f, T64f, ref::Op::Add>);
    AT_C(veksAddC_64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Add>);
    AT_C_I(veksAddC_64fc_I, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Add>);
    AT_C_SFS(veksAddC_64s_Sfs, T64s, T64s, refOf<T64s, T64s, T64s, ref::Op::Add>);
    AT_C_SFS(veksAddC_64u_Sfs, T64u, T64u, refOf<T64u, T64u, T64u, ref::Op::Add>);
    AT_C_I_SFS(veksAddC_8u_ISfs, T8u, refOf<T8u, T8u, T8u, ref::Op::Add>);
    AT_C_SFS(veksAddC_8u_Sfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Add>);
    AT_BIN(veksSub_16s, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_BIN(veksSub_16s32f, T16s, T16s, T32f, refOf<T16s, T16s, T32f, ref::Op::Sub>);
    AT_BIN_I(veksSub_16s_I, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_16s_ISfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_16s_Sfs, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_16sc_ISfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_16sc_Sfs, T16sc, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_16u_ISfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_16u_Sfs, T16u, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Sub>);
    AT_BIN(veksSub_32f, T32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Sub>);
    AT_BIN_I(veksSub_32f_I, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Sub>);
    AT_BIN(veksSub_32fc, T32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Sub>);
    AT_BIN_I(veksSub_32fc_I, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_32s_ISfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_32s_Sfs, T32s, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_32sc_ISfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_32sc_Sfs, T32sc, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Sub>);
    AT_BIN(veksSub_64f, T64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Sub>);
    AT_BIN_I(veksSub_64f_I, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Sub>);
    AT_BIN(veksSub_64fc, T64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Sub>);
    AT_BIN_I(veksSub_64fc_I, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Sub>);
    AT_BIN_I_SFS(veksSub_8u_ISfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Sub>);
    AT_BIN_SFS(veksSub_8u_Sfs, T8u, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Sub>);
    AT_C_I(veksSubC_16s_I, T16s, refOf<T16s, T16s, T16s, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_16s_ISfs, T16s, refOf<T16s, T16s, T16s, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_16s_Sfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_16sc_ISfs, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_16sc_Sfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_16u_ISfs, T16u, refOf<T16u, T16u, T16u, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_16u_Sfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::SubRev>);
    AT_C(veksSubC_32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::SubRev>);
    AT_C_I(veksSubC_32f_I, T32f, refOf<T32f, T32f, T32f, ref::Op::SubRev>);
    AT_C(veksSubC_32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::SubRev>);
    AT_C_I(veksSubC_32fc_I, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_32s_ISfs, T32s, refOf<T32s, T32s, T32s, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_32s_Sfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_32sc_ISfs, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_32sc_Sfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::SubRev>);
    AT_C(veksSubC_64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::SubRev>);
    AT_C_I(veksSubC_64f_I, T64f, refOf<T64f, T64f, T64f, ref::Op::SubRev>);
    AT_C(veksSubC_64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::SubRev>);
    AT_C_I(veksSubC_64fc_I, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubC_8u_ISfs, T8u, refOf<T8u, T8u, T8u, ref::Op::SubRev>);
    AT_C_SFS(veksSubC_8u_Sfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::SubRev>);
    AT_C_I_SFS(veksSubCRev_16s_ISfs, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_16s_Sfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Sub>);
    AT_C_I_SFS(veksSubCRev_16sc_ISfs, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_16sc_Sfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Sub>);
    AT_C_I_SFS(veksSubCRev_16u_ISfs, T16u, refOf<T16u, T16u, T16u, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_16u_Sfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Sub>);
    AT_C(veksSubCRev_32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Sub>);
    AT_C_I(veksSubCRev_32f_I, T32f, refOf<T32f, T32f, T32f, ref::Op::Sub>);
    AT_C(veksSubCRev_32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Sub>);
    AT_C_I(veksSubCRev_32fc_I, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Sub>);
    AT_C_I_SFS(veksSubCRev_32s_ISfs, T32s, refOf<T32s, T32s, T32s, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_32s_Sfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Sub>);
    AT_C_I_SFS(veksSubCRev_32sc_ISfs, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_32sc_Sfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Sub>);
    AT_C(veksSubCRev_64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Sub>);
    AT_C_I(veksSubCRev_64f_I, T64f, refOf<T64f, T64f, T64f, ref::Op::Sub>);
    AT_C(veksSubCRev_64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Sub>);
    AT_C_I(veksSubCRev_64fc_I, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Sub>);
    AT_C_I_SFS(veksSubCRev_8u_ISfs, T8u, refOf<T8u, T8u, T8u, ref::Op::Sub>);
    AT_C_SFS(veksSubCRev_8u_Sfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Sub>);
    AT_BIN(veksMul_16s, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_BIN(veksMul_16s32f, T16s, T16s, T32f, refOf<T16s, T16s, T32f, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_16s32s_Sfs, T16s, T16s, T32s, refOf<T16s, T16s, T32s, ref::Op::Mul>);
    AT_BIN_I(veksMul_16s_I, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_16s_ISfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_16s_Sfs, T16s, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_16sc_ISfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_16u16s_Sfs, T16u, T16s, T16s, refOf<T16u, T16s, T16s, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_16u_ISfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_16u_Sfs, T16u, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Mul>);
    AT_BIN(veksMul_32f, T32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Mul>);
    AT_BIN(veksMul_32f32fc, T32f, T32fc, T32fc, refOf<T32f, T32fc, T32fc, ref::Op::Mul>);
    AT_BIN_I(veksMul_32f32fc_I, T32f, T32fc, refOf<T32f, T32fc, T32fc, ref::Op::Mul>);
    AT_BIN_I(veksMul_32f_I, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Mul>);
    AT_BIN(veksMul_32fc, T32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Mul>);
    AT_BIN_I(veksMul_32fc_I, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_32s32sc_ISfs, T32s, T32sc, refOf<T32s, T32sc, T32sc, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_32s32sc_Sfs, T32s, T32sc, T32sc, refOf<T32s, T32sc, T32sc, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_32s_ISfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_32s_Sfs, T32s, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_32sc_ISfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_32sc_Sfs, T32sc, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Mul>);
    AT_BIN(veksMul_64f, T64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Mul>);
    AT_BIN_I(veksMul_64f_I, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Mul>);
    AT_BIN(veksMul_64fc, T64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Mul>);
    AT_BIN_I(veksMul_64fc_I, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Mul>);
    AT_BIN(veksMul_8u16u, T8u, T8u, T16u, refOf<T8u, T8u, T16u, ref::Op::Mul>);
    AT_BIN_I_SFS(veksMul_8u_ISfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_8u_Sfs, T8u, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_Low_32s_Sfs, T32s, T32s, T32s, refMulLow);
    AT_C_I(veksMulC_16s_I, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_16s_ISfs, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_C_SFS(veksMulC_16s_Sfs, T16s, T16s, refOf<T16s, T16s, T16s, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_16sc_ISfs, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Mul>);
    AT_C_SFS(veksMulC_16sc_Sfs, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_16u_ISfs, T16u, refOf<T16u, T16u, T16u, ref::Op::Mul>);
    AT_C_SFS(veksMulC_16u_Sfs, T16u, T16u, refOf<T16u, T16u, T16u, ref::Op::Mul>);
    AT_C(veksMulC_32f, T32f, T32f, refOf<T32f, T32f, T32f, ref::Op::Mul>);
    AT_C_I(veksMulC_32f_I, T32f, refOf<T32f, T32f, T32f, ref::Op::Mul>);
    AT_C(veksMulC_32fc, T32fc, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Mul>);
    AT_C_I(veksMulC_32fc_I, T32fc, refOf<T32fc, T32fc, T32fc, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_32s_ISfs, T32s, refOf<T32s, T32s, T32s, ref::Op::Mul>);
    AT_C_SFS(veksMulC_32s_Sfs, T32s, T32s, refOf<T32s, T32s, T32s, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_32sc_ISfs, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Mul>);
    AT_C_SFS(veksMulC_32sc_Sfs, T32sc, T32sc, refOf<T32sc, T32sc, T32sc, ref::Op::Mul>);
    AT_C(veksMulC_64f, T64f, T64f, refOf<T64f, T64f, T64f, ref::Op::Mul>);
    AT_C_I(veksMulC_64f_I, T64f, refOf<T64f, T64f, T64f, ref::Op::Mul>);
    AT_C(veksMulC_64fc, T64fc, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Mul>);
    AT_C_I(veksMulC_64fc_I, T64fc, refOf<T64fc, T64fc, T64fc, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_64s_ISfs, T64s, refOf<T64s, T64s, T64s, ref::Op::Mul>);
    AT_C_I_SFS(veksMulC_8u_ISfs, T8u, refOf<T8u, T8u, T8u, ref::Op::Mul>);
    AT_C_SFS(veksMulC_8u_Sfs, T8u, T8u, refOf<T8u, T8u, T8u, ref::Op::Mul>);
    AT_BIN_SFS(veksMul_16sc_Sfs, T16sc, T16sc, T16sc, refOf<T16sc, T16sc, T16sc, ref::Op::Mul>);
}

TEST(Elementwise, MatchesReference) {
    uint64_t seed = 100;
    visitCases([&](const auto& c) { at::check(c, ++seed); });
}

// Long outputs of each shape and float type, streamed and not.
TEST(Elementwise, LongOutputs) {
    uint64_t seed = 300;
    int rows = 0;
    visitCases([&](const auto& c) {
        rows += at::checkLong(c, ++seed, {"veksAdd_32f", "veksSub_64f_I", "veksMulC_32fc", "veksMul_64fc", "veksAddC_64f_I"});
    });
    EXPECT_EQ(rows, 5);
}

TEST(Elementwise, ChecksBeforeWriting) {
    visitCases([](const auto& c) { at::contract(c); });
}

// A destination equal to a source runs the in-place form, before the null
// tests: the product is the same either way round.
TEST(Elementwise, ComplexProductWithAliasedDestination) {
    const std::vector<T16sc> a = {{300, -7}, {-32768, -32768}, {5, 9}}, b = {{-2, 11}, {-32768, -32768}, {1, 1}};
    std::vector<T16sc> want(3), d = a;
    ASSERT_EQ(veksMul_16sc_Sfs(a.data(), b.data(), want.data(), 3, 2), VEK_OK);
    EXPECT_EQ(want[1].im, 32767);  // 2^31 as an exact imaginary part saturates
    ASSERT_EQ(veksMul_16sc_Sfs(d.data(), b.data(), d.data(), 3, 2), VEK_OK);
    EXPECT_TRUE(at::sameAll(d.data(), want));
    d = b;
    ASSERT_EQ(veksMul_16sc_Sfs(a.data(), d.data(), d.data(), 3, 2), VEK_OK);
    EXPECT_TRUE(at::sameAll(d.data(), want));
    d = b;
    EXPECT_EQ(veksMul_16sc_Sfs(nullptr, d.data(), d.data(), 3, 2), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksMul_16sc_Sfs(a.data(), d.data(), d.data(), 0, 2), VEK_ERR_SIZE);
    EXPECT_TRUE(at::sameAll(d.data(), b));
}

// Named values of the scale rule (b + a, b - a): ties to even, saturation,
// scaling of a saturated sum happening on the exact value.
TEST(Elementwise, NamedValues) {
    const struct { T16s a, b; int sf; T16s add, sub; } cases[] = {
        {1, 2, 1, 2, 0}, {2, 3, 1, 2, 0}, {-1, -2, 1, -2, 0}, {32767, 32767, 0, 32767, 0},
        {5, 1, -20, 32767, -32768}, {0, 0, -20, 0, 0}, {-32768, -32768, 17, 0, 0}, {3, 8, 1, 6, 2}};
    for (const auto& c : cases) {
        T16s d[2] = {0, 0};
        ASSERT_EQ(veksAdd_16s_Sfs(&c.a, &c.b, d, 1, c.sf) | veksSub_16s_Sfs(&c.a, &c.b, d + 1, 1, c.sf), VEK_OK);
        EXPECT_EQ(d[0], c.add) << c.a << " + " << c.b << " sf " << c.sf;
        EXPECT_EQ(d[1], c.sub) << c.b << " - " << c.a << " sf " << c.sf;
    }
}

}  // namespace

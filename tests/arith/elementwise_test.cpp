// Add, Sub, Mul and their constant forms against the reference models.
#include "harness.h"

namespace {

using at::Shape;
template <class T1, class T2, class TD>
using C = at::Case<T1, T2, TD>;

int clampSf(int sf) { return sf < -200 ? -200 : sf > 1000 ? 1000 : sf; }

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
            const ref::Big lo = ref::bigOf(std::numeric_limits<B>::min()), hi = ref::bigOf(std::numeric_limits<B>::max());
            auto narrow = [&](const ref::Big& v) {
                const ref::Big r = ref::scaleBig(v, sf, lo, hi);
                return static_cast<B>(r.neg ? -static_cast<int64_t>(r.lo) : static_cast<int64_t>(r.lo));
            };
            return TD{narrow(re), narrow(im)};
        }
    } else if constexpr (at::Cplx<TD>::value) {
        using B = decltype(TD{}.re);
        return TD{refOf<B, B, B, op>(x1.re, x2.re, sf), refOf<B, B, B, op>(x1.im, x2.im, sf)};
    } else if constexpr (std::is_floating_point<TD>::value) {
        return ref::applyFloat<TD>(op, static_cast<TD>(x1), static_cast<TD>(x2));
    } else if constexpr (sizeof(TD) == 8) {
        ref::Big v;
        if (op == ref::Op::Mul)
            v = ref::mulBig(x1, x2);
        else if (op == ref::Op::Add)
            v = ref::addBig(big(x1), big(x2));
        else if (op == ref::Op::Sub)
            v = ref::addBig(big(x2), ref::negBig(big(x1)));
        else
            v = ref::addBig(big(x1), ref::negBig(big(x2)));
        return ref::scaleWide<TD>(v, sf);
    } else {
        return ref::scale<TD>(ref::applyInt(op, x1, x2), clampSf(sf));
    }
}

// The product wrapped to its low 32 bits, then scaled.
T32s refMulLow(T32s x1, T32s x2, int sf) {
    const uint32_t low = static_cast<uint32_t>(x1) * static_cast<uint32_t>(x2);
    return ref::scale<T32s>(static_cast<int32_t>(low), clampSf(sf));
}

template <class V>
void visitCases(V&& v) {
    v(C<T16s, T16s, T16s>{"veksAdd_16s", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksAdd_16s(x1, x2, d, n); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16s, T16s, T32f>{"veksAdd_16s32f", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T32f* d, T16s, int n, int sf) { (void)sf; return veksAdd_16s32f(x1, x2, d, n); },
        refOf<T16s, T16s, T32f, ref::Op::Add>});
    v(C<T16s, T32s, T32s>{"veksAdd_16s32s_I", Shape::BinaryInPlace, false,
        [](const T16s* x1, T32s* x2, T32s*, T32s, int n, int sf) { (void)sf; return veksAdd_16s32s_I(x1, x2, n); },
        refOf<T16s, T32s, T32s, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAdd_16s_I", Shape::BinaryInPlace, false,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksAdd_16s_I(x1, x2, n); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAdd_16s_ISfs", Shape::BinaryInPlace, true,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksAdd_16s_ISfs(x1, x2, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAdd_16s_Sfs", Shape::Binary, true,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksAdd_16s_Sfs(x1, x2, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16sc, T16sc, T16sc>{"veksAdd_16sc_ISfs", Shape::BinaryInPlace, true,
        [](const T16sc* x1, T16sc* x2, T16sc*, T16sc, int n, int sf) { (void)sf; return veksAdd_16sc_ISfs(x1, x2, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Add>});
    v(C<T16sc, T16sc, T16sc>{"veksAdd_16sc_Sfs", Shape::Binary, true,
        [](const T16sc* x1, T16sc* x2, T16sc* d, T16sc, int n, int sf) { (void)sf; return veksAdd_16sc_Sfs(x1, x2, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Add>});
    v(C<T16u, T16u, T16u>{"veksAdd_16u", Shape::Binary, false,
        [](const T16u* x1, T16u* x2, T16u* d, T16u, int n, int sf) { (void)sf; return veksAdd_16u(x1, x2, d, n); },
        refOf<T16u, T16u, T16u, ref::Op::Add>});
    v(C<T16u, T16u, T16u>{"veksAdd_16u_ISfs", Shape::BinaryInPlace, true,
        [](const T16u* x1, T16u* x2, T16u*, T16u, int n, int sf) { (void)sf; return veksAdd_16u_ISfs(x1, x2, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Add>});
    v(C<T16u, T16u, T16u>{"veksAdd_16u_Sfs", Shape::Binary, true,
        [](const T16u* x1, T16u* x2, T16u* d, T16u, int n, int sf) { (void)sf; return veksAdd_16u_Sfs(x1, x2, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Add>});
    v(C<T32f, T32f, T32f>{"veksAdd_32f", Shape::Binary, false,
        [](const T32f* x1, T32f* x2, T32f* d, T32f, int n, int sf) { (void)sf; return veksAdd_32f(x1, x2, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Add>});
    v(C<T32f, T32f, T32f>{"veksAdd_32f_I", Shape::BinaryInPlace, false,
        [](const T32f* x1, T32f* x2, T32f*, T32f, int n, int sf) { (void)sf; return veksAdd_32f_I(x1, x2, n); },
        refOf<T32f, T32f, T32f, ref::Op::Add>});
    v(C<T32fc, T32fc, T32fc>{"veksAdd_32fc", Shape::Binary, false,
        [](const T32fc* x1, T32fc* x2, T32fc* d, T32fc, int n, int sf) { (void)sf; return veksAdd_32fc(x1, x2, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Add>});
    v(C<T32fc, T32fc, T32fc>{"veksAdd_32fc_I", Shape::BinaryInPlace, false,
        [](const T32fc* x1, T32fc* x2, T32fc*, T32fc, int n, int sf) { (void)sf; return veksAdd_32fc_I(x1, x2, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Add>});
    v(C<T32s, T32s, T32s>{"veksAdd_32s_ISfs", Shape::BinaryInPlace, true,
        [](const T32s* x1, T32s* x2, T32s*, T32s, int n, int sf) { (void)sf; return veksAdd_32s_ISfs(x1, x2, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Add>});
    v(C<T32s, T32s, T32s>{"veksAdd_32s_Sfs", Shape::Binary, true,
        [](const T32s* x1, T32s* x2, T32s* d, T32s, int n, int sf) { (void)sf; return veksAdd_32s_Sfs(x1, x2, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Add>});
    v(C<T32sc, T32sc, T32sc>{"veksAdd_32sc_ISfs", Shape::BinaryInPlace, true,
        [](const T32sc* x1, T32sc* x2, T32sc*, T32sc, int n, int sf) { (void)sf; return veksAdd_32sc_ISfs(x1, x2, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Add>});
    v(C<T32sc, T32sc, T32sc>{"veksAdd_32sc_Sfs", Shape::Binary, true,
        [](const T32sc* x1, T32sc* x2, T32sc* d, T32sc, int n, int sf) { (void)sf; return veksAdd_32sc_Sfs(x1, x2, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Add>});
    v(C<T32u, T32u, T32u>{"veksAdd_32u", Shape::Binary, false,
        [](const T32u* x1, T32u* x2, T32u* d, T32u, int n, int sf) { (void)sf; return veksAdd_32u(x1, x2, d, n); },
        refOf<T32u, T32u, T32u, ref::Op::Add>});
    v(C<T64f, T64f, T64f>{"veksAdd_64f", Shape::Binary, false,
        [](const T64f* x1, T64f* x2, T64f* d, T64f, int n, int sf) { (void)sf; return veksAdd_64f(x1, x2, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Add>});
    v(C<T64f, T64f, T64f>{"veksAdd_64f_I", Shape::BinaryInPlace, false,
        [](const T64f* x1, T64f* x2, T64f*, T64f, int n, int sf) { (void)sf; return veksAdd_64f_I(x1, x2, n); },
        refOf<T64f, T64f, T64f, ref::Op::Add>});
    v(C<T64fc, T64fc, T64fc>{"veksAdd_64fc", Shape::Binary, false,
        [](const T64fc* x1, T64fc* x2, T64fc* d, T64fc, int n, int sf) { (void)sf; return veksAdd_64fc(x1, x2, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Add>});
    v(C<T64fc, T64fc, T64fc>{"veksAdd_64fc_I", Shape::BinaryInPlace, false,
        [](const T64fc* x1, T64fc* x2, T64fc*, T64fc, int n, int sf) { (void)sf; return veksAdd_64fc_I(x1, x2, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Add>});
    v(C<T64s, T64s, T64s>{"veksAdd_64s_Sfs", Shape::Binary, true,
        [](const T64s* x1, T64s* x2, T64s* d, T64s, int n, int sf) { (void)sf; return veksAdd_64s_Sfs(x1, x2, d, n, sf); },
        refOf<T64s, T64s, T64s, ref::Op::Add>});
    v(C<T8u, T8u, T16u>{"veksAdd_8u16u", Shape::Binary, false,
        [](const T8u* x1, T8u* x2, T16u* d, T8u, int n, int sf) { (void)sf; return veksAdd_8u16u(x1, x2, d, n); },
        refOf<T8u, T8u, T16u, ref::Op::Add>});
    v(C<T8u, T8u, T8u>{"veksAdd_8u_ISfs", Shape::BinaryInPlace, true,
        [](const T8u* x1, T8u* x2, T8u*, T8u, int n, int sf) { (void)sf; return veksAdd_8u_ISfs(x1, x2, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Add>});
    v(C<T8u, T8u, T8u>{"veksAdd_8u_Sfs", Shape::Binary, true,
        [](const T8u* x1, T8u* x2, T8u* d, T8u, int n, int sf) { (void)sf; return veksAdd_8u_Sfs(x1, x2, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAddC_16s_I", Shape::ConstInPlace, false,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksAddC_16s_I(k, const_cast<T16s*>(x1), n); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAddC_16s_ISfs", Shape::ConstInPlace, true,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksAddC_16s_ISfs(k, const_cast<T16s*>(x1), n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksAddC_16s_Sfs", Shape::Const, true,
        [](const T16s* x1, T16s*, T16s* d, T16s k, int n, int sf) { (void)sf; return veksAddC_16s_Sfs(x1, k, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Add>});
    v(C<T16sc, T16sc, T16sc>{"veksAddC_16sc_ISfs", Shape::ConstInPlace, true,
        [](const T16sc* x1, T16sc*, T16sc*, T16sc k, int n, int sf) { (void)sf; return veksAddC_16sc_ISfs(k, const_cast<T16sc*>(x1), n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Add>});
    v(C<T16sc, T16sc, T16sc>{"veksAddC_16sc_Sfs", Shape::Const, true,
        [](const T16sc* x1, T16sc*, T16sc* d, T16sc k, int n, int sf) { (void)sf; return veksAddC_16sc_Sfs(x1, k, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Add>});
    v(C<T16u, T16u, T16u>{"veksAddC_16u_ISfs", Shape::ConstInPlace, true,
        [](const T16u* x1, T16u*, T16u*, T16u k, int n, int sf) { (void)sf; return veksAddC_16u_ISfs(k, const_cast<T16u*>(x1), n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Add>});
    v(C<T16u, T16u, T16u>{"veksAddC_16u_Sfs", Shape::Const, true,
        [](const T16u* x1, T16u*, T16u* d, T16u k, int n, int sf) { (void)sf; return veksAddC_16u_Sfs(x1, k, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Add>});
    v(C<T32f, T32f, T32f>{"veksAddC_32f", Shape::Const, false,
        [](const T32f* x1, T32f*, T32f* d, T32f k, int n, int sf) { (void)sf; return veksAddC_32f(x1, k, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Add>});
    v(C<T32f, T32f, T32f>{"veksAddC_32f_I", Shape::ConstInPlace, false,
        [](const T32f* x1, T32f*, T32f*, T32f k, int n, int sf) { (void)sf; return veksAddC_32f_I(k, const_cast<T32f*>(x1), n); },
        refOf<T32f, T32f, T32f, ref::Op::Add>});
    v(C<T32fc, T32fc, T32fc>{"veksAddC_32fc", Shape::Const, false,
        [](const T32fc* x1, T32fc*, T32fc* d, T32fc k, int n, int sf) { (void)sf; return veksAddC_32fc(x1, k, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Add>});
    v(C<T32fc, T32fc, T32fc>{"veksAddC_32fc_I", Shape::ConstInPlace, false,
        [](const T32fc* x1, T32fc*, T32fc*, T32fc k, int n, int sf) { (void)sf; return veksAddC_32fc_I(k, const_cast<T32fc*>(x1), n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Add>});
    v(C<T32s, T32s, T32s>{"veksAddC_32s_ISfs", Shape::ConstInPlace, true,
        [](const T32s* x1, T32s*, T32s*, T32s k, int n, int sf) { (void)sf; return veksAddC_32s_ISfs(k, const_cast<T32s*>(x1), n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Add>});
    v(C<T32s, T32s, T32s>{"veksAddC_32s_Sfs", Shape::Const, true,
        [](const T32s* x1, T32s*, T32s* d, T32s k, int n, int sf) { (void)sf; return veksAddC_32s_Sfs(x1, k, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Add>});
    v(C<T32sc, T32sc, T32sc>{"veksAddC_32sc_ISfs", Shape::ConstInPlace, true,
        [](const T32sc* x1, T32sc*, T32sc*, T32sc k, int n, int sf) { (void)sf; return veksAddC_32sc_ISfs(k, const_cast<T32sc*>(x1), n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Add>});
    v(C<T32sc, T32sc, T32sc>{"veksAddC_32sc_Sfs", Shape::Const, true,
        [](const T32sc* x1, T32sc*, T32sc* d, T32sc k, int n, int sf) { (void)sf; return veksAddC_32sc_Sfs(x1, k, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Add>});
    v(C<T64f, T64f, T64f>{"veksAddC_64f", Shape::Const, false,
        [](const T64f* x1, T64f*, T64f* d, T64f k, int n, int sf) { (void)sf; return veksAddC_64f(x1, k, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Add>});
    v(C<T64f, T64f, T64f>{"veksAddC_64f_I", Shape::ConstInPlace, false,
        [](const T64f* x1, T64f*, T64f*, T64f k, int n, int sf) { (void)sf; return veksAddC_64f_I(k, const_cast<T64f*>(x1), n); },
        refOf<T64f, T64f, T64f, ref::Op::Add>});
    v(C<T64fc, T64fc, T64fc>{"veksAddC_64fc", Shape::Const, false,
        [](const T64fc* x1, T64fc*, T64fc* d, T64fc k, int n, int sf) { (void)sf; return veksAddC_64fc(x1, k, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Add>});
    v(C<T64fc, T64fc, T64fc>{"veksAddC_64fc_I", Shape::ConstInPlace, false,
        [](const T64fc* x1, T64fc*, T64fc*, T64fc k, int n, int sf) { (void)sf; return veksAddC_64fc_I(k, const_cast<T64fc*>(x1), n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Add>});
    v(C<T64s, T64s, T64s>{"veksAddC_64s_Sfs", Shape::Const, true,
        [](const T64s* x1, T64s*, T64s* d, T64s k, int n, int sf) { (void)sf; return veksAddC_64s_Sfs(x1, k, d, n, sf); },
        refOf<T64s, T64s, T64s, ref::Op::Add>});
    v(C<T64u, T64u, T64u>{"veksAddC_64u_Sfs", Shape::Const, true,
        [](const T64u* x1, T64u*, T64u* d, T64u k, int n, int sf) { (void)sf; return veksAddC_64u_Sfs(x1, k, d, n, sf); },
        refOf<T64u, T64u, T64u, ref::Op::Add>});
    v(C<T8u, T8u, T8u>{"veksAddC_8u_ISfs", Shape::ConstInPlace, true,
        [](const T8u* x1, T8u*, T8u*, T8u k, int n, int sf) { (void)sf; return veksAddC_8u_ISfs(k, const_cast<T8u*>(x1), n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Add>});
    v(C<T8u, T8u, T8u>{"veksAddC_8u_Sfs", Shape::Const, true,
        [](const T8u* x1, T8u*, T8u* d, T8u k, int n, int sf) { (void)sf; return veksAddC_8u_Sfs(x1, k, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Add>});
    v(C<T16s, T16s, T16s>{"veksSub_16s", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksSub_16s(x1, x2, d, n); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16s, T16s, T32f>{"veksSub_16s32f", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T32f* d, T16s, int n, int sf) { (void)sf; return veksSub_16s32f(x1, x2, d, n); },
        refOf<T16s, T16s, T32f, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksSub_16s_I", Shape::BinaryInPlace, false,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksSub_16s_I(x1, x2, n); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksSub_16s_ISfs", Shape::BinaryInPlace, true,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksSub_16s_ISfs(x1, x2, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksSub_16s_Sfs", Shape::Binary, true,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksSub_16s_Sfs(x1, x2, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16sc, T16sc, T16sc>{"veksSub_16sc_ISfs", Shape::BinaryInPlace, true,
        [](const T16sc* x1, T16sc* x2, T16sc*, T16sc, int n, int sf) { (void)sf; return veksSub_16sc_ISfs(x1, x2, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Sub>});
    v(C<T16sc, T16sc, T16sc>{"veksSub_16sc_Sfs", Shape::Binary, true,
        [](const T16sc* x1, T16sc* x2, T16sc* d, T16sc, int n, int sf) { (void)sf; return veksSub_16sc_Sfs(x1, x2, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Sub>});
    v(C<T16u, T16u, T16u>{"veksSub_16u_ISfs", Shape::BinaryInPlace, true,
        [](const T16u* x1, T16u* x2, T16u*, T16u, int n, int sf) { (void)sf; return veksSub_16u_ISfs(x1, x2, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Sub>});
    v(C<T16u, T16u, T16u>{"veksSub_16u_Sfs", Shape::Binary, true,
        [](const T16u* x1, T16u* x2, T16u* d, T16u, int n, int sf) { (void)sf; return veksSub_16u_Sfs(x1, x2, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Sub>});
    v(C<T32f, T32f, T32f>{"veksSub_32f", Shape::Binary, false,
        [](const T32f* x1, T32f* x2, T32f* d, T32f, int n, int sf) { (void)sf; return veksSub_32f(x1, x2, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Sub>});
    v(C<T32f, T32f, T32f>{"veksSub_32f_I", Shape::BinaryInPlace, false,
        [](const T32f* x1, T32f* x2, T32f*, T32f, int n, int sf) { (void)sf; return veksSub_32f_I(x1, x2, n); },
        refOf<T32f, T32f, T32f, ref::Op::Sub>});
    v(C<T32fc, T32fc, T32fc>{"veksSub_32fc", Shape::Binary, false,
        [](const T32fc* x1, T32fc* x2, T32fc* d, T32fc, int n, int sf) { (void)sf; return veksSub_32fc(x1, x2, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Sub>});
    v(C<T32fc, T32fc, T32fc>{"veksSub_32fc_I", Shape::BinaryInPlace, false,
        [](const T32fc* x1, T32fc* x2, T32fc*, T32fc, int n, int sf) { (void)sf; return veksSub_32fc_I(x1, x2, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Sub>});
    v(C<T32s, T32s, T32s>{"veksSub_32s_ISfs", Shape::BinaryInPlace, true,
        [](const T32s* x1, T32s* x2, T32s*, T32s, int n, int sf) { (void)sf; return veksSub_32s_ISfs(x1, x2, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Sub>});
    v(C<T32s, T32s, T32s>{"veksSub_32s_Sfs", Shape::Binary, true,
        [](const T32s* x1, T32s* x2, T32s* d, T32s, int n, int sf) { (void)sf; return veksSub_32s_Sfs(x1, x2, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Sub>});
    v(C<T32sc, T32sc, T32sc>{"veksSub_32sc_ISfs", Shape::BinaryInPlace, true,
        [](const T32sc* x1, T32sc* x2, T32sc*, T32sc, int n, int sf) { (void)sf; return veksSub_32sc_ISfs(x1, x2, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Sub>});
    v(C<T32sc, T32sc, T32sc>{"veksSub_32sc_Sfs", Shape::Binary, true,
        [](const T32sc* x1, T32sc* x2, T32sc* d, T32sc, int n, int sf) { (void)sf; return veksSub_32sc_Sfs(x1, x2, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Sub>});
    v(C<T64f, T64f, T64f>{"veksSub_64f", Shape::Binary, false,
        [](const T64f* x1, T64f* x2, T64f* d, T64f, int n, int sf) { (void)sf; return veksSub_64f(x1, x2, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Sub>});
    v(C<T64f, T64f, T64f>{"veksSub_64f_I", Shape::BinaryInPlace, false,
        [](const T64f* x1, T64f* x2, T64f*, T64f, int n, int sf) { (void)sf; return veksSub_64f_I(x1, x2, n); },
        refOf<T64f, T64f, T64f, ref::Op::Sub>});
    v(C<T64fc, T64fc, T64fc>{"veksSub_64fc", Shape::Binary, false,
        [](const T64fc* x1, T64fc* x2, T64fc* d, T64fc, int n, int sf) { (void)sf; return veksSub_64fc(x1, x2, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Sub>});
    v(C<T64fc, T64fc, T64fc>{"veksSub_64fc_I", Shape::BinaryInPlace, false,
        [](const T64fc* x1, T64fc* x2, T64fc*, T64fc, int n, int sf) { (void)sf; return veksSub_64fc_I(x1, x2, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Sub>});
    v(C<T8u, T8u, T8u>{"veksSub_8u_ISfs", Shape::BinaryInPlace, true,
        [](const T8u* x1, T8u* x2, T8u*, T8u, int n, int sf) { (void)sf; return veksSub_8u_ISfs(x1, x2, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Sub>});
    v(C<T8u, T8u, T8u>{"veksSub_8u_Sfs", Shape::Binary, true,
        [](const T8u* x1, T8u* x2, T8u* d, T8u, int n, int sf) { (void)sf; return veksSub_8u_Sfs(x1, x2, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksSubC_16s_I", Shape::ConstInPlace, false,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksSubC_16s_I(k, const_cast<T16s*>(x1), n); },
        refOf<T16s, T16s, T16s, ref::Op::SubRev>});
    v(C<T16s, T16s, T16s>{"veksSubC_16s_ISfs", Shape::ConstInPlace, true,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksSubC_16s_ISfs(k, const_cast<T16s*>(x1), n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::SubRev>});
    v(C<T16s, T16s, T16s>{"veksSubC_16s_Sfs", Shape::Const, true,
        [](const T16s* x1, T16s*, T16s* d, T16s k, int n, int sf) { (void)sf; return veksSubC_16s_Sfs(x1, k, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::SubRev>});
    v(C<T16sc, T16sc, T16sc>{"veksSubC_16sc_ISfs", Shape::ConstInPlace, true,
        [](const T16sc* x1, T16sc*, T16sc*, T16sc k, int n, int sf) { (void)sf; return veksSubC_16sc_ISfs(k, const_cast<T16sc*>(x1), n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::SubRev>});
    v(C<T16sc, T16sc, T16sc>{"veksSubC_16sc_Sfs", Shape::Const, true,
        [](const T16sc* x1, T16sc*, T16sc* d, T16sc k, int n, int sf) { (void)sf; return veksSubC_16sc_Sfs(x1, k, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::SubRev>});
    v(C<T16u, T16u, T16u>{"veksSubC_16u_ISfs", Shape::ConstInPlace, true,
        [](const T16u* x1, T16u*, T16u*, T16u k, int n, int sf) { (void)sf; return veksSubC_16u_ISfs(k, const_cast<T16u*>(x1), n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::SubRev>});
    v(C<T16u, T16u, T16u>{"veksSubC_16u_Sfs", Shape::Const, true,
        [](const T16u* x1, T16u*, T16u* d, T16u k, int n, int sf) { (void)sf; return veksSubC_16u_Sfs(x1, k, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::SubRev>});
    v(C<T32f, T32f, T32f>{"veksSubC_32f", Shape::Const, false,
        [](const T32f* x1, T32f*, T32f* d, T32f k, int n, int sf) { (void)sf; return veksSubC_32f(x1, k, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::SubRev>});
    v(C<T32f, T32f, T32f>{"veksSubC_32f_I", Shape::ConstInPlace, false,
        [](const T32f* x1, T32f*, T32f*, T32f k, int n, int sf) { (void)sf; return veksSubC_32f_I(k, const_cast<T32f*>(x1), n); },
        refOf<T32f, T32f, T32f, ref::Op::SubRev>});
    v(C<T32fc, T32fc, T32fc>{"veksSubC_32fc", Shape::Const, false,
        [](const T32fc* x1, T32fc*, T32fc* d, T32fc k, int n, int sf) { (void)sf; return veksSubC_32fc(x1, k, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::SubRev>});
    v(C<T32fc, T32fc, T32fc>{"veksSubC_32fc_I", Shape::ConstInPlace, false,
        [](const T32fc* x1, T32fc*, T32fc*, T32fc k, int n, int sf) { (void)sf; return veksSubC_32fc_I(k, const_cast<T32fc*>(x1), n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::SubRev>});
    v(C<T32s, T32s, T32s>{"veksSubC_32s_ISfs", Shape::ConstInPlace, true,
        [](const T32s* x1, T32s*, T32s*, T32s k, int n, int sf) { (void)sf; return veksSubC_32s_ISfs(k, const_cast<T32s*>(x1), n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::SubRev>});
    v(C<T32s, T32s, T32s>{"veksSubC_32s_Sfs", Shape::Const, true,
        [](const T32s* x1, T32s*, T32s* d, T32s k, int n, int sf) { (void)sf; return veksSubC_32s_Sfs(x1, k, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::SubRev>});
    v(C<T32sc, T32sc, T32sc>{"veksSubC_32sc_ISfs", Shape::ConstInPlace, true,
        [](const T32sc* x1, T32sc*, T32sc*, T32sc k, int n, int sf) { (void)sf; return veksSubC_32sc_ISfs(k, const_cast<T32sc*>(x1), n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::SubRev>});
    v(C<T32sc, T32sc, T32sc>{"veksSubC_32sc_Sfs", Shape::Const, true,
        [](const T32sc* x1, T32sc*, T32sc* d, T32sc k, int n, int sf) { (void)sf; return veksSubC_32sc_Sfs(x1, k, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::SubRev>});
    v(C<T64f, T64f, T64f>{"veksSubC_64f", Shape::Const, false,
        [](const T64f* x1, T64f*, T64f* d, T64f k, int n, int sf) { (void)sf; return veksSubC_64f(x1, k, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::SubRev>});
    v(C<T64f, T64f, T64f>{"veksSubC_64f_I", Shape::ConstInPlace, false,
        [](const T64f* x1, T64f*, T64f*, T64f k, int n, int sf) { (void)sf; return veksSubC_64f_I(k, const_cast<T64f*>(x1), n); },
        refOf<T64f, T64f, T64f, ref::Op::SubRev>});
    v(C<T64fc, T64fc, T64fc>{"veksSubC_64fc", Shape::Const, false,
        [](const T64fc* x1, T64fc*, T64fc* d, T64fc k, int n, int sf) { (void)sf; return veksSubC_64fc(x1, k, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::SubRev>});
    v(C<T64fc, T64fc, T64fc>{"veksSubC_64fc_I", Shape::ConstInPlace, false,
        [](const T64fc* x1, T64fc*, T64fc*, T64fc k, int n, int sf) { (void)sf; return veksSubC_64fc_I(k, const_cast<T64fc*>(x1), n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::SubRev>});
    v(C<T8u, T8u, T8u>{"veksSubC_8u_ISfs", Shape::ConstInPlace, true,
        [](const T8u* x1, T8u*, T8u*, T8u k, int n, int sf) { (void)sf; return veksSubC_8u_ISfs(k, const_cast<T8u*>(x1), n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::SubRev>});
    v(C<T8u, T8u, T8u>{"veksSubC_8u_Sfs", Shape::Const, true,
        [](const T8u* x1, T8u*, T8u* d, T8u k, int n, int sf) { (void)sf; return veksSubC_8u_Sfs(x1, k, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::SubRev>});
    v(C<T16s, T16s, T16s>{"veksSubCRev_16s_ISfs", Shape::ConstInPlace, true,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksSubCRev_16s_ISfs(k, const_cast<T16s*>(x1), n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksSubCRev_16s_Sfs", Shape::Const, true,
        [](const T16s* x1, T16s*, T16s* d, T16s k, int n, int sf) { (void)sf; return veksSubCRev_16s_Sfs(x1, k, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Sub>});
    v(C<T16sc, T16sc, T16sc>{"veksSubCRev_16sc_ISfs", Shape::ConstInPlace, true,
        [](const T16sc* x1, T16sc*, T16sc*, T16sc k, int n, int sf) { (void)sf; return veksSubCRev_16sc_ISfs(k, const_cast<T16sc*>(x1), n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Sub>});
    v(C<T16sc, T16sc, T16sc>{"veksSubCRev_16sc_Sfs", Shape::Const, true,
        [](const T16sc* x1, T16sc*, T16sc* d, T16sc k, int n, int sf) { (void)sf; return veksSubCRev_16sc_Sfs(x1, k, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Sub>});
    v(C<T16u, T16u, T16u>{"veksSubCRev_16u_ISfs", Shape::ConstInPlace, true,
        [](const T16u* x1, T16u*, T16u*, T16u k, int n, int sf) { (void)sf; return veksSubCRev_16u_ISfs(k, const_cast<T16u*>(x1), n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Sub>});
    v(C<T16u, T16u, T16u>{"veksSubCRev_16u_Sfs", Shape::Const, true,
        [](const T16u* x1, T16u*, T16u* d, T16u k, int n, int sf) { (void)sf; return veksSubCRev_16u_Sfs(x1, k, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Sub>});
    v(C<T32f, T32f, T32f>{"veksSubCRev_32f", Shape::Const, false,
        [](const T32f* x1, T32f*, T32f* d, T32f k, int n, int sf) { (void)sf; return veksSubCRev_32f(x1, k, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Sub>});
    v(C<T32f, T32f, T32f>{"veksSubCRev_32f_I", Shape::ConstInPlace, false,
        [](const T32f* x1, T32f*, T32f*, T32f k, int n, int sf) { (void)sf; return veksSubCRev_32f_I(k, const_cast<T32f*>(x1), n); },
        refOf<T32f, T32f, T32f, ref::Op::Sub>});
    v(C<T32fc, T32fc, T32fc>{"veksSubCRev_32fc", Shape::Const, false,
        [](const T32fc* x1, T32fc*, T32fc* d, T32fc k, int n, int sf) { (void)sf; return veksSubCRev_32fc(x1, k, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Sub>});
    v(C<T32fc, T32fc, T32fc>{"veksSubCRev_32fc_I", Shape::ConstInPlace, false,
        [](const T32fc* x1, T32fc*, T32fc*, T32fc k, int n, int sf) { (void)sf; return veksSubCRev_32fc_I(k, const_cast<T32fc*>(x1), n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Sub>});
    v(C<T32s, T32s, T32s>{"veksSubCRev_32s_ISfs", Shape::ConstInPlace, true,
        [](const T32s* x1, T32s*, T32s*, T32s k, int n, int sf) { (void)sf; return veksSubCRev_32s_ISfs(k, const_cast<T32s*>(x1), n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Sub>});
    v(C<T32s, T32s, T32s>{"veksSubCRev_32s_Sfs", Shape::Const, true,
        [](const T32s* x1, T32s*, T32s* d, T32s k, int n, int sf) { (void)sf; return veksSubCRev_32s_Sfs(x1, k, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Sub>});
    v(C<T32sc, T32sc, T32sc>{"veksSubCRev_32sc_ISfs", Shape::ConstInPlace, true,
        [](const T32sc* x1, T32sc*, T32sc*, T32sc k, int n, int sf) { (void)sf; return veksSubCRev_32sc_ISfs(k, const_cast<T32sc*>(x1), n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Sub>});
    v(C<T32sc, T32sc, T32sc>{"veksSubCRev_32sc_Sfs", Shape::Const, true,
        [](const T32sc* x1, T32sc*, T32sc* d, T32sc k, int n, int sf) { (void)sf; return veksSubCRev_32sc_Sfs(x1, k, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Sub>});
    v(C<T64f, T64f, T64f>{"veksSubCRev_64f", Shape::Const, false,
        [](const T64f* x1, T64f*, T64f* d, T64f k, int n, int sf) { (void)sf; return veksSubCRev_64f(x1, k, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Sub>});
    v(C<T64f, T64f, T64f>{"veksSubCRev_64f_I", Shape::ConstInPlace, false,
        [](const T64f* x1, T64f*, T64f*, T64f k, int n, int sf) { (void)sf; return veksSubCRev_64f_I(k, const_cast<T64f*>(x1), n); },
        refOf<T64f, T64f, T64f, ref::Op::Sub>});
    v(C<T64fc, T64fc, T64fc>{"veksSubCRev_64fc", Shape::Const, false,
        [](const T64fc* x1, T64fc*, T64fc* d, T64fc k, int n, int sf) { (void)sf; return veksSubCRev_64fc(x1, k, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Sub>});
    v(C<T64fc, T64fc, T64fc>{"veksSubCRev_64fc_I", Shape::ConstInPlace, false,
        [](const T64fc* x1, T64fc*, T64fc*, T64fc k, int n, int sf) { (void)sf; return veksSubCRev_64fc_I(k, const_cast<T64fc*>(x1), n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Sub>});
    v(C<T8u, T8u, T8u>{"veksSubCRev_8u_ISfs", Shape::ConstInPlace, true,
        [](const T8u* x1, T8u*, T8u*, T8u k, int n, int sf) { (void)sf; return veksSubCRev_8u_ISfs(k, const_cast<T8u*>(x1), n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Sub>});
    v(C<T8u, T8u, T8u>{"veksSubCRev_8u_Sfs", Shape::Const, true,
        [](const T8u* x1, T8u*, T8u* d, T8u k, int n, int sf) { (void)sf; return veksSubCRev_8u_Sfs(x1, k, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Sub>});
    v(C<T16s, T16s, T16s>{"veksMul_16s", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksMul_16s(x1, x2, d, n); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16s, T16s, T32f>{"veksMul_16s32f", Shape::Binary, false,
        [](const T16s* x1, T16s* x2, T32f* d, T16s, int n, int sf) { (void)sf; return veksMul_16s32f(x1, x2, d, n); },
        refOf<T16s, T16s, T32f, ref::Op::Mul>});
    v(C<T16s, T16s, T32s>{"veksMul_16s32s_Sfs", Shape::Binary, true,
        [](const T16s* x1, T16s* x2, T32s* d, T16s, int n, int sf) { (void)sf; return veksMul_16s32s_Sfs(x1, x2, d, n, sf); },
        refOf<T16s, T16s, T32s, ref::Op::Mul>});
    v(C<T16s, T16s, T16s>{"veksMul_16s_I", Shape::BinaryInPlace, false,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksMul_16s_I(x1, x2, n); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16s, T16s, T16s>{"veksMul_16s_ISfs", Shape::BinaryInPlace, true,
        [](const T16s* x1, T16s* x2, T16s*, T16s, int n, int sf) { (void)sf; return veksMul_16s_ISfs(x1, x2, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16s, T16s, T16s>{"veksMul_16s_Sfs", Shape::Binary, true,
        [](const T16s* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksMul_16s_Sfs(x1, x2, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16sc, T16sc, T16sc>{"veksMul_16sc_ISfs", Shape::BinaryInPlace, true,
        [](const T16sc* x1, T16sc* x2, T16sc*, T16sc, int n, int sf) { (void)sf; return veksMul_16sc_ISfs(x1, x2, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Mul>});
    v(C<T16u, T16s, T16s>{"veksMul_16u16s_Sfs", Shape::Binary, true,
        [](const T16u* x1, T16s* x2, T16s* d, T16s, int n, int sf) { (void)sf; return veksMul_16u16s_Sfs(x1, x2, d, n, sf); },
        refOf<T16u, T16s, T16s, ref::Op::Mul>});
    v(C<T16u, T16u, T16u>{"veksMul_16u_ISfs", Shape::BinaryInPlace, true,
        [](const T16u* x1, T16u* x2, T16u*, T16u, int n, int sf) { (void)sf; return veksMul_16u_ISfs(x1, x2, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Mul>});
    v(C<T16u, T16u, T16u>{"veksMul_16u_Sfs", Shape::Binary, true,
        [](const T16u* x1, T16u* x2, T16u* d, T16u, int n, int sf) { (void)sf; return veksMul_16u_Sfs(x1, x2, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Mul>});
    v(C<T32f, T32f, T32f>{"veksMul_32f", Shape::Binary, false,
        [](const T32f* x1, T32f* x2, T32f* d, T32f, int n, int sf) { (void)sf; return veksMul_32f(x1, x2, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Mul>});
    v(C<T32f, T32fc, T32fc>{"veksMul_32f32fc", Shape::Binary, false,
        [](const T32f* x1, T32fc* x2, T32fc* d, T32fc, int n, int sf) { (void)sf; return veksMul_32f32fc(x1, x2, d, n); },
        refOf<T32f, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32f, T32fc, T32fc>{"veksMul_32f32fc_I", Shape::BinaryInPlace, false,
        [](const T32f* x1, T32fc* x2, T32fc*, T32fc, int n, int sf) { (void)sf; return veksMul_32f32fc_I(x1, x2, n); },
        refOf<T32f, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32f, T32f, T32f>{"veksMul_32f_I", Shape::BinaryInPlace, false,
        [](const T32f* x1, T32f* x2, T32f*, T32f, int n, int sf) { (void)sf; return veksMul_32f_I(x1, x2, n); },
        refOf<T32f, T32f, T32f, ref::Op::Mul>});
    v(C<T32fc, T32fc, T32fc>{"veksMul_32fc", Shape::Binary, false,
        [](const T32fc* x1, T32fc* x2, T32fc* d, T32fc, int n, int sf) { (void)sf; return veksMul_32fc(x1, x2, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32fc, T32fc, T32fc>{"veksMul_32fc_I", Shape::BinaryInPlace, false,
        [](const T32fc* x1, T32fc* x2, T32fc*, T32fc, int n, int sf) { (void)sf; return veksMul_32fc_I(x1, x2, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32s, T32sc, T32sc>{"veksMul_32s32sc_ISfs", Shape::BinaryInPlace, true,
        [](const T32s* x1, T32sc* x2, T32sc*, T32sc, int n, int sf) { (void)sf; return veksMul_32s32sc_ISfs(x1, x2, n, sf); },
        refOf<T32s, T32sc, T32sc, ref::Op::Mul>});
    v(C<T32s, T32sc, T32sc>{"veksMul_32s32sc_Sfs", Shape::Binary, true,
        [](const T32s* x1, T32sc* x2, T32sc* d, T32sc, int n, int sf) { (void)sf; return veksMul_32s32sc_Sfs(x1, x2, d, n, sf); },
        refOf<T32s, T32sc, T32sc, ref::Op::Mul>});
    v(C<T32s, T32s, T32s>{"veksMul_32s_ISfs", Shape::BinaryInPlace, true,
        [](const T32s* x1, T32s* x2, T32s*, T32s, int n, int sf) { (void)sf; return veksMul_32s_ISfs(x1, x2, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Mul>});
    v(C<T32s, T32s, T32s>{"veksMul_32s_Sfs", Shape::Binary, true,
        [](const T32s* x1, T32s* x2, T32s* d, T32s, int n, int sf) { (void)sf; return veksMul_32s_Sfs(x1, x2, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Mul>});
    v(C<T32sc, T32sc, T32sc>{"veksMul_32sc_ISfs", Shape::BinaryInPlace, true,
        [](const T32sc* x1, T32sc* x2, T32sc*, T32sc, int n, int sf) { (void)sf; return veksMul_32sc_ISfs(x1, x2, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Mul>});
    v(C<T32sc, T32sc, T32sc>{"veksMul_32sc_Sfs", Shape::Binary, true,
        [](const T32sc* x1, T32sc* x2, T32sc* d, T32sc, int n, int sf) { (void)sf; return veksMul_32sc_Sfs(x1, x2, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Mul>});
    v(C<T64f, T64f, T64f>{"veksMul_64f", Shape::Binary, false,
        [](const T64f* x1, T64f* x2, T64f* d, T64f, int n, int sf) { (void)sf; return veksMul_64f(x1, x2, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Mul>});
    v(C<T64f, T64f, T64f>{"veksMul_64f_I", Shape::BinaryInPlace, false,
        [](const T64f* x1, T64f* x2, T64f*, T64f, int n, int sf) { (void)sf; return veksMul_64f_I(x1, x2, n); },
        refOf<T64f, T64f, T64f, ref::Op::Mul>});
    v(C<T64fc, T64fc, T64fc>{"veksMul_64fc", Shape::Binary, false,
        [](const T64fc* x1, T64fc* x2, T64fc* d, T64fc, int n, int sf) { (void)sf; return veksMul_64fc(x1, x2, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Mul>});
    v(C<T64fc, T64fc, T64fc>{"veksMul_64fc_I", Shape::BinaryInPlace, false,
        [](const T64fc* x1, T64fc* x2, T64fc*, T64fc, int n, int sf) { (void)sf; return veksMul_64fc_I(x1, x2, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Mul>});
    v(C<T8u, T8u, T16u>{"veksMul_8u16u", Shape::Binary, false,
        [](const T8u* x1, T8u* x2, T16u* d, T8u, int n, int sf) { (void)sf; return veksMul_8u16u(x1, x2, d, n); },
        refOf<T8u, T8u, T16u, ref::Op::Mul>});
    v(C<T8u, T8u, T8u>{"veksMul_8u_ISfs", Shape::BinaryInPlace, true,
        [](const T8u* x1, T8u* x2, T8u*, T8u, int n, int sf) { (void)sf; return veksMul_8u_ISfs(x1, x2, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Mul>});
    v(C<T8u, T8u, T8u>{"veksMul_8u_Sfs", Shape::Binary, true,
        [](const T8u* x1, T8u* x2, T8u* d, T8u, int n, int sf) { (void)sf; return veksMul_8u_Sfs(x1, x2, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Mul>});
    v(C<T32s, T32s, T32s>{"veksMul_Low_32s_Sfs", Shape::Binary, true,
        [](const T32s* x1, T32s* x2, T32s* d, T32s, int n, int sf) { (void)sf; return veksMul_Low_32s_Sfs(x1, x2, d, n, sf); },
        refMulLow});
    v(C<T16s, T16s, T16s>{"veksMulC_16s_I", Shape::ConstInPlace, false,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksMulC_16s_I(k, const_cast<T16s*>(x1), n); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16s, T16s, T16s>{"veksMulC_16s_ISfs", Shape::ConstInPlace, true,
        [](const T16s* x1, T16s*, T16s*, T16s k, int n, int sf) { (void)sf; return veksMulC_16s_ISfs(k, const_cast<T16s*>(x1), n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16s, T16s, T16s>{"veksMulC_16s_Sfs", Shape::Const, true,
        [](const T16s* x1, T16s*, T16s* d, T16s k, int n, int sf) { (void)sf; return veksMulC_16s_Sfs(x1, k, d, n, sf); },
        refOf<T16s, T16s, T16s, ref::Op::Mul>});
    v(C<T16sc, T16sc, T16sc>{"veksMulC_16sc_ISfs", Shape::ConstInPlace, true,
        [](const T16sc* x1, T16sc*, T16sc*, T16sc k, int n, int sf) { (void)sf; return veksMulC_16sc_ISfs(k, const_cast<T16sc*>(x1), n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Mul>});
    v(C<T16sc, T16sc, T16sc>{"veksMulC_16sc_Sfs", Shape::Const, true,
        [](const T16sc* x1, T16sc*, T16sc* d, T16sc k, int n, int sf) { (void)sf; return veksMulC_16sc_Sfs(x1, k, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Mul>});
    v(C<T16u, T16u, T16u>{"veksMulC_16u_ISfs", Shape::ConstInPlace, true,
        [](const T16u* x1, T16u*, T16u*, T16u k, int n, int sf) { (void)sf; return veksMulC_16u_ISfs(k, const_cast<T16u*>(x1), n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Mul>});
    v(C<T16u, T16u, T16u>{"veksMulC_16u_Sfs", Shape::Const, true,
        [](const T16u* x1, T16u*, T16u* d, T16u k, int n, int sf) { (void)sf; return veksMulC_16u_Sfs(x1, k, d, n, sf); },
        refOf<T16u, T16u, T16u, ref::Op::Mul>});
    v(C<T32f, T32f, T32f>{"veksMulC_32f", Shape::Const, false,
        [](const T32f* x1, T32f*, T32f* d, T32f k, int n, int sf) { (void)sf; return veksMulC_32f(x1, k, d, n); },
        refOf<T32f, T32f, T32f, ref::Op::Mul>});
    v(C<T32f, T32f, T32f>{"veksMulC_32f_I", Shape::ConstInPlace, false,
        [](const T32f* x1, T32f*, T32f*, T32f k, int n, int sf) { (void)sf; return veksMulC_32f_I(k, const_cast<T32f*>(x1), n); },
        refOf<T32f, T32f, T32f, ref::Op::Mul>});
    v(C<T32fc, T32fc, T32fc>{"veksMulC_32fc", Shape::Const, false,
        [](const T32fc* x1, T32fc*, T32fc* d, T32fc k, int n, int sf) { (void)sf; return veksMulC_32fc(x1, k, d, n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32fc, T32fc, T32fc>{"veksMulC_32fc_I", Shape::ConstInPlace, false,
        [](const T32fc* x1, T32fc*, T32fc*, T32fc k, int n, int sf) { (void)sf; return veksMulC_32fc_I(k, const_cast<T32fc*>(x1), n); },
        refOf<T32fc, T32fc, T32fc, ref::Op::Mul>});
    v(C<T32s, T32s, T32s>{"veksMulC_32s_ISfs", Shape::ConstInPlace, true,
        [](const T32s* x1, T32s*, T32s*, T32s k, int n, int sf) { (void)sf; return veksMulC_32s_ISfs(k, const_cast<T32s*>(x1), n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Mul>});
    v(C<T32s, T32s, T32s>{"veksMulC_32s_Sfs", Shape::Const, true,
        [](const T32s* x1, T32s*, T32s* d, T32s k, int n, int sf) { (void)sf; return veksMulC_32s_Sfs(x1, k, d, n, sf); },
        refOf<T32s, T32s, T32s, ref::Op::Mul>});
    v(C<T32sc, T32sc, T32sc>{"veksMulC_32sc_ISfs", Shape::ConstInPlace, true,
        [](const T32sc* x1, T32sc*, T32sc*, T32sc k, int n, int sf) { (void)sf; return veksMulC_32sc_ISfs(k, const_cast<T32sc*>(x1), n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Mul>});
    v(C<T32sc, T32sc, T32sc>{"veksMulC_32sc_Sfs", Shape::Const, true,
        [](const T32sc* x1, T32sc*, T32sc* d, T32sc k, int n, int sf) { (void)sf; return veksMulC_32sc_Sfs(x1, k, d, n, sf); },
        refOf<T32sc, T32sc, T32sc, ref::Op::Mul>});
    v(C<T64f, T64f, T64f>{"veksMulC_64f", Shape::Const, false,
        [](const T64f* x1, T64f*, T64f* d, T64f k, int n, int sf) { (void)sf; return veksMulC_64f(x1, k, d, n); },
        refOf<T64f, T64f, T64f, ref::Op::Mul>});
    v(C<T64f, T64f, T64f>{"veksMulC_64f_I", Shape::ConstInPlace, false,
        [](const T64f* x1, T64f*, T64f*, T64f k, int n, int sf) { (void)sf; return veksMulC_64f_I(k, const_cast<T64f*>(x1), n); },
        refOf<T64f, T64f, T64f, ref::Op::Mul>});
    v(C<T64fc, T64fc, T64fc>{"veksMulC_64fc", Shape::Const, false,
        [](const T64fc* x1, T64fc*, T64fc* d, T64fc k, int n, int sf) { (void)sf; return veksMulC_64fc(x1, k, d, n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Mul>});
    v(C<T64fc, T64fc, T64fc>{"veksMulC_64fc_I", Shape::ConstInPlace, false,
        [](const T64fc* x1, T64fc*, T64fc*, T64fc k, int n, int sf) { (void)sf; return veksMulC_64fc_I(k, const_cast<T64fc*>(x1), n); },
        refOf<T64fc, T64fc, T64fc, ref::Op::Mul>});
    v(C<T64s, T64s, T64s>{"veksMulC_64s_ISfs", Shape::ConstInPlace, true,
        [](const T64s* x1, T64s*, T64s*, T64s k, int n, int sf) { (void)sf; return veksMulC_64s_ISfs(k, const_cast<T64s*>(x1), n, sf); },
        refOf<T64s, T64s, T64s, ref::Op::Mul>});
    v(C<T8u, T8u, T8u>{"veksMulC_8u_ISfs", Shape::ConstInPlace, true,
        [](const T8u* x1, T8u*, T8u*, T8u k, int n, int sf) { (void)sf; return veksMulC_8u_ISfs(k, const_cast<T8u*>(x1), n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Mul>});
    v(C<T8u, T8u, T8u>{"veksMulC_8u_Sfs", Shape::Const, true,
        [](const T8u* x1, T8u*, T8u* d, T8u k, int n, int sf) { (void)sf; return veksMulC_8u_Sfs(x1, k, d, n, sf); },
        refOf<T8u, T8u, T8u, ref::Op::Mul>});
    v(C<T16sc, T16sc, T16sc>{"veksMul_16sc_Sfs", Shape::Binary, true,
        [](const T16sc* x1, T16sc* x2, T16sc* d, T16sc, int n, int sf) { return veksMul_16sc_Sfs(x1, x2, d, n, sf); },
        refOf<T16sc, T16sc, T16sc, ref::Op::Mul>});
}

TEST(Elementwise, MatchesReference) {
    uint64_t seed = 100;
    visitCases([&](const auto& c) { at::check(c, ++seed); });
}

TEST(Elementwise, ChecksBeforeWriting) {
    visitCases([](const auto& c) { at::contract(c); });
}

}  // namespace

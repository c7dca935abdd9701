// d[i] = d[i] + a[i] * b[i]: the product rounded, then the sum (no fused
// multiply-add) for floating types; for integers the exact value
// d + a * b, scaled and saturated.
#pragma once

#include "kernels/arith_ops.h"
#include "kernels/elementwise.h"

namespace veks {
namespace kern {

// Four blocks a step, each stored as soon as it is computed, as in
// floatLoop. (For complex elements one block a step ran at either of two
// speeds, up to 1.5 x apart, depending on where the loop fell in the code.)
template <class T, class S1, class S2>
inline void addProductFloat(S1 a, S2 b, T* d, int n) {
    constexpr bool kReal = std::is_same<T, T32f>::value || std::is_same<T, T64f>::value;
    constexpr int W = lanesOf<T>(), K = 4;
    auto block = [&](int j) {
        if constexpr (kReal)
            vstore(d + j, AddOp::v(vload(Arr<T>{d}, j), MulRealOp::v(vload(a, j), vload(b, j))));
        else
            vstore(d + j, AddOp::v(vload(Arr<T>{d}, j), MulCplxOp::v(firstOperand<MulCplxOp>(a, j), vload(b, j))));
    };
    int i = 0;
    for (; i + K * W <= n; i += K * W) eachBlock<K, W>(block, i);
    for (; i + W <= n; i += W) block(i);
    for (; i < n; ++i) {
        if constexpr (kReal) {
            d[i] = d[i] + at(a, i) * at(b, i);
        } else {
            const T p = MulCplxOp::s(at(a, i), at(b, i));
            d[i].re = d[i].re + p.re;
            d[i].im = d[i].im + p.im;
        }
    }
}

// 16-bit: the exact d + a * b fits a 32-bit lane (|a * b| <= 2^30).
template <sse::ScaleKind K>
inline void addProduct16sK(const T16s* a, const T16s* b, T16s* d, int n, int sf) {
    const sse::LaneScale<T16s> sc(sf);
    int i = 0;
    for (; i + 8 <= n; i += 8) {
        const sse::Wide8 x = sse::widen8(a + i), y = sse::widen8(b + i), z = sse::widen8(d + i);
        const __m128i lo = _mm_add_epi32(z.lo, _mm_mullo_epi32(x.lo, y.lo));
        const __m128i hi = _mm_add_epi32(z.hi, _mm_mullo_epi32(x.hi, y.hi));
        sse::pack8(d + i, sc.template apply<K>(lo), sc.template apply<K>(hi));
    }
    for (; i < n; ++i) d[i] = scaleSat<T16s>(int64_t(d[i]) + int64_t(a[i]) * b[i], sf);
}

template <class TS, class TD>
inline void addProductIntScalar(const TS* a, const TS* b, TD* d, int n, int sf) {
    for (int i = 0; i < n; ++i) d[i] = scaleSat<TD>(int64_t(d[i]) + int64_t(a[i]) * b[i], sf);
}

inline void addProduct16s(const T16s* a, const T16s* b, T16s* d, int n, int sf) {
    if (sse::LaneScale<T16s>::covers(sf)) {
        switch (sse::scaleKind(sf)) {
            case sse::ScaleKind::Sat: return addProduct16sK<sse::ScaleKind::Sat>(a, b, d, n, sf);
            case sse::ScaleKind::Right: return addProduct16sK<sse::ScaleKind::Right>(a, b, d, n, sf);
            case sse::ScaleKind::Left: return addProduct16sK<sse::ScaleKind::Left>(a, b, d, n, sf);
        }
    }
    addProductIntScalar(a, b, d, n, sf);
}

}  // namespace kern
}  // namespace veks

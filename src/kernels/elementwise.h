// Element-wise loop drivers. A source is a vector (Arr), one value repeated
// (Bcast), a complex value repeated over a vector of parts (BcastPair), or a
// real vector each of whose values serves both parts of a complex element
// (Dup). The drivers run the SSE4.1 form of a lane operation over whole
// blocks and its scalar twin over the remainder; the two agree bit for bit.
// In-place forms pass the destination as a source: every block is loaded
// before it is stored.
#pragma once

#include <emmintrin.h>
#include <math.h>
#include <smmintrin.h>
#include <stdint.h>

#include <type_traits>

#include "frame/detail/scale.h"
#include "kernels/arith_ops.h"
#include "kernels/sse/scale.h"
#include "kernels/sse/vocab.h"

namespace veks {
namespace kern {

template <class T>
struct Arr {
    using Elem = T;
    const T* p;
};
template <class T>
struct Bcast {
    using Elem = T;
    T v;
};
template <class T>
struct BcastPair {
    using Elem = T;
    T re, im;
};
template <class T>
struct Dup {
    using Elem = T;
    const T* p;
};

template <class T> inline T at(Arr<T> s, int i) { return s.p[i]; }
template <class T> inline T at(Bcast<T> s, int) { return s.v; }
template <class T> inline T at(BcastPair<T> s, int i) { return (i & 1) ? s.im : s.re; }
template <class T> inline T at(Dup<T> s, int i) { return s.p[i >> 1]; }

// ---- floating point ------------------------------------------------------

inline __m128 vload(Arr<float> s, int i) { return _mm_loadu_ps(s.p + i); }
inline __m128 vload(Bcast<float> s, int) { return _mm_set1_ps(s.v); }
inline __m128 vload(BcastPair<float> s, int) { return _mm_setr_ps(s.re, s.im, s.re, s.im); }
inline __m128 vload(Dup<float> s, int i) {
    const __m128 x = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(s.p + (i >> 1))));
    return _mm_unpacklo_ps(x, x);
}
inline __m128d vload(Arr<double> s, int i) { return _mm_loadu_pd(s.p + i); }
inline __m128d vload(Bcast<double> s, int) { return _mm_set1_pd(s.v); }
inline __m128d vload(BcastPair<double> s, int) { return _mm_setr_pd(s.re, s.im); }
inline __m128d vload(Dup<double> s, int i) { return _mm_set1_pd(s.p[i >> 1]); }
inline void vstore(float* d, __m128 v) { _mm_storeu_ps(d, v); }
inline void vstore(double* d, __m128d v) { _mm_storeu_pd(d, v); }

// Complex elements, two (single) or one (double) per register.
inline __m128 vload(Arr<T32fc> s, int i) { return _mm_loadu_ps(&s.p[i].re); }
inline __m128 vload(Bcast<T32fc> s, int) { return _mm_setr_ps(s.v.re, s.v.im, s.v.re, s.v.im); }
inline __m128d vload(Arr<T64fc> s, int i) { return _mm_loadu_pd(&s.p[i].re); }
inline __m128d vload(Bcast<T64fc> s, int) { return _mm_setr_pd(s.v.re, s.v.im); }
inline void vstore(T32fc* d, __m128 v) { _mm_storeu_ps(&d->re, v); }
inline void vstore(T64fc* d, __m128d v) { _mm_storeu_pd(&d->re, v); }

template <class T>
constexpr int lanesOf() {
    return 16 / static_cast<int>(sizeof(T));
}

// Sources that repeat one value.
template <class S>
struct Repeats : std::false_type {};
template <class T>
struct Repeats<Bcast<T>> : std::true_type {};
template <class T>
struct Repeats<BcastPair<T>> : std::true_type {};

// Blocks per step of the float loop. Four for the operations of a few
// instructions, so that the counter and the branch are shared; one for the
// complex product of two vectors and the single-precision one by a
// constant, whose shuffles bound the loop and whose longer bodies ran up to
// 1.25 x slower when repeated within a step.
template <class Op, class T, bool Const>
struct StepBlocks : std::integral_constant<int, 4> {};
template <class T>
struct StepBlocks<MulCplxOp, T, false> : std::integral_constant<int, 1> {};
template <>
struct StepBlocks<MulCplxOp, T32fc, true> : std::integral_constant<int, 1> {};

// f(i), f(i + W), ... for K blocks, in ascending order.
template <int K, int W, class F>
inline void eachBlock(F& f, int i) {
    f(i);
    if constexpr (K > 1) eachBlock<K - 1, W>(f, i + W);
}

// The first operand of a block: loaded, or left in memory for the complex
// product of double elements, which loads it in its own way.
template <class Op, class S>
inline auto firstOperand(S s, int i) {
    if constexpr (std::is_same<Op, MulCplxOp>::value && std::is_same<S, Arr<T64fc>>::value)
        return s.p + i;
    else
        return vload(s, i);
}

// d[i] = Op(a[i], b[i]) for real values or complex elements. Each block is
// stored as soon as it is computed, so that the stores of a step go out in
// ascending address order: the same loads and stores grouped (all loads,
// then all stores, which the compiler may reorder) ran up to 20 % slower.
template <class Op, class T, class S1, class S2>
inline void floatLoop(S1 a, S2 b, T* d, int n) {
    constexpr int W = lanesOf<T>(), K = StepBlocks<Op, T, Repeats<S2>::value>::value;
    int i = 0;
    if constexpr (Repeats<S2>::value) {
        // a constant operand: prepared once for the whole loop
        const auto y = Op::prepare(vload(b, 0));
        auto block = [&](int j) { vstore(d + j, Op::withConst(firstOperand<Op>(a, j), y)); };
        for (; i + K * W <= n; i += K * W) eachBlock<K, W>(block, i);
        for (; i + W <= n; i += W) block(i);
    } else {
        auto block = [&](int j) { vstore(d + j, Op::v(firstOperand<Op>(a, j), vload(b, j))); };
        for (; i + K * W <= n; i += K * W) eachBlock<K, W>(block, i);
        for (; i + W <= n; i += W) block(i);
    }
    for (; i < n; ++i) d[i] = Op::s(at(a, i), at(b, i));
}

// The scalar twin alone, for tests and for operations without a vector form.
template <class Op, class T, class S1, class S2>
inline void floatLoopScalar(S1 a, S2 b, T* d, int n) {
    for (int i = 0; i < n; ++i) d[i] = Op::s(at(a, i), at(b, i));
}

// ---- narrow integers: 8u, 16s, 16u through 32-bit lanes -------------------

template <class T>
struct Narrow : std::integral_constant<bool, std::is_same<T, T8u>::value || std::is_same<T, T16s>::value ||
                                                 std::is_same<T, T16u>::value> {};

template <class S>
struct Widens : std::false_type {};
template <class T>
struct Widens<Arr<T>> : Narrow<T> {};
template <class T>
struct Widens<Bcast<T>> : Narrow<T> {};
template <class T>
struct Widens<BcastPair<T>> : Narrow<T> {};

template <class T>
inline sse::Wide8 widen(Arr<T> s, int i) { return sse::widen8(s.p + i); }
template <class T>
inline sse::Wide8 widen(Bcast<T> s, int) {
    const __m128i v = _mm_set1_epi32(s.v);
    return {v, v};
}
template <class T>
inline sse::Wide8 widen(BcastPair<T> s, int) {
    const __m128i v = _mm_setr_epi32(s.re, s.im, s.re, s.im);
    return {v, v};
}

// d[i] = scaleSat(Op(a[i], b[i]), sf) for exact values that fit 32-bit
// lanes (Op::kUnsignedLanes for products of two unsigned 16-bit values).
template <class Op, class TD, class S1, class S2, sse::ScaleKind K>
inline void narrowLoopK(S1 a, S2 b, TD* d, int n, int sf) {
    const sse::LaneScale<TD, Op::kUnsignedLanes> sc(sf);
    int i = 0;
    for (; i + 8 <= n; i += 8) {
        const sse::Wide8 x = widen(a, i), y = widen(b, i);
        sse::pack8(d + i, sc.template apply<K>(Op::vi(x.lo, y.lo)), sc.template apply<K>(Op::vi(x.hi, y.hi)));
    }
    for (; i < n; ++i) d[i] = scaleSat<TD>(Op::i(at(a, i), at(b, i)), sf);
}

// ---- 32-bit integer results through double lanes ------------------------------
//
// When the exact value of the operation is below 2^53 in magnitude (a sum or
// difference of 32-bit values, a product of 16-bit ones), the operation on
// converted operands is exact in double, and so is the scaling by 2^-sf:
// rounding to nearest even and clamping then give the rule's result.

template <class T>
struct ToDouble : std::integral_constant<bool, std::is_same<T, T32s>::value || std::is_same<T, T16s>::value> {};
template <class S>
struct DoubleLanes : std::false_type {};
template <class T>
struct DoubleLanes<Arr<T>> : ToDouble<T> {};
template <class T>
struct DoubleLanes<Bcast<T>> : ToDouble<T> {};
template <class T>
struct DoubleLanes<BcastPair<T>> : ToDouble<T> {};

// Four elements from i as two pairs of doubles.
struct Doubles4 {
    __m128d lo, hi;
};
inline Doubles4 dload4(Arr<T32s> s, int i) {
    const __m128i v = sse::loadu(s.p + i);
    return {_mm_cvtepi32_pd(v), _mm_cvtepi32_pd(_mm_srli_si128(v, 8))};
}
inline Doubles4 dload4(Arr<T16s> s, int i) {
    const __m128i v = _mm_cvtepi16_epi32(sse::load64(s.p + i));
    return {_mm_cvtepi32_pd(v), _mm_cvtepi32_pd(_mm_srli_si128(v, 8))};
}
template <class T>
inline Doubles4 dload4(Bcast<T> s, int) {
    const __m128d v = _mm_set1_pd(s.v);
    return {v, v};
}
template <class T>
inline Doubles4 dload4(BcastPair<T> s, int) {
    const __m128d v = _mm_setr_pd(s.re, s.im);
    return {v, v};
}

// Valid for -32 <= sf <= 60 (2^-sf and every scaled value stay normal).
template <class Op, class S1, class S2>
inline void int32ViaDouble(S1 a, S2 b, T32s* d, int n, int sf) {
    const __m128d scale = _mm_set1_pd(ldexp(1.0, -sf));
    const __m128d lo = _mm_set1_pd(-2147483648.0), hi = _mm_set1_pd(2147483647.0);
    auto one = [&](__m128d x, __m128d y) {
        const __m128d v = _mm_round_pd(_mm_mul_pd(Op::v(x, y), scale), _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        return _mm_cvtpd_epi32(_mm_max_pd(_mm_min_pd(v, hi), lo));
    };
    int i = 0;
    for (; i + 4 <= n; i += 4) {
        const Doubles4 x = dload4(a, i), y = dload4(b, i);
        sse::storeu(d + i, _mm_unpacklo_epi64(one(x.lo, y.lo), one(x.hi, y.hi)));
    }
    for (; i < n; ++i) d[i] = scaleSat<T32s>(Op::i(at(a, i), at(b, i)), sf);
}

// ---- sums and differences without scaling: saturating instructions ---------------

template <class T>
inline __m128i splatBits(T v) {
    if constexpr (sizeof(T) == 1)
        return _mm_set1_epi8(static_cast<char>(v));
    else
        return _mm_set1_epi16(static_cast<short>(v));
}
template <class T> inline __m128i sload(Arr<T> s, int i) { return sse::loadu(s.p + i); }
template <class T> inline __m128i sload(Bcast<T> s, int) { return splatBits(s.v); }
inline __m128i sload(BcastPair<T16s> s, int) {
    return _mm_set1_epi32(static_cast<int>(static_cast<uint32_t>(static_cast<uint16_t>(s.im)) << 16 |
                                           static_cast<uint16_t>(s.re)));
}

template <class T>
inline __m128i addSat(__m128i x, __m128i y) {
    if constexpr (std::is_same<T, T16s>::value) return _mm_adds_epi16(x, y);
    else if constexpr (std::is_same<T, T16u>::value) return _mm_adds_epu16(x, y);
    else return _mm_adds_epu8(x, y);
}
template <class T>
inline __m128i subSat(__m128i x, __m128i y) {  // x - y
    if constexpr (std::is_same<T, T16s>::value) return _mm_subs_epi16(x, y);
    else if constexpr (std::is_same<T, T16u>::value) return _mm_subs_epu16(x, y);
    else return _mm_subs_epu8(x, y);
}

template <class Op, class T, class S1, class S2>
inline void saturatingLoop(S1 a, S2 b, T* d, int n) {
    constexpr int W = 16 / static_cast<int>(sizeof(T));
    int i = 0;
    for (; i + W <= n; i += W) {
        const __m128i x = sload(a, i), y = sload(b, i);
        if constexpr (std::is_same<Op, AddOp>::value) sse::storeu(d + i, addSat<T>(x, y));
        else if constexpr (std::is_same<Op, SubOp>::value) sse::storeu(d + i, subSat<T>(y, x));
        else sse::storeu(d + i, subSat<T>(x, y));
    }
    for (; i < n; ++i) d[i] = saturate<T>(Op::i(at(a, i), at(b, i)));
}

template <class Op, class TD, class S1, class S2>
constexpr bool saturatingForm() {
    using E1 = typename S1::Elem;
    using E2 = typename S2::Elem;
    constexpr bool sumOrDiff = std::is_same<Op, AddOp>::value || std::is_same<Op, SubOp>::value ||
                               std::is_same<Op, SubRevOp>::value;
    constexpr bool sameType = std::is_same<E1, TD>::value && std::is_same<E2, TD>::value && Narrow<TD>::value;
    constexpr bool loads = Widens<S1>::value && Widens<S2>::value &&
                           (!std::is_same<S2, BcastPair<TD>>::value || std::is_same<TD, T16s>::value);
    return sumOrDiff && sameType && loads;
}

template <class Op, class TD, class S1, class S2>
inline void intLoopScalar(S1 a, S2 b, TD* d, int n, int sf) {
    for (int i = 0; i < n; ++i) d[i] = scaleSat<TD>(Op::i(at(a, i), at(b, i)), sf);
}

template <class Op, class TD, class S1, class S2>
inline void intLoop(S1 a, S2 b, TD* d, int n, int sf) {
    if constexpr (Op::kVecInt && std::is_same<TD, T32s>::value && DoubleLanes<S1>::value && DoubleLanes<S2>::value &&
                  Op::magBits(8 * sizeof(typename S1::Elem) - 1, 8 * sizeof(typename S2::Elem) - 1) <= 52) {
        if (sf >= -32 && sf <= 60) return int32ViaDouble<Op>(a, b, d, n, sf);
    }
    if constexpr (saturatingForm<Op, TD, S1, S2>()) {
        if (sf == 0) return saturatingLoop<Op, TD>(a, b, d, n);
    }
    if constexpr (Op::kVecInt && Narrow<TD>::value && Widens<S1>::value && Widens<S2>::value) {
        if (sse::LaneScale<TD, Op::kUnsignedLanes>::covers(sf)) {
            switch (sse::scaleKind(sf)) {
                case sse::ScaleKind::Sat: return narrowLoopK<Op, TD, S1, S2, sse::ScaleKind::Sat>(a, b, d, n, sf);
                case sse::ScaleKind::Right: return narrowLoopK<Op, TD, S1, S2, sse::ScaleKind::Right>(a, b, d, n, sf);
                case sse::ScaleKind::Left: return narrowLoopK<Op, TD, S1, S2, sse::ScaleKind::Left>(a, b, d, n, sf);
            }
        }
    }
    intLoopScalar<Op, TD>(a, b, d, n, sf);
}

// 64-bit integers: exact values in 128 bits.
inline Wide128 wide(T64s v) { return Wide128::of(v); }
inline Wide128 wide(T64u v) { return Wide128::ofUnsigned(v); }
template <class Op, class TD, class S1, class S2>
inline void wideLoop(S1 a, S2 b, TD* d, int n, int sf) {
    for (int i = 0; i < n; ++i) d[i] = scaleSat<TD>(Op::w(wide(at(a, i)), wide(at(b, i))), sf);
}
}  // namespace kern
}  // namespace veks

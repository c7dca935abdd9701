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
#include "kernels/store.h"

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
    withStores(d, static_cast<size_t>(n), [&](auto stream) {
        constexpr bool St = decltype(stream)::value;
        int i = 0;
        if constexpr (Repeats<S2>::value) {
            // a constant operand: prepared once for the whole loop
            const auto y = Op::prepare(vload(b, 0));
            auto block = [&](int j) { put<St>(d + j, Op::withConst(firstOperand<Op>(a, j), y)); };
            for (; i + K * W <= n; i += K * W) eachBlock<K, W>(block, i);
            for (; i + W <= n; i += W) block(i);
        } else {
            auto block = [&](int j) { put<St>(d + j, Op::v(firstOperand<Op>(a, j), vload(b, j))); };
            for (; i + K * W <= n; i += K * W) eachBlock<K, W>(block, i);
            for (; i + W <= n; i += W) block(i);
        }
        for (; i < n; ++i) d[i] = Op::s(at(a, i), at(b, i));
    });
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
    else if constexpr (sizeof(T) == 2)
        return _mm_set1_epi16(static_cast<short>(v));
    else
        return _mm_set1_epi32(static_cast<int>(v));
}
template <class T> inline __m128i sload(Arr<T> s, int i) { return sse::loadu(s.p + i); }
template <class T> inline __m128i sload(Bcast<T> s, int) { return splatBits(s.v); }
template <class T>
inline __m128i sload(BcastPair<T> s, int) {
    static_assert(sizeof(T) == 2 || sizeof(T) == 4, "complex parts of 16 or 32 bits");
    if constexpr (sizeof(T) == 2)
        return _mm_set1_epi32(static_cast<int>(static_cast<uint32_t>(static_cast<uint16_t>(s.im)) << 16 |
                                               static_cast<uint16_t>(s.re)));
    else
        return _mm_setr_epi32(s.re, s.im, s.re, s.im);
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

// ---- scaled sums and differences in lanes as wide as the elements ----------------
//
// For 1 <= sf and a sum or difference of two elements of one type, the
// exact value s needs one bit more than a lane; it reaches the rounding as
// floor(s / 2) and s wrapped to the lane (see sse::ShiftRound), so that no
// lane is widened. floor(s / 2) without overflow, over two's complement
// values (x ^ y, x & y, ~x & y read as integers of unbounded width):
//   x + y = (x ^ y) + 2 (x & y)   gives floor((x + y) / 2) = (x & y) + ((x ^ y) >> 1);
//   x - y = (x ^ y) - 2 (~x & y)  gives floor((x - y) / 2) = ((x ^ y) >> 1) - (~x & y);
// with an arithmetic shift for signed elements. Both halves lie in the
// element's range, so lane arithmetic that wraps gives them exactly. For
// unsigned elements a sum's half is avg(x, y) - ((x ^ y) & 1) (avg rounds
// up), and a difference below zero gives 0 whatever sf, so max(x - y, 0)
// (the saturating difference, exact in a lane) is rounded directly.

template <class T>
struct SumRound {
    using type = sse::ShiftRound<8 * static_cast<int>(sizeof(T)), std::is_signed<T>::value>;
};

template <class T, bool Diff>
constexpr bool sumIsHalved() {
    return std::is_signed<T>::value || !Diff;
}

// The rule's result lanes for x + y (Diff: x - y), 1 <= sf within covers().
// Top: a 32-bit difference may round past the range, which happens only at
// sf = 1.
template <class T, bool Diff, bool Top>
inline __m128i scaledSumLanes(__m128i x, __m128i y, const typename SumRound<T>::type& r) {
    if constexpr (std::is_unsigned<T>::value && Diff) {
        // max(x - y, 0): the result 0 for every negative difference, and at
        // most (2^Bits - 1) / 2^sf rounded otherwise, which fits.
        const __m128i s = sizeof(T) == 1 ? _mm_subs_epu8(x, y) : _mm_subs_epu16(x, y);
        const __m128i q = r.quotient(s);
        return sizeof(T) == 1 ? _mm_sub_epi8(q, r.up(q, s)) : _mm_sub_epi16(q, r.up(q, s));
    } else if constexpr (std::is_same<T, T8u>::value) {
        // x + y <= 510: the result is at most 255.
        const __m128i f = _mm_sub_epi8(_mm_avg_epu8(x, y), _mm_and_si128(_mm_xor_si128(x, y), r.one()));
        const __m128i q = r.quotient(f);
        return _mm_sub_epi8(q, r.up(q, _mm_add_epi8(x, y)));
    } else if constexpr (std::is_same<T, T16u>::value) {
        // x + y <= 131070: the result is at most 65535.
        const __m128i f = _mm_sub_epi16(_mm_avg_epu16(x, y), _mm_and_si128(_mm_xor_si128(x, y), r.one()));
        const __m128i q = r.quotient(f);
        return _mm_sub_epi16(q, r.up(q, _mm_add_epi16(x, y)));
    } else if constexpr (std::is_same<T, T16s>::value) {
        if constexpr (Diff) {
            // Only 65535 / 2 rounds past the range (to 32768): saturating.
            const __m128i f = _mm_sub_epi16(_mm_srai_epi16(_mm_xor_si128(x, y), 1), _mm_andnot_si128(x, y));
            const __m128i q = r.quotient(f);
            return _mm_subs_epi16(q, r.up(q, _mm_sub_epi16(x, y)));
        } else {
            // -65536 <= x + y <= 65534: the result stays in range.
            const __m128i f = _mm_add_epi16(_mm_and_si128(x, y), _mm_srai_epi16(_mm_xor_si128(x, y), 1));
            const __m128i q = r.quotient(f);
            return _mm_sub_epi16(q, r.up(q, _mm_add_epi16(x, y)));
        }
    } else {
        static_assert(std::is_same<T, T32s>::value, "8u, 16u, 16s or 32s elements");
        if constexpr (Diff) {
            // Only (2^32 - 1) / 2 rounds past the range (to 2^31): q stays at
            // the maximum there. From sf = 2 on every result is below 2^30.
            const __m128i f = _mm_sub_epi32(_mm_srai_epi32(_mm_xor_si128(x, y), 1), _mm_andnot_si128(x, y));
            const __m128i q = r.quotient(f);
            __m128i up = r.up(q, _mm_sub_epi32(x, y));
            if constexpr (Top) up = _mm_andnot_si128(_mm_cmpeq_epi32(q, _mm_set1_epi32(INT32_MAX)), up);
            return _mm_sub_epi32(q, up);
        } else {
            // -2^32 <= x + y <= 2^32 - 2: the result stays in range.
            const __m128i f = _mm_add_epi32(_mm_and_si128(x, y), _mm_srai_epi32(_mm_xor_si128(x, y), 1));
            const __m128i q = r.quotient(f);
            return _mm_sub_epi32(q, r.up(q, _mm_add_epi32(x, y)));
        }
    }
}

template <class S>
struct LaneSource : std::false_type {};
template <class T>
struct LaneSource<Arr<T>> : std::true_type {};
template <class T>
struct LaneSource<Bcast<T>> : std::true_type {};
template <class T>
struct LaneSource<BcastPair<T>> : std::integral_constant<bool, sizeof(T) == 2 || sizeof(T) == 4> {};

template <class Op, class TD, class S1, class S2>
constexpr bool scaledSumForm() {
    using E1 = typename S1::Elem;
    using E2 = typename S2::Elem;
    constexpr bool sumOrDiff = std::is_same<Op, AddOp>::value || std::is_same<Op, SubOp>::value ||
                               std::is_same<Op, SubRevOp>::value;
    constexpr bool types = std::is_same<E1, TD>::value && std::is_same<E2, TD>::value &&
                           (Narrow<TD>::value || std::is_same<TD, T32s>::value);
    return sumOrDiff && types && LaneSource<S1>::value && LaneSource<S2>::value;
}

// The loop of scaledSumLoop, with or without the test at the top of the range.
template <class Op, class T, bool Top, class S1, class S2>
inline void scaledSumSteps(S1 a, S2 b, T* d, int n, int sf) {
    constexpr bool diff = !std::is_same<Op, AddOp>::value;
    constexpr bool swap = std::is_same<Op, SubOp>::value;  // x2 - x1
    constexpr int W = 16 / static_cast<int>(sizeof(T));
    const typename SumRound<T>::type r(sf, sumIsHalved<T, diff>());
    auto one = [&](int i) {
        const __m128i x1 = sload(a, i), x2 = sload(b, i);
        return swap ? scaledSumLanes<T, diff, Top>(x2, x1, r) : scaledSumLanes<T, diff, Top>(x1, x2, r);
    };
    int i = 0;
    for (; i + 2 * W <= n; i += 2 * W) {
        const __m128i r0 = one(i), r1 = one(i + W);
        sse::storeu(d + i, r0);
        sse::storeu(d + i + W, r1);
    }
    for (; i + W <= n; i += W) sse::storeu(d + i, one(i));
    for (; i < n; ++i) d[i] = scaleSat<T>(Op::i(at(a, i), at(b, i)), sf);
}

// d[i] = scaleSat(Op(a[i], b[i]), sf) for 1 <= sf within SumRound's covers().
template <class Op, class T, class S1, class S2>
inline void scaledSumLoop(S1 a, S2 b, T* d, int n, int sf) {
    constexpr bool top = std::is_same<T, T32s>::value && !std::is_same<Op, AddOp>::value;
    if (top && sf >= 2) return scaledSumSteps<Op, T, false>(a, b, d, n, sf);
    return scaledSumSteps<Op, T, top>(a, b, d, n, sf);
}

// ---- scaled products of 8u, 16u and 16s without widening loads -------------------
//
// Exact products of two 8u values fit unsigned 16-bit lanes (<= 65025), those
// of two 16-bit values 32-bit lanes, built from the low and high halves
// (pmullw, pmulhw/pmulhuw) by one interleave. The rule's right shift is
// sse::ShiftRound on the exact value (R < 2^15 for sf <= 15); the packs
// saturate: every rounded product is below 2^31 (16-bit) or 2^15 (8u), so
// the signed pack input reads it correctly. Without scaling, unsigned
// products are first clamped to the destination's maximum.

template <class T>
struct ProductRound16 {
    using type = sse::ShiftRound<sizeof(T) == 1 ? 16 : 32, std::is_same<T, T16s>::value>;
};

template <class Op, class TD, class S1, class S2>
constexpr bool narrowProductForm() {
    using E1 = typename S1::Elem;
    using E2 = typename S2::Elem;
    constexpr bool mul = std::is_same<Op, MulRealOp>::value || std::is_same<Op, MulUnsignedOp>::value;
    constexpr bool plain = (std::is_same<S1, Arr<TD>>::value || std::is_same<S1, Bcast<TD>>::value) &&
                           (std::is_same<S2, Arr<TD>>::value || std::is_same<S2, Bcast<TD>>::value);
    return mul && Narrow<TD>::value && std::is_same<E1, TD>::value && std::is_same<E2, TD>::value && plain;
}

// One register of results (16 for 8u, 8 for 16-bit), sf = 0 without Round.
template <class T, bool Round>
inline __m128i productLanes(__m128i x, __m128i y, const typename ProductRound16<T>::type& r) {
    if constexpr (std::is_same<T, T8u>::value) {
        const __m128i zero = _mm_setzero_si128();
        __m128i s0 = _mm_mullo_epi16(_mm_unpacklo_epi8(x, zero), _mm_unpacklo_epi8(y, zero));
        __m128i s1 = _mm_mullo_epi16(_mm_unpackhi_epi8(x, zero), _mm_unpackhi_epi8(y, zero));
        if constexpr (Round) {
            const __m128i q0 = r.quotient(s0), q1 = r.quotient(s1);
            s0 = _mm_sub_epi16(q0, r.up(q0, s0));
            s1 = _mm_sub_epi16(q1, r.up(q1, s1));
        } else {
            s0 = _mm_min_epu16(s0, _mm_set1_epi16(255));
            s1 = _mm_min_epu16(s1, _mm_set1_epi16(255));
        }
        return _mm_packus_epi16(s0, s1);
    } else {
        constexpr bool sgn = std::is_same<T, T16s>::value;
        const __m128i lo = _mm_mullo_epi16(x, y), hi = sgn ? _mm_mulhi_epi16(x, y) : _mm_mulhi_epu16(x, y);
        __m128i s0 = _mm_unpacklo_epi16(lo, hi), s1 = _mm_unpackhi_epi16(lo, hi);
        if constexpr (Round) {
            const __m128i q0 = r.quotient(s0), q1 = r.quotient(s1);
            s0 = _mm_sub_epi32(q0, r.up(q0, s0));
            s1 = _mm_sub_epi32(q1, r.up(q1, s1));
        } else if constexpr (!sgn) {
            s0 = _mm_min_epu32(s0, _mm_set1_epi32(65535));
            s1 = _mm_min_epu32(s1, _mm_set1_epi32(65535));
        }
        return sgn ? _mm_packs_epi32(s0, s1) : _mm_packus_epi32(s0, s1);
    }
}

// d[i] = scaleSat(a[i] * b[i], sf) for 0 <= sf <= 15 (sf = 0 without Round).
template <bool Round, class T, class S1, class S2>
inline void narrowProductLoop(S1 a, S2 b, T* d, int n, int sf) {
    constexpr int W = 16 / static_cast<int>(sizeof(T));
    const typename ProductRound16<T>::type r(Round ? sf : 1, false);
    int i = 0;
    for (; i + W <= n; i += W) sse::storeu(d + i, productLanes<T, Round>(sload(a, i), sload(b, i), r));
    for (; i < n; ++i) d[i] = scaleSat<T>(int64_t(at(a, i)) * at(b, i), sf);
}

// ---- products of 32-bit integers in 64-bit lanes -----------------------------
//
// pmuldq gives the exact products of the even lanes. For 0 <= sf <= 31
// sse::ProductScale32 rounds and narrows them in one go; larger scale
// factors go through sse::ProductRound64 and sse::saturate64to32.

// The odd elements of a source moved to the even lanes (a repeated value is
// there already).
template <class S>
inline __m128i oddLanes(__m128i v) {
    if constexpr (Repeats<S>::value) return v;
    else return _mm_srli_epi64(v, 32);
}

template <class Op, class TD, class S1, class S2>
constexpr bool product32Form() {
    using E1 = typename S1::Elem;
    using E2 = typename S2::Elem;
    constexpr bool plain = (std::is_same<S1, Arr<T32s>>::value || std::is_same<S1, Bcast<T32s>>::value) &&
                           (std::is_same<S2, Arr<T32s>>::value || std::is_same<S2, Bcast<T32s>>::value);
    return std::is_same<Op, MulRealOp>::value && std::is_same<TD, T32s>::value && std::is_same<E1, T32s>::value &&
           std::is_same<E2, T32s>::value && plain;
}

// d[i] = scaleSat(a[i] * b[i], sf) for 0 <= sf <= 31. The odd elements reach
// the even lanes through a load one element further on while that stays
// inside the sources, else through a shift. Every step loads before it
// stores and reads nothing below its own elements, so d may be a source.
template <sse::ProductScale32::Form F, class S1, class S2>
inline void product32Loop(S1 a, S2 b, T32s* d, int n, int sf) {
    const sse::ProductScale32 r(sf);
    auto four = [&](__m128i x, __m128i y, __m128i xo, __m128i yo) {
        return r.template apply<F>(_mm_mul_epi32(x, y), _mm_mul_epi32(xo, yo));
    };
    int i = 0;
    // Eight products a step; a step whose results all fit skips the
    // saturation.
    for (; i + 8 < n; i += 8) {
        const __m128i x0 = sload(a, i), y0 = sload(b, i), x1 = sload(a, i + 4), y1 = sload(b, i + 4);
        const __m128i e0 = _mm_mul_epi32(x0, y0), o0 = _mm_mul_epi32(sload(a, i + 1), sload(b, i + 1));
        const __m128i e1 = _mm_mul_epi32(x1, y1), o1 = _mm_mul_epi32(sload(a, i + 5), sload(b, i + 5));
        const auto q0 = r.template quotients<F>(e0, o0), q1 = r.template quotients<F>(e1, o1);
        __m128i r0, r1;
        if (_mm_testz_si128(_mm_or_si128(q0.high, q1.high), _mm_set1_epi32(-1))) {
            r0 = r.fitting(q0);
            r1 = r.fitting(q1);
        } else {
            r0 = r.template saturated<F>(q0, e0, o0);
            r1 = r.template saturated<F>(q1, e1, o1);
        }
        sse::storeu(d + i, r0);
        sse::storeu(d + i + 4, r1);
    }
    for (; i + 4 < n; i += 4) {
        const __m128i x = sload(a, i), y = sload(b, i);
        sse::storeu(d + i, four(x, y, sload(a, i + 1), sload(b, i + 1)));
    }
    if (i + 4 <= n) {
        const __m128i x = sload(a, i), y = sload(b, i);
        sse::storeu(d + i, four(x, y, oddLanes<S1>(x), oddLanes<S2>(y)));
        i += 4;
    }
    for (; i < n; ++i) d[i] = scaleSat<T32s>(int64_t(at(a, i)) * at(b, i), sf);
}

// The same for any 0 <= sf <= 31.
template <class S1, class S2>
inline void product32Loop(S1 a, S2 b, T32s* d, int n, int sf) {
    using P = sse::ProductScale32;
    switch (P::formOf(sf)) {
        case P::Form::Unscaled: return product32Loop<P::Form::Unscaled>(a, b, d, n, sf);
        case P::Form::Scaled: return product32Loop<P::Form::Scaled>(a, b, d, n, sf);
        case P::Form::Scaled31: return product32Loop<P::Form::Scaled31>(a, b, d, n, sf);
    }
}

// d[i] = scaleSat(a[i] * b[i], sf) for 32 <= sf <= 62.
template <class S1, class S2>
inline void product32WideLoop(S1 a, S2 b, T32s* d, int n, int sf) {
    const sse::ProductRound64 r(sf);
    int i = 0;
    for (; i + 4 <= n; i += 4) {
        const __m128i x = sload(a, i), y = sload(b, i);
        const __m128i ev = r.apply(_mm_mul_epi32(x, y));
        const __m128i od = r.apply(_mm_mul_epi32(oddLanes<S1>(x), oddLanes<S2>(y)));
        sse::storeu(d + i, sse::saturate64to32(ev, od));
    }
    for (; i < n; ++i) d[i] = scaleSat<T32s>(int64_t(at(a, i)) * at(b, i), sf);
}

template <class Op, class TD, class S1, class S2>
inline void intLoopScalar(S1 a, S2 b, TD* d, int n, int sf) {
    for (int i = 0; i < n; ++i) d[i] = scaleSat<TD>(Op::i(at(a, i), at(b, i)), sf);
}

template <class Op, class TD, class S1, class S2>
inline void intLoop(S1 a, S2 b, TD* d, int n, int sf) {
    if constexpr (scaledSumForm<Op, TD, S1, S2>()) {
        if (SumRound<TD>::type::covers(sf)) return scaledSumLoop<Op, TD>(a, b, d, n, sf);
    }
    if constexpr (narrowProductForm<Op, TD, S1, S2>()) {
        if (sf == 0) return narrowProductLoop<false, TD>(a, b, d, n, sf);
        if (sf >= 1 && sf <= 15) return narrowProductLoop<true, TD>(a, b, d, n, sf);
    }
    if constexpr (product32Form<Op, TD, S1, S2>()) {
        if (sse::ProductScale32::covers(sf)) return product32Loop(a, b, d, n, sf);
        if (sf >= 32 && sf <= 62) return product32WideLoop(a, b, d, n, sf);
    }
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

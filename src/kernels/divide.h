// Division kernels.
//
// Single precision: a block of four divisors with no zero among them is
// divided by the refined reciprocal (r the hardware estimate, e = 1 - d * r,
// q0 = n * r, q = q0 + (q0 * e + q0) * e); a block holding a zero divisor,
// and so the IEEE results of zero divisors, by full division. Blocks start
// at the first element; the last, shorter block follows the same rule.
//
// Integers: the quotient of the converted operands in single precision,
// scaled by 2^-sf (exact: the families keep sf where the product neither
// overflows nor underflows), then rounded (by the processor's setting, or
// explicitly by a rounding mode) and saturated. A zero divisor gives 0 for
// a zero dividend and otherwise the end of the range the dividend's sign
// points to.
#pragma once

#include <smmintrin.h>
#include <stdint.h>
#include <string.h>

#include <type_traits>

#include "frame/detail/rounding.h"
#include "frame/detail/traits.h"
#include "kernels/elementwise.h"
#include "kernels/sse/vocab.h"

namespace veks {
namespace kern {

// ---- single precision ---------------------------------------------------------

inline float refinedQuotient(float n, float d) {
    const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
    const float e = 1.0f - d * r;
    const float q0 = n * r;
    return q0 + (q0 * e + q0) * e;
}

// q0 + (q0 * e + q0) * e
inline __m128 refinement(__m128 q0, __m128 e) { return _mm_add_ps(q0, _mm_mul_ps(_mm_add_ps(_mm_mul_ps(q0, e), q0), e)); }

// The vector form also gives e, whose lanes are NaN where d is zero
// (the estimate of 1 / 0 is infinite, and 0 * inf is NaN).
inline __m128 refinedQuotient(__m128 n, __m128 d, __m128* err) {
    const __m128 r = _mm_rcp_ps(d);
    const __m128 e = _mm_sub_ps(_mm_set1_ps(1.0f), _mm_mul_ps(d, r));
    *err = e;
    return refinement(_mm_mul_ps(n, r), e);
}
inline __m128 refinedQuotient(__m128 n, __m128 d) {
    __m128 e;
    return refinedQuotient(n, d, &e);
}

// Four blocks of refined quotients, b[j] / a[j] for j < 16, stored at d; the
// or of their e terms joins *bits. Every stage is done for the four blocks
// before the next. On x86_64 the order of the instructions is fixed here:
// the compiler's own schedule of these very operations (the same in number
// and kind) ran from 1.12x to 1.22x the time of a plain division loop,
// depending on small changes around the loop, this one 1.09x. The five
// multiplications and the estimate per block all need the two multiplier
// pipes, so the quotient cannot run faster than about 1.08x a division;
// any slack in the schedule shows at once. Elsewhere (eight registers are
// too few for the four blocks) the stages are written in C++ in the same
// order.
// Stream chooses streaming stores for d (then 16-byte aligned).
template <bool Stream>
inline void refinedStep16(const float* a, const float* b, float* d, __m128 one, __m128* bits) {
#if defined(__x86_64__)
    __m128 d0, d1, d2, d3, r0, r1, r2, r3, e0, e1, e2, e3;
    // The block in register reg to off(d), streaming or not.
#define VEKS_PUT_BLOCK(reg, off)                                  \
    ".if %c[stream]\n\t" "movntps %[" reg "], " off "(%[d])\n\t" \
    ".else\n\t" "movups %[" reg "], " off "(%[d])\n\t" ".endif\n\t"
    __asm__ volatile(
        "movups   (%[a]), %[d0]\n\t"
        "movups 16(%[a]), %[d1]\n\t"
        "movups 32(%[a]), %[d2]\n\t"
        "movups 48(%[a]), %[d3]\n\t"
        "rcpps %[d0], %[r0]\n\t"
        "rcpps %[d1], %[r1]\n\t"
        "rcpps %[d2], %[r2]\n\t"
        "rcpps %[d3], %[r3]\n\t"
        // e = 1 - divisor * r
        "mulps %[r0], %[d0]\n\t" "movaps %[one], %[e0]\n\t" "subps %[d0], %[e0]\n\t"
        "mulps %[r1], %[d1]\n\t" "movaps %[one], %[e1]\n\t" "subps %[d1], %[e1]\n\t"
        "mulps %[r2], %[d2]\n\t" "movaps %[one], %[e2]\n\t" "subps %[d2], %[e2]\n\t"
        "mulps %[r3], %[d3]\n\t" "movaps %[one], %[e3]\n\t" "subps %[d3], %[e3]\n\t"
        // q0 = dividend * r, in place of r
        "movups   (%[b]), %[d0]\n\t" "mulps %[d0], %[r0]\n\t"
        "movups 16(%[b]), %[d1]\n\t" "mulps %[d1], %[r1]\n\t"
        "movups 32(%[b]), %[d2]\n\t" "mulps %[d2], %[r2]\n\t"
        "movups 48(%[b]), %[d3]\n\t" "mulps %[d3], %[r3]\n\t"
        // q = q0 + (q0 * e + q0) * e
        "movaps %[r0], %[d0]\n\t" "mulps %[e0], %[d0]\n\t" "addps %[r0], %[d0]\n\t" "mulps %[e0], %[d0]\n\t"
        "orps %[e1], %[e0]\n\t" "addps %[r0], %[d0]\n\t" VEKS_PUT_BLOCK("d0", "")
        "movaps %[r1], %[d1]\n\t" "mulps %[e1], %[d1]\n\t" "addps %[r1], %[d1]\n\t" "mulps %[e1], %[d1]\n\t"
        "addps %[r1], %[d1]\n\t" VEKS_PUT_BLOCK("d1", "16")
        "movaps %[r2], %[d2]\n\t" "mulps %[e2], %[d2]\n\t" "addps %[r2], %[d2]\n\t" "mulps %[e2], %[d2]\n\t"
        "orps %[e3], %[e2]\n\t" "orps %[e2], %[e0]\n\t" "orps %[e0], %[bits]\n\t"
        "addps %[r2], %[d2]\n\t" VEKS_PUT_BLOCK("d2", "32")
        "movaps %[r3], %[d3]\n\t" "mulps %[e3], %[d3]\n\t" "addps %[r3], %[d3]\n\t" "mulps %[e3], %[d3]\n\t"
        "addps %[r3], %[d3]\n\t" VEKS_PUT_BLOCK("d3", "48")
        : [bits] "+x"(*bits), [d0] "=&x"(d0), [d1] "=&x"(d1), [d2] "=&x"(d2), [d3] "=&x"(d3), [r0] "=&x"(r0),
          [r1] "=&x"(r1), [r2] "=&x"(r2), [r3] "=&x"(r3), [e0] "=&x"(e0), [e1] "=&x"(e1), [e2] "=&x"(e2),
          [e3] "=&x"(e3)
        : [a] "r"(a), [b] "r"(b), [d] "r"(d), [one] "x"(one), [stream] "i"(Stream ? 1 : 0)
        : "memory");
#undef VEKS_PUT_BLOCK
#else
    __m128 dv[4], r[4], e[4], q0[4];
    for (int k = 0; k < 4; ++k) dv[k] = _mm_loadu_ps(a + 4 * k);
    for (int k = 0; k < 4; ++k) r[k] = _mm_rcp_ps(dv[k]);
    for (int k = 0; k < 4; ++k) e[k] = _mm_sub_ps(one, _mm_mul_ps(dv[k], r[k]));
    for (int k = 0; k < 4; ++k) q0[k] = _mm_mul_ps(_mm_loadu_ps(b + 4 * k), r[k]);
    for (int k = 0; k < 4; ++k) put<Stream>(d + 4 * k, refinement(q0[k], e[k]));
    *bits = _mm_or_ps(*bits, _mm_or_ps(_mm_or_ps(e[0], e[1]), _mm_or_ps(e[2], e[3])));
#endif
}

// Sixteen dividends from j on: the source itself, or a constant repeated
// in `row`.
inline const float* dividendRow(Arr<float> s, int j, const float*) { return s.p + j; }
inline const float* dividendRow(Bcast<float>, int, const float* row) { return row; }

// Whether a source vector shares memory with the n elements at d.
inline bool overlaps(Arr<float> s, const float* d, int n) {
    const uintptr_t a = reinterpret_cast<uintptr_t>(s.p), b = reinterpret_cast<uintptr_t>(d);
    const uintptr_t bytes = sizeof(float) * static_cast<uintptr_t>(n);
    return a < b + bytes && b < a + bytes;
}
inline bool overlaps(Bcast<float>, const float*, int) { return false; }

// d[i] = dividend[i] / divisor[i]; returns whether a divisor was zero.
//
// With no source in the way of the destination, every whole block first
// takes the refined quotient. The bits of the e terms, or-ed together, form
// a NaN if any e was NaN (its exponent bits all set, its fraction not zero),
// so a zero divisor anywhere shows at the end of the pass; only then are the
// blocks done again with the test of each block. (Or-ing other values may
// also show a NaN, which costs the second pass and nothing else.) In place,
// a step of four blocks tests its divisors for zeros once, and when one has
// a zero, its blocks go through the test one by one. Either way each block
// takes the path its own divisors choose.
template <class SD, class SN>
inline bool divide32fLoop(SD divisor, SN dividend, float* d, int n) {
    return withStores(d, static_cast<size_t>(n), [&](auto stream) {
        constexpr bool St = decltype(stream)::value;
        constexpr int K = 4;
        const __m128 zero = _mm_setzero_ps(), one = _mm_set1_ps(1.0f);
        const int whole = n & ~3;
        int zeroMask = 0;
        auto checked = [&](int j) {
            const __m128 a = vload(divisor, j), b = vload(dividend, j);
            const int z = _mm_movemask_ps(_mm_cmpeq_ps(a, zero));
            zeroMask |= z;
            put<St>(d + j, z ? _mm_div_ps(b, a) : refinedQuotient(b, a));
        };
        auto refined = [&](int j) { put<St>(d + j, refinedQuotient(vload(dividend, j), vload(divisor, j))); };
        int i = 0;
        if (!overlaps(divisor, d, n) && !overlaps(dividend, d, n)) {
            __m128 bits = zero;
            alignas(16) float row[16];
            if constexpr (std::is_same<SN, Bcast<float>>::value) {
                for (float& v : row) v = dividend.v;
            }
            for (; i + 16 <= whole; i += 16)
                refinedStep16<St>(divisor.p + i, dividendRow(dividend, i, row), d + i, one, &bits);
            for (; i < whole; i += 4) {
                __m128 e;
                put<St>(d + i, refinedQuotient(vload(dividend, i), vload(divisor, i), &e));
                bits = _mm_or_ps(bits, e);
            }
            if (_mm_movemask_ps(_mm_cmpunord_ps(bits, bits))) {
                for (i = 0; i < whole; i += 4) checked(i);
            }
        } else {
            for (; i + 4 * K <= whole; i += 4 * K) {
                __m128 z = _mm_cmpeq_ps(vload(divisor, i), zero);
                for (int k = 1; k < K; ++k) z = _mm_or_ps(z, _mm_cmpeq_ps(vload(divisor, i + 4 * k), zero));
                if (_mm_movemask_ps(z))
                    eachBlock<K, 4>(checked, i);
                else
                    eachBlock<K, 4>(refined, i);
            }
            for (; i < whole; i += 4) checked(i);
        }
        if (i < n) {
            bool z = false;
            for (int k = i; k < n; ++k) z |= at(divisor, k) == 0.0f;
            for (int k = i; k < n; ++k)
                d[k] = z ? at(dividend, k) / at(divisor, k) : refinedQuotient(at(dividend, k), at(divisor, k));
            zeroMask |= z;
        }
        return zeroMask != 0;
    });
}

// ---- full division: double, and complex values ---------------------------------

// dividend / divisor for complex values:
// (n.re * d.re + n.im * d.im) / m and (n.im * d.re - n.re * d.im) / m with
// m = d.re * d.re + d.im * d.im, in that order. A zero divisor gives the
// IEEE results of dividing by m = 0.
template <class C>
inline C divComplex(C n, C d) {
    const auto m = d.re * d.re + d.im * d.im;
    C q;
    q.re = (n.re * d.re + n.im * d.im) / m;
    q.im = (n.im * d.re - n.re * d.im) / m;
    return q;
}

// The same on two complex values of single precision (re, im, re, im). The
// squares are taken of the duplicated parts, which the numerators need
// anyway: the same products and sum as m above, two shuffles fewer.
inline __m128 divComplex(__m128 n, __m128 d) {
    const __m128 dre = _mm_moveldup_ps(d), dim = _mm_movehdup_ps(d);
    const __m128 m = _mm_add_ps(_mm_mul_ps(dre, dre), _mm_mul_ps(dim, dim));  // m, m per element
    const __m128 nsw = _mm_shuffle_ps(n, n, _MM_SHUFFLE(2, 3, 0, 1));      // n.im, n.re
    // re: n.re * d.re + n.im * d.im; im: n.im * d.re - n.re * d.im
    const __m128 a = _mm_mul_ps(n, dre);                                  // n.re d.re, n.im d.re
    const __m128 b = _mm_mul_ps(nsw, dim);                                // n.im d.im, n.re d.im
    const __m128 sign = _mm_castsi128_ps(_mm_setr_epi32(0, int(0x80000000), 0, int(0x80000000)));
    return _mm_div_ps(_mm_add_ps(a, _mm_xor_ps(b, sign)), m);
}
inline __m128d divComplex(__m128d n, __m128d d) {
    const __m128d dre = _mm_unpacklo_pd(d, d), dim = _mm_unpackhi_pd(d, d);
    const __m128d m = _mm_add_pd(_mm_mul_pd(dre, dre), _mm_mul_pd(dim, dim));
    const __m128d nsw = _mm_shuffle_pd(n, n, 1);
    const __m128d a = _mm_mul_pd(n, dre);
    const __m128d b = _mm_mul_pd(nsw, dim);
    const __m128d sign = _mm_castsi128_pd(_mm_setr_epi32(0, 0, 0, int(0x80000000)));
    return _mm_div_pd(_mm_add_pd(a, _mm_xor_pd(b, sign)), m);
}

inline bool zeroOf(double v) { return v == 0; }
template <class C>
inline bool zeroOf(C v) {
    return v.re == 0 && v.im == 0;
}
inline int zeroLanes(__m128d d) { return _mm_movemask_pd(_mm_cmpeq_pd(d, _mm_setzero_pd())); }

// d[i] = dividend[i] / divisor[i] for T64f, T32fc, T64fc; returns whether a
// divisor was zero. Two blocks a step, each stored as soon as it is computed.
template <class T, class SD, class SN>
inline bool divideFullLoop(SD divisor, SN dividend, T* d, int n) {
    constexpr int W = lanesOf<T>();
    return withStores(d, static_cast<size_t>(n), [&](auto stream) {
        constexpr bool St = decltype(stream)::value;
        bool z = false;
        auto block = [&](int j) {
            const auto a = vload(divisor, j), b = vload(dividend, j);
            if constexpr (std::is_same<T, T64f>::value) {
                z |= zeroLanes(a) != 0;
                put<St>(d + j, _mm_div_pd(b, a));
            } else if constexpr (std::is_same<T, T64fc>::value) {
                z |= zeroLanes(a) == 3;
                put<St>(d + j, divComplex(b, a));
            } else {
                const int m = _mm_movemask_ps(_mm_cmpeq_ps(a, _mm_setzero_ps()));
                z |= (m & 3) == 3 || (m & 12) == 12;
                put<St>(d + j, divComplex(b, a));
            }
        };
        int i = 0;
        for (; i + 2 * W <= n; i += 2 * W) eachBlock<2, W>(block, i);
        for (; i + W <= n; i += W) block(i);
        for (; i < n; ++i) {
            const T a = at(divisor, i), b = at(dividend, i);
            z |= zeroOf(a);
            if constexpr (std::is_same<T, T64f>::value)
                d[i] = b / a;
            else
                d[i] = divComplex(b, a);
        }
        return z;
    });
}

// ---- integers through single precision ------------------------------------------

inline __m128 fload4(Arr<T8u> s, int i) {
    int32_t w;
    memcpy(&w, s.p + i, 4);
    return _mm_cvtepi32_ps(_mm_cvtepu8_epi32(_mm_cvtsi32_si128(w)));
}
inline __m128 fload4(Arr<T16s> s, int i) { return _mm_cvtepi32_ps(_mm_cvtepi16_epi32(sse::load64(s.p + i))); }
inline __m128 fload4(Arr<T16u> s, int i) { return _mm_cvtepi32_ps(_mm_cvtepu16_epi32(sse::load64(s.p + i))); }
inline __m128 fload4(Arr<T32s> s, int i) { return _mm_cvtepi32_ps(sse::loadu(s.p + i)); }
template <class T>
inline __m128 fload4(Bcast<T> s, int) {
    return _mm_set1_ps(static_cast<float>(s.v));
}

// 8-bit results pack through signed 16-bit lanes (see sse::pack8).
inline void store4(T8u* d, __m128i r) {
    const __m128i w = _mm_packus_epi16(_mm_packs_epi32(r, r), r);
    const int32_t v = _mm_cvtsi128_si32(w);
    memcpy(d, &v, 4);
}
inline void store4(T16s* d, __m128i r) { sse::store64(d, _mm_packs_epi32(r, r)); }
inline void store4(T16u* d, __m128i r) { sse::store64(d, _mm_packus_epi32(r, r)); }
inline void store4(T32s* d, __m128i r) { sse::storeu(d, r); }

template <class TD>
inline void store8(TD* d, __m128i r0, __m128i r1) { sse::pack8(d, r0, r1); }
inline void store8(T32s* d, __m128i r0, __m128i r1) {
    sse::storeu(d, r0);
    sse::storeu(d + 4, r1);
}
template <class TD>
inline void store16(TD* d, __m128i r0, __m128i r1, __m128i r2, __m128i r3) {
    store8(d, r0, r1);
    store8(d + 8, r2, r3);
}
inline void store16(T8u* d, __m128i r0, __m128i r1, __m128i r2, __m128i r3) { sse::pack16(d, r0, r1, r2, r3); }

// Whether none of sixteen divisors from i on is zero, tested on the
// integers as they lie in memory: one compare for 8-bit divisors.
template <class T>
inline bool noZero16(Arr<T> s, int i) {
    const __m128i zero = _mm_setzero_si128();
    __m128i z = zero;
    for (int k = 0; k < int(sizeof(T)); ++k) {
        const __m128i v = sse::loadu(s.p + i + k * (16 / int(sizeof(T))));
        if constexpr (sizeof(T) == 1) z = _mm_cmpeq_epi8(v, zero);
        else if constexpr (sizeof(T) == 2) z = _mm_or_si128(z, _mm_cmpeq_epi16(v, zero));
        else z = _mm_or_si128(z, _mm_cmpeq_epi32(v, zero));
    }
    return _mm_movemask_epi8(z) == 0;
}
template <class T>
inline bool noZero16(Bcast<T> s, int) {
    return s.v != 0;
}

// The mode argument: the processor's setting, or an explicit rounding mode.
enum : int { kRoundCurrent = -1 };

template <class TD>
constexpr float floatLo() {
    return static_cast<float>(Range<TD>::lo);
}
// The largest value that rounds inside the range for 8- and 16-bit types;
// for T32s values from 2^31 on are handled apart.
template <class TD>
constexpr float floatHi() {
    return sizeof(TD) < 4 ? static_cast<float>(Range<TD>::hi) : 2147483520.0f;
}

// Scalar twin. q * scale is exact for the scale factors the families pass.
template <class TD, int Mode>
inline TD divScaled(float divisor, float dividend, float scale) {
    if (divisor == 0.0f)
        return static_cast<TD>(dividend > 0 ? Range<TD>::hi : dividend < 0 ? Range<TD>::lo : 0);
    const float v = (dividend / divisor) * scale;
    if constexpr (Mode == kRoundCurrent) {
        if (sizeof(TD) == 4 && v >= 2147483648.0f) return static_cast<TD>(Range<TD>::hi);
        const float c = v < floatLo<TD>() ? floatLo<TD>() : v > floatHi<TD>() ? floatHi<TD>() : v;
        return static_cast<TD>(_mm_cvtss_si32(_mm_set_ss(c)));
    } else {
        return saturateIntegral<TD>(roundByMode(static_cast<double>(v), Mode));
    }
}

// Rounded to an integral value, ties away from zero: truncate, then step
// away when |v - t| >= 1/2.
inline __m128 roundHalfAway(__m128 v) {
    const __m128 t = _mm_round_ps(v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    const __m128 absMask = _mm_castsi128_ps(_mm_set1_epi32(0x7fffffff));
    const __m128 far = _mm_cmpge_ps(_mm_and_ps(_mm_sub_ps(v, t), absMask), _mm_set1_ps(0.5f));
    const __m128 step = _mm_or_ps(_mm_set1_ps(1.0f), _mm_andnot_ps(absMask, v));  // +-1 by the sign of v
    return _mm_add_ps(t, _mm_and_ps(far, step));
}

// divideIntLoop's steps. Clamp: the quotients are clamped to the range in
// single precision; without, they must stay inside the int32 range, and the
// 8- and 16-bit packs saturate them.
template <class TD, int Mode, bool Clamp, class SD, class SN>
inline bool divideIntSteps(SD divisor, SN dividend, TD* d, int n, int sf) {
    const float scale = ldexpf(1.0f, -sf);
    const __m128 vscale = _mm_set1_ps(scale), zero = _mm_setzero_ps();
    const __m128 lo = _mm_set1_ps(floatLo<TD>()), hi = _mm_set1_ps(floatHi<TD>());
    const __m128i ilo = _mm_set1_epi32(static_cast<int>(Range<TD>::lo));
    const __m128i ihi = _mm_set1_epi32(static_cast<int>(Range<TD>::hi));
    // The rounded, saturated quotients of four lanes whose divisors are not zero.
    auto quotients = [&](__m128 a, __m128 b) {
        // The clamp's bounds are integers, so it commutes with the rounding.
        // Toward zero is the truncating conversion; to nearest (ties to
        // even) the converting one, under the setting the caller forced.
        const __m128 v = _mm_mul_ps(_mm_div_ps(b, a), vscale);
        const __m128 w = Mode == VEK_ROUND_HALF_AWAY ? roundHalfAway(v) : v;
        const __m128 c = Clamp ? _mm_max_ps(_mm_min_ps(w, hi), lo) : w;
        constexpr bool converting = Mode == kRoundCurrent || Mode == VEK_ROUND_NEAR;
        __m128i r = converting ? _mm_cvtps_epi32(c) : _mm_cvttps_epi32(c);
        if constexpr (sizeof(TD) == 4)
            r = _mm_blendv_epi8(r, ihi, _mm_castps_si128(_mm_cmpge_ps(v, _mm_set1_ps(2147483648.0f))));
        return r;
    };
    // Any four lanes: zero divisors take 1 in their place for the division
    // (no infinity, no flag), then give 0, or the end of the range by the
    // dividend's sign.
    int zeroMask = 0;
    auto any = [&](__m128 a, __m128 b) {
        const __m128 z = _mm_cmpeq_ps(a, zero);
        zeroMask |= _mm_movemask_ps(z);
        const __m128i r = quotients(_mm_or_ps(a, _mm_and_ps(z, _mm_set1_ps(1.0f))), b);
        const __m128i sub = _mm_or_si128(_mm_and_si128(_mm_castps_si128(_mm_cmpgt_ps(b, zero)), ihi),
                                         _mm_and_si128(_mm_castps_si128(_mm_cmplt_ps(b, zero)), ilo));
        return _mm_blendv_epi8(r, sub, _mm_castps_si128(z));
    };
    int i = 0;
    // Sixteen lanes a step; a step without a zero divisor skips the
    // substitution.
    for (; i + 16 <= n; i += 16) {
        auto four = [&](int k, auto f) { return f(fload4(divisor, i + k), fload4(dividend, i + k)); };
        if (noZero16(divisor, i))
            store16(d + i, four(0, quotients), four(4, quotients), four(8, quotients), four(12, quotients));
        else
            store16(d + i, four(0, any), four(4, any), four(8, any), four(12, any));
    }
    for (; i + 4 <= n; i += 4) store4(d + i, any(fload4(divisor, i), fload4(dividend, i)));
    for (; i < n; ++i) {
        const float a = static_cast<float>(at(divisor, i)), b = static_cast<float>(at(dividend, i));
        zeroMask |= a == 0.0f;
        d[i] = divScaled<TD, Mode>(a, b, scale);
    }
    return zeroMask != 0;
}

// d[i] = dividend[i] / divisor[i] * 2^-sf, rounded and saturated; returns
// whether a divisor was zero. Requires 2^-sf * |quotient| to stay normal.
// Mode kRoundCurrent rounds by the processor's setting; for the explicit
// modes the caller sets it to nearest first.
// A quotient is at most its dividend in magnitude (a divisor that is not
// zero is at least 1): for 8- and 16-bit dividends below 2^16, so from
// sf = -14 on below 2^31, needing no clamp before the packs of 8- and
// 16-bit destinations.
template <class TD, int Mode, class SD, class SN>
inline bool divideIntLoop(SD divisor, SN dividend, TD* d, int n, int sf) {
    constexpr bool packs = sizeof(TD) < 4 && sizeof(typename SN::Elem) <= 2;
    if (packs && sf >= -14) return divideIntSteps<TD, Mode, false>(divisor, dividend, d, n, sf);
    return divideIntSteps<TD, Mode, true>(divisor, dividend, d, n, sf);
}

// Scalar twin of the whole loop, for the kernel tests.
template <class TD, int Mode, class SD, class SN>
inline bool divideIntLoopScalar(SD divisor, SN dividend, TD* d, int n, int sf) {
    const float scale = ldexpf(1.0f, -sf);
    bool z = false;
    for (int i = 0; i < n; ++i) {
        const float a = static_cast<float>(at(divisor, i)), b = static_cast<float>(at(dividend, i));
        z |= a == 0.0f;
        d[i] = divScaled<TD, Mode>(a, b, scale);
    }
    return z;
}

}  // namespace kern
}  // namespace veks

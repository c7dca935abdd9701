// Loops that turn single- or double-precision values into 8-, 16- and 32-bit
// integers: optional multiplication by a power of two, clamp to the
// destination range (a NaN meets the upper clamp and takes it), rounding
// by mode, store. Mode is a template parameter:
//   0  toward zero (truncating conversion, any rounding setting);
//   1  to nearest, ties to even: the caller runs the loop with the
//      processor's rounding set to nearest;
//   2  to nearest, ties away from zero: x plus 0.5 with the sign of x,
//      truncated; the caller runs the loop with the rounding set toward
//      zero, so that the addition itself never rounds away from zero.
// The factor is a normal power of two, so the product is exact unless it
// leaves the finite range, where the clamp gives the same result anyway.
// Every loop has a scalar twin (head and tail) giving identical results.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include "store.h"
#include "frame/detail/rounding.h"
#include "frame/detail/traits.h"

namespace veks {
namespace kern {

// The rounding-mode argument that a kernel mode stands for.
constexpr int modeArg(int m) { return m == 0 ? VEK_ROUND_ZERO : m == 1 ? VEK_ROUND_NEAR : VEK_ROUND_HALF_AWAY; }

// Scalar twin: exact double arithmetic, independent of the rounding setting.
template <class TSrc, class TDst, int M, bool Scaled>
inline void floatToIntScalar(const TSrc* pSrc, TDst* pDst, size_t n, TSrc factor) {
    for (size_t i = 0; i < n; ++i) {
        TSrc x = pSrc[i];
        if (Scaled) x *= factor;
        pDst[i] = static_cast<TDst>(convertRound(x, modeArg(M), 0, Range<TDst>::lo, Range<TDst>::hi));
    }
}

template <int M>
inline __m128i roundToInt(__m128 y) {
    if constexpr (M == 0) {
        return _mm_cvttps_epi32(y);
    } else if constexpr (M == 1) {
        return _mm_cvtps_epi32(y);
    } else {
        // y + 0.5 with the sign of y (so -0 takes -0.5), rounded toward
        // zero: the magnitude |y| + 0.5 rounded down, whichever the sign,
        // then truncated.
        const __m128 half = _mm_or_ps(_mm_and_ps(y, _mm_set1_ps(-0.0f)), _mm_set1_ps(0.5f));
        return _mm_cvttps_epi32(_mm_add_ps(y, half));
    }
}

// Two doubles to two int32 lanes (low half of the result), modes 0 and 1.
template <int M>
inline __m128i roundToInt(__m128d y) {
    if constexpr (M == 0) {
        return _mm_cvttpd_epi32(y);
    } else {
        static_assert(M == 1, "half away from zero is done on four lanes at once");
        return _mm_cvtpd_epi32(y);
    }
}

// Four source values to four int32 lanes inside TDst's range.
template <class TSrc, class TDst, int M, bool Scaled>
struct Quad;

template <class TDst, int M, bool Scaled>
struct Quad<float, TDst, M, Scaled> {
    __m128 f;
    explicit Quad(float factor) : f(_mm_set1_ps(factor)) {}
    __m128i operator()(const float* p) const {
        __m128 y = _mm_loadu_ps(p);
        if (Scaled) y = _mm_mul_ps(y, f);
        if constexpr (sizeof(TDst) == 4) {
            // 2^31 is no float's rounded neighbour: at or above it (and NaN)
            // the result is the maximum; below -2^31 the conversion's own
            // out-of-range answer is already the minimum.
            const __m128 big = _mm_cmpnlt_ps(y, _mm_set1_ps(2147483648.0f));
            return _mm_blendv_epi8(roundToInt<M>(y), _mm_set1_epi32(0x7FFFFFFF), _mm_castps_si128(big));
        } else {
            // Only the upper clamp is needed: below the range the conversion
            // gives a negative lane (at worst its out-of-range answer
            // -2^31), which the saturating packs take to the minimum.
            y = _mm_min_ps(y, _mm_set1_ps(static_cast<float>(Range<TDst>::hi)));  // NaN takes the bound
            return roundToInt<M>(y);
        }
    }
};

template <class TDst, int M, bool Scaled>
struct Quad<double, TDst, M, Scaled> {
    __m128d f;
    explicit Quad(double factor) : f(_mm_set1_pd(factor)) {}
    // Clamped from above (NaN takes the bound); below the range the
    // conversion's out-of-range answer -2^31 is the minimum or packs to it.
    __m128d load(const double* p) const {
        __m128d y = _mm_loadu_pd(p);
        if (Scaled) y = _mm_mul_pd(y, f);
        return _mm_min_pd(y, _mm_set1_pd(static_cast<double>(Range<TDst>::hi)));
    }
    __m128i operator()(const double* p) const {
        const __m128d a = load(p), b = load(p + 2);
        if constexpr (M == 2) {
            // As for single precision: y plus 0.5 with y's sign, rounded
            // toward zero, truncated. Here the 0.5 is blended by the sign
            // bit (one instruction where the single-precision form takes
            // two); each form measured the faster for its precision.
            const __m128d pos = _mm_set1_pd(0.5), neg = _mm_set1_pd(-0.5);
            const __m128i ia = _mm_cvttpd_epi32(_mm_add_pd(a, _mm_blendv_pd(pos, neg, a)));
            const __m128i ib = _mm_cvttpd_epi32(_mm_add_pd(b, _mm_blendv_pd(pos, neg, b)));
            return _mm_unpacklo_epi64(ia, ib);
        } else {
            return _mm_unpacklo_epi64(roundToInt<M>(a), roundToInt<M>(b));
        }
    }
};

// pSrc[0, n) to pDst, TDst one of T8u, T8s, T16u, T16s, T32s.
template <class TSrc, class TDst, int M, bool Scaled>
inline void floatToInt(const TSrc* pSrc, TDst* pDst, size_t n, TSrc factor) {
    const Quad<TSrc, TDst, M, Scaled> q(factor);
    auto loop = [&q](auto stream, const TSrc* s, TDst* dst, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        __m128i* d = reinterpret_cast<__m128i*>(dst);
        if constexpr (sizeof(TDst) == 4) {
            for (; i + 8 <= m; i += 8, d += 2) {
                const __m128i a = q(s + i), b = q(s + i + 4);
                put<S>(d, a);
                put<S>(d + 1, b);
            }
        } else if constexpr (sizeof(TDst) == 2) {
            for (; i + 8 <= m; i += 8, ++d) {
                const __m128i a = q(s + i), b = q(s + i + 4);
                put<S>(d, std::is_signed<TDst>::value ? _mm_packs_epi32(a, b) : _mm_packus_epi32(a, b));
            }
        } else {
            for (; i + 16 <= m; i += 16, ++d) {
                const __m128i a = _mm_packs_epi32(q(s + i), q(s + i + 4));
                const __m128i b = _mm_packs_epi32(q(s + i + 8), q(s + i + 12));
                put<S>(d, std::is_signed<TDst>::value ? _mm_packs_epi16(a, b) : _mm_packus_epi16(a, b));
            }
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [factor](const TSrc* s, TDst* d, size_t m) {
        floatToIntScalar<TSrc, TDst, M, Scaled>(s, d, m, factor);
    });
}

}  // namespace kern
}  // namespace veks

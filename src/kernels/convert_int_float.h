// Loops that turn 8-, 16-, 32- and 64-bit integers into single- or
// double-precision values, optionally multiplied by a power of two, and
// the loops between the two floating types. Conversions that can round
// (32-bit integers to single precision, 64-bit integers to double, double
// to single) round by the processor's setting, which the caller sets to
// nearest. The factor is a normal power of two and the caller keeps the
// product in the normal range, so scaling after the conversion equals
// rounding the exact scaled value once. Each loop's scalar twin does its
// head and tail.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "store.h"
#include "veks.h"

namespace veks {
namespace kern {

// 64-bit integer to double with a single rounding: both halves convert
// exactly and the sum rounds once.
inline double int64ToDouble(int64_t x) {
    const int32_t hi = static_cast<int32_t>(x >> 32);
    const uint32_t lo = static_cast<uint32_t>(x);
    return static_cast<double>(hi) * 4294967296.0 + static_cast<double>(lo);
}

template <class TSrc, class TDst>
inline TDst toFloat(TSrc x) {
    if constexpr (sizeof(TSrc) == 8)
        return static_cast<TDst>(int64ToDouble(x));
    else
        return static_cast<TDst>(x);
}

template <class TSrc, class TDst, bool Scaled>
inline void intToFloatScalar(const TSrc* pSrc, TDst* pDst, size_t n, TDst factor) {
    for (size_t i = 0; i < n; ++i) {
        TDst v = toFloat<TSrc, TDst>(pSrc[i]);
        if (Scaled) v *= factor;
        pDst[i] = v;
    }
}

// Four source integers starting at p widened to int32 lanes.
template <class TSrc>
inline __m128i load4(const TSrc* p) {
    if constexpr (sizeof(TSrc) == 4) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    } else if constexpr (sizeof(TSrc) == 2) {
        const __m128i v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        return std::is_signed<TSrc>::value ? _mm_cvtepi16_epi32(v) : _mm_cvtepu16_epi32(v);
    } else {
        int32_t w;
        __builtin_memcpy(&w, p, 4);
        const __m128i v = _mm_cvtsi32_si128(w);
        return std::is_signed<TSrc>::value ? _mm_cvtepi8_epi32(v) : _mm_cvtepu8_epi32(v);
    }
}

template <bool S>
inline void store4(float* p, __m128i v, __m128 f, bool scaled) {
    __m128 y = _mm_cvtepi32_ps(v);
    if (scaled) y = _mm_mul_ps(y, f);
    put<S>(p, y);
}

// Loads folded into the widening and converting instructions. Written out
// because the compiler keeps a separate 8-byte load in front of each
// conversion, and merges two neighbouring 8-byte loads into one 16-byte
// load that then costs a shuffle to split: in these store-bound loops every
// extra instruction shows.
// The 8 bytes the instruction reads, typed so that they may alias anything.
typedef int64_t __attribute__((may_alias)) Bytes8;

inline __m128i widen4x16s(const T16s* p) {  // four 16-bit integers to int32 lanes
    __m128i r;
    __asm__("pmovsxwd %1, %0" : "=x"(r) : "m"(*reinterpret_cast<const Bytes8*>(p)));
    return r;
}
inline __m128d pairToDouble(const T32s* p) {
    __m128d r;
    __asm__("cvtdq2pd %1, %0" : "=x"(r) : "m"(*reinterpret_cast<const Bytes8*>(p)));
    return r;
}
inline __m128d pairToDouble(const float* p) {
    __m128d r;
    __asm__("cvtps2pd %1, %0" : "=x"(r) : "m"(*reinterpret_cast<const Bytes8*>(p)));
    return r;
}

// Double destinations: every 16-byte store holds two results, so the loop
// is bound by its stores. Sixteen elements per step keep the loop overhead
// small; 32-bit integers convert straight from 8-byte loads (no shuffle),
// 16-bit ones widen four at a time and convert the upper pair after one
// shuffle.
template <bool S, bool Scaled, class TSrc>
inline size_t intToDoubleLoop(const TSrc* s, double* d, size_t m, __m128d f) {
    size_t i = 0;
    auto out = [f](double* p, __m128d y) {
        if (Scaled) y = _mm_mul_pd(y, f);
        put<S>(p, y);
    };
    for (; i + 16 <= m; i += 16) {
        for (size_t k = 0; k < 16; k += 4) {
            if constexpr (std::is_same<TSrc, T32s>::value) {
                out(d + i + k, pairToDouble(s + i + k));
                out(d + i + k + 2, pairToDouble(s + i + k + 2));
            } else {
                const __m128i v = std::is_same<TSrc, T16s>::value ? widen4x16s(reinterpret_cast<const T16s*>(s + i + k))
                                                                   : load4(s + i + k);
                out(d + i + k, _mm_cvtepi32_pd(v));
                out(d + i + k + 2, _mm_cvtepi32_pd(_mm_unpackhi_epi64(v, v)));
            }
        }
    }
    return i;
}

// Two 64-bit integers to two doubles, rounding once as int64ToDouble does:
// the low halves go through a biased signed conversion, the high halves
// convert exactly and carry 2^32.
inline __m128d int64PairToDouble(__m128i v) {
    const __m128i his = _mm_shuffle_epi32(v, _MM_SHUFFLE(3, 1, 3, 1));
    const __m128i los = _mm_xor_si128(_mm_shuffle_epi32(v, _MM_SHUFFLE(2, 0, 2, 0)), _mm_set1_epi32(INT32_MIN));
    const __m128d hi = _mm_mul_pd(_mm_cvtepi32_pd(his), _mm_set1_pd(4294967296.0));
    const __m128d lo = _mm_add_pd(_mm_cvtepi32_pd(los), _mm_set1_pd(2147483648.0));  // exact
    return _mm_add_pd(hi, lo);
}

// pSrc[0, n) to pDst, TSrc one of T8u, T8s, T16u, T16s, T32s, T64s.
template <class TSrc, class TDst, bool Scaled>
inline void intToFloat(const TSrc* pSrc, TDst* pDst, size_t n, TDst factor) {
    auto loop = [factor](auto stream, const TSrc* s, TDst* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        if constexpr (sizeof(TSrc) == 8) {
            const __m128d f = _mm_set1_pd(factor);
            for (; i + 2 <= m; i += 2) {
                __m128d y = int64PairToDouble(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i)));
                if (Scaled) y = _mm_mul_pd(y, f);
                put<S>(d + i, y);
            }
        } else if constexpr (sizeof(TDst) == 8) {
            i = intToDoubleLoop<S, Scaled>(s, d, m, _mm_set1_pd(factor));
        } else {
            const __m128 f = _mm_set1_ps(factor);
            for (; i + 8 <= m; i += 8) {
                const __m128i a = load4(s + i), b = load4(s + i + 4);
                store4<S>(d + i, a, f, Scaled);
                store4<S>(d + i + 4, b, f, Scaled);
            }
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [factor](const TSrc* s, TDst* d, size_t m) {
        intToFloatScalar<TSrc, TDst, Scaled>(s, d, m, factor);
    });
}

// Single to double (exact) and double to single (rounded by the setting).
inline void floatToDouble(const float* pSrc, double* pDst, size_t n) {
    auto loop = [](auto stream, const float* s, double* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        // Pairs converted straight from 8-byte loads (no shuffle), sixteen
        // elements per step: the loop is bound by its stores.
        for (; i + 16 <= m; i += 16)
            for (size_t k = 0; k < 16; k += 2)
                put<S>(d + i + k, pairToDouble(s + i + k));
        return i;
    };
    drive(pSrc, pDst, n, loop, [](const float* s, double* d, size_t m) {
        for (size_t i = 0; i < m; ++i) d[i] = s[i];
    });
}

inline void doubleToFloat(const double* pSrc, float* pDst, size_t n) {
    auto loop = [](auto stream, const double* s, float* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        for (; i + 16 <= m; i += 16) {
            for (size_t k = 0; k < 16; k += 4) {
                const __m128 a = _mm_cvtpd_ps(_mm_loadu_pd(s + i + k)), b = _mm_cvtpd_ps(_mm_loadu_pd(s + i + k + 2));
                put<S>(d + i + k, _mm_movelh_ps(a, b));
            }
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [](const double* s, float* d, size_t m) {
        for (size_t i = 0; i < m; ++i) d[i] = static_cast<float>(s[i]);
    });
}

}  // namespace kern
}  // namespace veks

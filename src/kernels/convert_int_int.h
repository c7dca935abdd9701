// Loops between integer types: sign-extending widening (8s to 16s, 16s to
// 32s) and 32-bit to 16-bit narrowing with the library's scale-factor rule.
// Each loop's scalar twin does its head and tail.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include "convert_store.h"
#include "frame/detail/scale.h"

namespace veks {
namespace kern {

inline void widen8s16s(const T8s* pSrc, T16s* pDst, size_t n) {
    auto loop = [](auto stream, const T8s* s, T16s* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        for (; i + 16 <= m; i += 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i));
            put<S>(d + i, _mm_cvtepi8_epi16(v));
            put<S>(d + i + 8, _mm_cvtepi8_epi16(_mm_unpackhi_epi64(v, v)));
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [](const T8s* s, T16s* d, size_t m) {
        for (size_t i = 0; i < m; ++i) d[i] = s[i];
    });
}

inline void widen16s32s(const T16s* pSrc, T32s* pDst, size_t n) {
    auto loop = [](auto stream, const T16s* s, T32s* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        for (; i + 8 <= m; i += 8) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i));
            put<S>(d + i, _mm_cvtepi16_epi32(v));
            put<S>(d + i + 4, _mm_cvtepi16_epi32(_mm_unpackhi_epi64(v, v)));
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [](const T16s* s, T32s* d, size_t m) {
        for (size_t i = 0; i < m; ++i) d[i] = s[i];
    });
}

// 32s to 16s by the scale rule, for -15 <= sf <= 31 (beyond, the family's
// shortcuts give the same results). Lanes end in or beyond the 16-bit range
// only where the rule saturates, and the pack saturates them.
//   sf > 0: q = s >> sf (floor) plus one where the remainder passes half,
//           or equals it with q odd;
//   sf < 0: s clamped to [lo >> k, (hi >> k) + 1], then shifted by k.
inline __m128i scale32to16Lanes(__m128i s, int sf) {
    if (sf > 0) {
        const __m128i cnt = _mm_cvtsi32_si128(sf);
        const __m128i q = _mm_sra_epi32(s, cnt);
        const __m128i mask = _mm_set1_epi32(static_cast<int32_t>((1u << sf) - 1u));
        const __m128i r = _mm_and_si128(s, mask);
        const __m128i odd = _mm_and_si128(q, _mm_set1_epi32(1));
        // r + odd > h, written as r + odd - 1 > h - 1 so that nothing overflows.
        const __m128i up = _mm_cmpgt_epi32(_mm_sub_epi32(_mm_add_epi32(r, odd), _mm_set1_epi32(1)),
                                           _mm_set1_epi32(static_cast<int32_t>((1u << (sf - 1)) - 1u)));
        return _mm_sub_epi32(q, up);
    }
    if (sf < 0) {
        const int k = -sf;
        s = _mm_max_epi32(s, _mm_set1_epi32(-32768 >> k));
        s = _mm_min_epi32(s, _mm_set1_epi32((32767 >> k) + 1));
        return _mm_sll_epi32(s, _mm_cvtsi32_si128(k));
    }
    return s;
}

inline void scale32s16s(const T32s* pSrc, T16s* pDst, size_t n, int sf) {
    auto loop = [sf](auto stream, const T32s* s, T16s* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        for (; i + 8 <= m; i += 8) {
            const __m128i a = scale32to16Lanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i)), sf);
            const __m128i b = scale32to16Lanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i + 4)), sf);
            put<S>(d + i, _mm_packs_epi32(a, b));
        }
        return i;
    };
    drive(pSrc, pDst, n, loop, [sf](const T32s* s, T16s* d, size_t m) {
        for (size_t i = 0; i < m; ++i) d[i] = scaleSat<T16s>(s[i], sf);
    });
}

}  // namespace kern
}  // namespace veks

// Loops between integer types: sign-extending widening (8s to 16s, 16s to
// 32s) and 32-bit to 16-bit narrowing with the library's scale-factor rule.
// Each loop's scalar twin does its head and tail.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include "store.h"
#include "frame/detail/scale.h"
#include "kernels/sse/scale.h"

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

inline void scale32s16s(const T32s* pSrc, T16s* pDst, size_t n, int sf) {
    auto loop = [sf](auto stream, const T32s* s, T16s* d, size_t m) {
        constexpr bool S = decltype(stream)::value;
        size_t i = 0;
        for (; i + 8 <= m; i += 8) {
            const __m128i a = sse::scale32to16Lanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i)), sf);
            const __m128i b = sse::scale32to16Lanes(_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + i + 4)), sf);
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

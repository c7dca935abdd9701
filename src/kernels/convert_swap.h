// Byte-order reversal of 2-, 3-, 4- and 8-byte elements. Every loop loads a
// block before it stores it, so source and destination may be the same
// buffer. The 3-byte loop moves five elements per 16-byte block and writes
// the block's last byte back as it was read (the next block rewrites it).
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

namespace veks {
namespace kern {

template <size_t W>
inline __m128i swapMask() {
    if constexpr (W == 2) return _mm_setr_epi8(1, 0, 3, 2, 5, 4, 7, 6, 9, 8, 11, 10, 13, 12, 15, 14);
    if constexpr (W == 3) return _mm_setr_epi8(2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, 15);
    if constexpr (W == 4) return _mm_setr_epi8(3, 2, 1, 0, 7, 6, 5, 4, 11, 10, 9, 8, 15, 14, 13, 12);
    if constexpr (W == 8) return _mm_setr_epi8(7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8);
}

template <size_t W>
inline void swapOne(const uint8_t* s, uint8_t* d) {
    uint8_t t[W];
    for (size_t k = 0; k < W; ++k) t[k] = s[W - 1 - k];
    for (size_t k = 0; k < W; ++k) d[k] = t[k];
}

// n elements of W bytes from pSrc to pDst (which may equal pSrc).
template <size_t W>
inline void swapBytes(const uint8_t* pSrc, uint8_t* pDst, size_t n) {
    const __m128i mask = swapMask<W>();
    size_t i = 0;
    if constexpr (W == 3) {
        for (; i + 6 <= n; i += 5) {  // 16 bytes at 3i stay inside 3n
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSrc + 3 * i));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(pDst + 3 * i), _mm_shuffle_epi8(v, mask));
        }
    } else {
        constexpr size_t kPer = 16 / W;
        for (; i + 2 * kPer <= n; i += 2 * kPer) {
            const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSrc + W * i));
            const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSrc + W * i + 16));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(pDst + W * i), _mm_shuffle_epi8(a, mask));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(pDst + W * i + 16), _mm_shuffle_epi8(b, mask));
        }
    }
    for (; i < n; ++i) swapOne<W>(pSrc + W * i, pDst + W * i);
}

}  // namespace kern
}  // namespace veks

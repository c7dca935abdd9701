// Byte-level copy, move and fill loops shared by every element width.
//
// The C library's memcpy, memmove and memset are the fastest copies on the
// build's processors (they pick their own block sizes and streaming stores),
// so plain copies and zero fills go straight to them. Filling with a pattern
// of 2, 4, 8 or 16 bytes has no library routine: fillPattern stores 16-byte
// blocks at aligned addresses, with streaming stores for fills larger than
// the caches, and fillPatternScalar is its twin and oracle.
#pragma once

#include <emmintrin.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

namespace veks {
namespace kern {

inline void copyBytes(void* dst, const void* src, size_t n) { memcpy(dst, src, n); }

// Overlap is allowed; the destination ends holding the source's former bytes.
inline void moveBytes(void* dst, const void* src, size_t n) {
    if (dst != src) memmove(dst, src, n);
}

inline void fillBytes(void* dst, unsigned char value, size_t n) { memset(dst, value, n); }

// Writes `count` copies of the W-byte pattern, byte for byte.
template <size_t W>
inline void fillPatternScalar(void* dst, const void* pattern, size_t count) {
    unsigned char* d = static_cast<unsigned char*>(dst);
    const unsigned char* p = static_cast<const unsigned char*>(pattern);
    for (size_t i = 0; i < count; ++i)
        for (size_t b = 0; b < W; ++b) d[i * W + b] = p[b];
}

// Above this many bytes a fill would only push useful data out of the caches:
// the stores bypass them.
constexpr size_t kStreamingFillBytes = size_t(4) << 20;

template <size_t W>
inline void fillPattern(void* dst, const void* pattern, size_t count) {
    static_assert(W == 2 || W == 4 || W == 8 || W == 16, "pattern widths divide 16");
    const size_t n = count * W;
    unsigned char* d = static_cast<unsigned char*>(dst);
    if (n < 32) {
        fillPatternScalar<W>(dst, pattern, count);
        return;
    }
    // 32 bytes of the repeated pattern; a 16-byte window starting at byte k
    // is the pattern as seen from a destination byte k bytes into an element.
    alignas(16) unsigned char rep[32];
    for (size_t i = 0; i < 32; ++i) rep[i] = static_cast<const unsigned char*>(pattern)[i % W];
    const __m128i first = _mm_load_si128(reinterpret_cast<const __m128i*>(rep));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), first);
    // From the first 16-byte boundary on, every store is aligned.
    const size_t head = (16 - (reinterpret_cast<uintptr_t>(d) & 15)) & 15;
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rep + head % W));
    unsigned char* p = d + head;
    unsigned char* const end = d + n;
    if (n >= kStreamingFillBytes) {
        for (; p + 64 <= end; p += 64) {
            _mm_stream_si128(reinterpret_cast<__m128i*>(p), v);
            _mm_stream_si128(reinterpret_cast<__m128i*>(p + 16), v);
            _mm_stream_si128(reinterpret_cast<__m128i*>(p + 32), v);
            _mm_stream_si128(reinterpret_cast<__m128i*>(p + 48), v);
        }
        _mm_sfence();
    } else {
        for (; p + 64 <= end; p += 64) {
            _mm_store_si128(reinterpret_cast<__m128i*>(p), v);
            _mm_store_si128(reinterpret_cast<__m128i*>(p + 16), v);
            _mm_store_si128(reinterpret_cast<__m128i*>(p + 32), v);
            _mm_store_si128(reinterpret_cast<__m128i*>(p + 48), v);
        }
    }
    for (; p + 16 <= end; p += 16) _mm_store_si128(reinterpret_cast<__m128i*>(p), v);
    // W divides 16, so the last 16 bytes start on an element boundary.
    if (p < end) _mm_storeu_si128(reinterpret_cast<__m128i*>(end - 16), first);
}

}  // namespace kern
}  // namespace veks

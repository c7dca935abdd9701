// Byte-level copy, move and fill loops shared by every element width.
//
// The C library's memcpy, memmove and memset use stores wider than the 16
// bytes of this build and pick their own block sizes and streaming stores,
// so copies and zero fills above kSmallBytes go straight to them; below,
// where the call would cost more than the work, they are done here. Filling
// with a pattern of 2 or 4 bytes goes to the library's wide-character fill
// (its unit is 4 bytes on every target) up to the size where streaming
// stores take over (it has none: there it trails memset by a third). Other patterns
// have no library routine: fillPattern stores small fills
// directly, mid-sized ones at 16-byte aligned addresses, larger ones by
// copying a filled block along with memcpy, and fills larger than the caches
// with streaming stores. fillPatternScalar is its twin and oracle.
#pragma once

#include <stddef.h>
#include <stdint.h>
#include <string.h>
#include <tmmintrin.h>
#include <wchar.h>

#include <utility>

namespace veks {
namespace kern {

// Up to this many bytes the call into the C library costs more than the
// copy itself: the copy is done here, in 16-byte pieces. (At 256 bytes the
// library's wider stores already win by more than its call costs.)
constexpr size_t kSmallBytes = 128;

// K 16-byte pieces from the front and K from the back of n bytes, for
// 16 K <= n <= 32 K; all loaded before any is stored. Written without loops
// so that the compiler cannot turn it back into a library call.
template <size_t... I>
inline void copyFrontBack(unsigned char* d, const unsigned char* s, size_t n, std::index_sequence<I...>) {
    const __m128i front[] = {_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 16 * I))...};
    const size_t back = n - 16 * sizeof...(I);
    const __m128i rear[] = {_mm_loadu_si128(reinterpret_cast<const __m128i*>(s + back + 16 * I))...};
    (_mm_storeu_si128(reinterpret_cast<__m128i*>(d + 16 * I), front[I]), ...);
    (_mm_storeu_si128(reinterpret_cast<__m128i*>(d + back + 16 * I), rear[I]), ...);
}

// n in [1, kSmallBytes]. Every byte is loaded before the first store, so
// overlapping buffers are moved correctly too. Pieces at the front and at
// the back may overlap each other; they carry the same bytes.
inline void copySmall(unsigned char* d, const unsigned char* s, size_t n) {
    static_assert(kSmallBytes <= 128, "the largest piece set covers 128 bytes");
    if (n > 64) {
        copyFrontBack(d, s, n, std::make_index_sequence<4>());
    } else if (n > 32) {
        copyFrontBack(d, s, n, std::make_index_sequence<2>());
    } else if (n >= 16) {
        copyFrontBack(d, s, n, std::make_index_sequence<1>());
    } else if (n >= 8) {
        const __m128i a = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s));
        const __m128i b = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(s + n - 8));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), a);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d + n - 8), b);
    } else if (n >= 4) {
        uint32_t a, b;
        memcpy(&a, s, 4);
        memcpy(&b, s + n - 4, 4);
        memcpy(d, &a, 4);
        memcpy(d + n - 4, &b, 4);
    } else {
        const unsigned char a = s[0], b = s[n / 2], c = s[n - 1];
        d[0] = a;
        d[n / 2] = b;
        d[n - 1] = c;
    }
}

inline void copyBytes(void* dst, const void* src, size_t n) {
    if (n <= kSmallBytes) {
        copySmall(static_cast<unsigned char*>(dst), static_cast<const unsigned char*>(src), n);
        return;
    }
    memcpy(dst, src, n);
}

// Overlap is allowed; the destination ends holding the source's former bytes.
inline void moveBytes(void* dst, const void* src, size_t n) {
    if (dst == src) return;
    if (n <= kSmallBytes) {
        copySmall(static_cast<unsigned char*>(dst), static_cast<const unsigned char*>(src), n);
        return;
    }
    memmove(dst, src, n);
}

// n in [1, kSmallBytes]: the 16-byte pattern v stored so that every byte
// of the destination gets v's byte at its offset modulo 16 from d, which is
// right for any pattern whose width divides both 16 and n.
template <size_t... I>
inline void fillFrontBack(unsigned char* d, __m128i v, size_t n, std::index_sequence<I...>) {
    (_mm_storeu_si128(reinterpret_cast<__m128i*>(d + 16 * I), v), ...);
    (_mm_storeu_si128(reinterpret_cast<__m128i*>(d + n - 16 * sizeof...(I) + 16 * I), v), ...);
}

inline void fillSmall(unsigned char* d, __m128i v, size_t n) {
    if (n > 64) {
        fillFrontBack(d, v, n, std::make_index_sequence<4>());
    } else if (n > 32) {
        fillFrontBack(d, v, n, std::make_index_sequence<2>());
    } else if (n >= 16) {
        fillFrontBack(d, v, n, std::make_index_sequence<1>());
    } else if (n >= 8) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), v);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d + n - 8), v);
    } else {
        unsigned char b[16];
        _mm_storeu_si128(reinterpret_cast<__m128i*>(b), v);
        for (size_t i = 0; i < n; ++i) d[i] = b[i];
    }
}

inline void fillBytes(void* dst, unsigned char value, size_t n) {
    if (n <= kSmallBytes) {
        fillSmall(static_cast<unsigned char*>(dst), _mm_set1_epi8(static_cast<char>(value)), n);
        return;
    }
    memset(dst, value, n);
}

// Writes `count` copies of the W-byte pattern, byte for byte.
template <size_t W>
inline void fillPatternScalar(void* dst, const void* pattern, size_t count) {
    unsigned char* d = static_cast<unsigned char*>(dst);
    const unsigned char* p = static_cast<const unsigned char*>(pattern);
    for (size_t i = 0; i < count; ++i)
        for (size_t b = 0; b < W; ++b) d[i * W + b] = p[b];
}

// Above this many bytes a fill would only push useful data out of the caches
// (the last-level caches of current servers hold tens of megabytes): the
// stores bypass them.
constexpr size_t kStreamingFillBytes = size_t(32) << 20;

// From kPatternDoubling bytes up to the streaming size a pattern fill that
// has no string fill of its width (16 bytes; 8 bytes on 32-bit x86) writes
// one block of kPatternBlock bytes, doubles it up to kPatternSource bytes and
// copies that source along.
constexpr size_t kPatternBlock = kSmallBytes;
constexpr size_t kPatternDoubling = 2048;
constexpr size_t kPatternSource = size_t(16) << 10;

// The processor's string fill (rep stos) of `count` 4- or 8-byte units, the
// fill memset itself uses from a few kilobytes on: it keeps pace with memset
// at every size. The wide fill below is faster up to the size of the
// second-level cache (0.6x memset) but trails it by 10 to 20 % beyond, so 4-byte
// units take the string fill from kStringFillFrom bytes on.
constexpr size_t kStringFillFrom = size_t(1) << 20;

inline void fillString4(unsigned char* d, uint32_t unit, size_t count) {
    __asm__ volatile("rep stosl" : "+D"(d), "+c"(count) : "a"(unit) : "memory");
}
#if defined(__x86_64__)
inline void fillString8(unsigned char* d, uint64_t unit, size_t count) {
    __asm__ volatile("rep stosq" : "+D"(d), "+c"(count) : "a"(unit) : "memory");
}
#endif

// n bytes (a multiple of 2) at a 4-byte aligned d, filled with the 4 bytes
// of `unit` repeated (the C library's wide fill below kStringFillFrom, the
// string fill from there); a 2-byte remainder gets the unit's first two
// bytes. wchar_t is 4 bytes wide on every target of this build.
inline void fillWide(unsigned char* d, int32_t unit, size_t n) {
    static_assert(sizeof(wchar_t) == 4, "the wide fill writes 4-byte units");
    if (n >= kStringFillFrom) {
        fillString4(d, static_cast<uint32_t>(unit), n / 4);
    } else {
        wchar_t w;
        memcpy(&w, &unit, 4);
        wmemset(reinterpret_cast<wchar_t*>(d), w, n / 4);
    }
    if (n & 2) memcpy(d + n - 2, &unit, 2);
}

// `first` holds the W-byte pattern repeated over 16 bytes.
template <size_t W>
__attribute__((noinline)) void fillPatternLarge(unsigned char* d, __m128i first, size_t n);

template <size_t W>
inline void fillPattern(void* dst, __m128i first, size_t count) {
    static_assert(W == 2 || W == 4 || W == 8 || W == 16, "pattern widths divide 16");
    const size_t n = count * W;
    unsigned char* d = static_cast<unsigned char*>(dst);
    if (n <= kSmallBytes) {
        fillSmall(d, first, n);
        return;
    }
    if constexpr (W <= 4) {
        if ((reinterpret_cast<uintptr_t>(d) & 3) == 0 && n < kStreamingFillBytes) {
            fillWide(d, _mm_cvtsi128_si32(first), n);
            return;
        }
    }
#if defined(__x86_64__)
    if constexpr (W == 8) {
        if (n >= kPatternDoubling && n < kStreamingFillBytes) {
            // The string fill runs a third slower from a start that is not
            // 64-byte aligned: the bytes before the next line are stored
            // directly, and the string fill starts there with the pattern
            // rotated to the byte of the element found at that line; the
            // few bytes after its last whole unit continue the rotated
            // pattern. (Stores into the string fill's own range, even of
            // the same bytes, slowed 4-KiB fills by a third.)
            const size_t head = (64 - (reinterpret_cast<uintptr_t>(d) & 63)) & 63;
            const size_t wholeHead = head & ~size_t(7);
            if (wholeHead) fillSmall(d, first, wholeHead);
            uint64_t unit = static_cast<uint64_t>(_mm_cvtsi128_si64(first));
            memcpy(d + wholeHead, &unit, head % 8);
            if (const unsigned rot = 8 * (head % 8)) unit = (unit >> rot) | (unit << (64 - rot));
            const size_t units = (n - head) / 8;
            fillString8(d + head, unit, units);
            memcpy(d + head + 8 * units, &unit, (n - head) % 8);
            return;
        }
    }
#endif
    // Out of line: the registers the large fills need are then saved only
    // on their own path, not on every small fill.
    fillPatternLarge<W>(d, first, n);
}

template <size_t W>
__attribute__((noinline)) void fillPatternLarge(unsigned char* d, __m128i first, size_t n) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), first);
    // From the first 16-byte boundary on, every store is aligned. When the
    // boundary falls inside an element (a start not aligned to the element
    // width) the pattern is rotated to start at that byte of the element.
    const size_t head = (16 - (reinterpret_cast<uintptr_t>(d) & 15)) & 15;
    __m128i v = first;
    if (head % W) {
        // Byte i of v is byte (i + head) mod 16 of the periodic pattern.
        const __m128i idx = _mm_and_si128(
            _mm_add_epi8(_mm_setr_epi8(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15),
                         _mm_set1_epi8(static_cast<char>(head))),
            _mm_set1_epi8(15));
        v = _mm_shuffle_epi8(first, idx);
    }
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
    } else if (n >= kPatternDoubling) {
        // Fill one block, double the filled part with the C library's copy
        // (whose stores are wider than the 16 bytes available here) up to a
        // source that stays in the first-level cache, then copy that source
        // along. Every length copied is a multiple of the block and so of
        // every pattern width: each copy keeps the phase.
        fillSmall(d, first, kPatternBlock);
        size_t done = kPatternBlock;
        while (done < kPatternSource && done < n) {
            const size_t len = done <= n - done ? done : n - done;
            memcpy(d + done, d, len);
            done += len;
        }
        for (; done < n; done += kPatternSource) {
            const size_t len = kPatternSource <= n - done ? kPatternSource : n - done;
            memcpy(d + done, d, len);
        }
        return;
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

// How the element-wise loops store. A long output (at least kStreamBytes)
// goes around the caches with streaming stores, which saves reading each
// destination line before it is written: a loop that reads two sources and
// writes one moves three lines per line of output instead of four, the
// traffic of memcpy over the same bytes. Shorter outputs stay in the cache
// for the caller's next step.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "veks.h"

namespace veks {
namespace kern {

constexpr size_t kStreamBytes = size_t(4) << 20;

template <bool Stream>
inline void put(void* p, __m128i v) {
    if (Stream)
        _mm_stream_si128(static_cast<__m128i*>(p), v);
    else
        _mm_storeu_si128(static_cast<__m128i*>(p), v);
}
// Floating lanes are stored as their bits.
template <bool Stream>
inline void put(float* p, __m128 v) {
    put<Stream>(static_cast<void*>(p), _mm_castps_si128(v));
}
template <bool Stream>
inline void put(double* p, __m128d v) {
    put<Stream>(static_cast<void*>(p), _mm_castpd_si128(v));
}

template <bool Stream>
inline void put(T32fc* p, __m128 v) {
    put<Stream>(&p->re, v);
}
template <bool Stream>
inline void put(T64fc* p, __m128d v) {
    put<Stream>(&p->re, v);
}

// The conversions: the elements before the first 16-byte boundary of the
// destination and the tail take the scalar twin; a destination not aligned
// to its own element size is stored normally.
//
// loop(std::integral_constant<bool, Stream>, src, dst, n) runs the vector
// loop and returns how many elements it did; scalar(src, dst, n) does the
// rest one by one.
template <class TSrc, class TDst, class Loop, class Scalar>
inline void drive(const TSrc* pSrc, TDst* pDst, size_t n, Loop loop, Scalar scalar) {
    const uintptr_t a = reinterpret_cast<uintptr_t>(pDst);
    if (n * sizeof(TDst) >= kStreamBytes && a % sizeof(TDst) == 0) {
        const size_t head = ((16 - (a & 15)) & 15) / sizeof(TDst);
        scalar(pSrc, pDst, head);
        const size_t done = head + loop(std::true_type{}, pSrc + head, pDst + head, n - head);
        _mm_sfence();
        scalar(pSrc + done, pDst + done, n - done);
    } else {
        const size_t done = loop(std::false_type{}, pSrc, pDst, n);
        scalar(pSrc + done, pDst + done, n - done);
    }
}

// The arithmetic loops store whole registers from the destination's first
// element on, so they stream only to a destination on a 16-byte boundary
// (as every allocator returns); any other takes ordinary stores.
// Returns f(std::integral_constant<bool, Stream>), after the fence that
// puts streaming stores in order with whatever the caller does next.
template <class T, class F>
inline auto withStores(const T* pDst, size_t n, F f) {
    const bool stream = n * sizeof(T) >= kStreamBytes && reinterpret_cast<uintptr_t>(pDst) % 16 == 0;
    if (!stream) return f(std::false_type{});
    if constexpr (std::is_void<decltype(f(std::true_type{}))>::value) {
        f(std::true_type{});
        _mm_sfence();
    } else {
        const auto r = f(std::true_type{});
        _mm_sfence();
        return r;
    }
}

}  // namespace kern
}  // namespace veks

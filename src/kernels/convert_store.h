// How the conversion loops store. A long output (at least kStreamBytes)
// goes around the caches with streaming stores, which saves reading each
// destination line before it is written; the elements before the first
// 16-byte boundary of the destination and the tail take the scalar twin.
// A destination not aligned to its own element size is stored normally.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>

#include <type_traits>

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
template <bool Stream>
inline void put(float* p, __m128 v) {
    if (Stream)
        _mm_stream_ps(p, v);
    else
        _mm_storeu_ps(p, v);
}
template <bool Stream>
inline void put(double* p, __m128d v) {
    if (Stream)
        _mm_stream_pd(p, v);
    else
        _mm_storeu_pd(p, v);
}

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

}  // namespace kern
}  // namespace veks

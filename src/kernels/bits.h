// Bitwise operations and shifts by a constant count, on 8-, 16- and 32-bit
// elements. Counts of at least the width are handled explicitly: 0, or for
// arithmetic right shifts the sign of each element.
#pragma once

#include <smmintrin.h>
#include <stdint.h>

#include <type_traits>

#include "kernels/elementwise.h"
#include "kernels/sse/vocab.h"

namespace veks {
namespace kern {

struct AndBits {
    template <class T> static T s(T x1, T x2) { return static_cast<T>(x1 & x2); }
    static __m128i v(__m128i x1, __m128i x2) { return _mm_and_si128(x1, x2); }
};
struct OrBits {
    template <class T> static T s(T x1, T x2) { return static_cast<T>(x1 | x2); }
    static __m128i v(__m128i x1, __m128i x2) { return _mm_or_si128(x1, x2); }
};
struct XorBits {
    template <class T> static T s(T x1, T x2) { return static_cast<T>(x1 ^ x2); }
    static __m128i v(__m128i x1, __m128i x2) { return _mm_xor_si128(x1, x2); }
};

template <class T>
inline __m128i splat(T v) {
    if constexpr (sizeof(T) == 1) return _mm_set1_epi8(static_cast<char>(v));
    else if constexpr (sizeof(T) == 2) return _mm_set1_epi16(static_cast<short>(v));
    else return _mm_set1_epi32(static_cast<int>(v));
}
template <class T> inline __m128i bload(Arr<T> s, int i) { return sse::loadu(s.p + i); }
template <class T> inline __m128i bload(Bcast<T> s, int) { return splat(s.v); }

template <class Op, class T, class S1, class S2>
inline void bitsLoop(S1 a, S2 b, T* d, int n) {
    constexpr int W = 16 / static_cast<int>(sizeof(T));
    int i = 0;
    for (; i + W <= n; i += W) sse::storeu(d + i, Op::v(bload(a, i), bload(b, i)));
    for (; i < n; ++i) d[i] = Op::s(at(a, i), at(b, i));
}

// ---- shifts ------------------------------------------------------------------

template <class T>
constexpr int bitsOf() {
    return 8 * static_cast<int>(sizeof(T));
}

// Scalar twins.
template <class T>
inline T shiftLeft(T x, int k) {
    using U = typename std::make_unsigned<T>::type;
    if (k >= bitsOf<T>()) return 0;
    return static_cast<T>(static_cast<U>(static_cast<uint32_t>(static_cast<U>(x)) << k));
}
template <class T>
inline T shiftRight(T x, int k) {
    if (k >= bitsOf<T>()) return std::is_signed<T>::value && x < 0 ? T(-1) : T(0);
    return static_cast<T>(x >> k);  // arithmetic on signed types, floor(x / 2^k)
}

template <class T>
inline __m128i shlV(__m128i x, __m128i cnt, __m128i mask8) {
    if constexpr (sizeof(T) == 1) return _mm_and_si128(_mm_sll_epi16(x, cnt), mask8);
    else if constexpr (sizeof(T) == 2) return _mm_sll_epi16(x, cnt);
    else return _mm_sll_epi32(x, cnt);
}
template <class T>
inline __m128i shrV(__m128i x, __m128i cnt, __m128i mask8) {
    if constexpr (sizeof(T) == 1) return _mm_and_si128(_mm_srl_epi16(x, cnt), mask8);
    else if constexpr (sizeof(T) == 2) return std::is_signed<T>::value ? _mm_sra_epi16(x, cnt) : _mm_srl_epi16(x, cnt);
    else return std::is_signed<T>::value ? _mm_sra_epi32(x, cnt) : _mm_srl_epi32(x, cnt);
}

// d[i] = s[i] << k or s[i] >> k, for k >= 0.
template <bool Left, class T>
inline void shiftLoop(const T* s, T* d, int n, int k) {
    constexpr int W = 16 / static_cast<int>(sizeof(T));
    int i = 0;
    // The vector shifts give the same results as the twins for counts up to
    // the width (0, or the sign, at the width itself).
    const int kc = k > bitsOf<T>() ? bitsOf<T>() : k;
    const __m128i cnt = _mm_cvtsi32_si128(kc);
    const __m128i mask8 = splat<uint8_t>(kc >= 8 ? 0 : Left ? static_cast<uint8_t>(0xFFu << kc) : static_cast<uint8_t>(0xFFu >> kc));
    for (; i + W <= n; i += W) {
        const __m128i x = sse::loadu(s + i);
        sse::storeu(d + i, Left ? shlV<T>(x, cnt, mask8) : shrV<T>(x, cnt, mask8));
    }
    for (; i < n; ++i) d[i] = Left ? shiftLeft(s[i], k) : shiftRight(s[i], k);
}

}  // namespace kern
}  // namespace veks

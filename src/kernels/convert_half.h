// Loops between IEEE 754 half precision (held as 16-bit patterns) and
// single precision. Single to half rounds toward zero or to nearest with
// ties to even, by the bits alone, whatever the processor's setting:
// overflow gives infinity to nearest and the largest finite value toward
// zero, NaNs stay NaNs (quiet, sign and leading payload kept). Half to
// single is exact; NaNs come out quiet with their payload.
#pragma once

#include <smmintrin.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

namespace veks {
namespace kern {

inline uint16_t floatToHalf(float f, bool nearest) {
    uint32_t u;
    memcpy(&u, &f, sizeof u);
    const uint32_t sign = (u >> 16) & 0x8000u;
    const uint32_t a = u & 0x7FFFFFFFu;
    if (a > 0x7F800000u) return static_cast<uint16_t>(sign | 0x7E00u | ((a >> 13) & 0x3FFu));
    if (a == 0x7F800000u) return static_cast<uint16_t>(sign | 0x7C00u);
    if (a >= 0x47800000u) return static_cast<uint16_t>(sign | (nearest ? 0x7C00u : 0x7BFFu));  // >= 2^16
    if (a >= 0x38800000u) {  // normal half: rebias the exponent, drop 13 bits
        uint32_t m = a - 0x38000000u;
        if (nearest) m += 0xFFFu + ((m >> 13) & 1u);
        return static_cast<uint16_t>(sign | (m >> 13));  // a carry may reach infinity
    }
    // Subnormal half: count units of 2^-24.
    const int e = static_cast<int>(a >> 23);
    const int shift = 126 - e;  // >= 14
    if (e == 0 || shift > 24) return static_cast<uint16_t>(sign);  // below half a unit
    const uint32_t mant = (a & 0x7FFFFFu) | 0x800000u;
    uint32_t q = mant >> shift;
    const uint32_t r = mant & ((1u << shift) - 1u), half = 1u << (shift - 1);
    if (nearest && (r > half || (r == half && (q & 1u)))) ++q;  // may become the smallest normal
    return static_cast<uint16_t>(sign | q);
}

inline float halfToFloat(uint16_t h) {
    const uint32_t sign = static_cast<uint32_t>(h & 0x8000u) << 16;
    const uint32_t e = (h >> 10) & 0x1Fu, m = h & 0x3FFu;
    uint32_t bits;
    if (e == 0) {
        const float v = static_cast<float>(m) * 5.9604644775390625e-8f;  // m * 2^-24, exact
        memcpy(&bits, &v, sizeof bits);
        bits |= sign;
    } else if (e == 31) {
        bits = sign | 0x7F800000u | (m << 13) | (m ? 0x400000u : 0u);
    } else {
        bits = sign | ((e + 112u) << 23) | (m << 13);
    }
    float f;
    memcpy(&f, &bits, sizeof f);
    return f;
}

// Four singles to four half patterns in the low 16 bits of int32 lanes.
template <bool Nearest>
inline __m128i floatToHalf4(__m128 x) {
    const __m128i u = _mm_castps_si128(x);
    const __m128i sign = _mm_and_si128(_mm_srli_epi32(u, 16), _mm_set1_epi32(0x8000));
    const __m128i a = _mm_and_si128(u, _mm_set1_epi32(0x7FFFFFFF));
    __m128i m = _mm_sub_epi32(a, _mm_set1_epi32(0x38000000));
    if (Nearest)
        m = _mm_add_epi32(m, _mm_add_epi32(_mm_set1_epi32(0xFFF), _mm_and_si128(_mm_srli_epi32(m, 13), _mm_set1_epi32(1))));
    const __m128i normal = _mm_srli_epi32(m, 13);
    // Below the normal range |x| * 2^24 is exact and under 2^10; rounding it
    // to an integer by the mode counts the subnormal units.
    __m128 units = _mm_mul_ps(_mm_castsi128_ps(a), _mm_set1_ps(16777216.0f));
    units = _mm_round_ps(units, (Nearest ? _MM_FROUND_TO_NEAREST_INT : _MM_FROUND_TO_ZERO) | _MM_FROUND_NO_EXC);
    const __m128i sub = _mm_cvttps_epi32(units);
    __m128i r = _mm_blendv_epi8(sub, normal, _mm_cmpgt_epi32(a, _mm_set1_epi32(0x387FFFFF)));
    r = _mm_blendv_epi8(r, _mm_set1_epi32(Nearest ? 0x7C00 : 0x7BFF), _mm_cmpgt_epi32(a, _mm_set1_epi32(0x477FFFFF)));
    r = _mm_blendv_epi8(r, _mm_set1_epi32(0x7C00), _mm_cmpeq_epi32(a, _mm_set1_epi32(0x7F800000)));
    const __m128i nan = _mm_or_si128(_mm_set1_epi32(0x7E00), _mm_and_si128(_mm_srli_epi32(a, 13), _mm_set1_epi32(0x3FF)));
    r = _mm_blendv_epi8(r, nan, _mm_cmpgt_epi32(a, _mm_set1_epi32(0x7F800000)));
    return _mm_or_si128(r, sign);
}

// Four half patterns (zero-extended int32 lanes) to four singles.
inline __m128 halfToFloat4(__m128i h) {
    const __m128i em = _mm_and_si128(h, _mm_set1_epi32(0x7FFF));
    const __m128i sign = _mm_slli_epi32(_mm_and_si128(h, _mm_set1_epi32(0x8000)), 16);
    const __m128i e = _mm_and_si128(em, _mm_set1_epi32(0x7C00));
    __m128i nb = _mm_add_epi32(_mm_slli_epi32(em, 13), _mm_set1_epi32(0x38000000));
    const __m128i special = _mm_cmpeq_epi32(e, _mm_set1_epi32(0x7C00));
    nb = _mm_add_epi32(nb, _mm_and_si128(special, _mm_set1_epi32(0x38000000)));
    nb = _mm_or_si128(nb, _mm_and_si128(_mm_cmpgt_epi32(em, _mm_set1_epi32(0x7C00)), _mm_set1_epi32(0x400000)));
    const __m128 sub = _mm_mul_ps(_mm_cvtepi32_ps(em), _mm_set1_ps(5.9604644775390625e-8f));
    const __m128i r = _mm_blendv_epi8(nb, _mm_castps_si128(sub), _mm_cmpeq_epi32(e, _mm_setzero_si128()));
    return _mm_castsi128_ps(_mm_or_si128(r, sign));
}

template <bool Nearest>
inline void floatToHalf(const float* pSrc, uint16_t* pDst, size_t n) {
    size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        const __m128i a = floatToHalf4<Nearest>(_mm_loadu_ps(pSrc + i));
        const __m128i b = floatToHalf4<Nearest>(_mm_loadu_ps(pSrc + i + 4));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pDst + i), _mm_packus_epi32(a, b));
    }
    for (; i < n; ++i) pDst[i] = floatToHalf(pSrc[i], Nearest);
}

inline void halfToFloat(const uint16_t* pSrc, float* pDst, size_t n) {
    size_t i = 0;
    for (; i + 8 <= n; i += 8) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSrc + i));
        _mm_storeu_ps(pDst + i, halfToFloat4(_mm_cvtepu16_epi32(v)));
        _mm_storeu_ps(pDst + i + 4, halfToFloat4(_mm_cvtepu16_epi32(_mm_unpackhi_epi64(v, v))));
    }
    for (; i < n; ++i) pDst[i] = halfToFloat(pSrc[i]);
}

}  // namespace kern
}  // namespace veks

// A thin SSE4.1 vocabulary for the element-wise kernels: unaligned loads and
// stores by element type, widening of narrow integers to 32-bit lanes and
// the packing back with saturation.
#pragma once

#include <smmintrin.h>
#include <stdint.h>
#include <string.h>

#include "veks.h"

namespace veks {
namespace sse {

inline __m128i loadu(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void storeu(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
inline __m128i load64(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
inline void store64(void* p, __m128i v) { _mm_storel_epi64(static_cast<__m128i*>(p), v); }

// Eight narrow integers widened to two vectors of 32-bit lanes.
struct Wide8 {
    __m128i lo, hi;
};

inline Wide8 widen8(const T16s* p) {
    const __m128i v = loadu(p);
    return {_mm_cvtepi16_epi32(v), _mm_cvtepi16_epi32(_mm_srli_si128(v, 8))};
}
inline Wide8 widen8(const T16u* p) {
    const __m128i v = loadu(p);
    return {_mm_cvtepu16_epi32(v), _mm_cvtepu16_epi32(_mm_srli_si128(v, 8))};
}
inline Wide8 widen8(const T8u* p) {
    const __m128i v = load64(p);
    return {_mm_cvtepu8_epi32(v), _mm_cvtepu8_epi32(_mm_srli_si128(v, 4))};
}

// Eight int32 lanes saturated to the destination type by the packs, and
// stored. 8-bit results pass through signed 16-bit lanes, which keep every
// lane's order (an unsigned first pack would turn 32768 and more negative).
inline void pack8(T16s* d, __m128i lo, __m128i hi) { storeu(d, _mm_packs_epi32(lo, hi)); }
inline void pack8(T16u* d, __m128i lo, __m128i hi) { storeu(d, _mm_packus_epi32(lo, hi)); }
inline void pack8(T8u* d, __m128i lo, __m128i hi) {
    const __m128i w = _mm_packs_epi32(lo, hi);
    store64(d, _mm_packus_epi16(w, w));
}

// Sixteen int32 lanes saturated to 8-bit results, the same way, in one store.
inline void pack16(T8u* d, __m128i r0, __m128i r1, __m128i r2, __m128i r3) {
    storeu(d, _mm_packus_epi16(_mm_packs_epi32(r0, r1), _mm_packs_epi32(r2, r3)));
}

}  // namespace sse
}  // namespace veks

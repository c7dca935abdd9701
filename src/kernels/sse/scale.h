// The scale-factor rule on four exact values held in 32-bit lanes; each
// result is clamped to the destination's range and stays in its lane, ready
// for packing. Bit for bit the scalar rule of frame/detail/scale.h.
//
// Lanes are signed (|s| <= 2^31 - 2^15) or, for products of two unsigned
// 16-bit values, unsigned (s < 2^32 - 2^16). Within covers(sf) no step
// overflows: a right shift by 1..15 adds at most 2^14 before shifting, and a
// left shift first clamps to the destination range, whose values shifted by
// fewer places than the destination has bits stay below 2^31.
#pragma once

#include <smmintrin.h>

#include "frame/detail/traits.h"

namespace veks {
namespace sse {

enum class ScaleKind { Sat, Right, Left };

inline ScaleKind scaleKind(int sf) { return sf > 0 ? ScaleKind::Right : sf < 0 ? ScaleKind::Left : ScaleKind::Sat; }

template <class TDst, bool UnsignedLanes = false>
class LaneScale {
public:
    static constexpr int kDstBits = 8 * static_cast<int>(sizeof(TDst));
    static_assert(kDstBits <= 16, "lane scaling narrows to 8- or 16-bit destinations");

    static bool covers(int sf) { return sf <= 15 && sf > -kDstBits; }

    explicit LaneScale(int sf)
        : cnt_(_mm_cvtsi32_si128(sf > 0 ? sf : -sf)),
          hm1_(_mm_set1_epi32(sf > 0 ? (1 << (sf - 1)) - 1 : 0)),
          one_(_mm_set1_epi32(1)),
          lo_(_mm_set1_epi32(static_cast<int>(Range<TDst>::lo))),
          hi_(_mm_set1_epi32(static_cast<int>(Range<TDst>::hi))) {}

    template <ScaleKind K>
    __m128i apply(__m128i s) const {
        if constexpr (K == ScaleKind::Sat) {
            return clamp(s);
        } else if constexpr (K == ScaleKind::Right) {
            // (s + h - 1 + ((s >> sf) & 1)) >> sf: ties to even
            if constexpr (UnsignedLanes) {
                const __m128i odd = _mm_and_si128(_mm_srl_epi32(s, cnt_), one_);
                return clamp(_mm_srl_epi32(_mm_add_epi32(_mm_add_epi32(s, hm1_), odd), cnt_));
            } else {
                const __m128i odd = _mm_and_si128(_mm_sra_epi32(s, cnt_), one_);
                return clamp(_mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(s, hm1_), odd), cnt_));
            }
        } else {
            return clamp(_mm_sll_epi32(clamp(s), cnt_));
        }
    }

private:
    __m128i clamp(__m128i s) const {
        if constexpr (UnsignedLanes) {
            return _mm_min_epu32(s, hi_);
        } else {
            return _mm_max_epi32(_mm_min_epi32(s, hi_), lo_);
        }
    }
    __m128i cnt_, hm1_, one_, lo_, hi_;
};

// Any 32-bit exact value to 16 bits by the scale rule, for -15 <= sf <= 31 (beyond, the family's
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

}  // namespace sse
}  // namespace veks

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

}  // namespace sse
}  // namespace veks

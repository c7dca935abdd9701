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
#include <stdint.h>

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

// The rule's right shift (ties to even) in lanes as wide as the elements,
// for sums and differences whose exact value s needs one bit more than a
// lane. Two lane values stand for s:
//   v   = floor(s / 2) ("halved", formed without overflow) or s itself;
//   low = s wrapped to the lane width (the plain lane sum or difference).
// Then q = floor(s / 2^sf) = v >> (sf - 1) (halved) or v >> sf, and the
// dropped bits R = s mod 2^sf are low's bits below sf, since 2^sf divides
// 2^Bits. The rule gives q + 1 exactly where R > 2^(sf-1), or R = 2^(sf-1)
// with q odd: where R + (q & 1) > 2^(sf-1), tested as R > 2^(sf-1) - (q & 1)
// so that nothing overflows. In 16- and 32-bit lanes sf < Bits, so R and
// the threshold lie in [0, 2^(Bits-1)) and a signed compare orders them; in
// 8-bit lanes (sf up to 8, R up to 255) the test is unsigned, through max
// and equality: R >= 2^(sf-1) + 1 - (q & 1). Lanes are Signed (arithmetic
// shift) or not (logical; 8-bit lanes shift as 16-bit ones, then drop the
// bits that crossed in from the neighbour). The caller subtracts up() (all
// ones, -1) from q and saturates where the sum or difference can pass the
// range.
template <int Bits, bool Signed>
class ShiftRound {
    static_assert(Bits == 16 || Bits == 32 || (Bits == 8 && !Signed), "lane widths 8 (unsigned), 16, 32");

public:
    static bool covers(int sf) { return sf >= 1 && sf <= (Bits == 8 ? 8 : Bits - 1); }

    ShiftRound(int sf, bool halved)
        : cnt_(_mm_cvtsi32_si128(halved ? sf - 1 : sf)),
          mask_(splat((1u << sf) - 1u)),
          thr_(splat((1u << (sf - 1)) + (Bits == 8 ? 1u : 0u))),
          one_(splat(1)),
          keep_(splat(0xffu >> (halved ? sf - 1 : sf))) {}

    __m128i one() const { return one_; }

    // v >> (sf - 1) or v >> sf
    __m128i quotient(__m128i v) const {
        if constexpr (Bits == 8) return _mm_and_si128(_mm_srl_epi16(v, cnt_), keep_);
        else if constexpr (Bits == 16) return Signed ? _mm_sra_epi16(v, cnt_) : _mm_srl_epi16(v, cnt_);
        else return Signed ? _mm_sra_epi32(v, cnt_) : _mm_srl_epi32(v, cnt_);
    }

    // All ones in the lanes whose quotient q rounds up, else zero.
    __m128i up(__m128i q, __m128i low) const {
        const __m128i r = _mm_and_si128(low, mask_);
        if constexpr (Bits == 8) {
            const __m128i t = _mm_sub_epi8(thr_, _mm_and_si128(q, one_));
            return _mm_cmpeq_epi8(_mm_max_epu8(r, t), r);
        } else if constexpr (Bits == 16) {
            return _mm_cmpgt_epi16(r, _mm_sub_epi16(thr_, _mm_and_si128(q, one_)));
        } else {
            return _mm_cmpgt_epi32(r, _mm_sub_epi32(thr_, _mm_and_si128(q, one_)));
        }
    }

private:
    static __m128i splat(uint32_t v) {
        if constexpr (Bits == 8) return _mm_set1_epi8(static_cast<char>(v));
        else if constexpr (Bits == 16) return _mm_set1_epi16(static_cast<short>(v));
        else return _mm_set1_epi32(static_cast<int>(v));
    }
    __m128i cnt_, mask_, thr_, one_, keep_;
};

// The rule's right shift (ties to even) of exact products s of two 32-bit
// integers (|s| <= 2^62) held in 64-bit lanes, for 1 <= sf <= 62. With
// u = s + 2^63 (the sign bit flipped) u is non-negative, so a logical shift
// floors: floor(t / 2^sf) = ((t + 2^63) >> sf) - 2^(63-sf) for sf <= 63.
// Ties to even: the rule's result is floor((s + 2^(sf-1) - 1 + odd) / 2^sf)
// with odd = bit sf of s, which is bit sf of u (sf < 63); u + 2^(sf-1) stays
// below 3 * 2^62 + 2^61 < 2^64 for sf <= 62, so nothing wraps. The 64-bit
// result fits 32 bits exactly where its high half is the sign of its low
// half; else it saturates by the sign of the high half.
class ProductRound64 {
public:
    explicit ProductRound64(int sf)
        : cnt_(_mm_cvtsi32_si128(sf)),
          hm1_(_mm_set1_epi64x((int64_t(1) << (sf - 1)) - 1)),
          bit_(_mm_set1_epi64x(int64_t(1) << sf)),
          flip_(_mm_set1_epi64x(INT64_MIN)),
          unbias_(_mm_set1_epi64x(int64_t(1) << (63 - sf))) {}

    // The rounded quotients of two exact products in 64-bit lanes.
    __m128i apply(__m128i s) const {
        const __m128i u = _mm_xor_si128(s, flip_);
        const __m128i odd = _mm_cmpeq_epi64(_mm_and_si128(u, bit_), bit_);  // -1 where odd
        const __m128i t = _mm_sub_epi64(_mm_add_epi64(u, hm1_), odd);
        return _mm_sub_epi64(_mm_srl_epi64(t, cnt_), unbias_);
    }

private:
    __m128i cnt_, hm1_, bit_, flip_, unbias_;
};

// Four 64-bit results (elements 0 and 2 in ev, 1 and 3 in od) saturated
// to 32 bits, in element order.
inline __m128i saturate64to32(__m128i ev, __m128i od) {
    const __m128i lows = _mm_blend_epi16(ev, _mm_slli_epi64(od, 32), 0xcc);
    const __m128i highs = _mm_blend_epi16(_mm_srli_epi64(ev, 32), od, 0xcc);
    const __m128i zero = _mm_setzero_si128();
    const __m128i fits = _mm_cmpeq_epi32(highs, _mm_cmpgt_epi32(zero, lows));
    const __m128i sat = _mm_xor_si128(_mm_cmpgt_epi32(zero, highs), _mm_set1_epi32(INT32_MAX));
    return _mm_blendv_epi8(sat, lows, fits);
}

// The rule on exact products p of two 32-bit integers (|p| <= 2^62) for
// 0 <= sf <= 31, with 32-bit results, in fewer steps than ProductRound64 and
// saturate64to32. Let h = 2^(sf-1) (0 for sf = 0), q = floor(p / 2^sf) and
// R = p - q * 2^sf.
// - Range bias. u = p + 2^(31+sf) + h in 64 bits. u >= -2^62 and
//   u <= 2^62 + 2^62 + 2^30 < 2^64, so u wraps only where it is negative.
//   Adding a multiple of 2^sf commutes with the floor: for u >= 0 the
//   logical shift gives v = u >> sf = floor((p + h) / 2^sf) + 2^31
//   = t + 2^31, with t the quotient rounded half up.
// - Saturation. t fits 32 bits exactly where 0 <= v < 2^32, i.e. where the
//   high half of v is 0. If t > 2^31 - 1, v >= 2^32 (no wrap, u < 2^64).
//   If t < -2^31, u < 0 wraps to at least 2^64 - 2^62, and v >= 3 * 2^31
//   for sf <= 31. An out-of-range t has the sign of p (p = 0 fits), the
//   sign bit of p's high half, and saturates to the end on that side.
// - Ties to even. The rule gives t - 1 exactly where R = h with q even,
//   i.e. where the low sf + 1 bits of p equal h; sf + 1 <= 32, so the low
//   half of p decides it (sf = 0 has no ties). The step down never
//   crosses a range end: it applies only where t = q + 1 is odd, and the
//   ends of the biased range, 0 and 2^32, are even.
// - The in-range result is the low half of v, minus the tie step, with the
//   bias 2^31 removed by flipping the top bit.
// - The range end. For 1 <= sf <= 30 the high half H of v alone tells the
//   two overflows apart: if t > 2^31 - 1, u <= 2^62 + 2^(31+sf) + h and
//   H <= 2^(30-sf); if t < -2^31, u wraps to more than 3 * 2^62 and
//   H >= 3 * 2^(30-sf); so H <= 2^(30-sf) (signed compare: H < 2^31) picks
//   INT32_MAX. For sf = 0 (v = u, nothing dropped: no shift, no tie step)
//   H <= 2^30 if t > 2^31 - 1 and H >= 2^32 - 2^30, negative as a signed
//   lane, if t < -2^31: its sign picks the end. For sf = 31 both overflows
//   can give H = 1, and the sign of p's high half decides.
// Each 32-bit half needed (low and high of p, low and high of v) is
// gathered for all four elements by one shufps, in the lane order 0, 2, 1,
// 3; one pshufd restores the element order at the end.
class ProductScale32 {
public:
    static bool covers(int sf) { return sf >= 0 && sf <= 31; }

    // The three ways of taking a scale factor (see above).
    enum class Form { Unscaled, Scaled, Scaled31 };
    static Form formOf(int sf) { return sf == 0 ? Form::Unscaled : sf <= 30 ? Form::Scaled : Form::Scaled31; }

    explicit ProductScale32(int sf)
        : cnt_(_mm_cvtsi32_si128(sf)),
          bias_(_mm_set1_epi64x((int64_t(1) << (31 + sf)) + (sf > 0 ? int64_t(1) << (sf - 1) : 0))),
          tieMask_(_mm_set1_epi32(sf > 0 ? static_cast<int32_t>(~0u >> (31 - sf)) : 0)),
          tie_(_mm_set1_epi32(sf > 0 ? static_cast<int32_t>(1u << (sf - 1)) : 0)),
          flip_(_mm_set1_epi32(INT32_MIN)),
          minus1_(_mm_set1_epi32(-1)),
          posEnd_(_mm_set1_epi32(sf >= 1 && sf <= 30 ? (1 << (30 - sf)) + 1 : 0)) {
        // Hidden from the optimiser, which would rewrite "> -1" as ">= 0"
        // in two instructions (pminsd, pcmpeqd).
        __asm__("" : "+x"(minus1_));
    }

    // The biased quotients of four products: v's high halves (all zero
    // where every result fits) and its low halves with the tie step, in the
    // lane order 0, 2, 1, 3.
    struct Quotients {
        __m128i high, low;
    };

    // ev: exact products of elements 0 and 2 (pmuldq), od: of elements 1
    // and 3. F must be formOf(sf).
    template <Form F>
    Quotients quotients(__m128i ev, __m128i od) const {
        __m128i ve = _mm_add_epi64(ev, bias_), vo = _mm_add_epi64(od, bias_);
        if constexpr (F != Form::Unscaled) {
            ve = _mm_srl_epi64(ve, cnt_);
            vo = _mm_srl_epi64(vo, cnt_);
        }
        __m128i low = lowHalves(ve, vo);
        if constexpr (F != Form::Unscaled) {
            const __m128i down = _mm_cmpeq_epi32(_mm_and_si128(lowHalves(ev, od), tieMask_), tie_);  // -1: t steps down
            low = _mm_add_epi32(low, down);
        }
        return {highHalves(ve, vo), low};
    }

    // The results in element order, where every one fits (q.high is zero).
    __m128i fitting(Quotients q) const { return order(_mm_xor_si128(q.low, flip_)); }

    // The results in element order, saturated where they do not fit.
    template <Form F>
    __m128i saturated(Quotients q, __m128i ev, __m128i od) const {
        // The range ends, biased like v: 2^32 - 1 (INT32_MAX) where the
        // product is not negative, 0 (INT32_MIN) where it is.
        __m128i end;
        if constexpr (F == Form::Unscaled) end = _mm_cmpgt_epi32(q.high, minus1_);
        else if constexpr (F == Form::Scaled) end = _mm_cmpgt_epi32(posEnd_, q.high);
        else end = _mm_cmpgt_epi32(highHalves(ev, od), minus1_);
        const __m128i fits = _mm_cmpeq_epi32(q.high, _mm_setzero_si128());
        return order(_mm_xor_si128(_mm_blendv_epi8(end, q.low, fits), flip_));
    }

    template <Form F>
    __m128i apply(__m128i ev, __m128i od) const {
        return saturated<F>(quotients<F>(ev, od), ev, od);
    }

private:
    static __m128i order(__m128i r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(3, 1, 2, 0)); }
    static __m128i lowHalves(__m128i ev, __m128i od) {
        return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(ev), _mm_castsi128_ps(od), _MM_SHUFFLE(2, 0, 2, 0)));
    }
    static __m128i highHalves(__m128i ev, __m128i od) {
        return _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(ev), _mm_castsi128_ps(od), _MM_SHUFFLE(3, 1, 3, 1)));
    }
    __m128i cnt_, bias_, tieMask_, tie_, flip_, minus1_, posEnd_;
};


}  // namespace sse
}  // namespace veks

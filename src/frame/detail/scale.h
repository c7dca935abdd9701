// The integer scale-factor rule, the one home of scaling and saturation.
//
// An exact result s (formed in a wider integer) with scale factor sf:
//   sf = 0: s saturated to the destination;
//   sf > 0: s / 2^sf rounded to nearest, ties to even, then saturated;
//   sf < 0: s * 2^-sf saturated (never wraps).
// Every scale factor is accepted. The forms below are exact for every
// 64-bit s and every int sf; vector forms live in kernels/sse/scale.h and
// agree with these bit for bit.
#pragma once

#include <stdint.h>

#include "traits.h"

namespace veks {

template <class TDst>
inline TDst saturate(int64_t v) {
    return static_cast<TDst>(v < Range<TDst>::lo ? Range<TDst>::lo : v > Range<TDst>::hi ? Range<TDst>::hi : v);
}

// s / 2^sf to nearest, ties to even, for sf >= 1. Works on the remainder so
// that nothing overflows for any s.
inline int64_t shiftRightEven(int64_t s, int sf) {
    if (sf >= 64) return 0;  // |s| / 2^64 <= 1/2, which rounds to 0
    const int64_t q = s >> sf;
    const uint64_t r = static_cast<uint64_t>(s) & ((~0ull) >> (64 - sf));
    const uint64_t h = 1ull << (sf - 1);
    return q + ((r > h || (r == h && (q & 1))) ? 1 : 0);
}

// s * 2^k clamped to [lo, hi] for k >= 1.
inline int64_t shiftLeftSat(int64_t s, int k, int64_t lo, int64_t hi) {
    if (s == 0) return 0;
    if (s > 0) return (k >= 63 || s > (hi >> k)) ? hi : static_cast<int64_t>(static_cast<uint64_t>(s) << k);
    const uint64_t mag = 0ull - static_cast<uint64_t>(s);
    const uint64_t loMag = static_cast<uint64_t>(-(lo + 1)) + 1;  // |lo| without overflow
    if (lo == 0 || k >= 63 || mag > (loMag >> k)) return lo;
    return static_cast<int64_t>(static_cast<uint64_t>(s) << k);
}

// The rule itself for a scalar exact value.
template <class TDst>
inline TDst scaleSat(int64_t s, int sf) {
    if (sf > 0) return saturate<TDst>(shiftRightEven(s, sf));
    if (sf < 0) return static_cast<TDst>(shiftLeftSat(s, -sf, Range<TDst>::lo, Range<TDst>::hi));
    return saturate<TDst>(s);
}

// Past these bounds the outcome no longer depends on the magnitude of the
// data, and a family may take a shortcut whose results equal scaleSat's:
// - with |s| <= 2^magBits, every result is 0 once sf > magBits
//   (|s| / 2^sf <= 1/2, and a tie goes to the even 0);
// - once sf <= -(bits of TDst), every non-zero s saturates, so each result
//   is 0, the positive maximum or the negative minimum by the sign of s.
constexpr bool scaleGivesZero(int sf, int magBits) { return sf > magBits; }

template <class TDst>
constexpr bool scaleGivesSign(int sf) {
    return sf <= -8 * static_cast<int>(sizeof(Base<TDst>));
}

// s / 2^sf for sf >= 1, rounded by a rounding-mode argument: VEK_ROUND_ZERO
// toward zero, VEK_ROUND_NEAR to nearest with ties to even, any other value
// to nearest with ties away from zero. Exact for every s and sf.
inline int64_t shiftRightByMode(int64_t s, int sf, int rndMode) {
    if (rndMode == VEK_ROUND_NEAR) return shiftRightEven(s, sf);
    if (sf >= 64) {
        // |s| / 2^sf <= 1/2; only -2^63 / 2^64 reaches the tie.
        return (rndMode != VEK_ROUND_ZERO && sf == 64 && s == INT64_MIN) ? -1 : 0;
    }
    const int64_t q = s >> sf;  // floor
    const uint64_t r = static_cast<uint64_t>(s) & ((~0ull) >> (64 - sf));
    if (rndMode == VEK_ROUND_ZERO) return q + ((s < 0 && r != 0) ? 1 : 0);
    const uint64_t h = 1ull << (sf - 1);
    return q + ((r > h || (r == h && s >= 0)) ? 1 : 0);
}

// The rule onto an explicit range [lo, hi] (for destinations narrower than
// any C type, such as the 24-bit ones), with positive scale factors rounded
// by a rounding-mode argument (VEK_ROUND_NEAR gives the library's rule).
inline int64_t scaleSatRange(int64_t s, int sf, int64_t lo, int64_t hi, int rndMode = VEK_ROUND_NEAR) {
    int64_t v;
    if (sf > 0) {
        v = shiftRightByMode(s, sf, rndMode);
    } else if (sf < 0) {
        return shiftLeftSat(s, sf < -63 ? 63 : -sf, lo, hi);
    } else {
        v = s;
    }
    return v < lo ? lo : v > hi ? hi : v;
}

}  // namespace veks

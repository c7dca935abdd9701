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
    if (sf < 0) return static_cast<TDst>(shiftLeftSat(s, sf < -64 ? 64 : -sf, Range<TDst>::lo, Range<TDst>::hi));
    return saturate<TDst>(s);
}

// Exact values wider than 64 bits (sums of two 64-bit values, 64 x 64
// products), for the 64-bit integer families. Two's complement over 128
// bits; the same rule as scaleSat, with 64-bit destinations.
struct Wide128 {
    uint64_t lo;
    int64_t hi;

    static Wide128 of(int64_t v) { return {static_cast<uint64_t>(v), v < 0 ? -1 : 0}; }
    static Wide128 ofUnsigned(uint64_t v) { return {v, 0}; }
    bool negative() const { return hi < 0; }
    bool isZero() const { return lo == 0 && hi == 0; }
    friend bool operator==(Wide128 a, Wide128 b) { return a.lo == b.lo && a.hi == b.hi; }
    friend bool operator<(Wide128 a, Wide128 b) { return a.hi != b.hi ? a.hi < b.hi : a.lo < b.lo; }
    friend Wide128 operator+(Wide128 a, Wide128 b) {
        const uint64_t lo = a.lo + b.lo;
        return {lo, static_cast<int64_t>(static_cast<uint64_t>(a.hi) + static_cast<uint64_t>(b.hi) + (lo < a.lo))};
    }
    friend Wide128 operator-(Wide128 a) {
        const uint64_t lo = ~a.lo + 1;
        return {lo, static_cast<int64_t>(~static_cast<uint64_t>(a.hi) + (lo == 0))};
    }
    friend Wide128 operator-(Wide128 a, Wide128 b) { return a + (-b); }
    // Arithmetic shift right by 0..127.
    Wide128 sar(int k) const {
        if (k == 0) return *this;
        if (k >= 64) return {static_cast<uint64_t>(hi >> (k - 64 > 63 ? 63 : k - 64)), hi < 0 ? -1 : 0};
        return {(lo >> k) | (static_cast<uint64_t>(hi) << (64 - k)), hi >> k};
    }
    // Shift left by 0..127, bits beyond 128 lost.
    Wide128 shl(int k) const {
        if (k == 0) return *this;
        if (k >= 64) return {0, static_cast<int64_t>(lo << (k - 64))};
        return {lo << k, static_cast<int64_t>((static_cast<uint64_t>(hi) << k) | (lo >> (64 - k)))};
    }
};

// The exact product of two signed 64-bit values.
inline Wide128 mulWide(int64_t a, int64_t b) {
    const bool neg = (a < 0) != (b < 0);
    const uint64_t ua = a < 0 ? 0ull - static_cast<uint64_t>(a) : static_cast<uint64_t>(a);
    const uint64_t ub = b < 0 ? 0ull - static_cast<uint64_t>(b) : static_cast<uint64_t>(b);
    const uint64_t a0 = ua & 0xffffffffu, a1 = ua >> 32, b0 = ub & 0xffffffffu, b1 = ub >> 32;
    const uint64_t p00 = a0 * b0, p01 = a0 * b1, p10 = a1 * b0, p11 = a1 * b1;
    const uint64_t mid = (p00 >> 32) + (p01 & 0xffffffffu) + (p10 & 0xffffffffu);
    const Wide128 m = {(p00 & 0xffffffffu) | (mid << 32), static_cast<int64_t>(p11 + (p01 >> 32) + (p10 >> 32) + (mid >> 32))};
    return neg ? -m : m;
}

// s / 2^sf to nearest, ties to even, for sf >= 1 and |s| < 2^126.
inline Wide128 shiftRightEven(Wide128 s, int sf) {
    if (sf >= 127) return Wide128::of(0);
    const Wide128 q = s.sar(sf);
    const Wide128 r = s - q.shl(sf);  // 0 <= r < 2^sf
    const Wide128 h = Wide128::of(1).shl(sf - 1);
    const bool up = h < r || (r == h && (q.lo & 1));
    return up ? q + Wide128::of(1) : q;
}

// The rule for an exact value |s| < 2^126: for 64-bit destinations (T64s,
// or T64u whose range does not fit Range<>) and narrower ones.
template <class TDst>
inline TDst scaleSat(Wide128 s, int sf) {
    if constexpr (sizeof(TDst) < 8) {
        // Narrow destinations: after the right shift, or before a left one,
        // clamping to 64 bits changes no saturated result.
        if (sf > 0) {
            s = shiftRightEven(s, sf);
            sf = 0;
        }
        const int64_t v = s < Wide128::of(INT64_MIN) ? INT64_MIN : Wide128::of(INT64_MAX) < s ? INT64_MAX : static_cast<int64_t>(s.lo);
        return scaleSat<TDst>(v, sf);
    }
    constexpr bool isSigned = static_cast<TDst>(-1) < 0;
    const Wide128 lo = isSigned ? Wide128::of(INT64_MIN) : Wide128::of(0);
    const Wide128 hi = isSigned ? Wide128::of(INT64_MAX) : Wide128::ofUnsigned(UINT64_MAX);
    if (sf > 0) s = shiftRightEven(s, sf);
    if (s < lo) return static_cast<TDst>(lo.lo);
    if (hi < s) return static_cast<TDst>(hi.lo);
    if (sf < 0 && !s.isZero()) {
        // |s| <= 2^64 now; 2^64 or more places saturate whatever the value.
        if (sf <= -64) return static_cast<TDst>(s.negative() ? lo.lo : hi.lo);
        // s * 2^k passes hi exactly when s > floor(hi / 2^k), and passes lo
        // (0 or -2^63, a multiple of 2^k) exactly when s < lo / 2^k.
        const int k = -sf;
        if (hi.sar(k) < s) return static_cast<TDst>(hi.lo);
        if (s < lo.sar(k)) return static_cast<TDst>(lo.lo);
        s = s.shl(k);
    }
    return static_cast<TDst>(s.lo);
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

// Reference models of the conversions, from the rules alone. Values are
// scaled exactly in long double (64-bit mantissa: every integer and every
// double times a power of two is exact there), rounded by the mode with
// floor and the fraction, and clamped; floating results come from one
// rounding of the exact long double value. Half precision is modelled by
// searching the ordered set of half values.
#pragma once

#include <math.h>
#include <stdint.h>
#include <string.h>

#include <vector>

namespace ref {

// Nearest integer by mode: 0 toward zero, 1 ties to even, other ties away.
inline long double roundMode(long double v, int mode) {
    const long double f = floorl(v), frac = v - f;  // exact
    if (mode == 0) return v < 0 && frac != 0 ? f + 1 : f;
    if (frac < 0.5L) return f;
    if (frac > 0.5L) return f + 1;
    if (mode == 1) return fmodl(f, 2.0L) == 0 ? f : f + 1;
    return v < 0 ? f : f + 1;
}

inline int64_t clampInt(long double v, int64_t lo, int64_t hi) {
    if (v <= static_cast<long double>(lo)) return lo;
    if (v >= static_cast<long double>(hi)) return hi;
    return static_cast<int64_t>(v);
}

inline int clampSf(int sf) { return sf > 20000 ? 20000 : sf < -20000 ? -20000 : sf; }

// Floating x to an integer in [lo, hi]: NaN gives hi.
inline int64_t floatToInt(long double x, int mode, int sf, int64_t lo, int64_t hi) {
    if (x != x) return hi;
    const long double v = ldexpl(x, -clampSf(sf));
    if (isinf(v)) return v > 0 ? hi : lo;
    return clampInt(roundMode(v, mode), lo, hi);
}

// Integer s scaled by 2^-sf, rounded by mode, saturated to [lo, hi].
inline int64_t scaleInt(int64_t s, int mode, int sf, int64_t lo, int64_t hi) {
    return floatToInt(static_cast<long double>(s), mode, sf, lo, hi);
}

// Integer (or exact value) times 2^-sf, rounded once to T.
template <class T>
T toFloat(long double v, int sf) {
    return static_cast<T>(ldexpl(v, -clampSf(sf)));
}

// ---- half precision -------------------------------------------------------

// The value of a finite half pattern (sign ignored).
inline long double halfMagnitude(uint16_t h) {
    const int e = (h >> 10) & 31, m = h & 1023;
    return e == 0 ? ldexpl(m, -24) : ldexpl(1024 + m, e - 25);
}

inline float halfToFloat(uint16_t h) {
    const bool neg = h & 0x8000;
    const uint16_t a = h & 0x7FFF;
    float f;
    if (a > 0x7C00) {
        const uint32_t bits = (neg ? 0x80000000u : 0u) | 0x7FC00000u | (static_cast<uint32_t>(a & 0x3FF) << 13);
        memcpy(&f, &bits, 4);
        return f;
    }
    f = a == 0x7C00 ? INFINITY : static_cast<float>(halfMagnitude(a));
    return neg ? -f : f;
}

// Single to half by mode (0 toward zero, 1 nearest even): the two
// neighbouring half values of |x| by binary search, then the choice.
inline uint16_t floatToHalf(float x, int mode) {
    uint32_t bits;
    memcpy(&bits, &x, 4);
    const uint16_t sign = (bits >> 31) ? 0x8000 : 0;
    if (x != x) return static_cast<uint16_t>(sign | 0x7E00 | ((bits >> 13) & 0x3FF));
    const long double a = fabsl(static_cast<long double>(x));
    if (isinf(a)) return sign | 0x7C00;
    const long double maxHalf = 65504.0L;
    if (a >= maxHalf) {
        if (mode == 0) return sign | 0x7BFF;
        return static_cast<uint16_t>(sign | (a >= 65520.0L ? 0x7C00 : 0x7BFF));  // 65520 is the tie
    }
    uint16_t lo = 0, hi = 0x7BFF;  // largest pattern whose value <= a
    while (lo < hi) {
        const uint16_t mid = static_cast<uint16_t>((lo + hi + 1) / 2);
        if (halfMagnitude(mid) <= a)
            lo = mid;
        else
            hi = static_cast<uint16_t>(mid - 1);
    }
    uint16_t r = lo;
    if (mode != 0 && halfMagnitude(lo) != a) {
        const long double dl = a - halfMagnitude(lo), du = halfMagnitude(lo + 1) - a;
        if (du < dl || (du == dl && (lo & 1))) r = static_cast<uint16_t>(lo + 1);
    }
    return static_cast<uint16_t>(sign | r);
}

// ---- companding ------------------------------------------------------------
// Each positive code covers an interval of magnitudes; the interval's lower
// edge and its midpoint (the decoded value) give encoder and decoder.

// A-law: m = x or -x - 1; segment 0 steps by 16 from 0, segment s >= 1 by
// 2^(s+3) from 256 * 2^(s-1).
inline int aLawEdge(int s, int t) { return s == 0 ? 16 * t : (16 + t) << (s + 3); }

inline uint8_t aLawEncode(int x) {
    const int m = x >= 0 ? x : -x - 1;
    int best = 0;
    for (int c = 0; c < 128; ++c)
        if (aLawEdge(c >> 4, c & 15) <= m) best = c;
    return static_cast<uint8_t>(((x >= 0 ? 0x80 : 0) | best) ^ 0x55);
}

inline int aLawDecode(uint8_t code) {
    const int c = code ^ 0x55, s = (c >> 4) & 7, t = c & 15;
    const int width = s == 0 ? 16 : 1 << (s + 3);
    const int mid = aLawEdge(s, t) + width / 2;
    return (c & 0x80) ? mid : -mid;
}

// mu-law: q = min(m / 4 + 33, 8191); segment s covers q in [2^(s+5), 2^(s+6))
// in 16 steps; codes are stored inverted.
inline int muLawEdge(int s, int t) { return (16 + t) << (s + 1); }

inline uint8_t muLawEncode(int x) {
    const int m = x >= 0 ? x : -x - 1;
    const int q = m / 4 + 33 < 8191 ? m / 4 + 33 : 8191;
    int best = 0;
    for (int c = 0; c < 128; ++c)
        if (muLawEdge(c >> 4, c & 15) <= q) best = c;
    return static_cast<uint8_t>((x >= 0 ? 0x80 : 0) | (0x7F ^ best));
}

inline int muLawDecode(uint8_t code) {
    const int c = ~code & 0xFF, s = (c >> 4) & 7, t = c & 15;
    const int midQ = muLawEdge(s, t) + (1 << s);
    const int mag = 4 * (midQ - 33);
    return (c & 0x80) ? -mag : mag;
}

// ---- bit packing -------------------------------------------------------------

// Fields written one bit at a time, most significant bit first, into bytes
// filled from their most significant bit; a bit count is taken in [0, 32].
inline int packBits(const uint32_t* src, const int* bits, int n, uint8_t* dst, int offset) {
    long long pos = offset;
    for (int i = 0; i < n; ++i) {
        const int b = bits[i] < 0 ? 0 : bits[i] > 32 ? 32 : bits[i];
        for (int k = b - 1; k >= 0; --k, ++pos) {
            const int bit = (src[i] >> k) & 1;
            uint8_t& byte = dst[pos / 8];
            const int shift = 7 - static_cast<int>(pos % 8);
            byte = static_cast<uint8_t>((byte & ~(1 << shift)) | (bit << shift));
        }
    }
    return static_cast<int>(pos - offset);
}

}  // namespace ref

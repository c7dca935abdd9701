// The scale-factor rule derived a second way: from the exact quotient and
// remainder of a division, ties to even, and an exact long double product
// for left shifts. Independent of the library's shift formulation.
#pragma once

#include <stdint.h>

#include <limits>

namespace ref {

// Valid for 1 <= sf <= 62 and any int64 s.
inline int64_t divRoundEven(int64_t s, int sf) {
    const int64_t d = int64_t(1) << sf;
    int64_t q = s / d;  // toward zero
    const int64_t r = s - q * d;
    const int64_t twice = r < 0 ? -2 * r : 2 * r;  // |r| < 2^62, no overflow
    const int64_t sign = s < 0 ? -1 : 1;
    if (twice > d || (twice == d && (q % 2 != 0))) q += sign;
    return q;
}

template <class T>
T clampTo(long double v) {
    using L = std::numeric_limits<T>;
    if (v < static_cast<long double>(L::min())) return L::min();
    if (v > static_cast<long double>(L::max())) return L::max();
    return static_cast<T>(static_cast<int64_t>(v));
}

// The rule for exact values |s| < 2^62 (every family's exact value fits);
// scale factors of 63 and above give 0 for such values.
template <class T>
T scale(int64_t s, int sf) {
    if (sf > 62) return 0;
    if (sf > 0) return clampTo<T>(static_cast<long double>(divRoundEven(s, sf)));
    if (sf == 0) return clampTo<T>(static_cast<long double>(s));
    const int k = -sf > 200 ? 200 : -sf;
    long double v = static_cast<long double>(s);
    for (int i = 0; i < k && v != 0; ++i) v *= 2;  // exact: the mantissa holds 64 bits
    return clampTo<T>(v);
}

}  // namespace ref

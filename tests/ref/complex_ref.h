// Reference models for complex and polar data, Flip and Preemphasize,
// written from the rules in long double (64-bit significands on x86), so
// that integer results can be rounded from an almost exact value.
#pragma once

#include <math.h>
#include <stdint.h>

#include <limits>

namespace ref {

// Nearest integer, ties to even, of a long double.
inline long double roundEven(long double v) {
    const long double f = floorl(v), d = v - f;
    if (d > 0.5L) return f + 1;
    if (d < 0.5L) return f;
    return fmodl(f, 2.0L) == 0 ? f : f + 1;
}

template <class T>
T saturateL(long double v) {
    using L = std::numeric_limits<T>;
    if (v != v) return 0;
    if (v <= static_cast<long double>(L::min())) return L::min();
    if (v >= static_cast<long double>(L::max())) return L::max();
    return static_cast<T>(static_cast<int64_t>(v));
}

// True when v lies so close to a rounding boundary (k + 1/2) that a model
// and an implementation that evaluate in different precisions may round to
// neighbouring integers.
inline bool nearHalf(long double v, long double rel = 1e-12L) {
    const long double d = fabsl(v - floorl(v) - 0.5L);
    return d <= rel * (fabsl(v) > 1 ? fabsl(v) : 1);
}

// v * 2^-sf for any int sf (beyond +-2000 every result saturates or is 0).
inline long double shift(long double v, int sf) { return ldexpl(v, sf < -2000 ? 2000 : sf > 2000 ? -2000 : -sf); }

// An exact value times 2^-sf, nearest with ties to even, saturated to T.
template <class T>
T scaled(int64_t v, int sf) {
    return saturateL<T>(roundEven(shift(static_cast<long double>(v), sf)));
}

// sqrt(re^2 + im^2) * 2^-sf, nearest with ties to even, saturated to T.
template <class T>
T magnitudeScaled(int64_t re, int64_t im, int sf) {
    const long double n = static_cast<long double>(re) * re + static_cast<long double>(im) * im;
    return saturateL<T>(roundEven(shift(sqrtl(n), sf)));
}

// 32-bit squared magnitude: the sum of squares in double on purpose, times
// 2^-sf in double; past the range of the factor every result is 0, or
// saturated unless the source is zero.
inline int32_t magSquaredScaled32(int32_t re, int32_t im, int sf) {
    if (sf > 63) return 0;
    if (sf <= -31) return re == 0 && im == 0 ? 0 : std::numeric_limits<int32_t>::max();
    const double r = re, i = im;
    return saturateL<int32_t>(roundEven(static_cast<long double>((r * r + i * i) * ldexp(1.0, -sf))));
}

// Scaled 16-bit phase: the rule in its four ranges of scale factors.
inline int16_t phaseScaled16(int re, int im, int sf) {
    if (sf >= 2) return 0;
    const long double a = atan2l(static_cast<long double>(im), static_cast<long double>(re));
    const float factor = ldexpf(1.0f, sf < -1000 ? 1000 : -sf);  // the single-precision factor (infinite from -128 on)
    if (sf >= -28) {
        const float af = static_cast<float>(a);  // the angle in single precision
        return saturateL<int16_t>(roundEven(static_cast<long double>(af * factor)));
    }
    const long double v = static_cast<long double>(static_cast<double>(a)) * factor;
    if (v != v) return 0;
    return saturateL<int16_t>(v < 0 ? ceill(v - 0.5L) : floorl(v + 0.5L));
}

// x - val * prev exactly, nearest with ties to even, saturated.
inline int16_t preemphasize16(int16_t x, int16_t prev, float val) {
    const long double v = static_cast<long double>(x) - static_cast<long double>(val) * prev;
    return saturateL<int16_t>(roundEven(v));
}

}  // namespace ref

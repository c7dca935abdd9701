// The division families once for every element type: the float and
// integer quotients, zero divisors (substitutes and the warning), and the
// scale-factor ranges outside which every result is known in advance.
#pragma once

#include <string.h>

#include <type_traits>

#include "arith/family.h"
#include "frame/detail/rounding.h"
#include "kernels/divide.h"

namespace veks {
namespace arith {

inline VekResult warnIf(bool zeroDivisor) { return zeroDivisor ? VEK_WRN_DIV_BY_ZERO : VEK_OK; }

// ---- floating point -------------------------------------------------------------

template <class T>
inline bool isZero(T v) {
    if constexpr (IsComplex<T>::value)
        return v.re == 0 && v.im == 0;
    else
        return v == 0;
}

// Full division (double and complex types).
template <class TD, class SD, class SN>
inline VekResult divideFull(SD divisor, SN dividend, TD* d, int n) {
    return warnIf(kern::divideFullLoop(divisor, dividend, d, n));
}

template <class SD, class SN>
inline VekResult divide32f(SD divisor, SN dividend, T32f* d, int n) {
    return warnIf(kern::divide32fLoop(divisor, dividend, d, n));
}

// ---- integers ------------------------------------------------------------------

// The scale factors over which the quotient is computed; outside them every
// result is 0 (above) or decided by signs alone (below). For each pair of
// types these are the first scale factors at which that holds under
// rounding to nearest: the smallest non-zero quotient times 2^-sf passes the
// range below lo, the largest times 2^-sf rounds to 0 above hi. The forms
// with a rounding mode round ties away too, so T16s keeps sf 16 there.
template <class TDivisor, class TDividend>
struct DivRange;
template <> struct DivRange<T16s, T16s> { static constexpr int lo = -30, hi = 15, hiRound = 16; };
template <> struct DivRange<T16u, T16u> { static constexpr int lo = -31, hi = 16, hiRound = 16; };
template <> struct DivRange<T8u, T8u> { static constexpr int lo = -15, hi = 8, hiRound = 8; };
template <> struct DivRange<T32s, T32s> { static constexpr int lo = -61, hi = 31, hiRound = 31; };
template <> struct DivRange<T32s, T16s> { static constexpr int lo = -45, hi = 15, hiRound = 15; };

template <class TD>
inline TD zeroDivisorResult(int64_t dividend) {
    return static_cast<TD>(dividend > 0 ? Range<TD>::hi : dividend < 0 ? Range<TD>::lo : 0);
}

// dividend / divisor * 2^-sf for integers; mode kRoundCurrent or a rounding
// mode (already validated).
template <class TD, class SD, class SN>
inline VekResult divideInt(SD divisor, SN dividend, TD* d, int n, int sf, int mode) {
    using E1 = typename SD::Elem;
    using E2 = typename SN::Elem;
    using R = DivRange<E1, E2>;
    const int hi = mode == kern::kRoundCurrent ? R::hi : R::hiRound;
    bool z = false;
    if (sf > hi || sf < R::lo) {
        for (int i = 0; i < n; ++i) {
            const int64_t a = at(divisor, i), b = at(dividend, i);
            z |= a == 0;
            if (a == 0 || sf < R::lo)
                d[i] = zeroDivisorResult<TD>(a < 0 ? -b : b);  // the sign of the quotient
            else
                d[i] = 0;
        }
        return warnIf(z);
    }
    switch (mode) {
        case VEK_ROUND_ZERO: {
            const RoundingGuard nearest(RoundingGuard::Nearest);
            z = kern::divideIntLoop<TD, VEK_ROUND_ZERO>(divisor, dividend, d, n, sf);
            break;
        }
        case VEK_ROUND_NEAR: {
            const RoundingGuard nearest(RoundingGuard::Nearest);
            z = kern::divideIntLoop<TD, VEK_ROUND_NEAR>(divisor, dividend, d, n, sf);
            break;
        }
        case VEK_ROUND_HALF_AWAY: {
            const RoundingGuard nearest(RoundingGuard::Nearest);
            z = kern::divideIntLoop<TD, VEK_ROUND_HALF_AWAY>(divisor, dividend, d, n, sf);
            break;
        }
        default:
            z = kern::divideIntLoop<TD, kern::kRoundCurrent>(divisor, dividend, d, n, sf);
    }
    return warnIf(z);
}

// Complex 16-bit quotients: exact numerators and denominator, one division
// in double (the quotient of two integers below 2^32 comes out exact enough
// that rounding it to an integer rounds the exact rational), scaled, then
// converted by the processor's rounding setting and saturated part by part.
// A zero divisor gives each part the substitute of its dividend part.
template <class SD, class SN>
inline VekResult divide16sc(SD divisor, SN dividend, T16sc* d, int n, int sf) {
    const int k = sf < -200 ? 200 : sf > 200 ? -200 : -sf;
    bool z = false;
    auto part = [k](int64_t num, int64_t den) -> T16s {
        double v = ldexp(static_cast<double>(num) / static_cast<double>(den), k);
        v = v < -32768.0 ? -32768.0 : v > 32767.0 ? 32767.0 : v;
        return static_cast<T16s>(_mm_cvtsd_si32(_mm_set_sd(v)));
    };
    for (int i = 0; i < n; ++i) {
        const T16sc a = at(divisor, i), b = at(dividend, i);
        if (a.re == 0 && a.im == 0) {
            z = true;
            d[i].re = zeroDivisorResult<T16s>(b.re);
            d[i].im = zeroDivisorResult<T16s>(b.im);
            continue;
        }
        const int64_t m = int64_t(a.re) * a.re + int64_t(a.im) * a.im;
        const int64_t re = int64_t(b.re) * a.re + int64_t(b.im) * a.im;
        const int64_t im = int64_t(b.im) * a.re - int64_t(b.re) * a.im;
        d[i].re = part(re, m);
        d[i].im = part(im, m);
    }
    return warnIf(z);
}

// x / val * 2^-sf to nearest, ties to even, saturated to T64s, from the
// exact rational (val != 0): the integer quotient and remainder, then one
// bit at a time for a left scale, or the dropped bits for a right one.
inline T64s divScale64(T64s x, T64s val, int sf) {
    if (x == 0) return 0;
    const bool neg = (x < 0) != (val < 0);
    const uint64_t X = x < 0 ? 0ull - static_cast<uint64_t>(x) : static_cast<uint64_t>(x);
    const uint64_t V = val < 0 ? 0ull - static_cast<uint64_t>(val) : static_cast<uint64_t>(val);
    const uint64_t limit = neg ? (1ull << 63) : (1ull << 63) - 1;  // largest magnitude of the result
    uint64_t q = X / V, r = X % V;                                  // x / val = q + r / V
    bool up;
    if (sf <= 0) {
        const int64_t k = -static_cast<int64_t>(sf);
        for (int64_t i = 0; i < k; ++i) {
            if (q > (limit >> 1)) return neg ? INT64_MIN : INT64_MAX;  // doubling passes the limit
            const bool bit = r >= V - r;  // 2r >= V without overflow
            q = (q << 1) | (bit ? 1u : 0u);
            r = bit ? r - (V - r) : r << 1;
        }
        if (q > limit) return neg ? INT64_MIN : INT64_MAX;
        up = r > V - r || (r == V - r && (q & 1));
    } else {
        if (sf > 64) return 0;  // q + r / V < 2^64, so the quotient is below one half
        const uint64_t dropped = sf == 64 ? q : q & ((1ull << sf) - 1);
        const uint64_t half = 1ull << (sf - 1);
        q = sf == 64 ? 0 : q >> sf;
        up = dropped > half || (dropped == half && (r != 0 || (q & 1)));
    }
    q += up ? 1 : 0;
    if (q > limit) return neg ? INT64_MIN : INT64_MAX;
    return neg ? static_cast<T64s>(0ull - q) : static_cast<T64s>(q);
}

}  // namespace arith
}  // namespace veks

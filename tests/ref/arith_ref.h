// Reference models of the arithmetic families, written from their rules as
// plain scalar code. Integer results go through ref::scale (the scale rule
// derived from quotient and remainder); 64-bit families through a small
// sign-magnitude model of the exact value.
#pragma once

#include <math.h>
#include <stdint.h>
#include <xmmintrin.h>

#include <limits>

#include "ref/scale_ref.h"
#include "veks.h"

namespace ref {

// ---- exact values beyond 64 bits ----------------------------------------

// Sign and a 128-bit magnitude (hi:lo).
struct Big {
    bool neg = false;
    uint64_t hi = 0, lo = 0;
};

inline Big bigOf(int64_t v) {
    Big b;
    b.neg = v < 0;
    b.lo = v < 0 ? 0ull - static_cast<uint64_t>(v) : static_cast<uint64_t>(v);
    return b;
}
inline Big bigOfU(uint64_t v) {
    Big b;
    b.lo = v;
    return b;
}

inline int cmpMag(const Big& a, const Big& b) {
    if (a.hi != b.hi) return a.hi < b.hi ? -1 : 1;
    if (a.lo != b.lo) return a.lo < b.lo ? -1 : 1;
    return 0;
}

inline Big addBig(Big a, Big b) {
    Big r;
    if (a.neg == b.neg) {
        r.neg = a.neg;
        r.lo = a.lo + b.lo;
        r.hi = a.hi + b.hi + (r.lo < a.lo);
    } else {
        if (cmpMag(a, b) < 0) std::swap(a, b);
        r.neg = a.neg;
        r.lo = a.lo - b.lo;
        r.hi = a.hi - b.hi - (a.lo < b.lo);
    }
    if (r.hi == 0 && r.lo == 0) r.neg = false;
    return r;
}
inline Big negBig(Big a) {
    if (a.hi || a.lo) a.neg = !a.neg;
    return a;
}

// Long multiplication over 32-bit limbs of magnitudes below 2^64.
inline Big mulBig(const Big& a, const Big& b) {
    const uint32_t al[2] = {static_cast<uint32_t>(a.lo), static_cast<uint32_t>(a.lo >> 32)};
    const uint32_t bl[2] = {static_cast<uint32_t>(b.lo), static_cast<uint32_t>(b.lo >> 32)};
    uint32_t r[4] = {0, 0, 0, 0};
    for (int i = 0; i < 2; ++i) {
        uint64_t carry = 0;
        for (int j = 0; j < 2; ++j) {
            const uint64_t t = static_cast<uint64_t>(al[i]) * bl[j] + r[i + j] + carry;
            r[i + j] = static_cast<uint32_t>(t);
            carry = t >> 32;
        }
        r[i + 2] = static_cast<uint32_t>(carry);
    }
    Big p;
    p.lo = r[0] | static_cast<uint64_t>(r[1]) << 32;
    p.hi = r[2] | static_cast<uint64_t>(r[3]) << 32;
    p.neg = (p.lo || p.hi) && (a.neg != b.neg);
    return p;
}
inline Big mulBig(int64_t x, int64_t y) { return mulBig(bigOf(x), bigOf(y)); }

// Scale rule on a Big, saturated to [lo, hi] (given as Bigs): magnitude
// divided by 2^sf with the remainder compared to one half, ties to even.
inline Big scaleBig(Big v, int sf, const Big& lo, const Big& hi) {
    if (sf > 0) {
        Big q, rem;
        if (sf >= 128) {
            q = Big();
            rem = v;  // the whole magnitude is remainder, below half of 2^sf
            v = Big();
        } else {
            // q = mag >> sf, rem = mag & (2^sf - 1)
            if (sf >= 64) {
                q.lo = v.hi >> (sf - 64);
                rem.hi = sf == 64 ? 0 : v.hi & ((1ull << (sf - 64)) - 1);
                rem.lo = v.lo;
            } else {
                q.lo = (v.lo >> sf) | (v.hi << (64 - sf));
                q.hi = v.hi >> sf;
                rem.lo = v.lo & ((1ull << sf) - 1);
            }
            // compare rem with 2^(sf-1)
            Big half;
            if (sf - 1 >= 64)
                half.hi = 1ull << (sf - 1 - 64);
            else
                half.lo = 1ull << (sf - 1);
            const int c = cmpMag(rem, half);
            if (c > 0 || (c == 0 && (q.lo & 1))) {
                q.lo += 1;
                if (q.lo == 0) q.hi += 1;
            }
            q.neg = v.neg && (q.lo || q.hi);
            v = q;
        }
    } else if (sf < 0) {
        const int64_t k = -static_cast<int64_t>(sf);
        for (int64_t i = 0; i < k && (v.lo || v.hi); ++i) {
            if (v.hi >> 62) break;  // already far beyond every 64-bit range
            v.hi = (v.hi << 1) | (v.lo >> 63);
            v.lo <<= 1;
        }
    }
    // saturate: compare signed values
    auto less = [](const Big& a, const Big& b) {
        if (a.neg != b.neg) return a.neg;
        const int c = cmpMag(a, b);
        return a.neg ? c > 0 : c < 0;
    };
    if (less(v, lo)) return lo;
    if (less(hi, v)) return hi;
    return v;
}

// The scale rule on an exact value, saturated to the range of T.
template <class T>
T scaleWide(const Big& v, int sf) {
    using L = std::numeric_limits<T>;
    const Big r = scaleBig(v, sf, L::is_signed ? bigOf(L::min()) : Big(), bigOfU(static_cast<uint64_t>(L::max())));
    return static_cast<T>(r.neg ? 0ull - r.lo : r.lo);
}

// ---- the lane operations ---------------------------------------------------

enum class Op { Add, Sub, SubRev, Mul };  // Sub: x2 - x1; SubRev: x1 - x2

template <class T>
T apply(Op op, T x1, T x2) {
    switch (op) {
        case Op::Add: return x1 + x2;
        case Op::Sub: return x2 - x1;
        case Op::SubRev: return x1 - x2;
        case Op::Mul: return x1 * x2;
    }
    return 0;
}
inline Big applyBig(Op op, const Big& x1, const Big& x2) {
    switch (op) {
        case Op::Add: return addBig(x1, x2);
        case Op::Sub: return addBig(x2, negBig(x1));
        case Op::SubRev: return addBig(x1, negBig(x2));
        case Op::Mul: return mulBig(x1, x2);
    }
    return Big();
}

template <class C>
C mulComplex(C a, C b) {
    C r;
    r.re = a.re * b.re - a.im * b.im;
    r.im = a.re * b.im + a.im * b.re;
    return r;
}

// ---- division ---------------------------------------------------------------

// Single-precision division by the refined reciprocal: r the hardware
// estimate, e = 1 - d * r, q0 = n * r, q = q0 + (q0 * e + q0) * e.
inline float refinedQuotient(float n, float d) {
    const float r = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(d)));
    const float e = 1.0f - d * r;
    const float q0 = n * r;
    return q0 + (q0 * e + q0) * e;
}

}  // namespace ref

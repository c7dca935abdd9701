// Single-precision atan2, sine and cosine on four lanes, each with a scalar
// twin that performs the same operations in the same order and so gives the
// same bits. The twins finish vector tails and are the kernels' oracles.
//
// Accuracy, measured against long double over dense sweeps and the edge
// values (zeros of both signs, infinities, NaN, subnormals, range ends);
// docs/performance-data.md has the figures and how they were taken:
//   atan2v / atan2s  at most 2 ulp for every pair of finite or infinite
//                    inputs, special cases as the C library's atan2
//                    (signed zeros give +-0 or +-pi, infinities the
//                    multiples of pi/4); NaN in, NaN out.
//   sincosv / sincoss at most 2 ulp where the nearest multiple k of pi/2
//                    is at most kSinCosMaxQuadrant (|x| up to about
//                    4097.4; reduction by pi/2 in four parts, exact
//                    products); beyond it, and for
//                    infinities and NaN, the lanes take the double-precision
//                    sincosd of math_f64.h rounded to single.
#pragma once

#include <math.h>
#include <smmintrin.h>
#include <stdint.h>
#include <string.h>

#include "kernels/math_f64.h"

namespace veks {
namespace kern {

// A constant in all four lanes, kept as a 16-byte literal. The kernels reach
// their table of literals through a pointer the optimiser cannot see through
// (opaque), so it reads them as memory operands instead of rebuilding each
// one from a scalar on every step.
struct alignas(16) Splat {
    float v[4];
    constexpr Splat(float x) : v{x, x, x, x} {}
    __m128 operator()() const { return _mm_load_ps(v); }
};

template <class T>
inline const T* opaque(const T* p) {
    __asm__("" : "+r"(p));
    return p;
}

// ---- atan2 ---------------------------------------------------------------
//
// With ax = |x|, ay = |y|, mn = min, mx = max: atan(mn / mx) lies in
// [0, pi/4]. Above tan(pi/8) it is pi/4 + atan((mn - mx) / (mn + mx)), so
// the polynomial only ever sees |t| <= tan(pi/8). The octant, the half plane
// of x and the sign of y then give angle = m * pi/4 +- atan(t) with m in
// 0..4; m * pi/4 is carried in two parts so that only the last addition
// rounds. Inputs above 2^125 are quartered first (exactly) so that mn + mx
// cannot overflow.

struct Atan2Consts {
    static constexpr float tanPi8 = 0.41421356797218322754f;
    static constexpr float pio4Hi = 0.78539848327636718750f;  // 20 bits: m * pio4Hi is exact
    static constexpr float pio4Lo = -3.1987892157303577e-07f;
    static constexpr float big = 4.2535295865117308e37f;  // 2^125
    // atan(t) = t + t * u * P(u), u = t^2, minimax on [0, tan^2(pi/8)].
    static constexpr float p0 = -0.3333333176116852f;
    static constexpr float p1 = 0.19999540483648964f;
    static constexpr float p2 = -0.1426395559798464f;
    static constexpr float p3 = 0.10743731490791084f;
    static constexpr float p4 = -0.06451928208121749f;
};

inline bool signBit(float v) {
    uint32_t b;
    memcpy(&b, &v, 4);
    return (b >> 31) != 0;
}

// |mag| with the sign of s.
inline float withSignOf(float mag, float s) {
    uint32_t m, b;
    memcpy(&m, &mag, 4);
    memcpy(&b, &s, 4);
    m = (m & 0x7FFFFFFFu) | (b & 0x80000000u);
    float r;
    memcpy(&r, &m, 4);
    return r;
}

inline float atan2s(float y, float x) {
    using C = Atan2Consts;
    if (x != x || y != y) return x + y;
    float ax = fabsf(x), ay = fabsf(y);
    if (ax == __builtin_inff() && ay == __builtin_inff()) ax = ay = 1.0f;
    const bool swap = ay > ax;
    float mx = swap ? ay : ax, mn = swap ? ax : ay;
    if (mx > C::big) {
        mx = mx * 0.25f;
        mn = mn * 0.25f;
    }
    const bool reduce = mn > mx * C::tanPi8;
    const float num = reduce ? mn - mx : mn;
    float den = reduce ? mn + mx : mx;
    if (den == 0.0f) den = 1.0f;
    const float t = num / den;
    const float u = t * t;
    float p = C::p4;
    p = p * u + C::p3;
    p = p * u + C::p2;
    p = p * u + C::p1;
    p = p * u + C::p0;
    const float at = t + t * (u * p);
    const bool xneg = signBit(x);
    const bool flip = swap != xneg;
    const float off = swap ? 2.0f : xneg ? 4.0f : 0.0f;
    const float cb = reduce ? 1.0f : 0.0f;
    const float m = off + (flip ? -cb : cb);
    const float sat = flip ? -at : at;
    const float res = m * C::pio4Hi + (m * C::pio4Lo + sat);
    return withSignOf(res, y);
}

// The same constants as 16-byte literals.
struct Atan2Lanes {
    Splat tanPi8, pio4Hi, pio4Lo, big, p0, p1, p2, p3, p4, one, quarter, two, four, inf, signMask;
};
inline constexpr Atan2Lanes kAtan2Lanes = {
    Atan2Consts::tanPi8, Atan2Consts::pio4Hi, Atan2Consts::pio4Lo, Atan2Consts::big, Atan2Consts::p0,
    Atan2Consts::p1,     Atan2Consts::p2,     Atan2Consts::p3,     Atan2Consts::p4,  1.0f,
    0.25f,               2.0f,                4.0f,                __builtin_inff(), -0.0f};

inline __m128 atan2v(__m128 y, __m128 x) {
    const Atan2Lanes& V = *opaque(&kAtan2Lanes);
    const __m128 signMask = V.signMask();
    const __m128 one = V.one();
    const __m128 inf = V.inf();
    __m128 ax = _mm_andnot_ps(signMask, x), ay = _mm_andnot_ps(signMask, y);
    const __m128 bothInf = _mm_and_ps(_mm_cmpeq_ps(ax, inf), _mm_cmpeq_ps(ay, inf));
    ax = _mm_blendv_ps(ax, one, bothInf);
    ay = _mm_blendv_ps(ay, one, bothInf);
    const __m128 swap = _mm_cmpgt_ps(ay, ax);
    __m128 mx = _mm_blendv_ps(ax, ay, swap), mn = _mm_blendv_ps(ay, ax, swap);
    const __m128 big = _mm_cmpgt_ps(mx, V.big());
    const __m128 scale = _mm_blendv_ps(one, V.quarter(), big);
    mx = _mm_mul_ps(mx, scale);
    mn = _mm_mul_ps(mn, scale);
    const __m128 reduce = _mm_cmpgt_ps(mn, _mm_mul_ps(mx, V.tanPi8()));
    const __m128 num = _mm_blendv_ps(mn, _mm_sub_ps(mn, mx), reduce);
    __m128 den = _mm_blendv_ps(mx, _mm_add_ps(mn, mx), reduce);
    den = _mm_blendv_ps(den, one, _mm_cmpeq_ps(den, _mm_setzero_ps()));
    const __m128 t = _mm_div_ps(num, den);
    const __m128 u = _mm_mul_ps(t, t);
    __m128 p = V.p4();
    p = _mm_add_ps(_mm_mul_ps(p, u), V.p3());
    p = _mm_add_ps(_mm_mul_ps(p, u), V.p2());
    p = _mm_add_ps(_mm_mul_ps(p, u), V.p1());
    p = _mm_add_ps(_mm_mul_ps(p, u), V.p0());
    const __m128 at = _mm_add_ps(t, _mm_mul_ps(t, _mm_mul_ps(u, p)));
    const __m128 xneg = _mm_castsi128_ps(_mm_srai_epi32(_mm_castps_si128(x), 31));
    const __m128 flip = _mm_and_ps(_mm_xor_ps(swap, xneg), signMask);
    const __m128 off = _mm_blendv_ps(_mm_and_ps(xneg, V.four()), V.two(), swap);
    const __m128 cb = _mm_and_ps(reduce, one);
    const __m128 m = _mm_add_ps(off, _mm_xor_ps(cb, flip));
    const __m128 sat = _mm_xor_ps(at, flip);
    __m128 res = _mm_add_ps(_mm_mul_ps(m, V.pio4Hi()),
                            _mm_add_ps(_mm_mul_ps(m, V.pio4Lo()), sat));
    res = _mm_or_ps(_mm_andnot_ps(signMask, res), _mm_and_ps(signMask, y));
    const __m128 nan = _mm_cmpunord_ps(x, y);
    return _mm_blendv_ps(res, _mm_add_ps(x, y), nan);
}

// ---- sine and cosine -----------------------------------------------------
//
// On |x|: k = nearest integer to |x| * 2/pi, r = |x| - k * pi/2 with pi/2 in
// four parts (three of 12 bits, so that k * part is exact for |k| < 2^12),
// then the classic minimax polynomials on [-pi/4, pi/4], the quadrant k mod 4
// and the sign of x on the sine.

struct SinCosConsts {
    static constexpr float twoOverPi = 0.63661974668502807617f;
    static constexpr float c1 = 1.57080078125f;
    static constexpr float c2 = -4.453584551811218e-06f;
    static constexpr float c3 = -8.706138032721356e-10f;
    static constexpr float c4 = 6.223371969669989e-14f;
    static constexpr float s1 = -1.6666654611e-1f;
    static constexpr float s2 = 8.3321608736e-3f;
    static constexpr float s3 = -1.9515295891e-4f;
    static constexpr float k1 = 4.166664568298827e-2f;
    static constexpr float k2 = -1.388731625493765e-3f;
    static constexpr float k3 = 2.443315711809948e-5f;
};

// Largest k = nearest integer to |x| * 2/pi on the polynomial path (that of
// |x| = 4096; the reduction's products are exact for k below 2^12). The
// range is told by k rather than by |x| because the vector path has k at
// hand: one unsigned maximum per group tests it, NaN and infinities
// included (their conversion gives 0x80000000).
constexpr int kSinCosMaxQuadrant = 2608;

struct SinCosLanes {
    Splat twoOverPi, c1, c2, c3, c4, s1, s2, s3, k1, k2, k3, half, one, signMask;
};
inline constexpr SinCosLanes kSinCosLanes = {
    SinCosConsts::twoOverPi, SinCosConsts::c1, SinCosConsts::c2, SinCosConsts::c3, SinCosConsts::c4,
    SinCosConsts::s1,        SinCosConsts::s2, SinCosConsts::s3, SinCosConsts::k1, SinCosConsts::k2,
    SinCosConsts::k3,        0.5f,             1.0f,             -0.0f};



inline bool sinCosInRange(float x) {
    return __builtin_roundevenf(fabsf(x) * SinCosConsts::twoOverPi) <= static_cast<float>(kSinCosMaxQuadrant);
}

inline void sincoss(float x, float* s, float* c) {
    using C = SinCosConsts;
    if (!sinCosInRange(x)) {
        double sd, cd;
        sincosd(static_cast<double>(x), &sd, &cd);
        *s = static_cast<float>(sd);
        *c = static_cast<float>(cd);
        return;
    }
    // Sine is odd and cosine even, and every step below (products,
    // differences, rounding to nearest even) is symmetric in sign, so the
    // work is done on |x| and the sign of x put on the sine at the end; that
    // also gives -0 for -0.
    const float ax = fabsf(x);
    const float kf = __builtin_roundevenf(ax * C::twoOverPi);
    const int k = static_cast<int>(kf);
    float r = ax - kf * C::c1;
    r = r - kf * C::c2;
    r = r - kf * C::c3;
    r = r - kf * C::c4;
    // sin(r) = r + r z (s1 + z (s2 + z s3)) and cos(r) = 1 + z (-1/2 +
    // z (k1 + z (k2 + z k3))), z = r^2.
    const float z = r * r;
    const float ps = C::s1 + z * (C::s2 + z * C::s3);
    const float sr = r + (r * z) * ps;
    const float pc = C::k1 + z * (C::k2 + z * C::k3);
    const float cr = 1.0f + z * (z * pc - 0.5f);
    const float so = (k & 1) ? cr : sr, co = (k & 1) ? sr : cr;
    const float sv = (k & 2) ? -so : so;
    *s = signBit(x) ? -sv : sv;
    *c = ((k + 1) & 2) ? -co : co;
}

// Sine and cosine of G groups of four lanes, every step done for all groups
// before the next. The chains are long (about 45 cycles); written group
// after group, the processor's window holds little more than two of them at
// a time, while interleaved all G advance together. Returns whether any
// lane is out of range (sinCosInRange false), and then leaves s and c
// unwritten: the caller takes the scalar path.
template <size_t G>
inline int sincosvGroups(const __m128* x, __m128* s, __m128* c) {
    const SinCosLanes& V = *opaque(&kSinCosLanes);
    __m128 kf[G], r[G], z[G], sr[G], cr[G];
    __m128i k[G];
    for (size_t g = 0; g < G; ++g) {
        const __m128 ax = _mm_andnot_ps(V.signMask(), x[g]);
        kf[g] = _mm_round_ps(_mm_mul_ps(ax, V.twoOverPi()), _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
        k[g] = _mm_cvtps_epi32(kf[g]);
        r[g] = _mm_sub_ps(ax, _mm_mul_ps(kf[g], V.c1()));
    }
    {
        __m128i kMax = k[0];
        for (size_t g = 1; g < G; ++g) kMax = _mm_max_epu32(kMax, k[g]);
        const __m128i beyond = _mm_set1_epi32(kSinCosMaxQuadrant + 1);
        if (const int out = _mm_movemask_epi8(_mm_cmpeq_epi32(_mm_max_epu32(kMax, beyond), kMax))) return out;
    }
    for (size_t g = 0; g < G; ++g) r[g] = _mm_sub_ps(r[g], _mm_mul_ps(kf[g], V.c2()));
    for (size_t g = 0; g < G; ++g) r[g] = _mm_sub_ps(r[g], _mm_mul_ps(kf[g], V.c3()));
    for (size_t g = 0; g < G; ++g) r[g] = _mm_sub_ps(r[g], _mm_mul_ps(kf[g], V.c4()));
    for (size_t g = 0; g < G; ++g) z[g] = _mm_mul_ps(r[g], r[g]);
    for (size_t g = 0; g < G; ++g) {
        const __m128 ps = _mm_add_ps(V.s1(), _mm_mul_ps(z[g], _mm_add_ps(V.s2(), _mm_mul_ps(z[g], V.s3()))));
        const __m128 pc = _mm_add_ps(V.k1(), _mm_mul_ps(z[g], _mm_add_ps(V.k2(), _mm_mul_ps(z[g], V.k3()))));
        sr[g] = _mm_add_ps(r[g], _mm_mul_ps(_mm_mul_ps(r[g], z[g]), ps));
        cr[g] = _mm_add_ps(V.one(), _mm_mul_ps(z[g], _mm_sub_ps(_mm_mul_ps(z[g], pc), V.half())));
    }
    // Bit 0 of k, moved to the sign bit, selects the swapped polynomials;
    // bit 1 of k (of k + 1 for the cosine, which is bit 1 of k flipped by
    // bit 0) the negated result. The sine takes the sign of x as well.
    for (size_t g = 0; g < G; ++g) {
        const __m128 odd = _mm_castsi128_ps(_mm_slli_epi32(k[g], 31));
        const __m128 so = _mm_blendv_ps(sr[g], cr[g], odd), co = _mm_blendv_ps(cr[g], sr[g], odd);
        const __m128 quadrant =
            _mm_castsi128_ps(_mm_and_si128(_mm_slli_epi32(k[g], 30), _mm_castps_si128(V.signMask())));
        s[g] = _mm_xor_ps(so, _mm_xor_ps(quadrant, _mm_and_ps(x[g], V.signMask())));
        c[g] = _mm_xor_ps(co, _mm_xor_ps(quadrant, odd));
    }
    return 0;
}

inline int sincosv(__m128 x, __m128* s, __m128* c) { return sincosvGroups<1>(&x, s, c); }

}  // namespace kern
}  // namespace veks

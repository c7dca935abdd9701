// Double-precision atan2, sine and cosine built from basic IEEE operations
// only, so that 32-bit and 64-bit x86 builds give the same bits (the C
// library's versions differ between the two). Used by the double-precision
// phase and polar members, the integer members that compute through double
// and the single-precision sine/cosine lanes beyond the polynomial range.
//
// Accuracy against long double: atan2d at most 2 ulp; sincosd at most 2 ulp
// for |x| < 2^46 * pi/2 (about 1.1e14), where the reduction by pi/2 uses
// exact products; beyond, the reduction loses bits progressively (the
// results stay identical on both targets). Special values as the C
// library: signed zeros and infinities in atan2, NaN for infinite or NaN
// sine and cosine arguments.
#pragma once

#include <stdint.h>
#include <string.h>

namespace veks {
namespace kern {

struct Atan2dConsts {
    static constexpr double tanPi8 = 0.41421356237309503;
    static constexpr double pio4Hi = 0.7853981633974483;  // m * pio4Hi exact for m <= 4
    static constexpr double pio4Lo = 3.061616997868383e-17;
    static constexpr double big = 2.2471164185778949e307;  // 2^1021
    // atan(t) = t + t * u * P(u), u = t^2, minimax on [0, tan^2(pi/8)],
    // highest degree first.
    static constexpr double p[12] = {0.016285756855221028,  -0.034570561981427744, 0.04551593220626549,
                                     -0.05230454270650244,  0.05878928997834775,   -0.06666424885738255,
                                     0.07692296375032143,   -0.09090908753500877,  0.11111111105155447,
                                     -0.14285714285659828,  0.19999999999999804,   -0.3333333333333333};
};

inline bool signBitD(double v) {
    uint64_t b;
    memcpy(&b, &v, 8);
    return (b >> 63) != 0;
}

inline double absD(double v) { return signBitD(v) ? -v : v; }

// |mag| with the sign of s.
inline double withSignOfD(double mag, double s) {
    uint64_t m, b;
    memcpy(&m, &mag, 8);
    memcpy(&b, &s, 8);
    m = (m & 0x7FFFFFFFFFFFFFFFull) | (b & 0x8000000000000000ull);
    double r;
    memcpy(&r, &m, 8);
    return r;
}

// Same reduction as the single-precision kernel: octant, |t| <= tan(pi/8),
// angle = m * pi/4 +- atan(t) with m * pi/4 in two parts.
inline double atan2d(double y, double x) {
    using C = Atan2dConsts;
    if (x != x || y != y) return x + y;
    double ax = absD(x), ay = absD(y);
    if (ax == __builtin_inf() && ay == __builtin_inf()) ax = ay = 1.0;
    const bool swap = ay > ax;
    double mx = swap ? ay : ax, mn = swap ? ax : ay;
    if (mx > C::big) {
        mx = mx * 0.25;
        mn = mn * 0.25;
    }
    const bool reduce = mn > mx * C::tanPi8;
    const double num = reduce ? mn - mx : mn;
    double den = reduce ? mn + mx : mx;
    if (den == 0.0) den = 1.0;
    const double t = num / den;
    const double u = t * t;
    double p = C::p[0];
    for (int i = 1; i < 12; ++i) p = p * u + C::p[i];
    const double at = t + t * (u * p);
    const bool xneg = signBitD(x);
    const bool flip = swap != xneg;
    const double off = swap ? 2.0 : xneg ? 4.0 : 0.0;
    const double cb = reduce ? 1.0 : 0.0;
    const double m = off + (flip ? -cb : cb);
    const double sat = flip ? -at : at;
    const double res = m * C::pio4Hi + (m * C::pio4Lo + sat);
    return withSignOfD(res, y);
}

struct SinCosdConsts {
    static constexpr double twoOverPi = 0.6366197723675814;
    // pi/2 in five parts, the first four of 26 bits: k * part is exact for
    // |k| < 2^27.
    static constexpr double c[5] = {1.5707963407039642, -1.3909067675399456e-08, 6.123233932053594e-17,
                                    6.368317178484799e-25, -1.4973849048591698e-33};
    // pi/2 in 25 parts, the first 24 of 7 bits: k * part is exact for
    // |k| < 2^46, for arguments far from zero.
    static constexpr double w[25] = {
        1.578125, -0.00732421875, -4.470348358154297e-06, 1.5832483768463135e-08, 6.093614501878619e-11,
        -1.652011860642233e-13, 6.158268339717665e-17, -3.4897757426877174e-19, -1.3631936494873896e-21,
        -2.662487596655058e-24, -9.390600215750925e-27, -1.2523166870383562e-29, -1.3866695599588098e-32,
        4.325819211026018e-35, 1.013863877584223e-37, -5.280541029084495e-40, 2.0739217272007293e-43,
        -6.897015879098709e-46, 7.37683059985446e-49, 2.171621326949909e-51, -4.20066475127405e-54,
        -3.8234205867178855e-57, 2.528099956631089e-60, 1.8231490071858814e-62, -2.565058724745924e-65};
    // sin(r) = r + r z S(z), cos(r) = 1 + (z^2 K(z) - z / 2), z = r^2: the
    // Taylor coefficients, highest degree first (the first omitted terms are
    // below 1e-19 on [-pi/4, pi/4]).
    static constexpr double s[8] = {2.8114572543455206e-15, -7.647163731819816e-13, 1.6059043836821613e-10,
                                    -2.505210838544172e-08, 2.7557319223985893e-06, -0.0001984126984126984,
                                    0.008333333333333333,   -0.16666666666666666};
    static constexpr double k[8] = {-1.5619206968586225e-16, 4.779477332387385e-14, -1.1470745597729725e-11,
                                    2.08767569878681e-09,    -2.755731922398589e-07, 2.48015873015873e-05,
                                    -0.001388888888888889,   0.041666666666666664};
};

inline void sincosd(double x, double* s, double* c) {
    using C = SinCosdConsts;
    if (!(absD(x) <= 1.7976931348623157e308)) {  // infinite or NaN
        *s = *c = x - x;
        return;
    }
    const double kf = __builtin_roundeven(x * C::twoOverPi);
    // Each step subtracts an exact product from a value it nearly cancels,
    // so only the last steps round, at the scale of the result.
    double r;
    if (absD(kf) < 134217728.0) {  // 2^27
        r = x - kf * C::c[0];
        for (int i = 1; i < 5; ++i) r = r - kf * C::c[i];
    } else {
        // Far from zero many steps would round at the scale of the result:
        // their rounding errors are collected and added back once.
        r = x;
        double comp = 0.0;
        for (int i = 0; i < 25; ++i) {
            const double p = kf * C::w[i];
            const double t = r - p;
            comp += absD(r) >= absD(p) ? (r - t) - p : (r - (t + p));
            r = t;
        }
        r = r + comp;
    }
    // k mod 4, exact for every kf (beyond 2^53 every kf is a multiple of 4).
    const double q = kf - 4.0 * __builtin_floor(kf * 0.25);
    const int quadrant = static_cast<int>(q);
    const double z = r * r;
    double ps = C::s[0];
    for (int i = 1; i < 8; ++i) ps = ps * z + C::s[i];
    const double sr = r + (r * z) * ps;
    double pc = C::k[0];
    for (int i = 1; i < 8; ++i) pc = pc * z + C::k[i];
    const double cr = 1.0 + ((z * z) * pc - 0.5 * z);
    const double so = (quadrant & 1) ? cr : sr, co = (quadrant & 1) ? sr : cr;
    const double sv = (quadrant & 2) ? -so : so;
    *s = x == 0.0 ? x : sv;  // sin(-0) = -0
    *c = ((quadrant + 1) & 2) ? -co : co;
}

}  // namespace kern
}  // namespace veks

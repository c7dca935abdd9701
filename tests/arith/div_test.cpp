// Division families against models written from their rules.
#include <fenv.h>

#include "harness.h"

namespace {

using at::Shape;
template <class T1, class T2, class TD>
using C = at::Case<T1, T2, TD>;

constexpr int kCurrent = -1;  // rounding by the processor's setting (the default: nearest even)

// Integer quotient: the single-precision quotient of the converted operands
// (rounded to nearest), times 2^-sf, rounded by the mode, saturated; a zero
// divisor gives 0 or the end of the range by the dividend's sign. Every
// scale factor goes through this one rule.
template <class TD>
TD divIntOne(int64_t divisor, int64_t dividend, int sf, int mode) {
    if (divisor == 0) {
        return dividend > 0 ? std::numeric_limits<TD>::max() : dividend < 0 ? std::numeric_limits<TD>::min() : TD(0);
    }
    const float q = static_cast<float>(dividend) / static_cast<float>(divisor);
    const int s = sf < -400 ? -400 : sf > 400 ? 400 : sf;
    const long double v = ldexpl(static_cast<long double>(q), -s);  // exact in the 64-bit mantissa
    long double r;
    switch (mode) {
        case VEK_ROUND_ZERO: r = truncl(v); break;
        case VEK_ROUND_HALF_AWAY: r = roundl(v); break;
        default: r = nearbyintl(v);  // the tests run in the default rounding, to nearest even
    }
    return ref::clampTo<TD>(r);
}

// Swap: the first operand is the dividend (element / constant).
template <class T1, class T2, class TD, bool Swap, int Mode>
VekResult refDivInt(const T1* x1, const T2* x2, TD* d, int n, int sf) {
    bool z = false;
    for (int i = 0; i < n; ++i) {
        const int64_t a = Swap ? int64_t(x2[i]) : int64_t(x1[i]);
        const int64_t b = Swap ? int64_t(x1[i]) : int64_t(x2[i]);
        z |= a == 0;
        d[i] = divIntOne<TD>(a, b, sf, Mode);
    }
    return z ? VEK_WRN_DIV_BY_ZERO : VEK_OK;
}

// Exact rational num / den * 2^-sf to nearest even, saturated to T16s.
T16s ratio16(int64_t num, int64_t den, int sf) {
    if (sf >= -30 && sf <= 30) {
        if (sf < 0) num *= int64_t(1) << -sf;
        if (sf > 0) den *= int64_t(1) << sf;
        int64_t q = num / den, r = num % den;  // toward zero
        const int64_t twice = 2 * (r < 0 ? -r : r);
        if (twice > den || (twice == den && (q % 2 != 0))) q += (num < 0) ? -1 : 1;
        return ref::clampTo<T16s>(q);
    }
    // far scale factors: 0 or saturation, decided well away from any tie
    const int s = sf < -400 ? -400 : sf > 400 ? 400 : sf;
    return ref::clampTo<T16s>(nearbyintl(ldexpl(static_cast<long double>(num) / den, -s)));
}

template <bool Swap>
VekResult refDiv16sc(const T16sc* x1, const T16sc* x2, T16sc* d, int n, int sf) {
    bool z = false;
    for (int i = 0; i < n; ++i) {
        const T16sc a = Swap ? x2[i] : x1[i], b = Swap ? x1[i] : x2[i];
        if (a.re == 0 && a.im == 0) {
            z = true;
            d[i].re = divIntOne<T16s>(0, b.re, 0, kCurrent);
            d[i].im = divIntOne<T16s>(0, b.im, 0, kCurrent);
            continue;
        }
        const int64_t m = int64_t(a.re) * a.re + int64_t(a.im) * a.im;
        d[i].re = ratio16(int64_t(b.re) * a.re + int64_t(b.im) * a.im, m, sf);
        d[i].im = ratio16(int64_t(b.im) * a.re - int64_t(b.re) * a.im, m, sf);
    }
    return z ? VEK_WRN_DIV_BY_ZERO : VEK_OK;
}

// Blocks of four from the first element (the last one shorter): refined
// reciprocal unless the block holds a zero divisor.
template <bool Swap>
VekResult refDiv32f(const T32f* x1, const T32f* x2, T32f* d, int n, int) {
    bool any = false;
    for (int b = 0; b < n; b += 4) {
        const int e = b + 4 < n ? b + 4 : n;
        bool z = false;
        for (int i = b; i < e; ++i) z |= (Swap ? x2[i] : x1[i]) == 0.0f;
        for (int i = b; i < e; ++i) {
            const float a = Swap ? x2[i] : x1[i], q = Swap ? x1[i] : x2[i];
            d[i] = z ? q / a : ref::refinedQuotient(q, a);
        }
        any |= z;
    }
    return any ? VEK_WRN_DIV_BY_ZERO : VEK_OK;
}

// Multiplication by the single-precision reciprocal.
VekResult refDivC32f(const T32f* x1, const T32f* x2, T32f* d, int n, int) {
    for (int i = 0; i < n; ++i) d[i] = x1[i] * (1.0f / x2[i]);
    return VEK_OK;
}

template <class T, bool Swap>
VekResult refDivFull(const T* x1, const T* x2, T* d, int n, int) {
    bool z = false;
    for (int i = 0; i < n; ++i) {
        const T a = Swap ? x2[i] : x1[i], b = Swap ? x1[i] : x2[i];
        if constexpr (at::Cplx<T>::value) {
            z |= a.re == 0 && a.im == 0;
            const auto m = a.re * a.re + a.im * a.im;
            d[i].re = (b.re * a.re + b.im * a.im) / m;
            d[i].im = (b.im * a.re - b.re * a.im) / m;
        } else {
            z |= a == 0;
            d[i] = b / a;
        }
    }
    return z ? VEK_WRN_DIV_BY_ZERO : VEK_OK;
}

// Both forms of a Div_Round export, once per rounding mode, and for modes
// out of range: refused after the common checks, nothing written.
template <class T, class V>
void roundRows(V& v, const char* name, const char* nameI, VekResult (*f)(const T*, const T*, T*, int, int, int),
               VekResult (*fi)(const T*, T*, int, int, int)) {
    for (int mode : {0, 1, 2, -1, 3, INT_MIN}) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        std::function<VekResult(const T*, const T*, T*, int, int)> r = [](const T*, const T*, T*, int, int) { return VEK_ERR_ROUND_MODE; };
        if (mode >= 0 && mode <= 2) r = mode == 0 ? refDivInt<T, T, T, false, 0> : mode == 1 ? refDivInt<T, T, T, false, 1> : refDivInt<T, T, T, false, 2>;
        v(C<T, T, T>{name, Shape::Binary, true, [=](const T* x1, T* x2, T* d, T, int n, int sf) { return f(x1, x2, d, n, mode, sf); }, nullptr, r});
        v(C<T, T, T>{nameI, Shape::BinaryInPlace, true, [=](const T* x1, T* x2, T*, T, int n, int sf) { return fi(x1, x2, n, mode, sf); }, nullptr, r});
    }
}

template <class V>
void visitDiv(V&& v) {
    AT_BIN_SFS(veksDiv_16s_Sfs, T16s, T16s, T16s, nullptr, refDivInt<T16s, T16s, T16s, false, kCurrent>, false);
    AT_BIN_I_SFS(veksDiv_16s_ISfs, T16s, T16s, nullptr, refDivInt<T16s, T16s, T16s, false, kCurrent>, false);
    AT_BIN_SFS(veksDiv_16u_Sfs, T16u, T16u, T16u, nullptr, refDivInt<T16u, T16u, T16u, false, kCurrent>, false);
    AT_BIN_I_SFS(veksDiv_16u_ISfs, T16u, T16u, nullptr, refDivInt<T16u, T16u, T16u, false, kCurrent>, false);
    AT_BIN_SFS(veksDiv_8u_Sfs, T8u, T8u, T8u, nullptr, refDivInt<T8u, T8u, T8u, false, kCurrent>, false);
    AT_BIN_I_SFS(veksDiv_8u_ISfs, T8u, T8u, nullptr, refDivInt<T8u, T8u, T8u, false, kCurrent>, false);
    AT_BIN_SFS(veksDiv_32s_Sfs, T32s, T32s, T32s, nullptr, refDivInt<T32s, T32s, T32s, false, kCurrent>, false);
    AT_BIN_I_SFS(veksDiv_32s_ISfs, T32s, T32s, nullptr, refDivInt<T32s, T32s, T32s, false, kCurrent>, false);
    AT_BIN_SFS(veksDiv_32s16s_Sfs, T32s, T16s, T16s, nullptr, refDivInt<T32s, T16s, T16s, false, kCurrent>, false);
    roundRows<T16s>(v, "veksDiv_Round_16s_Sfs", "veksDiv_Round_16s_ISfs", veksDiv_Round_16s_Sfs, veksDiv_Round_16s_ISfs);
    AT_C_SFS(veksDivC_16s_Sfs, T16s, T16s, nullptr, refDivInt<T16s, T16s, T16s, true, kCurrent>, true);
    AT_C_I_SFS(veksDivC_16s_ISfs, T16s, nullptr, refDivInt<T16s, T16s, T16s, true, kCurrent>, true);
    roundRows<T16u>(v, "veksDiv_Round_16u_Sfs", "veksDiv_Round_16u_ISfs", veksDiv_Round_16u_Sfs, veksDiv_Round_16u_ISfs);
    AT_C_SFS(veksDivC_16u_Sfs, T16u, T16u, nullptr, refDivInt<T16u, T16u, T16u, true, kCurrent>, true);
    AT_C_I_SFS(veksDivC_16u_ISfs, T16u, nullptr, refDivInt<T16u, T16u, T16u, true, kCurrent>, true);
    roundRows<T8u>(v, "veksDiv_Round_8u_Sfs", "veksDiv_Round_8u_ISfs", veksDiv_Round_8u_Sfs, veksDiv_Round_8u_ISfs);
    AT_C_SFS(veksDivC_8u_Sfs, T8u, T8u, nullptr, refDivInt<T8u, T8u, T8u, true, kCurrent>, true);
    AT_C_I_SFS(veksDivC_8u_ISfs, T8u, nullptr, refDivInt<T8u, T8u, T8u, true, kCurrent>, true);
    AT_BIN_SFS(veksDiv_16sc_Sfs, T16sc, T16sc, T16sc, nullptr, refDiv16sc<false>);
    AT_BIN_I_SFS(veksDiv_16sc_ISfs, T16sc, T16sc, nullptr, refDiv16sc<false>);
    AT_C_SFS(veksDivC_16sc_Sfs, T16sc, T16sc, nullptr, refDiv16sc<true>, true);
    AT_C_I_SFS(veksDivC_16sc_ISfs, T16sc, nullptr, refDiv16sc<true>, true);
    AT_C(veksDivCRev_16u, T16u, T16u, nullptr, refDivInt<T16u, T16u, T16u, false, kCurrent>);
    AT_C_I(veksDivCRev_16u_I, T16u, nullptr, refDivInt<T16u, T16u, T16u, false, kCurrent>);
    AT_BIN(veksDiv_32f, T32f, T32f, T32f, nullptr, refDiv32f<false>, false);
    AT_BIN_I(veksDiv_32f_I, T32f, T32f, nullptr, refDiv32f<false>, false);
    AT_C(veksDivCRev_32f, T32f, T32f, nullptr, refDiv32f<false>, false);
    AT_C_I(veksDivCRev_32f_I, T32f, nullptr, refDiv32f<false>, false);
    AT_C(veksDivC_32f, T32f, T32f, nullptr, refDivC32f, true);
    AT_C_I(veksDivC_32f_I, T32f, nullptr, refDivC32f, true);
    AT_BIN(veksDiv_64f, T64f, T64f, T64f, nullptr, refDivFull<T64f, false>, false);
    AT_BIN_I(veksDiv_64f_I, T64f, T64f, nullptr, refDivFull<T64f, false>, false);
    AT_C(veksDivC_64f, T64f, T64f, nullptr, refDivFull<T64f, true>, true);
    AT_C_I(veksDivC_64f_I, T64f, nullptr, refDivFull<T64f, true>, true);
    AT_BIN(veksDiv_32fc, T32fc, T32fc, T32fc, nullptr, refDivFull<T32fc, false>, false);
    AT_BIN_I(veksDiv_32fc_I, T32fc, T32fc, nullptr, refDivFull<T32fc, false>, false);
    AT_C(veksDivC_32fc, T32fc, T32fc, nullptr, refDivFull<T32fc, true>, true);
    AT_C_I(veksDivC_32fc_I, T32fc, nullptr, refDivFull<T32fc, true>, true);
    AT_BIN(veksDiv_64fc, T64fc, T64fc, T64fc, nullptr, refDivFull<T64fc, false>, false);
    AT_BIN_I(veksDiv_64fc_I, T64fc, T64fc, nullptr, refDivFull<T64fc, false>, false);
    AT_C(veksDivC_64fc, T64fc, T64fc, nullptr, refDivFull<T64fc, true>, true);
    AT_C_I(veksDivC_64fc_I, T64fc, nullptr, refDivFull<T64fc, true>, true);
}

TEST(Div, MatchesReference) {
    uint64_t seed = 900;
    visitDiv([&](const auto& c) { at::check(c, ++seed); });
}

// Long outputs of each division loop, streamed and not; the data's zero
// divisors send the single-precision ones through their second pass.
TEST(Div, LongOutputs) {
    uint64_t seed = 1900;
    int rows = 0;
    visitDiv([&](const auto& c) {
        rows += at::checkLong(c, ++seed, {"veksDiv_32f", "veksDiv_32f_I", "veksDivCRev_32f", "veksDiv_64f", "veksDivC_32fc", "veksDiv_64fc_I"});
    });
    EXPECT_EQ(rows, 6);
}

// An integer division by a vector with one zero divisor among ordinary
// ones, at every position of vectors a few steps long, with a positive,
// negative and zero dividend there: the substitute and the warning come from
// that element alone, wherever it sits in its step.
template <class T1, class T2, class TD>
void oneZeroDivisor(const at::Case<T1, T2, TD>& c, int& rows) {
    if constexpr (std::is_integral<T1>::value) {
        if (c.shape != Shape::Binary && c.shape != Shape::BinaryInPlace) return;
        ++rows;
        SCOPED_TRACE(c.name);
        vt::Rng rng(31);
        const T2 dividends[] = {T2(7), std::is_signed<T2>::value ? T2(-7) : T2(200), T2(0)};
        for (int n : {16, 37}) {
            for (int pos = 0; pos < n; ++pos) {
                for (T2 b : dividends) {
                    SCOPED_TRACE("len " + std::to_string(n) + " at " + std::to_string(pos));
                    std::vector<T1> x1 = at::data<T1>(rng, n);
                    std::vector<T2> x2 = at::data<T2>(rng, n);
                    for (T1& a : x1)
                        if (a == 0) a = 1;
                    x1[pos] = 0;
                    x2[pos] = b;
                    std::vector<TD> want = at::data<TD>(rng, n), got = want;
                    if (c.shape == Shape::BinaryInPlace) memcpy(want.data(), x2.data(), n * sizeof(TD));
                    const VekResult st = c.refv(x1.data(), x2.data(), want.data(), n, 3);
                    EXPECT_EQ(c.call(x1.data(), x2.data(), got.data(), T2(), n, 3), st);
                    const TD* out = c.shape == Shape::BinaryInPlace ? reinterpret_cast<const TD*>(x2.data()) : got.data();
                    ASSERT_TRUE(at::sameAll(out, want));
                }
            }
        }
    }
}

TEST(Div, OneZeroDivisorAnywhere) {
    int rows = 0;
    visitDiv([&](const auto& c) { oneZeroDivisor(c, rows); });
    EXPECT_EQ(rows, 9 + 2 * 3 * 6);  // Div and Div_Round (every mode, and three refused ones)
}

TEST(Div, ChecksBeforeWriting) {
    visitDiv([](const auto& c) { at::contract(c); });
}

// Named quotients b / a: the zero-divisor substitutes, ties, the shortcut
// ranges of far scale factors (a negative divisor flips the sign), and the
// rounding setting: Div follows the processor's, Div_Round gives it back.
TEST(Div, NamedValues) {
    const struct { std::vector<T16s> a, b; int mode, sf, fe; VekResult st; std::vector<T16s> want; } cases[] = {
        {{0, 0, 0}, {5, 0, -5}, -1, 0, FE_TONEAREST, VEK_WRN_DIV_BY_ZERO, {32767, 0, -32768}},
        {{3, -4}, {9, 10}, -1, 0, FE_TONEAREST, VEK_OK, {3, -2}},
        {{-7, 7, 0}, {1, -1, 0}, -1, -31, FE_TONEAREST, VEK_WRN_DIV_BY_ZERO, {-32768, -32768, 0}},
        {{-7, 7}, {1, -1}, -1, -31, FE_TONEAREST, VEK_OK, {-32768, -32768}},
        {{-1}, {-32768}, -1, 16, FE_TONEAREST, VEK_OK, {0}},  // exactly one half
        {{-1}, {-32768}, VEK_ROUND_HALF_AWAY, 16, FE_TONEAREST, VEK_OK, {1}},
        {{-1}, {-32768}, VEK_ROUND_HALF_AWAY, 17, FE_TONEAREST, VEK_OK, {0}},
        {{2, 2, 4, 3}, {3, -3, 10, 2}, -1, 0, FE_TOWARDZERO, VEK_OK, {1, -1, 2, 0}},
        {{2, 2, 4, 3}, {3, -3, 10, 2}, VEK_ROUND_NEAR, 0, FE_UPWARD, VEK_OK, {2, -2, 2, 1}},
    };
    const int saved = fegetround();
    for (const auto& c : cases) {
        std::vector<T16s> d(c.a.size());
        const int n = static_cast<int>(d.size());
        fesetround(c.fe);
        EXPECT_EQ(c.mode < 0 ? veksDiv_16s_Sfs(c.a.data(), c.b.data(), d.data(), n, c.sf)
                             : veksDiv_Round_16s_Sfs(c.a.data(), c.b.data(), d.data(), n, c.mode, c.sf), c.st);
        EXPECT_EQ(fegetround(), c.fe);
        fesetround(saved);
        EXPECT_TRUE(at::sameAll(d.data(), c.want)) << "mode " << c.mode << " sf " << c.sf;
    }
}

TEST(Div, FloatZeroDivisorBlocks) {
    // the block holding the zero is divided in full, the other by the
    // refined reciprocal; zero divisors give the IEEE results
    const float a[8] = {0.0f, 3.0f, -0.0f, 7.0f, 3.0f, 3.0f, 3.0f, 3.0f};
    const float b[8] = {1.0f, 1.0f, 0.0f, -2.0f, 1.0f, 1.0f, 1.0f, 1.0f};
    float d[8];
    EXPECT_EQ(veksDiv_32f(a, b, d, 8), VEK_WRN_DIV_BY_ZERO);
    EXPECT_TRUE(isinf(d[0]) && d[0] > 0);
    EXPECT_EQ(d[1], 1.0f / 3.0f);
    EXPECT_TRUE(isnan(d[2]));
    EXPECT_EQ(d[3], -2.0f / 7.0f);
    for (int i = 4; i < 8; ++i) EXPECT_EQ(d[i], ref::refinedQuotient(1.0f, 3.0f));
    EXPECT_EQ(veksDiv_32f(a + 4, b + 4, d, 4), VEK_OK);
    const float v = 0.0f;
    EXPECT_EQ(veksDivCRev_32f(&v, 2.0f, d, 1), VEK_WRN_DIV_BY_ZERO);
    EXPECT_TRUE(isinf(d[0]));
    // a constant is zero only when every part is, -0.0 included
    EXPECT_EQ(veksDivC_32f(a, -0.0f, d, 1), VEK_ERR_DIV_BY_ZERO);
    const T64fc c{1, 2};
    T64fc dc;
    EXPECT_EQ(veksDivC_64fc(&c, T64fc{0, 1}, &dc, 1), VEK_OK);
}

// Long vectors of single-precision quotients whose divisors are mostly
// ordinary: with no special value anywhere, with one special divisor or
// dividend placed in one block (first, middle, last whole block, tail), out
// of place, in place and with a constant dividend. Each block must take the
// path its own divisors choose, whatever the rest of the vector holds.
TEST(Div, FloatLongVectorsWithOneSpecialValue) {
    const float inf = INFINITY, nan = NAN;
    const struct { float divisor, dividend; } specials[] = {
        {1.0f, 1.0f}, {0.0f, 1.0f}, {-0.0f, 0.0f}, {inf, 1.0f}, {nan, 1.0f}, {2.0f, inf}, {2.0f, nan},
        {1e-40f, 1.0f}, {3e38f, 1e-30f},
    };
    vt::Rng rng(4242);
    // past 4 MiB of output (streamed): no special value, or one zero divisor
    const int kLong = (4 << 20) / 4 + 5;
    for (int n : {16, 17, 64, 1023, 1024, kLong}) {
        for (const auto& sp : specials) {
            if (n == kLong && &sp - specials > 1) break;
            for (int pos : {0, 3, n / 2, (n & ~3) - 1, n - 1}) {
                if (n == kLong && pos != n / 2) continue;
                SCOPED_TRACE("len " + std::to_string(n) + " at " + std::to_string(pos) + " divisor " +
                             std::to_string(sp.divisor) + " dividend " + std::to_string(sp.dividend));
                std::vector<float> a(n), b(n), want(n), d(n);
                for (int i = 0; i < n; ++i) {
                    a[i] = ldexpf(rng.next<float>(1.0, 2.0), int(rng.range(-60, 60))) * (rng.range(0, 1) ? 1 : -1);
                    b[i] = rng.next<float>(-1e6, 1e6);
                }
                a[pos] = sp.divisor;
                b[pos] = sp.dividend;
                const VekResult st = refDiv32f<false>(a.data(), b.data(), want.data(), n, 0);
                ASSERT_EQ(veksDiv_32f(a.data(), b.data(), d.data(), n), st);
                ASSERT_TRUE(at::sameAll(d.data(), want));
                d = b;
                ASSERT_EQ(veksDiv_32f_I(a.data(), d.data(), n), st);
                ASSERT_TRUE(at::sameAll(d.data(), want));
                // a constant dividend: DivCRev, out of place and in place
                const std::vector<float> k(n, b[pos]);
                const VekResult stc = refDiv32f<false>(a.data(), k.data(), want.data(), n, 0);
                ASSERT_EQ(veksDivCRev_32f(a.data(), b[pos], d.data(), n), stc);
                ASSERT_TRUE(at::sameAll(d.data(), want));
                d = a;
                ASSERT_EQ(veksDivCRev_32f_I(b[pos], d.data(), n), stc);
                ASSERT_TRUE(at::sameAll(d.data(), want));
            }
        }
    }
}

TEST(Div, CRev16uZeroCases) {
    const T16u s[4] = {0, 1, 2, 3};
    T16u d[4];
    EXPECT_EQ(veksDivCRev_16u(s, 0, d, 4), VEK_WRN_DIV_BY_ZERO);
    EXPECT_TRUE(at::sameAll(d, std::vector<T16u>{0, 0, 0, 0}));
    EXPECT_EQ(veksDivCRev_16u(s + 1, 0, d, 3), VEK_OK);
    EXPECT_EQ(veksDivCRev_16u(s, 7, d, 4), VEK_WRN_DIV_BY_ZERO);
    EXPECT_TRUE(at::sameAll(d, std::vector<T16u>{65535, 7, 4, 2}));  // 3.5 to even
}

// DivC_64s_ISfs: the exact rational rounded. N / D by restoring long
// division over 128-bit magnitudes: N = |x| * 2^-sf or D = |val| * 2^sf.
ref::Big shl1(ref::Big v, int bit) {
    v.hi = (v.hi << 1) | (v.lo >> 63);
    v.lo = (v.lo << 1) | static_cast<uint64_t>(bit);
    return v;
}
bool geq(const ref::Big& a, const ref::Big& b) { return ref::cmpMag(a, b) >= 0; }
ref::Big sub(ref::Big a, const ref::Big& b) {
    const uint64_t lo = a.lo - b.lo;
    a.hi = a.hi - b.hi - (a.lo < b.lo);
    a.lo = lo;
    return a;
}

// Valid for -63 <= sf <= 63.
T64s refDiv64(T64s x, T64s v, int sf) {
    const bool neg = (x < 0) != (v < 0);
    ref::Big N = ref::bigOf(x), D = ref::bigOf(v);
    N.neg = D.neg = false;
    for (int i = 0; i < -sf; ++i) N = shl1(N, 0);
    for (int i = 0; i < sf; ++i) D = shl1(D, 0);
    ref::Big q, r;
    for (int b = 127; b >= 0; --b) {
        const int bit = b >= 64 ? int((N.hi >> (b - 64)) & 1) : int((N.lo >> b) & 1);
        r = shl1(r, bit);
        q = shl1(q, 0);
        if (geq(r, D)) {
            r = sub(r, D);
            q.lo |= 1;
        }
    }
    const ref::Big twice = shl1(r, 0);  // r < D < 2^127
    const int c = ref::cmpMag(twice, D);
    if (c > 0 || (c == 0 && (q.lo & 1))) q = ref::addBig(q, ref::bigOfU(1));
    const uint64_t limit = neg ? (1ull << 63) : (1ull << 63) - 1;
    if (q.hi || q.lo > limit) return neg ? INT64_MIN : INT64_MAX;
    return neg ? static_cast<T64s>(0ull - q.lo) : static_cast<T64s>(q.lo);
}

TEST(Div, C64sExactQuotient) {
    vt::Rng rng(77);
    std::vector<T64s> vals = vt::edgeValues<T64s>();
    for (int i = 0; i < 12; ++i) vals.push_back(rng.next<T64s>());
    for (int i = 0; i < 6; ++i) vals.push_back(rng.range(-1000, 1000));
    for (T64s v : vals) {
        if (v == 0) continue;
        for (int sf = -63; sf <= 63; sf += (sf > -5 && sf < 5) ? 1 : 3) {
            const int n = 37;
            std::vector<T64s> x = at::data<T64s>(rng, n);
            x[0] = v;      // quotient 1
            x[1] = v == INT64_MIN ? INT64_MAX : -v;  // and about -1
            x[2] = v / 2;  // a half
            std::vector<T64s> want(n);
            for (int i = 0; i < n; ++i) want[i] = refDiv64(x[i], v, sf);
            vt::Guarded<T64s> g(x, sf & 3);
            ASSERT_EQ(veksDivC_64s_ISfs(v, g.data(), n, sf), VEK_OK);
            ASSERT_TRUE(g.intact());
            ASSERT_TRUE(at::sameAll(g.data(), want)) << "val " << v << " sf " << sf;
        }
    }
    // far scale factors: saturation by sign, or 0
    std::vector<T64s> d = {1, -1, 0};
    EXPECT_EQ(veksDivC_64s_ISfs(INT64_MIN, d.data(), 3, INT_MIN), VEK_OK);
    EXPECT_TRUE(at::sameAll(d.data(), std::vector<T64s>{INT64_MIN, INT64_MAX, 0}));
    d = {1, -1, 0};
    EXPECT_EQ(veksDivC_64s_ISfs(1, d.data(), 3, INT_MAX), VEK_OK);
    EXPECT_TRUE(at::sameAll(d.data(), std::vector<T64s>{0, 0, 0}));
}

TEST(Div, C64sDepartures) {
    // a zero val warns and sends non-zero elements to the ends of the range
    std::vector<T64s> d = {5, -5, 0, INT64_MIN};
    EXPECT_EQ(veksDivC_64s_ISfs(0, d.data(), 4, 3), VEK_WRN_DIV_BY_ZERO);
    EXPECT_TRUE(at::sameAll(d.data(), std::vector<T64s>{INT64_MAX, INT64_MIN, 0, INT64_MIN}));
    // only a zero length is refused; pointers come first
    EXPECT_EQ(veksDivC_64s_ISfs(2, d.data(), 0, 0), VEK_ERR_SIZE);
    EXPECT_EQ(veksDivC_64s_ISfs(2, nullptr, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(d[0], INT64_MAX);
}

}  // namespace

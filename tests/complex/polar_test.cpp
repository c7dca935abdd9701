// PolarToCart and CartToPolar: single precision within the sine and cosine
// kernel's bound, double against long double, integer members against a
// long double model, and CartToPolar's two failure behaviours.
#include <math.h>
#include <string.h>

#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

// The kernel's bound for magn * cos(phase) and magn * sin(phase) in single
// precision: at most 2 ulp of the sine or cosine, plus the rounding of the
// product (see the kernel's notes).
constexpr int64_t kPolarMaxUlp = 3;

struct PolarData {
    std::vector<T32f> magn, phase;
};

PolarData polarData(vt::Rng& rng, size_t n, double phaseRange) {
    PolarData d{rng.vec<T32f>(n, -100, 100), rng.vec<T32f>(n, -phaseRange, phaseRange)};
    // Multiples of pi/2 (zeros of sine or cosine), signed zeros and
    // out-of-range phases spread over lane positions.
    const float specials[] = {0.0f, -0.0f, 1.5707964f, -1.5707964f, 3.1415927f, 4.712389f, 1e5f, -3e7f,
                              4096.0f, 4097.0f, INFINITY, NAN};
    for (size_t i = 2; i < n; i += 13) d.phase[i] = specials[(i / 13) % (sizeof specials / sizeof specials[0])];
    return d;
}

void checkPart(float got, long double want, const char* part, float m, float ph) {
    const float w = static_cast<float>(want);
    if (w != w) {
        ASSERT_NE(got, got) << part << " m=" << m << " ph=" << ph;
        return;
    }
    ASSERT_LE(vt::ulpDistance(got, w), kPolarMaxUlp) << part << " m=" << m << " ph=" << ph << " got=" << got
                                                      << " want=" << w;
}

TEST(PolarToCart, SinglePrecisionWithinBound) {
    vt::Rng rng(21);
    for (double range : {3.2, 40.0, 5000.0}) {
        for (int len : vt::tailLengths()) {
            const size_t n = static_cast<size_t>(len);
            for (int ms : vt::misalignments()) {
                const PolarData d = polarData(rng, n, range);
                vt::Guarded<T32f> m(d.magn, ms), ph(d.phase, 2), re(n, ms), im(n, 1);
                vt::Guarded<T32fc> c(n, ms);
                ASSERT_EQ(veksPolarToCart_32f(m.data(), ph.data(), re.data(), im.data(), len), VEK_OK);
                ASSERT_EQ(veksPolarToCart_32fc(m.data(), ph.data(), c.data(), len), VEK_OK);
                ASSERT_TRUE(re.intact() && im.intact() && c.intact() && m.intact() && ph.intact());
                for (size_t i = 0; i < n; ++i) {
                    const long double mg = d.magn[i], p = d.phase[i];
                    checkPart(re[i], mg * cosl(p), "re", d.magn[i], d.phase[i]);
                    checkPart(im[i], mg * sinl(p), "im", d.magn[i], d.phase[i]);
                    ASSERT_EQ(memcmp(&c[i].re, &re[i], 4), 0) << "layouts differ at " << i;
                    ASSERT_EQ(memcmp(&c[i].im, &im[i], 4), 0) << "layouts differ at " << i;
                }
            }
        }
    }
}

TEST(PolarToCart, VectorLanesEqualScalarTail) {
    // Phases up to the end of the polynomial range, its edges and the
    // special values of polarData in every lane position.
    vt::Rng rng(22);
    const size_t n = 2051;
    PolarData d = polarData(rng, n, 4096.0);
    for (size_t i = 5; i < n; i += 17) d.phase[i] = (i & 1) ? 4096.0f : -4096.0f;
    std::vector<T32fc> all(n);
    ASSERT_EQ(veksPolarToCart_32fc(d.magn.data(), d.phase.data(), all.data(), int(n)), VEK_OK);
    for (size_t i = 0; i < n; ++i) {
        T32fc one;
        ASSERT_EQ(veksPolarToCart_32fc(&d.magn[i], &d.phase[i], &one, 1), VEK_OK);
        const bool nan = one.re != one.re && all[i].re != all[i].re;
        ASSERT_TRUE(memcmp(&one, &all[i], sizeof one) == 0 || nan) << i;
    }
}

TEST(PolarToCart, DoublePrecision) {
    vt::Rng rng(23);
    for (int len : {1, 2, 3, 5, 17, 64, 1001}) {
        const size_t n = static_cast<size_t>(len);
        std::vector<T64f> m = rng.vec<T64f>(n, -10, 10), ph = rng.vec<T64f>(n, -7, 7), re(n), im(n);
        // Phases far from zero take the long reduction.
        for (size_t i = 1; i < n; i += 3) ph[i] *= 1e12;
        std::vector<T64fc> c(n);
        ASSERT_EQ(veksPolarToCart_64f(m.data(), ph.data(), re.data(), im.data(), len), VEK_OK);
        ASSERT_EQ(veksPolarToCart_64fc(m.data(), ph.data(), c.data(), len), VEK_OK);
        for (size_t i = 0; i < n; ++i) {
            // sincosd (within 2 ulp, math_f64.h) times the magnitude (one
            // more rounding).
            const double wr = static_cast<double>(m[i] * cosl(ph[i])), wi = static_cast<double>(m[i] * sinl(ph[i]));
            ASSERT_LE(vt::ulpDistance(re[i], wr), 3) << ph[i];
            ASSERT_LE(vt::ulpDistance(im[i], wi), 3) << ph[i];
            ASSERT_TRUE(c[i].re == re[i] && c[i].im == im[i]);
        }
    }
}

// magn * 2^-magnShift times cos / sin of phase * 2^-phaseShift, nearest
// even, saturated; rounding boundaries that the double computation may
// resolve either way are skipped.
template <class B, class In>
void checkIntPolar(const std::vector<In>& magn, const std::vector<In>& phase, const std::vector<B>& re,
                   const std::vector<B>& im, int magnShift, int phaseShift) {
    for (size_t i = 0; i < magn.size(); ++i) {
        const long double p = ldexpl(static_cast<long double>(phase[i]), -phaseShift);
        const long double vr = ldexpl(magn[i] * cosl(p), -magnShift), vi = ldexpl(magn[i] * sinl(p), -magnShift);
        if (!ref::nearHalf(vr, 1e-12L)) {
            ASSERT_EQ(re[i], ref::saturateL<B>(ref::roundEven(vr)))
                << magn[i] << "@" << phase[i] << " shifts " << magnShift << "," << phaseShift;
        }
        if (!ref::nearHalf(vi, 1e-12L)) {
            ASSERT_EQ(im[i], ref::saturateL<B>(ref::roundEven(vi)))
                << magn[i] << "@" << phase[i] << " shifts " << magnShift << "," << phaseShift;
        }
    }
}

TEST(PolarToCart, IntegerMembers) {
    vt::Rng rng(24);
    std::vector<T16s> m16 = {32767, -32768, 0, 1, 100, 20000}, p16 = {0, 12868, -12868, 25736, 32767, -32768};
    for (int i = 0; i < 200; ++i) {
        m16.push_back(rng.next<T16s>());
        p16.push_back(rng.next<T16s>());
    }
    const int n = static_cast<int>(m16.size());
    for (int fp : {-3, 0, 1, 8, 13, 15}) {
        std::vector<T16sc> out(m16.size());
        ASSERT_EQ(veksPolarToCart_16sc(m16.data(), p16.data(), fp, out.data(), n), VEK_OK);
        std::vector<T16s> re(out.size()), im(out.size());
        for (size_t i = 0; i < out.size(); ++i) re[i] = out[i].re, im[i] = out[i].im;
        checkIntPolar(m16, p16, re, im, 0, fp);
    }
    // Scale factors are clamped into [-31, 31] before use.
    for (int msf : {-100, -31, -3, 0, 2, 15, 31, 60}) {
        for (int psf : {-40, -31, 0, 12, 31, 99}) {
            std::vector<T16sc> out(m16.size());
            ASSERT_EQ(veksPolarToCart_16sc_Sfs(m16.data(), p16.data(), out.data(), n, msf, psf), VEK_OK);
            std::vector<T16s> re(out.size()), im(out.size());
            for (size_t i = 0; i < out.size(); ++i) re[i] = out[i].re, im[i] = out[i].im;
            const int cm = msf < -31 ? -31 : msf > 31 ? 31 : msf, cp = psf < -31 ? -31 : psf > 31 ? 31 : psf;
            checkIntPolar(m16, p16, re, im, cm, cp);
        }
    }
    std::vector<T32s> m32 = {INT32_MAX, INT32_MIN, 0, 7}, p32 = {0, 3, -2, 1};
    for (int i = 0; i < 200; ++i) {
        m32.push_back(rng.next<T32s>());
        p32.push_back(static_cast<T32s>(rng.range(-100, 100)));
    }
    std::vector<T32sc> out32(m32.size());
    ASSERT_EQ(veksPolarToCart_32sc(m32.data(), p32.data(), out32.data(), int(m32.size())), VEK_OK);
    std::vector<T32s> re(out32.size()), im(out32.size());
    for (size_t i = 0; i < out32.size(); ++i) re[i] = out32[i].re, im[i] = out32[i].im;
    checkIntPolar(m32, p32, re, im, 0, 0);
}

TEST(PolarToCart, FixedPointCheckOrder) {
    const T16s m[2] = {1, 2}, p[2] = {0, 0};
    // Past the range of a double, a zero phase still reads as 0 radians.
    {
        const T16s mg[2] = {100, 100}, ph[2] = {0, 0};
        T16sc out[2];
        ASSERT_EQ(veksPolarToCart_16sc(mg, ph, INT32_MIN, out, 2), VEK_OK);
        EXPECT_TRUE(out[0].re == 100 && out[0].im == 0);
        ASSERT_EQ(veksPolarToCart_16sc_Sfs(mg, ph, out, 2, INT32_MIN, INT32_MIN), VEK_OK);
        EXPECT_EQ(out[0].re, 32767);  // 100 * 2^31 saturates
    }
    const struct { bool null; int len; int fp; VekResult want; } cases[] = {
        {false, 2, 16, VEK_ERR_SIZE}, {false, 2, 99, VEK_ERR_SIZE},           {false, 0, 0, VEK_ERR_SIZE},
        {true, 0, 16, VEK_ERR_NULL_POINTER}, {false, 2, 15, VEK_OK}, {false, 2, -4, VEK_OK},
    };
    for (const auto& c : cases) {
        vt::Guarded<T16sc> dst(2);
        dst.freeze();
        EXPECT_EQ(veksPolarToCart_16sc(c.null ? nullptr : m, p, c.fp, dst.data(), c.len), c.want) << c.fp;
        if (c.want != VEK_OK) {
            EXPECT_TRUE(dst.intact());
        }
    }
}

TEST(CartToPolar, EqualsMagnitudeThenPhase) {
    vt::Rng rng(25);
    for (int len : {1, 3, 4, 7, 64, 1025}) {
        const size_t n = static_cast<size_t>(len);
        std::vector<T32f> re = rng.vec<T32f>(n, -5, 5), im = rng.vec<T32f>(n, -5, 5);
        std::vector<T32fc> c(n);
        for (size_t i = 0; i < n; ++i) c[i] = {re[i], im[i]};
        std::vector<T32f> m1(n), p1(n), m2(n), p2(n), wm(n), wp(n);
        ASSERT_EQ(veksCartToPolar_32f(re.data(), im.data(), m1.data(), p1.data(), len), VEK_OK);
        ASSERT_EQ(veksCartToPolar_32fc(c.data(), m2.data(), p2.data(), len), VEK_OK);
        ASSERT_EQ(veksMagnitude_32fc(c.data(), wm.data(), len), VEK_OK);
        ASSERT_EQ(veksPhase_32fc(c.data(), wp.data(), len), VEK_OK);
        ASSERT_TRUE(vt::sameElements(m1.data(), wm.data(), n) && vt::sameElements(m2.data(), wm.data(), n));
        ASSERT_TRUE(vt::sameElements(p1.data(), wp.data(), n) && vt::sameElements(p2.data(), wp.data(), n));

        std::vector<T64fc> c64(n);
        for (size_t i = 0; i < n; ++i) c64[i] = {re[i], im[i]};
        std::vector<T64f> r64(n), i64(n), dm(n), dp(n), em(n), ep(n);
        for (size_t i = 0; i < n; ++i) r64[i] = re[i], i64[i] = im[i];
        std::vector<T64f> wm64(n), wp64(n);
        ASSERT_EQ(veksCartToPolar_64fc(c64.data(), dm.data(), dp.data(), len), VEK_OK);
        ASSERT_EQ(veksCartToPolar_64f(r64.data(), i64.data(), em.data(), ep.data(), len), VEK_OK);
        ASSERT_EQ(veksMagnitude_64fc(c64.data(), wm64.data(), len), VEK_OK);
        ASSERT_EQ(veksPhase_64fc(c64.data(), wp64.data(), len), VEK_OK);
        ASSERT_TRUE(vt::sameElements(dm.data(), wm64.data(), n) && vt::sameElements(em.data(), wm64.data(), n));
        ASSERT_TRUE(vt::sameElements(dp.data(), wp64.data(), n) && vt::sameElements(ep.data(), wp64.data(), n));

        std::vector<T16sc> s16(n);
        for (size_t i = 0; i < n; ++i) s16[i] = {rng.next<T16s>(), rng.next<T16s>()};
        std::vector<T16s> m16(n), p16(n), wm16(n), wp16(n);
        ASSERT_EQ(veksCartToPolar_16sc_Sfs(s16.data(), m16.data(), p16.data(), len, 3, -12), VEK_OK);
        ASSERT_EQ(veksMagnitude_16sc_Sfs(s16.data(), wm16.data(), len, 3), VEK_OK);
        ASSERT_EQ(veksPhase_16sc_Sfs(s16.data(), wp16.data(), len, -12), VEK_OK);
        ASSERT_TRUE(vt::sameElements(m16.data(), wm16.data(), n) && vt::sameElements(p16.data(), wp16.data(), n));
    }
}

TEST(CartToPolar, TwoFailureBehaviours) {
    const T32fc src[3] = {{1, 1}, {-1, 0}, {0, 2}};
    // Floating members run both steps: the phases are written although the
    // magnitude destination is missing.
    vt::Guarded<T32f> phase(3), magn(3);
    ASSERT_EQ(veksCartToPolar_32fc(src, nullptr, phase.data(), 3), VEK_ERR_NULL_POINTER);
    std::vector<T32f> want(3);
    ASSERT_EQ(veksPhase_32fc(src, want.data(), 3), VEK_OK);
    EXPECT_TRUE(vt::sameElements(phase.data(), want.data(), 3));
    // ... and the magnitudes although the phase destination is missing.
    ASSERT_EQ(veksCartToPolar_32fc(src, magn.data(), nullptr, 3), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(magn[0], sqrtf(2.0f));
    const T32f re[1] = {3}, im[1] = {4};
    vt::Guarded<T32f> ph1(1);
    ASSERT_EQ(veksCartToPolar_32f(re, im, nullptr, ph1.data(), 1), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(ph1[0], atan2f(4, 3));
    vt::Guarded<T32f> m0(3), p0(3);
    m0.freeze();
    p0.freeze();
    ASSERT_EQ(veksCartToPolar_32fc(src, m0.data(), p0.data(), 0), VEK_ERR_SIZE);
    EXPECT_TRUE(m0.intact() && p0.intact());

    // The scaled 16-bit member stops at a failed magnitude step.
    const T16sc s16[2] = {{3, 4}, {-1, 0}};
    vt::Guarded<T16s> p16(2), m16(2);
    p16.freeze();
    ASSERT_EQ(veksCartToPolar_16sc_Sfs(s16, nullptr, p16.data(), 2, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(p16.intact());
    // With a missing phase destination the magnitude step has already run.
    ASSERT_EQ(veksCartToPolar_16sc_Sfs(s16, m16.data(), nullptr, 2, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(m16[0], 5);
    EXPECT_EQ(m16[1], 1);
}

}  // namespace

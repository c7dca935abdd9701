// PolarToCart and CartToPolar: floating members within the sine and cosine
// kernels' bounds, integer members against a long double model, CartToPolar
// as its magnitude and phase steps, and its two failure behaviours.
#include <math.h>
#include <string.h>

#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

// magn * cos(phase) and magn * sin(phase): at most 2 ulp of the sine or
// cosine (math_sse.h, math_f64.h) plus the rounding of the product.
constexpr int64_t kPolarMaxUlp = 3;

template <class B>
bool nearPart(B got, long double want) {
    const B w = static_cast<B>(want);
    return w != w ? got != got : vt::ulpDistance(got, w) <= kPolarMaxUlp;
}

// Magnitudes and phases up to +-range, with multiples of pi/2 (zeros of sine
// or cosine), signed zeros, the end of the polynomial range and
// out-of-range phases spread over lane positions.
template <class B>
void polarData(vt::Rng& rng, size_t n, double range, std::vector<B>& magn, std::vector<B>& phase) {
    magn = rng.vec<B>(n, -100, 100);
    phase = rng.vec<B>(n, -range, range);
    const B specials[] = {0.0f, -0.0f, 1.5707964f, -1.5707964f, 3.1415927f, 4.712389f, 1e5f, -3e7f,
                          4096.0f, -4096.0f, 4097.375f, -4097.5f, INFINITY, NAN};
    for (size_t i = 2; i < n; i += 13) phase[i] = specials[(i / 13) % (sizeof specials / sizeof specials[0])];
}

template <class B, class C>
void checkFloatPolar(VekResult (*parts)(const B*, const B*, B*, B*, int),
                     VekResult (*cplx)(const B*, const B*, C*, int), std::initializer_list<double> ranges,
                     uint64_t seed) {
    vt::Rng rng(seed);
    for (double range : ranges) {
        for (int len : vt::tailLengths()) {
            const size_t n = static_cast<size_t>(len);
            for (int ms : vt::misalignments()) {
                std::vector<B> mv, pv;
                polarData(rng, n, range, mv, pv);
                vt::Guarded<B> m(mv, ms), ph(pv, 2), re(n, ms), im(n, 1);
                vt::Guarded<C> c(n, ms);
                ASSERT_EQ(parts(m.data(), ph.data(), re.data(), im.data(), len), VEK_OK);
                ASSERT_EQ(cplx(m.data(), ph.data(), c.data(), len), VEK_OK);
                ASSERT_TRUE(re.intact() && im.intact() && c.intact() && m.intact() && ph.intact());
                for (size_t i = 0; i < n; ++i) {
                    const long double mg = mv[i], p = pv[i];
                    ASSERT_TRUE(nearPart(re[i], mg * cosl(p)) && nearPart(im[i], mg * sinl(p)))
                        << mv[i] << "@" << pv[i] << " -> " << re[i] << ", " << im[i];
                    ASSERT_TRUE(memcmp(&c[i].re, &re[i], sizeof(B)) == 0 && memcmp(&c[i].im, &im[i], sizeof(B)) == 0)
                        << "layouts differ at " << i;
                    // The same bits whether a vector step or the scalar tail
                    // computed the element (NaN payloads aside).
                    C one;
                    ASSERT_EQ(cplx(&mv[i], &pv[i], &one, 1), VEK_OK);
                    ASSERT_TRUE(memcmp(&one, &c[i], sizeof one) == 0 || (one.re != one.re && c[i].re != c[i].re)) << i;
                }
            }
        }
    }
}

TEST(PolarToCart, FloatingWithinBound) {
    checkFloatPolar(veksPolarToCart_32f, veksPolarToCart_32fc, {3.2, 40.0, 5000.0}, 21);
    // Phases far from zero take the long reduction.
    checkFloatPolar(veksPolarToCart_64f, veksPolarToCart_64fc, {7.0, 1e12}, 22);
}

// magn * 2^-magnShift times cos / sin of phase * 2^-phaseShift, nearest
// even, saturated; boundaries that the double computation may resolve
// either way are skipped.
template <class B, class In, class C>
void checkIntPolar(const std::vector<In>& magn, const std::vector<In>& phase, const C* out, int magnShift,
                   int phaseShift) {
    for (size_t i = 0; i < magn.size(); ++i) {
        const long double p = ref::shift(phase[i], phaseShift);
        const long double vr = ref::shift(magn[i] * cosl(p), magnShift), vi = ref::shift(magn[i] * sinl(p), magnShift);
        ASSERT_TRUE(ref::nearHalf(vr) || out[i].re == ref::saturateL<B>(ref::roundEven(vr)))
            << magn[i] << "@" << phase[i] << " shifts " << magnShift << "," << phaseShift;
        ASSERT_TRUE(ref::nearHalf(vi) || out[i].im == ref::saturateL<B>(ref::roundEven(vi)))
            << magn[i] << "@" << phase[i] << " shifts " << magnShift << "," << phaseShift;
    }
}

TEST(PolarToCart, IntegerMembers) {
    vt::Rng rng(24);
    std::vector<T16s> m16 = vt::edgeValues<T16s>(), p16 = {0, 12868, -12868, 25736, 32767, -32768, 1, -1, 2};
    std::vector<T32s> m32 = vt::edgeValues<T32s>(), p32 = {0, 3, -2, 1, 0, 1, -1, 100, -100};
    for (int i = 0; i < 300; ++i) {
        m16.push_back(rng.next<T16s>()), p16.push_back(rng.next<T16s>());
        m32.push_back(rng.next<T32s>()), p32.push_back(static_cast<T32s>(rng.range(-100, 100)));
    }
    const int n = static_cast<int>(m16.size());
    std::vector<T16sc> out(m16.size());
    for (int fp : {-3, 0, 1, 8, 13, 15}) {
        ASSERT_EQ(veksPolarToCart_16sc(m16.data(), p16.data(), fp, out.data(), n), VEK_OK);
        checkIntPolar<T16s>(m16, p16, out.data(), 0, fp);
    }
    // Scale factors are clamped into [-31, 31] before use.
    for (int msf : {INT32_MIN, -100, -31, -3, 0, 2, 15, 31, 60}) {
        for (int psf : {-40, -31, 0, 12, 31, 99, INT32_MIN}) {
            ASSERT_EQ(veksPolarToCart_16sc_Sfs(m16.data(), p16.data(), out.data(), n, msf, psf), VEK_OK);
            checkIntPolar<T16s>(m16, p16, out.data(), std::max(-31, std::min(31, msf)),
                                std::max(-31, std::min(31, psf)));
        }
    }
    std::vector<T32sc> out32(m32.size());
    ASSERT_EQ(veksPolarToCart_32sc(m32.data(), p32.data(), out32.data(), n), VEK_OK);
    checkIntPolar<T32s>(m32, p32, out32.data(), 0, 0);
}

TEST(PolarToCart, FixedPointCheckOrder) {
    // The fixed-point position is checked after the pointers; a zero phase
    // still reads as 0 radians far past the range of a double.
    const T16s m[2] = {100, 100}, p[2] = {0, 0};
    const struct { bool null; int len; int fp; VekResult want; } cases[] = {
        {false, 2, 16, VEK_ERR_SIZE}, {false, 2, 99, VEK_ERR_SIZE}, {false, 0, 0, VEK_ERR_SIZE},
        {true, 0, 16, VEK_ERR_NULL_POINTER}, {false, 2, 15, VEK_OK}, {false, 2, INT32_MIN, VEK_OK},
    };
    for (const auto& c : cases) {
        vt::Guarded<T16sc> dst(2);
        dst.freeze();
        ASSERT_EQ(veksPolarToCart_16sc(c.null ? nullptr : m, p, c.fp, dst.data(), c.len), c.want) << c.fp;
        EXPECT_TRUE(c.want == VEK_OK ? dst[1].re == 100 && dst[1].im == 0 : dst.intact()) << c.fp;
    }
}

template <class C, class B>
void checkCartToPolar(VekResult (*cplx)(const C*, B*, B*, int), VekResult (*parts)(const B*, const B*, B*, B*, int),
                      VekResult (*magn)(const C*, B*, int), VekResult (*phase)(const C*, B*, int), uint64_t seed) {
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        const std::vector<B> re = rng.vec<B>(n, -5, 5), im = rng.vec<B>(n, -5, 5);
        std::vector<C> c(n);
        for (size_t i = 0; i < n; ++i) c[i] = {re[i], im[i]};
        std::vector<B> m1(n), p1(n), m2(n), p2(n), wm(n), wp(n);
        ASSERT_EQ(cplx(c.data(), m1.data(), p1.data(), len), VEK_OK);
        ASSERT_EQ(parts(re.data(), im.data(), m2.data(), p2.data(), len), VEK_OK);
        ASSERT_EQ(magn(c.data(), wm.data(), len), VEK_OK);
        ASSERT_EQ(phase(c.data(), wp.data(), len), VEK_OK);
        ASSERT_TRUE(vt::sameElements(m1.data(), wm.data(), n) && vt::sameElements(m2.data(), wm.data(), n));
        ASSERT_TRUE(vt::sameElements(p1.data(), wp.data(), n) && vt::sameElements(p2.data(), wp.data(), n));
    }
}

TEST(CartToPolar, EqualsMagnitudeThenPhase) {
    checkCartToPolar(veksCartToPolar_32fc, veksCartToPolar_32f, veksMagnitude_32fc, veksPhase_32fc, 25);
    checkCartToPolar(veksCartToPolar_64fc, veksCartToPolar_64f, veksMagnitude_64fc, veksPhase_64fc, 26);
    vt::Rng rng(27);
    std::vector<T16sc> s(4099);
    for (auto& v : s) v = {rng.next<T16s>(), rng.next<T16s>()};
    std::vector<T16s> m(s.size()), p(s.size()), wm(s.size()), wp(s.size());
    ASSERT_EQ(veksCartToPolar_16sc_Sfs(s.data(), m.data(), p.data(), int(s.size()), 3, -12), VEK_OK);
    ASSERT_EQ(veksMagnitude_16sc_Sfs(s.data(), wm.data(), int(s.size()), 3), VEK_OK);
    ASSERT_EQ(veksPhase_16sc_Sfs(s.data(), wp.data(), int(s.size()), -12), VEK_OK);
    ASSERT_TRUE(m == wm && p == wp);
}

TEST(CartToPolar, TwoFailureBehaviours) {
    // Floating members run both steps: the phases are written although the
    // magnitude destination is missing, and the magnitudes although the
    // phase destination is missing; a bad length writes nothing.
    const T32fc src[3] = {{1, 1}, {-1, 0}, {0, 2}};
    vt::Guarded<T32f> phase(3), magn(3);
    std::vector<T32f> want(3);
    ASSERT_EQ(veksPhase_32fc(src, want.data(), 3), VEK_OK);
    ASSERT_EQ(veksCartToPolar_32fc(src, nullptr, phase.data(), 3), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(vt::sameElements(phase.data(), want.data(), 3));
    ASSERT_EQ(veksCartToPolar_32fc(src, magn.data(), nullptr, 3), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(magn[0], sqrtf(2.0f));
    const T32f re[1] = {3}, im[1] = {4};
    vt::Guarded<T32f> ph1(1);
    ASSERT_EQ(veksCartToPolar_32f(re, im, nullptr, ph1.data(), 1), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(ph1[0], atan2f(4, 3));
    // The scaled 16-bit member stops at a failed magnitude step, but with a
    // missing phase destination the magnitude step has already run.
    const T16sc s16[2] = {{3, 4}, {-1, 0}};
    vt::Guarded<T16s> p16(2), m16(2);
    p16.freeze();
    ASSERT_EQ(veksCartToPolar_16sc_Sfs(s16, nullptr, p16.data(), 2, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(p16.intact());
    ASSERT_EQ(veksCartToPolar_16sc_Sfs(s16, m16.data(), nullptr, 2, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(m16[0] == 5 && m16[1] == 1);
}

}  // namespace

// Magnitude, MagSquared, PowerSpectr and Phase against reference models.
// Where the arithmetic is fixed (single-precision squares and sums, the
// exact integer sums) results must match bit for bit; the integer scaled
// members against a long double model over the whole useful range of scale
// factors; the atan2 members within the kernel's documented error bound.
#include <math.h>
#include <string.h>

#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

template <class B>
std::vector<B> partData(vt::Rng& rng, size_t n, double lo, double hi) {
    std::vector<B> v = rng.vec<B>(n, lo, hi);
    const std::vector<B> edges = vt::edgeValues<B>();
    for (size_t i = 3; i < n; i += 11) v[i] = edges[(i / 11) % edges.size()];
    return v;
}

template <class C, class B>
std::vector<C> interleave(const std::vector<B>& re, const std::vector<B>& im) {
    std::vector<C> v(re.size());
    for (size_t i = 0; i < re.size(); ++i) v[i] = {re[i], im[i]};
    return v;
}

// Runs a complex-source export and the matching two-part export on the same
// data, misaligned, and hands both results to `check`.
template <class C, class B, class D, class Cplx, class Parts, class Check>
void bothLayouts(uint64_t seed, double lo, double hi, Cplx cplx, Parts parts, Check check) {
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        for (int ms : vt::misalignments()) {
            const std::vector<B> re = partData<B>(rng, n, lo, hi), im = partData<B>(rng, n, lo, hi);
            vt::Guarded<C> src(interleave<C>(re, im), ms);
            vt::Guarded<B> sre(re, ms), sim(im, 2);
            vt::Guarded<D> d1(n, ms), d2(n, 1);
            ASSERT_EQ(cplx(src.data(), d1.data(), len), VEK_OK);
            if (parts) {
                ASSERT_EQ(parts(sre.data(), sim.data(), d2.data(), len), VEK_OK);
                ASSERT_TRUE(vt::sameElements(d2.data(), d1.data(), n)) << "layouts differ, len=" << len;
                ASSERT_TRUE(d2.intact());
            }
            ASSERT_TRUE(d1.intact() && src.intact());
            for (size_t i = 0; i < n; ++i) check(re[i], im[i], d1[i], len);
        }
    }
}

TEST(Magnitude, FloatingFormulasExact) {
    // sqrt(re * re + im * im) in the source's own precision.
    bothLayouts<T32fc, T32f, T32f>(
        1, -1e20, 1e20, veksMagnitude_32fc, veksMagnitude_32f, [](T32f re, T32f im, T32f got, int len) {
            const T32f want = sqrtf(re * re + im * im);
            ASSERT_EQ(vt::ulpDistance(got, want), 0) << re << " " << im << " len=" << len;
        });
    bothLayouts<T64fc, T64f, T64f>(2, -1e3, 1e3, veksMagnitude_64fc, veksMagnitude_64f,
                                   [](T64f re, T64f im, T64f got, int) {
                                       ASSERT_EQ(vt::ulpDistance(got, sqrt(re * re + im * im)), 0);
                                   });
    bothLayouts<T32fc, T32f, T32f>(3, -1e3, 1e3, veksPowerSpectr_32fc, veksPowerSpectr_32f,
                                   [](T32f re, T32f im, T32f got, int) {
                                       ASSERT_EQ(vt::ulpDistance(got, re * re + im * im), 0);
                                   });
    bothLayouts<T64fc, T64f, T64f>(4, -1e3, 1e3, veksPowerSpectr_64fc, veksPowerSpectr_64f,
                                   [](T64f re, T64f im, T64f got, int) {
                                       ASSERT_EQ(vt::ulpDistance(got, re * re + im * im), 0);
                                   });
    using MagSq = VekResult (*)(const T32f*, const T32f*, T64f*, int);
    bothLayouts<T32fc, T32f, T64f>(5, -1e30, 1e30, veksMagSquared_32fc64f, MagSq(nullptr),
                                   [](T32f re, T32f im, T64f got, int) {
                                       const double r = re, i = im;
                                       ASSERT_EQ(vt::ulpDistance(got, r * r + i * i), 0);
                                   });
}

TEST(Magnitude, SixteenBitToFloat) {
    // The exact integer sum, then sqrt in double rounded once, or the sum
    // rounded once.
    bothLayouts<T16sc, T16s, T32f>(6, 0, 0, veksMagnitude_16sc32f, veksMagnitude_16s32f,
                                   [](T16s re, T16s im, T32f got, int) {
                                       const double n = double(re) * re + double(im) * im;
                                       ASSERT_EQ(vt::ulpDistance(got, static_cast<float>(sqrt(n))), 0);
                                   });
    bothLayouts<T16sc, T16s, T32f>(7, 0, 0, veksPowerSpectr_16sc32f, veksPowerSpectr_16s32f,
                                   [](T16s re, T16s im, T32f got, int) {
                                       const int64_t n = int64_t(re) * re + int64_t(im) * im;
                                       ASSERT_EQ(vt::ulpDistance(got, static_cast<float>(n)), 0);
                                   });
}

TEST(Magnitude, ScaledIntegerMembers) {
    vt::Rng rng(8);
    std::vector<T16s> re16 = vt::edgeValues<T16s>(), im16;
    for (T16s v : {T16s(-32768), T16s(32767), T16s(16384), T16s(3), T16s(-4)}) re16.push_back(v);
    for (int i = 0; i < 200; ++i) re16.push_back(rng.next<T16s>());
    im16 = re16;
    std::reverse(im16.begin(), im16.end());
    im16[0] = 0;  // (-32768, 0): magnitude exactly 32768, halfway at scale factor 16
    re16[0] = -32768;
    const int n = static_cast<int>(re16.size());
    const std::vector<T16sc> c16 = interleave<T16sc>(re16, im16);
    for (int sf = -40; sf <= 40; ++sf) {
        vt::Guarded<T16s> a(re16.size(), 1), b(re16.size()), p1(re16.size(), 3), p2(re16.size());
        ASSERT_EQ(veksMagnitude_16sc_Sfs(c16.data(), a.data(), n, sf), VEK_OK);
        ASSERT_EQ(veksMagnitude_16s_Sfs(re16.data(), im16.data(), b.data(), n, sf), VEK_OK);
        ASSERT_EQ(veksPowerSpectr_16sc_Sfs(c16.data(), p1.data(), n, sf), VEK_OK);
        ASSERT_EQ(veksPowerSpectr_16s_Sfs(re16.data(), im16.data(), p2.data(), n, sf), VEK_OK);
        ASSERT_TRUE(a.intact() && b.intact() && p1.intact() && p2.intact());
        for (size_t i = 0; i < re16.size(); ++i) {
            const T16s want = ref::magnitudeScaled<T16s>(re16[i], im16[i], sf);
            ASSERT_EQ(a[i], want) << re16[i] << "," << im16[i] << " sf=" << sf;
            ASSERT_EQ(b[i], want) << re16[i] << "," << im16[i] << " sf=" << sf;
            // The power spectrum is an exact integer: the scale-factor rule.
            const int64_t s = int64_t(re16[i]) * re16[i] + int64_t(im16[i]) * im16[i];
            const T16s wantP = ref::saturateL<T16s>(ref::roundEven(ldexpl(static_cast<long double>(s), -sf)));
            ASSERT_EQ(p1[i], wantP) << s << " sf=" << sf;
            ASSERT_EQ(p2[i], wantP) << s << " sf=" << sf;
        }
    }
    // The halfway magnitude 32768 at scale factor 16 goes to the even 0;
    // anything larger to 1.
    const T16sc half[2] = {{-32768, 0}, {-32768, 1}};
    T16s out[2];
    ASSERT_EQ(veksMagnitude_16sc_Sfs(half, out, 2, 16), VEK_OK);
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 1);
}

TEST(Magnitude, ScaledThirtyTwoBit) {
    vt::Rng rng(9);
    std::vector<T32sc> src = {{INT32_MIN, INT32_MIN}, {INT32_MAX, INT32_MIN}, {0, 0}, {1, 0}, {3, 4},
                              {-46341, 0}, {65535, 65535}, {INT32_MIN, 0}};
    for (int i = 0; i < 300; ++i) {
        const int bits = static_cast<int>(rng.range(1, 31));
        src.push_back({static_cast<T32s>(rng.range(-(int64_t(1) << bits), (int64_t(1) << bits) - 1)),
                       static_cast<T32s>(rng.range(-(int64_t(1) << bits), (int64_t(1) << bits) - 1))});
    }
    const int n = static_cast<int>(src.size());
    for (int sf = -40; sf <= 70; ++sf) {
        std::vector<T32s> mag(src.size()), sq(src.size());
        ASSERT_EQ(veksMagnitude_32sc_Sfs(src.data(), mag.data(), n, sf), VEK_OK);
        ASSERT_EQ(veksMagSquared_32sc32s_Sfs(src.data(), sq.data(), n, sf), VEK_OK);
        for (size_t i = 0; i < src.size(); ++i) {
            const long double nsq = static_cast<long double>(src[i].re) * src[i].re +
                                    static_cast<long double>(src[i].im) * src[i].im;
            const long double exactMag = ldexpl(sqrtl(nsq), -sf);
            if (!ref::nearHalf(exactMag, 1e-15L)) {
                ASSERT_EQ(mag[i], ref::magnitudeScaled<T32s>(src[i].re, src[i].im, sf))
                    << src[i].re << "," << src[i].im << " sf=" << sf;
            }
            // MagSquared forms the sum of squares in double on purpose.
            const double r = src[i].re, m = src[i].im;
            T32s wantSq;
            if (sf > 63) wantSq = 0;
            else if (sf <= -31) wantSq = (src[i].re == 0 && src[i].im == 0) ? 0 : INT32_MAX;
            else wantSq = ref::saturateL<T32s>(ref::roundEven(static_cast<long double>((r * r + m * m) * ldexp(1.0, -sf))));
            ASSERT_EQ(sq[i], wantSq) << src[i].re << "," << src[i].im << " sf=" << sf;
        }
    }
    // Named values: sqrt(2) * 2^31 saturates, halves round to even.
    const T32sc big[1] = {{INT32_MIN, INT32_MIN}};
    T32s out[1];
    const struct { int sf; T32s want; } cases[] = {{0, INT32_MAX}, {1, 1518500250}, {2, 759250125},
                                                   {32, 1}, {33, 0}, {-5, INT32_MAX}};
    for (const auto& c : cases) {
        ASSERT_EQ(veksMagnitude_32sc_Sfs(big, out, 1, c.sf), VEK_OK);
        EXPECT_EQ(out[0], c.want) << c.sf;
    }
}

TEST(ScaledMembers, ExtremeScaleFactors) {
    // The most negative scale factor saturates every non-zero result and
    // keeps zeros; the most positive gives zeros.
    const T16sc c16[3] = {{0, 0}, {3, -4}, {-1, 0}};
    const T16s re16[3] = {0, 3, -1}, im16[3] = {0, -4, 0};
    const T32sc c32[3] = {{0, 0}, {3, -4}, {-1, -1}};
    for (int sf : {INT32_MIN, INT32_MAX}) {
        const bool low = sf < 0;
        T16s a[3], b[3], p1[3], p2[3], ph[3], ph2[3];
        T32s m32[3], q32[3], ph32[3];
        ASSERT_EQ(veksMagnitude_16sc_Sfs(c16, a, 3, sf), VEK_OK);
        ASSERT_EQ(veksMagnitude_16s_Sfs(re16, im16, b, 3, sf), VEK_OK);
        ASSERT_EQ(veksPowerSpectr_16sc_Sfs(c16, p1, 3, sf), VEK_OK);
        ASSERT_EQ(veksPowerSpectr_16s_Sfs(re16, im16, p2, 3, sf), VEK_OK);
        ASSERT_EQ(veksPhase_16sc_Sfs(c16, ph, 3, sf), VEK_OK);
        ASSERT_EQ(veksPhase_16s_Sfs(re16, im16, ph2, 3, sf), VEK_OK);
        ASSERT_EQ(veksMagnitude_32sc_Sfs(c32, m32, 3, sf), VEK_OK);
        ASSERT_EQ(veksMagSquared_32sc32s_Sfs(c32, q32, 3, sf), VEK_OK);
        ASSERT_EQ(veksPhase_32sc_Sfs(c32, ph32, 3, sf), VEK_OK);
        for (const T16s* r : {a, b, p1, p2}) {
            EXPECT_EQ(r[0], 0) << sf;
            EXPECT_EQ(r[1], low ? 32767 : 0) << sf;
        }
        // Angles: 0, atan2(-4, 3) < 0, pi (or -3pi/4 for 32sc's (-1, -1)).
        EXPECT_EQ(ph[0], 0);
        EXPECT_EQ(ph[1], low ? -32768 : 0);
        EXPECT_EQ(ph[2], low ? 32767 : 0);
        EXPECT_TRUE(ph2[0] == ph[0] && ph2[1] == ph[1] && ph2[2] == ph[2]);
        EXPECT_EQ(m32[0], 0);
        EXPECT_EQ(m32[1], low ? INT32_MAX : 0);
        EXPECT_EQ(q32[1], low ? INT32_MAX : 0);
        EXPECT_EQ(ph32[0], 0);
        EXPECT_EQ(ph32[1], low ? INT32_MIN : 0);
        EXPECT_EQ(ph32[2], low ? INT32_MIN : 0);
    }
}

// ---- Phase ---------------------------------------------------------------------

// The kernel's bound for single-precision atan2 (see the kernel's notes).
constexpr int64_t kAtan2MaxUlp = 2;

float atan2Exact(float y, float x) {
    return static_cast<float>(atan2l(static_cast<long double>(y), static_cast<long double>(x)));
}

TEST(Phase, SinglePrecisionWithinBound) {
    bothLayouts<T32fc, T32f, T32f>(10, -1e4, 1e4, veksPhase_32fc, veksPhase_32f,
                                   [](T32f re, T32f im, T32f got, int len) {
                                       ASSERT_LE(vt::ulpDistance(got, atan2Exact(im, re)), kAtan2MaxUlp)
                                           << im << "/" << re << " len=" << len;
                                   });
    bothLayouts<T64fc, T64f, T64f>(11, -1e4, 1e4, veksPhase_64fc, veksPhase_64f,
                                   [](T64f re, T64f im, T64f got, int) {
                                       // atan2d's bound (math_f64.h).
                                       const double want = static_cast<double>(atan2l(im, re));
                                       ASSERT_LE(vt::ulpDistance(got, want), 2);
                                   });
    // 16-bit parts: the double angle rounded once (at most one rounding
    // away from the long double model's).
    bothLayouts<T16sc, T16s, T32f>(12, 0, 0, veksPhase_16sc32f, veksPhase_16s32f,
                                   [](T16s re, T16s im, T32f got, int) {
                                       ASSERT_LE(vt::ulpDistance(got, atan2Exact(im, re)), 1);
                                   });
}

TEST(Phase, SpecialValuesAsAtan2) {
    // Signed zeros, infinities and NaN in every lane position: the same
    // values as the C library's atan2 (NaN stays NaN).
    const float inf = INFINITY, nan = NAN;
    const float vals[] = {0.0f, -0.0f, 1.0f, -1.0f, inf, -inf, nan, 1e-45f, -3e38f, 3.4e38f, 2.5e-38f};
    std::vector<T32f> re, im;
    for (float y : vals)
        for (float x : vals) {
            re.push_back(x);
            im.push_back(y);
        }
    const int n = static_cast<int>(re.size());
    std::vector<T32f> got(re.size());
    ASSERT_EQ(veksPhase_32f(re.data(), im.data(), got.data(), n), VEK_OK);
    for (size_t i = 0; i < re.size(); ++i) {
        const float want = atan2Exact(im[i], re[i]);
        if (want != want) {
            EXPECT_NE(got[i], got[i]) << im[i] << "/" << re[i];
            continue;
        }
        EXPECT_EQ(signbit(got[i]), signbit(want)) << im[i] << "/" << re[i];
        EXPECT_LE(vt::ulpDistance(got[i], want), kAtan2MaxUlp) << im[i] << "/" << re[i];
    }
}

TEST(Phase, VectorLanesEqualScalarTail) {
    // Every element gets the same bits whether a vector step or the scalar
    // tail computed it: one call over n against n calls of length 1, with
    // edge values (signed zeros, infinities, NaN, subnormals, range ends)
    // and random bit patterns in every lane position.
    vt::Rng rng(13);
    const size_t n = 4099;
    std::vector<T32f> re = rng.vec<T32f>(n, -10, 10), im = rng.vec<T32f>(n, -10, 10);
    const std::vector<T32f> edges = vt::edgeValues<T32f>();
    for (size_t i = 0; i < n; i += 5) re[i] = edges[(i / 5) % edges.size()];
    for (size_t i = 1; i < n; i += 7) im[i] = edges[(i / 7) % edges.size()];
    for (size_t i = 2; i < n; i += 11) {
        const uint32_t a = static_cast<uint32_t>(rng.engine()()), b = static_cast<uint32_t>(rng.engine()());
        memcpy(&re[i], &a, 4);
        memcpy(&im[i], &b, 4);
    }
    std::vector<T32f> all(n), mag(n);
    ASSERT_EQ(veksPhase_32f(re.data(), im.data(), all.data(), int(n)), VEK_OK);
    ASSERT_EQ(veksMagnitude_32f(re.data(), im.data(), mag.data(), int(n)), VEK_OK);
    for (size_t i = 0; i < n; ++i) {
        T32f one, m1;
        ASSERT_EQ(veksPhase_32f(&re[i], &im[i], &one, 1), VEK_OK);
        ASSERT_EQ(veksMagnitude_32f(&re[i], &im[i], &m1, 1), VEK_OK);
        // NaN results may differ in payload only when both are NaN.
        ASSERT_TRUE(memcmp(&one, &all[i], 4) == 0 || (one != one && all[i] != all[i])) << i;
        ASSERT_TRUE(memcmp(&m1, &mag[i], 4) == 0 || (m1 != m1 && mag[i] != mag[i])) << i;
    }
}

TEST(Phase, ScaledSixteenBitRule) {
    vt::Rng rng(14);
    std::vector<T16s> re = {-1, 0, 1, -32768, 32767, 0, -1, 1, 1, 32767, -32768, 5},
                      im = {0, 0, 0, 0, 1, -1, -1, 32767, -32768, 1, -1, -5};
    for (int i = 0; i < 200; ++i) {
        re.push_back(rng.next<T16s>());
        im.push_back(rng.next<T16s>());
    }
    const int n = static_cast<int>(re.size());
    const std::vector<T16sc> c = interleave<T16sc>(re, im);
    for (int sf : {-200, -129, -128, -127, -60, -31, -30, -29, -28, -27, -20, -15, -14, -13, -8, -3, -1, 0, 1, 2,
                   3, 16, 40}) {
        vt::Guarded<T16s> a(re.size(), 1), b(re.size());
        ASSERT_EQ(veksPhase_16sc_Sfs(c.data(), a.data(), n, sf), VEK_OK);
        ASSERT_EQ(veksPhase_16s_Sfs(re.data(), im.data(), b.data(), n, sf), VEK_OK);
        ASSERT_TRUE(a.intact() && b.intact());
        for (size_t i = 0; i < re.size(); ++i) {
            const T16s want = ref::phaseScaled16(re[i], im[i], sf);
            ASSERT_EQ(a[i], want) << im[i] << "/" << re[i] << " sf=" << sf;
            ASSERT_EQ(b[i], want) << im[i] << "/" << re[i] << " sf=" << sf;
        }
    }
    // (-1, 0): pi rounds to 3 at scale factor 0 and is zeroed from 2 on.
    const T16sc minusOne[1] = {{-1, 0}};
    T16s out[1];
    ASSERT_EQ(veksPhase_16sc_Sfs(minusOne, out, 1, 0), VEK_OK);
    EXPECT_EQ(out[0], 3);
    ASSERT_EQ(veksPhase_16sc_Sfs(minusOne, out, 1, 2), VEK_OK);
    EXPECT_EQ(out[0], 0);
    ASSERT_EQ(veksPhase_16sc_Sfs(minusOne, out, 1, 1), VEK_OK);
    EXPECT_EQ(out[0], 2);  // pi / 2 = 1.57
}

TEST(Phase, ScaledThirtyTwoBit) {
    vt::Rng rng(15);
    std::vector<T32sc> src = {{-1, 0}, {0, 0}, {INT32_MIN, 0}, {INT32_MIN, -1}, {1, INT32_MAX}, {0, -5}};
    for (int i = 0; i < 300; ++i) src.push_back({rng.next<T32s>(), rng.next<T32s>()});
    const int n = static_cast<int>(src.size());
    for (int sf = -40; sf <= 8; ++sf) {
        std::vector<T32s> got(src.size());
        ASSERT_EQ(veksPhase_32sc_Sfs(src.data(), got.data(), n, sf), VEK_OK);
        for (size_t i = 0; i < src.size(); ++i) {
            const long double v = ldexpl(atan2l(static_cast<long double>(src[i].im), src[i].re), -sf);
            if (ref::nearHalf(v, 1e-14L)) continue;  // the double angle may round either way here
            ASSERT_EQ(got[i], ref::saturateL<T32s>(ref::roundEven(v))) << src[i].im << "/" << src[i].re
                                                                       << " sf=" << sf;
        }
    }
}

}  // namespace

// Magnitude, MagSquared, PowerSpectr and Phase against reference models,
// one row per export pair (complex source and two-part source, which must
// agree bit for bit), over every tail length and misaligned starts. Where the
// arithmetic is fixed results match bit for bit; the scaled integer members
// against a long double model over scale factors that cross every range of
// the rules (including the extreme ints); atan2 within the kernel's bound.
#include <math.h>
#include <string.h>

#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

// Random parts with edge values in lane positions; 32-bit integers shifted
// by random amounts so that every magnitude occurs; small parts at random
// positions; every twelfth pair random bit patterns.
template <class B>
std::vector<B> partData(vt::Rng& rng, size_t n, double range) {
    std::vector<B> v = rng.vec<B>(n, -range, range);
    const std::vector<B> edges = vt::edgeValues<B>();
    for (size_t i = 0; i < n; ++i) {
        if constexpr (std::is_same<B, T32s>::value) v[i] = static_cast<B>(v[i] >> rng.range(0, 31));
        if (rng.range(0, 15) == 0) v[i] = static_cast<B>(rng.range(-3, 3));  // tiny angles against large parts
        if (i % 12 == 5) {
            const uint64_t bits = rng.engine()();
            memcpy(&v[i], &bits, sizeof(B));
        }
        if (i % 11 == 3) v[i] = edges[(i / 11) % edges.size()];
    }
    return v;
}

template <class D>
bool same(D got, D want, int64_t ulps = 0) {
    if constexpr (std::is_floating_point<D>::value) return vt::ulpDistance(got, want) <= ulps;
    else return got == want;
}

// A scaled export with its scale factor bound (it is always the last argument).
template <class F>
auto withSf(F f, int sf) {
    return [f, sf](auto... a) { return f(a..., sf); };
}

template <class C, class B, class D, class Cplx, class Parts, class Check>
void layouts(uint64_t seed, double range, Cplx cplx, Parts parts, Check check) {
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        for (int ms : vt::misalignments()) {
            const std::vector<B> re = partData<B>(rng, n, range), im = partData<B>(rng, n, range);
            std::vector<C> c(n);
            for (size_t i = 0; i < n; ++i) c[i] = {re[i], im[i]};
            vt::Guarded<C> src(c, ms);
            vt::Guarded<D> d1(n, ms);
            ASSERT_EQ(cplx(src.data(), d1.data(), len), VEK_OK);
            ASSERT_TRUE(d1.intact() && src.intact());
            if constexpr (!std::is_same<Parts, std::nullptr_t>::value) {
                vt::Guarded<B> sre(re, ms), sim(im, 2);
                vt::Guarded<D> d2(n, 1);
                ASSERT_EQ(parts(sre.data(), sim.data(), d2.data(), len), VEK_OK);
                ASSERT_TRUE(vt::sameElements(d2.data(), d1.data(), n)) << "layouts differ, len=" << len;
                ASSERT_TRUE(d2.intact());
            }
            for (size_t i = 0; i < n; ++i) {
                ASSERT_TRUE(check(re[i], im[i], d1[i])) << re[i] << ", " << im[i] << " -> " << d1[i] << " len=" << len;
                // The same bits whether a vector step or the scalar tail
                // computed the element (NaN payloads aside).
                D one;
                ASSERT_EQ(cplx(&src[i], &one, 1), VEK_OK);
                ASSERT_TRUE(memcmp(&one, &d1[i], sizeof one) == 0 || (one != one && d1[i] != d1[i])) << i;
            }
        }
    }
}

TEST(Magnitude, FloatingFormulasExact) {
    // Squares and sums in the source's own precision (MagSquared in double).
    layouts<T32fc, T32f, T32f>(1, 1e20, veksMagnitude_32fc, veksMagnitude_32f,
                               [](T32f r, T32f i, T32f got) { return same(got, sqrtf(r * r + i * i)); });
    layouts<T64fc, T64f, T64f>(2, 1e3, veksMagnitude_64fc, veksMagnitude_64f,
                               [](T64f r, T64f i, T64f got) { return same(got, sqrt(r * r + i * i)); });
    layouts<T32fc, T32f, T32f>(3, 1e3, veksPowerSpectr_32fc, veksPowerSpectr_32f,
                               [](T32f r, T32f i, T32f got) { return same(got, r * r + i * i); });
    layouts<T64fc, T64f, T64f>(4, 1e3, veksPowerSpectr_64fc, veksPowerSpectr_64f,
                               [](T64f r, T64f i, T64f got) { return same(got, r * r + i * i); });
    layouts<T32fc, T32f, T64f>(5, 1e30, veksMagSquared_32fc64f, nullptr,
                               [](double r, double i, T64f got) { return same(got, r * r + i * i); });
    // 16-bit parts: the exact integer sum, then sqrt in double rounded once,
    // or the sum rounded once.
    layouts<T16sc, T16s, T32f>(6, 0, veksMagnitude_16sc32f, veksMagnitude_16s32f, [](double r, double i, T32f got) {
        return same(got, static_cast<float>(sqrt(r * r + i * i)));
    });
    layouts<T16sc, T16s, T32f>(
        7, 0, veksPowerSpectr_16sc32f, veksPowerSpectr_16s32f,
        [](int64_t r, int64_t i, T32f got) { return same(got, static_cast<float>(r * r + i * i)); });
}

TEST(Magnitude, ScaledIntegerMembers) {
    for (int sf : {INT32_MIN, -40, -31, -30, -17, -1, 0, 1, 5, 15, 16, 17, 31, 32, 33, 40, 63, 64, 70, INT32_MAX}) {
        SCOPED_TRACE(sf);
        layouts<T16sc, T16s, T16s>(
            8, 0, withSf(veksMagnitude_16sc_Sfs, sf), withSf(veksMagnitude_16s_Sfs, sf),
            [sf](T16s r, T16s i, T16s got) { return got == ref::magnitudeScaled<T16s>(r, i, sf); });
        // The power spectrum is an exact integer: the scale-factor rule.
        layouts<T16sc, T16s, T16s>(
            9, 0, withSf(veksPowerSpectr_16sc_Sfs, sf), withSf(veksPowerSpectr_16s_Sfs, sf),
            [sf](int64_t r, int64_t i, T16s got) { return got == ref::scaled<T16s>(r * r + i * i, sf); });
        layouts<T32sc, T32s, T32s>(10, 0, withSf(veksMagnitude_32sc_Sfs, sf), nullptr, [sf](T32s r, T32s i, T32s got) {
            const long double exact =
                ref::shift(sqrtl(static_cast<long double>(r) * r + static_cast<long double>(i) * i), sf);
            return ref::nearHalf(exact, 1e-15L) || got == ref::magnitudeScaled<T32s>(r, i, sf);
        });
        layouts<T32sc, T32s, T32s>(11, 0, withSf(veksMagSquared_32sc32s_Sfs, sf), nullptr,
                                   [sf](T32s r, T32s i, T32s got) { return got == ref::magSquaredScaled32(r, i, sf); });
    }
    // Named ties and saturations: magnitude 32768 at scale factor 16 is a tie
    // to the even 0; sqrt(2) * 2^31 saturates and halves round to even.
    const T16sc half[2] = {{-32768, 0}, {-32768, 1}};
    T16s out[2];
    ASSERT_EQ(veksMagnitude_16sc_Sfs(half, out, 2, 16), VEK_OK);
    EXPECT_TRUE(out[0] == 0 && out[1] == 1);
    const T32sc big[1] = {{INT32_MIN, INT32_MIN}};
    for (auto c : {std::make_pair(0, INT32_MAX), {1, 1518500250}, {2, 759250125}, {32, 1}, {33, 0}}) {
        T32s o;
        ASSERT_EQ(veksMagnitude_32sc_Sfs(big, &o, 1, c.first), VEK_OK);
        EXPECT_EQ(o, c.second) << c.first;
    }
}

float atan2Exact(float y, float x) { return static_cast<float>(atan2l(y, x)); }

TEST(Phase, AgainstModels) {
    // The kernels' bounds: 2 ulp for atan2 and atan2d (math_sse.h,
    // math_f64.h); the 16-bit parts' double angle rounded once is at most one
    // rounding away from the long double model's.
    layouts<T32fc, T32f, T32f>(12, 1e4, veksPhase_32fc, veksPhase_32f,
                               [](T32f r, T32f i, T32f got) { return same(got, atan2Exact(i, r), 2); });
    layouts<T64fc, T64f, T64f>(13, 1e4, veksPhase_64fc, veksPhase_64f, [](T64f r, T64f i, T64f got) {
        return same(got, static_cast<double>(atan2l(i, r)), 2);
    });
    layouts<T16sc, T16s, T32f>(14, 0, veksPhase_16sc32f, veksPhase_16s32f,
                               [](T16s r, T16s i, T32f got) { return same(got, atan2Exact(i, r), 1); });
    // Scale factors crossing each range of the 16-bit rule (and the extremes).
    for (int sf : {INT32_MIN, -200, -129, -128, -127, -31, -29, -28, -27, -14, -13, -3, 0, 1, 2, 3, INT32_MAX}) {
        SCOPED_TRACE(sf);
        layouts<T16sc, T16s, T16s>(15, 0, withSf(veksPhase_16sc_Sfs, sf), withSf(veksPhase_16s_Sfs, sf),
                                   [sf](T16s r, T16s i, T16s got) { return got == ref::phaseScaled16(r, i, sf); });
        // The double angle may round either way right at a boundary.
        layouts<T32sc, T32s, T32s>(16, 0, withSf(veksPhase_32sc_Sfs, sf), nullptr, [sf](T32s r, T32s i, T32s got) {
            const long double v = ref::shift(atan2l(i, r), sf);
            return ref::nearHalf(v, 1e-14L) || got == ref::saturateL<T32s>(ref::roundEven(v));
        });
    }
}

TEST(Phase, SpecialPairs) {
    // Every pair of special values (signed zeros, infinities, NaN, subnormal,
    // range ends): atan2's values and signs.
    const float vals[] = {0.0f, -0.0f, 1.0f, -1.0f, INFINITY, -INFINITY, NAN, 1e-45f, -3e38f, 3.4e38f, 2.5e-38f};
    std::vector<T32f> re, im;
    for (float y : vals)
        for (float x : vals) re.push_back(x), im.push_back(y);
    std::vector<T32f> ph(re.size());
    ASSERT_EQ(veksPhase_32f(re.data(), im.data(), ph.data(), int(re.size())), VEK_OK);
    for (size_t i = 0; i < re.size(); ++i) {
        const float want = atan2Exact(im[i], re[i]);
        EXPECT_TRUE(want != want ? ph[i] != ph[i] : signbit(ph[i]) == signbit(want) && same(ph[i], want, 2))
            << im[i] << "/" << re[i] << " -> " << ph[i];
    }
}

}  // namespace

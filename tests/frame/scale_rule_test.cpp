// The scale-factor rule and float-to-integer rounding, each against an
// independent derivation, over the whole range of scale factors.
#include <fenv.h>

#include "frame/detail/rounding.h"
#include "frame/detail/scale.h"
#include "ref/scale_ref.h"
#include "support/support.h"

namespace {

template <class T>
void checkRule(int64_t magnitude, uint64_t seed) {
    vt::Rng rng(seed);
    std::vector<int64_t> values = {0, 1, -1, 2, -2, 3, -3, 5, -5, magnitude, -magnitude, magnitude - 1};
    for (int i = 0; i < 400; ++i) values.push_back(rng.range(-magnitude, magnitude));
    for (int sf = -70; sf <= 70; ++sf) {
        // Values at and around every tie of this scale factor.
        std::vector<int64_t> vs = values;
        if (sf > 0 && sf < 62) {
            const int64_t h = int64_t(1) << (sf - 1);
            for (int64_t m : {1, 3, 5, -1, -3, -5})
                for (int64_t d : {-1, 0, 1}) {
                    const int64_t v = m * h + d;
                    if (v <= magnitude && v >= -magnitude) vs.push_back(v);
                }
        }
        for (int64_t s : vs) {
            const T want = ref::scale<T>(s, sf);
            const T got = veks::scaleSat<T>(s, sf);
            ASSERT_EQ(static_cast<int64_t>(got), static_cast<int64_t>(want)) << "s=" << s << " sf=" << sf;
        }
    }
}

TEST(ScaleRule, MatchesQuotientRemainderDerivation) {
    checkRule<T16s>(int64_t(1) << 31, 11);
    checkRule<T16u>(int64_t(1) << 31, 12);
    checkRule<T8u>(int64_t(1) << 17, 13);
    checkRule<T32s>(int64_t(1) << 61, 14);
    checkRule<T64s>(int64_t(1) << 61, 15);
}

TEST(ScaleRule, ConvergentNotHalfUp) {
    // Ties go to the even neighbour, in both directions.
    const struct { int64_t s; int sf; int want; } cases[] = {
        {3, 1, 2}, {5, 1, 2}, {-3, 1, -2}, {1, 1, 0}, {-1, 1, 0}, {7, 1, 4}, {6, 2, 2}, {10, 2, 2},
        {-10, 2, -2}, {65534, 1, 32767}, {-65536, 1, -32768}, {65535, 0, 32767}, {-1, -15, -32768},
        {1, -15, 32767}, {0, -40, 0}, {-65536, 16, -1}, {65536, 17, 0}, {-65536, 17, 0}};
    for (const auto& c : cases) EXPECT_EQ(veks::scaleSat<T16s>(c.s, c.sf), c.want) << c.s << " " << c.sf;
}

TEST(ScaleRule, ShortcutBoundsAgreeWithRule) {
    // The zero shortcut for |s| <= 2^16 begins at sf 17, the sign shortcut
    // for 16-bit results at sf -16.
    for (int sf = 17; sf < 40; ++sf) {
        ASSERT_TRUE(veks::scaleGivesZero(sf, 16));
        for (int64_t s : {-65536LL, 65536LL, 32768LL, -1LL, 1LL}) ASSERT_EQ(veks::scaleSat<T16s>(s, sf), 0);
    }
    EXPECT_FALSE(veks::scaleGivesZero(16, 16));
    EXPECT_EQ(veks::scaleSat<T16s>(-65536, 16), -1);
    EXPECT_TRUE(veks::scaleGivesSign<T16s>(-16));
    EXPECT_FALSE(veks::scaleGivesSign<T16s>(-15));
    EXPECT_TRUE(veks::scaleGivesSign<T32s>(-32));
    EXPECT_EQ(veks::scaleSat<T16s>(1, -16), 32767);
    EXPECT_EQ(veks::scaleSat<T16s>(-1, -16), -32768);
    EXPECT_EQ(veks::scaleSat<T16u>(-1, -16), 0);
}

TEST(Rounding, ModesAtTiesAndRangeEnds) {
    const struct { double x; double zero, near, away; } cases[] = {
        {2.5, 2, 2, 3}, {3.5, 3, 4, 4}, {-2.5, -2, -2, -3}, {-3.5, -3, -4, -4}, {0.49999999999999994, 0, 0, 0},
        {-0.5, -0.0, -0.0, -1}, {1e300, 1e300, 1e300, 1e300}, {4503599627370497.0, 4503599627370497.0,
        4503599627370497.0, 4503599627370497.0}, {2.7, 2, 3, 3}, {-2.7, -2, -3, -3}};
    for (const auto& c : cases) {
        EXPECT_EQ(veks::roundByMode(c.x, VEK_ROUND_ZERO), c.zero) << c.x;
        EXPECT_EQ(veks::roundByMode(c.x, VEK_ROUND_NEAR), c.near) << c.x;
        EXPECT_EQ(veks::roundByMode(c.x, VEK_ROUND_HALF_AWAY), c.away) << c.x;
    }
    EXPECT_EQ(veks::roundSat<T16s>(40000.0, VEK_ROUND_NEAR), 32767);
    EXPECT_EQ(veks::roundSat<T16s>(-40000.0, VEK_ROUND_NEAR), -32768);
    EXPECT_EQ(veks::roundSat<T16s>(5.0, VEK_ROUND_NEAR, 1), 2);   // 2.5 to even
    EXPECT_EQ(veks::roundSat<T16s>(5.0, VEK_ROUND_NEAR, -1), 10);
    EXPECT_EQ(veks::roundSat<T32s>(3e9, VEK_ROUND_ZERO), 2147483647);
    EXPECT_EQ(veks::roundSat<T8u>(-3.0, VEK_ROUND_ZERO), 0);
}

TEST(Rounding, ResultsIndependentOfCallerSettingAndGuardRestores) {
    for (int callerMode : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
        ASSERT_EQ(fesetround(callerMode), 0);
        EXPECT_EQ(veks::roundByMode(2.5, VEK_ROUND_NEAR), 2.0);
        EXPECT_EQ(veks::roundByMode(-2.5, VEK_ROUND_HALF_AWAY), -3.0);
        const unsigned before = _mm_getcsr();
        {
            veks::RoundingGuard g(veks::RoundingGuard::TowardZero);
            volatile float a = 1.0f, b = 3.0f;
            EXPECT_EQ(a / b, 0.333333313465118408203125f);  // truncated quotient
        }
        EXPECT_EQ(_mm_getcsr() & 0x6000u, before & 0x6000u);  // the rounding bits
    }
    fesetround(FE_TONEAREST);
}

}  // namespace

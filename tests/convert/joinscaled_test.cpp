// JoinScaled and SplitScaled: the affine maps at their ends, every 16-bit
// value through both, a model for arbitrary inputs, the interleaving and
// the check order.
#include <math.h>

#include "convert_support.h"

namespace {

// nearest-even of v * halfSpan - 0.5 with v clamped. The subtraction is
// exact in long double for |v| >= 2^-30; below that, -0.5 plus a tiny
// product rounds to -1 when the product is negative and to 0 otherwise.
int32_t joinModel(float v, long double halfSpan) {
    long double c = v != v ? 1.0L : v > 1 ? 1.0L : v < -1 ? -1.0L : v;
    if (fabsl(c) < 0x1p-30L) return c < 0 ? -1 : 0;
    const long double y = c * halfSpan - 0.5L;
    const long double f = floorl(y), frac = y - f;
    if (frac > 0.5L || (frac == 0.5L && fmodl(f, 2) != 0)) return static_cast<int32_t>(f + 1);
    return static_cast<int32_t>(f);
}

int32_t w24(const T24s& v) { return static_cast<int32_t>(static_cast<uint32_t>(v.b[0] | v.b[1] << 8 | v.b[2] << 16) << 8) >> 8; }

TEST(JoinSplit, EndsZeroAndRoundTrips) {
    // 16 bits: every value out and back.
    std::vector<T16s> all(65536), back(65536);
    for (int i = 0; i < 65536; ++i) all[i] = static_cast<T16s>(i - 32768);
    std::vector<T32f> f(65536);
    T32f* ch[1] = {f.data()};
    const T32f* cch[1] = {f.data()};
    ASSERT_EQ(veksSplitScaled_16s32f_D2L(all.data(), ch, 1, 65536), VEK_OK);
    EXPECT_EQ(f[0], -1.0f);
    EXPECT_EQ(f[65535], 1.0f);
    EXPECT_EQ(f[32768], 1.0f / 65535.0f);  // 0 maps to 1/65535, not 0
    for (int i = 1; i < 65536; ++i) ASSERT_LT(f[i - 1], f[i]) << i;
    ASSERT_EQ(veksJoinScaled_32f16s_D2L(cch, 1, 65536, back.data()), VEK_OK);
    EXPECT_TRUE(vt::sameElements(back.data(), all.data(), 65536));

    // 24 bits: the ends and a spread of values out and back.
    vt::Rng rng(3);
    std::vector<T24s> s24(4096), b24(4096);
    for (size_t i = 0; i < s24.size(); ++i) {
        const int32_t v = i == 0 ? -(1 << 23) : i == 1 ? (1 << 23) - 1 : i == 2 ? 0 : static_cast<int32_t>(rng.range(-(1 << 23), (1 << 23) - 1));
        s24[i].b[0] = static_cast<unsigned char>(v);
        s24[i].b[1] = static_cast<unsigned char>(v >> 8);
        s24[i].b[2] = static_cast<unsigned char>(v >> 16);
    }
    std::vector<T32f> f24(4096);
    T32f* ch24[1] = {f24.data()};
    const T32f* cch24[1] = {f24.data()};
    ASSERT_EQ(veksSplitScaled_24s32f_D2L(s24.data(), ch24, 1, 4096), VEK_OK);
    EXPECT_EQ(f24[0], -1.0f);
    EXPECT_EQ(f24[1], 1.0f);
    EXPECT_EQ(f24[2], static_cast<float>(1.0 / 16777215.0));
    ASSERT_EQ(veksJoinScaled_32f24s_D2L(cch24, 1, 4096, b24.data()), VEK_OK);
    for (size_t i = 0; i < s24.size(); ++i) ASSERT_EQ(w24(b24[i]), w24(s24[i])) << i;
}

TEST(JoinSplit, JoinMatchesTheModelAndInterleaves) {
    vt::Rng rng(9);
    for (int nCh : {1, 2, 3, 8}) {
        for (int chanLen : {1, 7, 33}) {
            std::vector<std::vector<T32f>> chans(nCh, std::vector<T32f>(chanLen));
            for (auto& c : chans)
                for (size_t i = 0; i < c.size(); ++i)
                    c[i] = i % 5 == 0 ? static_cast<float>(rng.range(-32768, 32767) + 0.5) / 32767.5f : rng.next<float>(-1.3, 1.3);
            chans[0][0] = NAN;
            if (chanLen > 3) {
                chans[0][1] = -INFINITY;
                chans[0][2] = -0.0f;
                chans[0][3] = -1e-30f;  // tiny negatives round to -1, tiny positives to 0
            }
            std::vector<const T32f*> p;
            for (auto& c : chans) p.push_back(c.data());
            vt::Guarded<T16s> d16(static_cast<size_t>(nCh * chanLen), 1);
            vt::Guarded<T24s> d24(static_cast<size_t>(nCh * chanLen), 3);
            ASSERT_EQ(veksJoinScaled_32f16s_D2L(p.data(), nCh, chanLen, d16.data()), VEK_OK);
            ASSERT_EQ(veksJoinScaled_32f24s_D2L(p.data(), nCh, chanLen, d24.data()), VEK_OK);
            for (int i = 0; i < chanLen; ++i)
                for (int c = 0; c < nCh; ++c) {
                    const float v = chans[c][i];
                    ASSERT_EQ(d16[i * nCh + c], joinModel(v, 32767.5L)) << v;
                    ASSERT_EQ(w24(d24[i * nCh + c]), joinModel(v, 8388607.5L)) << v;
                }
            EXPECT_TRUE(d16.intact());
            EXPECT_TRUE(d24.intact());
            if (chanLen > 3) {
                EXPECT_EQ(d16[0], 32767);           // NaN
                EXPECT_EQ(d16[nCh], -32768);        // -inf
                EXPECT_EQ(d16[2 * nCh], 0);         // -0
                EXPECT_EQ(d16[3 * nCh], -1);        // -1e-30
            }
        }
    }
}

TEST(JoinSplit, ChecksInTheirOrderAndWriteNothing) {
    T32f a[4] = {0.1f, 0.2f, 0.3f, 0.4f}, b[4] = {0};
    const T32f* src[2] = {a, b};
    const T32f* srcNull[2] = {a, nullptr};
    vt::Guarded<T16s> d(8);
    d.freeze();
    // Join: pDst, then the sizes, then pSrc, then each channel.
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(nullptr, 0, 0, nullptr), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(nullptr, 0, 4, d.data()), VEK_ERR_SIZE);
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(nullptr, 2, 0, d.data()), VEK_ERR_SIZE);
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(nullptr, 2, 4, d.data()), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(srcNull, 2, 4, d.data()), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksJoinScaled_32f24s_D2L(srcNull, 2, 4, reinterpret_cast<T24s*>(d.data())), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksJoinScaled_32f24s_D2L(src, -1, 4, nullptr), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(d.intact());
    // Split: pSrc, then the sizes, then pDst, then each channel.
    vt::Guarded<T32f> c0(4), c1(4);
    c0.freeze();
    T32f* dst[2] = {c0.data(), nullptr};
    const T16s s16[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(nullptr, nullptr, 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, nullptr, 0, 4), VEK_ERR_SIZE);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, nullptr, 2, -3), VEK_ERR_SIZE);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, nullptr, 2, 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, dst, 2, 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksSplitScaled_24s32f_D2L(reinterpret_cast<const T24s*>(s16), dst, 2, 4), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(c0.intact());
    // And the split deinterleaves.
    dst[1] = c1.data();
    ASSERT_EQ(veksSplitScaled_16s32f_D2L(s16, dst, 2, 4), VEK_OK);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(c0[i], static_cast<float>(s16[2 * i]) * 3.051804378628731e-05f + 1.5259021893143654e-05f);
        EXPECT_EQ(c1[i], static_cast<float>(s16[2 * i + 1]) * 3.051804378628731e-05f + 1.5259021893143654e-05f);
    }
}

}  // namespace

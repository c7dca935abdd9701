// A-law and mu-law: every 16-bit sample and every code against models built
// from the laws' quantisation intervals, the single-precision forms against
// the conversion model, and the laws' own properties.
#include <algorithm>

#include "convert_support.h"
#include "ref/convert_ref.h"

namespace {

struct Law {
    const char* name;
    VekResult (*enc16)(const T16s*, T8u*, int);
    VekResult (*enc32)(const T32f*, T8u*, int);
    VekResult (*dec16)(const T8u*, T16s*, int);
    VekResult (*dec32)(const T8u*, T32f*, int);
    uint8_t (*refEnc)(int);
    int (*refDec)(uint8_t);
};

const Law kLaws[] = {
    {"A-law", veksLinToALaw_16s8u, veksLinToALaw_32f8u, veksALawToLin_8u16s, veksALawToLin_8u32f, ref::aLawEncode, ref::aLawDecode},
    {"mu-law", veksLinToMuLaw_16s8u, veksLinToMuLaw_32f8u, veksMuLawToLin_8u16s, veksMuLawToLin_8u32f, ref::muLawEncode, ref::muLawDecode},
};

TEST(Companding, EverySampleAndEveryCodeMatchTheModels) {
    for (const Law& law : kLaws) {
        SCOPED_TRACE(law.name);
        std::vector<T16s> x(65536);
        std::vector<T8u> want(65536), got(65536);
        for (int i = 0; i < 65536; ++i) {
            x[i] = static_cast<T16s>(i - 32768);
            want[i] = law.refEnc(x[i]);
        }
        ASSERT_EQ(law.enc16(x.data(), got.data(), 65536), VEK_OK);
        EXPECT_TRUE(vt::sameElements(got.data(), want.data(), 65536));

        std::vector<T8u> codes(256);
        std::vector<T16s> d16(256), w16(256);
        std::vector<T32f> d32(256), w32(256);
        for (int c = 0; c < 256; ++c) {
            codes[c] = static_cast<T8u>(c);
            w16[c] = static_cast<T16s>(law.refDec(codes[c]));
            w32[c] = static_cast<T32f>(w16[c]);
        }
        ASSERT_EQ(law.dec16(codes.data(), d16.data(), 256), VEK_OK);
        ASSERT_EQ(law.dec32(codes.data(), d32.data(), 256), VEK_OK);
        EXPECT_TRUE(vt::sameElements(d16.data(), w16.data(), 256));
        EXPECT_TRUE(vt::sameElements(d32.data(), w32.data(), 256));

        // Single precision: converted to nearest-even 16-bit first.
        vt::Rng rng(5);
        std::vector<T32f> f(vtc::kData);
        std::vector<T8u> wf(vtc::kData);
        for (size_t i = 0; i < f.size(); ++i)
            f[i] = i % 2 ? static_cast<float>(rng.range(-40000, 40000)) + 0.5f : rng.next<float>(-40000, 40000);
        vtc::sprinkle(f, vt::edgeValues<T32f>());
        for (size_t i = 0; i < f.size(); ++i) wf[i] = law.refEnc(static_cast<int>(ref::floatToInt(f[i], 1, 0, -32768, 32767)));
        auto enc32 = law.enc32;
        ASSERT_TRUE(vtc::sweep(vtc::Call<T32f, T8u>([enc32](const T32f* s, T8u* d, int n, int, int) { return enc32(s, d, n); }),
                               f, wf, 1, 0));
    }
}

TEST(Companding, KnownCodesRoundTripAndOrder) {
    const struct {
        T16s x;
        T8u a, mu;
    } rows[] = {{0, 0xD5, 0xFF}, {-1, 0x55, 0x7F}, {32767, 0xAA, 0x80}, {-32768, 0x2A, 0x00}, {255, 0xDA, 0}, {256, 0xC5, 0}};
    for (const auto& r : rows) {
        T8u a = 0, mu = 0;
        ASSERT_EQ(veksLinToALaw_16s8u(&r.x, &a, 1), VEK_OK);
        ASSERT_EQ(veksLinToMuLaw_16s8u(&r.x, &mu, 1), VEK_OK);
        EXPECT_EQ(a, r.a) << r.x;
        if (r.x != 255 && r.x != 256) {
            EXPECT_EQ(mu, r.mu) << r.x;
        }
    }
    T16s v = 0;
    const T8u c1 = 0xD5, c2 = 0xAA, c3 = 0x80, c4 = 0xFF;
    veksALawToLin_8u16s(&c1, &v, 1);
    EXPECT_EQ(v, 8);
    veksALawToLin_8u16s(&c2, &v, 1);
    EXPECT_EQ(v, 32256);
    veksMuLawToLin_8u16s(&c3, &v, 1);
    EXPECT_EQ(v, 32124);
    veksMuLawToLin_8u16s(&c4, &v, 1);
    EXPECT_EQ(v, 0);
    for (const Law& law : kLaws) {
        SCOPED_TRACE(law.name);
        std::vector<T8u> codes(256), again(256);
        std::vector<T16s> lin(256);
        for (int c = 0; c < 256; ++c) codes[c] = static_cast<T8u>(c);
        law.dec16(codes.data(), lin.data(), 256);
        law.enc16(lin.data(), again.data(), 256);
        for (int c = 0; c < 256; ++c) {
            const bool muZero = law.refEnc == ref::muLawEncode && c == 0x7F;  // -0 decodes to 0, which encodes as +0
            EXPECT_EQ(again[c], muZero ? 0xFF : c) << c;
        }
        // Quantising is monotonic: decode(encode(x)) never decreases as x
        // grows, and every code of the law is reached.
        std::vector<T16s> x(65536), q(65536);
        std::vector<T8u> e(65536);
        for (int i = 0; i < 65536; ++i) x[i] = static_cast<T16s>(i - 32768);
        law.enc16(x.data(), e.data(), 65536);
        law.dec16(e.data(), q.data(), 65536);
        for (int i = 1; i < 65536; ++i) ASSERT_LE(q[i - 1], q[i]) << x[i];
        std::sort(e.begin(), e.end());
        EXPECT_EQ(std::unique(e.begin(), e.end()) - e.begin(), 256);
    }
}

}  // namespace

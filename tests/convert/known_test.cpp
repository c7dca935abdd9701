// Values worked by hand for the rules easiest to get wrong (they anchor the
// reference models too), the laws' own properties, and the members whose
// arguments fit no common shape: PackBits, JoinScaled and SplitScaled.
#include <limits.h>

#include <algorithm>

#include "ref/convert_ref.h"
#include "support/support.h"

namespace {

template <class T>
struct Id { using type = T; };
// One element through a member; the remaining arguments follow len.
template <class TS, class TD, class... A, class... B>
TD one(VekResult (*f)(const TS*, TD*, int, A...), typename Id<TS>::type x, B... b) {
    TD y{};
    EXPECT_EQ(f(&x, &y, 1, b...), VEK_OK);
    return y;
}

TEST(ConvertKnown, TiesNaNRangeEndsAndHalves) {
    const struct { float x; int sf; T16s want[3]; } rows[] = {  // toward zero, nearest even, ties away
        {2.5f, 0, {2, 2, 3}},       {-2.5f, 0, {-2, -2, -3}},    {3.5f, 0, {3, 4, 4}},
        {5.0f, 1, {2, 2, 3}},       {-7.0f, 1, {-3, -4, -4}},    {0.49999997f, 0, {0, 0, 0}},  // not 0.5 + x
        {NAN, 0, {32767, 32767, 32767}}, {-NAN, 0, {32767, 32767, 32767}}, {-INFINITY, 0, {-32768, -32768, -32768}},
        {1.0f, -15, {32767, 32767, 32767}}, {-1.0f, -15, {-32768, -32768, -32768}}, {-32768.6f, 0, {-32768, -32768, -32768}},
    };
    for (const auto& r : rows)
        for (int mode = 0; mode < 3; ++mode) EXPECT_EQ(one(veksConvert_32f16s_Sfs, r.x, mode, r.sf), r.want[mode]) << r.x << " mode " << mode;
    // Halves: 65520 is the tie above the largest finite half; 2^-25 ties to 0.
    const struct { float x; int mode; T16f want; } halves[] = {{1.0f, 1, 0x3C00}, {-2.0f, 0, 0xC000}, {65504.0f, 1, 0x7BFF}, {65520.0f, 1, 0x7C00}, {65520.0f, 0, 0x7BFF},
                  {1e6f, 0, 0x7BFF}, {-1e6f, 1, 0xFC00}, {-0.0f, 1, 0x8000}, {5.9604645e-8f, 1, 0x0001},
                  {2.9802322e-8f, 1, 0x0000}, {8.940697e-8f, 1, 0x0002}, {6.1035156e-5f, 1, 0x0400}, {1.0009766f, 1, 0x3C01}};
    for (const auto& h : halves) EXPECT_EQ(one(veksConvert_32f16f, h.x, h.mode), h.want) << h.x << " mode " << h.mode;
}

TEST(ConvertKnown, CompandingCodesRoundTripsAndOrder) {
    const struct { T16s x; T8u a, mu; } rows[] = {{0, 0xD5, 0xFF}, {-1, 0x55, 0x7F}, {32767, 0xAA, 0x80}, {-32768, 0x2A, 0x00}};
    for (const auto& r : rows) {
        EXPECT_EQ(one(veksLinToALaw_16s8u, r.x), r.a) << r.x;
        EXPECT_EQ(one(veksLinToMuLaw_16s8u, r.x), r.mu) << r.x;
    }
    EXPECT_EQ(one(veksLinToALaw_16s8u, 255), 0xDA);  // the first segment's last step, the second's first
    EXPECT_EQ(one(veksLinToALaw_16s8u, 256), 0xC5);
    EXPECT_EQ(one(veksALawToLin_8u16s, 0xD5), 8);
    EXPECT_EQ(one(veksALawToLin_8u16s, 0xAA), 32256);
    EXPECT_EQ(one(veksMuLawToLin_8u16s, 0x80), 32124);
    EXPECT_EQ(one(veksMuLawToLin_8u16s, 0xFF), 0);
    struct Law { VekResult (*enc)(const T16s*, T8u*, int); VekResult (*dec)(const T8u*, T16s*, int); };
    for (const Law& law : {Law{veksLinToALaw_16s8u, veksALawToLin_8u16s}, Law{veksLinToMuLaw_16s8u, veksMuLawToLin_8u16s}}) {
        // Every code decodes to a value that encodes back to it (mu-law's -0
        // decodes to 0, which encodes as +0).
        for (int c = 0; c < 256; ++c) {
            const T8u back = one(law.enc, one(law.dec, static_cast<T8u>(c)));
            EXPECT_EQ(back, law.enc == veksLinToMuLaw_16s8u && c == 0x7F ? 0xFF : c) << c;
        }
        // Quantising is monotonic, and every code is reached.
        std::vector<T16s> x(65536), q(65536);
        std::vector<T8u> e(65536);
        for (int i = 0; i < 65536; ++i) x[i] = static_cast<T16s>(i - 32768);
        ASSERT_EQ(law.enc(x.data(), e.data(), 65536), VEK_OK);
        ASSERT_EQ(law.dec(e.data(), q.data(), 65536), VEK_OK);
        EXPECT_TRUE(std::is_sorted(q.begin(), q.end()));
        std::sort(e.begin(), e.end());
        EXPECT_EQ(std::unique(e.begin(), e.end()) - e.begin(), 256);
    }
}

TEST(PackBits, MatchesTheModelAndKeepsTheRest) {
    vt::Rng rng(11);
    for (int len : {1, 2, 3, 5, 8, 17, 64, 257})
        for (int offset : {0, 1, 3, 7, 8, 9, 15, 16, 29}) {
            std::vector<T32u> src = rng.vec<T32u>(len);
            std::vector<int> bits(len);
            for (int& b : bits) {  // mostly ordinary widths; 32, 0, above 32 and negative too
                const int pick = static_cast<int>(rng.range(0, 9));
                b = pick < 6 ? static_cast<int>(rng.range(1, 31)) : pick == 6 ? 32 : pick == 7 ? 0 : pick == 8 ? 40 : -3;
            }
            std::vector<T8u> want = rng.vec<T8u>(static_cast<size_t>(offset / 8 + 4 * len + 2));
            vt::Guarded<T8u> dst(want);
            const int wantBits = ref::packBits(src.data(), bits.data(), len, want.data(), offset);
            int gotBits = -1;
            ASSERT_EQ(veksPackBits_32u8u(src.data(), bits.data(), len, dst.data(), offset, &gotBits), VEK_OK);
            EXPECT_EQ(gotBits, wantBits) << "len " << len << " offset " << offset;
            EXPECT_TRUE(vt::sameElements(dst.data(), want.data(), want.size())) << "len " << len << " offset " << offset;
            EXPECT_TRUE(dst.intact());
        }
    // Worked by hand: 101 (3 bits) then 0x0F in 8 bits, 2 bits in, over ones.
    const T32u s[] = {5, 0x0F};
    const int b[] = {3, 8};
    T8u d[3] = {0xFF, 0xFF, 0xFF};
    int n = 0;
    ASSERT_EQ(veksPackBits_32u8u(s, b, 2, d, 2, &n), VEK_OK);
    EXPECT_EQ(n, 11);
    EXPECT_TRUE(d[0] == 0xE8 && d[1] == 0x7F && d[2] == 0xFF);  // 11 101 000, 0111 1111
    // Pointers (nulls: bit 0 source, 1 widths, 2 destination, 3 count), then
    // the length, then the offset.
    vt::Guarded<T8u> g(4);
    g.freeze();
    n = 12345;
    const struct { int nulls, len, offset; VekResult want; } rows[] = {
        {1, 2, 0, VEK_ERR_NULL_POINTER}, {2, 2, 0, VEK_ERR_NULL_POINTER}, {4, 2, 0, VEK_ERR_NULL_POINTER},
        {8, 2, 0, VEK_ERR_NULL_POINTER}, {8, 0, -1, VEK_ERR_NULL_POINTER}, {0, 0, 0, VEK_ERR_SIZE},
        {0, -4, 0, VEK_ERR_SIZE},        {0, 2, -1, VEK_ERR_SIZE}};
    for (const auto& r : rows) {
        EXPECT_EQ(veksPackBits_32u8u(r.nulls & 1 ? nullptr : s, r.nulls & 2 ? nullptr : b, r.len, r.nulls & 4 ? nullptr : g.data(),
                                     r.offset, r.nulls & 8 ? nullptr : &n),
                  r.want);
        EXPECT_TRUE(g.intact() && n == 12345);
    }
}

// Every 16-bit value split into several channels and joined back.
TEST(JoinSplit, InterleaveAndRoundTrip) {
    for (int nCh : {2, 3, 8}) {
        const int chanLen = 65536 / nCh;
        const size_t n = static_cast<size_t>(nCh * chanLen);
        std::vector<T16s> s(n);
        for (size_t i = 0; i < n; ++i) s[i] = static_cast<T16s>(i * 40503);
        std::vector<vt::Guarded<T32f>> ch;
        ch.reserve(nCh);  // the buffers must not move
        std::vector<T32f*> p;
        for (int c = 0; c < nCh; ++c) p.push_back(ch.emplace_back(chanLen, c % 3).data());
        ASSERT_EQ(veksSplitScaled_16s32f_D2L(s.data(), p.data(), nCh, chanLen), VEK_OK);
        for (size_t i = 0; i < n; ++i) ASSERT_EQ(ch[i % nCh][i / nCh], ref::splitScaled16(s[i])) << s[i];
        for (int c = 0; c < nCh; ++c) ASSERT_TRUE(ch[c].intact());
        const std::vector<const T32f*> q(p.begin(), p.end());
        vt::Guarded<T16s> back(n, 1);
        ASSERT_EQ(veksJoinScaled_32f16s_D2L(q.data(), nCh, chanLen, back.data()), VEK_OK);
        EXPECT_TRUE(vt::sameElements(back.data(), s.data(), n) && back.intact());
    }
    // The odd cases: the ends, 0 not mapped to 0, NaN to the top, tiny
    // negatives (not -0) to -1.
    const T16s ends[] = {-32768, 32767, 0};
    const T24s ends24[] = {{{0, 0, 0x80}}, {{0xFF, 0xFF, 0x7F}}};
    T32f f[5] = {};
    T32f* pf[2] = {f, f + 3};
    ASSERT_EQ(veksSplitScaled_16s32f_D2L(ends, pf, 1, 3), VEK_OK);
    ASSERT_EQ(veksSplitScaled_24s32f_D2L(ends24, pf + 1, 1, 2), VEK_OK);
    EXPECT_TRUE(f[0] == -1.0f && f[1] == 1.0f && f[2] == 1.0f / 65535.0f && f[3] == -1.0f && f[4] == 1.0f);
    const T32f odd[] = {NAN, -INFINITY, -0.0f, -1e-30f, 1e-30f, 2.0f, -1.0f};
    const T16s wantOdd[] = {32767, -32768, 0, -1, 0, 32767, -32768};
    const T32f* po[1] = {odd};
    T16s got[7];
    ASSERT_EQ(veksJoinScaled_32f16s_D2L(po, 1, 7, got), VEK_OK);
    EXPECT_TRUE(vt::sameElements(got, wantOdd, 7));
}

// Beyond the one-channel contract of the member table: the channel count
// is checked before the array of channels, and each channel pointer last.
TEST(JoinSplit, ChecksChannelsAndWritesNothing) {
    const T32f a[4] = {0.1f, 0.2f, 0.3f, 0.4f};
    const T32f* src[2] = {a, nullptr};
    vt::Guarded<T16s> d(8);
    vt::Guarded<T32f> c0(4);
    d.freeze();
    c0.freeze();
    T32f* dst[2] = {c0.data(), nullptr};
    const T16s s16[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(nullptr, 0, 4, d.data()), VEK_ERR_SIZE);
    EXPECT_EQ(veksJoinScaled_32f16s_D2L(src, 2, 4, d.data()), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksJoinScaled_32f24s_D2L(src, 2, 4, reinterpret_cast<T24s*>(d.data())), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, nullptr, 0, 4), VEK_ERR_SIZE);
    EXPECT_EQ(veksSplitScaled_16s32f_D2L(s16, dst, 2, 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksSplitScaled_24s32f_D2L(reinterpret_cast<const T24s*>(s16), dst, 2, 4), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(d.intact() && c0.intact());
}

}  // namespace

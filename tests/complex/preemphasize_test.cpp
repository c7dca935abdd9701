// Preemphasize: y(n) = x(n) - val * x(n - 1) with the sample before the block
// in *pMem, compared exactly with the model (single-precision product then
// difference for 32f; the exact difference rounded to even for 16s), in
// place and out of place, and split into blocks.
#include <string.h>

#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

std::vector<T32f> model32f(const std::vector<T32f>& x, T32f val, T32f mem) {
    std::vector<T32f> y(x.size());
    for (size_t i = 0; i < x.size(); ++i) {
        const T32f prev = i ? x[i - 1] : mem;
        const T32f prod = val * prev;  // rounded to single
        y[i] = x[i] - prod;
    }
    return y;
}

std::vector<T16s> model16s(const std::vector<T16s>& x, T32f val, T16s mem) {
    std::vector<T16s> y(x.size());
    for (size_t i = 0; i < x.size(); ++i) y[i] = ref::preemphasize16(x[i], i ? x[i - 1] : mem, val);
    return y;
}

TEST(Preemphasize, MatchesModel) {
    vt::Rng rng(51);
    for (T32f val : {0.0f, 0.5f, 0.97f, -1.0f, 1.0f, 1e-7f, 3.75f, -2.5e4f}) {
        for (int len : vt::tailLengths()) {
            const size_t n = static_cast<size_t>(len);
            for (int ms : {0, 1}) {
                const std::vector<T32f> x = rng.vec<T32f>(n, -1e3, 1e3);
                const T32f mem0 = rng.next<T32f>(-10, 10);
                vt::Guarded<T32f> src(x, ms), dst(n, 1 - ms), ip(x, ms);
                T32f mem = mem0, memI = mem0;
                ASSERT_EQ(veksPreemphasize_32f(src.data(), dst.data(), len, val, &mem), VEK_OK);
                ASSERT_EQ(veksPreemphasize_32f_I(ip.data(), len, val, &memI), VEK_OK);
                const std::vector<T32f> want = model32f(x, val, mem0);
                ASSERT_TRUE(vt::sameElements(dst.data(), want.data(), n)) << "val=" << val << " len=" << len;
                ASSERT_TRUE(vt::sameElements(ip.data(), want.data(), n)) << "val=" << val << " len=" << len;
                ASSERT_EQ(mem, x.back());
                ASSERT_EQ(memI, x.back());
                ASSERT_TRUE(dst.intact() && ip.intact() && src.intact());

                std::vector<T16s> x16 = rng.vec<T16s>(n);
                if (n > 2) x16[n / 2] = -32768, x16[n / 2 - 1] = 32767;
                const T16s m16 = rng.next<T16s>();
                vt::Guarded<T16s> s16(x16, ms), d16(n, 1 - ms), i16(x16, ms);
                T16s mem16 = m16, memI16 = m16;
                ASSERT_EQ(veksPreemphasize_16s(s16.data(), d16.data(), len, val, &mem16), VEK_OK);
                ASSERT_EQ(veksPreemphasize_16s_I(i16.data(), len, val, &memI16), VEK_OK);
                const std::vector<T16s> want16 = model16s(x16, val, m16);
                ASSERT_TRUE(vt::sameElements(d16.data(), want16.data(), n)) << "val=" << val << " len=" << len;
                ASSERT_TRUE(vt::sameElements(i16.data(), want16.data(), n)) << "val=" << val << " len=" << len;
                ASSERT_EQ(mem16, x16.back());
                ASSERT_EQ(memI16, x16.back());
                ASSERT_TRUE(d16.intact() && i16.intact());
            }
        }
    }
}

TEST(Preemphasize, BlocksSplitExactly) {
    vt::Rng rng(52);
    const std::vector<T32f> x = rng.vec<T32f>(200, -1, 1);
    std::vector<T32f> whole(200), parts(200);
    T32f m1 = 0.25f, m2 = 0.25f;
    ASSERT_EQ(veksPreemphasize_32f(x.data(), whole.data(), 200, 0.9375f, &m1), VEK_OK);
    ASSERT_EQ(veksPreemphasize_32f(x.data(), parts.data(), 100, 0.9375f, &m2), VEK_OK);
    ASSERT_EQ(veksPreemphasize_32f(x.data() + 100, parts.data() + 100, 100, 0.9375f, &m2), VEK_OK);
    EXPECT_TRUE(vt::sameElements(parts.data(), whole.data(), 200));
    EXPECT_EQ(m1, m2);
    // Without a memory the sample before the block is 0 and nothing is kept.
    std::vector<T32f> noMem(3);
    const T32f three[3] = {1, 2, 3};
    ASSERT_EQ(veksPreemphasize_32f(three, noMem.data(), 3, 1.0f, nullptr), VEK_OK);
    EXPECT_TRUE(noMem[0] == 1 && noMem[1] == 1 && noMem[2] == 1);
}

TEST(Preemphasize, SixteenBitRounding) {
    const struct { T16s prev, x; T32f val; T16s want; } cases[] = {
        {32767, -32768, 1.0f, -32768},  // saturates
        {1, 1, 0.5f, 0},                // 0.5 ties to even 0
        {1, 2, 0.5f, 2},                // 1.5 ties to even 2
        {3, 0, 0.5f, -2},               // -1.5 ties to even -2
        {-32768, 32767, 1.0f, 32767},   // saturates upward
        {7, 5, 0.0f, 5},                // val 0 copies
    };
    for (const auto& c : cases) {
        T16s mem = c.prev, out = 0;
        ASSERT_EQ(veksPreemphasize_16s(&c.x, &out, 1, c.val, &mem), VEK_OK);
        EXPECT_EQ(out, c.want) << c.prev << " " << c.x << " " << c.val;
        EXPECT_EQ(mem, c.x);  // the memory moves on even when val is 0
    }
}

}  // namespace

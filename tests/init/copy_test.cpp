// Copy, Move, Set and Zero for every width: byte-exact results over lengths
// that cross every block size, misaligned starts, overlapping moves in both
// directions, and the contract (check order, nothing written on error).
#include <string.h>

#include "support/support.h"

namespace {

// Random bytes make NaN payloads, negative zeros and every bit pattern.
template <class T>
std::vector<T> randomElems(vt::Rng& rng, size_t n) {
    std::vector<unsigned char> bytes = rng.vec<unsigned char>(n * sizeof(T));
    std::vector<T> v(n);
    if (n) memcpy(v.data(), bytes.data(), bytes.size());
    return v;
}

template <class T>
struct Typed {
    const char* suffix;
    VekResult (*copy)(const T*, T*, int);
    VekResult (*move)(const T*, T*, int);
    VekResult (*zero)(T*, int);
    VekResult (*set)(T, T*, int);
};

template <class T>
void checkWidth(const Typed<T>& t, uint64_t seed) {
    SCOPED_TRACE(t.suffix);
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        for (int ms : vt::misalignments()) {
            for (int md : vt::misalignments()) {
                const std::vector<T> data = randomElems<T>(rng, static_cast<size_t>(len));
                vt::Guarded<T> src(data, ms);
                vt::Guarded<T> dst(randomElems<T>(rng, static_cast<size_t>(len)), md);
                ASSERT_EQ(t.copy(src.data(), dst.data(), len), VEK_OK);
                ASSERT_TRUE(vt::sameElements(dst.data(), data.data(), data.size())) << "copy len=" << len;
                ASSERT_TRUE(dst.intact() && src.intact());

                vt::Guarded<T> mdst(randomElems<T>(rng, static_cast<size_t>(len)), md);
                ASSERT_EQ(t.move(src.data(), mdst.data(), len), VEK_OK);
                ASSERT_TRUE(vt::sameElements(mdst.data(), data.data(), data.size())) << "move len=" << len;
                ASSERT_TRUE(mdst.intact());
            }
            vt::Guarded<T> z(randomElems<T>(rng, static_cast<size_t>(len)), ms);
            ASSERT_EQ(t.zero(z.data(), len), VEK_OK);
            const std::vector<T> zeros(static_cast<size_t>(len));  // all-zero bytes
            ASSERT_TRUE(vt::sameElements(z.data(), zeros.data(), zeros.size())) << "zero len=" << len;
            ASSERT_TRUE(z.intact());

            const T val = randomElems<T>(rng, 1)[0];
            vt::Guarded<T> s(randomElems<T>(rng, static_cast<size_t>(len)), ms);
            ASSERT_EQ(t.set(val, s.data(), len), VEK_OK);
            const std::vector<T> filled(static_cast<size_t>(len), val);
            ASSERT_TRUE(vt::sameElements(s.data(), filled.data(), filled.size())) << "set len=" << len;
            ASSERT_TRUE(s.intact());
        }
    }
}

template <class T>
void checkOverlap(const Typed<T>& t, uint64_t seed) {
    SCOPED_TRACE(t.suffix);
    vt::Rng rng(seed);
    for (int len : {1, 2, 3, 7, 16, 33, 257, 4099}) {
        for (int shift : {1, 3, len / 2, len - 1}) {
            if (shift < 1 || shift >= len + 1) continue;
            for (int dir : {-1, 1}) {
                // One buffer of len + shift elements; the destination starts
                // `shift` elements below or above the source.
                const size_t total = static_cast<size_t>(len + shift);
                const std::vector<T> init = randomElems<T>(rng, total);
                vt::Guarded<T> buf(init, 1);
                const int srcAt = dir > 0 ? 0 : shift, dstAt = dir > 0 ? shift : 0;
                std::vector<T> want = init;
                memmove(want.data() + dstAt, init.data() + srcAt, static_cast<size_t>(len) * sizeof(T));
                ASSERT_EQ(t.move(buf.data() + srcAt, buf.data() + dstAt, len), VEK_OK);
                ASSERT_TRUE(vt::sameElements(buf.data(), want.data(), total))
                    << "len=" << len << " shift=" << shift << " dir=" << dir;
                ASSERT_TRUE(buf.intact());
            }
        }
        const std::vector<T> init = randomElems<T>(rng, static_cast<size_t>(len));
        vt::Guarded<T> same(init);
        ASSERT_EQ(t.move(same.data(), same.data(), len), VEK_OK);
        ASSERT_TRUE(vt::sameElements(same.data(), init.data(), init.size()));
    }
}

template <class T>
void checkContract(const Typed<T>& t) {
    SCOPED_TRACE(t.suffix);
    vt::Guarded<T> src(std::vector<T>(4));
    const T val = T();
    // Pointers first, then the length.
    const struct { bool srcNull, dstNull; int len; VekResult want; } cases[] = {
        {true, false, 4, VEK_ERR_NULL_POINTER}, {false, true, 4, VEK_ERR_NULL_POINTER},
        {true, true, 0, VEK_ERR_NULL_POINTER},  {false, true, -1, VEK_ERR_NULL_POINTER},
        {false, false, 0, VEK_ERR_SIZE},        {false, false, -7, VEK_ERR_SIZE},
    };
    for (const auto& c : cases) {
        vt::Guarded<T> dst(4);
        dst.freeze();
        const T* s = c.srcNull ? nullptr : src.data();
        T* d = c.dstNull ? nullptr : dst.data();
        EXPECT_EQ(t.copy(s, d, c.len), c.want);
        EXPECT_EQ(t.move(s, d, c.len), c.want);
        // Set and Zero have no source to check.
        const VekResult noSrc = c.dstNull ? VEK_ERR_NULL_POINTER : c.len < 1 ? VEK_ERR_SIZE : VEK_OK;
        if (noSrc != VEK_OK) {
            EXPECT_EQ(t.zero(d, c.len), noSrc);
            EXPECT_EQ(t.set(val, d, c.len), noSrc);
        }
        EXPECT_TRUE(dst.intact());
    }
}

template <class T>
void checkAll(const Typed<T>& t, uint64_t seed) {
    checkWidth(t, seed);
    checkOverlap(t, seed + 1);
    checkContract(t);
}

TEST(CopyMoveSetZero, EveryType) {
    checkAll<T8u>({"8u", veksCopy_8u, veksMove_8u, veksZero_8u, veksSet_8u}, 100);
    checkAll<T16s>({"16s", veksCopy_16s, veksMove_16s, veksZero_16s, veksSet_16s}, 200);
    checkAll<T16sc>({"16sc", veksCopy_16sc, veksMove_16sc, veksZero_16sc, veksSet_16sc}, 300);
    checkAll<T32s>({"32s", veksCopy_32s, veksMove_32s, veksZero_32s, veksSet_32s}, 400);
    checkAll<T32f>({"32f", veksCopy_32f, veksMove_32f, veksZero_32f, veksSet_32f}, 500);
    checkAll<T32sc>({"32sc", veksCopy_32sc, veksMove_32sc, veksZero_32sc, veksSet_32sc}, 600);
    checkAll<T32fc>({"32fc", veksCopy_32fc, veksMove_32fc, veksZero_32fc, veksSet_32fc}, 700);
    checkAll<T64s>({"64s", veksCopy_64s, veksMove_64s, veksZero_64s, veksSet_64s}, 800);
    checkAll<T64f>({"64f", veksCopy_64f, veksMove_64f, veksZero_64f, veksSet_64f}, 900);
    checkAll<T64sc>({"64sc", veksCopy_64sc, veksMove_64sc, veksZero_64sc, veksSet_64sc}, 1000);
    checkAll<T64fc>({"64fc", veksCopy_64fc, veksMove_64fc, veksZero_64fc, veksSet_64fc}, 1100);
}

TEST(CopyMoveSetZero, SetKeepsFloatBitsAndLargeFills) {
    // A NaN with a payload and a negative zero are repeated bit for bit, also
    // on fills large enough to bypass the caches, from a misaligned start.
    T32f nan;
    const uint32_t bits = 0x7FA12345u;
    memcpy(&nan, &bits, 4);
    const int len = (32 << 20) / 4 + 3;
    vt::Guarded<T32f> big(static_cast<size_t>(len), 1);
    ASSERT_EQ(veksSet_32f(nan, big.data(), len), VEK_OK);
    ASSERT_TRUE(big.intact());
    for (int i = 0; i < len; ++i) ASSERT_EQ(memcmp(&big[static_cast<size_t>(i)], &bits, 4), 0) << i;
    const T64fc v = {-0.0, 1.5};
    vt::Guarded<T64fc> c(static_cast<size_t>(300001), 1);
    ASSERT_EQ(veksSet_64fc(v, c.data(), 300001), VEK_OK);
    for (size_t i = 0; i < c.size(); ++i) ASSERT_EQ(memcmp(&c[i], &v, sizeof v), 0) << i;
    ASSERT_TRUE(c.intact());
}

TEST(CopyMoveSetZero, SharedImplementations) {
    // Equal widths share one body for the value-blind operations.
    EXPECT_EQ(reinterpret_cast<void*>(veksCopy_32s), reinterpret_cast<void*>(veksCopy_32f));
    EXPECT_EQ(reinterpret_cast<void*>(veksCopy_16sc), reinterpret_cast<void*>(veksCopy_32f));
    EXPECT_EQ(reinterpret_cast<void*>(veksMove_32sc), reinterpret_cast<void*>(veksMove_64f));
    EXPECT_EQ(reinterpret_cast<void*>(veksZero_64sc), reinterpret_cast<void*>(veksZero_64fc));
    EXPECT_EQ(reinterpret_cast<void*>(veksCopyLE_1u), reinterpret_cast<void*>(veksCopy_1u));
    EXPECT_NE(reinterpret_cast<void*>(veksCopy_16s), reinterpret_cast<void*>(veksCopy_32f));
}

}  // namespace

// Bit copies against a one-bit-at-a-time model, over every pair of start
// offsets (including offsets of 8 and more, of which only the low three bits
// count), lengths that end inside, at and past byte boundaries, and both bit
// orders.
#include "ref/bitcopy_ref.h"
#include "support/support.h"

namespace {

const struct {
    const char* name;
    VekResult (*fn)(const T8u*, int, T8u*, int, int);
    ref::BitOrder order;
} kBitCopies[] = {
    {"veksCopy_1u", veksCopy_1u, ref::BitOrder::MsbFirst},
    {"veksCopyLE_1u", veksCopyLE_1u, ref::BitOrder::MsbFirst},
    {"veksCopyBE_1u", veksCopyBE_1u, ref::BitOrder::LsbFirst},
};

TEST(BitCopy, MatchesBitModel) {
    vt::Rng rng(0xB17C);
    for (const auto& c : kBitCopies) {
        for (int srcOff : {0, 1, 3, 5, 7, 8, 9, 13, 16}) {
            for (int dstOff : {0, 1, 2, 6, 7, 8, 15}) {
                for (int len : {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 23, 24, 25, 63, 64, 65, 200, 1001}) {
                    const size_t bytes = static_cast<size_t>((len + 16) / 8 + 2);
                    // The model reads only the bytes that hold the run; the
                    // guarded source buffer ends right after them.
                    const size_t srcBytes = static_cast<size_t>((srcOff % 8 + len + 7) / 8);
                    vt::Guarded<T8u> src(rng.vec<T8u>(srcBytes), 1);
                    std::vector<T8u> start = rng.vec<T8u>(bytes);
                    vt::Guarded<T8u> dst(start, 3);
                    std::vector<T8u> want = start;
                    ASSERT_EQ(ref::copyBits(src.data(), srcOff, want.data(), dstOff, len, c.order), VEK_OK);
                    ASSERT_EQ(c.fn(src.data(), srcOff, dst.data(), dstOff, len), VEK_OK) << c.name;
                    ASSERT_TRUE(vt::sameElements(dst.data(), want.data(), bytes))
                        << c.name << " srcOff=" << srcOff << " dstOff=" << dstOff << " len=" << len;
                    ASSERT_TRUE(dst.intact() && src.intact()) << c.name;
                }
            }
        }
    }
}

TEST(BitCopy, BitOrder) {
    // 3 bits from offset 6 to offset 0: source bits 6, 7 of byte 0 and bit 0
    // of byte 1 land in the first three positions of destination byte 0.
    const T8u src[2] = {0x02, 0x80};  // MSB-first: bit 6 = 1, bit 7 = 0, next byte's bit 0 = 1
    T8u msb[1] = {0x00};
    ASSERT_EQ(veksCopy_1u(src, 6, msb, 0, 3), VEK_OK);
    EXPECT_EQ(msb[0], 0xA0);  // 1 0 1 in the three most significant bits
    const T8u srcBe[2] = {0x40, 0x01};  // LSB-first: bit 6 = 1, bit 7 = 0, next byte's bit 0 = 1
    T8u lsb[1] = {0xF8};
    ASSERT_EQ(veksCopyBE_1u(srcBe, 6, lsb, 0, 3), VEK_OK);
    EXPECT_EQ(lsb[0], 0xFD);  // low bits 1 0 1; the five high bits kept
}

TEST(BitCopy, NegativeOffsetsAfterPointers) {
    // Beyond the shared contract table: a negative offset is a size error,
    // reported after the pointers and writing nothing.
    const T8u src[2] = {1, 2};
    for (const auto& bc : kBitCopies) {
        for (int off : {0, 1}) {
            vt::Guarded<T8u> dst(std::vector<T8u>{9, 9, 9, 9});
            dst.freeze();
            EXPECT_EQ(bc.fn(src, off ? 0 : -1, dst.data(), off ? -8 : 0, 8), VEK_ERR_SIZE) << bc.name;
            EXPECT_EQ(bc.fn(nullptr, -1, dst.data(), -1, 8), VEK_ERR_NULL_POINTER) << bc.name;
            EXPECT_TRUE(dst.intact()) << bc.name;
        }
    }
}

}  // namespace

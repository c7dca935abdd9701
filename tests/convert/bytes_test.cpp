// SwapBytes and PackBits against byte- and bit-at-a-time models.
#include "convert_support.h"
#include "ref/convert_ref.h"

namespace {

template <class T>
void checkSwap(const char* name, VekResult (*out)(const T*, T*, int), VekResult (*in)(T*, int)) {
    SCOPED_TRACE(name);
    vt::Rng rng(7);
    std::vector<T> data(vtc::kData), want(vtc::kData);
    for (size_t i = 0; i < data.size(); ++i) {
        unsigned char* p = reinterpret_cast<unsigned char*>(&data[i]);
        unsigned char* w = reinterpret_cast<unsigned char*>(&want[i]);
        for (size_t k = 0; k < sizeof(T); ++k) p[k] = rng.next<uint8_t>();
        for (size_t k = 0; k < sizeof(T); ++k) w[k] = p[sizeof(T) - 1 - k];
    }
    ASSERT_TRUE(vtc::sweep(vtc::Call<T, T>([out](const T* s, T* d, int n, int, int) { return out(s, d, n); }),
                           data, want, 0, 0));
    for (int len : vt::tailLengths())
        for (int mis : vt::misalignments()) {
            vt::Guarded<T> buf(std::vector<T>(data.begin(), data.begin() + len), mis);
            ASSERT_EQ(in(buf.data(), len), VEK_OK);
            ASSERT_TRUE(vt::sameElements(buf.data(), want.data(), static_cast<size_t>(len))) << "in place, len " << len;
            ASSERT_TRUE(buf.intact()) << len;
        }
}

TEST(SwapBytes, EveryWidthInAndOutOfPlace) {
    checkSwap<T16u>("16u", veksSwapBytes_16u, veksSwapBytes_16u_I);
    checkSwap<T24u>("24u", veksSwapBytes_24u, veksSwapBytes_24u_I);
    checkSwap<T32u>("32u", veksSwapBytes_32u, veksSwapBytes_32u_I);
    checkSwap<T64u>("64u", veksSwapBytes_64u, veksSwapBytes_64u_I);
    const T24u x = {{1, 2, 3}};
    T24u y;
    ASSERT_EQ(veksSwapBytes_24u(&x, &y, 1), VEK_OK);
    EXPECT_EQ(y.b[0], 3);
    EXPECT_EQ(y.b[1], 2);
    EXPECT_EQ(y.b[2], 1);
}

TEST(PackBits, FieldsLandMostSignificantBitFirstAndKeepTheRest) {
    vt::Rng rng(11);
    for (int len : {1, 2, 3, 5, 8, 17, 64, 257}) {
        for (int offset : {0, 1, 3, 7, 8, 9, 15, 16, 29}) {
            std::vector<T32u> src(len);
            std::vector<int> bits(len);
            for (int i = 0; i < len; ++i) {
                src[i] = rng.next<uint32_t>();
                const int pick = static_cast<int>(rng.range(0, 9));
                // Mostly ordinary widths; the ends, 0, above 32 and negative too.
                bits[i] = pick < 6 ? static_cast<int>(rng.range(1, 31)) : pick == 6 ? 32 : pick == 7 ? 0 : pick == 8 ? 40 : -3;
            }
            const size_t bytes = static_cast<size_t>(offset / 8 + 4 * len + 2);
            std::vector<T8u> init(bytes);
            for (auto& b : init) b = rng.next<uint8_t>();
            std::vector<T8u> want = init;
            const int wantBits = ref::packBits(src.data(), bits.data(), len, want.data(), offset);
            vt::Guarded<T8u> dst(init);
            int gotBits = -1;
            ASSERT_EQ(veksPackBits_32u8u(src.data(), bits.data(), len, dst.data(), offset, &gotBits), VEK_OK);
            EXPECT_EQ(gotBits, wantBits) << "len " << len << " offset " << offset;
            EXPECT_TRUE(vt::sameElements(dst.data(), want.data(), bytes)) << "len " << len << " offset " << offset;
            EXPECT_TRUE(dst.intact());
        }
    }
    // A worked case: 101 (3 bits) then 0x0F in 8 bits, 2 bits in, over ones.
    const T32u s[] = {5, 0x0F};
    const int b[] = {3, 8};
    T8u d[3] = {0xFF, 0xFF, 0xFF};
    int n = 0;
    ASSERT_EQ(veksPackBits_32u8u(s, b, 2, d, 2, &n), VEK_OK);
    EXPECT_EQ(n, 11);
    EXPECT_EQ(d[0], 0xE8);  // 11 101 000
    EXPECT_EQ(d[1], 0x7F);  // 0111 1111 (the last three ones kept)
    EXPECT_EQ(d[2], 0xFF);
}

TEST(PackBits, ChecksPointersThenLengthAndOffset) {
    const T32u s[2] = {1, 2};
    const int b[2] = {4, 4};
    vt::Guarded<T8u> d(4);
    d.freeze();
    int n = 12345;
    const struct {
        bool nullSrc, nullBits, nullDst, nullLen;
        int len, offset;
        VekResult want;
    } rows[] = {
        {true, false, false, false, 2, 0, VEK_ERR_NULL_POINTER},  {false, true, false, false, 2, 0, VEK_ERR_NULL_POINTER},
        {false, false, true, false, 2, 0, VEK_ERR_NULL_POINTER},  {false, false, false, true, 2, 0, VEK_ERR_NULL_POINTER},
        {false, false, false, true, 0, -1, VEK_ERR_NULL_POINTER}, {false, false, false, false, 0, 0, VEK_ERR_SIZE},
        {false, false, false, false, -4, 0, VEK_ERR_SIZE},        {false, false, false, false, 2, -1, VEK_ERR_SIZE},
    };
    for (const auto& r : rows) {
        EXPECT_EQ(veksPackBits_32u8u(r.nullSrc ? nullptr : s, r.nullBits ? nullptr : b, r.len,
                                     r.nullDst ? nullptr : d.data(), r.offset, r.nullLen ? nullptr : &n),
                  r.want);
        EXPECT_TRUE(d.intact());
        EXPECT_EQ(n, 12345);
    }
}

}  // namespace

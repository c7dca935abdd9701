// The copy and fill kernels against their scalar twins and the C library,
// including starts that are not aligned to the element width. (The atan2,
// sine, cosine and magnitude twins are compared through the exports in
// tests/complex, where a vector step and the scalar tail meet the same data.)
#include <string.h>

#include "kernels/copy.h"
#include "support/support.h"

namespace {

template <size_t W>
void checkFill(vt::Rng& rng) {
    unsigned char pattern[W];
    for (auto& b : pattern) b = static_cast<unsigned char>(rng.engine()());
    unsigned char rep[16];
    for (size_t i = 0; i < 16; ++i) rep[i] = pattern[i % W];
    const __m128i splat = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rep));
    for (size_t count : {size_t(1), size_t(3), size_t(16), size_t(17), size_t(255), size_t(256 / W + 1),
                         size_t(2048 / W), size_t(2048 / W + 5), size_t(100000 / W), size_t((33 << 20) / W + 1)}) {
        // Starts aligned, misaligned by an element and inside an element.
        for (size_t mis : {size_t(0), W, size_t(1), size_t(3)}) {
            if (count * W > (size_t(1) << 20) && mis != 3) continue;  // the streaming fill once, rotated
            std::vector<unsigned char> a(count * W + 64, 0x5A), b(count * W + 64, 0x5A);
            veks::kern::fillPattern<W>(a.data() + 16 + mis, splat, count);
            veks::kern::fillPatternScalar<W>(b.data() + 16 + mis, pattern, count);
            ASSERT_EQ(memcmp(a.data(), b.data(), a.size()), 0) << "W=" << W << " count=" << count << " mis=" << mis;
        }
    }
}

TEST(DataKernels, PatternFillEqualsTwin) {
    vt::Rng rng(94);
    checkFill<2>(rng);
    checkFill<4>(rng);
    checkFill<8>(rng);
    checkFill<16>(rng);
}

TEST(DataKernels, SmallCopiesMoveOverlaps) {
    vt::Rng rng(95);
    for (size_t n = 1; n <= veks::kern::kSmallBytes; ++n) {
        for (int shift : {-17, -1, 0, 1, 5, 16, 40}) {
            std::vector<unsigned char> buf = rng.vec<unsigned char>(n + 128), want = buf;
            unsigned char* src = buf.data() + 64;
            memmove(want.data() + 64 + shift, want.data() + 64, n);
            veks::kern::copySmall(src + shift, src, n);
            ASSERT_EQ(buf, want) << "n=" << n << " shift=" << shift;
        }
        std::vector<unsigned char> dst(n + 32, 0x33), want(n + 32, 0x33);
        memset(want.data() + 8, 0xC4, n);
        veks::kern::fillBytes(dst.data() + 8, 0xC4, n);
        ASSERT_EQ(dst, want) << n;
    }
}

}  // namespace

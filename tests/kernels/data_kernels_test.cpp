// The vector kernels of copies, fills, atan2, sine, cosine and magnitude
// against their scalar twins: the same bits in every lane, edge values
// included.
#include <string.h>

#include "kernels/complex.h"
#include "kernels/copy.h"
#include "kernels/math_sse.h"
#include "support/support.h"

namespace {

float fromBits(uint32_t b) {
    float f;
    memcpy(&f, &b, 4);
    return f;
}

bool sameBits(float a, float b) { return memcmp(&a, &b, 4) == 0; }

std::vector<float> laneValues(vt::Rng& rng, size_t n, float range) {
    std::vector<float> v = rng.vec<float>(n, -range, range);
    const std::vector<float> edges = vt::edgeValues<float>();
    for (size_t i = 0; i < n; i += 7) v[i] = edges[(i / 7) % edges.size()];
    for (size_t i = 3; i < n; i += 29) v[i] = fromBits(static_cast<uint32_t>(rng.engine()()));
    return v;
}

TEST(DataKernels, Atan2VectorEqualsTwin) {
    vt::Rng rng(91);
    for (float range : {1e-30f, 1.0f, 1e4f, 3e38f}) {
        const std::vector<float> y = laneValues(rng, 4096, range), x = laneValues(rng, 4096, range);
        for (size_t i = 0; i < y.size(); i += 4) {
            float got[4];
            _mm_storeu_ps(got, veks::kern::atan2v(_mm_loadu_ps(&y[i]), _mm_loadu_ps(&x[i])));
            for (size_t j = 0; j < 4; ++j) {
                const float want = veks::kern::atan2s(y[i + j], x[i + j]);
                if (want != want) {
                    ASSERT_NE(got[j], got[j]);
                } else {
                    ASSERT_TRUE(sameBits(got[j], want)) << y[i + j] << "/" << x[i + j];
                }
            }
        }
    }
}

TEST(DataKernels, SinCosVectorEqualsTwin) {
    vt::Rng rng(92);
    for (float range : {1.0f, 100.0f, veks::kern::kSinCosLimit}) {
        std::vector<float> x = rng.vec<float>(4096, -range, range);
        x[0] = 0.0f, x[1] = -0.0f, x[2] = veks::kern::kSinCosLimit, x[3] = -veks::kern::kSinCosLimit;
        for (size_t i = 0; i < x.size(); i += 4) {
            const __m128 v = _mm_loadu_ps(&x[i]);
            ASSERT_EQ(veks::kern::sinCosOutOfRange(v), 0);
            __m128 s, c;
            veks::kern::sincosv(v, &s, &c);
            float gs[4], gc[4];
            _mm_storeu_ps(gs, s);
            _mm_storeu_ps(gc, c);
            for (size_t j = 0; j < 4; ++j) {
                float ws, wc;
                veks::kern::sincoss(x[i + j], &ws, &wc);
                ASSERT_TRUE(sameBits(gs[j], ws) && sameBits(gc[j], wc)) << x[i + j];
            }
        }
    }
    // Lanes past the limit, infinite or NaN are flagged for the scalar path.
    const float far[4] = {1.0f, 4097.0f, INFINITY, NAN};
    EXPECT_EQ(veks::kern::sinCosOutOfRange(_mm_loadu_ps(far)), 0xE);
}

TEST(DataKernels, MagnitudeVectorEqualsTwin) {
    vt::Rng rng(93);
    const std::vector<float> re = laneValues(rng, 1024, 1e20f), im = laneValues(rng, 1024, 1e20f);
    for (size_t i = 0; i < re.size(); i += 4) {
        float got[4];
        _mm_storeu_ps(got, veks::kern::magnitudeV(_mm_loadu_ps(&re[i]), _mm_loadu_ps(&im[i])));
        for (size_t j = 0; j < 4; ++j) {
            const float want = veks::kern::magnitudeS(re[i + j], im[i + j]);
            ASSERT_TRUE(sameBits(got[j], want) || (want != want && got[j] != got[j]));
        }
    }
}

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

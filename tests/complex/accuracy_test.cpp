// Accuracy of the single-precision atan2, sine and cosine kernels, measured
// through the exports against long double (about half a second). The bound
// asserted is the one documented beside the kernels. The disabled test runs
// the sine and cosine over every float of the polynomial range (minutes):
// --gtest_also_run_disabled_tests --gtest_filter='*EveryFloat*'.
#include <math.h>
#include <string.h>

#include <iostream>

#include "support/support.h"

namespace {

constexpr int64_t kKernelMaxUlp = 2;
// 4097.5f: the polynomial range ends near 4097.4 (where the nearest multiple
// of pi/2 passes 2608), so the sweeps cross its end.
constexpr uint32_t kTop = 0x45800C00u;

float fromBits(uint32_t b) {
    float f;
    memcpy(&f, &b, 4);
    return f;
}

// Largest ulp error of sine and of cosine over the phases in bit patterns
// [from, to] (step `stride`, both signs) and `extra`.
std::pair<int64_t, int64_t> sinCosError(uint32_t from, uint32_t to, uint32_t stride, std::vector<T32f> ph) {
    for (uint32_t sign : {0u, 0x80000000u})
        for (uint64_t b = from; b <= to; b += stride) ph.push_back(fromBits(static_cast<uint32_t>(b) | sign));
    std::vector<T32f> ones(ph.size(), 1.0f), c(ph.size()), s(ph.size());
    EXPECT_EQ(veksPolarToCart_32f(ones.data(), ph.data(), c.data(), s.data(), int(ph.size())), VEK_OK);
    std::pair<int64_t, int64_t> w{0, 0};
    for (size_t i = 0; i < ph.size(); ++i) {
        w.first = std::max(w.first, vt::ulpDistance(s[i], static_cast<float>(sinl(ph[i]))));
        w.second = std::max(w.second, vt::ulpDistance(c[i], static_cast<float>(cosl(ph[i]))));
    }
    return w;
}

TEST(KernelAccuracy, SineCosineSweep) {
    // A stride over every bit pattern up to 4097.5, every float around the
    // end of the polynomial range, and every float around the
    // first zeros of cosine and sine.
    std::vector<T32f> near;
    for (uint32_t b = 0x45800000u; b <= kTop; ++b) near.push_back(fromBits(b));
    for (float centre : {1.5707964f, 3.1415927f, 4.712389f, 6.2831855f}) {
        uint32_t c;
        memcpy(&c, &centre, 4);
        for (uint32_t d = c - 20000; d <= c + 20000; ++d) near.push_back(fromBits(d));
    }
    const auto w = sinCosError(0, kTop, 1021, near);
    std::cout << "sine and cosine: max ulp " << w.first << " (sin), " << w.second << " (cos)\n";
    EXPECT_LE(w.first, kKernelMaxUlp);
    EXPECT_LE(w.second, kKernelMaxUlp);
}

TEST(KernelAccuracy, DISABLED_SineCosineEveryFloat) {
    for (uint32_t from = 0; from <= kTop; from += 1u << 20) {
        const auto w = sinCosError(from, std::min(kTop, from + (1u << 20) - 1), 1, {});
        ASSERT_TRUE(w.first <= kKernelMaxUlp && w.second <= kKernelMaxUlp) << "bits from " << from;
    }
}

TEST(KernelAccuracy, Atan2Sweep) {
    // Random bit patterns (every exponent, both signs; NaN replaced), pairs
    // of nearby exponents, where the reduction and the octant boundaries
    // matter most, and ratios y / x swept finely over [0, 2] in all quadrants.
    vt::Rng rng(77);
    const size_t nRandom = size_t(1) << 20, nRatio = size_t(1) << 19;
    std::vector<T32f> x(nRandom + nRatio), y(x.size()), out(x.size());
    for (size_t i = 0; i < nRandom; ++i) {
        uint32_t a = static_cast<uint32_t>(rng.engine()()), b = static_cast<uint32_t>(rng.engine()());
        if (i & 1) {
            const uint32_t e = static_cast<uint32_t>(rng.range(100, 150));
            a = (a & 0x807FFFFFu) | (e << 23);
            b = (b & 0x807FFFFFu) | ((e + static_cast<uint32_t>(rng.range(0, 3))) << 23);
        }
        x[i] = fromBits(a) == fromBits(a) ? fromBits(a) : 1;
        y[i] = fromBits(b) == fromBits(b) ? fromBits(b) : -1;
    }
    for (size_t i = 0; i < nRatio; ++i) {
        x[nRandom + i] = (i & 1) ? -1.25f : 3.0f;
        y[nRandom + i] = x[nRandom + i] * (static_cast<float>(i) / nRatio * 2) * ((i & 2) ? -1.0f : 1.0f);
    }
    ASSERT_EQ(veksPhase_32f(x.data(), y.data(), out.data(), int(x.size())), VEK_OK);
    int64_t w = 0;
    for (size_t i = 0; i < x.size(); ++i)
        w = std::max(w, vt::ulpDistance(out[i], static_cast<float>(atan2l(y[i], x[i]))));
    std::cout << "atan2: " << x.size() << " pairs, max ulp " << w << "\n";
    EXPECT_LE(w, kKernelMaxUlp);
}

}  // namespace

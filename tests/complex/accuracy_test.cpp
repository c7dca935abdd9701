// Accuracy of the single-precision atan2, sine and cosine kernels, measured
// through the exports against long double over strided and dense sweeps
// (about half a second). The bound asserted is the one documented beside
// the kernels. VEKS_DENSE_SWEEP=1 in the environment makes the sine and
// cosine sweep exhaustive (every float of the polynomial range, minutes).
#include <math.h>
#include <stdlib.h>
#include <string.h>

#include <iostream>

#include "support/support.h"

namespace {

constexpr int64_t kKernelMaxUlp = 2;
constexpr size_t kBlock = 1 << 14;

float fromBits(uint32_t b) {
    float f;
    memcpy(&f, &b, 4);
    return f;
}

// Collects inputs into blocks and hands each full block (and the last part)
// to `run`, which measures it.
template <class Run>
struct Blocks {
    Run run;
    size_t k = 0, count = 0;
    bool add() {  // the caller filled slot k; true when a block was run
        if (++k < kBlock) return false;
        flush();
        return true;
    }
    void flush() {
        if (k) run(k), count += k, k = 0;
    }
};
template <class Run>
Blocks<Run> blocks(Run run) { return {run}; }

TEST(KernelAccuracy, SineCosineSweep) {
    std::vector<T32f> ones(kBlock, 1.0f), ph(kBlock), c(kBlock), s(kBlock);
    int64_t ws = 0, wc = 0;
    auto b = blocks([&](size_t k) {
        ASSERT_EQ(veksPolarToCart_32f(ones.data(), ph.data(), c.data(), s.data(), static_cast<int>(k)), VEK_OK);
        for (size_t i = 0; i < k; ++i) {
            ws = std::max(ws, vt::ulpDistance(s[i], static_cast<float>(sinl(ph[i]))));
            wc = std::max(wc, vt::ulpDistance(c[i], static_cast<float>(cosl(ph[i]))));
        }
    });
    // A stride over every bit pattern up to 4096.0f (the end of the
    // polynomial range), both signs, and every float around the first zeros
    // of cosine and sine.
    const uint32_t stride = getenv("VEKS_DENSE_SWEEP") ? 1 : 1021;
    for (uint32_t sign : {0u, 0x80000000u})
        for (uint32_t bits = 0; bits <= 0x45800000u; bits += stride) ph[b.k] = fromBits(bits | sign), b.add();
    for (float centre : {1.5707964f, 3.1415927f, 4.712389f, 6.2831855f}) {
        uint32_t c0;
        memcpy(&c0, &centre, 4);
        for (uint32_t d = c0 - 20000; d <= c0 + 20000; ++d) ph[b.k] = fromBits(d), b.add();
    }
    b.flush();
    std::cout << "sine and cosine: " << b.count << " phases, max ulp " << ws << " (sin), " << wc << " (cos)\n";
    EXPECT_LE(ws, kKernelMaxUlp);
    EXPECT_LE(wc, kKernelMaxUlp);
}

TEST(KernelAccuracy, Atan2Sweep) {
    vt::Rng rng(77);
    std::vector<T32f> x(kBlock), y(kBlock), out(kBlock);
    int64_t w = 0;
    auto b = blocks([&](size_t k) {
        ASSERT_EQ(veksPhase_32f(x.data(), y.data(), out.data(), static_cast<int>(k)), VEK_OK);
        for (size_t i = 0; i < k; ++i) w = std::max(w, vt::ulpDistance(out[i], static_cast<float>(atan2l(y[i], x[i]))));
    });
    // Random bit patterns (every exponent, both signs; NaN replaced), pairs
    // of nearby exponents, where the reduction and the octant boundaries
    // matter most, and ratios y / x swept finely over [0, 2] in all quadrants.
    for (size_t i = 0; i < 64 * kBlock; ++i) {
        uint32_t a = static_cast<uint32_t>(rng.engine()()), c = static_cast<uint32_t>(rng.engine()());
        if (i & 1) {
            const uint32_t e = static_cast<uint32_t>(rng.range(100, 150));
            a = (a & 0x807FFFFFu) | (e << 23);
            c = (c & 0x807FFFFFu) | ((e + static_cast<uint32_t>(rng.range(0, 3))) << 23);
        }
        x[b.k] = fromBits(a), y[b.k] = fromBits(c);
        if (x[b.k] != x[b.k]) x[b.k] = 1;
        if (y[b.k] != y[b.k]) y[b.k] = -1;
        b.add();
    }
    for (size_t i = 0; i < 32 * kBlock; ++i) {
        const float t = static_cast<float>(i) / static_cast<float>(16 * kBlock);
        x[b.k] = (i & 1) ? -1.25f : 3.0f;
        y[b.k] = x[b.k] * t * ((i & 2) ? -1.0f : 1.0f);
        b.add();
    }
    b.flush();
    std::cout << "atan2: " << b.count << " pairs, max ulp " << w << "\n";
    EXPECT_LE(w, kKernelMaxUlp);
}

}  // namespace

// Accuracy of the single-precision atan2, sine and cosine kernels, measured
// through the exports against long double over dense sweeps. The bound
// asserted is the one documented beside the kernels. VEKS_DENSE_SWEEP=1 in
// the environment makes the sine and cosine sweep exhaustive (every float
// of the polynomial range, a few minutes).
#include <math.h>
#include <stdlib.h>
#include <string.h>

#include <iostream>

#include "support/support.h"

namespace {

constexpr int64_t kKernelMaxUlp = 2;

float fromBits(uint32_t b) {
    float f;
    memcpy(&f, &b, 4);
    return f;
}

struct Worst {
    int64_t ulp = 0;
    float at = 0, at2 = 0;
    void see(float got, long double want, float x, float y = 0) {
        const int64_t u = vt::ulpDistance(got, static_cast<float>(want));
        if (u > ulp) ulp = u, at = x, at2 = y;
    }
};

TEST(KernelAccuracy, SineCosineSweep) {
    const bool dense = getenv("VEKS_DENSE_SWEEP") != nullptr;
    const uint32_t top = 0x45800000u;  // 4096.0f, the end of the polynomial range
    const size_t block = 1 << 14;
    std::vector<T32f> ones(block, 1.0f), ph(block), c(block), s(block);
    Worst ws, wc;
    size_t count = 0;
    auto run = [&](size_t k) {
        ASSERT_EQ(veksPolarToCart_32f(ones.data(), ph.data(), c.data(), s.data(), static_cast<int>(k)), VEK_OK);
        for (size_t i = 0; i < k; ++i) {
            ws.see(s[i], sinl(ph[i]), ph[i]);
            wc.see(c[i], cosl(ph[i]), ph[i]);
        }
        count += k;
    };
    // A stride over every bit pattern up to 4096, both signs, and every
    // float around the first zeros of cosine and sine.
    const uint32_t stride = dense ? 1 : 1021;
    for (uint32_t sign : {0u, 0x80000000u}) {
        size_t k = 0;
        for (uint32_t b = 0; b <= top; b += stride) {
            ph[k++] = fromBits(b | sign);
            if (k == block) run(k), k = 0;
        }
        run(k);
    }
    for (float centre : {1.5707964f, 3.1415927f, 4.712389f, 6.2831855f}) {
        uint32_t b;
        memcpy(&b, &centre, 4);
        size_t k = 0;
        for (uint32_t d = b - 20000; d <= b + 20000; ++d) {
            ph[k++] = fromBits(d);
            if (k == block) run(k), k = 0;
        }
        run(k);
    }
    std::cout << "sine and cosine: " << count << " phases, max ulp " << ws.ulp << " (sin at " << ws.at << "), "
              << wc.ulp << " (cos at " << wc.at << ")\n";
    EXPECT_LE(ws.ulp, kKernelMaxUlp);
    EXPECT_LE(wc.ulp, kKernelMaxUlp);
}

TEST(KernelAccuracy, Atan2Sweep) {
    vt::Rng rng(77);
    const size_t block = 1 << 14;
    std::vector<T32f> x(block), y(block), out(block);
    Worst w;
    size_t count = 0;
    auto run = [&]() {
        ASSERT_EQ(veksPhase_32f(x.data(), y.data(), out.data(), static_cast<int>(block)), VEK_OK);
        for (size_t i = 0; i < block; ++i) w.see(out[i], atan2l(y[i], x[i]), y[i], x[i]);
        count += block;
    };
    // Random bit patterns (every exponent, both signs; NaN replaced) and
    // pairs of nearby exponents, where the reduction and the octant
    // boundaries matter most.
    for (int rep = 0; rep < 64; ++rep) {
        for (size_t i = 0; i < block; ++i) {
            uint32_t a = static_cast<uint32_t>(rng.engine()()), b = static_cast<uint32_t>(rng.engine()());
            if (rep % 2) {
                const uint32_t e = static_cast<uint32_t>(rng.range(100, 150));
                a = (a & 0x807FFFFFu) | (e << 23);
                b = (b & 0x807FFFFFu) | ((e + static_cast<uint32_t>(rng.range(0, 3))) << 23);
            }
            x[i] = fromBits(a);
            y[i] = fromBits(b);
            if (x[i] != x[i]) x[i] = 1;
            if (y[i] != y[i]) y[i] = -1;
        }
        run();
    }
    // Ratios y / x swept finely over [0, 2], all four quadrants.
    for (int rep = 0; rep < 32; ++rep) {
        for (size_t i = 0; i < block; ++i) {
            const float t = static_cast<float>(rep * block + i) / static_cast<float>(16 * block);
            x[i] = (i & 1) ? -1.25f : 3.0f;
            y[i] = x[i] * t * ((i & 2) ? -1.0f : 1.0f);
        }
        run();
    }
    std::cout << "atan2: " << count << " pairs, max ulp " << w.ulp << " at y=" << w.at << " x=" << w.at2 << "\n";
    EXPECT_LE(w.ulp, kKernelMaxUlp);
}

}  // namespace

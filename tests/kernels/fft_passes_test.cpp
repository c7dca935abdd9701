// The vector forms of the FFT passes against their scalar twin: the same
// operations in the same order, so the results agree bit for bit.
#include "kernels/fft_impl.h"
#include "support/support.h"

namespace {

using veks::fft::Cx;

template <class T>
std::vector<Cx<T>> randomData(size_t n, uint64_t seed) {
    vt::Rng rng(seed);
    std::vector<Cx<T>> v(n);
    for (auto& c : v) c = {rng.next<T>(), rng.next<T>()};
    return v;
}

template <class T>
std::vector<Cx<T>> twiddles(int order) {
    std::vector<Cx<T>> tw(veks::fft::stageTwiddleCount(order) + 1);
    const size_t N = size_t(1) << order;
    // any values exercise the arithmetic; take the true ones from the table
    veks::fft::fillStageTwiddles<T>(tw.data(), order, [N](size_t i, double& c, double& s) {
        const size_t stride = N <= 1024 ? 1024 / N : 1;
        const size_t n = N <= 1024 ? N : 1024;
        veks::fft::quarterCosSin(veks::kQuarterSine1024, stride, n, i % n, c, s);
    });
    return tw;
}

template <class T, class P>
void passesMatchScalar(uint64_t seed) {
    for (int order = 4; order <= 13; ++order) {
        for (size_t lanes : {size_t(1), size_t(8)}) {
            for (int inv = 0; inv < 2; ++inv) {
                const size_t n = lanes << order;
                const std::vector<Cx<T>> x = randomData<T>(n, seed + order);
                const std::vector<Cx<T>> tw = twiddles<T>(order);
                std::vector<Cx<T>> a(n), b(n), s1(n), s2(n);
                if (inv) {
                    veks::fft::runPasses<P, true>(x.data(), a.data(), s1.data(), order, lanes, tw.data());
                    veks::fft::runPasses<veks::fft::ScalarPolicy<T>, true>(x.data(), b.data(), s2.data(), order, lanes,
                                                                        tw.data());
                } else {
                    veks::fft::runPasses<P, false>(x.data(), a.data(), s1.data(), order, lanes, tw.data());
                    veks::fft::runPasses<veks::fft::ScalarPolicy<T>, false>(x.data(), b.data(), s2.data(), order,
                                                                         lanes, tw.data());
                }
                ASSERT_EQ(memcmp(a.data(), b.data(), n * sizeof(Cx<T>)), 0) << "order " << order << " lanes " << lanes;
                // in place through the same passes
                std::vector<Cx<T>> c(x);
                if (inv)
                    veks::fft::runPasses<P, true>(c.data(), c.data(), s1.data(), order, lanes, tw.data());
                else
                    veks::fft::runPasses<P, false>(c.data(), c.data(), s1.data(), order, lanes, tw.data());
                ASSERT_EQ(memcmp(c.data(), b.data(), n * sizeof(Cx<T>)), 0) << "in place, order " << order;
            }
        }
    }
}

TEST(FftPasses, InterleavedVectorsMatchScalar) {
    passesMatchScalar<float, veks::fft::InterleavedF32>(1);
    passesMatchScalar<double, veks::fft::InterleavedF64>(2);
}

template <class T, class P>
void splitPassMatchesScalar() {
    for (size_t m : {size_t(2), size_t(4), size_t(6), size_t(8), size_t(9), size_t(16), size_t(64), size_t(1000)}) {
        const std::vector<Cx<T>> z = randomData<T>(m, 50 + m), A = randomData<T>(m, 60 + m);
        for (int inv = 0; inv < 2; ++inv) {
            std::vector<Cx<T>> a(z), b(z);
            if (inv) {
                veks::fft::realSplit<P, true>(a.data(), m, A.data() + 1, 1, m / 2 + 1);
                veks::fft::realSplit<veks::fft::ScalarPolicy<T>, true>(b.data(), m, A.data() + 1, 1, m / 2 + 1);
            } else {
                veks::fft::realSplit<P, false>(a.data(), m, A.data() + 1, 1, m / 2 + 1);
                veks::fft::realSplit<veks::fft::ScalarPolicy<T>, false>(b.data(), m, A.data() + 1, 1, m / 2 + 1);
            }
            ASSERT_EQ(memcmp(a.data(), b.data(), m * sizeof(Cx<T>)), 0) << "m " << m << " inv " << inv;
        }
    }
}

TEST(FftPasses, RealSplitVectorsMatchScalar) {
    splitPassMatchesScalar<float, veks::fft::InterleavedF32>();
    splitPassMatchesScalar<double, veks::fft::InterleavedF64>();
}

}  // namespace

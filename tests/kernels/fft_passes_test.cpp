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

template <class P, class T>
void passes(bool inv, const Cx<T>* x, Cx<T>* y, Cx<T>* scratch, int order, size_t lanes, const Cx<T>* tw) {
    if (inv)
        veks::fft::runPasses<P, true>(x, y, scratch, order, lanes, tw);
    else
        veks::fft::runPasses<P, false>(x, y, scratch, order, lanes, tw);
}

template <class T, class P>
void passesMatchScalar(uint64_t seed) {
    using S = veks::fft::ScalarPolicy<T>;
    for (int order = 4; order <= 13; ++order) {
        const std::vector<Cx<T>> tw = twiddles<T>(order);
        for (size_t lanes : {size_t(1), size_t(8)}) {
            const size_t n = lanes << order;
            const std::vector<Cx<T>> x = randomData<T>(n, seed + order);
            for (int inv = 0; inv < 2; ++inv) {
                std::vector<Cx<T>> a(n), b(n), c(x), s1(n), s2(n);
                passes<P>(inv, x.data(), a.data(), s1.data(), order, lanes, tw.data());
                passes<S>(inv, x.data(), b.data(), s2.data(), order, lanes, tw.data());
                passes<P>(inv, c.data(), c.data(), s1.data(), order, lanes, tw.data());  // in place
                ASSERT_EQ(memcmp(a.data(), b.data(), n * sizeof(Cx<T>)), 0) << "order " << order << " lanes " << lanes;
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
            auto run = [&](auto policy, Cx<T>* d) {
                using Q = decltype(policy);
                if (inv)
                    veks::fft::realSplit<Q, true>(d, m, A.data() + 1, 1, m / 2 + 1);
                else
                    veks::fft::realSplit<Q, false>(d, m, A.data() + 1, 1, m / 2 + 1);
            };
            run(P{}, a.data());
            run(veks::fft::ScalarPolicy<T>{}, b.data());
            ASSERT_EQ(memcmp(a.data(), b.data(), m * sizeof(Cx<T>)), 0) << "m " << m << " inv " << inv;
        }
    }
}

TEST(FftPasses, RealSplitVectorsMatchScalar) {
    splitPassMatchesScalar<float, veks::fft::InterleavedF32>();
    splitPassMatchesScalar<double, veks::fft::InterleavedF64>();
}

}  // namespace

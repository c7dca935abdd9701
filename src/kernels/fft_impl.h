// Definitions behind fft_kernel.h, instantiated once per element type by
// fft_32f.cpp and fft_64f.cpp.
#pragma once

#include <type_traits>

#include "kernels/fft_passes.h"

namespace veks {
namespace fft {

template <class T>
struct PoliciesOf;
template <>
struct PoliciesOf<float> {
    using Interleaved = InterleavedF32;
    using Split = SplitF32;
};
template <>
struct PoliciesOf<double> {
    using Interleaved = InterleavedF64;
    using Split = SplitF64;
};

// Below this order the first pass cannot fill a vector; the scalar policy
// runs instead.
constexpr int kVectorMinOrder = 4;

template <class T>
void stockham(const Cx<T>* src, Cx<T>* dst, Cx<T>* scratch, int order, size_t lanes, const Cx<T>* tw,
              bool inverse) {
    if (order < kVectorMinOrder && lanes < PoliciesOf<T>::Interleaved::W) {
        if (inverse)
            runPasses<ScalarPolicy<T>, true>(src, dst, scratch, order, lanes, tw);
        else
            runPasses<ScalarPolicy<T>, false>(src, dst, scratch, order, lanes, tw);
        return;
    }
    using P = typename PoliciesOf<T>::Interleaved;
    if (inverse)
        runPasses<P, true>(src, dst, scratch, order, lanes, tw);
    else
        runPasses<P, false>(src, dst, scratch, order, lanes, tw);
}

template <class T>
void stockhamSplit(SplitPtr<const T> src, SplitPtr<T> dst, SplitPtr<T> scratch, int order, const Cx<T>* tw,
                   bool inverse) {
    using P = typename PoliciesOf<T>::Split;
    if (inverse)
        runPasses<P, true>(src, dst, scratch, order, 1, tw);
    else
        runPasses<P, false>(src, dst, scratch, order, 1, tw);
}

// Stage twiddles of the short orders, built at compile time from the
// constant table (the same values fillStageTwiddles gives at run time).
template <class T, int Order>
struct SmallTwiddles {
    Cx<T> v[stageTwiddleCount(Order) > 0 ? stageTwiddleCount(Order) : 1];
};
template <class T, int Order>
constexpr SmallTwiddles<T, Order> makeSmallTwiddles() {
    SmallTwiddles<T, Order> t{};
    constexpr size_t N = size_t(1) << Order;
    fillStageTwiddles<T>(t.v, Order, [](size_t i, double& c, double& s) {
        quarterCosSin(kQuarterSine1024, 1024 / N, N, i, c, s);
    });
    return t;
}

template <class T, int Order>
void smallOrder(const Cx<T>* src, Cx<T>* dst, bool inverse) {
    static constexpr SmallTwiddles<T, Order> tw = makeSmallTwiddles<T, Order>();
    Cx<T> scratch[size_t(1) << Order];
    using P = typename std::conditional<(Order >= kVectorMinOrder), typename PoliciesOf<T>::Interleaved,
                                        ScalarPolicy<T>>::type;
    if (inverse)
        runPasses<P, true>(src, dst, scratch, Order, 1, tw.v);
    else
        runPasses<P, false>(src, dst, scratch, Order, 1, tw.v);
}

template <class T>
void smallTransform(const Cx<T>* src, Cx<T>* dst, int order, bool inverse) {
    switch (order) {
        case 0: smallOrder<T, 0>(src, dst, inverse); break;
        case 1: smallOrder<T, 1>(src, dst, inverse); break;
        case 2: smallOrder<T, 2>(src, dst, inverse); break;
        case 3: smallOrder<T, 3>(src, dst, inverse); break;
        case 4: smallOrder<T, 4>(src, dst, inverse); break;
        default: smallOrder<T, 5>(src, dst, inverse); break;
    }
}

template <class T>
void scaleValues(const T* src, T* dst, size_t n, T factor) {
    for (size_t i = 0; i < n; ++i) dst[i] = src[i] * factor;
}

// The twist walks its row in blocks of 64: w^(r*c) = w^(r*c0) * w^(r*j), so
// that only two table entries per block are read instead of one per value
// (the table is far larger than the caches at the orders that use it).
template <class T>
void twistRow(Cx<T>* row, size_t cols, size_t r, const Cx<T>* half, size_t N, bool inverse) {
    const size_t mask = N - 1, h = N / 2;
    auto at = [&](size_t idx) {
        return idx < h ? half[idx] : Cx<T>{-half[idx - h].re, -half[idx - h].im};
    };
    constexpr size_t kBlock = 64;
    Cx<T> step[kBlock];
    for (size_t j = 0; j < kBlock; ++j) step[j] = at((r * j) & mask);
    const T sign = inverse ? T(-1) : T(1);
    for (size_t c0 = 0; c0 < cols; c0 += kBlock) {
        const Cx<T> b = at((r * c0) & mask);
        const size_t n = cols - c0 < kBlock ? cols - c0 : kBlock;
        Cx<T>* x = row + c0;
        for (size_t j = 0; j < n; ++j) {
            const T wr = b.re * step[j].re - b.im * step[j].im;
            const T wi = sign * (b.re * step[j].im + b.im * step[j].re);
            const Cx<T> v = x[j];
            x[j] = {v.re * wr - v.im * wi, v.re * wi + v.im * wr};
        }
    }
}

// The real split passes, vectorised over W consecutive k with their
// partners m-k loaded in reverse; the scalar policy finishes the pairs that
// would meet inside one vector (and the self-paired k = m/2). The vector and
// scalar forms perform the same operations, so they agree bit for bit.
template <class P, bool Inverse>
void realSplit(Cx<typename P::T>* z, size_t m, const Cx<typename P::T>* A, size_t k0, size_t k1) {
    using V = typename P::V;
    const size_t W = P::W;
    size_t k = k0;
    for (; k + W <= k1 && (W == 1 ? 2 * k <= m : 2 * k + 2 * W - 2 < m); k += W) {
        const size_t kp = m - k - (W - 1);
        const V zk = P::load(z, k), zp = P::rev(P::load(z, kp));
        const V d = P::sub(zk, P::conj(zp));  // (zk.re - zp.re, zk.im + zp.im)
        const V e = P::sub(zp, P::conj(zk));
        V xk, xp;
        if (!Inverse) {
            xk = P::add(P::conj(zp), P::mul(d, P::template twLoad<false>(A + (k - k0))));
            xp = P::add(P::conj(zk), P::mul(e, P::template twLoad<true>(A + (k - k0))));
        } else {
            xk = P::scale(P::add(P::conj(zp), P::mul(d, P::template twLoad<true>(A + (k - k0)))), 2);
            xp = P::scale(P::add(P::conj(zk), P::mul(e, P::template twLoad<false>(A + (k - k0)))), 2);
        }
        P::store(z, k, xk);
        P::store(z, kp, P::rev(xp));
    }
    if (W > 1 && k < k1) realSplit<ScalarPolicy<typename P::T>, Inverse>(z, m, A + (k - k0), k, k1);
}

template <class T>
void realSplitForward(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1) {
    realSplit<typename PoliciesOf<T>::Interleaved, false>(z, m, A, k0, k1);
}

template <class T>
void realSplitInverse(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1) {
    realSplit<typename PoliciesOf<T>::Interleaved, true>(z, m, A, k0, k1);
}

}  // namespace fft
}  // namespace veks

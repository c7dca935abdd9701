// Definitions behind fft_kernel.h, instantiated once per element type by
// fft_32f.cpp and fft_64f.cpp.
#pragma once

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

template <class T>
void smallTransform(const Cx<T>* src, Cx<T>* dst, int order, bool inverse) {
    Cx<T> tw[1024];
    Cx<T> scratch[1024];
    const size_t N = size_t(1) << order;
    fillStageTwiddles<T>(tw, order, [N](size_t i, double& c, double& s) {
        quarterCosSin(kQuarterSine1024, 1024 / N, N, i, c, s);
    });
    if (inverse)
        runPasses<ScalarPolicy<T>, true>(src, dst, scratch, order, 1, tw);
    else
        runPasses<ScalarPolicy<T>, false>(src, dst, scratch, order, 1, tw);
}

template <class T>
void scaleValues(const T* src, T* dst, size_t n, T factor) {
    for (size_t i = 0; i < n; ++i) dst[i] = src[i] * factor;
}

template <class T>
void twistRow(Cx<T>* row, size_t cols, size_t r, const Cx<T>* half, size_t N, bool inverse) {
    const size_t mask = N - 1, h = N / 2;
    size_t idx = 0;
    for (size_t c = 0; c < cols; ++c, idx = (idx + r) & mask) {
        Cx<T> w = idx < h ? half[idx] : Cx<T>{-half[idx - h].re, -half[idx - h].im};
        if (inverse) w.im = -w.im;
        const Cx<T> v = row[c];
        row[c] = {v.re * w.re - v.im * w.im, v.re * w.im + v.im * w.re};
    }
}

template <class T>
void realSplitForward(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1) {
    for (size_t k = k0; k < k1; ++k) {
        const size_t kp = m - k;
        const Cx<T> zk = z[k], zp = z[kp], a = A[k - k0];
        // X[k] = conj zp + a (zk - conj zp)
        const T dr = zk.re - zp.re, di = zk.im + zp.im;
        const Cx<T> xk{zp.re + (a.re * dr - a.im * di), -zp.im + (a.re * di + a.im * dr)};
        // X[m-k] = conj zk + conj a (zp - conj zk)
        const T er = zp.re - zk.re, ei = zp.im + zk.im;
        const Cx<T> xp{zk.re + (a.re * er + a.im * ei), -zk.im + (a.re * ei - a.im * er)};
        z[k] = xk;
        z[kp] = xp;
    }
}

template <class T>
void realSplitInverse(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1) {
    for (size_t k = k0; k < k1; ++k) {
        const size_t kp = m - k;
        const Cx<T> xk = z[k], xp = z[kp];
        const T ar = 2 * A[k - k0].re, ai = 2 * A[k - k0].im;
        // Z'[k] = 2 conj xp + 2 conj a (xk - conj xp)
        const T dr = xk.re - xp.re, di = xk.im + xp.im;
        const Cx<T> zk{2 * xp.re + (ar * dr + ai * di), -2 * xp.im + (ar * di - ai * dr)};
        // Z'[m-k] = 2 conj xk + 2 a (xp - conj xk)
        const T er = xp.re - xk.re, ei = xp.im + xk.im;
        const Cx<T> zp{2 * xk.re + (ar * er - ai * ei), -2 * xk.im + (ar * ei + ai * er)};
        z[k] = zk;
        z[kp] = zp;
    }
}

}  // namespace fft
}  // namespace veks

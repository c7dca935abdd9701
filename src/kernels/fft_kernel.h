// The radix passes of the power-of-two transforms, written once over a small
// vector vocabulary (one policy per element type and data layout) and
// compiled once per element type in fft_32f.cpp and fft_64f.cpp.
//
// The passes are self-sorting (Stockham): each pass reads one buffer and
// writes the other, so the result comes out in natural order without a
// reordering pass. A radix-R pass over a sequence of length n that holds s
// interleaved sub-sequences reads x[q + s*(p + j*m)] (m = n/R, j < R) and
// writes y[q + s*(R*p + k)] = w^(pk) * (R-point DFT)_k; the next pass works on
// n/R with R*s. Radix-8 passes do most of the work (passCount below).
//
// Stage twiddles live in one table per order: for every pass with m >= 2,
// groups of four p hold w^p .. w^((R-1)p) (w = e^(-2*pi*i/n)) as
// [w1 x4][w2 x4]..., so that a pass can load consecutive p or broadcast one.
// The inverse multiplies by the conjugates. No status, no allocation.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include "kernels/fft_quarter_table.h"

namespace veks {
namespace fft {

template <class T>
struct Cx {
    T re, im;
};

// Split-layout complex data: real and imaginary parts in separate arrays.
template <class T>
struct SplitPtr {
    T* re;
    T* im;
};

// The passes of an order, as the base-2 logarithms of their radices:
// radix-8 passes, then what is left: nothing, one radix-4 pass, or (for
// orders 3k+1) two radix-4 passes in place of a radix-8 and a radix-2
// (order 1 alone is one radix-2 pass).
constexpr int passCount(int order) {
    if (order <= 2) return order == 0 ? 0 : 1;
    const int r = order % 3;
    return order / 3 + (r == 0 ? 0 : 1);
}
constexpr int passRadixLog(int order, int i) {
    if (order <= 2) return order;
    const int r = order % 3, eights = order / 3 - (r == 1 ? 1 : 0);
    return i < eights ? 3 : 2;
}

// Complex twiddles of all passes of an order: a pass of radix R over
// sub-length n (m = n/R) with m >= 2 keeps, for every group of four p,
// [w^p x4][w^2p x4] ... [w^((R-1)p) x4], w = e^(-2*pi*i/n).
constexpr size_t stageTwiddleCount(int order) {
    size_t count = 0;
    int n = order;
    for (int i = 0; i < passCount(order); ++i) {
        const int rl = passRadixLog(order, i);
        const size_t R = size_t(1) << rl, m = size_t(1) << (n - rl);
        if (m >= 2) count += (R - 1) * 4 * ((m + 3) / 4);
        n -= rl;
    }
    return count;
}

// Fills the stage twiddles of an order from cs(i), which gives cos and sin of
// 2*pi*i/N for i in [0, N); forward twiddles are cos - i*sin.
template <class T, class CosSin>
constexpr void fillStageTwiddles(Cx<T>* tw, int order, CosSin cs) {
    size_t at = 0;
    int n = order;
    for (int i = 0; i < passCount(order); ++i) {
        const int rl = passRadixLog(order, i);
        const size_t R = size_t(1) << rl, m = size_t(1) << (n - rl);
        const size_t step = size_t(1) << (order - n);  // N / n
        if (m >= 2) {
            for (size_t p = 0; p < m; ++p) {
                for (size_t j = 0; j + 1 < R; ++j) {
                    double c = 0, s = 0;
                    cs((j + 1) * p * step, c, s);
                    Cx<T>& w = tw[at + (p / 4) * (R - 1) * 4 + j * 4 + (p % 4)];
                    w.re = static_cast<T>(c);
                    w.im = static_cast<T>(-s);
                }
            }
            at += (R - 1) * 4 * ((m + 3) / 4);
        }
        n -= rl;
    }
}

// cos and sin of 2*pi*i/N from a quarter-wave sine table q[k] = sin(2*pi*k/N),
// k = 0..N/4, read with a stride (q[k] is table[k * stride]).
template <class TTab>
constexpr void quarterCosSin(const TTab* table, size_t stride, size_t N, size_t i, double& c, double& s) {
    const size_t Q = N / 4;
    auto q = [&](size_t k) { return static_cast<double>(table[k * stride]); };
    if (i <= Q) {
        s = q(i);
        c = q(Q - i);
    } else if (i <= 2 * Q) {
        const size_t r = i - Q;
        s = q(Q - r);
        c = -q(r);
    } else if (i <= 3 * Q) {
        const size_t r = i - 2 * Q;
        s = -q(r);
        c = -q(Q - r);
    } else {
        const size_t r = i - 3 * Q;
        s = -q(Q - r);
        c = q(r);
    }
}

// The transform of length 2^order over `lanes` interleaved sub-sequences
// (lanes = 1 for one ordinary transform): src holds lanes * 2^order values,
// the result lands in dst, scratch holds as many. src may equal dst; then
// scratch is used first. src is only read. tw is the order's stage table.
template <class T>
void stockham(const Cx<T>* src, Cx<T>* dst, Cx<T>* scratch, int order, size_t lanes, const Cx<T>* tw,
              bool inverse);
template <class T>
void stockhamSplit(SplitPtr<const T> src, SplitPtr<T> dst, SplitPtr<T> scratch, int order, const Cx<T>* tw,
                   bool inverse);

// The fixed-length transforms of orders 0-5, on twiddles taken at compile
// time from the constant 1,024-point table; they need no scratch from the
// caller.
template <class T>
void smallTransform(const Cx<T>* src, Cx<T>* dst, int order, bool inverse);

// dst[i] = src[i] * factor for n values (one pass).
template <class T>
void scaleValues(const T* src, T* dst, size_t n, T factor);

// Pointwise twist of the two-level transform: row r (length cols) of data is
// multiplied by w_N^(r*c), c = 0..cols-1, with w_N from the half-circle table
// half[j] = w_N^j, j < N/2 (and -half[j - N/2] past it).
template <class T>
void twistRow(Cx<T>* row, size_t cols, size_t r, const Cx<T>* half, size_t N, bool inverse);

// Real split pass on the half-length spectrum (m = N/2 complex values) in
// place, for the pairs k, m-k with k in [k0, k1), 1 <= k0, k1 <= m/2 + 1.
// A[k - k0] = (1 - i W^k)/2, W = e^(-2*pi*i/N); the partner's coefficient is
// conj A[k]. Forward: X[k] = conj Z[m-k] + A[k] (Z[k] - conj Z[m-k]).
// Inverse: Z'[k] = 2 conj X[m-k] + 2 conj A[k] (X[k] - conj X[m-k]).
// DC and Nyquist (elements 0 and 1) are the caller's.
template <class T>
void realSplitForward(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1);
template <class T>
void realSplitInverse(Cx<T>* z, size_t m, const Cx<T>* A, size_t k0, size_t k1);

}  // namespace fft
}  // namespace veks

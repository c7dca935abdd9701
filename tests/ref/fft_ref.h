// Reference models of the power-of-two transforms: a direct DFT in long
// double, the packed real layouts built from a full spectrum, and the size
// rules of the FFT spec blocks, all written from the rules and independent of
// the library's sources.
#pragma once

#include <math.h>
#include <stdint.h>

#include <complex>
#include <vector>

namespace ref {

using CLD = std::complex<long double>;

// X[k] = sum x[n] e^(-+2 pi i nk/N): forward uses the negative exponent.
inline std::vector<CLD> dft(const std::vector<CLD>& x, bool inverse) {
    const size_t N = x.size();
    std::vector<CLD> c(N);
    const long double pi = 3.141592653589793238462643383279502884L;
    for (size_t j = 0; j < N; ++j) {
        const long double a = 2 * pi * static_cast<long double>(j) / static_cast<long double>(N);
        c[j] = CLD(cosl(a), (inverse ? 1 : -1) * sinl(a));
    }
    std::vector<CLD> X(N);
    for (size_t k = 0; k < N; ++k) {
        CLD s = 0;
        for (size_t n = 0; n < N; ++n) s += x[n] * c[(n * k) % N];
        X[k] = s;
    }
    return X;
}

enum class Layout { Pack, Perm, CCS };

// The packed form of the spectrum of a real sequence of length N.
inline std::vector<long double> pack(const std::vector<CLD>& X, Layout layout) {
    const size_t N = X.size();
    std::vector<long double> p;
    if (layout == Layout::CCS) {
        for (size_t k = 0; k <= N / 2; ++k) {
            p.push_back(X[k].real());
            p.push_back(k == 0 || 2 * k == N ? 0.0L : X[k].imag());
        }
        return p;
    }
    p.push_back(X[0].real());
    if (layout == Layout::Perm && N % 2 == 0 && N > 1) p.push_back(X[N / 2].real());
    for (size_t k = 1; 2 * k < N; ++k) {
        p.push_back(X[k].real());
        p.push_back(X[k].imag());
    }
    if (layout == Layout::Pack && N % 2 == 0 && N > 1) p.push_back(X[N / 2].real());
    return p;
}

// The full conjugate-symmetric spectrum described by a packed form.
inline std::vector<CLD> unpack(const std::vector<long double>& p, size_t N, Layout layout) {
    std::vector<CLD> X(N);
    if (layout == Layout::CCS) {
        for (size_t k = 0; k <= N / 2; ++k) X[k] = CLD(p[2 * k], p[2 * k + 1]);
    } else {
        X[0] = p[0];
        size_t at = 1;
        if (layout == Layout::Perm && N % 2 == 0 && N > 1) X[N / 2] = p[at++];
        for (size_t k = 1; 2 * k < N; ++k, at += 2) X[k] = CLD(p[at], p[at + 1]);
        if (layout == Layout::Pack && N % 2 == 0 && N > 1) X[N / 2] = p[at];
    }
    for (size_t k = N / 2 + 1; k < N; ++k) X[k] = std::conj(X[N - k]);
    return X;
}

// ---- size rules of the FFT spec blocks ---------------------------------------------

struct Sizes {
    int64_t spec, init, work;
};

inline int64_t clr(int64_t v, int64_t mask) { return v & ~mask; }

// Complex single precision, orders 0-17 (below the two-level orders).
inline Sizes complex32f(int order) {
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {152, 0, 0};
    return {clr(8 * N + 71, 63) + clr(N + 67, 63) + 192, order >= 11 ? clr(N + 67, 63) + 64 : 0,
            clr(8 * N + 63, 63) + 64};
}

// Complex double precision, orders 0-16.
inline Sizes complex64f(int order) {
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {152, 0, 0};
    return {clr(16 * N + 79, 63) + clr(N + 67, 63) + 192, order >= 11 ? clr(2 * N + 71, 63) + 64 : 0,
            clr(16 * N + 63, 63) + 64};
}

// Real single precision, orders 0-18 (whose half-length transform is below
// the two-level orders).
inline Sizes real32f(int m) {
    const int64_t N = int64_t(1) << m;
    if (m <= 4) return {152, 0, 0};
    const int64_t split = clr(4 * (N & ~int64_t(3)) + 126, 127);
    const int64_t init = m >= 11 ? clr(N + 67, 63) + 64 : 0;
    if (m <= 6) return {split + 192, init, 0};
    const Sizes c = complex32f(m - 1);
    return {c.spec - 192 + split + 192, init, c.work};
}

}  // namespace ref

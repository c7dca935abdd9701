// Shared pieces of the transform tests: one table entry per spec kind with
// its functions, a spec built in caller memory, error measures against the
// long double models, and the FFTW oracle where it is available.
#pragma once

#include <math.h>
#include <string.h>

#include <complex>
#include <vector>

#include "ref/fft_ref.h"
#include "support/support.h"
#include "veks.h"

#ifdef VEKS_HAVE_FFTW
#include <fftw3.h>
#endif

namespace ft {

using ref::CLD;

// The functions of one spec kind.
template <class Spec>
struct SpecApi {
    VekResult (*getSize)(int, int, int, int*, int*, int*);
    VekResult (*init)(Spec**, int, int, int, T8u*, T8u*);
    VekResult (*initAlloc)(Spec**, int, int, int);
    VekResult (*free)(Spec*);
    VekResult (*getBufSize)(const Spec*, int*);
};

// The SpecApi of a kind, e.g. FFT_API(C_32fc).
#define FFT_API(k) {veksFFTGetSize_##k, veksFFTInit_##k, veksFFTInitAlloc_##k, veksFFTFree_##k, veksFFTGetBufSize_##k}

// A spec laid out in caller memory that starts `skew` bytes past a 64-byte
// boundary, plus the caller's work buffer (also skewed).
template <class Spec>
struct Built {
    std::vector<uint8_t> mem, initBuf, buf;
    Spec* spec = nullptr;
    int specSize = 0, initSize = 0, bufSize = 0;
    uint8_t* work = nullptr;

    Built(const SpecApi<Spec>& api, int order, int flag, int skew = 3) {
        EXPECT_EQ(api.getSize(order, flag, 0, &specSize, &initSize, &bufSize), VEK_OK);
        mem.assign(static_cast<size_t>(specSize) + 64, 0);
        uint8_t* m = mem.data() + ((64 - reinterpret_cast<uintptr_t>(mem.data()) % 64) % 64) + skew;
        // the 64 extra bytes above absorb the skew; the FFT spec must fit from the aligned address on
        initBuf.assign(static_cast<size_t>(initSize) + 1, 0);
        EXPECT_EQ(api.init(&spec, order, flag, 0, m, initSize ? initBuf.data() + 1 : nullptr), VEK_OK);
        int b = 0;
        EXPECT_EQ(api.getBufSize(spec, &b), VEK_OK);
        buf.assign(static_cast<size_t>(b) + 8, 0);
        work = b ? buf.data() + 5 : nullptr;
    }
};

// 1/N, 1/sqrt(N) or 1 for a direction under a flag.
inline long double factor(int flag, bool inverse, int order) {
    const long double N = static_cast<long double>(int64_t(1) << order);
    if (flag == VEK_FFT_SCALE_SQRT) return 1.0L / sqrtl(N);
    if ((flag == VEK_FFT_SCALE_FWD && !inverse) || (flag == VEK_FFT_SCALE_INV && inverse)) return 1.0L / N;
    return 1.0L;
}

constexpr int kFlags[] = {VEK_FFT_SCALE_NONE, VEK_FFT_SCALE_FWD, VEK_FFT_SCALE_INV, VEK_FFT_SCALE_SQRT};

// The orders the floating transforms run: the short ones, the first
// two-level orders of both precisions (17, 18) and the one that adds the
// extra table (19); every flag at the short orders, one rotating flag
// above. The 32-bit build runs emulated here, so it takes fewer orders and
// flags (order 18 is two-level in both precisions; the code is the same).
inline std::vector<int> orders() {
    if (sizeof(void*) == 4) return {0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 18};
    return {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 16, 17, 18, 19};
}
inline std::vector<int> flagsFor(int order) {
    if (order <= (sizeof(void*) == 4 ? 5 : 10)) return {std::begin(kFlags), std::end(kFlags)};
    return {kFlags[order % 4]};
}

// Error bound of a transform of length 2^order: each radix level adds a
// few roundings of the element precision, so the error grows like
// eps * log2(N) times the norm it is measured against (||X||_2 for the
// whole error vector; ||x||_2 for one output of a spread spectrum). The
// factor 4 covers the twiddles' own rounding and the separate scaling pass.
inline long double bound(long double eps, int order, long double norm2, long double scale) {
    return 4.0L * eps * static_cast<long double>(order + 1) * norm2 * scale + 1e-300L;
}

inline long double norm2(const std::vector<CLD>& x) {
    long double s = 0;
    for (const CLD& v : x) s += std::norm(v);
    return sqrtl(s);
}

// A few tones with a known spectrum: x[n] = sum a_j e^(+-2 pi i f_j n / N),
// so that X[f_j] = N a_j (forward) without a quadratic reference.
struct Tones {
    std::vector<size_t> f;
    std::vector<CLD> a;
};
inline Tones makeTones(vt::Rng& rng, size_t N, int count) {
    Tones t;
    for (int j = 0; j < count; ++j) {
        t.f.push_back(static_cast<size_t>(rng.range(0, static_cast<int64_t>(N) - 1)));
        t.a.push_back(CLD(rng.next<double>(), rng.next<double>()));
    }
    return t;
}
// e^(2 pi i j / N) for every j, from the first octant by symmetry (few
// long double sines: they are slow where the tests run emulated).
inline std::vector<CLD> unitRoots(size_t N) {
    const long double pi = 3.141592653589793238462643383279502884L;
    std::vector<CLD> w(N);
    for (size_t j = 0; j <= N / 8 || (N < 8 && j < N); ++j) {
        const long double a = 2 * pi * static_cast<long double>(j) / static_cast<long double>(N);
        const long double c = cosl(a), s = sinl(a);
        if (N < 8) {
            w[j] = CLD(c, s);
            continue;
        }
        const size_t q = N / 4;
        w[j] = CLD(c, s), w[q - j] = CLD(s, c), w[q + j] = CLD(-s, c), w[2 * q - j] = CLD(-c, s);
        w[2 * q + j] = CLD(-c, -s), w[3 * q - j] = CLD(-s, -c), w[(3 * q + j) % N] = CLD(s, -c), w[(N - j) % N] = CLD(c, -s);
    }
    return w;
}

inline std::vector<CLD> toneSignal(const Tones& t, size_t N, bool inverse) {
    // the signal whose transform in the given direction is N a_j at f_j
    const std::vector<CLD> w = unitRoots(N);
    std::vector<CLD> x(N);
    for (size_t j = 0; j < t.f.size(); ++j)
        for (size_t n = 0; n < N; ++n) {
            const CLD r = w[(t.f[j] * n) % N];
            x[n] += t.a[j] * (inverse ? std::conj(r) : r);
        }
    return x;
}
inline std::vector<CLD> toneSpectrum(const Tones& t, size_t N) {
    std::vector<CLD> X(N);
    for (size_t j = 0; j < t.f.size(); ++j) X[t.f[j]] += static_cast<long double>(N) * t.a[j];
    return X;
}

#ifdef VEKS_HAVE_FFTW
inline std::vector<CLD> fftwDft(const std::vector<CLD>& x, bool inverse) {
    const int N = static_cast<int>(x.size());
    fftw_complex* a = fftw_alloc_complex(N);
    fftw_complex* b = fftw_alloc_complex(N);
    fftw_plan p = fftw_plan_dft_1d(N, a, b, inverse ? FFTW_BACKWARD : FFTW_FORWARD, FFTW_ESTIMATE);
    for (int i = 0; i < N; ++i) {
        a[i][0] = static_cast<double>(x[i].real());
        a[i][1] = static_cast<double>(x[i].imag());
    }
    fftw_execute(p);
    std::vector<CLD> X(N);
    for (int i = 0; i < N; ++i) X[i] = CLD(b[i][0], b[i][1]);
    fftw_destroy_plan(p);
    fftw_free(a);
    fftw_free(b);
    return X;
}
#endif

// The reference spectrum of x: long double DFT for short lengths, FFTW for
// long ones where available; empty when neither applies.
inline std::vector<CLD> reference(const std::vector<CLD>& x, bool inverse) {
    if (x.size() <= 2048) return ref::dft(x, inverse);
#ifdef VEKS_HAVE_FFTW
    return fftwDft(x, inverse);
#else
    return {};
#endif
}

// ||got - want * scale||_2: the normwise error of a whole transform. The
// rounding error of an FFT is bounded normwise, ||e||_2 <= c eps log2(N)
// ||X||_2, whatever the input; element-wise bounds only hold for spread
// spectra.
inline long double l2Error(const std::vector<CLD>& got, const std::vector<CLD>& want, long double scale) {
    long double e = 0;
    for (size_t i = 0; i < got.size(); ++i) e += std::norm(got[i] - want[i] * scale);
    return sqrtl(e);
}

}  // namespace ft

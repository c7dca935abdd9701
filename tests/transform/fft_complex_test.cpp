// Complex transforms, interleaved and split, one harness over a table of
// kinds: every flag at short orders, in place and out of place, misaligned,
// with and without a caller buffer, against the long double DFT, FFTW
// (where available) or known tones.
#include <functional>

#include "fft_harness.h"

namespace {

using ft::CLD;

// One call of a kind: re/im of the source and destination (interleaved
// kinds take re as the whole array and ignore im), null destination for
// the in-place form.
template <class T>
using Call = std::function<VekResult(T* sr, T* si, T* dr, T* di, const void* spec, T8u* w, bool inv)>;

template <class T, class C, class Spec>
Call<T> interleaved(VekResult (*fwd)(const C*, C*, const Spec*, T8u*), VekResult (*fwdI)(C*, const Spec*, T8u*),
                    VekResult (*inv)(const C*, C*, const Spec*, T8u*), VekResult (*invI)(C*, const Spec*, T8u*)) {
    return [=](T* sr, T*, T* dr, T*, const void* s, T8u* w, bool i) {
        const Spec* sp = static_cast<const Spec*>(s);
        C* a = reinterpret_cast<C*>(sr);
        return dr ? (i ? inv : fwd)(a, reinterpret_cast<C*>(dr), sp, w) : (i ? invI : fwdI)(a, sp, w);
    };
}
template <class T, class Spec>
Call<T> split(VekResult (*fwd)(const T*, const T*, T*, T*, const Spec*, T8u*), VekResult (*fwdI)(T*, T*, const Spec*, T8u*),
              VekResult (*inv)(const T*, const T*, T*, T*, const Spec*, T8u*), VekResult (*invI)(T*, T*, const Spec*, T8u*)) {
    return [=](T* sr, T* si, T* dr, T* di, const void* s, T8u* w, bool i) {
        const Spec* sp = static_cast<const Spec*>(s);
        return dr ? (i ? inv : fwd)(sr, si, dr, di, sp, w) : (i ? invI : fwdI)(sr, si, sp, w);
    };
}

template <class T, class Spec>
struct Kind {
    const char* name;
    ft::SpecApi<Spec> api;
    Call<T> call;
    bool isSplit;
    long double eps;
};

const Kind<float, FftSpec_C_32fc> kC32 = {"C_32fc", FFT_API(C_32fc),
    interleaved<float>(veksFFTFwd_CToC_32fc, veksFFTFwd_CToC_32fc_I, veksFFTInv_CToC_32fc, veksFFTInv_CToC_32fc_I),
    false, 5.9604644775390625e-8L};
const Kind<double, FftSpec_C_64fc> kC64 = {"C_64fc", FFT_API(C_64fc),
    interleaved<double>(veksFFTFwd_CToC_64fc, veksFFTFwd_CToC_64fc_I, veksFFTInv_CToC_64fc, veksFFTInv_CToC_64fc_I),
    false, 1.1102230246251565e-16L};
const Kind<float, FftSpec_C_32f> kS32 = {"C_32f", FFT_API(C_32f),
    split(veksFFTFwd_CToC_32f, veksFFTFwd_CToC_32f_I, veksFFTInv_CToC_32f, veksFFTInv_CToC_32f_I), true,
    5.9604644775390625e-8L};
const Kind<double, FftSpec_C_64f> kS64 = {"C_64f", FFT_API(C_64f),
    split(veksFFTFwd_CToC_64f, veksFFTFwd_CToC_64f_I, veksFFTInv_CToC_64f, veksFFTInv_CToC_64f_I), true,
    1.1102230246251565e-16L};

// One input of an order with its reference spectra in both directions. The
// input is rounded to the element type before the reference is formed, so
// the references see exactly what the transform sees (except for tones,
// whose exact spectrum belongs to the unrounded signal).
struct Problem {
    std::vector<CLD> x, X[2];  // forward, inverse
    bool tones = false;
};

template <class T>
Problem makeProblem(int order, uint64_t seed) {
    vt::Rng rng(seed);
    const size_t N = size_t(1) << order;
    Problem p;
#ifdef VEKS_HAVE_FFTW
    // VEKS_TEST_TONES=1 runs the path of the builds without FFTW here too.
    const bool random = getenv("VEKS_TEST_TONES") == nullptr;
#else
    const bool random = N <= 1024;
#endif
    if (random) {
        p.x.resize(N);
        for (CLD& v : p.x) v = CLD(rng.next<T>(), rng.next<T>());
        for (int d = 0; d < 2; ++d) p.X[d] = ft::reference(p.x, d == 1);
    } else {
        // the forward transform of the tones is N a_j at f_j, the inverse N a_j at N - f_j
        const ft::Tones t = ft::makeTones(rng, N, 3);
        p.x = ft::toneSignal(t, N, false);
        p.tones = true;
        p.X[0] = ft::toneSpectrum(t, N);
        p.X[1].assign(N, CLD(0));
        for (size_t k = 0; k < N; ++k) p.X[1][(N - k) % N] = p.X[0][k];
    }
    return p;
}

template <class T, class Spec>
void run(const Kind<T, Spec>& kd) {
    for (int order : ft::orders()) {
        const size_t N = size_t(1) << order, n = kd.isSplit ? N : 2 * N;  // values per array
        const Problem p = makeProblem<T>(order, 1000 + order);
        std::vector<T> re(n), im(kd.isSplit ? N : 0);
        for (size_t i = 0; i < N; ++i) {
            T* at = kd.isSplit ? &re[i] : &re[2 * i];
            at[0] = static_cast<T>(p.x[i].real());
            (kd.isSplit ? im[i] : at[1]) = static_cast<T>(p.x[i].imag());
        }
        const long double nX = ft::norm2(p.x) * sqrtl(static_cast<long double>(N));  // ||X||_2 by Parseval
        for (int flag : ft::flagsFor(order)) {
            ft::Built<Spec> b(kd.api, order, flag);
            for (int dir = 0; dir < 2; ++dir) {
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    const int mis = (order + inPlace) % 2;
                    vt::Guarded<T> sr(re, mis), si(im, 3), dr(n, 1 - mis), di(im.size(), 0);
                    if (!inPlace) {
                        sr.freeze();
                        si.freeze();
                    }
                    T8u* w = (order + dir + inPlace) % 3 ? b.work : nullptr;
                    ASSERT_EQ(kd.call(sr.data(), si.data(), inPlace ? nullptr : dr.data(), di.data(), b.spec, w, dir == 1),
                              VEK_OK) << kd.name << " order " << order;
                    EXPECT_TRUE(sr.intact() && si.intact() && dr.intact() && di.intact()) << kd.name << " order " << order;
                    const T* ore = inPlace ? sr.data() : dr.data();
                    const T* oim = inPlace ? si.data() : di.data();
                    std::vector<CLD> got(N);
                    for (size_t i = 0; i < N; ++i)
                        got[i] = kd.isSplit ? CLD(ore[i], oim[i]) : CLD(ore[2 * i], ore[2 * i + 1]);
                    // normwise against the reference of the stored input; tones add
                    // the input's own rounding, eps/2 per value, eps/2 ||X||_2 in the spectrum
                    const long double s = ft::factor(flag, dir == 1, order);
                    EXPECT_LE(ft::l2Error(got, p.X[dir], s), ft::bound(kd.eps, order, nX, s) + (p.tones ? kd.eps * nX * s : 0))
                        << kd.name << " order " << order << " flag " << flag << " dir " << dir << " inPlace " << inPlace;
                }
            }
        }
    }
}

// Below the two-level orders the interleaved and split forms run the same
// passes in the same order, so their results agree bit for bit.
TEST(FftComplex, SplitMatchesInterleavedExactly) {
    for (int order : {0, 3, 5, 6, 7, 10, 13}) {
        const size_t N = size_t(1) << order;
        ft::Built<FftSpec_C_32fc> bi(kC32.api, order, VEK_FFT_SCALE_INV);
        ft::Built<FftSpec_C_32f> bs(kS32.api, order, VEK_FFT_SCALE_INV);
        vt::Rng rng(77 + order);
        std::vector<float> x = rng.vec<float>(2 * N), y(2 * N), re(N), im(N), yr(N), yi(N);
        for (size_t i = 0; i < N; ++i) re[i] = x[2 * i], im[i] = x[2 * i + 1];
        ASSERT_EQ(kC32.call(x.data(), nullptr, y.data(), nullptr, bi.spec, bi.work, false), VEK_OK);
        ASSERT_EQ(kS32.call(re.data(), im.data(), yr.data(), yi.data(), bs.spec, bs.work, false), VEK_OK);
        for (size_t i = 0; i < N; ++i) ASSERT_TRUE(y[2 * i] == yr[i] && y[2 * i + 1] == yi[i]) << order << " " << i;
    }
}

}  // namespace

TEST(FftComplex, Interleaved32fc) { run(kC32); }
TEST(FftComplex, Interleaved64fc) { run(kC64); }
TEST(FftComplex, Split32f) { run(kS32); }
TEST(FftComplex, Split64f) { run(kS64); }

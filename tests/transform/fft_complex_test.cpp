// Complex transforms, interleaved and split, every order from 0 to 20, every
// scaling flag, in place and out of place, with and without a caller buffer,
// against the long double DFT, FFTW (where available) or known tones.
#include <algorithm>

#include "fft_harness.h"

namespace {

using ft::CLD;

template <class T, class C, class Spec>
struct InterleavedCase {
    const char* name;
    ft::SpecApi<Spec> api;
    VekResult (*fwd)(const C*, C*, const Spec*, T8u*);
    VekResult (*fwdI)(C*, const Spec*, T8u*);
    VekResult (*inv)(const C*, C*, const Spec*, T8u*);
    VekResult (*invI)(C*, const Spec*, T8u*);
    long double eps;
};

template <class T, class Spec>
struct SplitCase {
    const char* name;
    ft::SpecApi<Spec> api;
    VekResult (*fwd)(const T*, const T*, T*, T*, const Spec*, T8u*);
    VekResult (*fwdI)(T*, T*, const Spec*, T8u*);
    VekResult (*inv)(const T*, const T*, T*, T*, const Spec*, T8u*);
    VekResult (*invI)(T*, T*, const Spec*, T8u*);
    long double eps;
};

const InterleavedCase<float, T32fc, FftSpec_C_32fc> kC32 = {
    "C_32fc",
    {veksFFTGetSize_C_32fc, veksFFTInit_C_32fc, veksFFTInitAlloc_C_32fc, veksFFTFree_C_32fc,
     veksFFTGetBufSize_C_32fc},
    veksFFTFwd_CToC_32fc, veksFFTFwd_CToC_32fc_I, veksFFTInv_CToC_32fc, veksFFTInv_CToC_32fc_I,
    5.9604644775390625e-8L};
const InterleavedCase<double, T64fc, FftSpec_C_64fc> kC64 = {
    "C_64fc",
    {veksFFTGetSize_C_64fc, veksFFTInit_C_64fc, veksFFTInitAlloc_C_64fc, veksFFTFree_C_64fc,
     veksFFTGetBufSize_C_64fc},
    veksFFTFwd_CToC_64fc, veksFFTFwd_CToC_64fc_I, veksFFTInv_CToC_64fc, veksFFTInv_CToC_64fc_I,
    1.1102230246251565e-16L};
const SplitCase<float, FftSpec_C_32f> kS32 = {
    "C_32f",
    {veksFFTGetSize_C_32f, veksFFTInit_C_32f, veksFFTInitAlloc_C_32f, veksFFTFree_C_32f, veksFFTGetBufSize_C_32f},
    veksFFTFwd_CToC_32f, veksFFTFwd_CToC_32f_I, veksFFTInv_CToC_32f, veksFFTInv_CToC_32f_I,
    5.9604644775390625e-8L};
const SplitCase<double, FftSpec_C_64f> kS64 = {
    "C_64f",
    {veksFFTGetSize_C_64f, veksFFTInit_C_64f, veksFFTInitAlloc_C_64f, veksFFTFree_C_64f, veksFFTGetBufSize_C_64f},
    veksFFTFwd_CToC_64f, veksFFTFwd_CToC_64f_I, veksFFTInv_CToC_64f, veksFFTInv_CToC_64f_I,
    1.1102230246251565e-16L};

// A guard check that ignores the (changed) data of an in-place buffer.
template <class C>
bool Guarded_guardsOnly(const vt::Guarded<C>& g) {
    const unsigned char* p = reinterpret_cast<const unsigned char*>(g.data());
    for (size_t i = 1; i <= vt::Guarded<C>::kGuardBytes; ++i)
        if (p[-static_cast<ptrdiff_t>(i)] != vt::Guarded<C>::kPattern) return false;
    const unsigned char* e = p + g.size() * sizeof(C);
    for (size_t i = 0; i < vt::Guarded<C>::kGuardBytes; ++i)
        if (e[i] != vt::Guarded<C>::kPattern) return false;
    return true;
}

// One input of an order with its reference spectra in both directions.
struct Problem {
    std::vector<CLD> x;
    std::vector<CLD> X[2];  // forward, inverse
    bool tones = false;
};

// The input is rounded to the element type before the reference is formed,
// so the references see exactly what the transform sees (except for tones,
// whose exact spectrum belongs to the unrounded signal).
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
        // Known tones: the forward transform of x is N a_j at f_j; the
        // inverse transform of x is N a_j at N - f_j.
        const ft::Tones t = ft::makeTones(rng, N, 3);
        p.x = ft::toneSignal(t, N, false);
        p.tones = true;
        p.X[0] = ft::toneSpectrum(t, N);
        p.X[1].assign(N, CLD(0));
        for (size_t k = 0; k < N; ++k) p.X[1][(N - k) % N] = p.X[0][k];
    }
    return p;
}

// The combinations an order is run with: every flag up to order 12, one
// (rotating) flag above, to keep the run short.
std::vector<int> flagsFor(int order) {
    if (order <= 12) return {std::begin(ft::kFlags), std::end(ft::kFlags)};
    return {ft::kFlags[order % 4]};
}

template <class T, class C, class Spec>
void runInterleaved(const InterleavedCase<T, C, Spec>& cs, int maxOrder) {
    for (int order = 0; order <= maxOrder; ++order) {
        const size_t N = size_t(1) << order;
        const Problem p = makeProblem<T>(order, 1000 + order);
        const long double nx = ft::norm2(p.x);
        for (int flag : flagsFor(order)) {
            ft::Built<Spec> b(cs.api, order, flag);
            for (int dir = 0; dir < 2; ++dir) {
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    const int mis = (order + inPlace) % 2;
                    const bool callerBuf = (order + dir + inPlace) % 3 != 0;
                    std::vector<C> in(N);
                    for (size_t i = 0; i < N; ++i) in[i] = {static_cast<T>(p.x[i].real()), static_cast<T>(p.x[i].imag())};
                    vt::Guarded<C> src(in, mis), dst(N, 1 - mis);
                    src.freeze();
                    VekResult r;
                    T8u* w = callerBuf ? b.work : nullptr;
                    if (inPlace)
                        r = (dir ? cs.invI : cs.fwdI)(src.data(), b.spec, w);
                    else
                        r = (dir ? cs.inv : cs.fwd)(src.data(), dst.data(), b.spec, w);
                    ASSERT_EQ(r, VEK_OK) << cs.name << " order " << order;
                    const C* out = inPlace ? src.data() : dst.data();
                    if (inPlace) {
                        EXPECT_TRUE(Guarded_guardsOnly(src));
                    } else {
                        EXPECT_TRUE(src.intact()) << "source changed";
                        EXPECT_TRUE(dst.intact());
                    }
                    std::vector<CLD> got(N);
                    for (size_t i = 0; i < N; ++i) got[i] = CLD(out[i].re, out[i].im);
                    const long double s = ft::factor(flag, dir == 1, order);
                    // Normwise against the reference of the stored input: the bound
                    // of ft::bound with ||X||_2 = sqrt(N) ||x||_2 (Parseval); tones
                    // add the input's own rounding, at most eps/2 per value, which
                    // is eps/2 * ||X||_2 in the spectrum.
                    const long double nX = nx * sqrtl(static_cast<long double>(N));
                    const long double err = ft::l2Error(got, p.X[dir], s);
                    EXPECT_LE(err, ft::bound(cs.eps, order, nX, s) + (p.tones ? cs.eps * nX * s : 0))
                        << cs.name << " order " << order << " flag " << flag << " dir " << dir << " inPlace "
                        << inPlace;
                }
            }
        }
    }
}

template <class T, class Spec>
void runSplit(const SplitCase<T, Spec>& cs, int maxOrder) {
    for (int order = 0; order <= maxOrder; ++order) {
        const size_t N = size_t(1) << order;
        const Problem p = makeProblem<T>(order, 2000 + order);
        const long double nx = ft::norm2(p.x);
        for (int flag : flagsFor(order)) {
            ft::Built<Spec> b(cs.api, order, flag);
            for (int dir = 0; dir < 2; ++dir) {
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    const int mis = (order + inPlace) % 2;
                    const bool callerBuf = (order + dir + inPlace) % 3 != 1;
                    std::vector<T> re(N), im(N);
                    for (size_t i = 0; i < N; ++i) {
                        re[i] = static_cast<T>(p.x[i].real());
                        im[i] = static_cast<T>(p.x[i].imag());
                    }
                    vt::Guarded<T> sr(re, mis), si(im, 3), dr(N, 1 - mis), di(N, 0);
                    sr.freeze();
                    si.freeze();
                    T8u* w = callerBuf ? b.work : nullptr;
                    VekResult r;
                    if (inPlace)
                        r = (dir ? cs.invI : cs.fwdI)(sr.data(), si.data(), b.spec, w);
                    else
                        r = (dir ? cs.inv : cs.fwd)(sr.data(), si.data(), dr.data(), di.data(), b.spec, w);
                    ASSERT_EQ(r, VEK_OK) << cs.name << " order " << order;
                    const T* ore = inPlace ? sr.data() : dr.data();
                    const T* oim = inPlace ? si.data() : di.data();
                    if (inPlace) {
                        EXPECT_TRUE(Guarded_guardsOnly(sr) && Guarded_guardsOnly(si));
                    } else {
                        EXPECT_TRUE(sr.intact() && si.intact()) << "source changed";
                        EXPECT_TRUE(dr.intact() && di.intact());
                    }
                    std::vector<CLD> got(N);
                    for (size_t i = 0; i < N; ++i) got[i] = CLD(ore[i], oim[i]);
                    const long double s = ft::factor(flag, dir == 1, order);
                    const long double nX = nx * sqrtl(static_cast<long double>(N));
                    const long double err = ft::l2Error(got, p.X[dir], s);
                    EXPECT_LE(err, ft::bound(cs.eps, order, nX, s) + (p.tones ? cs.eps * nX * s : 0))
                        << cs.name << " order " << order << " flag " << flag << " dir " << dir << " inPlace "
                        << inPlace;
                }
            }
        }
    }
}

// The interleaved and split forms compute the same transform: for orders
// below the two-level ones they run the same passes in the same order, so
// their results agree bit for bit.
TEST(FftComplex, SplitMatchesInterleavedExactly) {
    for (int order : {0, 3, 5, 6, 7, 10, 13}) {
        const size_t N = size_t(1) << order;
        ft::Built<FftSpec_C_32fc> bi(kC32.api, order, VEK_FFT_SCALE_INV);
        ft::Built<FftSpec_C_32f> bs(kS32.api, order, VEK_FFT_SCALE_INV);
        vt::Rng rng(77 + order);
        std::vector<T32fc> x(N), y(N);
        std::vector<float> re(N), im(N), yr(N), yi(N);
        for (size_t i = 0; i < N; ++i) {
            x[i] = {rng.next<float>(), rng.next<float>()};
            re[i] = x[i].re;
            im[i] = x[i].im;
        }
        ASSERT_EQ(veksFFTFwd_CToC_32fc(x.data(), y.data(), bi.spec, bi.work), VEK_OK);
        ASSERT_EQ(veksFFTFwd_CToC_32f(re.data(), im.data(), yr.data(), yi.data(), bs.spec, bs.work), VEK_OK);
        for (size_t i = 0; i < N; ++i) {
            ASSERT_EQ(y[i].re, yr[i]) << order << " " << i;
            ASSERT_EQ(y[i].im, yi[i]) << order << " " << i;
        }
    }
}

}  // namespace

TEST(FftComplex, Interleaved32fcAgainstReferences) { runInterleaved(kC32, 20); }
TEST(FftComplex, Interleaved64fcAgainstReferences) { runInterleaved(kC64, 20); }
TEST(FftComplex, Split32fAgainstReferences) { runSplit(kS32, 20); }
TEST(FftComplex, Split64fAgainstReferences) { runSplit(kS64, 18); }

// Real transforms in the Pack, Perm and CCS layouts over the shared orders
// and flags, in place and out of place, against the long double DFT or
// FFTW, and round trips where neither reference is at hand.
#include "fft_harness.h"

namespace {

using ft::CLD;
using ref::Layout;

template <class T>
struct RealCase {
    const char* name;
    using Spec = typename std::conditional<sizeof(T) == 4, FftSpec_R_32f, FftSpec_R_64f>::type;
    ft::SpecApi<Spec> api;
    using Fn = VekResult (*)(const T*, T*, const Spec*, T8u*);
    using FnI = VekResult (*)(T*, const Spec*, T8u*);
    Fn fwd[3];
    FnI fwdI[3];
    Fn inv[3];
    FnI invI[3];
    long double eps;
};

// Layout index order: Pack, Perm, CCS.
const RealCase<float> kR32 = {
    "R_32f",
    FFT_API(R_32f),
    {veksFFTFwd_RToPack_32f, veksFFTFwd_RToPerm_32f, veksFFTFwd_RToCCS_32f},
    {veksFFTFwd_RToPack_32f_I, veksFFTFwd_RToPerm_32f_I, veksFFTFwd_RToCCS_32f_I},
    {veksFFTInv_PackToR_32f, veksFFTInv_PermToR_32f, veksFFTInv_CCSToR_32f},
    {veksFFTInv_PackToR_32f_I, veksFFTInv_PermToR_32f_I, veksFFTInv_CCSToR_32f_I},
    5.9604644775390625e-8L};
const RealCase<double> kR64 = {
    "R_64f",
    FFT_API(R_64f),
    {veksFFTFwd_RToPack_64f, veksFFTFwd_RToPerm_64f, veksFFTFwd_RToCCS_64f},
    {veksFFTFwd_RToPack_64f_I, veksFFTFwd_RToPerm_64f_I, veksFFTFwd_RToCCS_64f_I},
    {veksFFTInv_PackToR_64f, veksFFTInv_PermToR_64f, veksFFTInv_CCSToR_64f},
    {veksFFTInv_PackToR_64f_I, veksFFTInv_PermToR_64f_I, veksFFTInv_CCSToR_64f_I},
    1.1102230246251565e-16L};

const Layout kLayouts[] = {Layout::Pack, Layout::Perm, Layout::CCS};

template <class T>
void runReal(const RealCase<T>& cs) {
    using Spec = typename RealCase<T>::Spec;
    for (int order : ft::orders()) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(3000 + order);
        const std::vector<T> x = rng.vec<T>(N);
        const std::vector<CLD> X = ft::reference(std::vector<CLD>(x.begin(), x.end()), false);
        const long double nx = ft::norm2(std::vector<CLD>(x.begin(), x.end()));
        for (int flag : ft::flagsFor(order)) {
            ft::Built<Spec> b(cs.api, order, flag);
            const long double sf = ft::factor(flag, false, order), si = ft::factor(flag, true, order);
            for (int li = 0; li < 3; ++li) {
                const size_t len = kLayouts[li] == Layout::CCS ? (N == 1 ? 2 : N + 2) : N;  // N = 1: R0 and a zero
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    const int mis = (order + li + inPlace) % 2;
                    T8u* w = (order + li + inPlace) % 3 ? b.work : nullptr;
                    std::vector<T> in(x);
                    in.resize(len, T(0));
                    vt::Guarded<T> s(in, mis), d(len, 1 - mis);
                    if (!inPlace) s.freeze();
                    ASSERT_EQ(inPlace ? cs.fwdI[li](s.data(), b.spec, w) : cs.fwd[li](s.data(), d.data(), b.spec, w), VEK_OK);
                    EXPECT_TRUE(s.intact() && d.intact()) << cs.name << " order " << order;
                    const std::vector<T> packed = (inPlace ? s : d).vec();
                    if (!X.empty()) {
                        const std::vector<long double> want = ref::pack(X, kLayouts[li]);
                        ASSERT_EQ(want.size(), len);
                        long double err = 0;
                        for (size_t i = 0; i < len; ++i) err = fmaxl(err, fabsl(packed[i] - want[i] * sf));
                        EXPECT_LE(err, ft::bound(cs.eps, order, nx, sf))
                            << cs.name << " fwd order " << order << " flag " << flag << " layout " << li;
                        // the CCS zeros are exact
                        EXPECT_TRUE(kLayouts[li] != Layout::CCS || (packed[1] == 0 && (N == 1 || packed[N + 1] == 0)));
                    }
                    // the inverse of what the forward gave: x * N * sf * si
                    vt::Guarded<T> s2(packed, mis), d2(N, mis);
                    if (!inPlace) s2.freeze();
                    ASSERT_EQ(inPlace ? cs.invI[li](s2.data(), b.spec, w) : cs.inv[li](s2.data(), d2.data(), b.spec, w), VEK_OK);
                    EXPECT_TRUE(s2.intact() && d2.intact());
                    const T* back = inPlace ? s2.data() : d2.data();
                    long double err = 0;
                    const long double k = static_cast<long double>(N) * sf * si;
                    for (size_t i = 0; i < N; ++i) err = fmaxl(err, fabsl(back[i] - x[i] * k));
                    // two transforms, each within the bound, the second one
                    // seeing a spectrum of norm sqrt(N) ||x|| * sf
                    EXPECT_LE(err, 2 * ft::bound(cs.eps, order, nx * sqrtl(N) * sf, si) + ft::bound(cs.eps, order, nx, k))
                        << cs.name << " round trip order " << order << " flag " << flag << " layout " << li;
                }
            }
        }
    }
}

TEST(FftReal, Real32f) { runReal(kR32); }
TEST(FftReal, Real64f) { runReal(kR64); }

}  // namespace

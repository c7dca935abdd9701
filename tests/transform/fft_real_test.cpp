// Real transforms in the Pack, Perm and CCS layouts, orders 0 to 20, every
// flag, in place and out of place, against the long double DFT or FFTW, and
// round trips where neither reference is at hand.
#include "fft_harness.h"

namespace {

using ft::CLD;
using ref::Layout;

template <class T>
struct RealCase {
    const char* name;
    ft::SpecApi<typename std::conditional<sizeof(T) == 4, FftSpec_R_32f, FftSpec_R_64f>::type> api;
    using Spec = typename std::conditional<sizeof(T) == 4, FftSpec_R_32f, FftSpec_R_64f>::type;
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
    {veksFFTGetSize_R_32f, veksFFTInit_R_32f, veksFFTInitAlloc_R_32f, veksFFTFree_R_32f, veksFFTGetBufSize_R_32f},
    {veksFFTFwd_RToPack_32f, veksFFTFwd_RToPerm_32f, veksFFTFwd_RToCCS_32f},
    {veksFFTFwd_RToPack_32f_I, veksFFTFwd_RToPerm_32f_I, veksFFTFwd_RToCCS_32f_I},
    {veksFFTInv_PackToR_32f, veksFFTInv_PermToR_32f, veksFFTInv_CCSToR_32f},
    {veksFFTInv_PackToR_32f_I, veksFFTInv_PermToR_32f_I, veksFFTInv_CCSToR_32f_I},
    5.9604644775390625e-8L};
const RealCase<double> kR64 = {
    "R_64f",
    {veksFFTGetSize_R_64f, veksFFTInit_R_64f, veksFFTInitAlloc_R_64f, veksFFTFree_R_64f, veksFFTGetBufSize_R_64f},
    {veksFFTFwd_RToPack_64f, veksFFTFwd_RToPerm_64f, veksFFTFwd_RToCCS_64f},
    {veksFFTFwd_RToPack_64f_I, veksFFTFwd_RToPerm_64f_I, veksFFTFwd_RToCCS_64f_I},
    {veksFFTInv_PackToR_64f, veksFFTInv_PermToR_64f, veksFFTInv_CCSToR_64f},
    {veksFFTInv_PackToR_64f_I, veksFFTInv_PermToR_64f_I, veksFFTInv_CCSToR_64f_I},
    1.1102230246251565e-16L};

const Layout kLayouts[] = {Layout::Pack, Layout::Perm, Layout::CCS};

template <class T>
void runReal(const RealCase<T>& cs, int maxOrder) {
    using Spec = typename RealCase<T>::Spec;
    for (int order = 0; order <= maxOrder; ++order) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(3000 + order);
        std::vector<T> x(N);
        std::vector<CLD> xc(N);
        for (size_t i = 0; i < N; ++i) {
            x[i] = rng.next<T>();
            xc[i] = x[i];
        }
        const long double nx = ft::norm2(xc);
        const std::vector<CLD> X = ft::reference(xc, false);
        const int flags = order <= 12 ? 4 : 1;
        for (int fi = 0; fi < flags; ++fi) {
            const int flag = order <= 12 ? ft::kFlags[fi] : ft::kFlags[order % 4];
            ft::Built<Spec> b(cs.api, order, flag);
            const long double sf = ft::factor(flag, false, order), si = ft::factor(flag, true, order);
            for (int li = 0; li < 3; ++li) {
                const Layout layout = kLayouts[li];
                const size_t len = layout == Layout::CCS ? (N == 1 ? 2 : N + 2) : N;  // N = 1: R0 and a zero
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    const int mis = (order + li + inPlace) % 2;
                    T8u* w = (order + li + inPlace) % 3 ? b.work : nullptr;
                    // forward
                    std::vector<T> in(x);
                    in.resize(len, T(0));
                    vt::Guarded<T> s(in, mis), d(len, 1 - mis);
                    s.freeze();
                    VekResult r = inPlace ? cs.fwdI[li](s.data(), b.spec, w)
                                          : cs.fwd[li](s.data(), d.data(), b.spec, w);
                    ASSERT_EQ(r, VEK_OK);
                    const T* spec = inPlace ? s.data() : d.data();
                    if (!inPlace) {
                        EXPECT_TRUE(s.intact()) << "source changed";
                    }
                    EXPECT_TRUE(inPlace || d.intact());
                    std::vector<T> packed(spec, spec + len);
                    if (!X.empty()) {
                        const std::vector<long double> want = ref::pack(X, layout);
                        ASSERT_EQ(want.size(), len);
                        long double err = 0;
                        for (size_t i = 0; i < len; ++i) err = fmaxl(err, fabsl(packed[i] - want[i] * sf));
                        EXPECT_LE(err, ft::bound(cs.eps, order, nx, sf))
                            << cs.name << " fwd order " << order << " flag " << flag << " layout " << li
                            << " inPlace " << inPlace;
                        if (layout == Layout::CCS) {
                            EXPECT_EQ(packed[1], T(0));
                            if (N > 1) {
                                EXPECT_EQ(packed[N + 1], T(0));
                            }
                        }
                    }
                    // inverse of what the forward gave: x * N * sf * si
                    vt::Guarded<T> s2(packed, mis), d2(N, mis);
                    s2.freeze();
                    r = inPlace ? cs.invI[li](s2.data(), b.spec, w) : cs.inv[li](s2.data(), d2.data(), b.spec, w);
                    ASSERT_EQ(r, VEK_OK);
                    const T* back = inPlace ? s2.data() : d2.data();
                    if (!inPlace) {
                        EXPECT_TRUE(s2.intact() && d2.intact());
                    }
                    long double err = 0;
                    const long double k = static_cast<long double>(N) * sf * si;
                    for (size_t i = 0; i < N; ++i) err = fmaxl(err, fabsl(back[i] - x[i] * k));
                    // two transforms, each within the bound, the second one
                    // seeing a spectrum of norm sqrt(N) ||x|| * sf
                    EXPECT_LE(err, 2 * ft::bound(cs.eps, order, nx * sqrtl(N) * sf, si) + ft::bound(cs.eps, order, nx, k))
                        << cs.name << " round trip order " << order << " flag " << flag << " layout " << li
                        << " inPlace " << inPlace;
                }
            }
        }
    }
}

TEST(FftReal, Real32fAgainstReferences) { runReal(kR32, 20); }
TEST(FftReal, Real64fAgainstReferences) { runReal(kR64, 19); }

// The small layouts told exactly: N = 2 gives R0, R1 in Pack with no move;
// N = 4 gives R0, R1, I1, R2; order 0 in CCS gives x0 and a zero.
TEST(FftReal, ShortLayoutsExactly) {
    ft::Built<FftSpec_R_32f> b0(kR32.api, 0, VEK_FFT_SCALE_NONE), b1(kR32.api, 1, VEK_FFT_SCALE_NONE),
        b2(kR32.api, 2, VEK_FFT_SCALE_NONE);
    float ccs[3] = {9, 9, 9};
    const float one[1] = {2.5f};
    ASSERT_EQ(veksFFTFwd_RToCCS_32f(one, ccs, b0.spec, nullptr), VEK_OK);
    EXPECT_EQ(ccs[0], 2.5f);
    EXPECT_EQ(ccs[1], 0.0f);
    EXPECT_EQ(ccs[2], 9.0f);  // N = 1: only two values
    const float two[2] = {3, 1};
    float pack2[2];
    ASSERT_EQ(veksFFTFwd_RToPack_32f(two, pack2, b1.spec, nullptr), VEK_OK);
    EXPECT_EQ(pack2[0], 4.0f);
    EXPECT_EQ(pack2[1], 2.0f);
    const float four[4] = {1, 2, 3, 4};  // X = 10, -2+2i, -2, -2-2i
    float pack4[4], perm4[4], ccs4[6];
    ASSERT_EQ(veksFFTFwd_RToPack_32f(four, pack4, b2.spec, nullptr), VEK_OK);
    ASSERT_EQ(veksFFTFwd_RToPerm_32f(four, perm4, b2.spec, nullptr), VEK_OK);
    ASSERT_EQ(veksFFTFwd_RToCCS_32f(four, ccs4, b2.spec, nullptr), VEK_OK);
    const float wantPack[4] = {10, -2, 2, -2}, wantPerm[4] = {10, -2, -2, 2}, wantCcs[6] = {10, 0, -2, 2, -2, 0};
    EXPECT_TRUE(vt::sameElements(pack4, wantPack, 4));
    EXPECT_TRUE(vt::sameElements(perm4, wantPerm, 4));
    EXPECT_TRUE(vt::sameElements(ccs4, wantCcs, 6));
}

}  // namespace

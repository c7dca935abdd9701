// Integer transforms (32-bit through double precision, 16-bit through
// single precision) against the long double DFT scaled by the flag and by
// 2^-scaleFactor, rounded to nearest even and saturated.
#include <functional>

#include "fft_harness.h"

namespace {

using ft::CLD;
using ref::Layout;

// Compares integer outputs with v * 2^-sf, nearest even, saturated. The
// transform computes in floating point, so a value within its rounding
// error of a half-way point may round either way: a difference of one is
// allowed, but at most 2% of the values may differ at all.
struct IntCompare {
    long double lo, hi;
    int64_t differing = 0, total = 0;
    bool check(int64_t got, long double v, int sf) {
        const long double want = fminl(fmaxl(nearbyintl(ldexpl(v, -sf)), lo), hi);
        ++total;
        differing += static_cast<long double>(got) != want;
        return fabsl(static_cast<long double>(got) - want) <= 1.0L;
    }
    ~IntCompare() { EXPECT_LE(differing * 50, total) << differing << " of " << total << " differ"; }
};

// Integers uniform in [-amp, amp] (Rng::vec draws integers over the whole type).
template <class TI>
std::vector<TI> ints(vt::Rng& rng, size_t n, int64_t amp) {
    std::vector<TI> v(n);
    for (TI& x : v) x = static_cast<TI>(rng.range(-amp, amp));
    return v;
}

const int kOrders[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 10};

// 0: results mostly in range; 1: heavy downscaling; 2: negative (saturates)
int scaleFor(int order, int variant, bool sixteen) {
    if (variant == 2) return -3;
    if (variant == 1) return order + (sixteen ? 4 : 2);
    return sixteen ? order / 2 + 1 : 0;
}

// One call of a complex kind on re/im arrays (interleaved kinds take re as
// the whole array); a null destination selects the in-place form.
template <class TI>
using Call = std::function<VekResult(TI* sr, TI* si, TI* dr, TI* di, const void* spec, int sf, T8u* w, bool inv)>;

template <class TI, class C, class Spec>
Call<TI> interleaved(VekResult (*fwd)(const C*, C*, const Spec*, int, T8u*), VekResult (*fwdI)(C*, const Spec*, int, T8u*),
                     VekResult (*inv)(const C*, C*, const Spec*, int, T8u*), VekResult (*invI)(C*, const Spec*, int, T8u*)) {
    return [=](TI* sr, TI*, TI* dr, TI*, const void* s, int sf, T8u* w, bool i) {
        const Spec* sp = static_cast<const Spec*>(s);
        C* a = reinterpret_cast<C*>(sr);
        return dr ? (i ? inv : fwd)(a, reinterpret_cast<C*>(dr), sp, sf, w) : (i ? invI : fwdI)(a, sp, sf, w);
    };
}
template <class TI, class Spec>
Call<TI> split(VekResult (*fwd)(const TI*, const TI*, TI*, TI*, const Spec*, int, T8u*),
               VekResult (*fwdI)(TI*, TI*, const Spec*, int, T8u*),
               VekResult (*inv)(const TI*, const TI*, TI*, TI*, const Spec*, int, T8u*),
               VekResult (*invI)(TI*, TI*, const Spec*, int, T8u*)) {
    return [=](TI* sr, TI* si, TI* dr, TI* di, const void* s, int sf, T8u* w, bool i) {
        const Spec* sp = static_cast<const Spec*>(s);
        return dr ? (i ? inv : fwd)(sr, si, dr, di, sp, sf, w) : (i ? invI : fwdI)(sr, si, sp, sf, w);
    };
}

template <class TI, class Spec>
void runComplex(const char* name, const ft::SpecApi<Spec>& api, const Call<TI>& call, bool isSplit, int64_t amp) {
    IntCompare cmp{std::numeric_limits<TI>::min(), std::numeric_limits<TI>::max()};
    for (int order : kOrders) {
        const size_t N = size_t(1) << order, n = isSplit ? N : 2 * N;
        vt::Rng rng(4000 + order);
        const std::vector<TI> re = ints<TI>(rng, n, amp), im = ints<TI>(rng, isSplit ? N : 0, amp);
        std::vector<CLD> xc(N);
        for (size_t i = 0; i < N; ++i) xc[i] = isSplit ? CLD(re[i], im[i]) : CLD(re[2 * i], re[2 * i + 1]);
        for (int dir = 0; dir < 2; ++dir) {
            const std::vector<CLD> X = ref::dft(xc, dir == 1);
            const int flag = ft::kFlags[(order + dir) % 4];
            ft::Built<Spec> b(api, order, flag);
            const long double f = ft::factor(flag, dir == 1, order);
            for (int variant = 0; variant < 3; ++variant) {
                const int sf = scaleFor(order, variant, sizeof(TI) == 2);
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    vt::Guarded<TI> sr(re, inPlace), si(im, 2), dr(n, 1), di(im.size(), 0);
                    if (!inPlace) sr.freeze(), si.freeze();
                    ASSERT_EQ(call(sr.data(), si.data(), inPlace ? nullptr : dr.data(), di.data(), b.spec, sf,
                                   variant == 1 ? nullptr : b.work, dir == 1), VEK_OK) << name;
                    EXPECT_TRUE(sr.intact() && si.intact() && dr.intact() && di.intact()) << name;
                    const TI* ore = inPlace ? sr.data() : dr.data();
                    const TI* oim = inPlace ? si.data() : di.data();
                    for (size_t k = 0; k < N; ++k) {
                        const TI gr = isSplit ? ore[k] : ore[2 * k], gi = isSplit ? oim[k] : ore[2 * k + 1];
                        ASSERT_TRUE(cmp.check(gr, X[k].real() * f, sf) && cmp.check(gi, X[k].imag() * f, sf))
                            << name << " order " << order << " dir " << dir << " sf " << sf << " k " << k;
                    }
                }
            }
        }
    }
}


TEST(FftInteger, Complex) {
    runComplex<T32s, FftSpec_C_32sc>("C_32sc", FFT_API(C_32sc),
        interleaved<T32s>(veksFFTFwd_CToC_32sc_Sfs, veksFFTFwd_CToC_32sc_ISfs, veksFFTInv_CToC_32sc_Sfs, veksFFTInv_CToC_32sc_ISfs),
        false, 1 << 20);
    runComplex<T16s, FftSpec_C_16sc>("C_16sc", FFT_API(C_16sc),
        interleaved<T16s>(veksFFTFwd_CToC_16sc_Sfs, veksFFTFwd_CToC_16sc_ISfs, veksFFTInv_CToC_16sc_Sfs, veksFFTInv_CToC_16sc_ISfs),
        false, 32767);
    runComplex<T32s, FftSpec_C_32s>("C_32s", FFT_API(C_32s),
        split(veksFFTFwd_CToC_32s_Sfs, veksFFTFwd_CToC_32s_ISfs, veksFFTInv_CToC_32s_Sfs, veksFFTInv_CToC_32s_ISfs), true,
        1 << 24);
    runComplex<T16s, FftSpec_C_16s>("C_16s", FFT_API(C_16s),
        split(veksFFTFwd_CToC_16s_Sfs, veksFFTFwd_CToC_16s_ISfs, veksFFTInv_CToC_16s_Sfs, veksFFTInv_CToC_16s_ISfs), true,
        32767);
}

// Real kinds, layout index order Pack, Perm, CCS.
template <class TI, class Spec>
struct RealIntCase {
    const char* name;
    ft::SpecApi<Spec> api;
    VekResult (*fwd[3])(const TI*, TI*, const Spec*, int, T8u*);
    VekResult (*fwdI[3])(TI*, const Spec*, int, T8u*);
    VekResult (*inv[3])(const TI*, TI*, const Spec*, int, T8u*);
    VekResult (*invI[3])(TI*, const Spec*, int, T8u*);
    int64_t amp;
};

template <class TI, class Spec>
void runRealInt(const RealIntCase<TI, Spec>& c) {
    const Layout layouts[] = {Layout::Pack, Layout::Perm, Layout::CCS};
    IntCompare cmp{std::numeric_limits<TI>::min(), std::numeric_limits<TI>::max()};
    for (int order : kOrders) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(4200 + order);
        const std::vector<TI> x = ints<TI>(rng, N, c.amp);
        const std::vector<CLD> X = ref::dft(std::vector<CLD>(x.begin(), x.end()), false);
        const int flag = ft::kFlags[order % 4];
        ft::Built<Spec> b(c.api, order, flag);
        const long double ff = ft::factor(flag, false, order), fi = ft::factor(flag, true, order);
        for (int li = 0; li < 3; ++li) {
            const std::vector<long double> want = ref::pack(X, layouts[li]);
            const size_t len = want.size();
            const int sf = scaleFor(order, (order + li) % 3, sizeof(TI) == 2);
            const bool inPlace = (order + li) % 2;
            std::vector<TI> io(x);
            io.resize(len);
            vt::Guarded<TI> d(len, 1);
            ASSERT_EQ(inPlace ? c.fwdI[li](io.data(), b.spec, sf, nullptr) : c.fwd[li](x.data(), d.data(), b.spec, sf, b.work),
                      VEK_OK);
            EXPECT_TRUE(d.intact());
            const TI* o = inPlace ? io.data() : d.data();
            for (size_t k = 0; k < len; ++k)
                ASSERT_TRUE(cmp.check(o[k], want[k] * ff, sf)) << c.name << " fwd order " << order << " layout " << li << " k " << k;
            // the inverse of a random integer spectrum is the exact inverse of
            // the full spectrum it stands for
            std::vector<TI> spec = ints<TI>(rng, len, c.amp);
            if (layouts[li] == Layout::CCS) spec[1] = 0, spec[len - 1] = N > 1 ? 0 : spec[len - 1];
            const std::vector<CLD> y =
                ref::dft(ref::unpack(std::vector<long double>(spec.begin(), spec.end()), N, layouts[li]), true);
            const int sfi = scaleFor(order, (order + li + 1) % 3, sizeof(TI) == 2);
            vt::Guarded<TI> out(spec, 0);
            ASSERT_EQ(inPlace ? c.inv[li](spec.data(), out.data(), b.spec, sfi, nullptr) : c.invI[li](out.data(), b.spec, sfi, b.work),
                      VEK_OK);
            EXPECT_TRUE(out.intact());
            for (size_t k = 0; k < N; ++k)
                ASSERT_TRUE(cmp.check(out[k], y[k].real() * fi, sfi)) << c.name << " inv order " << order << " layout " << li << " k " << k;
        }
    }
}

TEST(FftInteger, Real) {
    runRealInt(RealIntCase<T32s, FftSpec_R_32s>{"R_32s", FFT_API(R_32s),
        {veksFFTFwd_RToPack_32s_Sfs, veksFFTFwd_RToPerm_32s_Sfs, veksFFTFwd_RToCCS_32s_Sfs},
        {veksFFTFwd_RToPack_32s_ISfs, veksFFTFwd_RToPerm_32s_ISfs, veksFFTFwd_RToCCS_32s_ISfs},
        {veksFFTInv_PackToR_32s_Sfs, veksFFTInv_PermToR_32s_Sfs, veksFFTInv_CCSToR_32s_Sfs},
        {veksFFTInv_PackToR_32s_ISfs, veksFFTInv_PermToR_32s_ISfs, veksFFTInv_CCSToR_32s_ISfs}, 1 << 22});
    runRealInt(RealIntCase<T16s, FftSpec_R_16s>{"R_16s", FFT_API(R_16s),
        {veksFFTFwd_RToPack_16s_Sfs, veksFFTFwd_RToPerm_16s_Sfs, veksFFTFwd_RToCCS_16s_Sfs},
        {veksFFTFwd_RToPack_16s_ISfs, veksFFTFwd_RToPerm_16s_ISfs, veksFFTFwd_RToCCS_16s_ISfs},
        {veksFFTInv_PackToR_16s_Sfs, veksFFTInv_PermToR_16s_Sfs, veksFFTInv_CCSToR_16s_Sfs},
        {veksFFTInv_PackToR_16s_ISfs, veksFFTInv_PermToR_16s_ISfs, veksFFTInv_CCSToR_16s_ISfs}, 32767});
}

// 16-bit real input to a 32-bit CCS spectrum and back: the forward's
// rounding to integers is at most 1/2 per value, so after the scaled
// inverse the data come back within one unit.
TEST(FftInteger, Real16sTo32sAndBack) {
    IntCompare cmp{INT32_MIN, INT32_MAX};
    for (int order : kOrders) {
        const size_t N = size_t(1) << order, nc = N / 2 + 1;
        vt::Rng rng(4300 + order);
        const std::vector<T16s> x = rng.vec<T16s>(N);
        const std::vector<long double> want = ref::pack(ref::dft(std::vector<CLD>(x.begin(), x.end()), false), Layout::CCS);
        ft::Built<FftSpec_R_16s32s> b(FFT_API(R_16s32s), order, VEK_FFT_SCALE_INV);
        vt::Guarded<T32sc> s(nc, 1);
        ASSERT_EQ(veksFFTFwd_RToCCS_16s32s_Sfs(x.data(), s.data(), b.spec, 0, b.work), VEK_OK);
        EXPECT_TRUE(s.intact());
        for (size_t k = 0; k < nc; ++k)
            ASSERT_TRUE(cmp.check(s[k].re, want[2 * k], 0) && cmp.check(s[k].im, want[2 * k + 1], 0)) << order << " " << k;
        vt::Guarded<T16s> back(N, 1);
        ASSERT_EQ(veksFFTInv_CCSToR_32s16s_Sfs(s.data(), back.data(), b.spec, 0, nullptr), VEK_OK);
        EXPECT_TRUE(back.intact());
        for (size_t i = 0; i < N; ++i) ASSERT_LE(abs(back[i] - x[i]), 1) << order << " " << i;
    }
}

// Two-level orders through the wrapped double specs: a round trip (forward
// unscaled, inverse scaled by 1/N) returns the data within one unit.
TEST(FftInteger, TwoLevelRoundTrips) {
    const size_t N = size_t(1) << 18;
    vt::Rng rng(4400);
    FftSpec_C_32sc* cs = nullptr;
    ASSERT_EQ(veksFFTInitAlloc_C_32sc(&cs, 18, VEK_FFT_SCALE_INV, 0), VEK_OK);
    std::vector<T32sc> x(N), y(N), z(N);
    for (auto& v : x) v = {static_cast<T32s>(rng.range(-1000, 1000)), static_cast<T32s>(rng.range(-1000, 1000))};
    ASSERT_EQ(veksFFTFwd_CToC_32sc_Sfs(x.data(), y.data(), cs, 0, nullptr), VEK_OK);
    ASSERT_EQ(veksFFTInv_CToC_32sc_Sfs(y.data(), z.data(), cs, 0, nullptr), VEK_OK);
    for (size_t i = 0; i < N; ++i) ASSERT_TRUE(abs(z[i].re - x[i].re) <= 1 && abs(z[i].im - x[i].im) <= 1) << i;
    EXPECT_EQ(veksFFTFree_C_32sc(cs), VEK_OK);

    FftSpec_R_32s* rs = nullptr;
    ASSERT_EQ(veksFFTInitAlloc_R_32s(&rs, 19, VEK_FFT_SCALE_INV, 0), VEK_OK);
    std::vector<T32s> r = ints<T32s>(rng, 2 * N, 1000), io(r);
    io.resize(2 * N + 2);
    ASSERT_EQ(veksFFTFwd_RToCCS_32s_ISfs(io.data(), rs, 0, nullptr), VEK_OK);
    ASSERT_EQ(veksFFTInv_CCSToR_32s_ISfs(io.data(), rs, 0, nullptr), VEK_OK);
    for (size_t i = 0; i < 2 * N; ++i) ASSERT_LE(abs(io[i] - r[i]), 1) << i;
    EXPECT_EQ(veksFFTFree_R_32s(rs), VEK_OK);
}

}  // namespace

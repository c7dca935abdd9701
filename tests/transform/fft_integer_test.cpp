// Integer transforms (32-bit through double precision, 16-bit through
// single precision) against the long double DFT scaled by the flag and by
// 2^-scaleFactor, rounded to nearest even and saturated.
#include <functional>

#include "fft_harness.h"

namespace {

using ft::CLD;
using ref::Layout;

// The expected integer of an exact value v: v * 2^-sf, nearest even, saturated.
long double expectInt(long double v, int sf, long double lo, long double hi) {
    const long double s = ldexpl(v, -sf);
    long double r = nearbyintl(s);  // default rounding: to nearest, ties to even
    return fminl(fmaxl(r, lo), hi);
}

// Compares integer outputs with the model. The transform computes in
// floating point, so a value within its rounding error of a half-way point
// may round either way: a difference of one is allowed, but at most 2% of
// the values may differ at all.
struct IntCompare {
    int64_t differing = 0, total = 0;
    void check(int64_t got, long double want, const std::string& where) {
        ++total;
        if (static_cast<long double>(got) != want) ++differing;
        ASSERT_LE(fabsl(static_cast<long double>(got) - want), 1.0L) << where;
    }
    ~IntCompare() { EXPECT_LE(differing * 50, total) << differing << " of " << total << " differ"; }
};

std::vector<int> orders() { return {0, 1, 2, 3, 4, 5, 6, 7, 8, 10}; }

int scaleFor(int order, int variant, bool sixteen) {
    // 0: results mostly in range; 1: heavy downscaling; 2: negative (saturates)
    if (variant == 2) return -3;
    if (variant == 1) return order + (sixteen ? 4 : 2);
    return sixteen ? order / 2 + 1 : 0;
}

template <class TI, class TC, class Spec>
void complexInterleaved(const char* name, ft::SpecApi<Spec> api, VekResult (*fwd)(const TC*, TC*, const Spec*, int, T8u*),
                        VekResult (*fwdI)(TC*, const Spec*, int, T8u*), VekResult (*inv)(const TC*, TC*, const Spec*, int, T8u*),
                        VekResult (*invI)(TC*, const Spec*, int, T8u*), long double amp) {
    const long double lo = std::numeric_limits<TI>::min(), hi = std::numeric_limits<TI>::max();
    IntCompare cmp;
    for (int order : orders()) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(4000 + order);
        std::vector<TC> x(N);
        std::vector<CLD> xc(N);
        for (size_t i = 0; i < N; ++i) {
            x[i] = {static_cast<TI>(rng.range(-amp, amp)), static_cast<TI>(rng.range(-amp, amp))};
            xc[i] = CLD(x[i].re, x[i].im);
        }
        for (int dir = 0; dir < 2; ++dir) {
            const std::vector<CLD> X = ref::dft(xc, dir == 1);
            const int flag = ft::kFlags[(order + dir) % 4];
            ft::Built<Spec> b(api, order, flag);
            const long double f = ft::factor(flag, dir == 1, order);
            for (int variant = 0; variant < 3; ++variant) {
                const int sf = scaleFor(order, variant, sizeof(TI) == 2);
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    vt::Guarded<TC> s(x, inPlace), d(N, 1);
                    T8u* w = variant == 1 ? nullptr : b.work;
                    const VekResult r = inPlace ? (dir ? invI : fwdI)(s.data(), b.spec, sf, w)
                                                : (dir ? inv : fwd)(s.data(), d.data(), b.spec, sf, w);
                    ASSERT_EQ(r, VEK_OK) << name;
                    const TC* o = inPlace ? s.data() : d.data();
                    EXPECT_TRUE(d.intact());
                    for (size_t k = 0; k < N; ++k) {
                        const std::string at = std::string(name) + " order " + std::to_string(order) + " dir " +
                                               std::to_string(dir) + " sf " + std::to_string(sf) + " k " + std::to_string(k);
                        cmp.check(o[k].re, expectInt(X[k].real() * f, sf, lo, hi), at);
                        cmp.check(o[k].im, expectInt(X[k].imag() * f, sf, lo, hi), at);
                    }
                }
            }
        }
    }
}

TEST(FftInteger, Complex32sc) {
    complexInterleaved<T32s, T32sc, FftSpec_C_32sc>(
        "C_32sc",
        {veksFFTGetSize_C_32sc, veksFFTInit_C_32sc, veksFFTInitAlloc_C_32sc, veksFFTFree_C_32sc, veksFFTGetBufSize_C_32sc},
        veksFFTFwd_CToC_32sc_Sfs, veksFFTFwd_CToC_32sc_ISfs, veksFFTInv_CToC_32sc_Sfs, veksFFTInv_CToC_32sc_ISfs,
        1 << 20);
}
TEST(FftInteger, Complex16sc) {
    complexInterleaved<T16s, T16sc, FftSpec_C_16sc>(
        "C_16sc",
        {veksFFTGetSize_C_16sc, veksFFTInit_C_16sc, veksFFTInitAlloc_C_16sc, veksFFTFree_C_16sc, veksFFTGetBufSize_C_16sc},
        veksFFTFwd_CToC_16sc_Sfs, veksFFTFwd_CToC_16sc_ISfs, veksFFTInv_CToC_16sc_Sfs, veksFFTInv_CToC_16sc_ISfs,
        32767);
}

template <class TI, class Spec>
void complexSplit(const char* name, ft::SpecApi<Spec> api,
                  VekResult (*fwd)(const TI*, const TI*, TI*, TI*, const Spec*, int, T8u*),
                  VekResult (*inv)(const TI*, const TI*, TI*, TI*, const Spec*, int, T8u*),
                  VekResult (*invI)(TI*, TI*, const Spec*, int, T8u*), long double amp) {
    const long double lo = std::numeric_limits<TI>::min(), hi = std::numeric_limits<TI>::max();
    IntCompare cmp;
    for (int order : orders()) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(4100 + order);
        std::vector<TI> re(N), im(N);
        std::vector<CLD> xc(N);
        for (size_t i = 0; i < N; ++i) {
            re[i] = static_cast<TI>(rng.range(-amp, amp));
            im[i] = static_cast<TI>(rng.range(-amp, amp));
            xc[i] = CLD(re[i], im[i]);
        }
        for (int dir = 0; dir < 2; ++dir) {
            const std::vector<CLD> X = ref::dft(xc, dir == 1);
            const int flag = ft::kFlags[(order + 2 * dir) % 4];
            ft::Built<Spec> b(api, order, flag);
            const long double f = ft::factor(flag, dir == 1, order);
            const int sf = scaleFor(order, order % 3, sizeof(TI) == 2);
            std::vector<TI> ore(N), oim(N), ire(re), iim(im);
            ASSERT_EQ((dir ? inv : fwd)(re.data(), im.data(), ore.data(), oim.data(), b.spec, sf, b.work), VEK_OK);
            if (dir) {
                ASSERT_EQ(invI(ire.data(), iim.data(), b.spec, sf, nullptr), VEK_OK);
                EXPECT_TRUE(vt::sameElements(ire.data(), ore.data(), N));
                EXPECT_TRUE(vt::sameElements(iim.data(), oim.data(), N));
            }
            for (size_t k = 0; k < N; ++k) {
                const std::string at = std::string(name) + " order " + std::to_string(order) + " k " + std::to_string(k);
                cmp.check(ore[k], expectInt(X[k].real() * f, sf, lo, hi), at);
                cmp.check(oim[k], expectInt(X[k].imag() * f, sf, lo, hi), at);
            }
        }
    }
}

TEST(FftInteger, Split32sAnd16s) {
    complexSplit<T32s, FftSpec_C_32s>(
        "C_32s", {veksFFTGetSize_C_32s, veksFFTInit_C_32s, veksFFTInitAlloc_C_32s, veksFFTFree_C_32s, veksFFTGetBufSize_C_32s},
        veksFFTFwd_CToC_32s_Sfs, veksFFTInv_CToC_32s_Sfs, veksFFTInv_CToC_32s_ISfs, 1 << 24);
    complexSplit<T16s, FftSpec_C_16s>(
        "C_16s", {veksFFTGetSize_C_16s, veksFFTInit_C_16s, veksFFTInitAlloc_C_16s, veksFFTFree_C_16s, veksFFTGetBufSize_C_16s},
        veksFFTFwd_CToC_16s_Sfs, veksFFTInv_CToC_16s_Sfs, veksFFTInv_CToC_16s_ISfs, 32767);
}

template <class TI, class Spec>
struct RealIntCase {
    const char* name;
    ft::SpecApi<Spec> api;
    VekResult (*fwd[3])(const TI*, TI*, const Spec*, int, T8u*);
    VekResult (*fwdI[3])(TI*, const Spec*, int, T8u*);
    VekResult (*inv[3])(const TI*, TI*, const Spec*, int, T8u*);
    VekResult (*invI[3])(TI*, const Spec*, int, T8u*);
    long double amp;
};

template <class TI, class Spec>
void runRealInt(const RealIntCase<TI, Spec>& c) {
    const long double lo = std::numeric_limits<TI>::min(), hi = std::numeric_limits<TI>::max();
    const Layout layouts[] = {Layout::Pack, Layout::Perm, Layout::CCS};
    IntCompare cmp;
    for (int order : orders()) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(4200 + order);
        std::vector<TI> x(N);
        std::vector<CLD> xc(N);
        for (size_t i = 0; i < N; ++i) {
            x[i] = static_cast<TI>(rng.range(-c.amp, c.amp));
            xc[i] = x[i];
        }
        const std::vector<CLD> X = ref::dft(xc, false);
        const int flag = ft::kFlags[order % 4];
        ft::Built<Spec> b(c.api, order, flag);
        const long double ff = ft::factor(flag, false, order), fi = ft::factor(flag, true, order);
        for (int li = 0; li < 3; ++li) {
            const std::vector<long double> want = ref::pack(X, layouts[li]);
            const size_t len = want.size();
            const int sf = scaleFor(order, (order + li) % 3, sizeof(TI) == 2);
            std::vector<TI> io(x);
            io.resize(len);
            vt::Guarded<TI> d(len, 1);
            const bool inPlace = (order + li) % 2;
            ASSERT_EQ(inPlace ? c.fwdI[li](io.data(), b.spec, sf, nullptr) : c.fwd[li](x.data(), d.data(), b.spec, sf, b.work),
                      VEK_OK);
            const TI* o = inPlace ? io.data() : d.data();
            EXPECT_TRUE(d.intact());
            for (size_t k = 0; k < len; ++k)
                cmp.check(o[k], expectInt(want[k] * ff, sf, lo, hi),
                          std::string(c.name) + " fwd order " + std::to_string(order) + " layout " + std::to_string(li) +
                              " k " + std::to_string(k));
            // inverse of an integer spectrum: the exact inverse of the full
            // spectrum it stands for
            std::vector<TI> spec(len);
            for (size_t k = 0; k < len; ++k) spec[k] = static_cast<TI>(rng.range(-c.amp, c.amp));
            if (layouts[li] == Layout::CCS) {
                spec[1] = 0;
                if (N > 1) spec[len - 1] = 0;
            }
            const std::vector<CLD> full = ref::unpack(std::vector<long double>(spec.begin(), spec.end()), N, layouts[li]);
            const std::vector<CLD> y = ref::dft(full, true);
            const int sfi = scaleFor(order, (order + li + 1) % 3, sizeof(TI) == 2);
            std::vector<TI> out(len);
            ASSERT_EQ(inPlace ? c.inv[li](spec.data(), out.data(), b.spec, sfi, nullptr)
                              : (memcpy(out.data(), spec.data(), len * sizeof(TI)), c.invI[li](out.data(), b.spec, sfi, b.work)),
                      VEK_OK);
            for (size_t k = 0; k < N; ++k)
                cmp.check(out[k], expectInt(y[k].real() * fi, sfi, lo, hi),
                          std::string(c.name) + " inv order " + std::to_string(order) + " layout " + std::to_string(li) +
                              " k " + std::to_string(k));
        }
    }
}

TEST(FftInteger, Real32sAnd16s) {
    const RealIntCase<T32s, FftSpec_R_32s> r32 = {
        "R_32s",
        {veksFFTGetSize_R_32s, veksFFTInit_R_32s, veksFFTInitAlloc_R_32s, veksFFTFree_R_32s, veksFFTGetBufSize_R_32s},
        {veksFFTFwd_RToPack_32s_Sfs, veksFFTFwd_RToPerm_32s_Sfs, veksFFTFwd_RToCCS_32s_Sfs},
        {veksFFTFwd_RToPack_32s_ISfs, veksFFTFwd_RToPerm_32s_ISfs, veksFFTFwd_RToCCS_32s_ISfs},
        {veksFFTInv_PackToR_32s_Sfs, veksFFTInv_PermToR_32s_Sfs, veksFFTInv_CCSToR_32s_Sfs},
        {veksFFTInv_PackToR_32s_ISfs, veksFFTInv_PermToR_32s_ISfs, veksFFTInv_CCSToR_32s_ISfs},
        1 << 22};
    const RealIntCase<T16s, FftSpec_R_16s> r16 = {
        "R_16s",
        {veksFFTGetSize_R_16s, veksFFTInit_R_16s, veksFFTInitAlloc_R_16s, veksFFTFree_R_16s, veksFFTGetBufSize_R_16s},
        {veksFFTFwd_RToPack_16s_Sfs, veksFFTFwd_RToPerm_16s_Sfs, veksFFTFwd_RToCCS_16s_Sfs},
        {veksFFTFwd_RToPack_16s_ISfs, veksFFTFwd_RToPerm_16s_ISfs, veksFFTFwd_RToCCS_16s_ISfs},
        {veksFFTInv_PackToR_16s_Sfs, veksFFTInv_PermToR_16s_Sfs, veksFFTInv_CCSToR_16s_Sfs},
        {veksFFTInv_PackToR_16s_ISfs, veksFFTInv_PermToR_16s_ISfs, veksFFTInv_CCSToR_16s_ISfs},
        32767};
    runRealInt(r32);
    runRealInt(r16);
}

// 16-bit real input to a 32-bit CCS spectrum and back.
TEST(FftInteger, Real16sTo32sAndBack) {
    const ft::SpecApi<FftSpec_R_16s32s> api = {veksFFTGetSize_R_16s32s, veksFFTInit_R_16s32s, veksFFTInitAlloc_R_16s32s,
                                               veksFFTFree_R_16s32s, veksFFTGetBufSize_R_16s32s};
    IntCompare cmp;
    for (int order : orders()) {
        const size_t N = size_t(1) << order;
        vt::Rng rng(4300 + order);
        std::vector<T16s> x = rng.vec<T16s>(N);
        std::vector<CLD> xc(x.begin(), x.end());
        const std::vector<CLD> X = ref::dft(xc, false);
        ft::Built<FftSpec_R_16s32s> b(api, order, VEK_FFT_SCALE_INV);
        const size_t nc = N / 2 + 1;
        vt::Guarded<T32sc> s(nc, 1);
        ASSERT_EQ(veksFFTFwd_RToCCS_16s32s_Sfs(x.data(), s.data(), b.spec, 0, b.work), VEK_OK);
        EXPECT_TRUE(s.intact());
        for (size_t k = 0; k < nc; ++k) {
            cmp.check(s[k].re, expectInt(X[k].real(), 0, INT32_MIN, INT32_MAX), "fwd re");
            cmp.check(s[k].im, expectInt(k == 0 || 2 * k == N ? 0.0L : X[k].imag(), 0, INT32_MIN, INT32_MAX), "fwd im");
        }
        std::vector<T16s> back(N);
        ASSERT_EQ(veksFFTInv_CCSToR_32s16s_Sfs(s.data(), back.data(), b.spec, 0, nullptr), VEK_OK);
        // the forward's rounding to integers is at most 1/2 per value; after
        // the scaled inverse the data come back within one unit
        for (size_t i = 0; i < N; ++i) ASSERT_LE(abs(back[i] - x[i]), 1) << order << " " << i;
    }
}

}  // namespace

namespace {

// Two-level orders through the wrapped double specs: a round trip (forward
// unscaled, inverse scaled by 1/N) returns the data within one unit, the
// forward's rounding to integers being at most 1/2 per value.
TEST(FftInteger, TwoLevelRoundTrips) {
    const int order = 18;
    const size_t N = size_t(1) << order;
    vt::Rng rng(4400);
    {
        FftSpec_C_32sc* spec = nullptr;
        ASSERT_EQ(veksFFTInitAlloc_C_32sc(&spec, order, VEK_FFT_SCALE_INV, 0), VEK_OK);
        std::vector<T32sc> x(N), y(N), z(N);
        for (auto& v : x) v = {static_cast<T32s>(rng.range(-1000, 1000)), static_cast<T32s>(rng.range(-1000, 1000))};
        ASSERT_EQ(veksFFTFwd_CToC_32sc_Sfs(x.data(), y.data(), spec, 0, nullptr), VEK_OK);
        ASSERT_EQ(veksFFTInv_CToC_32sc_Sfs(y.data(), z.data(), spec, 0, nullptr), VEK_OK);
        for (size_t i = 0; i < N; ++i) {
            ASSERT_LE(abs(z[i].re - x[i].re), 1) << i;
            ASSERT_LE(abs(z[i].im - x[i].im), 1) << i;
        }
        EXPECT_EQ(veksFFTFree_C_32sc(spec), VEK_OK);
    }
    {
        FftSpec_R_32s* spec = nullptr;
        ASSERT_EQ(veksFFTInitAlloc_R_32s(&spec, order + 1, VEK_FFT_SCALE_INV, 0), VEK_OK);
        const size_t M = 2 * N;
        std::vector<T32s> x(M), y(M + 2);
        for (auto& v : x) v = static_cast<T32s>(rng.range(-1000, 1000));
        y.assign(x.begin(), x.end());
        y.resize(M + 2);
        ASSERT_EQ(veksFFTFwd_RToCCS_32s_ISfs(y.data(), spec, 0, nullptr), VEK_OK);
        ASSERT_EQ(veksFFTInv_CCSToR_32s_ISfs(y.data(), spec, 0, nullptr), VEK_OK);
        for (size_t i = 0; i < M; ++i) ASSERT_LE(abs(y[i] - x[i]), 1) << i;
        EXPECT_EQ(veksFFTFree_R_32s(spec), VEK_OK);
    }
}

}  // namespace

// Conj, ConjFlip, Real, Imag, CplxToReal, RealToCplx and Flip move values
// bit for bit (16-bit conjugates saturate): compared exactly with index
// models over every tail length, misaligned starts, in place and out of
// place, with NaN payloads, negative zeros and range ends in every lane.
#include <string.h>

#include "support/support.h"

namespace {

// Random complex data with edge values sprinkled over lane positions.
template <class C, class B>
std::vector<C> cplxData(vt::Rng& rng, size_t n) {
    std::vector<C> v(n);
    const std::vector<B> edges = vt::edgeValues<B>();
    for (size_t i = 0; i < n; ++i) {
        v[i].re = (i % 5 == 2) ? edges[(i / 5) % edges.size()] : rng.next<B>(-1e3, 1e3);
        v[i].im = (i % 7 == 3) ? edges[(i / 7 + 1) % edges.size()] : rng.next<B>(-1e3, 1e3);
    }
    return v;
}

template <class B>
B negated(B v) {
    if constexpr (std::is_floating_point<B>::value) {
        return -v;
    } else {
        return v == std::numeric_limits<B>::min() ? std::numeric_limits<B>::max() : static_cast<B>(-v);
    }
}

template <class C>
bool sameBits(const C* a, const C* b, size_t n) {
    return n == 0 || memcmp(a, b, n * sizeof(C)) == 0;
}

template <class C, class B>
struct ConjSet {
    const char* name;
    VekResult (*conj)(const C*, C*, int);
    VekResult (*conjI)(C*, int);
    VekResult (*conjFlip)(const C*, C*, int);
    VekResult (*real)(const C*, B*, int);
    VekResult (*imag)(const C*, B*, int);
    VekResult (*toReal)(const C*, B*, B*, int);
    VekResult (*fromReal)(const B*, const B*, C*, int);
};

template <class C, class B>
void checkParts(const ConjSet<C, B>& f, uint64_t seed) {
    SCOPED_TRACE(f.name);
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        for (int ms : vt::misalignments()) {
            const std::vector<C> data = cplxData<C, B>(rng, n);
            std::vector<C> conj(n), flip(n);
            std::vector<B> re(n), im(n);
            for (size_t i = 0; i < n; ++i) {
                conj[i] = {data[i].re, negated(data[i].im)};
                flip[i] = {data[n - 1 - i].re, negated(data[n - 1 - i].im)};
                re[i] = data[i].re;
                im[i] = data[i].im;
            }
            vt::Guarded<C> src(data, ms);
            vt::Guarded<C> dst(n, (ms + 1) % 4);
            ASSERT_EQ(f.conj(src.data(), dst.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(dst.data(), conj.data(), n)) << "conj len=" << len;
            ASSERT_TRUE(dst.intact());
            vt::Guarded<C> inPlace(data, ms);
            ASSERT_EQ(f.conjI(inPlace.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(inPlace.data(), conj.data(), n)) << "conj_I len=" << len;
            ASSERT_TRUE(inPlace.intact());
            vt::Guarded<C> fl(n, ms);
            ASSERT_EQ(f.conjFlip(src.data(), fl.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(fl.data(), flip.data(), n)) << "conjFlip len=" << len;
            ASSERT_TRUE(fl.intact());

            vt::Guarded<B> r(n, ms), i(n, 3 - ms), r2(n, 1), i2(n, 2);
            ASSERT_EQ(f.real(src.data(), r.data(), len), VEK_OK);
            ASSERT_EQ(f.imag(src.data(), i.data(), len), VEK_OK);
            ASSERT_EQ(f.toReal(src.data(), r2.data(), i2.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(r.data(), re.data(), n) && sameBits(r2.data(), re.data(), n)) << len;
            ASSERT_TRUE(sameBits(i.data(), im.data(), n) && sameBits(i2.data(), im.data(), n)) << len;
            ASSERT_TRUE(r.intact() && i.intact() && r2.intact() && i2.intact() && src.intact());

            vt::Guarded<C> back(n, ms);
            ASSERT_EQ(f.fromReal(r.data(), i.data(), back.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(back.data(), data.data(), n)) << "fromReal len=" << len;
            ASSERT_TRUE(back.intact());
        }
    }
}

TEST(ComplexParts, EveryType) {
    checkParts<T16sc, T16s>({"16sc", veksConj_16sc, veksConj_16sc_I, veksConjFlip_16sc, veksReal_16sc,
                             veksImag_16sc, veksCplxToReal_16sc, veksRealToCplx_16s},
                            31);
    checkParts<T32fc, T32f>({"32fc", veksConj_32fc, veksConj_32fc_I, veksConjFlip_32fc, veksReal_32fc,
                             veksImag_32fc, veksCplxToReal_32fc, veksRealToCplx_32f},
                            32);
    checkParts<T64fc, T64f>({"64fc", veksConj_64fc, veksConj_64fc_I, veksConjFlip_64fc, veksReal_64fc,
                             veksImag_64fc, veksCplxToReal_64fc, veksRealToCplx_64f},
                            33);
}

TEST(ComplexParts, NamedCases) {
    const T32fc src[2] = {{1, 2}, {3, 4}};
    T32fc out[2];
    ASSERT_EQ(veksConjFlip_32fc(src, out, 2), VEK_OK);
    EXPECT_TRUE(out[0].re == 3 && out[0].im == -4 && out[1].re == 1 && out[1].im == -2);
    // A 16-bit conjugate of the most negative part saturates.
    T16sc s16[5] = {{-32768, -32768}, {1, 32767}, {0, 0}, {5, -1}, {-1, -32768}};
    ASSERT_EQ(veksConj_16sc_I(s16, 5), VEK_OK);
    EXPECT_EQ(s16[0].re, -32768);
    EXPECT_EQ(s16[0].im, 32767);
    EXPECT_EQ(s16[1].im, -32767);
    EXPECT_EQ(s16[4].im, 32767);
}

TEST(ComplexParts, RealToCplxNullSourceRule) {
    const T32f re[3] = {1, -0.0f, 3}, im[3] = {4, 5, -6};
    const struct { const T32f* re; const T32f* im; bool dst; int len; VekResult want; } cases[] = {
        {nullptr, im, true, 3, VEK_OK},       {re, nullptr, true, 3, VEK_OK},
        {nullptr, nullptr, true, 3, VEK_ERR_NULL_POINTER}, {re, im, false, 0, VEK_ERR_NULL_POINTER},
        {nullptr, nullptr, true, 0, VEK_ERR_SIZE},         {re, im, true, -1, VEK_ERR_SIZE},
    };
    for (const auto& c : cases) {
        vt::Guarded<T32fc> dst(3);
        dst.freeze();
        const VekResult st = veksRealToCplx_32f(c.re, c.im, c.dst ? dst.data() : nullptr, c.len);
        EXPECT_EQ(st, c.want);
        if (st != VEK_OK) {
            EXPECT_TRUE(dst.intact());
            continue;
        }
        for (int i = 0; i < 3; ++i) {
            const T32f wantRe = c.re ? re[i] : 0.0f, wantIm = c.im ? im[i] : 0.0f;
            EXPECT_EQ(memcmp(&dst[static_cast<size_t>(i)].re, &wantRe, 4), 0) << i;
            EXPECT_EQ(memcmp(&dst[static_cast<size_t>(i)].im, &wantIm, 4), 0) << i;
        }
    }
    const T16s r16[2] = {-32768, 7};
    T16sc d16[2];
    ASSERT_EQ(veksRealToCplx_16s(r16, nullptr, d16, 2), VEK_OK);
    EXPECT_TRUE(d16[0].re == -32768 && d16[0].im == 0 && d16[1].re == 7 && d16[1].im == 0);
}

// Flip: reversed order, out of place, in place, and out of place with the
// source as destination.
template <class T>
void checkFlip(const char* name, VekResult (*flip)(const T*, T*, int), VekResult (*flipI)(T*, int),
               uint64_t seed) {
    SCOPED_TRACE(name);
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        std::vector<unsigned char> bytes = rng.vec<unsigned char>(n * sizeof(T));
        std::vector<T> data(n), want(n);
        memcpy(data.data(), bytes.data(), bytes.size());
        for (size_t i = 0; i < n; ++i) want[i] = data[n - 1 - i];
        for (int ms : vt::misalignments()) {
            vt::Guarded<T> src(data, ms), dst(n, 2 - ms % 3);
            ASSERT_EQ(flip(src.data(), dst.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(dst.data(), want.data(), n)) << len;
            ASSERT_TRUE(dst.intact() && src.intact());
            vt::Guarded<T> ip(data, ms), same(data, ms);
            ASSERT_EQ(flipI(ip.data(), len), VEK_OK);
            ASSERT_EQ(flip(same.data(), same.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(ip.data(), want.data(), n) && sameBits(same.data(), want.data(), n)) << len;
            ASSERT_TRUE(ip.intact() && same.intact());
        }
    }
}

TEST(Flip, EveryWidth) {
    checkFlip<T8u>("8u", veksFlip_8u, veksFlip_8u_I, 41);
    checkFlip<T16u>("16u", veksFlip_16u, veksFlip_16u_I, 42);
    checkFlip<T32f>("32f", veksFlip_32f, veksFlip_32f_I, 43);
    checkFlip<T64f>("64f", veksFlip_64f, veksFlip_64f_I, 44);
    checkFlip<T32fc>("32fc", veksFlip_32fc, veksFlip_32fc_I, 45);
    checkFlip<T64fc>("64fc", veksFlip_64fc, veksFlip_64fc_I, 46);
    const T32fc two[2] = {{1, 2}, {3, 4}};
    T32fc out[2];
    ASSERT_EQ(veksFlip_32fc(two, out, 2), VEK_OK);
    EXPECT_TRUE(out[0].re == 3 && out[0].im == 4 && out[1].re == 1 && out[1].im == 2);
}

}  // namespace

// Conj, ConjFlip, Real, Imag, CplxToReal, RealToCplx and Flip move values
// bit for bit (16-bit conjugates saturate): compared exactly with index
// models over every tail length, misaligned starts, in place and out of
// place, with NaN payloads, negative zeros and range ends in every lane.
#include <string.h>

#include "support/support.h"

namespace {

template <class T>
bool sameBits(const T* a, const std::vector<T>& b) {
    return b.empty() || memcmp(a, b.data(), b.size() * sizeof(T)) == 0;
}

template <class Out, class In, class F>
void outOfPlace(F f, const std::vector<In>& in, const std::vector<Out>& want, int ms) {
    vt::Guarded<In> src(in, ms);
    vt::Guarded<Out> dst(want.size(), (ms + 1) % 4);
    ASSERT_EQ(f(src.data(), dst.data(), static_cast<int>(in.size())), VEK_OK);
    ASSERT_TRUE(sameBits(dst.data(), want) && dst.intact() && src.intact()) << "len=" << in.size();
}

template <class T, class F>
void inPlace(F f, const std::vector<T>& in, const std::vector<T>& want, int ms) {
    vt::Guarded<T> buf(in, ms);
    ASSERT_EQ(f(buf.data(), static_cast<int>(in.size())), VEK_OK);
    ASSERT_TRUE(sameBits(buf.data(), want) && buf.intact()) << "len=" << in.size();
}

template <class B>
B negated(B v) {
    if constexpr (std::is_floating_point<B>::value) return -v;
    else return v == std::numeric_limits<B>::min() ? std::numeric_limits<B>::max() : static_cast<B>(-v);
}

// Conj, Conj_I, ConjFlip, Real, Imag, CplxToReal and RealToCplx of one type.
template <class C, class B>
void checkParts(VekResult (*conj)(const C*, C*, int), VekResult (*conjI)(C*, int),
                VekResult (*conjFlip)(const C*, C*, int), VekResult (*real)(const C*, B*, int),
                VekResult (*imag)(const C*, B*, int), VekResult (*toReal)(const C*, B*, B*, int),
                VekResult (*fromReal)(const B*, const B*, C*, int), uint64_t seed) {
    vt::Rng rng(seed);
    const std::vector<B> edges = vt::edgeValues<B>();
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        for (int ms : vt::misalignments()) {
            std::vector<C> data(n), wantConj(n), wantFlip(n);
            std::vector<B> re(n), im(n);
            for (size_t i = 0; i < n; ++i) {
                re[i] = data[i].re = (i % 5 == 2) ? edges[(i / 5) % edges.size()] : rng.next<B>(-1e3, 1e3);
                im[i] = data[i].im = (i % 7 == 3) ? edges[(i / 7 + 1) % edges.size()] : rng.next<B>(-1e3, 1e3);
            }
            for (size_t i = 0; i < n; ++i) {
                wantConj[i] = {data[i].re, negated(data[i].im)};
                wantFlip[n - 1 - i] = wantConj[i];
            }
            outOfPlace(conj, data, wantConj, ms);
            inPlace(conjI, data, wantConj, ms);
            outOfPlace(conjFlip, data, wantFlip, ms);
            outOfPlace(real, data, re, ms);
            outOfPlace(imag, data, im, ms);
            vt::Guarded<C> src(data, ms), back(n, 2);
            vt::Guarded<B> r(n, 1), i(n, 3 - ms);
            ASSERT_EQ(toReal(src.data(), r.data(), i.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(r.data(), re) && sameBits(i.data(), im)) << len;
            ASSERT_EQ(fromReal(r.data(), i.data(), back.data(), len), VEK_OK);
            ASSERT_TRUE(sameBits(back.data(), data)) << len;
            ASSERT_TRUE(r.intact() && i.intact() && back.intact() && src.intact());
        }
    }
}

TEST(ComplexParts, EveryType) {
    checkParts(veksConj_16sc, veksConj_16sc_I, veksConjFlip_16sc, veksReal_16sc, veksImag_16sc, veksCplxToReal_16sc,
               veksRealToCplx_16s, 31);
    checkParts(veksConj_32fc, veksConj_32fc_I, veksConjFlip_32fc, veksReal_32fc, veksImag_32fc, veksCplxToReal_32fc,
               veksRealToCplx_32f, 32);
    checkParts(veksConj_64fc, veksConj_64fc_I, veksConjFlip_64fc, veksReal_64fc, veksImag_64fc, veksCplxToReal_64fc,
               veksRealToCplx_64f, 33);
}

// RealToCplx: either source may be missing (its parts read as +0), not both.
template <class B, class C>
void checkRealToCplxNulls(VekResult (*f)(const B*, const B*, C*, int)) {
    const B re[3] = {1, B(-0.0), 3}, im[3] = {4, 5, std::numeric_limits<B>::lowest()};
    const struct { const B* re; const B* im; bool dst; int len; VekResult want;
    } cases[] = {
        {nullptr, im, true, 3, VEK_OK},
        {re, nullptr, true, 3, VEK_OK},
        {nullptr, nullptr, true, 3, VEK_ERR_NULL_POINTER},
        {re, im, false, 0, VEK_ERR_NULL_POINTER},
        {nullptr, nullptr, true, 0, VEK_ERR_SIZE},
        {re, im, true, -1, VEK_ERR_SIZE},
    };
    for (const auto& c : cases) {
        vt::Guarded<C> dst(3);
        dst.freeze();
        ASSERT_EQ(f(c.re, c.im, c.dst ? dst.data() : nullptr, c.len), c.want);
        std::vector<C> want(3);
        for (int i = 0; i < 3; ++i) want[i] = {c.re ? re[i] : B(0), c.im ? im[i] : B(0)};
        EXPECT_TRUE(c.want == VEK_OK ? sameBits(dst.data(), want) : dst.intact());
    }
}

TEST(ComplexParts, RealToCplxNullSourceRule) {
    checkRealToCplxNulls(veksRealToCplx_16s);
    checkRealToCplxNulls(veksRealToCplx_32f);
    checkRealToCplxNulls(veksRealToCplx_64f);
}

// Flip: out of place, in place, and out of place with the source as destination.
template <class T>
void checkFlip(VekResult (*flip)(const T*, T*, int), VekResult (*flipI)(T*, int), uint64_t seed) {
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        const std::vector<unsigned char> bytes = rng.vec<unsigned char>(n * sizeof(T));
        std::vector<T> data(n), want(n);
        memcpy(data.data(), bytes.data(), bytes.size());  // every bit pattern
        for (size_t i = 0; i < n; ++i) want[i] = data[n - 1 - i];
        for (int ms : vt::misalignments()) {
            outOfPlace(flip, data, want, ms);
            inPlace(flipI, data, want, ms);
            inPlace([flip](T* p, int l) { return flip(p, p, l); }, data, want, ms);
        }
    }
}

TEST(Flip, EveryWidth) {
    checkFlip<T8u>(veksFlip_8u, veksFlip_8u_I, 41);
    checkFlip<T16u>(veksFlip_16u, veksFlip_16u_I, 42);
    checkFlip<T32f>(veksFlip_32f, veksFlip_32f_I, 43);
    checkFlip<T64f>(veksFlip_64f, veksFlip_64f_I, 44);
    checkFlip<T32fc>(veksFlip_32fc, veksFlip_32fc_I, 45);
    checkFlip<T64fc>(veksFlip_64fc, veksFlip_64fc_I, 46);
}

}  // namespace

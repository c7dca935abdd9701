// Products and expansions of packed real spectra against models built on
// the full conjugate-symmetric spectrum (ref::unpack / ref::pack).
#include "fft_harness.h"

namespace {

using ft::CLD;
using ref::Layout;

std::vector<int> lengths() {
    std::vector<int> v;
    for (int n : vt::tailLengths())
        if (n <= 300 || n == 1000 || n == 1025) v.push_back(n);
    return v;
}

template <class T>
std::vector<long double> widen(const T* p, size_t n) {
    return std::vector<long double>(p, p + n);
}

// The product of two packed spectra through the full spectra; conj takes
// the conjugate of the second operand.
std::vector<long double> modelProduct(const std::vector<long double>& a, const std::vector<long double>& b, Layout l,
                                      bool conj) {
    const size_t N = a.size();
    const std::vector<CLD> A = ref::unpack(a, N, l), B = ref::unpack(b, N, l);
    std::vector<CLD> P(N);
    for (size_t k = 0; k < N; ++k) P[k] = A[k] * (conj ? std::conj(B[k]) : B[k]);
    return ref::pack(P, l);
}

template <class T>
struct MulRow {
    const char* name;
    Layout layout;
    VekResult (*out)(const T*, const T*, T*, int);
    VekResult (*inPlace)(const T*, T*, int);
    bool conj;
};

// The in-place forms multiply into the destination, and the conjugating
// one conjugates the destination operand: source x conj(destination).
template <class T>
void runMul(const MulRow<T>& row, long double eps) {
    for (int len : lengths()) {
        vt::Rng rng(500 + len);
        const std::vector<T> a = rng.vec<T>(len, -4, 4), b = rng.vec<T>(len, -4, 4);
        const std::vector<long double> want = modelProduct(widen(a.data(), len), widen(b.data(), len), row.layout,
                                                           row.conj);
        for (int mis : vt::misalignments()) {
            vt::Guarded<T> d(b, mis);
            if (row.out) {
                vt::Guarded<T> s1(a, mis), s2(b, (mis + 1) % 3), o(len, mis);
                s1.freeze();
                s2.freeze();
                ASSERT_EQ(row.out(s1.data(), s2.data(), o.data(), len), VEK_OK);
                EXPECT_TRUE(s1.intact() && s2.intact() && o.intact());
                for (int i = 0; i < len; ++i)
                    // two roundings of products and one of their sum
                    ASSERT_LE(fabsl(o[i] - want[i]), 3 * eps * 32) << row.name << " len " << len << " at " << i;
            }
            vt::Guarded<T> s(a, mis);
            ASSERT_EQ(row.inPlace(s.data(), d.data(), len), VEK_OK);
            EXPECT_TRUE(d.intact());
            for (int i = 0; i < len; ++i)
                ASSERT_LE(fabsl(d[i] - want[i]), 3 * eps * 32) << row.name << " I, len " << len << " at " << i;
        }
    }
}

TEST(Packed, FloatProducts) {
    const MulRow<float> rows32[] = {{"MulPack_32f", Layout::Pack, veksMulPack_32f, veksMulPack_32f_I, false},
                                    {"MulPerm_32f", Layout::Perm, veksMulPerm_32f, veksMulPerm_32f_I, false},
                                    {"MulPackConj_32f", Layout::Pack, nullptr, veksMulPackConj_32f_I, true}};
    const MulRow<double> rows64[] = {{"MulPack_64f", Layout::Pack, veksMulPack_64f, veksMulPack_64f_I, false},
                                     {"MulPerm_64f", Layout::Perm, veksMulPerm_64f, veksMulPerm_64f_I, false},
                                     {"MulPackConj_64f", Layout::Pack, nullptr, veksMulPackConj_64f_I, true}};
    for (const auto& r : rows32) runMul(r, 5.9604644775390625e-8L);
    for (const auto& r : rows64) runMul(r, 1.1102230246251565e-16L);
}

// Out-of-place products run the in-place form when the destination is a
// source, before any check.
TEST(Packed, ProductDispatchBeforeChecks) {
    float a[6] = {1, 2, 3, 4, 5, 6}, b[6] = {6, 5, 4, 3, 2, 1}, c[6];
    memcpy(c, b, sizeof c);
    ASSERT_EQ(veksMulPerm_32f(a, b, b, 6), VEK_OK);
    ASSERT_EQ(veksMulPerm_32f_I(a, c, 6), VEK_OK);
    EXPECT_TRUE(vt::sameElements(b, c, 6));
    EXPECT_EQ(veksMulPack_32f(nullptr, b, b, 6), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksMulPack_32f(b, nullptr, b, 0), VEK_ERR_NULL_POINTER);  // runs the in-place form with the null
    EXPECT_EQ(veksMulPack_32f(a, b, c, 0), VEK_ERR_SIZE);
    EXPECT_EQ(veksMulPack_16s_Sfs(nullptr, nullptr, nullptr, 5, 0), VEK_ERR_NULL_POINTER);
    T16s s[4] = {1, 2, 3, 4};
    EXPECT_EQ(veksMulPerm_16s_Sfs(s, s, s, -1, 0), VEK_ERR_SIZE);
}

// The 16-bit scale rule of the products, derived from the words: a
// positive factor is an arithmetic right shift (rounds toward minus
// infinity), a negative one saturates to 16 bits first and then shifts.
long double scaled16(long double p, int sf) {
    if (sf > 0) p = floorl(p / powl(2, sf));
    if (sf < 0) p = fminl(fmaxl(p, -32768), 32767) * powl(2, -sf);
    return fminl(fmaxl(p, -32768), 32767);
}

TEST(Packed, SixteenBitProducts) {
    struct Row {
        Layout layout;
        VekResult (*out)(const T16s*, const T16s*, T16s*, int, int);
        VekResult (*inPlace)(const T16s*, T16s*, int, int);
    };
    const Row rows[] = {{Layout::Pack, veksMulPack_16s_Sfs, veksMulPack_16s_ISfs},
                        {Layout::Perm, veksMulPerm_16s_Sfs, veksMulPerm_16s_ISfs}};
    for (const Row& r : rows) {
        for (int len : {1, 2, 3, 4, 7, 8, 33, 64}) {
            for (int sf : {-40, -3, -1, 0, 1, 5, 15, 16, 31, 40}) {
                vt::Rng rng(900 + len + sf);
                std::vector<T16s> a = rng.vec<T16s>(len), b = rng.vec<T16s>(len);
                a[0] = -32768;
                b[0] = -32768;
                const std::vector<long double> want =
                    modelProduct(widen(a.data(), len), widen(b.data(), len), r.layout, false);
                vt::Guarded<T16s> o(len, 1), d(b, 0);
                ASSERT_EQ(r.out(a.data(), b.data(), o.data(), len, sf), VEK_OK);
                ASSERT_EQ(r.inPlace(a.data(), d.data(), len, sf), VEK_OK);
                EXPECT_TRUE(o.intact() && d.intact());
                for (int i = 0; i < len; ++i) {
                    ASSERT_EQ(o[i], static_cast<T16s>(scaled16(want[i], sf))) << len << " sf " << sf << " at " << i;
                    ASSERT_EQ(d[i], o[i]);
                }
            }
        }
    }
}

// Expansions: out of place and in place, against the unpacked spectrum.
template <class B, class C>
struct ConjRow {
    Layout layout;
    VekResult (*out)(const void*, C*, int);
    VekResult (*inPlace)(C*, int);
};

template <class B, class C>
void runConj(const ConjRow<B, C>& r) {
    for (int N : lengths()) {
        vt::Rng rng(700 + N);
        const size_t n = r.layout == Layout::CCS ? 2 * (N / 2 + 1) : N;  // packed values
        std::vector<B> p = rng.vec<B>(n, -8, 8);
        if (std::is_integral<B>::value && n > 2) p[2] = std::numeric_limits<B>::min();
        if (r.layout == Layout::CCS) {
            p[1] = 0;
            if (N % 2 == 0) p[n - 1] = 0;
        }
        std::vector<CLD> want = ref::unpack(widen(p.data(), n), N, r.layout);
        vt::Guarded<C> d(N, 1);
        ASSERT_EQ(r.out(p.data(), d.data(), N), VEK_OK);
        EXPECT_TRUE(d.intact());
        // in place: the packed values at the start of the complex array
        std::vector<C> io(N);
        memcpy(io.data(), p.data(), n * sizeof(B));
        vt::Guarded<C> g(io, 0);
        ASSERT_EQ(r.inPlace(g.data(), N), VEK_OK);
        EXPECT_TRUE(g.intact());
        const size_t written = r.layout == Layout::CCS && N <= 2 ? static_cast<size_t>(N / 2 + 1) : N;
        for (size_t k = 0; k < written; ++k) {
            long double wi = want[k].imag();
            if (std::is_integral<B>::value) wi = fminl(wi, 32767);
            ASSERT_EQ(static_cast<long double>(d[k].re), want[k].real()) << N << " " << k;
            ASSERT_EQ(static_cast<long double>(d[k].im), wi) << N << " " << k;
            ASSERT_EQ(g[k].re, d[k].re) << N << " " << k;
            ASSERT_EQ(g[k].im, d[k].im) << N << " " << k;
        }
    }
}

template <class C, class S>
VekResult (*asVoid(VekResult (*f)(const S*, C*, int)))(const void*, C*, int) {
    return reinterpret_cast<VekResult (*)(const void*, C*, int)>(f);
}

TEST(Packed, Expansions) {
    runConj<float, T32fc>({Layout::Pack, asVoid(veksConjPack_32fc), veksConjPack_32fc_I});
    runConj<float, T32fc>({Layout::Perm, asVoid(veksConjPerm_32fc), veksConjPerm_32fc_I});
    runConj<float, T32fc>({Layout::CCS, asVoid(veksConjCcs_32fc), veksConjCcs_32fc_I});
    runConj<double, T64fc>({Layout::Pack, asVoid(veksConjPack_64fc), veksConjPack_64fc_I});
    runConj<double, T64fc>({Layout::Perm, asVoid(veksConjPerm_64fc), veksConjPerm_64fc_I});
    runConj<double, T64fc>({Layout::CCS, asVoid(veksConjCcs_64fc), veksConjCcs_64fc_I});
    runConj<T16s, T16sc>({Layout::Pack, asVoid(veksConjPack_16sc), veksConjPack_16sc_I});
    runConj<T16s, T16sc>({Layout::Perm, asVoid(veksConjPerm_16sc), veksConjPerm_16sc_I});
    runConj<T16s, T16sc>({Layout::CCS, asVoid(veksConjCcs_16sc), veksConjCcs_16sc_I});
}

TEST(Packed, ExpansionChecks) {
    T32fc d[4];
    float p[4] = {1, 2, 3, 4};
    EXPECT_EQ(veksConjPack_32fc(nullptr, d, 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksConjPack_32fc(p, d, 0), VEK_ERR_SIZE);
    EXPECT_EQ(veksConjCcs_32fc_I(nullptr, 2), VEK_ERR_NULL_POINTER);
}

}  // namespace

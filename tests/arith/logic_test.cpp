// Bitwise operations and shifts against models written from their rules.
#include "harness.h"

namespace {

// Not in the constant shapes, its constant unused.
template <class T, VekResult (*F)(const T*, T*, int)>
VekResult notOut(const T* s, T, T* d, int n) {
    return F(s, d, n);
}
template <class T, VekResult (*F)(T*, int)>
VekResult notIn(T, T* sd, int n) {
    return F(sd, n);
}

template <class T> T andOf(T a, T b, int) { return T(a & b); }
template <class T> T orOf(T a, T b, int) { return T(a | b); }
template <class T> T xorOf(T a, T b, int) { return T(a ^ b); }
template <class T> T notOf(T a, T, int) { return T(~a); }

template <class V>
void visitLogic(V&& v) {
    AT_BIN(veksAnd_8u, T8u, T8u, T8u, andOf<T8u>);
    AT_BIN_I(veksAnd_8u_I, T8u, T8u, andOf<T8u>);
    AT_BIN(veksAnd_16u, T16u, T16u, T16u, andOf<T16u>);
    AT_BIN_I(veksAnd_16u_I, T16u, T16u, andOf<T16u>);
    AT_BIN(veksAnd_32u, T32u, T32u, T32u, andOf<T32u>);
    AT_BIN_I(veksAnd_32u_I, T32u, T32u, andOf<T32u>);
    AT_C(veksAndC_8u, T8u, T8u, andOf<T8u>);
    AT_C_I(veksAndC_8u_I, T8u, andOf<T8u>);
    AT_C(veksAndC_16u, T16u, T16u, andOf<T16u>);
    AT_C_I(veksAndC_16u_I, T16u, andOf<T16u>);
    AT_C(veksAndC_32u, T32u, T32u, andOf<T32u>);
    AT_C_I(veksAndC_32u_I, T32u, andOf<T32u>);
    AT_BIN(veksOr_8u, T8u, T8u, T8u, orOf<T8u>);
    AT_BIN_I(veksOr_8u_I, T8u, T8u, orOf<T8u>);
    AT_BIN(veksOr_16u, T16u, T16u, T16u, orOf<T16u>);
    AT_BIN_I(veksOr_16u_I, T16u, T16u, orOf<T16u>);
    AT_BIN(veksOr_32u, T32u, T32u, T32u, orOf<T32u>);
    AT_BIN_I(veksOr_32u_I, T32u, T32u, orOf<T32u>);
    AT_C(veksOrC_8u, T8u, T8u, orOf<T8u>);
    AT_C_I(veksOrC_8u_I, T8u, orOf<T8u>);
    AT_C(veksOrC_16u, T16u, T16u, orOf<T16u>);
    AT_C_I(veksOrC_16u_I, T16u, orOf<T16u>);
    AT_C(veksOrC_32u, T32u, T32u, orOf<T32u>);
    AT_C_I(veksOrC_32u_I, T32u, orOf<T32u>);
    AT_BIN(veksXor_8u, T8u, T8u, T8u, xorOf<T8u>);
    AT_BIN_I(veksXor_8u_I, T8u, T8u, xorOf<T8u>);
    AT_BIN(veksXor_16u, T16u, T16u, T16u, xorOf<T16u>);
    AT_BIN_I(veksXor_16u_I, T16u, T16u, xorOf<T16u>);
    AT_BIN(veksXor_32u, T32u, T32u, T32u, xorOf<T32u>);
    AT_BIN_I(veksXor_32u_I, T32u, T32u, xorOf<T32u>);
    AT_C(veksXorC_8u, T8u, T8u, xorOf<T8u>);
    AT_C_I(veksXorC_8u_I, T8u, xorOf<T8u>);
    AT_C(veksXorC_16u, T16u, T16u, xorOf<T16u>);
    AT_C_I(veksXorC_16u_I, T16u, xorOf<T16u>);
    AT_C(veksXorC_32u, T32u, T32u, xorOf<T32u>);
    AT_C_I(veksXorC_32u_I, T32u, xorOf<T32u>);
    AT_C((notOut<T8u, veksNot_8u>), T8u, T8u, notOf<T8u>);
    AT_C_I((notIn<T8u, veksNot_8u_I>), T8u, notOf<T8u>);
    AT_C((notOut<T16u, veksNot_16u>), T16u, T16u, notOf<T16u>);
    AT_C_I((notIn<T16u, veksNot_16u_I>), T16u, notOf<T16u>);
    AT_C((notOut<T32u, veksNot_32u>), T32u, T32u, notOf<T32u>);
    AT_C_I((notIn<T32u, veksNot_32u_I>), T32u, notOf<T32u>);
}

TEST(Logic, MatchesReference) {
    uint64_t seed = 700;
    visitLogic([&](const auto& c) { at::check(c, ++seed); });
}

TEST(Logic, ChecksBeforeWriting) {
    visitLogic([](const auto& c) { at::contract(c); });
}

// Shifts: the bit pattern moved left (bits beyond the width lost, read back
// as the element type), logical right on unsigned and floor(x / 2^k) on
// signed types; counts of the width and beyond give 0 or the sign.
template <class T>
T refShift(bool left, T x, int k) {
    const int w = 8 * sizeof(T);
    if (left) {
        if (k >= w) return 0;
        const uint64_t mask = (w == 64) ? ~0ull : ((1ull << w) - 1);
        return static_cast<T>((static_cast<uint64_t>(x) << k) & mask);
    }
    if (k >= w) return x < 0 ? T(-1) : T(0);
    return static_cast<T>(floor(static_cast<double>(x) / ldexp(1.0, k)));
}

template <class T>
void checkShift(const char* name, bool left, VekResult (*out)(const T*, int, T*, int),
                VekResult (*in)(int, T*, int), uint64_t seed) {
    SCOPED_TRACE(name);
    vt::Rng rng(seed);
    std::vector<int> counts;
    for (int k = 0; k <= 8 * int(sizeof(T)) + 2; ++k) counts.push_back(k);
    for (int k : {63, 64, 1000, INT_MAX}) counts.push_back(k);
    for (int k : counts) {
        for (int n : vt::tailLengths()) {
            if (n > 70 && k % 5) continue;
            const int m = static_cast<int>((int64_t(k) + n) % 4);
            SCOPED_TRACE("count " + std::to_string(k) + " len " + std::to_string(n));
            const std::vector<T> x = at::data<T>(rng, n);
            std::vector<T> want(n);
            for (int i = 0; i < n; ++i) want[i] = refShift(left, x[i], k);
            vt::Guarded<T> gs(x, m), gd(n, (m + 1) % 4);
            gs.freeze();
            ASSERT_EQ(out(gs.data(), k, gd.data(), n), VEK_OK);
            ASSERT_TRUE(gs.intact() && gd.intact());
            ASSERT_TRUE(at::sameAll(gd.data(), want));
            ASSERT_EQ(in(k, gs.data(), n), VEK_OK);
            ASSERT_TRUE(at::sameAll(gs.data(), want));
        }
    }
    // The common checks first, then the count, with nothing written.
    vt::Guarded<T> gs(4), gd(4);
    gs.freeze(), gd.freeze();
    for (int k : {-1, INT_MIN}) {
        EXPECT_EQ(out(gs.data(), k, gd.data(), 4), VEK_ERR_SHIFT);
        EXPECT_EQ(out(gs.data(), k, gd.data(), 0), VEK_ERR_SIZE);
        EXPECT_EQ(out(nullptr, k, gd.data(), 4), VEK_ERR_NULL_POINTER);
        EXPECT_EQ(out(gs.data(), k, nullptr, 4), VEK_ERR_NULL_POINTER);
        EXPECT_EQ(in(k, gd.data(), 4), VEK_ERR_SHIFT);
        EXPECT_EQ(in(k, gd.data(), -3), VEK_ERR_SIZE);
        EXPECT_EQ(in(k, nullptr, 4), VEK_ERR_NULL_POINTER);
    }
    EXPECT_TRUE(gs.intact() && gd.intact());
}

TEST(Shift, MatchesReference) {
    checkShift<T8u>("veksLShiftC_8u", true, veksLShiftC_8u, veksLShiftC_8u_I, 801);
    checkShift<T16u>("veksLShiftC_16u", true, veksLShiftC_16u, veksLShiftC_16u_I, 802);
    checkShift<T16s>("veksLShiftC_16s", true, veksLShiftC_16s, veksLShiftC_16s_I, 803);
    checkShift<T32u>("veksLShiftC_32u", true, veksLShiftC_32u, veksLShiftC_32u_I, 804);
    checkShift<T32s>("veksLShiftC_32s", true, veksLShiftC_32s, veksLShiftC_32s_I, 805);
    checkShift<T8u>("veksRShiftC_8u", false, veksRShiftC_8u, veksRShiftC_8u_I, 806);
    checkShift<T16u>("veksRShiftC_16u", false, veksRShiftC_16u, veksRShiftC_16u_I, 807);
    checkShift<T16s>("veksRShiftC_16s", false, veksRShiftC_16s, veksRShiftC_16s_I, 808);
    checkShift<T32u>("veksRShiftC_32u", false, veksRShiftC_32u, veksRShiftC_32u_I, 809);
    checkShift<T32s>("veksRShiftC_32s", false, veksRShiftC_32s, veksRShiftC_32s_I, 810);
}

}  // namespace

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

template <class V>
void visitLogic(V&& v) {
    AT_BIN(veksAnd_8u, T8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 & x2); });
    AT_BIN_I(veksAnd_8u_I, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 & x2); });
    AT_BIN(veksAnd_16u, T16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 & x2); });
    AT_BIN_I(veksAnd_16u_I, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 & x2); });
    AT_BIN(veksAnd_32u, T32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 & x2); });
    AT_BIN_I(veksAnd_32u_I, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 & x2); });
    AT_C(veksAndC_8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 & x2); });
    AT_C_I(veksAndC_8u_I, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 & x2); });
    AT_C(veksAndC_16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 & x2); });
    AT_C_I(veksAndC_16u_I, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 & x2); });
    AT_C(veksAndC_32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 & x2); });
    AT_C_I(veksAndC_32u_I, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 & x2); });
    AT_BIN(veksOr_8u, T8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 | x2); });
    AT_BIN_I(veksOr_8u_I, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 | x2); });
    AT_BIN(veksOr_16u, T16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 | x2); });
    AT_BIN_I(veksOr_16u_I, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 | x2); });
    AT_BIN(veksOr_32u, T32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 | x2); });
    AT_BIN_I(veksOr_32u_I, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 | x2); });
    AT_C(veksOrC_8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 | x2); });
    AT_C_I(veksOrC_8u_I, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 | x2); });
    AT_C(veksOrC_16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 | x2); });
    AT_C_I(veksOrC_16u_I, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 | x2); });
    AT_C(veksOrC_32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 | x2); });
    AT_C_I(veksOrC_32u_I, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 | x2); });
    AT_BIN(veksXor_8u, T8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 ^ x2); });
    AT_BIN_I(veksXor_8u_I, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 ^ x2); });
    AT_BIN(veksXor_16u, T16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 ^ x2); });
    AT_BIN_I(veksXor_16u_I, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 ^ x2); });
    AT_BIN(veksXor_32u, T32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 ^ x2); });
    AT_BIN_I(veksXor_32u_I, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 ^ x2); });
    AT_C(veksXorC_8u, T8u, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 ^ x2); });
    AT_C_I(veksXorC_8u_I, T8u, [](T8u x1, T8u x2, int) { return T8u(x1 ^ x2); });
    AT_C(veksXorC_16u, T16u, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 ^ x2); });
    AT_C_I(veksXorC_16u_I, T16u, [](T16u x1, T16u x2, int) { return T16u(x1 ^ x2); });
    AT_C(veksXorC_32u, T32u, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 ^ x2); });
    AT_C_I(veksXorC_32u_I, T32u, [](T32u x1, T32u x2, int) { return T32u(x1 ^ x2); });
    AT_C((notOut<T8u, veksNot_8u>), T8u, T8u, [](T8u x1, T8u, int) { return T8u(~x1); });
    AT_C_I((notIn<T8u, veksNot_8u_I>), T8u, [](T8u x1, T8u, int) { return T8u(~x1); });
    AT_C((notOut<T16u, veksNot_16u>), T16u, T16u, [](T16u x1, T16u, int) { return T16u(~x1); });
    AT_C_I((notIn<T16u, veksNot_16u_I>), T16u, [](T16u x1, T16u, int) { return T16u(~x1); });
    AT_C((notOut<T32u, veksNot_32u>), T32u, T32u, [](T32u x1, T32u, int) { return T32u(~x1); });
    AT_C_I((notIn<T32u, veksNot_32u_I>), T32u, [](T32u x1, T32u, int) { return T32u(~x1); });
}

TEST(Logic, MatchesReference) {
    uint64_t seed = 700;
    visitLogic([&](const auto& c) { at::check(c, ++seed); });
}

TEST(Logic, ChecksBeforeWriting) {
    visitLogic([](const auto& c) { at::contract(c); });
}

TEST(Logic, NamedValues) {
    T8u a = 0xF0, b = 0x3C, d = 0;
    EXPECT_EQ(veksAnd_8u(&a, &b, &d, 1), VEK_OK);
    EXPECT_EQ(d, 0x30);
    T16u z = 0, nz = 0;
    EXPECT_EQ(veksNot_16u(&z, &nz, 1), VEK_OK);
    EXPECT_EQ(nz, 0xFFFF);
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
            ASSERT_TRUE(gs.intact());
            ASSERT_TRUE(gd.intact());
            ASSERT_TRUE(at::sameAll(gd.data(), want));
            ASSERT_EQ(in(k, gs.data(), n), VEK_OK);
            ASSERT_TRUE(at::sameAll(gs.data(), want));
        }
    }
    // Common checks first, then the count.
    vt::Guarded<T> gs(4), gd(4);
    gs.freeze();
    gd.freeze();
    EXPECT_EQ(out(gs.data(), -1, gd.data(), 4), VEK_ERR_SHIFT);
    EXPECT_EQ(out(gs.data(), -1, gd.data(), 0), VEK_ERR_SIZE);
    EXPECT_EQ(out(nullptr, -1, gd.data(), 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(out(gs.data(), 1, nullptr, 4), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(out(gs.data(), INT_MIN, gd.data(), 4), VEK_ERR_SHIFT);
    EXPECT_EQ(in(-1, gd.data(), 4), VEK_ERR_SHIFT);
    EXPECT_EQ(in(-1, gd.data(), -3), VEK_ERR_SIZE);
    EXPECT_EQ(in(1, nullptr, 4), VEK_ERR_NULL_POINTER);
    EXPECT_TRUE(gs.intact());
    EXPECT_TRUE(gd.intact());
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

TEST(Shift, NamedValues) {
    const struct { T16s x; int k; bool left; T16s want; } cases[] = {
        {-5, 1, false, -3}, {-1, 5, false, -1}, {0x4001, 1, true, -32766}, {-32768, 15, false, -1}, {-32768, 16, false, -1},
        {32767, 16, false, 0}, {1, 15, true, -32768}, {1, 16, true, 0}};
    for (const auto& c : cases) {
        T16s d = 0;
        ASSERT_EQ(c.left ? veksLShiftC_16s(&c.x, c.k, &d, 1) : veksRShiftC_16s(&c.x, c.k, &d, 1), VEK_OK);
        EXPECT_EQ(d, c.want) << c.x << (c.left ? " << " : " >> ") << c.k;
    }
    const T16u u = 0x8000;
    T16u du = 0;
    ASSERT_EQ(veksRShiftC_16u(&u, 15, &du, 1), VEK_OK);
    EXPECT_EQ(du, 1);
}

}  // namespace

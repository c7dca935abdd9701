// AddProduct, AddProductC and the float-to-integer MulC forms against
// models written from their rules.
#include <fenv.h>

#include "harness.h"

namespace {

int clampSf(int sf) { return sf < -200 ? -200 : sf > 1000 ? 1000 : sf; }

// d + a * b: the product rounded, then the sum; integers exact, scaled once.
template <class TS, class TD>
VekResult refAddProduct(const TS* a, const TS* b, TD* d, int n, int sf) {
    for (int i = 0; i < n; ++i) {
        if constexpr (at::Cplx<TD>::value) {
            const TD p = ref::mulComplex(a[i], b[i]);
            d[i] = TD{d[i].re + p.re, d[i].im + p.im};
        } else if constexpr (std::is_floating_point<TD>::value) {
            const TD p = a[i] * b[i];
            d[i] = d[i] + p;
        } else {
            d[i] = ref::scale<TD>(int64_t(d[i]) + int64_t(a[i]) * int64_t(b[i]), clampSf(sf));
        }
    }
    return VEK_OK;
}

// x * val * 2^-sf to nearest even, saturated; the product in single
// precision (computed here under the default rounding).
T16s refMulC16s(float x, float val, int sf) {
    const float p = x * val;
    const long double v = ldexpl(static_cast<long double>(p), -clampSf(sf));
    if (v != v) return 0;
    long double r = floorl(v);
    const long double f = v - r;
    if (f > 0.5L || (f == 0.5L && fmodl(r, 2.0L) != 0)) r += 1;
    return ref::clampTo<T16s>(r);
}

// Runs an export under the caller's rounding setting gRound; a setting not
// given back shows as status 999.
int gRound = FE_TONEAREST;
template <class F>
VekResult underRound(F f) {
    fesetround(gRound);
    const VekResult st = f();
    const bool kept = fegetround() == gRound;
    fesetround(FE_TONEAREST);
    return kept ? st : 999;
}

template <class V>
void visitProducts(V&& v) {
    AT_BIN_SFS(veksAddProduct_16s_Sfs, T16s, T16s, T16s, nullptr, refAddProduct<T16s, T16s>);
    AT_BIN_SFS(veksAddProduct_16s32s_Sfs, T16s, T16s, T32s, nullptr, refAddProduct<T16s, T32s>);
    AT_BIN_SFS(veksAddProduct_32s_Sfs, T32s, T32s, T32s, nullptr, refAddProduct<T32s, T32s>);
    AT_BIN(veksAddProduct_32f, T32f, T32f, T32f, nullptr, refAddProduct<T32f, T32f>);
    AT_BIN(veksAddProduct_64f, T64f, T64f, T64f, nullptr, refAddProduct<T64f, T64f>);
    AT_BIN(veksAddProduct_32fc, T32fc, T32fc, T32fc, nullptr, refAddProduct<T32fc, T32fc>);
    AT_BIN(veksAddProduct_64fc, T64fc, T64fc, T64fc, nullptr, refAddProduct<T64fc, T64fc>);
    AT_C(veksAddProductC_32f, T32f, T32f, nullptr, refAddProduct<T32f, T32f>);
}

// The float-to-integer products follow no rounding setting of the caller.
template <class V>
void visitMulCFloat(V&& v) {
    using C = at::Case<T32f, T32f, T16s>;
    v(C{"veksMulC_32f16s_Sfs", at::Shape::Const, true, [](const T32f* x, T32f*, T16s* d, T32f k, int n, int sf) {
            return underRound([&] { return veksMulC_32f16s_Sfs(x, k, d, n, sf); });
        }, refMulC16s});
    v(C{"veksMulC_Low_32f16s", at::Shape::Const, false, [](const T32f* x, T32f*, T16s* d, T32f k, int n, int) {
            return underRound([&] { return veksMulC_Low_32f16s(x, k, d, n); });
        }, refMulC16s});
}

TEST(AddProduct, MatchesReference) {
    uint64_t seed = 1200;
    visitProducts([&](const auto& c) { at::check(c, ++seed); });
    visitProducts([](const auto& c) { at::contract(c); });
}

TEST(MulCFloatToInt, MatchesReference) {
    uint64_t seed = 1300;
    for (int round : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {
        gRound = round;
        visitMulCFloat([&](const auto& c) { at::check(c, ++seed); });
    }
    gRound = FE_TONEAREST;
    visitMulCFloat([](const auto& c) { at::contract(c); });
    // halfway products at the three scale rules: 2.5 -> 2, 3.5 -> 4, 5 * 2^-1 -> 2
    const float x[4] = {2.5f, 3.5f, -2.5f, 5.0f};
    T16s d[4];
    ASSERT_EQ(veksMulC_32f16s_Sfs(x, 1.0f, d, 4, 0), VEK_OK);
    EXPECT_TRUE(at::sameAll(d, std::vector<T16s>{2, 4, -2, 5}));
    ASSERT_EQ(veksMulC_32f16s_Sfs(x + 3, 1.0f, d, 1, 1), VEK_OK);
    EXPECT_EQ(d[0], 2);
}

TEST(MulCFloatToInt, Int64Form) {
    const struct { T64s x; double val; int sf; T64s want; } cases[] = {
        {3, 0.5, 0, 2},  {5, 0.5, 0, 2},  {-3, 0.5, 0, -2}, {7, 1.0, 1, 4},  {1, 1.0, -62, INT64_C(1) << 62},
        {1, 1.0, -63, INT64_MAX}, {-1, 1.0, -63, INT64_MIN}, {INT64_MAX, 2.0, 0, INT64_MAX}, {INT64_MIN, 1.0, 0, INT64_MIN},
        {1000, 1e300, 0, INT64_MAX}, {1000, -1e300, 0, INT64_MIN}, {123, 0.0, 5, 0}, {1, 1.0, INT_MAX, 0},
        {-1, 1.0, INT_MIN, INT64_MIN}, {(INT64_C(1) << 53) + 1, 1.0, 0, INT64_C(1) << 53}};
    const int saved = fegetround();
    fesetround(FE_UPWARD);
    for (const auto& c : cases) {
        T64s d = c.x;
        ASSERT_EQ(veksMulC_64f64s_ISfs(c.val, &d, 1, c.sf), VEK_OK);
        EXPECT_EQ(d, c.want) << c.x << " * " << c.val << " sf " << c.sf;
    }
    EXPECT_EQ(fegetround(), FE_UPWARD);
    fesetround(saved);
    EXPECT_EQ(veksMulC_64f64s_ISfs(1.0, nullptr, 1, 0), VEK_ERR_NULL_POINTER);
    T64s d = 9;
    EXPECT_EQ(veksMulC_64f64s_ISfs(1.0, &d, 0, 0), VEK_ERR_SIZE);
    EXPECT_EQ(d, 9);
}

}  // namespace

// AddProduct, AddProductC and the float-to-integer MulC forms against
// models written from their rules.
#include <fenv.h>

#include "harness.h"

namespace {

int clampSf(int sf) { return sf < -200 ? -200 : sf > 1000 ? 1000 : sf; }

// d + a * b: the product rounded, then the sum; integers exact, scaled once.
template <class TS, class TD>
TD refAddProduct(TS a, TS b, TD d, int sf) {
    if constexpr (at::Cplx<TD>::value) {
        const TD p = ref::mulComplex(a, b);
        return TD{d.re + p.re, d.im + p.im};
    } else if constexpr (std::is_floating_point<TD>::value) {
        const TD p = a * b;
        return d + p;
    } else {
        return ref::scale<TD>(int64_t(d) + int64_t(a) * int64_t(b), clampSf(sf));
    }
}

// Calls (a, b or the constant, d, len, sf); the constant form repeats b[0].
template <class TS, class TD>
struct ProductCase {
    const char* name;
    bool scaled;
    bool constant;
    std::function<VekResult(const TS*, const TS*, TD*, int, int)> call;
};

template <class TS, class TD>
void checkProduct(const ProductCase<TS, TD>& c, uint64_t seed) {
    SCOPED_TRACE(c.name);
    vt::Rng rng(seed);
    for (const at::Plan& p : at::plans(c.scaled)) {
        for (int n : p.lengths) {
            for (int m : p.misalign) {
                SCOPED_TRACE("sf " + std::to_string(p.sf) + " len " + std::to_string(n) + " misalign " + std::to_string(m));
                const std::vector<TS> a = at::data<TS>(rng, n);
                std::vector<TS> b = at::data<TS>(rng, n);
                if (c.constant) b.assign(n, b[0]);
                const std::vector<TD> d0 = at::data<TD>(rng, n);
                std::vector<TD> want(n);
                for (int i = 0; i < n; ++i) want[i] = refAddProduct(a[i], b[i], d0[i], p.sf);
                vt::Guarded<TS> ga(a, m), gb(b, (m + 1) % 4);
                vt::Guarded<TD> gd(d0, (m + 2) % 4);
                ga.freeze();
                gb.freeze();
                ASSERT_EQ(c.call(ga.data(), gb.data(), gd.data(), n, p.sf), VEK_OK);
                ASSERT_TRUE(ga.intact() && gb.intact() && gd.intact());
                ASSERT_TRUE(at::sameAll(gd.data(), want));
            }
        }
    }
    // the common checks, with nothing written
    vt::Guarded<TS> ga(4), gb(4);
    vt::Guarded<TD> gd(4);
    gd.freeze();
    EXPECT_EQ(c.call(nullptr, gb.data(), gd.data(), 4, 0), VEK_ERR_NULL_POINTER);
    if (!c.constant) {
        EXPECT_EQ(c.call(ga.data(), nullptr, gd.data(), 4, 0), VEK_ERR_NULL_POINTER);
    }
    EXPECT_EQ(c.call(ga.data(), gb.data(), nullptr, 4, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(c.call(nullptr, gb.data(), gd.data(), 0, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(c.call(ga.data(), gb.data(), gd.data(), 0, 0), VEK_ERR_SIZE);
    EXPECT_EQ(c.call(ga.data(), gb.data(), gd.data(), -4, 0), VEK_ERR_SIZE);
    EXPECT_TRUE(gd.intact());
}

TEST(AddProduct, MatchesReference) {
    checkProduct(ProductCase<T16s, T16s>{"veksAddProduct_16s_Sfs", true, false, veksAddProduct_16s_Sfs}, 1201);
    checkProduct(ProductCase<T16s, T32s>{"veksAddProduct_16s32s_Sfs", true, false, veksAddProduct_16s32s_Sfs}, 1202);
    checkProduct(ProductCase<T32s, T32s>{"veksAddProduct_32s_Sfs", true, false, veksAddProduct_32s_Sfs}, 1203);
    auto unscaled = [](auto f) {
        return [f](auto a, auto b, auto d, int n, int) { return f(a, b, d, n); };
    };
    checkProduct(ProductCase<T32f, T32f>{"veksAddProduct_32f", false, false, unscaled(veksAddProduct_32f)}, 1204);
    checkProduct(ProductCase<T64f, T64f>{"veksAddProduct_64f", false, false, unscaled(veksAddProduct_64f)}, 1205);
    checkProduct(ProductCase<T32fc, T32fc>{"veksAddProduct_32fc", false, false, unscaled(veksAddProduct_32fc)}, 1206);
    checkProduct(ProductCase<T64fc, T64fc>{"veksAddProduct_64fc", false, false, unscaled(veksAddProduct_64fc)}, 1207);
    checkProduct(ProductCase<T32f, T32f>{"veksAddProductC_32f", false, true,
                                         [](const T32f* a, const T32f* b, T32f* d, int n, int) {
                                             return veksAddProductC_32f(a, b ? b[0] : 0.0f, d, n);
                                         }},
                 1208);
}

// x * val * 2^-sf to nearest even, saturated; the products in single
// precision (double for the 64-bit form), whatever the caller's rounding.
T16s refMulC16s(float x, float val, int sf) {
    const float p = x * val;
    const long double v = ldexpl(static_cast<long double>(p), -clampSf(sf));
    if (v != v) return 0;
    long double r = floorl(v);
    const long double f = v - r;
    if (f > 0.5L || (f == 0.5L && fmodl(r, 2.0L) != 0)) r += 1;
    return ref::clampTo<T16s>(r);
}

TEST(MulCFloatToInt, MatchesReference) {
    vt::Rng rng(1301);
    const int saved = fegetround();
    for (int round : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {
        fesetround(round);
        for (const at::Plan& p : at::plans(true)) {
            for (int n : p.lengths) {
                SCOPED_TRACE("sf " + std::to_string(p.sf) + " len " + std::to_string(n));
                std::vector<float> x = at::data<float>(rng, n);
                for (int i = 0; i < n; i += 5) x[i] = static_cast<float>(rng.range(-80000, 80000)) / 2;  // ties
                const float val = (n % 4 == 0) ? 1.0f : at::gen<float>(rng);
                std::vector<T16s> want(n);
                for (int i = 0; i < n; ++i) {
                    fesetround(FE_TONEAREST);
                    want[i] = refMulC16s(x[i], val, p.sf);
                    fesetround(round);
                }
                vt::Guarded<float> gx(x, n % 3);
                vt::Guarded<T16s> gd(n, 1);
                ASSERT_EQ(veksMulC_32f16s_Sfs(gx.data(), val, gd.data(), n, p.sf), VEK_OK);
                ASSERT_TRUE(gd.intact());
                ASSERT_TRUE(at::sameAll(gd.data(), want));
                if (p.sf == 0) {
                    ASSERT_EQ(veksMulC_Low_32f16s(gx.data(), val, gd.data(), n), VEK_OK);
                    ASSERT_TRUE(at::sameAll(gd.data(), want));
                }
                ASSERT_EQ(fegetround(), round);
            }
        }
    }
    fesetround(saved);
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

// Table-driven checks of element-wise exports against the reference models:
// random and edge data over every tail length, misaligned, out of place and
// in place, over the whole range of scale factors; plus the contract checks
// (check order, nothing written on error) once per argument shape.
#pragma once

#include <limits.h>

#include <functional>
#include <string>
#include <vector>

#include "ref/arith_ref.h"
#include "support/support.h"

namespace at {

template <class T>
struct Cplx : std::false_type {};
template <> struct Cplx<T16sc> : std::true_type {};
template <> struct Cplx<T32sc> : std::true_type {};
template <> struct Cplx<T32fc> : std::true_type {};
template <> struct Cplx<T64fc> : std::true_type {};

// One random element: integers over their whole range or (half the time)
// near zero where rounding decides; floats in [-100, 100).
template <class T>
T gen(vt::Rng& r) {
    if constexpr (Cplx<T>::value) {
        using B = decltype(T{}.re);
        return T{gen<B>(r), gen<B>(r)};
    } else if constexpr (std::is_floating_point<T>::value) {
        return r.next<T>(-100.0, 100.0);
    } else {
        if (r.range(0, 1)) return r.next<T>();
        return static_cast<T>(r.range(std::is_signed<T>::value ? -300 : 0, 300));
    }
}

template <class T>
std::vector<T> edges() {
    if constexpr (Cplx<T>::value) {
        using B = decltype(T{}.re);
        std::vector<T> v;
        const auto e = vt::edgeValues<B>();
        for (size_t i = 0; i < e.size(); ++i) v.push_back(T{e[i], e[(i * 5 + 3) % e.size()]});
        return v;
    } else {
        return vt::edgeValues<T>();
    }
}

// Random data with edge values on every third element (so that they land on
// every lane position and in the scalar tails).
template <class T>
std::vector<T> data(vt::Rng& r, int n) {
    std::vector<T> v(n);
    const auto e = edges<T>();
    for (int i = 0; i < n; ++i) v[i] = (i % 3 == 1) ? e[(i / 3 + r.range(0, 2)) % e.size()] : gen<T>(r);
    return v;
}

// Equal bits, or both NaN (NaN payloads are not part of any result).
template <class T>
bool same(const T& a, const T& b) {
    if constexpr (Cplx<T>::value) {
        return same(a.re, b.re) && same(a.im, b.im);
    } else if constexpr (std::is_floating_point<T>::value) {
        return (a != a && b != b) || memcmp(&a, &b, sizeof a) == 0;
    } else {
        return a == b;
    }
}

template <class T>
std::string show(const T& v) {
    if constexpr (Cplx<T>::value) {
        return "(" + show(v.re) + ", " + show(v.im) + ")";
    } else if constexpr (std::is_floating_point<T>::value) {
        char b[64];
        snprintf(b, sizeof b, "%.9g", static_cast<double>(v));
        return b;
    } else {
        return std::to_string(static_cast<long long>(v));
    }
}

template <class TD>
::testing::AssertionResult sameAll(const TD* got, const std::vector<TD>& want) {
    for (size_t i = 0; i < want.size(); ++i)
        if (!same(got[i], want[i]))
            return ::testing::AssertionFailure()
                   << "element " << i << " of " << want.size() << ": got " << show(got[i]) << ", want " << show(want[i]);
    return ::testing::AssertionSuccess();
}

// Scale factors: every value from -40 to 40 and the extremes, each over a
// few short lengths; a handful over every tail length and misalignment.
struct Plan {
    int sf;
    std::vector<int> lengths;
    std::vector<int> misalign;
};
inline std::vector<Plan> plans(bool scaled) {
    std::vector<Plan> p;
    const std::vector<int> all = vt::tailLengths();
    if (!scaled) {
        p.push_back({0, all, vt::misalignments()});
        return p;
    }
    for (int sf : {0, 1, 2, -1, 5, 15, -7}) p.push_back({sf, all, vt::misalignments()});
    const std::vector<int> few = {1, 3, 8, 9, 17, 33};
    for (int sf = -40; sf <= 40; ++sf) p.push_back({sf, few, {1}});
    for (int sf : {INT_MIN, INT_MIN + 1, -1000, -128, -65, -64, -63, -62, 62, 63, 64, 65, 127, 128, 1000, INT_MAX - 1, INT_MAX})
        p.push_back({sf, few, {0}});
    return p;
}

// The four element-wise argument shapes, as one case each.
enum class Shape { Binary, BinaryInPlace, Const, ConstInPlace };

template <class T1, class T2, class TD>
struct Case {
    const char* name;
    Shape shape;
    bool scaled;
    // Called with (x1, x2, destination, constant, len, sf); each shape uses
    // the arguments it has: in place, x2 (binary) or x1 (constant) is the
    // destination.
    std::function<VekResult(const T1*, T2*, TD*, T2, int, int)> call;
    std::function<TD(T1, T2, int)> ref;
    // Whole-vector model for results that depend on neighbours, returning
    // the expected status; used instead of ref when set.
    std::function<VekResult(const T1*, const T2*, TD*, int, int)> refv = nullptr;
    // The constant must not be zero (a zero constant is an error, tested apart).
    bool nonZeroConst = false;
};

template <class T>
bool isZeroValue(const T& v) {
    if constexpr (Cplx<T>::value)
        return v.re == 0 && v.im == 0;
    else
        return v == 0;
}

template <class T>
T one() {
    if constexpr (Cplx<T>::value) {
        T v{};
        v.re = 1;
        return v;
    } else {
        return T(1);
    }
}

template <class T1, class T2, class TD>
void check(const Case<T1, T2, TD>& c, uint64_t seed) {
    SCOPED_TRACE(c.name);
    vt::Rng rng(seed);
    for (const Plan& p : plans(c.scaled)) {
        for (int n : p.lengths) {
            for (int m : p.misalign) {
                SCOPED_TRACE("sf " + std::to_string(p.sf) + " len " + std::to_string(n) + " misalign " + std::to_string(m));
                const std::vector<T1> x1 = data<T1>(rng, n);
                std::vector<T2> x2 = data<T2>(rng, n);
                const T2 val = edges<T2>()[rng.range(0, edges<T2>().size() - 1)];
                const bool isConst = c.shape == Shape::Const || c.shape == Shape::ConstInPlace;
                T2 k = rng.range(0, 2) ? val : gen<T2>(rng);
                if (c.nonZeroConst && isZeroValue(k)) k = one<T2>();
                if (isConst) x2.assign(n, k);
                std::vector<TD> want(n);
                VekResult wantSt = VEK_OK;
                if (c.refv)
                    wantSt = c.refv(x1.data(), x2.data(), want.data(), n, p.sf);
                else
                    for (int i = 0; i < n; ++i) want[i] = c.ref(x1[i], x2[i], p.sf);

                vt::Guarded<T1> g1(x1, m);
                vt::Guarded<T2> g2(x2, (m * 2) % 4);
                VekResult st;
                if (c.shape == Shape::Binary || c.shape == Shape::Const) {
                    vt::Guarded<TD> gd(n, m);
                    g1.freeze();
                    g2.freeze();
                    st = c.call(g1.data(), g2.data(), gd.data(), k, n, p.sf);
                    ASSERT_TRUE(gd.intact());
                    ASSERT_TRUE(g1.intact());
                    ASSERT_TRUE(g2.intact());
                    ASSERT_EQ(st, wantSt);
                    ASSERT_TRUE(sameAll(gd.data(), want));
                } else if (c.shape == Shape::BinaryInPlace) {
                    if constexpr (std::is_same<T2, TD>::value) {
                        // the destination starts as the second operand
                        g1.freeze();
                        st = c.call(g1.data(), g2.data(), g2.data(), k, n, p.sf);
                        ASSERT_TRUE(g2.intact());
                        ASSERT_TRUE(g1.intact());
                        ASSERT_EQ(st, wantSt);
                        ASSERT_TRUE(sameAll(g2.data(), want));
                    }
                } else {
                    if constexpr (std::is_same<T1, TD>::value) {
                        // the destination starts as the element vector
                        vt::Guarded<TD> gd(x1, m);
                        st = c.call(gd.data(), nullptr, nullptr, k, n, p.sf);
                        ASSERT_TRUE(gd.intact());
                        ASSERT_EQ(st, wantSt);
                        ASSERT_TRUE(sameAll(gd.data(), want));
                    }
                }
            }
        }
    }
}

// Null pointers (each in turn), then len < 1, with nothing written.
template <class T1, class T2, class TD>
void contract(const Case<T1, T2, TD>& c) {
    SCOPED_TRACE(c.name);
    const int n = 5;
    vt::Rng rng(1);
    vt::Guarded<T1> g1(data<T1>(rng, n));
    vt::Guarded<T2> g2(data<T2>(rng, n));
    vt::Guarded<TD> gd(n);
    const T2 k = gen<T2>(rng);
    g1.freeze();
    g2.freeze();
    gd.freeze();
    auto call = [&](bool null1, bool null2, bool nullD, int len) -> VekResult {
        switch (c.shape) {
            case Shape::Binary:
                return c.call(null1 ? nullptr : g1.data(), null2 ? nullptr : g2.data(), nullD ? nullptr : gd.data(), k, len, 3);
            case Shape::BinaryInPlace:
                return c.call(null1 ? nullptr : g1.data(), null2 ? nullptr : g2.data(), nullptr, k, len, 3);
            case Shape::Const:
                return c.call(null1 ? nullptr : g1.data(), nullptr, nullD ? nullptr : gd.data(), k, len, 3);
            case Shape::ConstInPlace:
                return c.call(null1 ? nullptr : g1.data(), nullptr, nullptr, k, len, 3);
        }
        return VEK_OK;
    };
    const bool two = c.shape == Shape::Binary || c.shape == Shape::BinaryInPlace;
    const bool dst = c.shape == Shape::Binary || c.shape == Shape::Const;
    EXPECT_EQ(call(true, false, false, n), VEK_ERR_NULL_POINTER);
    if (two) {
        EXPECT_EQ(call(false, true, false, n), VEK_ERR_NULL_POINTER);
    }
    if (dst) {
        EXPECT_EQ(call(false, false, true, n), VEK_ERR_NULL_POINTER);
    }
    EXPECT_EQ(call(true, false, false, 0), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(call(false, false, false, 0), VEK_ERR_SIZE);
    EXPECT_EQ(call(false, false, false, -1), VEK_ERR_SIZE);
    EXPECT_EQ(call(false, false, false, INT_MIN), VEK_ERR_SIZE);
    EXPECT_TRUE(g1.intact());
    EXPECT_TRUE(g2.intact());
    EXPECT_TRUE(gd.intact());
}

}  // namespace at

// One table row per export: the shape's call and the element model (the
// last argument). Used inside a visitor taking v(Case).
#define AT_BIN(f, T1, T2, TD, ...) \
    v(at::Case<T1, T2, TD>{#f, at::Shape::Binary, false, [](const T1* x1, T2* x2, TD* d, T2, int n, int) { return f(x1, x2, d, n); }, __VA_ARGS__})
#define AT_BIN_SFS(f, T1, T2, TD, ...) \
    v(at::Case<T1, T2, TD>{#f, at::Shape::Binary, true, [](const T1* x1, T2* x2, TD* d, T2, int n, int sf) { return f(x1, x2, d, n, sf); }, __VA_ARGS__})
#define AT_BIN_I(f, T1, TD, ...) \
    v(at::Case<T1, TD, TD>{#f, at::Shape::BinaryInPlace, false, [](const T1* x1, TD* x2, TD*, TD, int n, int) { return f(x1, x2, n); }, __VA_ARGS__})
#define AT_BIN_I_SFS(f, T1, TD, ...) \
    v(at::Case<T1, TD, TD>{#f, at::Shape::BinaryInPlace, true, [](const T1* x1, TD* x2, TD*, TD, int n, int sf) { return f(x1, x2, n, sf); }, __VA_ARGS__})
#define AT_C(f, T, TD, ...) \
    v(at::Case<T, T, TD>{#f, at::Shape::Const, false, [](const T* x1, T*, TD* d, T k, int n, int) { return f(x1, k, d, n); }, __VA_ARGS__})
#define AT_C_SFS(f, T, TD, ...) \
    v(at::Case<T, T, TD>{#f, at::Shape::Const, true, [](const T* x1, T*, TD* d, T k, int n, int sf) { return f(x1, k, d, n, sf); }, __VA_ARGS__})
#define AT_C_I(f, T, ...) \
    v(at::Case<T, T, T>{#f, at::Shape::ConstInPlace, false, [](const T* x1, T*, T*, T k, int n, int) { return f(k, const_cast<T*>(x1), n); }, __VA_ARGS__})
#define AT_C_I_SFS(f, T, ...) \
    v(at::Case<T, T, T>{#f, at::Shape::ConstInPlace, true, [](const T* x1, T*, T*, T k, int n, int sf) { return f(k, const_cast<T*>(x1), n, sf); }, __VA_ARGS__})

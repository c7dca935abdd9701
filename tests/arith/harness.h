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

// Complex edges pair every edge value with another.
template <class T>
std::vector<T> edges() {
    if constexpr (Cplx<T>::value) {
        const auto e = vt::edgeValues<decltype(T{}.re)>();
        std::vector<T> v;
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
    if constexpr (Cplx<T>::value) return same(a.re, b.re) && same(a.im, b.im);
    else if constexpr (std::is_floating_point<T>::value) return (a != a && b != b) || memcmp(&a, &b, sizeof a) == 0;
    else return a == b;
}

template <class T>
std::string show(const T& v) {
    if constexpr (Cplx<T>::value) return "(" + show(v.re) + ", " + show(v.im) + ")";
    else return ::testing::PrintToString(+v);
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

// One length whose output passes 4 MiB, the size from which the library
// writes long outputs with streaming stores: on a 16-byte boundary
// (streamed) and one element off (ordinary stores).
template <class TD>
std::vector<Plan> longPlans() {
    return {{0, {static_cast<int>((size_t(4) << 20) / sizeof(TD)) + 7}, {0, 1}}};
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
    // A zero constant is an error (checked by contract()).
    bool nonZeroConst = false;
};

template <class T>
T one() {
    if constexpr (Cplx<T>::value) return T{1, 0};
    else return T(1);
}
template <class T>
bool isZero(const T& v) {
    if constexpr (Cplx<T>::value) return v.re == 0 && v.im == 0;
    else return v == 0;
}

// Out of place, the destination starts with random data. Whole-vector
// models receive the destination's contents before the call: accumulating
// exports read them, refused calls keep them.
template <class T1, class T2, class TD>
void check(const Case<T1, T2, TD>& c, uint64_t seed, const std::vector<Plan>& plan) {
    SCOPED_TRACE(c.name);
    vt::Rng rng(seed);
    for (const Plan& p : plan) {
        for (int n : p.lengths) {
            for (int m : p.misalign) {
                SCOPED_TRACE("sf " + std::to_string(p.sf) + " len " + std::to_string(n) + " misalign " + std::to_string(m));
                const std::vector<T1> x1 = data<T1>(rng, n);
                std::vector<T2> x2 = data<T2>(rng, n);
                std::vector<TD> want = data<TD>(rng, n);
                T2 k = rng.range(0, 2) ? edges<T2>()[rng.range(0, edges<T2>().size() - 1)] : gen<T2>(rng);
                if (c.nonZeroConst && isZero(k)) k = one<T2>();
                if (c.shape == Shape::Const || c.shape == Shape::ConstInPlace) x2.assign(n, k);
                vt::Guarded<T1> g1(x1, m);
                vt::Guarded<T2> g2(x2, (m * 2) % 4);
                vt::Guarded<TD> gd(want, m);
                // what the destination holds before the call, which a model may read or keep
                if (c.shape == Shape::BinaryInPlace) memcpy(want.data(), x2.data(), n * sizeof(TD));
                if (c.shape == Shape::ConstInPlace) memcpy(want.data(), x1.data(), n * sizeof(TD));
                VekResult wantSt = VEK_OK;
                if (c.refv)
                    wantSt = c.refv(x1.data(), x2.data(), want.data(), n, p.sf);
                else
                    for (int i = 0; i < n; ++i) want[i] = c.ref(x1[i], x2[i], p.sf);
                // in place, the destination is x2 (binary) or x1 (constant)
                const TD* got = gd.data();
                if (c.shape == Shape::BinaryInPlace)
                    got = reinterpret_cast<const TD*>(g2.data()), g1.freeze(), gd.freeze();
                else if (c.shape == Shape::ConstInPlace)
                    got = reinterpret_cast<const TD*>(g1.data()), g2.freeze(), gd.freeze();
                else
                    g1.freeze(), g2.freeze();
                ASSERT_EQ(c.call(g1.data(), g2.data(), gd.data(), k, n, p.sf), wantSt);
                ASSERT_TRUE(g1.intact() && g2.intact() && gd.intact());
                ASSERT_TRUE(sameAll(got, want));
            }
        }
    }
}

template <class T1, class T2, class TD>
void check(const Case<T1, T2, TD>& c, uint64_t seed) {
    check(c, seed, plans(c.scaled));
}

// The same over longPlans if c is one of the rows named; returns whether
// it was.
template <class T1, class T2, class TD>
bool checkLong(const Case<T1, T2, TD>& c, uint64_t seed, std::initializer_list<const char*> names) {
    for (const char* name : names) {
        if (strcmp(name, c.name) == 0) {
            check(c, seed, longPlans<TD>());
            return true;
        }
    }
    return false;
}

// Null pointers (each the shape has, then all), len < 1, then a zero
// constant where that is an error: each refused with nothing written.
template <class T1, class T2, class TD>
void contract(const Case<T1, T2, TD>& c) {
    SCOPED_TRACE(c.name);
    vt::Rng rng(1);
    vt::Guarded<T1> g1(data<T1>(rng, 5));
    vt::Guarded<T2> g2(data<T2>(rng, 5));
    vt::Guarded<TD> gd(5);
    g1.freeze(), g2.freeze(), gd.freeze();
    const T2 k = c.nonZeroConst ? one<T2>() : gen<T2>(rng);
    auto call = [&](int nulls, int len, T2 kk) {
        return c.call(nulls & 1 ? nullptr : g1.data(), nulls & 2 ? nullptr : g2.data(), nulls & 4 ? nullptr : gd.data(), kk, len, 3);
    };
    const bool two = c.shape == Shape::Binary || c.shape == Shape::BinaryInPlace;
    const bool dst = c.shape == Shape::Binary || c.shape == Shape::Const;
    for (int nulls : {1, two ? 2 : 1, dst ? 4 : 1, 7}) EXPECT_EQ(call(nulls, 5, k), VEK_ERR_NULL_POINTER) << nulls;
    EXPECT_EQ(call(1, 0, T2{}), VEK_ERR_NULL_POINTER);
    for (int len : {0, -1, INT_MIN}) EXPECT_EQ(call(0, len, T2{}), VEK_ERR_SIZE) << len;
    if (c.nonZeroConst) {
        EXPECT_EQ(call(0, 5, T2{}), VEK_ERR_DIV_BY_ZERO);
    }
    EXPECT_TRUE(g1.intact() && g2.intact() && gd.intact());
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

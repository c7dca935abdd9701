// The SSE4.1 forms of the arithmetic kernels against their scalar twins and
// the frame's scalar rules, on values chosen around every rounding tie. (The
// element-wise and shift loops are covered through the exports, whose
// sweeps run both the vector bodies and the scalar tails.)
#include <limits.h>

#include "frame/detail/scale.h"
#include "kernels/divide.h"
#include "kernels/elementwise.h"
#include "kernels/float_to_int.h"
#include "kernels/sse/scale.h"
#include "support/support.h"

namespace {

// Every ordered pair of the factors f, as two operand vectors.
template <class T>
void allPairs(const std::vector<T>& f, std::vector<T>& x1, std::vector<T>& x2) {
    for (T p : f)
        for (T q : f) {
            x1.push_back(p);
            x2.push_back(q);
        }
}

using namespace veks;

// Exact lane values: ties, their neighbours, range ends and random values
// within the bound the families guarantee.
std::vector<int64_t> laneValues(int64_t lo, int64_t hi, int sf, uint64_t seed) {
    vt::Rng rng(seed);
    std::vector<int64_t> v = {lo, hi, 0, 1, -1, lo + 1, hi - 1};
    if (sf > 0)
        for (int64_t m = -9; m <= 9; ++m)
            for (int64_t d : {-1, 0, 1}) v.push_back(m * (int64_t(1) << (sf - 1)) + d);
    for (int i = 0; i < 2000; ++i) v.push_back(rng.range(lo, hi));
    for (int i = 0; i < 500; ++i) v.push_back(rng.range(-70000, 70000));
    std::vector<int64_t> r;
    for (int64_t x : v)
        if (x >= lo && x <= hi) r.push_back(x);
    while (r.size() % 4) r.push_back(0);
    return r;
}

template <class TD, bool Unsigned, sse::ScaleKind K>
void laneScaleAgrees(int sf, int64_t lo, int64_t hi) {
    const sse::LaneScale<TD, Unsigned> sc(sf);
    const auto vals = laneValues(lo, hi, sf, 40 + sf);
    for (size_t i = 0; i < vals.size(); i += 4) {
        const __m128i s = _mm_setr_epi32(int32_t(vals[i]), int32_t(vals[i + 1]), int32_t(vals[i + 2]), int32_t(vals[i + 3]));
        int32_t out[4];
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), sc.template apply<K>(s));
        for (int k = 0; k < 4; ++k)
            ASSERT_EQ(out[k], int32_t(scaleSat<TD>(vals[i + k], sf))) << "s " << vals[i + k] << " sf " << sf;
    }
}

template <class TD, bool Unsigned>
void laneScaleAllFactors(int64_t lo, int64_t hi) {
    for (int sf = -40; sf <= 40; ++sf) {
        if (!sse::LaneScale<TD, Unsigned>::covers(sf)) continue;
        if (sf > 0) laneScaleAgrees<TD, Unsigned, sse::ScaleKind::Right>(sf, lo, hi);
        if (sf < 0) laneScaleAgrees<TD, Unsigned, sse::ScaleKind::Left>(sf, lo, hi);
        if (sf == 0) laneScaleAgrees<TD, Unsigned, sse::ScaleKind::Sat>(sf, lo, hi);
    }
}

TEST(LaneScale, MatchesScalarRule) {
    // signed lanes up to 2^31 - 2^15 in magnitude, unsigned below 2^32 - 2^16
    laneScaleAllFactors<T16s, false>(-(int64_t(1) << 31) + (1 << 15), (int64_t(1) << 31) - (1 << 15));
    laneScaleAllFactors<T16u, false>(-(int64_t(1) << 31) + (1 << 15), (int64_t(1) << 31) - (1 << 15));
    laneScaleAllFactors<T8u, false>(-(int64_t(1) << 31) + (1 << 15), (int64_t(1) << 31) - (1 << 15));
    laneScaleAllFactors<T16u, true>(0, 65535LL * 65535LL);
    EXPECT_FALSE((sse::LaneScale<T16s>::covers(16)));
    EXPECT_FALSE((sse::LaneScale<T16s>::covers(-16)));
    EXPECT_FALSE((sse::LaneScale<T8u>::covers(-8)));
}

// Every dividend of a 16- or 8-bit type over a spread of divisors: the
// vector quotient and its twin agree in every rounding mode, and for the
// processor's rounding equal the correctly rounded single-precision quotient.
template <class T, int Mode>
void divideAllDividends(const std::vector<T>& num, int dv, int sf, std::vector<T>& v) {
    const int n = static_cast<int>(num.size());
    std::vector<T> s(n);
    const bool zv = kern::divideIntLoop<T, Mode>(kern::Bcast<T>{T(dv)}, kern::Arr<T>{num.data()}, v.data(), n, sf);
    const bool zs = kern::divideIntLoopScalar<T, Mode>(kern::Bcast<T>{T(dv)}, kern::Arr<T>{num.data()}, s.data(), n, sf);
    ASSERT_EQ(zv, zs);
    ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n)) << "divisor " << dv << " sf " << sf << " mode " << Mode;
}

template <class T>
void divideAllDividends(const std::vector<int>& divisors) {
    using L = std::numeric_limits<T>;
    std::vector<T> num;
    for (int64_t x = L::min(); x <= L::max(); ++x) num.push_back(T(x));
    std::vector<T> v(num.size());
    for (int dv : divisors) {
        for (int sf : {0, 3, -4, -14, -15, -30}) {
            divideAllDividends<T, VEK_ROUND_ZERO>(num, dv, sf, v);
            divideAllDividends<T, VEK_ROUND_NEAR>(num, dv, sf, v);
            divideAllDividends<T, VEK_ROUND_HALF_AWAY>(num, dv, sf, v);
            divideAllDividends<T, kern::kRoundCurrent>(num, dv, sf, v);
            for (size_t i = 0; dv != 0 && i < num.size(); ++i) {
                const double r = nearbyint(ldexp(static_cast<double>(static_cast<float>(num[i]) / static_cast<float>(dv)), -sf));
                ASSERT_EQ(v[i], r < L::min() ? L::min() : r > L::max() ? L::max() : T(r)) << num[i] << " / " << dv;
            }
        }
    }
}

TEST(DivideKernels, IntegerQuotients) {
    divideAllDividends<T16s>({1, -1, 2, 3, -3, 7, 10, 255, -32768, 32767, 12345, 0});
    divideAllDividends<T16u>({1, 2, 3, 7, 10, 255, 65535, 40000, 0});
    divideAllDividends<T8u>({1, 2, 3, 7, 10, 128, 255, 0});
}

TEST(DivideKernels, RefinedReciprocalLanesMatchScalar) {
    vt::Rng rng(22);
    const auto e = vt::edgeValues<float>();
    for (int i = 0; i < 4000; ++i) {
        float d[4], n[4], out[4];
        for (int k = 0; k < 4; ++k) {
            d[k] = (i + k) % 9 == 0 ? e[(i + k) % e.size()] : ldexpf(rng.next<float>(0.5, 1.0), int(rng.range(-130, 130)));
            n[k] = (i + k) % 7 == 0 ? e[(i * 3 + k) % e.size()] : rng.next<float>(-1e6, 1e6);
        }
        _mm_storeu_ps(out, kern::refinedQuotient(_mm_loadu_ps(n), _mm_loadu_ps(d)));
        for (int k = 0; k < 4; ++k) ASSERT_EQ(vt::ulpDistance(out[k], kern::refinedQuotient(n[k], d[k])), 0);
    }
}

TEST(FloatToIntKernels, MatchTwin) {
    vt::Rng rng(23);
    const int n = 99;
    std::vector<float> x(n);
    const auto e = vt::edgeValues<float>();
    for (int i = 0; i < n; ++i) x[i] = i % 3 ? rng.next<float>(-70000, 70000) : e[i % e.size()];
    for (int i = 0; i < n; i += 4) x[i] = float(rng.range(-80000, 80000)) + 0.5f;
    for (int sf : {-130, -127, -20, -1, 0, 1, 5, 126, 127, 200}) {
        std::vector<T16s> v(n), s(n);
        kern::mulScaleRound16sLoop(x.data(), 1.5f, v.data(), n, sf);
        kern::mulScaleRound16sScalar(x.data(), 1.5f, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n)) << "sf " << sf;
    }
}

// Sums and differences rounded in lanes of the element width: every scale
// factor the lanes take, operands at the range ends and around multiples of
// half the rounding step (so that the exact values fall on, beside and
// between ties), all pairs of them, vector and constant second operands.
template <class T>
std::vector<T> sumOperands(int sf, uint64_t seed) {
    using L = std::numeric_limits<T>;
    std::vector<int64_t> v = {L::min(), L::min() + 1, L::max(), L::max() - 1, 0, 1, -1, 2, -2};
    const int64_t h = int64_t(1) << (sf - 1);
    for (int64_t k = -4; k <= 4; ++k)
        for (int64_t e : {-1, 0, 1}) {
            v.push_back(k * h + e);
            v.push_back(L::max() - k * h + e);
            v.push_back(int64_t(L::min()) + k * h + e);
        }
    vt::Rng rng(seed);
    for (int i = 0; i < 40; ++i) v.push_back(rng.range(L::min(), L::max()));
    std::vector<T> r;
    for (int64_t x : v)
        if (x >= L::min() && x <= L::max()) r.push_back(T(x));
    if (sizeof(T) == 1)  // every value
        for (int x = 0; x < 256; ++x) r.push_back(T(x));
    return r;
}

template <class Op, class T>
void scaledSumsAgree(int sf) {
    const std::vector<T> ops = sumOperands<T>(sf, 50 + sf);
    std::vector<T> x1, x2;
    for (T p : ops)
        for (T q : ops) {
            x1.push_back(p);
            x2.push_back(q);
        }
    const int n = int(x1.size());
    std::vector<T> d(n);
    kern::scaledSumLoop<Op>(kern::Arr<T>{x1.data()}, kern::Arr<T>{x2.data()}, d.data(), n, sf);
    for (int i = 0; i < n; ++i)
        ASSERT_EQ(int64_t(d[i]), int64_t(scaleSat<T>(Op::i(x1[i], x2[i]), sf)))
            << int64_t(x1[i]) << ", " << int64_t(x2[i]) << " sf " << sf;
    for (size_t k = 0; k < ops.size(); k += 7) {
        kern::scaledSumLoop<Op>(kern::Arr<T>{x1.data()}, kern::Bcast<T>{ops[k]}, d.data(), n, sf);
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(int64_t(d[i]), int64_t(scaleSat<T>(Op::i(x1[i], ops[k]), sf)))
                << int64_t(x1[i]) << ", constant " << int64_t(ops[k]) << " sf " << sf;
    }
}

template <class T>
void scaledSumsAllFactors() {
    using R = typename kern::SumRound<T>::type;
    EXPECT_FALSE(R::covers(0));
    for (int sf = 1; R::covers(sf); ++sf) {
        scaledSumsAgree<kern::AddOp, T>(sf);
        scaledSumsAgree<kern::SubOp, T>(sf);
        scaledSumsAgree<kern::SubRevOp, T>(sf);
    }
}

TEST(ScaledSumKernels, MatchScalarRule) {
    scaledSumsAllFactors<T8u>();
    scaledSumsAllFactors<T16u>();
    scaledSumsAllFactors<T16s>();
    scaledSumsAllFactors<T32s>();
    EXPECT_TRUE(kern::SumRound<T8u>::type::covers(8));
    EXPECT_TRUE(kern::SumRound<T16s>::type::covers(15));
    EXPECT_TRUE(kern::SumRound<T32s>::type::covers(31));
}

// Factors of T for the product loops: range ends, powers of two and their
// neighbours (every kStep-th power), root and -root (whose squares sit at
// the top of the range), random ones.
template <class T>
std::vector<T> productFactors(int64_t root, int kStep, uint64_t seed) {
    using L = std::numeric_limits<T>;
    std::vector<int64_t> v = {L::min(), L::min() + 1, L::max(), L::max() - 1, 0, 1, -1, 3, -3, root, -root};
    for (int k = 1; k < 8 * int(sizeof(T)); k += kStep)
        for (int64_t e : {-1, 0, 1}) {
            v.push_back((int64_t(1) << k) + e);
            v.push_back(-(int64_t(1) << k) + e);
        }
    vt::Rng rng(seed);
    for (int i = 0; i < 30; ++i) v.push_back(rng.range(L::min(), L::max()));
    std::vector<T> f;
    for (int64_t x : v)
        if (x >= L::min() && x <= L::max()) f.push_back(T(x));
    return f;
}

// run(a, b, d, n, sf) against the scalar rule on all pairs of the factors,
// the second one a vector and (every fifth factor) a constant, for every
// scale factor from 0 to maxSf: exact products on and beside every tie.
template <class T, class Run>
void productsAgree(const std::vector<T>& f, int maxSf, Run run) {
    std::vector<T> x1, x2;
    allPairs(f, x1, x2);
    const int n = int(x1.size());
    std::vector<T> d(n);
    for (int sf = 0; sf <= maxSf; ++sf) {
        auto check = [&](auto b, const char* what) {
            run(kern::Arr<T>{x1.data()}, b, d.data(), n, sf);
            for (int i = 0; i < n; ++i)
                ASSERT_EQ(int64_t(d[i]), int64_t(scaleSat<T>(int64_t(x1[i]) * kern::at(b, i), sf)))
                    << int64_t(x1[i]) << " * " << int64_t(kern::at(b, i)) << " sf " << sf << " " << what;
        };
        check(kern::Arr<T>{x2.data()}, "vector");
        for (size_t k = 0; k < f.size(); k += 5) check(kern::Bcast<T>{f[k]}, "constant");
    }
}

// Products of 32-bit integers rounded in 64-bit lanes, every scale factor
// the lanes take.
TEST(ProductKernels, Int32MatchesScalarRule) {
    productsAgree(productFactors<T32s>(46341, 3, 60), 62, [](auto a, auto b, T32s* d, int n, int sf) {
        if (sf <= 31) kern::product32Loop(a, b, d, n, sf);
        else kern::product32WideLoop(a, b, d, n, sf);
    });
}

// The product rule in lanes, fed with exact 64-bit values: for every scale
// factor the lanes take, values on and beside the ties above even and odd
// quotients and the exact multiples, at both range ends and one step past
// them, the extreme products, and random products; each value in every lane.
std::vector<int64_t> productLaneValues(int sf, uint64_t seed) {
    const int64_t h = sf > 0 ? int64_t(1) << (sf - 1) : 0, step = int64_t(1) << sf;
    const int64_t maxP = int64_t(1) << 62, minP = -maxP + (int64_t(1) << 31);  // (-2^31)^2, -2^31 * (2^31 - 1)
    std::vector<int64_t> v = {0, 1, -1, maxP, minP, maxP - 1, minP + 1, maxP / 3, minP / 3};
    const int64_t quotients[] = {0, 1, 2, 3, -1, -2, -3, 12345, -12346, INT32_MAX, INT32_MAX - 1, INT32_MIN,
                                 INT32_MIN + 1, int64_t(INT32_MAX) + 1, int64_t(INT32_MIN) - 1};
    for (int64_t q : quotients)
        for (int64_t e : {-1, 0, 1}) {
            v.push_back(q * step + h + e);
            v.push_back(q * step + e);
        }
    vt::Rng rng(seed);
    for (int i = 0; i < 300; ++i) v.push_back(rng.range(INT32_MIN, INT32_MAX) * rng.range(INT32_MIN, INT32_MAX));
    const int64_t near = int64_t(1) << (sf < 30 ? 32 + sf : 62);  // around the range ends
    for (int i = 0; i < 100; ++i) v.push_back(rng.range(-near, near));
    std::vector<int64_t> r;
    for (int64_t x : v)
        if (x >= minP && x <= maxP) r.push_back(x);
    return r;
}

template <sse::ProductScale32::Form F>
void productLanesAgree(int sf) {
    const sse::ProductScale32 r(sf);
    const auto v = productLaneValues(sf, 80 + sf);
    for (size_t i = 0; i + 4 <= v.size(); ++i) {  // a sliding window: each value in each lane
        const __m128i ev = _mm_set_epi64x(v[i + 2], v[i]), od = _mm_set_epi64x(v[i + 3], v[i + 1]);
        int32_t out[4];
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), r.apply<F>(ev, od));
        for (int k = 0; k < 4; ++k)
            ASSERT_EQ(out[k], scaleSat<T32s>(v[i + k], sf)) << "p " << v[i + k] << " sf " << sf << " lane " << k;
    }
}

TEST(ProductKernels, Int32LanesMatchScalarRule) {
    for (int sf = 0; sf <= 40; ++sf) {
        if (!sse::ProductScale32::covers(sf)) {
            EXPECT_GE(sf, 32);
            continue;
        }
        using P = sse::ProductScale32;
        switch (P::formOf(sf)) {
            case P::Form::Unscaled: productLanesAgree<P::Form::Unscaled>(sf); break;
            case P::Form::Scaled: productLanesAgree<P::Form::Scaled>(sf); break;
            case P::Form::Scaled31: productLanesAgree<P::Form::Scaled31>(sf); break;
        }
        // The end from the sign of p holds wherever there is rounding.
        if (sf > 0) productLanesAgree<P::Form::Scaled31>(sf);
    }
}

// The 32-bit product loops at every length up to a few steps, in exactly
// sized buffers (a sanitizer sees any read past the sources), with a
// varying or repeated operand on either side.
TEST(ProductKernels, Int32LoopsEveryLength) {
    vt::Rng rng(61);
    const int32_t edges[] = {INT32_MIN, INT32_MAX, 0, -1, 1, 46341, -46341, 65536, -65535};
    for (int n = 0; n <= 37; ++n) {
        std::vector<int32_t> x(n), y(n), d(n + 1);
        for (int i = 0; i < n; ++i) {
            x[i] = i % 5 == 0 ? edges[(i / 5) % 9] : int32_t(rng.range(INT32_MIN, INT32_MAX));
            y[i] = i % 3 == 0 ? edges[(i + n) % 9] : int32_t(rng.range(-70000, 70000));
        }
        for (int sf : {0, 1, 3, 17, 30, 31, 32, 45, 62}) {
            const int32_t c = edges[(n + sf) % 9];
            auto run = [&](auto a, auto b) {
                d[n] = 0x5a5a5a5a;
                if (sf <= 31) kern::product32Loop(a, b, d.data(), n, sf);
                else kern::product32WideLoop(a, b, d.data(), n, sf);
                for (int i = 0; i < n; ++i)
                    ASSERT_EQ(d[i], scaleSat<T32s>(int64_t(kern::at(a, i)) * kern::at(b, i), sf))
                        << "n " << n << " sf " << sf << " i " << i;
                ASSERT_EQ(d[n], 0x5a5a5a5a) << "n " << n << " sf " << sf;
            };
            run(kern::Arr<T32s>{x.data()}, kern::Arr<T32s>{y.data()});
            run(kern::Arr<T32s>{x.data()}, kern::Bcast<T32s>{c});
            run(kern::Bcast<T32s>{c}, kern::Arr<T32s>{y.data()});
        }
    }
}

// Products of 8u, 16u and 16s elements, every scale factor 0..15.
template <class T>
void narrowProductsAgree() {
    productsAgree(productFactors<T>(181, 1, 70), 15, [](auto a, auto b, T* d, int n, int sf) {
        if (sf == 0) kern::narrowProductLoop<false, T>(a, b, d, n, sf);
        else kern::narrowProductLoop<true, T>(a, b, d, n, sf);
    });
}

TEST(ProductKernels, NarrowMatchScalarRule) {
    narrowProductsAgree<T8u>();
    narrowProductsAgree<T16u>();
    narrowProductsAgree<T16s>();
}

}  // namespace

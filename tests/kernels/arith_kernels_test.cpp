// The SSE4.1 forms of the arithmetic kernels against their scalar twins and
// the frame's scalar rules, on values chosen around every rounding tie.
#include <limits.h>

#include "frame/detail/scale.h"
#include "kernels/arith_ops.h"
#include "kernels/bits.h"
#include "kernels/divide.h"
#include "kernels/elementwise.h"
#include "kernels/float_to_int.h"
#include "kernels/sse/scale.h"
#include "support/support.h"

namespace {

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

template <class Op, class T1, class T2, class TD>
void intLoopAgrees(uint64_t seed) {
    vt::Rng rng(seed);
    const int n = 203;
    std::vector<T1> a(n);
    std::vector<T2> b(n);
    for (auto& x : a) x = rng.next<T1>();
    for (auto& x : b) x = rng.next<T2>();
    for (int i = 0; i < n; i += 7) a[i] = static_cast<T1>(rng.range(0, 40));
    for (int sf = -20; sf <= 20; ++sf) {
        std::vector<TD> v(n), s(n);
        kern::intLoop<Op>(kern::Arr<T1>{a.data()}, kern::Arr<T2>{b.data()}, v.data(), n, sf);
        kern::intLoopScalar<Op>(kern::Arr<T1>{a.data()}, kern::Arr<T2>{b.data()}, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n)) << "sf " << sf;
        kern::intLoop<Op>(kern::Arr<T1>{a.data()}, kern::Bcast<T2>{b[5]}, v.data(), n, sf);
        kern::intLoopScalar<Op>(kern::Arr<T1>{a.data()}, kern::Bcast<T2>{b[5]}, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n)) << "sf " << sf;
    }
}

TEST(ElementwiseKernels, IntegerVectorMatchesTwin) {
    intLoopAgrees<kern::AddOp, T16s, T16s, T16s>(1);
    intLoopAgrees<kern::SubOp, T16u, T16u, T16u>(2);
    intLoopAgrees<kern::SubRevOp, T8u, T8u, T8u>(3);
    intLoopAgrees<kern::MulRealOp, T16s, T16s, T16s>(4);
    intLoopAgrees<kern::MulUnsignedOp, T16u, T16u, T16u>(5);
    intLoopAgrees<kern::MulRealOp, T16u, T16s, T16s>(6);
    intLoopAgrees<kern::MulRealOp, T8u, T8u, T16u>(7);
    intLoopAgrees<kern::MulRealOp, T8u, T8u, T8u>(8);
    // 32-bit results through double lanes
    intLoopAgrees<kern::AddOp, T32s, T32s, T32s>(9);
    intLoopAgrees<kern::SubOp, T32s, T32s, T32s>(10);
    intLoopAgrees<kern::SubRevOp, T32s, T32s, T32s>(11);
    intLoopAgrees<kern::MulRealOp, T16s, T16s, T32s>(12);
}

template <class Op, class T>
void floatLoopAgrees(uint64_t seed) {
    vt::Rng rng(seed);
    const int n = 77;
    std::vector<T> a(n), b(n);
    const auto e = vt::edgeValues<T>();
    for (int i = 0; i < n; ++i) {
        a[i] = i % 4 == 1 ? e[i % e.size()] : rng.next<T>(-10, 10);
        b[i] = i % 5 == 2 ? e[(i * 3) % e.size()] : rng.next<T>(-10, 10);
    }
    std::vector<T> v(n), s(n);
    kern::floatLoop<Op>(kern::Arr<T>{a.data()}, kern::Arr<T>{b.data()}, v.data(), n);
    kern::floatLoopScalar<Op>(kern::Arr<T>{a.data()}, kern::Arr<T>{b.data()}, s.data(), n);
    for (int i = 0; i < n; ++i) ASSERT_EQ(vt::ulpDistance(v[i], s[i]), 0) << i;
}

TEST(ElementwiseKernels, FloatVectorMatchesTwin) {
    floatLoopAgrees<kern::AddOp, float>(11);
    floatLoopAgrees<kern::SubOp, float>(12);
    floatLoopAgrees<kern::MulRealOp, double>(13);
    floatLoopAgrees<kern::SubRevOp, double>(14);
    // complex products: the vector form against the scalar formula
    vt::Rng rng(15);
    const int n = 33;
    std::vector<T32fc> a(n), b(n), v(n);
    for (int i = 0; i < n; ++i) {
        a[i] = {rng.next<float>(-9, 9), rng.next<float>(-9, 9)};
        b[i] = {rng.next<float>(-9, 9), rng.next<float>(-9, 9)};
    }
    kern::floatLoop<kern::MulCplxOp>(kern::Arr<T32fc>{a.data()}, kern::Arr<T32fc>{b.data()}, v.data(), n);
    for (int i = 0; i < n; ++i) {
        const T32fc w = kern::MulCplxOp::s(a[i], b[i]);
        ASSERT_EQ(memcmp(&v[i], &w, sizeof w), 0) << i;
    }
}

// Every 16-bit dividend over a spread of divisors: the vector quotient, the
// twin, and the correctly rounded single-precision quotient all agree.
template <class T>
void divideAllDividends(const std::vector<int>& divisors) {
    std::vector<T> num;
    for (int64_t x = std::numeric_limits<T>::min(); x <= std::numeric_limits<T>::max(); ++x) num.push_back(T(x));
    const int n = static_cast<int>(num.size());
    std::vector<T> v(n), s(n);
    for (int dv : divisors) {
        for (int sf : {0, 3, -4}) {
            const bool zv = kern::divideIntLoop<T, kern::kRoundCurrent>(kern::Bcast<T>{T(dv)}, kern::Arr<T>{num.data()}, v.data(), n, sf);
            const bool zs = kern::divideIntLoopScalar<T, kern::kRoundCurrent>(kern::Bcast<T>{T(dv)}, kern::Arr<T>{num.data()}, s.data(), n, sf);
            ASSERT_EQ(zv, zs);
            ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n)) << "divisor " << dv << " sf " << sf;
            if (dv == 0) continue;
            for (int i = 0; i < n; ++i) {
                const double q = ldexp(static_cast<double>(static_cast<float>(num[i]) / static_cast<float>(dv)), -sf);
                const double r = nearbyint(q);
                const T want = r < std::numeric_limits<T>::min() ? std::numeric_limits<T>::min()
                               : r > std::numeric_limits<T>::max() ? std::numeric_limits<T>::max() : T(r);
                ASSERT_EQ(v[i], want) << num[i] << " / " << dv;
            }
        }
    }
}

TEST(DivideKernels, IntegerQuotients) {
    divideAllDividends<T16s>({1, -1, 2, 3, -3, 7, 10, 255, -32768, 32767, 12345, 0});
    divideAllDividends<T16u>({1, 2, 3, 7, 10, 255, 65535, 40000, 0});
    divideAllDividends<T8u>({1, 2, 3, 7, 10, 128, 255, 0});
}

TEST(DivideKernels, RoundModesMatchTwin) {
    vt::Rng rng(21);
    const int n = 301;
    std::vector<T16s> a(n), b(n), v(n), s(n);
    for (int i = 0; i < n; ++i) {
        a[i] = static_cast<T16s>(rng.range(-8, 8));
        b[i] = i % 2 ? rng.next<T16s>() : static_cast<T16s>(rng.range(-50, 50));
    }
    for (int sf = -5; sf <= 5; ++sf) {
        kern::divideIntLoop<T16s, VEK_ROUND_ZERO>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, v.data(), n, sf);
        kern::divideIntLoopScalar<T16s, VEK_ROUND_ZERO>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n));
        kern::divideIntLoop<T16s, VEK_ROUND_NEAR>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, v.data(), n, sf);
        kern::divideIntLoopScalar<T16s, VEK_ROUND_NEAR>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n));
        kern::divideIntLoop<T16s, VEK_ROUND_HALF_AWAY>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, v.data(), n, sf);
        kern::divideIntLoopScalar<T16s, VEK_ROUND_HALF_AWAY>(kern::Arr<T16s>{a.data()}, kern::Arr<T16s>{b.data()}, s.data(), n, sf);
        ASSERT_TRUE(vt::sameElements(v.data(), s.data(), n));
    }
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

TEST(BitKernels, ShiftsMatchTwin) {
    vt::Rng rng(24);
    const int n = 70;
    std::vector<T8u> a(n), v(n);
    for (auto& x : a) x = rng.next<T8u>();
    for (int k = 0; k <= 9; ++k) {
        kern::shiftLoop<true>(a.data(), v.data(), n, k);
        for (int i = 0; i < n; ++i) ASSERT_EQ(v[i], kern::shiftLeft(a[i], k)) << k;
        kern::shiftLoop<false>(a.data(), v.data(), n, k);
        for (int i = 0; i < n; ++i) ASSERT_EQ(v[i], kern::shiftRight(a[i], k)) << k;
    }
}

}  // namespace

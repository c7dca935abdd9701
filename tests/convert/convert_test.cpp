// Convert: every member against the reference models over tail-crossing
// lengths, misaligned starts, every rounding mode and a spread of scale
// factors, each call made under one of the four caller rounding settings
// (the results must not depend on it, and it must come back unchanged).
#include <limits.h>

#include "convert_support.h"
#include "ref/convert_ref.h"

namespace {

using vtc::Call;
using vtc::kData;
using vtc::sprinkle;
using vtc::sweep;

// ---- floating to integer ------------------------------------------------------

template <class TSrc>
std::vector<TSrc> floatData(uint64_t seed, int64_t lo, int64_t hi, int sf) {
    vt::Rng rng(seed);
    const long double span = ldexpl(static_cast<long double>(hi) - static_cast<long double>(lo), sf);
    std::vector<TSrc> v(kData);
    for (size_t i = 0; i < v.size(); ++i) {
        const long double u = rng.next<double>(-0.2, 1.2);
        const long double x = ldexpl(static_cast<long double>(lo), sf) + u * span;
        switch (i % 4) {
            case 0: v[i] = static_cast<TSrc>(x); break;                                     // anywhere
            case 1: v[i] = static_cast<TSrc>(ldexpl(floorl(ldexpl(x, -sf)) + 0.5L, sf)); break;  // ties
            case 2: v[i] = static_cast<TSrc>(ldexpl(floorl(ldexpl(x, -sf)), sf)); break;         // integers
            default: v[i] = static_cast<TSrc>(rng.next<double>(-3, 3)); break;              // near zero
        }
    }
    std::vector<TSrc> edges = vt::edgeValues<TSrc>();
    for (int64_t b : {lo, hi}) {
        const TSrc e = static_cast<TSrc>(ldexpl(static_cast<long double>(b), sf));
        edges.push_back(e);
        edges.push_back(nextafter(e, TSrc(0)));
        edges.push_back(nextafter(e, e > 0 ? INFINITY : -INFINITY));
        edges.push_back(static_cast<TSrc>(ldexpl(static_cast<long double>(b) + (b > 0 ? 0.5L : -0.5L), sf)));
    }
    edges.push_back(static_cast<TSrc>(-0.5));
    edges.push_back(static_cast<TSrc>(ldexpl(-0.5L, sf)));
    edges.push_back(static_cast<TSrc>(ldexpl(0.49999997L, sf)));
    sprinkle(v, edges);
    return v;
}

template <class TSrc, class TDst>
struct FloatToIntCase {
    const char* name;
    Call<TSrc, TDst> call;
    bool hasMode;
};

template <class TDst>
int64_t loOf() {
    if constexpr (std::is_same<TDst, T24s>::value) return -(1 << 23);
    else if constexpr (std::is_same<TDst, T24u>::value) return 0;
    else return std::numeric_limits<TDst>::min();
}
template <class TDst>
int64_t hiOf() {
    if constexpr (std::is_same<TDst, T24s>::value) return (1 << 23) - 1;
    else if constexpr (std::is_same<TDst, T24u>::value) return (1 << 24) - 1;
    else return std::numeric_limits<TDst>::max();
}

template <class TDst>
TDst fromInt(int64_t v) {
    if constexpr (std::is_same<TDst, T24s>::value || std::is_same<TDst, T24u>::value) {
        TDst r;
        r.b[0] = static_cast<unsigned char>(v);
        r.b[1] = static_cast<unsigned char>(v >> 8);
        r.b[2] = static_cast<unsigned char>(v >> 16);
        return r;
    } else {
        return static_cast<TDst>(v);
    }
}

const int kModes[] = {VEK_ROUND_ZERO, VEK_ROUND_NEAR, VEK_ROUND_HALF_AWAY, 7, -1};

template <class TSrc, class TDst>
void checkFloatToInt(const FloatToIntCase<TSrc, TDst>& c) {
    SCOPED_TRACE(c.name);
    const int64_t lo = loOf<TDst>(), hi = hiOf<TDst>();
    // Ordinary factors, the ends of the vector path (a normal power of two
    // of the source type) and beyond it.
    const int sfs[] = {0, 1, 3, -2, -9, 20, 126, 127, -127, -128, 200, -300, INT_MAX, INT_MIN};
    uint64_t seed = 100;
    for (int sf : sfs) {
        const int dataSf = sf > 1000 ? 1000 : sf < -1000 ? -1000 : sf;
        const auto data = floatData<TSrc>(seed++, lo, hi, std::is_same<TSrc, float>::value && (dataSf > 100 || dataSf < -100) ? 0 : dataSf);
        for (int mode : kModes) {
            if (!c.hasMode && mode != VEK_ROUND_NEAR) continue;
            std::vector<TDst> want(data.size());
            for (size_t i = 0; i < data.size(); ++i) want[i] = fromInt<TDst>(ref::floatToInt(data[i], mode, sf, lo, hi));
            ASSERT_TRUE(sweep(c.call, data, want, mode, sf)) << "mode " << mode << " sf " << sf;
        }
    }
}

#define RND_SFS(f, TS, TD) \
    FloatToIntCase<TS, TD> { #f, [](const TS* s, TD* d, int n, int m, int sf) { return f(s, d, n, m, sf); }, true }
#define SFS_ONLY(f, TS, TD) \
    FloatToIntCase<TS, TD> { #f, [](const TS* s, TD* d, int n, int, int sf) { return f(s, d, n, sf); }, false }

TEST(ConvertFloatToInt, EveryMemberMatchesTheModel) {
    checkFloatToInt(RND_SFS(veksConvert_32f8s_Sfs, T32f, T8s));
    checkFloatToInt(RND_SFS(veksConvert_32f8u_Sfs, T32f, T8u));
    checkFloatToInt(RND_SFS(veksConvert_32f16s_Sfs, T32f, T16s));
    checkFloatToInt(RND_SFS(veksConvert_32f16u_Sfs, T32f, T16u));
    checkFloatToInt(RND_SFS(veksConvert_32f32s_Sfs, T32f, T32s));
    checkFloatToInt(SFS_ONLY(veksConvert_32f24s_Sfs, T32f, T24s));
    checkFloatToInt(SFS_ONLY(veksConvert_32f24u_Sfs, T32f, T24u));
    checkFloatToInt(RND_SFS(veksConvert_64f16s_Sfs, T64f, T16s));
    checkFloatToInt(RND_SFS(veksConvert_64f32s_Sfs, T64f, T32s));
    checkFloatToInt(RND_SFS(veksConvert_64f64s_Sfs, T64f, T64s));
}

// The rules that are easiest to get wrong, by value.
TEST(ConvertFloatToInt, TiesNaNAndRangeEnds) {
    struct Row {
        float x;
        int mode, sf;
        T16s want;
    } rows[] = {
        {2.5f, 1, 0, 2},       {2.5f, 2, 0, 3},         {2.5f, 0, 0, 2},          {-2.5f, 1, 0, -2},
        {-2.5f, 2, 0, -3},     {-2.5f, 0, 0, -2},       {3.5f, 1, 0, 4},          {NAN, 0, 0, 32767},
        {-NAN, 2, 0, 32767},   {40000.0f, 1, 0, 32767}, {-40000.0f, 1, 0, -32768}, {-INFINITY, 0, 0, -32768},
        {0.49999997f, 2, 0, 0}, {5.0f, 1, 1, 2},        {7.0f, 2, 1, 4},          {-7.0f, 0, 1, -3},
        {1.0f, 1, -15, 32767}, {-1.0f, 1, -15, -32768}, {32767.4f, 1, 0, 32767},  {-32768.6f, 0, 0, -32768},
    };
    for (const Row& r : rows) {
        T16s out = 0;
        ASSERT_EQ(veksConvert_32f16s_Sfs(&r.x, &out, 1, r.mode, r.sf), VEK_OK);
        EXPECT_EQ(out, r.want) << r.x << " mode " << r.mode << " sf " << r.sf;
    }
    // 2^31 rounds to no 32-bit value: it and NaN give the maximum.
    const float big[] = {2147483648.0f, NAN, -2147483648.0f, -3e9f, 2147483520.0f};
    const T32s want[] = {INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN, 2147483520};
    for (int mode = 0; mode < 3; ++mode) {
        T32s out[5];
        ASSERT_EQ(veksConvert_32f32s_Sfs(big, out, 5, mode, 0), VEK_OK);
        EXPECT_TRUE(vt::sameElements(out, want, 5)) << "mode " << mode;
    }
}

// ---- integer to floating ------------------------------------------------------

template <class TSrc>
std::vector<TSrc> intData(uint64_t seed) {
    vt::Rng rng(seed);
    std::vector<TSrc> v(kData);
    for (size_t i = 0; i < v.size(); ++i) {
        if constexpr (std::is_same<TSrc, T24s>::value || std::is_same<TSrc, T24u>::value) {
            for (auto& b : v[i].b) b = rng.next<uint8_t>();
        } else if (i % 3 == 0) {
            v[i] = static_cast<TSrc>(rng.range(-300, 300));  // small magnitudes, exact everywhere
        } else {
            v[i] = rng.next<TSrc>();
        }
    }
    if constexpr (std::is_integral<TSrc>::value) sprinkle(v, vt::edgeValues<TSrc>());
    return v;
}

template <class T>
long double valueOf(const T& v) {
    if constexpr (std::is_same<T, T24s>::value) {
        const int32_t w = static_cast<int32_t>(v.b[0] | v.b[1] << 8 | v.b[2] << 16);
        return (w & 0x800000) ? w - 0x1000000 : w;
    } else if constexpr (std::is_same<T, T24u>::value) {
        return v.b[0] | v.b[1] << 8 | v.b[2] << 16;
    } else {
        return static_cast<long double>(v);
    }
}

template <class TSrc, class TDst>
void checkToFloat(const char* name, const Call<TSrc, TDst>& call, std::vector<int> sfs, uint64_t seed) {
    SCOPED_TRACE(name);
    std::vector<TSrc> data;
    if constexpr (std::is_floating_point<TSrc>::value) {
        // Random bit patterns: every exponent, subnormals, NaNs.
        vt::Rng rng(seed);
        using U = typename std::conditional<sizeof(TSrc) == 4, uint32_t, uint64_t>::type;
        data.resize(kData);
        for (auto& x : data) {
            const U bits = rng.next<U>();
            memcpy(&x, &bits, sizeof x);
        }
        sprinkle(data, vt::edgeValues<TSrc>());
    } else {
        data = intData<TSrc>(seed);
    }
    for (int sf : sfs) {
        std::vector<TDst> want(data.size());
        for (size_t i = 0; i < data.size(); ++i) want[i] = ref::toFloat<TDst>(valueOf(data[i]), sf);
        ASSERT_TRUE(sweep(call, data, want, VEK_ROUND_NEAR, sf)) << "sf " << sf;
    }
}

#define PLAIN(f, TS, TD) \
    #f, Call<TS, TD>([](const TS* s, TD* d, int n, int, int) { return f(s, d, n); }), std::vector<int>{0}
#define SFS(f, TS, TD) \
    #f, Call<TS, TD>([](const TS* s, TD* d, int n, int, int sf) { return f(s, d, n, sf); })
// A plain member where the harness passes a scale factor (always 0).
#define PLAIN_AT0(f, TS, TD) \
    #f, Call<TS, TD>([](const TS* s, TD* d, int n, int, int) { return f(s, d, n); })

TEST(ConvertToFloat, EveryMemberMatchesTheModel) {
    // Inside and at the ends of the vector path, subnormal and overflowing
    // results beyond it.
    const std::vector<int> sfs = {0, 1, 5, -3, 15, 31, 126, 127, 140, -96, -120, -127, -128, -1100, 1100, INT_MIN, INT_MAX};
    checkToFloat(PLAIN(veksConvert_8s32f, T8s, T32f), 1);
    checkToFloat(PLAIN(veksConvert_8u32f, T8u, T32f), 2);
    checkToFloat(PLAIN(veksConvert_16s32f, T16s, T32f), 3);
    checkToFloat(SFS(veksConvert_16s32f_Sfs, T16s, T32f), sfs, 4);
    checkToFloat(SFS(veksConvert_16s64f_Sfs, T16s, T64f), sfs, 5);
    checkToFloat(PLAIN(veksConvert_16u32f, T16u, T32f), 6);
    checkToFloat(PLAIN(veksConvert_24s32f, T24s, T32f), 7);
    checkToFloat(PLAIN(veksConvert_24u32f, T24u, T32f), 8);
    checkToFloat(PLAIN(veksConvert_32s32f, T32s, T32f), 9);
    checkToFloat(SFS(veksConvert_32s32f_Sfs, T32s, T32f), sfs, 10);
    checkToFloat(PLAIN(veksConvert_32s64f, T32s, T64f), 11);
    checkToFloat(SFS(veksConvert_32s64f_Sfs, T32s, T64f), {0, 1, 31, -31, 1022, 1023, 1050, 1080, -1023, -1024, INT_MIN}, 12);
    checkToFloat(PLAIN(veksConvert_64s64f, T64s, T64f), 13);
    checkToFloat(PLAIN(veksConvert_32f64f, T32f, T64f), 14);
    checkToFloat(PLAIN(veksConvert_64f32f, T64f, T32f), 15);
}

TEST(ConvertToFloat, RoundsOnceToNearestEven) {
    // 2^24 + 1 and 2^24 + 3 are ties between floats; 2^53 + 1 between doubles.
    const T32s s[] = {16777217, 16777219, -16777217, 2147483647};
    const T32f want[] = {16777216.0f, 16777220.0f, -16777216.0f, 2147483648.0f};
    T32f got[4];
    ASSERT_EQ(veksConvert_32s32f(s, got, 4), VEK_OK);
    EXPECT_TRUE(vt::sameElements(got, want, 4));
    const T64s l[] = {(1LL << 53) + 1, (1LL << 53) + 3, -((1LL << 53) + 1), INT64_MAX, INT64_MIN};
    const T64f wl[] = {9007199254740992.0, 9007199254740996.0, -9007199254740992.0, 9223372036854775808.0,
                       -9223372036854775808.0};
    T64f gl[5];
    ASSERT_EQ(veksConvert_64s64f(l, gl, 5), VEK_OK);
    EXPECT_TRUE(vt::sameElements(gl, wl, 5));
}

// ---- integer to integer ----------------------------------------------------------

template <class TSrc, class TDst>
void checkIntToInt(const char* name, const Call<TSrc, TDst>& call, const std::vector<int>& modes,
                   const std::vector<int>& sfs, uint64_t seed) {
    SCOPED_TRACE(name);
    const auto data = intData<TSrc>(seed);
    for (int sf : sfs)
        for (int mode : modes) {
            std::vector<TDst> want(data.size());
            for (size_t i = 0; i < data.size(); ++i)
                want[i] = fromInt<TDst>(ref::scaleInt(static_cast<int64_t>(valueOf(data[i])), mode, sf, loOf<TDst>(), hiOf<TDst>()));
            ASSERT_TRUE(sweep(call, data, want, mode, sf)) << "mode " << mode << " sf " << sf;
        }
}

#define RSFS(f, TS, TD) \
    #f, Call<TS, TD>([](const TS* s, TD* d, int n, int m, int sf) { return f(s, d, n, m, sf); })

TEST(ConvertIntToInt, EveryMemberMatchesTheModel) {
    const std::vector<int> near = {VEK_ROUND_NEAR};
    const std::vector<int> modes = {0, 1, 2, 5};
    checkIntToInt(PLAIN_AT0(veksConvert_8s16s, T8s, T16s), near, {0}, 21);
    checkIntToInt(PLAIN_AT0(veksConvert_16s32s, T16s, T32s), near, {0}, 22);
    checkIntToInt(PLAIN_AT0(veksConvert_24s32s, T24s, T32s), near, {0}, 23);
    checkIntToInt(PLAIN_AT0(veksConvert_24u32u, T24u, T32u), near, {0}, 24);
    checkIntToInt(PLAIN_AT0(veksConvert_32s16s, T32s, T16s), near, {0}, 25);
    // Around each member's shortcuts and the vector path's limits.
    checkIntToInt(SFS(veksConvert_32s16s_Sfs, T32s, T16s), near,
                  {0, 1, 2, 7, 15, 16, 17, 30, 31, 32, 33, 200, -1, -5, -14, -15, -16, -17, -31, -32, INT_MIN, INT_MAX}, 26);
    checkIntToInt(SFS(veksConvert_32s24s_Sfs, T32s, T24s), near, {0, 1, 8, 24, 31, 32, 33, -1, -8, -23, -24, -25, INT_MIN}, 27);
    checkIntToInt(SFS(veksConvert_32u24u_Sfs, T32u, T24u), near, {0, 1, 8, 31, 32, 33, -1, -8, -24, -25, INT_MIN}, 28);
    checkIntToInt(RSFS(veksConvert_16s8s_Sfs, T16s, T8s), modes, {0, 1, 2, 8, 15, 16, 17, 18, 40, -1, -6, -7, -8, -9, INT_MIN, INT_MAX}, 29);
    checkIntToInt(RSFS(veksConvert_64s32s_Sfs, T64s, T32s), modes,
                  {0, 1, 17, 32, 62, 63, 64, 65, 1000, -1, -29, -30, -31, -32, -33, -70, INT_MIN, INT_MAX}, 30);
}

// ---- half precision ------------------------------------------------------------

std::vector<T16f> allHalves() {
    std::vector<T16f> v(65536);
    for (size_t i = 0; i < v.size(); ++i) v[i] = static_cast<T16f>(i);
    return v;
}

TEST(ConvertHalf, EveryPatternAndTheModesMatchTheModel) {
    const auto halves = allHalves();
    // Half to single: every pattern once, exactly.
    {
        std::vector<T32f> got(halves.size()), want(halves.size());
        for (size_t i = 0; i < halves.size(); ++i) want[i] = ref::halfToFloat(halves[i]);
        ASSERT_EQ(veksConvert_16f32f(halves.data(), got.data(), static_cast<int>(halves.size())), VEK_OK);
        EXPECT_TRUE(vt::sameElements(got.data(), want.data(), got.size()));
        ASSERT_TRUE(sweep(Call<T16f, T32f>([](const T16f* s, T32f* d, int n, int, int) { return veksConvert_16f32f(s, d, n); }),
                          std::vector<T16f>(halves.begin() + 31000, halves.begin() + 31000 + kData),
                          std::vector<T32f>(want.begin() + 31000, want.begin() + 31000 + kData), 1, 0));
    }
    // Single to half: random patterns (every exponent), the values around
    // each half's halfway points, and the edges.
    std::vector<T32f> floats(kData);
    vt::Rng rng(41);
    for (size_t i = 0; i < floats.size(); ++i) {
        if (i % 2) {
            const uint32_t bits = rng.next<uint32_t>();
            memcpy(&floats[i], &bits, 4);
        } else {
            // Near 16-bit-representable range, with 0, 1 or 2 ulps about ties.
            const T16f h = static_cast<T16f>(rng.next<uint16_t>() & 0xFBFF);
            const float a = ref::halfToFloat(h), b = ref::halfToFloat(static_cast<T16f>(h + 1));
            float mid = (a + b) / 2;
            if (i % 6 == 2) mid = nextafterf(mid, 0);
            if (i % 6 == 4) mid = nextafterf(mid, INFINITY);
            floats[i] = mid;
        }
    }
    sprinkle(floats, {65504.0f, 65519.996f, 65520.0f, -65520.0f, 65536.0f, 5.9604645e-8f, 2.9802322e-8f,
                      2.9802326e-8f, -2.9802322e-8f, 6.1035156e-5f, 6.1035152e-5f, 1e-45f, -0.0f, NAN, -INFINITY});
    for (int mode : {0, 1}) {
        std::vector<T16f> want(floats.size());
        for (size_t i = 0; i < floats.size(); ++i) want[i] = ref::floatToHalf(floats[i], mode);
        ASSERT_TRUE(sweep(Call<T32f, T16f>([](const T32f* s, T16f* d, int n, int m, int) { return veksConvert_32f16f(s, d, n, m); }),
                          floats, want, mode, 0))
            << "mode " << mode;
        // 16-bit integers: every value once.
        std::vector<T16s> ints(65536);
        std::vector<T16f> wantI(65536), gotI(65536);
        for (int i = 0; i < 65536; ++i) {
            ints[i] = static_cast<T16s>(i - 32768);
            wantI[i] = ref::floatToHalf(static_cast<float>(ints[i]), mode);
        }
        ASSERT_EQ(veksConvert_16s16f(ints.data(), gotI.data(), 65536, mode), VEK_OK);
        EXPECT_TRUE(vt::sameElements(gotI.data(), wantI.data(), 65536)) << "mode " << mode;
        // Half to 16-bit integers: every pattern, scaled both ways.
        for (int sf : {0, 1, -1, 4, -17, 25, INT_MIN}) {
            std::vector<T16s> got(65536), w(65536);
            for (int i = 0; i < 65536; ++i)
                w[i] = static_cast<T16s>(ref::floatToInt(ref::halfToFloat(halves[i]), mode, sf, -32768, 32767));
            ASSERT_EQ(veksConvert_16f16s_Sfs(halves.data(), got.data(), 65536, mode, sf), VEK_OK);
            EXPECT_TRUE(vt::sameElements(got.data(), w.data(), 65536)) << "mode " << mode << " sf " << sf;
        }
    }
}

TEST(ConvertHalf, KnownPatterns) {
    const struct {
        float x;
        int mode;
        T16f want;
    } rows[] = {
        {1.0f, 1, 0x3C00},     {-2.0f, 0, 0xC000},    {65504.0f, 1, 0x7BFF},   {65520.0f, 1, 0x7C00},
        {65520.0f, 0, 0x7BFF}, {1e6f, 0, 0x7BFF},     {-1e6f, 1, 0xFC00},      {INFINITY, 0, 0x7C00},
        {-0.0f, 1, 0x8000},    {5.9604645e-8f, 1, 0x0001}, {2.9802322e-8f, 1, 0x0000},  // 2^-25 ties to 0
        {8.940697e-8f, 1, 0x0002},  // 1.5 units ties to 2
        {6.1035156e-5f, 1, 0x0400}, {1.0009766f, 1, 0x3C01},
    };
    for (const auto& r : rows) {
        T16f got = 0;
        ASSERT_EQ(veksConvert_32f16f(&r.x, &got, 1, r.mode), VEK_OK);
        EXPECT_EQ(got, r.want) << r.x << " mode " << r.mode;
    }
}

}  // namespace

namespace {

// Outputs of 4 MiB and more take the streaming stores, with a scalar head
// up to the destination's first 16-byte boundary: one member per loop, on
// aligned and misaligned destinations.
template <class TSrc, class TDst, class Model>
void checkLong(const char* name, const vtc::Call<TSrc, TDst>& call, int mode, int sf, Model model) {
    SCOPED_TRACE(name);
    const size_t n = (size_t(4) << 20) / sizeof(TDst) + 37;
    vt::Rng rng(77);
    std::vector<TSrc> data(n);
    for (auto& x : data) {
        if constexpr (std::is_floating_point<TSrc>::value)
            x = static_cast<TSrc>(rng.next<double>(-40000, 40000) / (mode == 9 ? 40000 : 1));
        else
            x = rng.next<TSrc>();
    }
    std::vector<TDst> want(n);
    for (size_t i = 0; i < n; ++i) want[i] = model(data[i]);
    for (int mis : {0, 1}) {
        vt::Guarded<TSrc> src(data, mis);
        vt::Guarded<TDst> dst(n, mis);
        ASSERT_EQ(call(src.data(), dst.data(), static_cast<int>(n), mode, sf), VEK_OK);
        ASSERT_TRUE(vt::sameElements(dst.data(), want.data(), n)) << "misalign " << mis;
        ASSERT_TRUE(dst.intact());
    }
}

TEST(ConvertLong, StreamingStoresGiveTheSameResults) {
    checkLong(RSFS(veksConvert_32f16s_Sfs, T32f, T16s), 2, 1,
              [](T32f x) { return static_cast<T16s>(ref::floatToInt(x, 2, 1, -32768, 32767)); });
    checkLong(RSFS(veksConvert_64f32s_Sfs, T64f, T32s), 1, -3,
              [](T64f x) { return static_cast<T32s>(ref::floatToInt(x, 1, -3, INT32_MIN, INT32_MAX)); });
    checkLong(RSFS(veksConvert_32f8u_Sfs, T32f, T8u), 0, 8,
              [](T32f x) { return static_cast<T8u>(ref::floatToInt(x, 0, 8, 0, 255)); });
    checkLong(SFS(veksConvert_32s32f_Sfs, T32s, T32f), 0, 5, [](T32s x) { return ref::toFloat<T32f>(x, 5); });
    checkLong(PLAIN_AT0(veksConvert_64s64f, T64s, T64f), 0, 0, [](T64s x) { return ref::toFloat<T64f>(x, 0); });
    checkLong(PLAIN_AT0(veksConvert_32f64f, T32f, T64f), 9, 0, [](T32f x) { return static_cast<T64f>(x); });
    checkLong(PLAIN_AT0(veksConvert_64f32f, T64f, T32f), 9, 0, [](T64f x) { return static_cast<T32f>(x); });
    checkLong(PLAIN_AT0(veksConvert_16s32s, T16s, T32s), 0, 0, [](T16s x) { return static_cast<T32s>(x); });
    checkLong(PLAIN_AT0(veksConvert_8s16s, T8s, T16s), 0, 0, [](T8s x) { return static_cast<T16s>(x); });
    checkLong(SFS(veksConvert_32s16s_Sfs, T32s, T16s), 0, 3,
              [](T32s x) { return static_cast<T16s>(ref::scaleInt(x, 1, 3, -32768, 32767)); });
}

}  // namespace

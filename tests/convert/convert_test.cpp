// Every (pSrc, pDst, len, ...) member of the family from one table: against
// its reference model (lengths crossing every tail, misaligned starts, in
// place, each rounding mode and scale factor, under every caller rounding
// setting), on outputs long enough to stream, and the failure contract.
#include <limits.h>
#include <xmmintrin.h>

#include "ref/convert_ref.h"
#include "support/support.h"

namespace {

using Bytes = std::vector<unsigned char>;
constexpr size_t kData = 4099;

template <class T>
constexpr bool k24 = std::is_same<T, T24s>::value || std::is_same<T, T24u>::value;
template <class T>
T get(const void* p) { T v; memcpy(&v, p, sizeof v); return v; }
template <class T>
void put(void* p, T v) { memcpy(p, &v, sizeof v); }

// 24-bit elements as integers, and the ranges of the integer types.
template <class T>
long double valueOf(const T& v) {
    if constexpr (!k24<T>) return static_cast<long double>(v);
    else return (v.b[0] | v.b[1] << 8 | v.b[2] << 16) - (std::is_same<T, T24s>::value && (v.b[2] & 0x80) ? 1 << 24 : 0);
}
template <class T>
T fromInt(int64_t v) {
    if constexpr (!k24<T>) return static_cast<T>(v);
    else return T{{static_cast<unsigned char>(v), static_cast<unsigned char>(v >> 8), static_cast<unsigned char>(v >> 16)}};
}
template <class T>
struct Lim {
    static constexpr int64_t lo = std::numeric_limits<T>::min(), hi = static_cast<int64_t>(std::numeric_limits<T>::max());
};
template <>
struct Lim<T24s> { static constexpr int64_t lo = -(1 << 23), hi = (1 << 23) - 1; };
template <>
struct Lim<T24u> { static constexpr int64_t lo = 0, hi = (1 << 24) - 1; };

// Places edge values on lane boundaries near the start and across the end.
template <class T>
void sprinkle(std::vector<T>& v, const std::vector<T>& edges) {
    for (size_t i = 0, pos = 0; i < edges.size(); ++i, pos += (i % 3 == 0 ? 7 : 4)) v[pos] = edges[i];
    for (size_t i = 0; i < edges.size(); ++i) v[v.size() - 1 - (i * 5) % v.size()] = edges[i];
}

// Source data for a member converting TS to TD at scale factor sf.
template <class TS, class TD>
Bytes gen(uint64_t seed, int sf) {
    vt::Rng rng(seed);
    std::vector<TS> v(sizeof(TS) <= 2 ? 65536 : kData);
    for (size_t i = 0; i < v.size() * sizeof(TS); ++i) reinterpret_cast<unsigned char*>(v.data())[i] = rng.next<uint8_t>();
    if constexpr (!std::is_floating_point<TS>::value && sizeof(TS) <= 2) {
        for (size_t i = 0; i < v.size(); ++i) v[i] = static_cast<TS>(i * 40503 + seed);  // every pattern, mixed
    } else if constexpr (!std::is_floating_point<TS>::value) {
        for (size_t i = 0; i < v.size(); i += 3) v[i] = fromInt<TS>(rng.range(-300, 300));
        sprinkle(v, {fromInt<TS>(Lim<TS>::lo), fromInt<TS>(Lim<TS>::hi), fromInt<TS>(Lim<TS>::lo + 1), fromInt<TS>(Lim<TS>::hi - 1),
                     fromInt<TS>(0), fromInt<TS>(1), fromInt<TS>(-1)});
    } else if constexpr (std::is_floating_point<TD>::value || std::is_same<TD, T16f>::value) {
        // Random patterns (every exponent, subnormals, NaNs), and ties between
        // neighbouring halves (or, from double, singles) with their neighbours.
        for (size_t i = 0; i < v.size(); i += 2) {
            const T16f h = static_cast<T16f>(rng.next<uint16_t>() & 0xFBFF);
            const float a = sizeof(TS) == 4 ? ref::halfToFloat(h) : rng.next<float>(-1e38, 1e38);
            const float b = sizeof(TS) == 4 ? ref::halfToFloat(static_cast<T16f>(h + 1)) : nextafterf(a, INFINITY);
            const TS mid = (static_cast<TS>(a) + static_cast<TS>(b)) / 2;
            v[i] = i % 6 == 2 ? nextafter(mid, TS(0)) : i % 6 == 4 ? nextafter(mid, TS(INFINITY)) : mid;
        }
        std::vector<TS> e = vt::edgeValues<TS>();
        for (TS x : {65504.0, 65519.996, 65520.0, -65520.0, 65536.0, 5.9604645e-8, 2.9802322e-8, 2.9802326e-8,
                     6.1035156e-5, 6.1035152e-5, 1e-45})
            e.push_back(static_cast<TS>(x));
        sprinkle(v, e);
    } else {
        // Values across TD's range at this scale and a little beyond: anywhere,
        // ties, integers and near zero; then TD's ends and their neighbours.
        const int s = sf > 1000 ? 1000 : sf < -1000 ? -1000 : sf;
        const int dsf = sizeof(TS) == 4 && (s > 100 || s < -100) ? 0 : s;
        const long double l = static_cast<long double>(Lim<TD>::lo), h = static_cast<long double>(Lim<TD>::hi);
        for (size_t i = 0; i < v.size(); ++i) {
            const long double x = l + rng.next<double>(-0.2, 1.2) * (h - l);
            const long double t[] = {x, floorl(x) + 0.5L, floorl(x), rng.next<double>(-3, 3)};
            v[i] = static_cast<TS>(ldexpl(t[i % 4], i % 4 == 3 ? 0 : dsf));
        }
        std::vector<TS> e = vt::edgeValues<TS>();
        for (long double b : {l, h}) {
            const TS x = static_cast<TS>(ldexpl(b, dsf));
            e.insert(e.end(), {x, nextafter(x, TS(0)), nextafter(x, x > 0 ? TS(INFINITY) : TS(-INFINITY)),
                               static_cast<TS>(ldexpl(b + (b > 0 ? 0.5L : -0.5L), dsf))});
        }
        for (long double x : {-0.5L, ldexpl(-0.5L, dsf), ldexpl(0.49999997L, dsf)}) e.push_back(static_cast<TS>(x));
        e.push_back(-std::numeric_limits<TS>::quiet_NaN());  // a NaN with its sign bit set still takes the top
        sprinkle(v, e);
    }
    return Bytes(reinterpret_cast<unsigned char*>(v.data()), reinterpret_cast<unsigned char*>(v.data() + v.size()));
}

// The value rounded once by the mode (integers) or once to nearest (floats).
template <class TS, class TD>
void model(const void* s, void* d, int mode, int sf) {
    const long double x = valueOf(get<TS>(s));
    if constexpr (std::is_floating_point<TD>::value) put(d, ref::toFloat<TD>(x, sf));
    else put(d, fromInt<TD>(ref::floatToInt(x, mode, sf, Lim<TD>::lo, Lim<TD>::hi)));
}
template <size_t W>
void swapModel(const void* s, void* d, int, int) {
    for (size_t k = 0; k < W; ++k) static_cast<unsigned char*>(d)[k] = static_cast<const unsigned char*>(s)[W - 1 - k];
}
int16_t nearest16(float x) { return static_cast<int16_t>(ref::floatToInt(x, VEK_ROUND_NEAR, 0, -32768, 32767)); }

template <class TS, class TD, int SF>
Bytes genAt(uint64_t seed, int) { return gen<TS, TD>(seed, SF); }

enum : unsigned { kMode = 1, kSf = 2, kInPlace = 4, kHalf = 8, kCount = 16, kLong = 32, kSrcLate = 64, kDstLate = 128 };
// kHalf: only modes 0 and 1, others refused after the length. kCount: the
// length is an unsigned count, only 0 is refused. kLong: also checked on an
// output long enough for the streaming stores. kSrcLate, kDstLate: that
// pointer is checked after the length.

struct Row {
    const char* name;
    unsigned shape;  // which of mode and sf the member takes, or in place
    size_t ss, ds;   // element sizes
    VekResult (*call)(const void*, void*, int n, int mode, int sf);
    Bytes (*gen)(uint64_t, int);
    void (*model)(const void*, void*, int mode, int sf);  // one element
    std::vector<int> sfs;
    unsigned flags = 0;
};

#define SHAPE(f, TS, TD, shape, ...) #f, shape, sizeof(TS), sizeof(TD), \
    [](const void* s, void* d, int n, int m, int sf) { (void)m; (void)sf; return f((const TS*)s, (TD*)d, n __VA_ARGS__); }
#define PLAIN(f, TS, TD) SHAPE(f, TS, TD, 0, )
#define SF(f, TS, TD) SHAPE(f, TS, TD, kSf, , sf)
#define RND(f, TS, TD) SHAPE(f, TS, TD, kMode, , m)
#define RND_SF(f, TS, TD) SHAPE(f, TS, TD, kMode | kSf, , m, sf)
// One channel of a joining (splitting) member.
#define JOIN(f, TD) #f, 0, sizeof(T32f), sizeof(TD), \
    [](const void* s, void* d, int n, int, int) { const T32f* p = (const T32f*)s; return f(s ? &p : nullptr, 1, n, (TD*)d); }
#define SPLIT(f, TS) #f, 0, sizeof(TS), sizeof(T32f), \
    [](const void* s, void* d, int n, int, int) { T32f* p = (T32f*)d; return f((const TS*)s, d ? &p : nullptr, 1, n); }
#define IN_PLACE(f, T) #f, kInPlace, sizeof(T), sizeof(T), [](const void*, void* d, int n, int, int) { return f((T*)d, n); }
#define STD(TS, TD) gen<TS, TD>, model<TS, TD>
// A member-specific model; its data is made as for a conversion from TS to TG.
#define MODEL_M(TS, TD, expr) [](const void* s, void* d, int m, int sf) { \
    (void)m; (void)sf; const TS x = get<TS>(s); put(d, static_cast<TD>(expr)); }
#define MODEL_G(TS, TG, TD, expr) gen<TS, TG>, MODEL_M(TS, TD, expr)
#define MODEL(TS, TD, expr) MODEL_G(TS, TD, TD, expr)

const std::vector<Row>& rows() {
    // Scale factors inside, at the ends of and beyond each member's vector
    // path and shortcuts.
    const std::vector<int> f2i = {0, 1, 3, -2, -9, 20, 126, 127, -127, -128, 200, -300, INT_MAX, INT_MIN};
    const std::vector<int> i2f = {0, 1, 5, -3, 15, 31, 126, 127, 140, -96, -120, -127, -128, -1100, 1100, INT_MIN, INT_MAX};
    const std::vector<int> i2f64 = {0, 1, 31, -31, 1022, 1023, 1050, 1080, -1023, -1024, INT_MIN};
    const std::vector<int> z = {0};
    static const std::vector<Row> v = {
        {RND_SF(veksConvert_32f8s_Sfs, T32f, T8s), STD(T32f, T8s), f2i},
        {RND_SF(veksConvert_32f8u_Sfs, T32f, T8u), STD(T32f, T8u), f2i, kLong},
        {RND_SF(veksConvert_32f16s_Sfs, T32f, T16s), STD(T32f, T16s), f2i, kLong},
        {RND_SF(veksConvert_32f16u_Sfs, T32f, T16u), STD(T32f, T16u), f2i},
        {RND_SF(veksConvert_32f32s_Sfs, T32f, T32s), STD(T32f, T32s), f2i},
        {SF(veksConvert_32f24s_Sfs, T32f, T24s), STD(T32f, T24s), f2i},
        {SF(veksConvert_32f24u_Sfs, T32f, T24u), STD(T32f, T24u), f2i},
        {RND_SF(veksConvert_64f16s_Sfs, T64f, T16s), STD(T64f, T16s), f2i},
        {RND_SF(veksConvert_64f32s_Sfs, T64f, T32s), STD(T64f, T32s), f2i, kLong},
        {RND_SF(veksConvert_64f64s_Sfs, T64f, T64s), STD(T64f, T64s), f2i},
        {PLAIN(veksConvert_8s32f, T8s, T32f), STD(T8s, T32f), z},
        {PLAIN(veksConvert_8u32f, T8u, T32f), STD(T8u, T32f), z},
        {PLAIN(veksConvert_16s32f, T16s, T32f), STD(T16s, T32f), z},
        {SF(veksConvert_16s32f_Sfs, T16s, T32f), STD(T16s, T32f), i2f},
        {SF(veksConvert_16s64f_Sfs, T16s, T64f), STD(T16s, T64f), i2f},
        {PLAIN(veksConvert_16u32f, T16u, T32f), STD(T16u, T32f), z},
        {PLAIN(veksConvert_24s32f, T24s, T32f), STD(T24s, T32f), z},
        {PLAIN(veksConvert_24u32f, T24u, T32f), STD(T24u, T32f), z},
        {PLAIN(veksConvert_32s32f, T32s, T32f), STD(T32s, T32f), z},
        {SF(veksConvert_32s32f_Sfs, T32s, T32f), STD(T32s, T32f), i2f, kLong},
        {PLAIN(veksConvert_32s64f, T32s, T64f), STD(T32s, T64f), z},
        {SF(veksConvert_32s64f_Sfs, T32s, T64f), STD(T32s, T64f), i2f64},
        {PLAIN(veksConvert_64s64f, T64s, T64f), STD(T64s, T64f), z, kLong},
        {PLAIN(veksConvert_32f64f, T32f, T64f), STD(T32f, T64f), z, kLong},
        {PLAIN(veksConvert_64f32f, T64f, T32f), STD(T64f, T32f), z, kLong},
        {PLAIN(veksConvert_8s16s, T8s, T16s), STD(T8s, T16s), z, kLong},
        {PLAIN(veksConvert_16s32s, T16s, T32s), STD(T16s, T32s), z, kLong},
        {PLAIN(veksConvert_24s32s, T24s, T32s), STD(T24s, T32s), z},
        {PLAIN(veksConvert_24u32u, T24u, T32u), STD(T24u, T32u), z},
        {PLAIN(veksConvert_32s16s, T32s, T16s), STD(T32s, T16s), z},
        {SF(veksConvert_32s16s_Sfs, T32s, T16s), STD(T32s, T16s),
         {0, 1, 2, 7, 15, 16, 17, 30, 31, 32, 33, 200, -1, -5, -14, -15, -16, -17, -31, -32, INT_MIN, INT_MAX}, kLong},
        {SF(veksConvert_32s24s_Sfs, T32s, T24s), STD(T32s, T24s), {0, 1, 8, 24, 31, 32, 33, -1, -8, -23, -24, -25, INT_MIN}},
        {SF(veksConvert_32u24u_Sfs, T32u, T24u), STD(T32u, T24u), {0, 1, 8, 31, 32, 33, -1, -8, -24, -25, INT_MIN}},
        {RND_SF(veksConvert_16s8s_Sfs, T16s, T8s), STD(T16s, T8s), {0, 1, 2, 8, 15, 16, 17, 18, 40, -1, -6, -7, -8, -9, INT_MIN, INT_MAX}, kCount},
        {RND_SF(veksConvert_64s32s_Sfs, T64s, T32s), STD(T64s, T32s),
         {0, 1, 17, 32, 62, 63, 64, 65, 1000, -1, -29, -30, -31, -32, -33, -70, INT_MIN, INT_MAX}},
        {RND_SF(veksConvert_16f16s_Sfs, T16f, T16s), MODEL(T16f, T16s, ref::floatToInt(ref::halfToFloat(x), m, sf, -32768, 32767)),
         {0, 1, -1, 4, -17, 25, INT_MIN}, kHalf},
        {RND(veksConvert_16s16f, T16s, T16f), MODEL(T16s, T16f, ref::floatToHalf(x, m)), z, kHalf},
        {RND(veksConvert_32f16f, T32f, T16f), MODEL(T32f, T16f, ref::floatToHalf(x, m)), z, kHalf},
        {PLAIN(veksConvert_16f32f, T16f, T32f), MODEL(T16f, T32f, ref::halfToFloat(x)), z},
        {PLAIN(veksSwapBytes_16u, T16u, T16u), gen<T16u, T16u>, swapModel<2>, z},
        {IN_PLACE(veksSwapBytes_16u_I, T16u), gen<T16u, T16u>, swapModel<2>, z},
        {PLAIN(veksSwapBytes_24u, T24u, T24u), gen<T24u, T24u>, swapModel<3>, z},
        {IN_PLACE(veksSwapBytes_24u_I, T24u), gen<T24u, T24u>, swapModel<3>, z},
        {PLAIN(veksSwapBytes_32u, T32u, T32u), gen<T32u, T32u>, swapModel<4>, z},
        {IN_PLACE(veksSwapBytes_32u_I, T32u), gen<T32u, T32u>, swapModel<4>, z},
        {PLAIN(veksSwapBytes_64u, T64u, T64u), gen<T64u, T64u>, swapModel<8>, z},
        {IN_PLACE(veksSwapBytes_64u_I, T64u), gen<T64u, T64u>, swapModel<8>, z},
        // Single-precision samples are rounded to nearest-even 16-bit first.
        {PLAIN(veksLinToALaw_16s8u, T16s, T8u), MODEL(T16s, T8u, ref::aLawEncode(x)), z},
        {PLAIN(veksLinToALaw_32f8u, T32f, T8u), MODEL_G(T32f, T16s, T8u, ref::aLawEncode(nearest16(x))), z},
        {PLAIN(veksALawToLin_8u16s, T8u, T16s), MODEL(T8u, T16s, ref::aLawDecode(x)), z},
        {PLAIN(veksALawToLin_8u32f, T8u, T32f), MODEL(T8u, T32f, ref::aLawDecode(x)), z},
        {PLAIN(veksLinToMuLaw_16s8u, T16s, T8u), MODEL(T16s, T8u, ref::muLawEncode(x)), z},
        {PLAIN(veksLinToMuLaw_32f8u, T32f, T8u), MODEL_G(T32f, T16s, T8u, ref::muLawEncode(nearest16(x))), z},
        {PLAIN(veksMuLawToLin_8u16s, T8u, T16s), MODEL(T8u, T16s, ref::muLawDecode(x)), z},
        {PLAIN(veksMuLawToLin_8u32f, T8u, T32f), MODEL(T8u, T32f, ref::muLawDecode(x)), z},
        // Joins take data across [-1, 1] and a little beyond.
        {JOIN(veksJoinScaled_32f16s_D2L, T16s), genAt<T32f, T16s, -15>, MODEL_M(T32f, T16s, ref::joinScaled(x, 32767.5L)), z, kSrcLate},
        {JOIN(veksJoinScaled_32f24s_D2L, T24s), genAt<T32f, T24s, -23>,
         MODEL_M(T32f, T24s, fromInt<T24s>(ref::joinScaled(x, 8388607.5L))), z, kSrcLate},
        {SPLIT(veksSplitScaled_16s32f_D2L, T16s), MODEL(T16s, T32f, ref::splitScaled16(x)), z, kDstLate},
        {SPLIT(veksSplitScaled_24s32f_D2L, T24s), MODEL(T24s, T32f, ref::splitScaled24(static_cast<int>(valueOf(x)))), z, kDstLate},
    };
    return v;
}

std::vector<int> modesOf(const Row& r) {
    if (r.flags & kHalf) return {VEK_ROUND_ZERO, VEK_ROUND_NEAR};
    if (r.shape & kMode) return {VEK_ROUND_ZERO, VEK_ROUND_NEAR, VEK_ROUND_HALF_AWAY, 7, -1};
    return {VEK_ROUND_NEAR};
}

Bytes want(const Row& r, const Bytes& src, int mode, int sf) {
    const size_t n = src.size() / r.ss;
    Bytes w(n * r.ds);
    for (size_t i = 0; i < n; ++i) r.model(&src[i * r.ss], &w[i * r.ds], mode, sf);
    return w;
}

// One call on the first len elements, the destination misaligned by mis
// elements (the source by mis + 1), under a caller rounding setting.
::testing::AssertionResult check(const Row& r, const Bytes& src, const Bytes& w, size_t len, int mis, int mode,
                                 int sf, unsigned csr) {
    vt::Guarded<unsigned char> s(Bytes(src.begin(), src.begin() + len * r.ss), (mis + 1) * r.ss);
    vt::Guarded<unsigned char> d(len * r.ds, mis * r.ds);
    if (r.shape & kInPlace) memcpy(d.data(), s.data(), len * r.ss);
    const unsigned saved = _mm_getcsr(), set = (saved & ~0x6000u) | csr;
    _mm_setcsr(set);
    const VekResult st = r.call(s.data(), d.data(), static_cast<int>(len), mode, sf);
    const unsigned after = _mm_getcsr();
    _mm_setcsr(saved);
    if ((after & ~0x3Fu) != (set & ~0x3Fu))  // bits 0-5 are sticky exception flags
        return ::testing::AssertionFailure() << "rounding setting changed to " << std::hex << after;
    if (st != VEK_OK) return ::testing::AssertionFailure() << "status " << st;
    if (!s.intact() || !d.intact()) return ::testing::AssertionFailure() << "guard zone written";
    return vt::sameElements(d.data(), w.data(), len * r.ds);
}

TEST(Convert, EveryMemberMatchesItsModel) {
    uint64_t seed = 1;
    for (const Row& r : rows()) {
        SCOPED_TRACE(r.name);
        for (int sf : r.sfs) {
            const Bytes src = r.gen(seed++, sf);
            const size_t n = src.size() / r.ss;
            std::vector<int> lens = vt::tailLengths();
            if (static_cast<size_t>(lens.back()) < n) lens.push_back(static_cast<int>(n));
            for (int mode : modesOf(r)) {
                const Bytes w = want(r, src, mode, sf);
                unsigned k = 0;
                for (int len : lens)
                    for (int mis : vt::misalignments())
                        ASSERT_TRUE(check(r, src, w, static_cast<size_t>(len), mis, mode, sf, (k++ % 4) << 13))
                            << "len " << len << " misalign " << mis << " mode " << mode << " sf " << sf;
            }
        }
    }
}

// Outputs of 4 MiB and more take the streaming stores after a scalar head
// up to the destination's first 16-byte boundary.
TEST(Convert, LongOutputsGiveTheSameResults) {
    for (const Row& r : rows()) {
        if (!(r.flags & kLong)) continue;
        SCOPED_TRACE(r.name);
        const int sf = r.sfs.size() > 1 ? r.sfs[1] : 0, mode = r.shape & kMode ? VEK_ROUND_HALF_AWAY : VEK_ROUND_NEAR;
        const Bytes base = r.gen(99, sf);
        const size_t n = (size_t(4) << 20) / r.ds + 37;
        Bytes src(n * r.ss);
        for (size_t i = 0; i < src.size(); ++i) src[i] = base[i % base.size()];
        const Bytes w = want(r, src, mode, sf);
        for (int mis : {0, 1}) ASSERT_TRUE(check(r, src, w, n, mis, mode, sf, 0)) << "misalign " << mis;
    }
}

// Null pointers first, then the length, then the rounding mode where it is
// checked; nothing written on error.
TEST(Convert, ChecksInOrderAndWritesNothingOnError) {
    const int n = 8;
    for (const Row& r : rows()) {
        SCOPED_TRACE(r.name);
        vt::Guarded<unsigned char> src(r.ss * n), dst(r.ds * n);
        for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<unsigned char>(i * 7 + 1);
        src.freeze();
        dst.freeze();
        struct Case { bool nullSrc, nullDst; int len, mode; VekResult want; };
        std::vector<Case> cases = {{false, true, n, 0, VEK_ERR_NULL_POINTER},
                                   {false, true, 0, 0, r.flags & kDstLate ? VEK_ERR_SIZE : VEK_ERR_NULL_POINTER},
                                   {false, false, 0, 0, VEK_ERR_SIZE}};
        if (!(r.shape & kInPlace))
            cases.insert(cases.end(), {{true, false, n, 0, VEK_ERR_NULL_POINTER},
                                       {true, false, 0, 0, r.flags & kSrcLate ? VEK_ERR_SIZE : VEK_ERR_NULL_POINTER}});
        if (!(r.flags & kCount))
            cases.insert(cases.end(), {{false, false, -1, 0, VEK_ERR_SIZE}, {false, false, INT_MIN, 0, VEK_ERR_SIZE}});
        if (r.flags & kHalf)
            cases.insert(cases.end(), {{false, false, n, 2, VEK_ERR_ROUND_MODE}, {false, false, n, 3, VEK_ERR_ROUND_MODE},
                                       {false, false, n, -1, VEK_ERR_ROUND_MODE}, {false, false, 0, 2, VEK_ERR_SIZE},
                                       {false, true, n, 2, VEK_ERR_NULL_POINTER}});
        for (const Case& c : cases) {
            EXPECT_EQ(r.call(c.nullSrc ? nullptr : src.data(), c.nullDst ? nullptr : dst.data(), c.len, c.mode, 0), c.want)
                << "null src " << c.nullSrc << " null dst " << c.nullDst << " len " << c.len << " mode " << c.mode;
            EXPECT_TRUE(dst.intact() && src.intact());
        }
        EXPECT_EQ(r.call(src.data(), dst.data(), n, VEK_ROUND_NEAR, 0), VEK_OK);  // so the cases failed for their reason
    }
}

}  // namespace

// Conversions between 16s, 32s, 32f and 64f: veks against the scalar
// statement of each rule (one element at a time, vectorisation switched
// off) and against memcpy moving the same number of bytes (half of what
// the conversion reads plus writes, so both move equal traffic).
#include <math.h>
#include <stdint.h>

#include "bench_util.h"
#include "veks.h"

namespace {

constexpr int64_t kSmall = 1024;
constexpr int64_t kLarge = 4 << 20;

// ---- scalar statements of the rules --------------------------------------------

#define SCALAR __attribute__((noinline, optimize("no-tree-vectorize", "no-unroll-loops")))

template <class TSrc, class TDst>
SCALAR void scalarFloatToInt(const TSrc* s, TDst* d, int n, int mode, int sf, double lo, double hi) {
    const double f = ldexp(1.0, -sf);
    for (int i = 0; i < n; ++i) {
        double v = static_cast<double>(s[i]) * f;
        if (!(v < hi)) v = hi;  // NaN takes the top
        double r;
        if (mode == 0) {
            r = trunc(v);
        } else if (mode == 1) {
            r = nearbyint(v);
        } else {
            const double t = trunc(v);
            r = fabs(v - t) >= 0.5 ? t + (v < 0 ? -1 : 1) : t;
        }
        d[i] = static_cast<TDst>(r < lo ? lo : r);
    }
}

template <class TSrc, class TDst>
SCALAR void scalarToFloat(const TSrc* s, TDst* d, int n, int sf) {
    const TDst f = static_cast<TDst>(ldexp(1.0, -sf));
    for (int i = 0; i < n; ++i) d[i] = static_cast<TDst>(s[i]) * f;
}

SCALAR void scalar32s16s(const T32s* s, T16s* d, int n) {
    for (int i = 0; i < n; ++i) d[i] = static_cast<T16s>(s[i] < -32768 ? -32768 : s[i] > 32767 ? 32767 : s[i]);
}

// ---- fixtures ---------------------------------------------------------------------

template <class T>
void fill(T* p, size_t n) {
    for (size_t i = 0; i < n; ++i) p[i] = static_cast<T>((static_cast<int64_t>(i * 2654435761u) % 60001) - 30000) / (std::is_floating_point<T>::value ? T(1.3) : T(1));
}

template <class TSrc, class TDst, class F>
void run(benchmark::State& st, F f) {
    const size_t n = static_cast<size_t>(st.range(0));
    vb::Buf<TSrc> s(n);
    vb::Buf<TDst> d(n);
    fill(s.p, n);
    for (auto _ : st) {
        f(s.p, d.p, static_cast<int>(n));
        benchmark::DoNotOptimize(d.p);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, n, n * sizeof(TSrc), n * sizeof(TDst));
}

void BM_memcpy_traffic(benchmark::State& st) {
    // range(0) elements, range(1) bytes read + written per element.
    const size_t bytes = static_cast<size_t>(st.range(0) * st.range(1) / 2);
    vb::Buf<unsigned char> a(bytes), b(bytes);
    for (auto _ : st) {
        memcpy(b.p, a.p, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, static_cast<size_t>(st.range(0)), bytes, bytes);
}
BENCHMARK(BM_memcpy_traffic)->ArgsProduct({{kSmall, kLarge}, {6, 8, 10, 12}});

#define SIZES ->Arg(kSmall)->Arg(kLarge)

// veks members, by mode where they have one.
#define VEKS_RND(name, TS, TD, mode)                                                                 \
    void BM_##name##_m##mode(benchmark::State& st) {                                                 \
        run<TS, TD>(st, [](const TS* s, TD* d, int n) { name(s, d, n, mode, 0); });                  \
    }                                                                                                \
    BENCHMARK(BM_##name##_m##mode) SIZES;                                                            \
    void BM_scalar_##name##_m##mode(benchmark::State& st) {                                          \
        run<TS, TD>(st, [](const TS* s, TD* d, int n) {                                              \
            scalarFloatToInt(s, d, n, mode, 0, static_cast<double>(std::numeric_limits<TD>::min()),  \
                             static_cast<double>(std::numeric_limits<TD>::max()));                   \
        });                                                                                          \
    }                                                                                                \
    BENCHMARK(BM_scalar_##name##_m##mode) SIZES;

#define VEKS_TOFLOAT(name, TS, TD)                                                                          \
    void BM_##name(benchmark::State& st) { run<TS, TD>(st, [](const TS* s, TD* d, int n) { name(s, d, n); }); } \
    BENCHMARK(BM_##name) SIZES;                                                                             \
    void BM_scalar_##name(benchmark::State& st) {                                                           \
        run<TS, TD>(st, [](const TS* s, TD* d, int n) { scalarToFloat(s, d, n, 0); });                      \
    }                                                                                                       \
    BENCHMARK(BM_scalar_##name) SIZES;

#define VEKS_TOFLOAT_SFS(name, TS, TD)                                                                      \
    void BM_##name(benchmark::State& st) { run<TS, TD>(st, [](const TS* s, TD* d, int n) { name(s, d, n, 3); }); } \
    BENCHMARK(BM_##name) SIZES;                                                                             \
    void BM_scalar_##name(benchmark::State& st) {                                                           \
        run<TS, TD>(st, [](const TS* s, TD* d, int n) { scalarToFloat(s, d, n, 3); });                      \
    }                                                                                                       \
    BENCHMARK(BM_scalar_##name) SIZES;

VEKS_RND(veksConvert_32f16s_Sfs, T32f, T16s, 0)
VEKS_RND(veksConvert_32f16s_Sfs, T32f, T16s, 1)
VEKS_RND(veksConvert_32f16s_Sfs, T32f, T16s, 2)
VEKS_RND(veksConvert_32f32s_Sfs, T32f, T32s, 0)
VEKS_RND(veksConvert_32f32s_Sfs, T32f, T32s, 1)
VEKS_RND(veksConvert_32f32s_Sfs, T32f, T32s, 2)
VEKS_RND(veksConvert_64f16s_Sfs, T64f, T16s, 0)
VEKS_RND(veksConvert_64f16s_Sfs, T64f, T16s, 1)
VEKS_RND(veksConvert_64f16s_Sfs, T64f, T16s, 2)
VEKS_RND(veksConvert_64f32s_Sfs, T64f, T32s, 0)
VEKS_RND(veksConvert_64f32s_Sfs, T64f, T32s, 1)
VEKS_RND(veksConvert_64f32s_Sfs, T64f, T32s, 2)
VEKS_TOFLOAT(veksConvert_16s32f, T16s, T32f)
VEKS_TOFLOAT_SFS(veksConvert_16s32f_Sfs, T16s, T32f)
VEKS_TOFLOAT(veksConvert_32s32f, T32s, T32f)
VEKS_TOFLOAT_SFS(veksConvert_32s32f_Sfs, T32s, T32f)
VEKS_TOFLOAT_SFS(veksConvert_16s64f_Sfs, T16s, T64f)
VEKS_TOFLOAT(veksConvert_32s64f, T32s, T64f)
VEKS_TOFLOAT_SFS(veksConvert_32s64f_Sfs, T32s, T64f)
VEKS_TOFLOAT(veksConvert_32f64f, T32f, T64f)
VEKS_TOFLOAT(veksConvert_64f32f, T64f, T32f)
VEKS_TOFLOAT(veksConvert_16s32s, T16s, T32s)

void BM_veksConvert_32s16s(benchmark::State& st) {
    run<T32s, T16s>(st, [](const T32s* s, T16s* d, int n) { veksConvert_32s16s(s, d, n); });
}
BENCHMARK(BM_veksConvert_32s16s) SIZES;
void BM_scalar_veksConvert_32s16s(benchmark::State& st) { run<T32s, T16s>(st, scalar32s16s); }
BENCHMARK(BM_scalar_veksConvert_32s16s) SIZES;

}  // namespace

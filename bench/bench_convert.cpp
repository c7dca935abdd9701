// Conversions between 16s, 32s, 32f and 64f: veks against the scalar
// statement of each rule (one element at a time, vectorisation switched
// off) at n = 1024, and against memcpy moving the same number of bytes
// (half of what the conversion reads plus writes, so both move equal
// traffic) at n = 4 Mi.
#include <math.h>
#include <stdint.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <vector>

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
    for (size_t i = 0; i < n; ++i)
        p[i] = static_cast<T>((static_cast<int64_t>(i * 2654435761u) % 60001) - 30000) /
               (std::is_floating_point<T>::value ? T(1.3) : T(1));
}

double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The machine these figures come from is shared, so veks and its yardstick
// are timed in alternation, batch by batch, and the median of the per-batch
// ratios is reported beside the per-element times of the best batches.
template <class TSrc, class TDst, class F, class G>
void paired(benchmark::State& st, F veks, G other) {
    const size_t n = static_cast<size_t>(st.range(0));
    const int reps = n <= 4096 ? 64 : 1;
    vb::Buf<TSrc> s(n);
    vb::Buf<TDst> d(n);
    fill(s.p, n);
    std::vector<double> ratios;
    double bestV = 1e30, bestO = 1e30;
    for (auto _ : st) {
        const double t0 = seconds();
        for (int r = 0; r < reps; ++r) {
            veks(s.p, d.p, static_cast<int>(n));
            benchmark::ClobberMemory();
        }
        const double t1 = seconds();
        for (int r = 0; r < reps; ++r) {
            other(s.p, d.p, static_cast<int>(n));
            benchmark::ClobberMemory();
        }
        const double t2 = seconds();
        ratios.push_back((t2 - t1) / (t1 - t0));
        bestV = std::min(bestV, (t1 - t0) / reps);
        bestO = std::min(bestO, (t2 - t1) / reps);
    }
    std::nth_element(ratios.begin(), ratios.begin() + ratios.size() / 2, ratios.end());
    st.counters["veks_ns"] = bestV * 1e9 / n;
    st.counters["other_ns"] = bestO * 1e9 / n;
    st.counters["other_over_veks"] = ratios[ratios.size() / 2];
}

// memcpy moving half of what the conversion reads plus writes.
template <class TSrc, class TDst>
struct Copy {
    vb::Buf<unsigned char> a, b;
    size_t bytes;
    explicit Copy(size_t n) : a(n * (sizeof(TSrc) + sizeof(TDst)) / 2), b(n * (sizeof(TSrc) + sizeof(TDst)) / 2),
                              bytes(n * (sizeof(TSrc) + sizeof(TDst)) / 2) {}
    void operator()() { memcpy(b.p, a.p, bytes); }
};

#define PAIRS(tag, TS, TD, veksCall, scalarCall)                                                      \
    void BM_##tag##_vs_scalar(benchmark::State& st) {                                                 \
        paired<TS, TD>(st, [](const TS* s, TD* d, int n) { veksCall; },                               \
                       [](const TS* s, TD* d, int n) { scalarCall; });                               \
    }                                                                                                 \
    BENCHMARK(BM_##tag##_vs_scalar)->Arg(kSmall)->Iterations(2000);                                   \
    void BM_##tag##_vs_memcpy(benchmark::State& st) {                                                 \
        Copy<TS, TD> copy(static_cast<size_t>(st.range(0)));                                          \
        paired<TS, TD>(st, [](const TS* s, TD* d, int n) { veksCall; },                               \
                       [&copy](const TS*, TD*, int) { copy(); });                                     \
    }                                                                                                 \
    BENCHMARK(BM_##tag##_vs_memcpy)->Arg(kLarge)->Iterations(60);

#define RND(tag, f, TS, TD, mode)                                                            \
    PAIRS(tag, TS, TD, f(s, d, n, mode, 0),                                                  \
          scalarFloatToInt(s, d, n, mode, 0, static_cast<double>(std::numeric_limits<TD>::min()), \
                           static_cast<double>(std::numeric_limits<TD>::max())))

RND(Convert_32f16s_Sfs_m0, veksConvert_32f16s_Sfs, T32f, T16s, 0)
RND(Convert_32f16s_Sfs_m1, veksConvert_32f16s_Sfs, T32f, T16s, 1)
RND(Convert_32f16s_Sfs_m2, veksConvert_32f16s_Sfs, T32f, T16s, 2)
RND(Convert_32f32s_Sfs_m0, veksConvert_32f32s_Sfs, T32f, T32s, 0)
RND(Convert_32f32s_Sfs_m1, veksConvert_32f32s_Sfs, T32f, T32s, 1)
RND(Convert_32f32s_Sfs_m2, veksConvert_32f32s_Sfs, T32f, T32s, 2)
RND(Convert_64f16s_Sfs_m0, veksConvert_64f16s_Sfs, T64f, T16s, 0)
RND(Convert_64f16s_Sfs_m1, veksConvert_64f16s_Sfs, T64f, T16s, 1)
RND(Convert_64f16s_Sfs_m2, veksConvert_64f16s_Sfs, T64f, T16s, 2)
RND(Convert_64f32s_Sfs_m0, veksConvert_64f32s_Sfs, T64f, T32s, 0)
RND(Convert_64f32s_Sfs_m1, veksConvert_64f32s_Sfs, T64f, T32s, 1)
RND(Convert_64f32s_Sfs_m2, veksConvert_64f32s_Sfs, T64f, T32s, 2)
PAIRS(Convert_16s32f, T16s, T32f, veksConvert_16s32f(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_16s32f_Sfs, T16s, T32f, veksConvert_16s32f_Sfs(s, d, n, 3), scalarToFloat(s, d, n, 3))
PAIRS(Convert_32s32f, T32s, T32f, veksConvert_32s32f(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_32s32f_Sfs, T32s, T32f, veksConvert_32s32f_Sfs(s, d, n, 3), scalarToFloat(s, d, n, 3))
PAIRS(Convert_16s64f_Sfs, T16s, T64f, veksConvert_16s64f_Sfs(s, d, n, 3), scalarToFloat(s, d, n, 3))
PAIRS(Convert_32s64f, T32s, T64f, veksConvert_32s64f(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_32s64f_Sfs, T32s, T64f, veksConvert_32s64f_Sfs(s, d, n, 3), scalarToFloat(s, d, n, 3))
PAIRS(Convert_32f64f, T32f, T64f, veksConvert_32f64f(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_64f32f, T64f, T32f, veksConvert_64f32f(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_16s32s, T16s, T32s, veksConvert_16s32s(s, d, n), scalarToFloat(s, d, n, 0))
PAIRS(Convert_32s16s, T32s, T16s, veksConvert_32s16s(s, d, n), scalar32s16s(s, d, n))

}  // namespace

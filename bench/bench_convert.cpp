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

// Rounding half away from zero as a scalar program would write it without a
// library call: truncate, then step away from zero when the dropped fraction
// is at least one half (both steps exact). Written without branches, since
// the data's fractions are random.
template <class T>
inline T halfAway(T v) {
    const T t = trunc(v);
    const T step = fabs(v - t) >= T(0.5) ? T(1) : T(0);
    return t + copysign(step, v);
}

// x * 2^-sf in the source precision (exact: a power of two), the top of the
// destination range for NaN and everything at or above it, rounding by
// mode, the bottom of the range below it.
template <int Mode, class TSrc, class TDst>
SCALAR void scalarFloatToInt(const TSrc* s, TDst* d, int n, int sf) {
    const TSrc f = static_cast<TSrc>(ldexp(1.0, -sf));
    const TSrc top = static_cast<TSrc>(std::numeric_limits<TDst>::max());  // 2^31 for float to 32s
    const TSrc bottom = static_cast<TSrc>(std::numeric_limits<TDst>::min());
    for (int i = 0; i < n; ++i) {
        const TSrc v = s[i] * f;
        if (!(v < top)) {
            d[i] = std::numeric_limits<TDst>::max();
            continue;
        }
        const TSrc r = Mode == 0 ? trunc(v) : Mode == 1 ? nearbyint(v) : halfAway(v);
        d[i] = r < bottom ? std::numeric_limits<TDst>::min() : static_cast<TDst>(r);
    }
}

template <class TSrc, class TDst>
SCALAR void scalarScaledToFloat(const TSrc* s, TDst* d, int n, int sf) {
    const TDst f = static_cast<TDst>(ldexp(1.0, -sf));
    for (int i = 0; i < n; ++i) d[i] = static_cast<TDst>(s[i]) * f;
}

// The unscaled members are a bare conversion.
template <class TSrc, class TDst>
SCALAR void scalarConvert(const TSrc* s, TDst* d, int n) {
    for (int i = 0; i < n; ++i) d[i] = static_cast<TDst>(s[i]);
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
    vb::Buf<TSrc> s(n, 0, 0);
    vb::Buf<TDst> d(n, 0, 1);
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

// memcpy moving half of what the conversion reads plus writes, between
// buffers at the same page offsets as the conversion's source and
// destination.
template <class TSrc, class TDst>
struct Copy {
    vb::Buf<unsigned char> a, b;
    size_t bytes;
    explicit Copy(size_t n) : a(n * (sizeof(TSrc) + sizeof(TDst)) / 2, 0, 0), b(n * (sizeof(TSrc) + sizeof(TDst)) / 2, 0, 1),
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

#define RND(tag, f, TS, TD, mode) PAIRS(tag, TS, TD, f(s, d, n, mode, 0), (scalarFloatToInt<mode, TS, TD>(s, d, n, 0)))

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
PAIRS(Convert_16s32f, T16s, T32f, veksConvert_16s32f(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_16s32f_Sfs, T16s, T32f, veksConvert_16s32f_Sfs(s, d, n, 3), scalarScaledToFloat(s, d, n, 3))
PAIRS(Convert_32s32f, T32s, T32f, veksConvert_32s32f(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_32s32f_Sfs, T32s, T32f, veksConvert_32s32f_Sfs(s, d, n, 3), scalarScaledToFloat(s, d, n, 3))
PAIRS(Convert_16s64f_Sfs, T16s, T64f, veksConvert_16s64f_Sfs(s, d, n, 3), scalarScaledToFloat(s, d, n, 3))
PAIRS(Convert_32s64f, T32s, T64f, veksConvert_32s64f(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_32s64f_Sfs, T32s, T64f, veksConvert_32s64f_Sfs(s, d, n, 3), scalarScaledToFloat(s, d, n, 3))
PAIRS(Convert_32f64f, T32f, T64f, veksConvert_32f64f(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_64f32f, T64f, T32f, veksConvert_64f32f(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_16s32s, T16s, T32s, veksConvert_16s32s(s, d, n), scalarConvert(s, d, n))
PAIRS(Convert_32s16s, T32s, T16s, veksConvert_32s16s(s, d, n), scalar32s16s(s, d, n))

}  // namespace

// Set, Zero, Copy, Move beside memset, memcpy and memmove on the same bytes
// (aligned and misaligned starts), and the single-precision magnitude,
// phase and polar conversions beside plain loops over the C library's
// hypotf, atan2f and sincosf at n = 4096.
#define _GNU_SOURCE 1
#include <math.h>

#include "bench_util.h"
#include "veks.h"

namespace {

// Byte counts from 64 B to 64 MiB; the second argument is the misalignment
// of both buffers in bytes (0, or 4: one T32f element).
void byteSizes(benchmark::internal::Benchmark* b) {
    for (int64_t bytes = 64; bytes <= (int64_t(64) << 20); bytes *= 8)
        for (int64_t mis : {0, 4}) b->Args({bytes, mis});
}

void BM_veksCopy_32f(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    const T32f* s = reinterpret_cast<const T32f*>(a.p);
    T32f* d = reinterpret_cast<T32f*>(b.p);
    for (auto _ : st) {
        veksCopy_32f(s, d, static_cast<int>(bytes / 4));
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, bytes, bytes);
}
BENCHMARK(BM_veksCopy_32f)->Apply(byteSizes);

void BM_memcpy_mis(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    for (auto _ : st) {
        memcpy(b.p, a.p, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, bytes, bytes);
}
BENCHMARK(BM_memcpy_mis)->Apply(byteSizes);

void BM_veksMove_32f(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    for (auto _ : st) {
        veksMove_32f(reinterpret_cast<const T32f*>(a.p), reinterpret_cast<T32f*>(b.p), static_cast<int>(bytes / 4));
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, bytes, bytes);
}
BENCHMARK(BM_veksMove_32f)->Apply(byteSizes);

void BM_memmove_mis(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    for (auto _ : st) {
        memmove(b.p, a.p, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, bytes, bytes);
}
BENCHMARK(BM_memmove_mis)->Apply(byteSizes);

void BM_veksSet_32f(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    for (auto _ : st) {
        veksSet_32f(1.5f, reinterpret_cast<T32f*>(a.p), static_cast<int>(bytes / 4));
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, 0, bytes);
}
BENCHMARK(BM_veksSet_32f)->Apply(byteSizes);

void BM_veksSet_64fc(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    const T64fc v = {1.5, -2.5};
    for (auto _ : st) {
        veksSet_64fc(v, reinterpret_cast<T64fc*>(a.p), static_cast<int>(bytes / 16));
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, 0, bytes);
}
BENCHMARK(BM_veksSet_64fc)->Apply(byteSizes);

void BM_veksZero_32f(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    for (auto _ : st) {
        veksZero_32f(reinterpret_cast<T32f*>(a.p), static_cast<int>(bytes / 4));
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, 0, bytes);
}
BENCHMARK(BM_veksZero_32f)->Apply(byteSizes);

void BM_memset_mis(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    for (auto _ : st) {
        memset(a.p, 0x3F, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, 0, bytes);
}
BENCHMARK(BM_memset_mis)->Apply(byteSizes);

// ---- magnitude, phase and polar conversions at n = 4096 ---------------------------

constexpr size_t kN = 4096;

struct PolarBufs {
    vb::Buf<T32fc> c{kN};
    vb::Buf<T32f> re{kN}, im{kN}, m{kN}, ph{kN};
    PolarBufs() {
        uint32_t s = 12345;
        for (size_t i = 0; i < kN; ++i) {
            s = s * 1664525u + 1013904223u;
            const float a = static_cast<float>(s >> 8) / 16777216.0f * 2 - 1;
            s = s * 1664525u + 1013904223u;
            const float b = static_cast<float>(s >> 8) / 16777216.0f * 2 - 1;
            c.p[i] = {a, b};
            re.p[i] = a;
            im.p[i] = b;
            m.p[i] = fabsf(a) + 0.5f;
            ph.p[i] = b * 3.14159265f;
        }
    }
};

#define POLAR_BENCH(NAME, ...)                                                    \
    void NAME(benchmark::State& st) {                                            \
        PolarBufs b;                                                             \
        vb::Buf<T32f> o1(kN), o2(kN);                                            \
        vb::Buf<T32fc> oc(kN);                                                   \
        for (auto _ : st) {                                                      \
            __VA_ARGS__;                                                         \
            benchmark::ClobberMemory();                                          \
        }                                                                        \
        vb::setCounters(st, kN, 0, 0);                                           \
    }                                                                            \
    BENCHMARK(NAME);

POLAR_BENCH(BM_veksMagnitude_32fc, veksMagnitude_32fc(b.c.p, o1.p, int(kN)))
POLAR_BENCH(BM_veksMagnitude_32f, veksMagnitude_32f(b.re.p, b.im.p, o1.p, int(kN)))
POLAR_BENCH(BM_hypotf_loop, for (size_t i = 0; i < kN; ++i) o1.p[i] = hypotf(b.c.p[i].re, b.c.p[i].im))
POLAR_BENCH(BM_veksPhase_32fc, veksPhase_32fc(b.c.p, o1.p, int(kN)))
POLAR_BENCH(BM_veksPhase_32f, veksPhase_32f(b.re.p, b.im.p, o1.p, int(kN)))
POLAR_BENCH(BM_atan2f_loop, for (size_t i = 0; i < kN; ++i) o1.p[i] = atan2f(b.c.p[i].im, b.c.p[i].re))
POLAR_BENCH(BM_veksCartToPolar_32fc, veksCartToPolar_32fc(b.c.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_veksCartToPolar_32f, veksCartToPolar_32f(b.re.p, b.im.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_hypotf_atan2f_loop, for (size_t i = 0; i < kN; ++i) {
    o1.p[i] = hypotf(b.c.p[i].re, b.c.p[i].im);
    o2.p[i] = atan2f(b.c.p[i].im, b.c.p[i].re);
})
POLAR_BENCH(BM_veksPolarToCart_32fc, veksPolarToCart_32fc(b.m.p, b.ph.p, oc.p, int(kN)))
POLAR_BENCH(BM_veksPolarToCart_32f, veksPolarToCart_32f(b.m.p, b.ph.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_sincosf_loop, for (size_t i = 0; i < kN; ++i) {
    float s, c;
    sincosf(b.ph.p[i], &s, &c);
    oc.p[i].re = b.m.p[i] * c;
    oc.p[i].im = b.m.p[i] * s;
})

}  // namespace

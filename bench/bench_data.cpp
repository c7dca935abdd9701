// Set, Zero, Copy, Move beside memset, memcpy and memmove on the same bytes
// (aligned and misaligned starts), and the single-precision magnitude,
// phase and polar conversions beside plain loops over the C library's
// hypotf, atan2f and sincosf at n = 4096.
#define _GNU_SOURCE 1
#include <math.h>

#include <algorithm>
#include <chrono>

#include "bench_util.h"
#include "veks.h"

namespace {

// Byte counts from 64 B to 64 MiB; the second argument is the misalignment
// of both buffers in bytes (0, or 4: one T32f element).
void byteSizes(benchmark::internal::Benchmark* b) {
    for (int64_t bytes : {int64_t(64), int64_t(512), int64_t(4) << 10, int64_t(32) << 10, int64_t(256) << 10,
                          int64_t(2) << 20, int64_t(16) << 20, int64_t(64) << 20})
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
    vb::Buf<T32fc> c{kN, 0, 0};
    vb::Buf<T32f> re{kN, 0, 1}, im{kN, 0, 2}, m{kN, 0, 3}, ph{kN, 0, 4};
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

// The peer loops are separate functions that are never inlined, as a user's
// loop would be: inlined into the benchmark they would see the buffers'
// alignment and offsets, which no library call can.
#define PLAIN __attribute__((noinline))

PLAIN void plainHypot(const T32fc* c, T32f* d, size_t n) {
    for (size_t i = 0; i < n; ++i) d[i] = hypotf(c[i].re, c[i].im);
}
PLAIN void plainHypot(const T32f* re, const T32f* im, T32f* d, size_t n) {
    for (size_t i = 0; i < n; ++i) d[i] = hypotf(re[i], im[i]);
}
PLAIN void plainAtan2(const T32fc* c, T32f* d, size_t n) {
    for (size_t i = 0; i < n; ++i) d[i] = atan2f(c[i].im, c[i].re);
}
PLAIN void plainAtan2(const T32f* re, const T32f* im, T32f* d, size_t n) {
    for (size_t i = 0; i < n; ++i) d[i] = atan2f(im[i], re[i]);
}
PLAIN void plainCartToPolar(const T32fc* c, T32f* m, T32f* ph, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        m[i] = hypotf(c[i].re, c[i].im);
        ph[i] = atan2f(c[i].im, c[i].re);
    }
}
PLAIN void plainCartToPolar(const T32f* re, const T32f* im, T32f* m, T32f* ph, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        m[i] = hypotf(re[i], im[i]);
        ph[i] = atan2f(im[i], re[i]);
    }
}
PLAIN void plainPolarToCart(const T32f* m, const T32f* ph, T32fc* d, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        float s, c;
        sincosf(ph[i], &s, &c);
        d[i].re = m[i] * c;
        d[i].im = m[i] * s;
    }
}
PLAIN void plainPolarToCart(const T32f* m, const T32f* ph, T32f* re, T32f* im, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        float s, c;
        sincosf(ph[i], &s, &c);
        re[i] = m[i] * c;
        im[i] = m[i] * s;
    }
}

#define POLAR_BENCH(NAME, ...)                                                    \
    void NAME(benchmark::State& st) {                                            \
        PolarBufs b;                                                             \
        vb::Buf<T32f> o1(kN, 0, 5), o2(kN, 0, 6);                                \
        vb::Buf<T32fc> oc(kN, 0, 5);                                             \
        for (auto _ : st) {                                                      \
            __VA_ARGS__;                                                         \
            benchmark::ClobberMemory();                                          \
        }                                                                        \
        vb::setCounters(st, kN, 0, 0);                                           \
    }                                                                            \
    BENCHMARK(NAME);

POLAR_BENCH(BM_veksMagnitude_32fc, veksMagnitude_32fc(b.c.p, o1.p, int(kN)))
POLAR_BENCH(BM_veksMagnitude_32f, veksMagnitude_32f(b.re.p, b.im.p, o1.p, int(kN)))
POLAR_BENCH(BM_hypotf_loop, plainHypot(b.c.p, o1.p, kN))
POLAR_BENCH(BM_veksPhase_32fc, veksPhase_32fc(b.c.p, o1.p, int(kN)))
POLAR_BENCH(BM_veksPhase_32f, veksPhase_32f(b.re.p, b.im.p, o1.p, int(kN)))
POLAR_BENCH(BM_atan2f_loop, plainAtan2(b.c.p, o1.p, kN))
POLAR_BENCH(BM_veksCartToPolar_32fc, veksCartToPolar_32fc(b.c.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_veksCartToPolar_32f, veksCartToPolar_32f(b.re.p, b.im.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_hypotf_atan2f_loop, plainCartToPolar(b.c.p, o1.p, o2.p, kN))
POLAR_BENCH(BM_veksPolarToCart_32fc, veksPolarToCart_32fc(b.m.p, b.ph.p, oc.p, int(kN)))
POLAR_BENCH(BM_veksPolarToCart_32f, veksPolarToCart_32f(b.m.p, b.ph.p, o1.p, o2.p, int(kN)))
POLAR_BENCH(BM_sincosf_loop, plainPolarToCart(b.m.p, b.ph.p, oc.p, kN))


// ---- paired timing ----------------------------------------------------------------
//
// On a shared machine two separate benchmarks run under different
// interference. These time veks and its peer in alternating short batches
// and keep the fastest batch of each, so that both see the same conditions;
// the counters give ns per call and the ratio veks / peer.

namespace paired {

template <class A, class B>
void race(benchmark::State& st, size_t perCallBytes, A veksCall, B peerCall) {
    using Clock = std::chrono::steady_clock;
    const int batch = perCallBytes >= (size_t(1) << 20) ? 1 : static_cast<int>((size_t(1) << 20) / perCallBytes) + 1;
    double bestV = 1e30, bestP = 1e30;
    for (auto _ : st) {
        const auto t0 = Clock::now();
        for (int i = 0; i < batch; ++i) {
            veksCall();
            benchmark::ClobberMemory();
        }
        const auto t1 = Clock::now();
        for (int i = 0; i < batch; ++i) {
            peerCall();
            benchmark::ClobberMemory();
        }
        const auto t2 = Clock::now();
        bestV = std::min(bestV, std::chrono::duration<double, std::nano>(t1 - t0).count() / batch);
        bestP = std::min(bestP, std::chrono::duration<double, std::nano>(t2 - t1).count() / batch);
    }
    st.counters["veks_ns"] = bestV;
    st.counters["peer_ns"] = bestP;
    st.counters["ratio"] = bestV / bestP;
}

void Copy(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    race(st, bytes, [&] { veksCopy_32f(reinterpret_cast<const T32f*>(a.p), reinterpret_cast<T32f*>(b.p), int(bytes / 4)); },
         [&] { memcpy(b.p, a.p, bytes); });
}
BENCHMARK(Copy)->Apply(byteSizes)->Name("Paired_Copy32f_memcpy");

void Move(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis), b(bytes, mis);
    race(st, bytes, [&] { veksMove_32f(reinterpret_cast<const T32f*>(a.p), reinterpret_cast<T32f*>(b.p), int(bytes / 4)); },
         [&] { memmove(b.p, a.p, bytes); });
}
BENCHMARK(Move)->Apply(byteSizes)->Name("Paired_Move32f_memmove");

// veksSet of one value of T against memset of the same bytes.
template <class T>
void setAgainstMemset(benchmark::State& st, VekResult (*set)(T, T*, int), T val) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    race(st, bytes, [&] { set(val, reinterpret_cast<T*>(a.p), int(bytes / sizeof(T))); },
         [&] { memset(a.p, 0x3F, bytes); });
}
void Set(benchmark::State& st) { setAgainstMemset<T32f>(st, veksSet_32f, 1.5f); }
BENCHMARK(Set)->Apply(byteSizes)->Name("Paired_Set32f_memset");
void Set8(benchmark::State& st) { setAgainstMemset<T64f>(st, veksSet_64f, 1.5); }
BENCHMARK(Set8)->Apply(byteSizes)->Name("Paired_Set64f_memset");
void Set16(benchmark::State& st) { setAgainstMemset<T64fc>(st, veksSet_64fc, T64fc{1.5, -2.5}); }
BENCHMARK(Set16)->Apply(byteSizes)->Name("Paired_Set64fc_memset");

void Zero(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0)), mis = static_cast<size_t>(st.range(1));
    vb::Buf<unsigned char> a(bytes, mis);
    race(st, bytes, [&] { veksZero_32f(reinterpret_cast<T32f*>(a.p), int(bytes / 4)); },
         [&] { memset(a.p, 0, bytes); });
}
BENCHMARK(Zero)->Apply(byteSizes)->Name("Paired_Zero32f_memset");

#define PAIRED_POLAR(NAME, VEKS, ...)                            \
    void NAME(benchmark::State& st) {                            \
        PolarBufs b;                                             \
        vb::Buf<T32f> o1(kN, 0, 5), o2(kN, 0, 6);                \
        vb::Buf<T32fc> oc(kN, 0, 5);                             \
        race(st, kN * 8, [&] { VEKS; }, [&] { __VA_ARGS__; });   \
    }                                                            \
    BENCHMARK(NAME);

PAIRED_POLAR(Paired_Magnitude32fc_hypotf, veksMagnitude_32fc(b.c.p, o1.p, int(kN)), plainHypot(b.c.p, o1.p, kN))
PAIRED_POLAR(Paired_Magnitude32f_hypotf, veksMagnitude_32f(b.re.p, b.im.p, o1.p, int(kN)),
             plainHypot(b.re.p, b.im.p, o1.p, kN))
PAIRED_POLAR(Paired_Phase32fc_atan2f, veksPhase_32fc(b.c.p, o1.p, int(kN)), plainAtan2(b.c.p, o1.p, kN))
PAIRED_POLAR(Paired_Phase32f_atan2f, veksPhase_32f(b.re.p, b.im.p, o1.p, int(kN)),
             plainAtan2(b.re.p, b.im.p, o1.p, kN))
PAIRED_POLAR(Paired_CartToPolar32fc_hypotf_atan2f, veksCartToPolar_32fc(b.c.p, o1.p, o2.p, int(kN)),
             plainCartToPolar(b.c.p, o1.p, o2.p, kN))
PAIRED_POLAR(Paired_CartToPolar32f_hypotf_atan2f, veksCartToPolar_32f(b.re.p, b.im.p, o1.p, o2.p, int(kN)),
             plainCartToPolar(b.re.p, b.im.p, o1.p, o2.p, kN))
PAIRED_POLAR(Paired_PolarToCart32fc_sincosf, veksPolarToCart_32fc(b.m.p, b.ph.p, oc.p, int(kN)),
             plainPolarToCart(b.m.p, b.ph.p, oc.p, kN))
PAIRED_POLAR(Paired_PolarToCart32f_sincosf, veksPolarToCart_32f(b.m.p, b.ph.p, o1.p, o2.p, int(kN)),
             plainPolarToCart(b.m.p, b.ph.p, o1.p, o2.p, kN))

}  // namespace paired

}  // namespace

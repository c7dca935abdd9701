// Arithmetic at n = 1024 beside the plain loop a compiler makes of the same
// operation (-O3 -msse4.1), scaled integer forms beside a scalar loop of the
// scale rule, and long vectors (4 Mi elements) beside memcpy of the same
// memory traffic (bytes read plus bytes written).
#include <limits.h>
#include <math.h>
#include <stdint.h>

#include "bench_util.h"
#include "veks.h"

#include <limits>
#include <type_traits>

namespace {

constexpr int kShort = 1024;
constexpr int kLong = 4 << 20;

template <class T>
void fill(vb::Buf<T>& b, int salt) {
    for (size_t i = 0; i < b.n; ++i) {
        if constexpr (sizeof(T) == sizeof(T32fc) && !std::is_arithmetic<T>::value) {
            b.p[i].re = float((i * 7 + salt) % 97) + 1.0f;
            b.p[i].im = float((i * 3 + salt) % 89) + 1.0f;
        } else if constexpr (std::is_same<T, T64fc>::value) {
            b.p[i].re = double((i * 7 + salt) % 97) + 1.0;
            b.p[i].im = double((i * 3 + salt) % 89) + 1.0;
        } else {
            b.p[i] = static_cast<T>((i * 7919 + salt) % 251 + 1);
        }
    }
}

// Two sources, one destination.
template <class T, class F>
void runBinary(benchmark::State& st, F f, int n) {
    vb::Buf<T> a(n, 0, 0), b(n, 0, 1), d(n, 0, 2);
    fill(a, 1);
    fill(b, 2);
    for (auto _ : st) {
        f(a.p, b.p, d.p, n);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, n, 2 * n * sizeof(T), n * sizeof(T));
}

// ---- plain loops: what -O3 makes of the obvious code ---------------------------
//
// Each is a function of its own, called with pointers it knows nothing about,
// as a user's loop would be: inlined into the benchmark it would see the
// buffers' alignment and offsets, which no library call can.

#define PLAIN __attribute__((noinline))

PLAIN void plainAdd32f(const float* a, const float* b, float* d, int n) { for (int i = 0; i < n; ++i) d[i] = a[i] + b[i]; }
PLAIN void plainSub32f(const float* a, const float* b, float* d, int n) { for (int i = 0; i < n; ++i) d[i] = b[i] - a[i]; }
PLAIN void plainMul32f(const float* a, const float* b, float* d, int n) { for (int i = 0; i < n; ++i) d[i] = a[i] * b[i]; }
PLAIN void plainDiv32f(const float* a, const float* b, float* d, int n) { for (int i = 0; i < n; ++i) d[i] = b[i] / a[i]; }
PLAIN void plainAddP32f(const float* a, const float* b, float* d, int n) { for (int i = 0; i < n; ++i) d[i] = d[i] + a[i] * b[i]; }
PLAIN void plainAdd64f(const double* a, const double* b, double* d, int n) { for (int i = 0; i < n; ++i) d[i] = a[i] + b[i]; }
PLAIN void plainMul64f(const double* a, const double* b, double* d, int n) { for (int i = 0; i < n; ++i) d[i] = a[i] * b[i]; }
PLAIN void plainDiv64f(const double* a, const double* b, double* d, int n) { for (int i = 0; i < n; ++i) d[i] = b[i] / a[i]; }
PLAIN void plainAdd32fc(const T32fc* a, const T32fc* b, T32fc* d, int n) {
    for (int i = 0; i < n; ++i) {
        d[i].re = a[i].re + b[i].re;
        d[i].im = a[i].im + b[i].im;
    }
}
template <class C>
PLAIN void plainMulC(const C* a, const C* b, C* d, int n) {
    for (int i = 0; i < n; ++i) {
        const auto re = a[i].re * b[i].re - a[i].im * b[i].im;
        const auto im = a[i].re * b[i].im + a[i].im * b[i].re;
        d[i].re = re;
        d[i].im = im;
    }
}
template <class C>
PLAIN void plainDivC(const C* a, const C* b, C* d, int n) {
    for (int i = 0; i < n; ++i) {
        const auto m = a[i].re * a[i].re + a[i].im * a[i].im;
        const auto re = (b[i].re * a[i].re + b[i].im * a[i].im) / m;
        const auto im = (b[i].im * a[i].re - b[i].re * a[i].im) / m;
        d[i].re = re;
        d[i].im = im;
    }
}
PLAIN void plainAdd64fc(const T64fc* a, const T64fc* b, T64fc* d, int n) {
    for (int i = 0; i < n; ++i) {
        d[i].re = a[i].re + b[i].re;
        d[i].im = a[i].im + b[i].im;
    }
}
PLAIN void plainAddC32f(const float* a, const float* b, float* d, int n) {
    const float v = b[0];
    for (int i = 0; i < n; ++i) d[i] = a[i] + v;
}
PLAIN void plainMulC32f(const float* a, const float* b, float* d, int n) {
    const float v = b[0];
    for (int i = 0; i < n; ++i) d[i] = a[i] * v;
}
PLAIN void plainMulC64f(const double* a, const double* b, double* d, int n) {
    const double v = b[0];
    for (int i = 0; i < n; ++i) d[i] = a[i] * v;
}
PLAIN void plainMulCc32fc(const T32fc* a, const T32fc* b, T32fc* d, int n) {
    const T32fc v = b[0];
    for (int i = 0; i < n; ++i) {
        const float re = a[i].re * v.re - a[i].im * v.im;
        const float im = a[i].re * v.im + a[i].im * v.re;
        d[i].re = re;
        d[i].im = im;
    }
}

// The remaining float forms from one element rule each: x + y, y - x, and
// the products and quotients part by part with the complex formulas above.
struct PAdd { template <class T> static T f(T x, T y) { return x + y; } };
struct PSub { template <class T> static T f(T x, T y) { return y - x; } };   // second minus first
struct PSubR { template <class T> static T f(T x, T y) { return x - y; } };  // element minus constant
struct PMul { template <class T> static T f(T x, T y) { return x * y; } };
struct PDiv { template <class T> static T f(T x, T y) { return x / y; } };   // element / constant
struct PDivR { template <class T> static T f(T x, T y) { return y / x; } };  // constant / element
template <class C> C cplx(decltype(C{}.re) re, decltype(C{}.re) im) { C c; c.re = re; c.im = im; return c; }
template <class Op, class C> C partwise(C x, C y) { return cplx<C>(Op::f(x.re, y.re), Op::f(x.im, y.im)); }
template <class C> C cmul(C x, C y) { return cplx<C>(x.re * y.re - x.im * y.im, x.re * y.im + x.im * y.re); }
template <class C> C cdiv(C n, C v) {
    const auto m = v.re * v.re + v.im * v.im;
    return cplx<C>((n.re * v.re + n.im * v.im) / m, (n.im * v.re - n.re * v.im) / m);
}
template <class Op, class T> T elem(T x, T y) {
    if constexpr (std::is_arithmetic<T>::value) return Op::f(x, y);
    else if constexpr (std::is_same<Op, PMul>::value) return cmul(x, y);
    else if constexpr (std::is_same<Op, PDiv>::value) return cdiv(x, y);
    else return partwise<Op>(x, y);
}
template <class T, class Op>
PLAIN void plainBin(const T* a, const T* b, T* d, int n) { for (int i = 0; i < n; ++i) d[i] = elem<Op>(a[i], b[i]); }
template <class T, class Op>
PLAIN void plainConst(const T* a, const T* b, T* d, int n) {
    const T v = b[0];
    for (int i = 0; i < n; ++i) d[i] = elem<Op>(a[i], v);
}
template <class T>
PLAIN void plainAddP(const T* a, const T* b, T* d, int n) {
    for (int i = 0; i < n; ++i) d[i] = elem<PAdd>(d[i], elem<PMul>(a[i], b[i]));
}
template <class T>
PLAIN void plainAddPC(const T* a, const T* b, T* d, int n) {
    const T v = b[0];
    for (int i = 0; i < n; ++i) d[i] = d[i] + a[i] * v;
}

// ---- scalar references of the scale rule (kept scalar on purpose) -------------
//
// Each reference loop takes the scale factor at run time, as the export does:
// noipa keeps the compiler from propagating the benchmark's constant into it,
// which would drop the saturation a sum of two 32-bit values cannot reach
// at that one scale factor.

#define SCALAR __attribute__((noipa, optimize("no-tree-vectorize")))

// Inlined into each reference loop, as a user's loop would have it: a call
// per element would time the call, not the rule.
template <class T>
__attribute__((always_inline, optimize("no-tree-vectorize"))) inline T scaleRef(int64_t s, int sf, int64_t lo,
                                                                                 int64_t hi) {
    if (sf > 0) s = (s + (int64_t(1) << (sf - 1)) - 1 + ((s >> sf) & 1)) >> sf;
    else if (sf < 0) s = s > (hi >> -sf) ? hi : s < (lo >> -sf) ? lo : s * (int64_t(1) << -sf);
    return static_cast<T>(s < lo ? lo : s > hi ? hi : s);
}

template <class T, int Op>
SCALAR void scalarScaled(const T* a, const T* b, T* d, int n, int sf) {
    const int64_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    for (int i = 0; i < n; ++i) {
        const int64_t s = Op == 0 ? int64_t(a[i]) + b[i] : Op == 1 ? int64_t(b[i]) - a[i] : int64_t(a[i]) * b[i];
        d[i] = scaleRef<T>(s, sf, lo, hi);
    }
}

// The constant forms: a[i] + v, a[i] - v (Op 1), a[i] * v.
template <class T, int Op>
SCALAR void scalarScaledC(const T* a, T v, T* d, int n, int sf) {
    const int64_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    for (int i = 0; i < n; ++i) {
        const int64_t s = Op == 0 ? int64_t(a[i]) + v : Op == 1 ? int64_t(a[i]) - v : int64_t(a[i]) * v;
        d[i] = scaleRef<T>(s, sf, lo, hi);
    }
}

template <class T>
SCALAR void scalarDiv(const T* a, const T* b, T* d, int n, int sf) {
    const float scale = ldexpf(1.0f, -sf);
    const float lo = float(std::numeric_limits<T>::min()), hi = float(std::numeric_limits<T>::max());
    for (int i = 0; i < n; ++i) {
        if (a[i] == 0) {
            d[i] = b[i] > 0 ? T(hi) : b[i] < 0 ? T(lo) : T(0);
            continue;
        }
        float v = float(b[i]) / float(a[i]) * scale;
        v = v < lo ? lo : v > hi ? hi : v;
        d[i] = static_cast<T>(nearbyintf(v));
    }
}

constexpr int kSf = 3;  // a positive scale factor: the rounding path

// ---- registrations -------------------------------------------------------------

#define PAIR(name, T, lib, plain)                                                                       \
    void BM_##name(benchmark::State& st) {                                                              \
        runBinary<T>(st, [](const T* a, const T* b, T* d, int n) { lib; }, int(st.range(0)));          \
    }                                                                                                   \
    BENCHMARK(BM_##name)->Arg(kShort)->Arg(kLong);                                                      \
    void BM_##name##_plain(benchmark::State& st) { runBinary<T>(st, plain, int(st.range(0))); }        \
    BENCHMARK(BM_##name##_plain)->Arg(kShort);

PAIR(Add_32f, T32f, veksAdd_32f(a, b, d, n), plainAdd32f)
PAIR(Sub_32f, T32f, veksSub_32f(a, b, d, n), plainSub32f)
PAIR(Mul_32f, T32f, veksMul_32f(a, b, d, n), plainMul32f)
PAIR(Div_32f, T32f, veksDiv_32f(a, b, d, n), plainDiv32f)
PAIR(AddC_32f, T32f, veksAddC_32f(a, b[0], d, n), plainAddC32f)
PAIR(MulC_32f, T32f, veksMulC_32f(a, b[0], d, n), plainMulC32f)
PAIR(DivC_32f, T32f, veksDivC_32f(a, b[0], d, n), plainMulC32f)
PAIR(AddProduct_32f, T32f, veksAddProduct_32f(a, b, d, n), plainAddP32f)
PAIR(Add_64f, T64f, veksAdd_64f(a, b, d, n), plainAdd64f)
PAIR(Mul_64f, T64f, veksMul_64f(a, b, d, n), plainMul64f)
PAIR(Div_64f, T64f, veksDiv_64f(a, b, d, n), plainDiv64f)
PAIR(MulC_64f, T64f, veksMulC_64f(a, b[0], d, n), plainMulC64f)
PAIR(Add_32fc, T32fc, veksAdd_32fc(a, b, d, n), plainAdd32fc)
PAIR(Mul_32fc, T32fc, veksMul_32fc(a, b, d, n), plainMulC<T32fc>)
PAIR(MulC_32fc, T32fc, veksMulC_32fc(a, b[0], d, n), plainMulCc32fc)
PAIR(Div_32fc, T32fc, veksDiv_32fc(a, b, d, n), plainDivC<T32fc>)
PAIR(Add_64fc, T64fc, veksAdd_64fc(a, b, d, n), plainAdd64fc)
PAIR(Mul_64fc, T64fc, veksMul_64fc(a, b, d, n), plainMulC<T64fc>)
PAIR(Div_64fc, T64fc, veksDiv_64fc(a, b, d, n), plainDivC<T64fc>)
PAIR(Sub_64f, T64f, veksSub_64f(a, b, d, n), (plainBin<T64f, PSub>))
PAIR(Sub_32fc, T32fc, veksSub_32fc(a, b, d, n), (plainBin<T32fc, PSub>))
PAIR(Sub_64fc, T64fc, veksSub_64fc(a, b, d, n), (plainBin<T64fc, PSub>))
PAIR(AddC_64f, T64f, veksAddC_64f(a, b[0], d, n), (plainConst<T64f, PAdd>))
PAIR(AddC_32fc, T32fc, veksAddC_32fc(a, b[0], d, n), (plainConst<T32fc, PAdd>))
PAIR(AddC_64fc, T64fc, veksAddC_64fc(a, b[0], d, n), (plainConst<T64fc, PAdd>))
PAIR(SubC_32f, T32f, veksSubC_32f(a, b[0], d, n), (plainConst<T32f, PSubR>))
PAIR(SubC_64f, T64f, veksSubC_64f(a, b[0], d, n), (plainConst<T64f, PSubR>))
PAIR(SubC_32fc, T32fc, veksSubC_32fc(a, b[0], d, n), (plainConst<T32fc, PSubR>))
PAIR(SubC_64fc, T64fc, veksSubC_64fc(a, b[0], d, n), (plainConst<T64fc, PSubR>))
PAIR(SubCRev_32f, T32f, veksSubCRev_32f(a, b[0], d, n), (plainConst<T32f, PSub>))
PAIR(SubCRev_64f, T64f, veksSubCRev_64f(a, b[0], d, n), (plainConst<T64f, PSub>))
PAIR(SubCRev_32fc, T32fc, veksSubCRev_32fc(a, b[0], d, n), (plainConst<T32fc, PSub>))
PAIR(SubCRev_64fc, T64fc, veksSubCRev_64fc(a, b[0], d, n), (plainConst<T64fc, PSub>))
PAIR(MulC_64fc, T64fc, veksMulC_64fc(a, b[0], d, n), (plainConst<T64fc, PMul>))
PAIR(DivC_64f, T64f, veksDivC_64f(a, b[0], d, n), (plainConst<T64f, PDiv>))
PAIR(DivC_32fc, T32fc, veksDivC_32fc(a, b[0], d, n), (plainConst<T32fc, PDiv>))
PAIR(DivC_64fc, T64fc, veksDivC_64fc(a, b[0], d, n), (plainConst<T64fc, PDiv>))
PAIR(DivCRev_32f, T32f, veksDivCRev_32f(a, b[0], d, n), (plainConst<T32f, PDivR>))
PAIR(AddProduct_64f, T64f, veksAddProduct_64f(a, b, d, n), plainAddP<T64f>)
PAIR(AddProduct_32fc, T32fc, veksAddProduct_32fc(a, b, d, n), plainAddP<T32fc>)
PAIR(AddProduct_64fc, T64fc, veksAddProduct_64fc(a, b, d, n), plainAddP<T64fc>)
PAIR(AddProductC_32f, T32f, veksAddProductC_32f(a, b[0], d, n), plainAddPC<T32f>)

#define SCALED(name, T, lib, ref)                                                                       \
    void BM_##name(benchmark::State& st) {                                                              \
        runBinary<T>(st, [](const T* a, const T* b, T* d, int n) { lib; }, int(st.range(0)));          \
    }                                                                                                   \
    BENCHMARK(BM_##name)->Arg(kShort)->Arg(kLong);                                                      \
    void BM_##name##_scalar(benchmark::State& st) {                                                     \
        runBinary<T>(st, [](const T* a, const T* b, T* d, int n) { ref; }, int(st.range(0)));          \
    }                                                                                                   \
    BENCHMARK(BM_##name##_scalar)->Arg(kShort);

SCALED(Add_16s_Sfs, T16s, veksAdd_16s_Sfs(a, b, d, n, kSf), (scalarScaled<T16s, 0>(a, b, d, n, kSf)))
SCALED(Sub_16s_Sfs, T16s, veksSub_16s_Sfs(a, b, d, n, kSf), (scalarScaled<T16s, 1>(a, b, d, n, kSf)))
SCALED(Mul_16s_Sfs, T16s, veksMul_16s_Sfs(a, b, d, n, kSf), (scalarScaled<T16s, 2>(a, b, d, n, kSf)))
SCALED(MulC_16s_Sfs, T16s, veksMulC_16s_Sfs(a, b[0], d, n, kSf), (scalarScaled<T16s, 2>(a, b, d, n, kSf)))
SCALED(Add_16u_Sfs, T16u, veksAdd_16u_Sfs(a, b, d, n, kSf), (scalarScaled<T16u, 0>(a, b, d, n, kSf)))
SCALED(Mul_16u_Sfs, T16u, veksMul_16u_Sfs(a, b, d, n, kSf), (scalarScaled<T16u, 2>(a, b, d, n, kSf)))
SCALED(Add_8u_Sfs, T8u, veksAdd_8u_Sfs(a, b, d, n, kSf), (scalarScaled<T8u, 0>(a, b, d, n, kSf)))
SCALED(Mul_8u_Sfs, T8u, veksMul_8u_Sfs(a, b, d, n, kSf), (scalarScaled<T8u, 2>(a, b, d, n, kSf)))
SCALED(Add_32s_Sfs, T32s, veksAdd_32s_Sfs(a, b, d, n, kSf), (scalarScaled<T32s, 0>(a, b, d, n, kSf)))
SCALED(Sub_32s_Sfs, T32s, veksSub_32s_Sfs(a, b, d, n, kSf), (scalarScaled<T32s, 1>(a, b, d, n, kSf)))
SCALED(Mul_32s_Sfs, T32s, veksMul_32s_Sfs(a, b, d, n, kSf), (scalarScaled<T32s, 2>(a, b, d, n, kSf)))
SCALED(Sub_16u_Sfs, T16u, veksSub_16u_Sfs(a, b, d, n, kSf), (scalarScaled<T16u, 1>(a, b, d, n, kSf)))
SCALED(Sub_8u_Sfs, T8u, veksSub_8u_Sfs(a, b, d, n, kSf), (scalarScaled<T8u, 1>(a, b, d, n, kSf)))
SCALED(AddC_16s_Sfs, T16s, veksAddC_16s_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T16s, 0>(a, b[0], d, n, kSf)))
SCALED(SubC_16u_Sfs, T16u, veksSubC_16u_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T16u, 1>(a, b[0], d, n, kSf)))
SCALED(AddC_8u_Sfs, T8u, veksAddC_8u_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T8u, 0>(a, b[0], d, n, kSf)))
SCALED(MulC_16u_Sfs, T16u, veksMulC_16u_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T16u, 2>(a, b[0], d, n, kSf)))
SCALED(MulC_8u_Sfs, T8u, veksMulC_8u_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T8u, 2>(a, b[0], d, n, kSf)))
SCALED(AddC_32s_Sfs, T32s, veksAddC_32s_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T32s, 0>(a, b[0], d, n, kSf)))
SCALED(SubC_32s_Sfs, T32s, veksSubC_32s_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T32s, 1>(a, b[0], d, n, kSf)))
SCALED(MulC_32s_Sfs, T32s, veksMulC_32s_Sfs(a, b[0], d, n, kSf), (scalarScaledC<T32s, 2>(a, b[0], d, n, kSf)))
SCALED(Div_16s_Sfs, T16s, veksDiv_16s_Sfs(a, b, d, n, kSf), (scalarDiv<T16s>(a, b, d, n, kSf)))
SCALED(Div_16u_Sfs, T16u, veksDiv_16u_Sfs(a, b, d, n, kSf), (scalarDiv<T16u>(a, b, d, n, kSf)))
SCALED(Div_8u_Sfs, T8u, veksDiv_8u_Sfs(a, b, d, n, kSf), (scalarDiv<T8u>(a, b, d, n, kSf)))

// memcpy of the same traffic as a two-source operation over kLong elements
// of the given width: 3 * width * n bytes moved, so 1.5 * width * n copied.
void BM_memcpy_traffic(benchmark::State& st) {
    const size_t bytes = size_t(st.range(0)) * 3 / 2 * kLong;
    vb::Buf<unsigned char> a(bytes), b(bytes);
    memset(a.p, 1, bytes);
    for (auto _ : st) {
        memcpy(b.p, a.p, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, kLong, bytes, bytes);
}
BENCHMARK(BM_memcpy_traffic)->Arg(1)->Arg(2)->Arg(4)->Arg(8)->Arg(16);

}  // namespace

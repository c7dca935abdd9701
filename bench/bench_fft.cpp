// Power-of-two transforms beside FFTW 3 (FFTW_MEASURE plans, same placement:
// out of place), single and double precision, complex and real.
#include <fftw3.h>

#include <vector>

#include "bench_util.h"
#include "veks.h"

namespace {

template <class T>
void fill(T* p, size_t n) {
    for (size_t i = 0; i < n; ++i) p[i] = static_cast<T>((i * 7919 % 1000) * 0.001 - 0.5);
}

void setFft(benchmark::State& st, int order) {
    const double N = static_cast<double>(int64_t(1) << order);
    st.counters["ns/transform"] =
        benchmark::Counter(static_cast<double>(st.iterations()) * 1e9, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    st.counters["GFlop/s(5NlogN)"] =
        benchmark::Counter(static_cast<double>(st.iterations()) * 5 * N * order * 1e-9, benchmark::Counter::kIsRate);
}

// ---- complex -----------------------------------------------------------------

template <bool Inverse>
void BM_veks_C_32fc(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const size_t N = size_t(1) << order;
    FftSpec_C_32fc* spec = nullptr;
    veksFFTInitAlloc_C_32fc(&spec, order, VEK_FFT_SCALE_NONE, 0);
    int bs = 0;
    veksFFTGetBufSize_C_32fc(spec, &bs);
    vb::Buf<T32fc> x(N), y(N);
    vb::Buf<T8u> buf(static_cast<size_t>(bs) + 1);
    fill(reinterpret_cast<float*>(x.p), 2 * N);
    for (auto _ : st) {
        if (Inverse)
            veksFFTInv_CToC_32fc(x.p, y.p, spec, buf.p);
        else
            veksFFTFwd_CToC_32fc(x.p, y.p, spec, buf.p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    veksFFTFree_C_32fc(spec);
}

template <bool Inverse>
void BM_fftwf_C(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const int N = 1 << order;
    fftwf_complex* x = fftwf_alloc_complex(N);
    fftwf_complex* y = fftwf_alloc_complex(N);
    fftwf_plan p = fftwf_plan_dft_1d(N, x, y, Inverse ? FFTW_BACKWARD : FFTW_FORWARD, FFTW_MEASURE);
    fill(reinterpret_cast<float*>(x), 2 * static_cast<size_t>(N));
    for (auto _ : st) {
        fftwf_execute(p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    fftwf_destroy_plan(p);
    fftwf_free(x);
    fftwf_free(y);
}

template <bool Inverse>
void BM_veks_C_64fc(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const size_t N = size_t(1) << order;
    FftSpec_C_64fc* spec = nullptr;
    veksFFTInitAlloc_C_64fc(&spec, order, VEK_FFT_SCALE_NONE, 0);
    int bs = 0;
    veksFFTGetBufSize_C_64fc(spec, &bs);
    vb::Buf<T64fc> x(N), y(N);
    vb::Buf<T8u> buf(static_cast<size_t>(bs) + 1);
    fill(reinterpret_cast<double*>(x.p), 2 * N);
    for (auto _ : st) {
        if (Inverse)
            veksFFTInv_CToC_64fc(x.p, y.p, spec, buf.p);
        else
            veksFFTFwd_CToC_64fc(x.p, y.p, spec, buf.p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    veksFFTFree_C_64fc(spec);
}

template <bool Inverse>
void BM_fftw_C(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const int N = 1 << order;
    fftw_complex* x = fftw_alloc_complex(N);
    fftw_complex* y = fftw_alloc_complex(N);
    fftw_plan p = fftw_plan_dft_1d(N, x, y, Inverse ? FFTW_BACKWARD : FFTW_FORWARD, FFTW_MEASURE);
    fill(reinterpret_cast<double*>(x), 2 * static_cast<size_t>(N));
    for (auto _ : st) {
        fftw_execute(p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    fftw_destroy_plan(p);
    fftw_free(x);
    fftw_free(y);
}

// ---- real ----------------------------------------------------------------------

template <bool Inverse>
void BM_veks_R_32f(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const size_t N = size_t(1) << order;
    FftSpec_R_32f* spec = nullptr;
    veksFFTInitAlloc_R_32f(&spec, order, VEK_FFT_SCALE_NONE, 0);
    int bs = 0;
    veksFFTGetBufSize_R_32f(spec, &bs);
    vb::Buf<float> x(N + 2), y(N + 2);
    vb::Buf<T8u> buf(static_cast<size_t>(bs) + 1);
    fill(x.p, N);
    for (auto _ : st) {
        if (Inverse)
            veksFFTInv_PermToR_32f(x.p, y.p, spec, buf.p);
        else
            veksFFTFwd_RToPerm_32f(x.p, y.p, spec, buf.p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    veksFFTFree_R_32f(spec);
}

template <bool Inverse>
void BM_fftwf_R(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const int N = 1 << order;
    float* r = fftwf_alloc_real(N + 2);
    fftwf_complex* c = fftwf_alloc_complex(N / 2 + 1);
    fftwf_plan p = Inverse ? fftwf_plan_dft_c2r_1d(N, c, r, FFTW_MEASURE) : fftwf_plan_dft_r2c_1d(N, r, c, FFTW_MEASURE);
    fill(r, static_cast<size_t>(N));
    fill(reinterpret_cast<float*>(c), static_cast<size_t>(N) + 2);
    for (auto _ : st) {
        fftwf_execute(p);  // c2r destroys its input; the time is what matters
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    fftwf_destroy_plan(p);
    fftwf_free(r);
    fftwf_free(c);
}

template <bool Inverse>
void BM_veks_R_64f(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const size_t N = size_t(1) << order;
    FftSpec_R_64f* spec = nullptr;
    veksFFTInitAlloc_R_64f(&spec, order, VEK_FFT_SCALE_NONE, 0);
    int bs = 0;
    veksFFTGetBufSize_R_64f(spec, &bs);
    vb::Buf<double> x(N + 2), y(N + 2);
    vb::Buf<T8u> buf(static_cast<size_t>(bs) + 1);
    fill(x.p, N);
    for (auto _ : st) {
        if (Inverse)
            veksFFTInv_PermToR_64f(x.p, y.p, spec, buf.p);
        else
            veksFFTFwd_RToPerm_64f(x.p, y.p, spec, buf.p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    veksFFTFree_R_64f(spec);
}

template <bool Inverse>
void BM_fftw_R(benchmark::State& st) {
    const int order = static_cast<int>(st.range(0));
    const int N = 1 << order;
    double* r = fftw_alloc_real(N + 2);
    fftw_complex* c = fftw_alloc_complex(N / 2 + 1);
    fftw_plan p = Inverse ? fftw_plan_dft_c2r_1d(N, c, r, FFTW_MEASURE) : fftw_plan_dft_r2c_1d(N, r, c, FFTW_MEASURE);
    fill(r, static_cast<size_t>(N));
    fill(reinterpret_cast<double*>(c), static_cast<size_t>(N) + 2);
    for (auto _ : st) {
        fftw_execute(p);
        benchmark::ClobberMemory();
    }
    setFft(st, order);
    fftw_destroy_plan(p);
    fftw_free(r);
    fftw_free(c);
}

BENCHMARK_TEMPLATE(BM_veks_C_32fc, false)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_fftwf_C, false)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_veks_C_32fc, true)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_fftwf_C, true)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_veks_R_32f, false)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_fftwf_R, false)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_veks_R_32f, true)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_fftwf_R, true)->DenseRange(6, 20);
BENCHMARK_TEMPLATE(BM_veks_C_64fc, false)->DenseRange(6, 16);
BENCHMARK_TEMPLATE(BM_fftw_C, false)->DenseRange(6, 16);
BENCHMARK_TEMPLATE(BM_veks_R_64f, false)->DenseRange(6, 16);
BENCHMARK_TEMPLATE(BM_fftw_R, false)->DenseRange(6, 16);

}  // namespace

// FFT spec life cycle: size query, Init in caller memory, InitAlloc, Free,
// and the work-buffer size query, for every spec kind.
#include "frame/detail/export.h"
#include "transform/fft_state.h"

#include <stdint.h>

namespace veks {
namespace fftspec {

namespace {

// Bit-reversal table of M = N/4 entries: entry i = 2 * rev(i) over log2(M)
// bits, the counter advanced by adding the highest bit and carrying
// downward, then a terminating 0.
void fillBitReversal(int32_t* e, int64_t M) {
    e[0] = 0;
    int64_t r = 0;
    for (int64_t i = 1; i < M; ++i) {
        int64_t bit = M / 2;
        while (r & bit) {
            r ^= bit;
            bit >>= 1;
        }
        r |= bit;
        e[i] = static_cast<int32_t>(2 * r);
    }
    e[M] = 0;
}

// Where the sines come from: the constant 1,024-point table for N <= 1024,
// else a quarter-wave table built in the init buffer. cs() gives cos and sin
// of 2*pi*i/n for any n dividing the top length.
template <class T>
struct SineSource {
    const double* constant = nullptr;
    const T* built = nullptr;
    int64_t top = 1;

    void cs(int64_t n, size_t i, double& c, double& s) const {
        if (constant)
            fft::quarterCosSin(constant, static_cast<size_t>(1024 / n), static_cast<size_t>(n), i, c, s);
        else
            fft::quarterCosSin(built, static_cast<size_t>(top / n), static_cast<size_t>(n), i, c, s);
    }
};

// sin and cos of |x| <= pi/4 by their Taylor series in double (terms to
// x^19 and x^18; the remainders lie below 1e-20), using only +, - and *,
// so that the tables are the same bits on every target whatever its libm.
inline double sinSmall(double x) {
    const double x2 = x * x;
    double p = -1.0 / 121645100408832000.0;  // -1/19!
    p = 1.0 / 355687428096000.0 + x2 * p;    // 1/17!
    p = -1.0 / 1307674368000.0 + x2 * p;     // -1/15!
    p = 1.0 / 6227020800.0 + x2 * p;         // 1/13!
    p = -1.0 / 39916800.0 + x2 * p;          // -1/11!
    p = 1.0 / 362880.0 + x2 * p;             // 1/9!
    p = -1.0 / 5040.0 + x2 * p;              // -1/7!
    p = 1.0 / 120.0 + x2 * p;                // 1/5!
    p = -1.0 / 6.0 + x2 * p;                 // -1/3!
    return x + x * x2 * p;
}
inline double cosSmall(double x) {
    const double x2 = x * x;
    double p = -1.0 / 6402373705728000.0;  // -1/18!
    p = 1.0 / 20922789888000.0 + x2 * p;   // 1/16!
    p = -1.0 / 87178291200.0 + x2 * p;     // -1/14!
    p = 1.0 / 479001600.0 + x2 * p;        // 1/12!
    p = -1.0 / 3628800.0 + x2 * p;         // -1/10!
    p = 1.0 / 40320.0 + x2 * p;            // 1/8!
    p = -1.0 / 720.0 + x2 * p;             // -1/6!
    p = 1.0 / 24.0 + x2 * p;               // 1/4!
    p = -0.5 + x2 * p;                     // -1/2!
    return 1.0 + x2 * p;
}

template <class T>
SineSource<T> makeSines(int order, uint8_t* initBuf) {
    SineSource<T> src;
    src.top = int64_t(1) << order;
    if (order <= 10) {
        src.constant = kQuarterSine1024;
        return src;
    }
    // s[k] = sin(2*pi*k/N): the sine up to N/8, the cosine of the
    // complementary angle above, s[N/4] exactly 1; computed in double.
    T* q = reinterpret_cast<T*>(alignPtr64(initBuf));
    const int64_t N = src.top, Q = N / 4, E = N / 8;
    const double step = 2.0 * M_PI / static_cast<double>(N);
    for (int64_t k = 0; k <= E; ++k) q[k] = static_cast<T>(sinSmall(static_cast<double>(k) * step));
    for (int64_t k = E + 1; k < Q; ++k) q[k] = static_cast<T>(cosSmall(static_cast<double>(Q - k) * step));
    q[Q] = T(1);
    src.built = q;
    return src;
}

// The stage twiddles and bit-reversal table of the innermost ordinary order
// and, for two-level orders, the half-circle table.
template <class T>
void buildComplexTables(FloatSpec<T>* h, uint8_t* base, const Layout& L, int order, const SineSource<T>& S) {
    const int inner = innermostOrder<T>(order);
    const int64_t Nin = int64_t(1) << inner, N = int64_t(1) << order;
    Cx<T>* tw = reinterpret_cast<Cx<T>*>(base + L.tw);
    fft::fillStageTwiddles<T>(tw, inner, [&](size_t i, double& c, double& s) { S.cs(Nin, i, c, s); });
    fillBitReversal(reinterpret_cast<int32_t*>(base + L.br), Nin / 4);
    if (L.half) {
        Cx<T>* half = reinterpret_cast<Cx<T>*>(base + L.half);
        for (int64_t j = 0; j < N / 2; ++j) {
            double c, s;
            S.cs(N, static_cast<size_t>(j), c, s);
            half[j] = {static_cast<T>(c), static_cast<T>(-s)};
        }
    }
    h->twiddle.p = base + L.tw;
    h->bitrev.p = base + L.br;
}

template <class T>
void buildTables(Kind kind, FloatSpec<T>* h, uint8_t* base, int order, uint8_t* initBuf) {
    if (kind == Kind::Complex) {
        if (order <= kComplexFixedMax) return;
        const SineSource<T> S = makeSines<T>(order, initBuf);
        buildComplexTables<T>(h, base, complexLayout<T>(order), order, S);
        return;
    }
    if (order <= kRealFixedMax) return;
    const SineSource<T> S = makeSines<T>(order, initBuf);
    const Layout L = realLayout<T>(order);
    const int64_t N = int64_t(1) << order;
    if (order >= 7) buildComplexTables<T>(h, base, L, order - 1, S);
    if (sizeof(T) == 4 && order >= kRealTwoLevelFrom32f) {
        // W^k = coarse[k / 2048] * fine[k % 2048]
        Cx<double>* coarse = reinterpret_cast<Cx<double>*>(base + L.split2);
        Cx<T>* fine = reinterpret_cast<Cx<T>*>(base + L.split);
        for (int64_t j = 0; j < (int64_t(1) << (order - 12)); ++j) {
            double c, s;
            S.cs(N, static_cast<size_t>(j * static_cast<int64_t>(kFineCount)), c, s);
            coarse[j] = {c, -s};
        }
        for (size_t l = 0; l < kFineCount; ++l) {
            double c, s;
            S.cs(N, l, c, s);
            fine[l] = {static_cast<T>(c), static_cast<T>(-s)};
        }
    } else {
        // A[k] = (1 - i W^k) / 2 with W^k = cos - i sin: ((1 - sin) / 2, -cos / 2)
        Cx<T>* A = reinterpret_cast<Cx<T>*>(base + L.split);
        for (int64_t k = 0; k < N / 2; ++k) {
            double c, s;
            S.cs(N, static_cast<size_t>(k), c, s);
            A[k] = {static_cast<T>((1.0 - s) * 0.5), static_cast<T>(-c * 0.5)};
        }
    }
    h->split.p = base + L.split;
    h->split2.p = base + L.split2;
}

}  // namespace

template <class T>
VekResult floatInit(Kind kind, uint32_t id, void** ppSpec, int order, int flag, int hint, uint8_t* pSpecMem,
                    uint8_t* pInitBuf) {
    if (ppSpec == nullptr) return VEK_ERR_NULL_POINTER;
    if (static_cast<unsigned>(order) >= 31u || order > maxOrder<T>(kind)) return VEK_ERR_FFT_ORDER;
    if (pSpecMem == nullptr) return VEK_ERR_NULL_POINTER;
    uint8_t* base = alignPtr64(pSpecMem);
    FloatSpec<T>* h = reinterpret_cast<FloatSpec<T>*>(base);
    memset(base, 0, sizeof(FloatSpec<T>));
    const Sizes sz = floatSizes<T>(kind, order);
    const double N = static_cast<double>(int64_t(1) << order);
    h->f.id = static_cast<int32_t>(id);
    h->f.order = order;
    if (flag == VEK_FFT_SCALE_FWD || flag == VEK_FFT_SCALE_INV) {
        h->f.fwdScale = flag == VEK_FFT_SCALE_FWD;
        h->f.invScale = flag == VEK_FFT_SCALE_INV;
        h->f.scale = T(1) / static_cast<T>(N);
    } else if (flag == VEK_FFT_SCALE_SQRT) {
        h->f.fwdScale = 1;
        h->f.invScale = 1;
        h->f.scale = static_cast<T>(1.0 / sqrt(N));
    }
    h->f.hint = hint;
    h->f.workSize = static_cast<int32_t>(sz.work);
    h->f.owned = 0;
    if (!validFlag(flag)) {
        h->f.id = 0;
        return VEK_ERR_FFT_FLAG;
    }
    if (sz.init > 0 && pInitBuf == nullptr) {
        h->f.id = 0;  // never leave a block without tables acceptable
        return VEK_ERR_NULL_POINTER;
    }
    buildTables<T>(kind, h, base, order, pInitBuf);
    *ppSpec = base;
    return VEK_OK;
}

template <class T>
VekResult floatInitAlloc(Kind kind, uint32_t id, void** ppSpec, int order, int flag, int hint) {
    if (ppSpec == nullptr) return VEK_ERR_NULL_POINTER;
    int specSize, initSize, workSize;
    const VekResult r = floatGetSize<T>(kind, order, flag, &specSize, &initSize, &workSize);
    if (r != VEK_OK) return r;
    uint8_t* mem = static_cast<uint8_t*>(vekMalloc(static_cast<size_t>(specSize)));
    if (mem == nullptr) return VEK_ERR_NO_MEMORY;
    uint8_t* initBuf = nullptr;
    if (initSize > 0) {
        initBuf = static_cast<uint8_t*>(vekMalloc(static_cast<size_t>(initSize)));
        if (initBuf == nullptr) {
            vekFree(mem);
            return VEK_ERR_NO_MEMORY;
        }
    }
    void* spec = nullptr;
    const VekResult ri = floatInit<T>(kind, id, &spec, order, flag, hint, mem, initBuf);
    if (initBuf) vekFree(initBuf);
    if (ri != VEK_OK) {
        vekFree(mem);
        return ri;
    }
    static_cast<FloatSpec<T>*>(spec)->f.owned = 1;
    *ppSpec = spec;
    return VEK_OK;
}

// The wrapping kinds' sizes: the floating query plus 128 bytes of spec,
// 64 more bytes of a non-zero init buffer and elemBytes * N + 64 bytes of
// work. Orders whose work would not fit the int32 count are refused with
// VEK_ERR_FFT_ORDER.
template <class TF>
VekResult wrapSizes(Kind kind, int order, int flag, int elemBytes, Sizes& out) {
    int a, b, c;
    const VekResult r = floatGetSize<TF>(kind, order, flag, &a, &b, &c);
    if (r != VEK_OK) return r;
    out.spec = int64_t(a) + 128;
    out.init = b > 0 ? int64_t(b) + 64 : 0;
    out.work = int64_t(c) + int64_t(elemBytes) * (int64_t(1) << order) + 64;
    if (out.work > INT32_MAX || out.spec > INT32_MAX) return VEK_ERR_FFT_ORDER;
    return VEK_OK;
}

template <class TF>
VekResult wrapGetSize(Kind kind, int order, int flag, int elemBytes, int* pSpecSize, int* pInitBufSize,
                      int* pBufSize) {
    if (static_cast<unsigned>(order) > 30u) return VEK_ERR_FFT_ORDER;
    if (anyNull(pSpecSize, pInitBufSize, pBufSize)) return VEK_ERR_NULL_POINTER;
    Sizes s;
    const VekResult r = wrapSizes<TF>(kind, order, flag, elemBytes, s);
    if (r != VEK_OK) return r;
    *pSpecSize = static_cast<int>(s.spec);
    *pInitBufSize = static_cast<int>(s.init);
    *pBufSize = static_cast<int>(s.work);
    return VEK_OK;
}

template <class TF>
VekResult wrapInit(Kind kind, uint32_t id, uint32_t innerId, int elemBytes, void** ppSpec, int order, int flag,
                   int hint, uint8_t* pSpecMem, uint8_t* pInitBuf) {
    if (ppSpec == nullptr) return VEK_ERR_NULL_POINTER;
    if (static_cast<unsigned>(order) >= 31u || order > maxOrder<TF>(kind)) return VEK_ERR_FFT_ORDER;
    if (pSpecMem == nullptr) return VEK_ERR_NULL_POINTER;
    if (floatSizes<TF>(kind, order).work + (int64_t(elemBytes) << order) + 64 > INT32_MAX) return VEK_ERR_FFT_ORDER;
    uint8_t* base = alignPtr64(pSpecMem);
    WrapSpec* h = reinterpret_cast<WrapSpec*>(base);
    memset(base, 0, kWrapHeader);
    h->id = static_cast<int32_t>(id);
    h->order = order;
    h->hint = hint;
    void* inner = nullptr;
    const VekResult r = floatInit<TF>(kind, innerId, &inner, order, flag, hint, base + kWrapHeader, pInitBuf);
    if (r != VEK_OK) {
        h->id = 0;
        return r;
    }
    const int32_t innerWork = workOf(static_cast<const FloatSpec<TF>*>(inner));
    h->workSize = (innerWork >= 1 ? innerWork + 64 : 0) + elemBytes * (1 << order);
    h->inner.p = inner;
    *ppSpec = base;
    return VEK_OK;
}

template <class TF>
VekResult wrapInitAlloc(Kind kind, uint32_t id, uint32_t innerId, int elemBytes, void** ppSpec, int order,
                        int flag, int hint) {
    if (ppSpec == nullptr) return VEK_ERR_NULL_POINTER;
    Sizes sz;
    const VekResult r = wrapSizes<TF>(kind, order, flag, elemBytes, sz);
    if (r != VEK_OK) return r;
    const int64_t specSize = sz.spec, initSize = sz.init;
    uint8_t* mem = static_cast<uint8_t*>(vekMalloc(static_cast<size_t>(specSize)));
    if (mem == nullptr) return VEK_ERR_NO_MEMORY;
    uint8_t* initBuf = nullptr;
    if (initSize > 0) {
        initBuf = static_cast<uint8_t*>(vekMalloc(static_cast<size_t>(initSize)));
        if (initBuf == nullptr) {
            vekFree(mem);
            return VEK_ERR_NO_MEMORY;
        }
    }
    void* spec = nullptr;
    const VekResult ri = wrapInit<TF>(kind, id, innerId, elemBytes, &spec, order, flag, hint, mem, initBuf);
    if (initBuf) vekFree(initBuf);
    if (ri != VEK_OK) {
        vekFree(mem);
        return ri;
    }
    static_cast<WrapSpec*>(spec)->owned = 1;
    *ppSpec = spec;
    return VEK_OK;
}

}  // namespace fftspec
}  // namespace veks

using veks::fftspec::FloatSpec;
using veks::fftspec::Kind;
using veks::fftspec::WrapSpec;
namespace fs = veks::fftspec;

// ---- export shapes ------------------------------------------------------------

#define VEKS_FFT_GETSIZE(name, T, kind)                                                                   \
    VEKS_EXPORT VekResult name(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize,         \
                               int* pBufSize) {                                                          \
        (void)hint;                                                                                       \
        return fs::floatGetSize<T>(Kind::kind, order, flag, pSpecSize, pInitBufSize, pBufSize);           \
    }
#define VEKS_FFT_INIT(name, Spec, T, kind, id)                                                            \
    VEKS_EXPORT VekResult name(Spec** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf) { \
        return fs::floatInit<T>(Kind::kind, id, reinterpret_cast<void**>(ppSpec), order, flag, hint, pSpecMem, \
                                pInitBuf);                                                                \
    }
#define VEKS_FFT_INITALLOC(name, Spec, T, kind, id)                                                       \
    VEKS_EXPORT VekResult name(Spec** ppSpec, int order, int flag, int hint) {                           \
        return fs::floatInitAlloc<T>(Kind::kind, id, reinterpret_cast<void**>(ppSpec), order, flag, hint); \
    }
#define VEKS_FFT_WRAP_GETSIZE(name, TF, kind, elemBytes)                                                  \
    VEKS_EXPORT VekResult name(int order, int flag, int hint, int* pSpecSize, int* pInitBufSize,         \
                               int* pBufSize) {                                                          \
        (void)hint;                                                                                       \
        return fs::wrapGetSize<TF>(Kind::kind, order, flag, elemBytes, pSpecSize, pInitBufSize, pBufSize); \
    }
#define VEKS_FFT_WRAP_INIT(name, Spec, TF, kind, id, innerId, elemBytes)                                  \
    VEKS_EXPORT VekResult name(Spec** ppSpec, int order, int flag, int hint, T8u* pSpecMem, T8u* pInitBuf) { \
        return fs::wrapInit<TF>(Kind::kind, id, innerId, elemBytes, reinterpret_cast<void**>(ppSpec), order, \
                                flag, hint, pSpecMem, pInitBuf);                                          \
    }
#define VEKS_FFT_WRAP_INITALLOC(name, Spec, TF, kind, id, innerId, elemBytes)                             \
    VEKS_EXPORT VekResult name(Spec** ppSpec, int order, int flag, int hint) {                           \
        return fs::wrapInitAlloc<TF>(Kind::kind, id, innerId, elemBytes, reinterpret_cast<void**>(ppSpec), \
                                     order, flag, hint);                                                  \
    }
#define VEKS_FFT_FREE(name, Spec, Head, id) \
    VEKS_EXPORT VekResult name(Spec* pSpec) { return fs::specFree<Head>(pSpec, id); }
#define VEKS_FFT_GETBUFSIZE(name, Spec, Head, id)                   \
    VEKS_EXPORT VekResult name(const Spec* pSpec, int* pBufSize) { \
        return fs::specGetBufSize<Head>(pSpec, id, pBufSize);       \
    }

// Converted data held in the work buffer of the wrapping kinds: N complex
// doubles for the 32-bit kinds, N complex floats for the 16-bit kinds.
#define WRAP32 16
#define WRAP16 8

// ---- rows -----------------------------------------------------------------------

VEKS_FFT_GETSIZE(veksFFTGetSize_C_32fc, float, Complex)
VEKS_FFT_GETSIZE(veksFFTGetSize_C_32f, float, Complex)
VEKS_FFT_GETSIZE(veksFFTGetSize_R_32f, float, Real)
VEKS_FFT_GETSIZE(veksFFTGetSize_C_64fc, double, Complex)
VEKS_FFT_GETSIZE(veksFFTGetSize_C_64f, double, Complex)
VEKS_FFT_GETSIZE(veksFFTGetSize_R_64f, double, Real)
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_C_32sc, double, Complex, WRAP32)
VEKS_ALIAS(VekResult, veksFFTGetSize_C_32s,
           (int order, int flag, int hint, int* pSpecSize, int* pInitBufSize, int* pBufSize),
           veksFFTGetSize_C_32sc);
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_R_32s, double, Real, WRAP32)
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_R_16s32s, double, Real, WRAP32)
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_C_16sc, float, Complex, WRAP16)
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_C_16s, float, Complex, WRAP16)
VEKS_FFT_WRAP_GETSIZE(veksFFTGetSize_R_16s, float, Real, WRAP16)

VEKS_FFT_INIT(veksFFTInit_C_32fc, FftSpec_C_32fc, float, Complex, fs::kIdC32fc)
VEKS_FFT_INIT(veksFFTInit_C_32f, FftSpec_C_32f, float, Complex, fs::kIdC32f)
VEKS_FFT_INIT(veksFFTInit_R_32f, FftSpec_R_32f, float, Real, fs::kIdR32f)
VEKS_FFT_INIT(veksFFTInit_C_64fc, FftSpec_C_64fc, double, Complex, fs::kIdC64fc)
VEKS_FFT_INIT(veksFFTInit_C_64f, FftSpec_C_64f, double, Complex, fs::kIdC64f)
VEKS_FFT_INIT(veksFFTInit_R_64f, FftSpec_R_64f, double, Real, fs::kIdR64f)
VEKS_FFT_WRAP_INIT(veksFFTInit_C_32sc, FftSpec_C_32sc, double, Complex, fs::kIdC32sc, fs::kIdC64fc, WRAP32)
VEKS_FFT_WRAP_INIT(veksFFTInit_C_32s, FftSpec_C_32s, double, Complex, fs::kIdC32s, fs::kIdC64f, WRAP32)
VEKS_FFT_WRAP_INIT(veksFFTInit_R_32s, FftSpec_R_32s, double, Real, fs::kIdR32s, fs::kIdR64f, WRAP32)
VEKS_FFT_WRAP_INIT(veksFFTInit_R_16s32s, FftSpec_R_16s32s, double, Real, fs::kIdR16s32s, fs::kIdR64f, WRAP32)
VEKS_FFT_WRAP_INIT(veksFFTInit_C_16sc, FftSpec_C_16sc, float, Complex, fs::kIdC16sc, fs::kIdC32fc, WRAP16)
VEKS_FFT_WRAP_INIT(veksFFTInit_C_16s, FftSpec_C_16s, float, Complex, fs::kIdC16s, fs::kIdC32f, WRAP16)
VEKS_FFT_WRAP_INIT(veksFFTInit_R_16s, FftSpec_R_16s, float, Real, fs::kIdR16s, fs::kIdR32f, WRAP16)

VEKS_FFT_INITALLOC(veksFFTInitAlloc_C_32fc, FftSpec_C_32fc, float, Complex, fs::kIdC32fc)
VEKS_FFT_INITALLOC(veksFFTInitAlloc_C_32f, FftSpec_C_32f, float, Complex, fs::kIdC32f)
VEKS_FFT_INITALLOC(veksFFTInitAlloc_R_32f, FftSpec_R_32f, float, Real, fs::kIdR32f)
VEKS_FFT_INITALLOC(veksFFTInitAlloc_C_64fc, FftSpec_C_64fc, double, Complex, fs::kIdC64fc)
VEKS_FFT_INITALLOC(veksFFTInitAlloc_C_64f, FftSpec_C_64f, double, Complex, fs::kIdC64f)
VEKS_FFT_INITALLOC(veksFFTInitAlloc_R_64f, FftSpec_R_64f, double, Real, fs::kIdR64f)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_C_32sc, FftSpec_C_32sc, double, Complex, fs::kIdC32sc, fs::kIdC64fc, WRAP32)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_C_32s, FftSpec_C_32s, double, Complex, fs::kIdC32s, fs::kIdC64f, WRAP32)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_R_32s, FftSpec_R_32s, double, Real, fs::kIdR32s, fs::kIdR64f, WRAP32)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_R_16s32s, FftSpec_R_16s32s, double, Real, fs::kIdR16s32s, fs::kIdR64f,
                        WRAP32)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_C_16sc, FftSpec_C_16sc, float, Complex, fs::kIdC16sc, fs::kIdC32fc, WRAP16)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_C_16s, FftSpec_C_16s, float, Complex, fs::kIdC16s, fs::kIdC32f, WRAP16)
VEKS_FFT_WRAP_INITALLOC(veksFFTInitAlloc_R_16s, FftSpec_R_16s, float, Real, fs::kIdR16s, fs::kIdR32f, WRAP16)

VEKS_FFT_FREE(veksFFTFree_C_32fc, FftSpec_C_32fc, FloatSpec<float>, fs::kIdC32fc)
VEKS_FFT_FREE(veksFFTFree_C_32f, FftSpec_C_32f, FloatSpec<float>, fs::kIdC32f)
VEKS_FFT_FREE(veksFFTFree_R_32f, FftSpec_R_32f, FloatSpec<float>, fs::kIdR32f)
VEKS_FFT_FREE(veksFFTFree_C_64fc, FftSpec_C_64fc, FloatSpec<double>, fs::kIdC64fc)
VEKS_FFT_FREE(veksFFTFree_C_64f, FftSpec_C_64f, FloatSpec<double>, fs::kIdC64f)
VEKS_FFT_FREE(veksFFTFree_R_64f, FftSpec_R_64f, FloatSpec<double>, fs::kIdR64f)
VEKS_FFT_FREE(veksFFTFree_C_32sc, FftSpec_C_32sc, WrapSpec, fs::kIdC32sc)
VEKS_FFT_FREE(veksFFTFree_C_32s, FftSpec_C_32s, WrapSpec, fs::kIdC32s)
VEKS_FFT_FREE(veksFFTFree_R_32s, FftSpec_R_32s, WrapSpec, fs::kIdR32s)
VEKS_FFT_FREE(veksFFTFree_R_16s32s, FftSpec_R_16s32s, WrapSpec, fs::kIdR16s32s)
VEKS_FFT_FREE(veksFFTFree_C_16sc, FftSpec_C_16sc, WrapSpec, fs::kIdC16sc)
VEKS_FFT_FREE(veksFFTFree_C_16s, FftSpec_C_16s, WrapSpec, fs::kIdC16s)
VEKS_FFT_FREE(veksFFTFree_R_16s, FftSpec_R_16s, WrapSpec, fs::kIdR16s)

VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_32fc, FftSpec_C_32fc, FloatSpec<float>, fs::kIdC32fc)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_32f, FftSpec_C_32f, FloatSpec<float>, fs::kIdC32f)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_R_32f, FftSpec_R_32f, FloatSpec<float>, fs::kIdR32f)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_64fc, FftSpec_C_64fc, FloatSpec<double>, fs::kIdC64fc)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_64f, FftSpec_C_64f, FloatSpec<double>, fs::kIdC64f)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_R_64f, FftSpec_R_64f, FloatSpec<double>, fs::kIdR64f)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_32sc, FftSpec_C_32sc, WrapSpec, fs::kIdC32sc)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_32s, FftSpec_C_32s, WrapSpec, fs::kIdC32s)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_R_32s, FftSpec_R_32s, WrapSpec, fs::kIdR32s)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_R_16s32s, FftSpec_R_16s32s, WrapSpec, fs::kIdR16s32s)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_16sc, FftSpec_C_16sc, WrapSpec, fs::kIdC16sc)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_C_16s, FftSpec_C_16s, WrapSpec, fs::kIdC16s)
VEKS_FFT_GETBUFSIZE(veksFFTGetBufSize_R_16s, FftSpec_R_16s, WrapSpec, fs::kIdR16s)

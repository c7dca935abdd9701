// Transforms of integer data. They convert through the exported Convert
// operations into a floating work area, run the floating transform of the
// wrapped spec there in place, and convert back with the caller's scale
// factor, rounding to nearest and saturating:
// - 32-bit data (and 16-bit real input with 32-bit complex output) through a
//   double-precision spec;
// - 16-bit data through a single-precision spec.
// The work buffer holds the converted data first (16 bytes per element for
// the 32-bit kinds, 8 for the 16-bit ones), then the inner transform's work
// area; a null buffer makes the call allocate the whole wrapped work size.
#include <initializer_list>

#include "frame/detail/export.h"
#include "frame/detail/traits.h"
#include "transform/fft_exec.h"

namespace veks {
namespace fftexec {
namespace {

// Conversions into and out of the floating work area, by element types.
inline void toFloat(const T32s* s, double* d, int n) { veksConvert_32s64f(s, d, n); }
inline void toFloat(const T16s* s, double* d, int n) { veksConvert_16s64f_Sfs(s, d, n, 0); }
inline void toFloat(const T16s* s, float* d, int n) { veksConvert_16s32f(s, d, n); }
inline void fromFloat(const double* s, T32s* d, int n, int sf) { veksConvert_64f32s_Sfs(s, d, n, VEK_ROUND_NEAR, sf); }
inline void fromFloat(const double* s, T16s* d, int n, int sf) { veksConvert_64f16s_Sfs(s, d, n, VEK_ROUND_NEAR, sf); }
inline void fromFloat(const float* s, T16s* d, int n, int sf) { veksConvert_32f16s_Sfs(s, d, n, VEK_ROUND_NEAR, sf); }

// The frame of every wrapped transform: spec, identifier, data pointers;
// then the work area. On success `data` is the converted-data area, `inner`
// the floating spec and `innerWork` its work area.
template <class TF>
struct Wrapped {
    Work work;
    const void* inner = nullptr;
    int order = 0;
    TF* data = nullptr;
    uint8_t* innerWork = nullptr;

    VekResult open(const void* spec, uint32_t id, std::initializer_list<const void*> ptrs, uint8_t* buffer,
                   int elemBytes) {
        if (spec == nullptr) return VEK_ERR_NULL_POINTER;
        if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
        for (const void* p : ptrs)
            if (p == nullptr) return VEK_ERR_NULL_POINTER;
        const fftspec::WrapSpec* h = static_cast<const fftspec::WrapSpec*>(spec);
        inner = h->inner.p;
        order = h->order;
        const VekResult r = work.acquire(h->workSize, buffer);
        if (r != VEK_OK) return r;
        data = reinterpret_cast<TF*>(work.get());
        innerWork = fftspec::alignPtr64(work.get() + (int64_t(elemBytes) << order));
        return VEK_OK;
    }
};

template <class TF>
void scaleIf(bool on, TF* d, size_t n, TF factor) {
    if (on) fft::scaleValues<TF>(d, d, n, factor);
}

// Complex interleaved integer data (T16sc, T32sc).
template <class TF, class TI>
VekResult complexInt(const TI* src, TI* dst, const void* spec, uint32_t id, int sf, uint8_t* buffer, bool inverse,
                     int elemBytes) {
    Wrapped<TF> w;
    const VekResult r = w.open(spec, id, {src, dst}, buffer, elemBytes);
    if (r != VEK_OK) return r;
    const int n = 2 << w.order;
    toFloat(reinterpret_cast<const Base<TI>*>(src), w.data, n);
    const View<TF> v = fftspec::complexView<TF>(w.inner);
    Cx<TF>* z = reinterpret_cast<Cx<TF>*>(w.data);
    complexCore<TF>(v, v.order, z, z, w.innerWork, inverse);
    scaleIf<TF>(inverse ? v.invScale : v.fwdScale, w.data, static_cast<size_t>(n), v.scale);
    fromFloat(w.data, reinterpret_cast<Base<TI>*>(dst), n, sf);
    return VEK_OK;
}

// Complex split integer data (T16s, T32s arrays).
template <class TF, class TI>
VekResult splitInt(const TI* sre, const TI* sim, TI* dre, TI* dim, const void* spec, uint32_t id, int sf,
                   uint8_t* buffer, bool inverse, int elemBytes) {
    Wrapped<TF> w;
    const VekResult r = w.open(spec, id, {sre, sim, dre, dim}, buffer, elemBytes);
    if (r != VEK_OK) return r;
    const int n = 1 << w.order;
    TF* re = w.data;
    TF* im = w.data + n;
    toFloat(sre, re, n);
    toFloat(sim, im, n);
    const View<TF> v = fftspec::complexView<TF>(w.inner);
    splitCore<TF>(v, v.order, SplitPtr<const TF>{re, im}, SplitPtr<TF>{re, im}, w.innerWork, inverse);
    scaleIf<TF>(inverse ? v.invScale : v.fwdScale, w.data, static_cast<size_t>(2 * n), v.scale);
    fromFloat(re, dre, n, sf);
    fromFloat(im, dim, n, sf);
    return VEK_OK;
}

enum class Packed { Pack, Perm, CCS };

inline size_t packedLen(Packed p, size_t N) { return p == Packed::CCS ? (N == 1 ? 2 : N + 2) : N; }

// Perm (the engine's layout) into the requested one, in place.
template <class T>
void permTo(Packed layout, T* d, size_t N) {
    if (layout == Packed::Pack && N >= 3) {
        const T t = d[1];
        memmove(d + 1, d + 2, (N - 2) * sizeof(T));
        d[N - 1] = t;
    } else if (layout == Packed::CCS) {
        if (N > 1) {
            d[N] = d[1];
            d[N + 1] = 0;
        }
        d[1] = 0;
    }
}
template <class T>
void toPerm(Packed layout, T* d, size_t N) {
    if (N < 2) return;
    if (layout == Packed::Pack) {
        const T last = d[N - 1];
        memmove(d + 2, d + 1, (N - 2) * sizeof(T));
        d[1] = last;
    } else if (layout == Packed::CCS) {
        d[1] = d[N];
    }
}

// Real forward: N integers to a packed spectrum of integers (TO may be a
// complex type for the CCS output of 16-bit input).
template <class TF, class TIn, class TOut>
VekResult realFwdInt(const TIn* src, TOut* dst, const void* spec, uint32_t id, int sf, uint8_t* buffer,
                     Packed layout, int elemBytes) {
    Wrapped<TF> w;
    const VekResult r = w.open(spec, id, {src, dst}, buffer, elemBytes);
    if (r != VEK_OK) return r;
    const size_t N = size_t(1) << w.order;
    toFloat(src, w.data, static_cast<int>(N));
    const View<TF> v = fftspec::realView<TF>(w.inner);
    realForward<TF>(v, w.data, w.data, w.innerWork);
    permTo<TF>(layout, w.data, N);
    fromFloat(w.data, reinterpret_cast<Base<TOut>*>(dst), static_cast<int>(packedLen(layout, N)), sf);
    return VEK_OK;
}

template <class TF, class TIn, class TOut>
VekResult realInvInt(const TIn* src, TOut* dst, const void* spec, uint32_t id, int sf, uint8_t* buffer,
                     Packed layout, int elemBytes) {
    Wrapped<TF> w;
    const VekResult r = w.open(spec, id, {src, dst}, buffer, elemBytes);
    if (r != VEK_OK) return r;
    const size_t N = size_t(1) << w.order;
    toFloat(reinterpret_cast<const Base<TIn>*>(src), w.data, static_cast<int>(packedLen(layout, N)));
    toPerm<TF>(layout, w.data, N);
    const View<TF> v = fftspec::realView<TF>(w.inner);
    realInverse<TF>(v, w.data, w.innerWork);
    fromFloat(w.data, dst, static_cast<int>(N), sf);
    return VEK_OK;
}

}  // namespace
}  // namespace fftexec
}  // namespace veks

namespace fe = veks::fftexec;
namespace fs = veks::fftspec;
using fe::Packed;

// Bytes per element of the converted data: 16 for the 32-bit kinds (N
// complex doubles), 8 for the 16-bit kinds (N complex floats).
#define VEKS_FFT_CTOC_SFS(name, TI, Spec, TF, id, inverse, eb)                                                    \
    VEKS_EXPORT VekResult name(const TI* pSrc, TI* pDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) {     \
        return fe::complexInt<TF, TI>(pSrc, pDst, pSpec, id, scaleFactor, pBuffer, inverse, eb);                 \
    }
#define VEKS_FFT_CTOC_ISFS(name, TI, Spec, TF, id, inverse, eb)                                           \
    VEKS_EXPORT VekResult name(TI* pSrcDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) {          \
        return fe::complexInt<TF, TI>(pSrcDst, pSrcDst, pSpec, id, scaleFactor, pBuffer, inverse, eb);   \
    }
#define VEKS_FFT_CTOC_SPLIT_SFS(name, TI, Spec, TF, id, inverse, eb)                                            \
    VEKS_EXPORT VekResult name(const TI* pSrcRe, const TI* pSrcIm, TI* pDstRe, TI* pDstIm, const Spec* pSpec,  \
                               int scaleFactor, T8u* pBuffer) {                                                \
        return fe::splitInt<TF, TI>(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, id, scaleFactor, pBuffer, inverse, eb); \
    }
#define VEKS_FFT_CTOC_SPLIT_ISFS(name, TI, Spec, TF, id, inverse, eb)                                    \
    VEKS_EXPORT VekResult name(TI* pSrcDstRe, TI* pSrcDstIm, const Spec* pSpec, int scaleFactor,       \
                               T8u* pBuffer) {                                                         \
        return fe::splitInt<TF, TI>(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec, id, scaleFactor, \
                                    pBuffer, inverse, eb);                                             \
    }
#define VEKS_FFT_RFWD_SFS(name, TIn, TOut, Spec, TF, id, layout, eb)                                           \
    VEKS_EXPORT VekResult name(const TIn* pSrc, TOut* pDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) { \
        return fe::realFwdInt<TF>(pSrc, pDst, pSpec, id, scaleFactor, pBuffer, Packed::layout, eb);            \
    }
#define VEKS_FFT_RFWD_ISFS(name, TI, Spec, TF, id, layout, eb)                                                 \
    VEKS_EXPORT VekResult name(TI* pSrcDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) {               \
        return fe::realFwdInt<TF>(pSrcDst, pSrcDst, pSpec, id, scaleFactor, pBuffer, Packed::layout, eb);     \
    }
#define VEKS_FFT_RINV_SFS(name, TIn, TOut, Spec, TF, id, layout, eb)                                           \
    VEKS_EXPORT VekResult name(const TIn* pSrc, TOut* pDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) { \
        return fe::realInvInt<TF>(pSrc, pDst, pSpec, id, scaleFactor, pBuffer, Packed::layout, eb);            \
    }
#define VEKS_FFT_RINV_ISFS(name, TI, Spec, TF, id, layout, eb)                                                 \
    VEKS_EXPORT VekResult name(TI* pSrcDst, const Spec* pSpec, int scaleFactor, T8u* pBuffer) {               \
        return fe::realInvInt<TF>(pSrcDst, pSrcDst, pSpec, id, scaleFactor, pBuffer, Packed::layout, eb);     \
    }

VEKS_FFT_CTOC_SFS(veksFFTFwd_CToC_32sc_Sfs, T32sc, FftSpec_C_32sc, double, fs::kIdC32sc, false, 16)
VEKS_FFT_CTOC_ISFS(veksFFTFwd_CToC_32sc_ISfs, T32sc, FftSpec_C_32sc, double, fs::kIdC32sc, false, 16)
VEKS_FFT_CTOC_SFS(veksFFTInv_CToC_32sc_Sfs, T32sc, FftSpec_C_32sc, double, fs::kIdC32sc, true, 16)
VEKS_FFT_CTOC_ISFS(veksFFTInv_CToC_32sc_ISfs, T32sc, FftSpec_C_32sc, double, fs::kIdC32sc, true, 16)
VEKS_FFT_CTOC_SFS(veksFFTFwd_CToC_16sc_Sfs, T16sc, FftSpec_C_16sc, float, fs::kIdC16sc, false, 8)
VEKS_FFT_CTOC_ISFS(veksFFTFwd_CToC_16sc_ISfs, T16sc, FftSpec_C_16sc, float, fs::kIdC16sc, false, 8)
VEKS_FFT_CTOC_SFS(veksFFTInv_CToC_16sc_Sfs, T16sc, FftSpec_C_16sc, float, fs::kIdC16sc, true, 8)
VEKS_FFT_CTOC_ISFS(veksFFTInv_CToC_16sc_ISfs, T16sc, FftSpec_C_16sc, float, fs::kIdC16sc, true, 8)

VEKS_FFT_CTOC_SPLIT_SFS(veksFFTFwd_CToC_32s_Sfs, T32s, FftSpec_C_32s, double, fs::kIdC32s, false, 16)
VEKS_FFT_CTOC_SPLIT_ISFS(veksFFTFwd_CToC_32s_ISfs, T32s, FftSpec_C_32s, double, fs::kIdC32s, false, 16)
VEKS_FFT_CTOC_SPLIT_SFS(veksFFTInv_CToC_32s_Sfs, T32s, FftSpec_C_32s, double, fs::kIdC32s, true, 16)
VEKS_FFT_CTOC_SPLIT_ISFS(veksFFTInv_CToC_32s_ISfs, T32s, FftSpec_C_32s, double, fs::kIdC32s, true, 16)
VEKS_FFT_CTOC_SPLIT_SFS(veksFFTFwd_CToC_16s_Sfs, T16s, FftSpec_C_16s, float, fs::kIdC16s, false, 8)
VEKS_FFT_CTOC_SPLIT_ISFS(veksFFTFwd_CToC_16s_ISfs, T16s, FftSpec_C_16s, float, fs::kIdC16s, false, 8)
VEKS_FFT_CTOC_SPLIT_SFS(veksFFTInv_CToC_16s_Sfs, T16s, FftSpec_C_16s, float, fs::kIdC16s, true, 8)
VEKS_FFT_CTOC_SPLIT_ISFS(veksFFTInv_CToC_16s_ISfs, T16s, FftSpec_C_16s, float, fs::kIdC16s, true, 8)

VEKS_FFT_RFWD_SFS(veksFFTFwd_RToPack_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, Pack, 16)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToPack_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, Pack, 16)
VEKS_FFT_RFWD_SFS(veksFFTFwd_RToPerm_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, Perm, 16)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToPerm_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, Perm, 16)
VEKS_FFT_RFWD_SFS(veksFFTFwd_RToCCS_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, CCS, 16)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToCCS_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, CCS, 16)
VEKS_FFT_RINV_SFS(veksFFTInv_PackToR_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, Pack, 16)
VEKS_FFT_RINV_ISFS(veksFFTInv_PackToR_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, Pack, 16)
VEKS_FFT_RINV_SFS(veksFFTInv_PermToR_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, Perm, 16)
VEKS_FFT_RINV_ISFS(veksFFTInv_PermToR_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, Perm, 16)
VEKS_FFT_RINV_SFS(veksFFTInv_CCSToR_32s_Sfs, T32s, T32s, FftSpec_R_32s, double, fs::kIdR32s, CCS, 16)
VEKS_FFT_RINV_ISFS(veksFFTInv_CCSToR_32s_ISfs, T32s, FftSpec_R_32s, double, fs::kIdR32s, CCS, 16)

VEKS_FFT_RFWD_SFS(veksFFTFwd_RToPack_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, Pack, 8)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToPack_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, Pack, 8)
VEKS_FFT_RFWD_SFS(veksFFTFwd_RToPerm_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, Perm, 8)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToPerm_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, Perm, 8)
VEKS_FFT_RFWD_SFS(veksFFTFwd_RToCCS_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, CCS, 8)
VEKS_FFT_RFWD_ISFS(veksFFTFwd_RToCCS_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, CCS, 8)
VEKS_FFT_RINV_SFS(veksFFTInv_PackToR_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, Pack, 8)
VEKS_FFT_RINV_ISFS(veksFFTInv_PackToR_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, Pack, 8)
VEKS_FFT_RINV_SFS(veksFFTInv_PermToR_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, Perm, 8)
VEKS_FFT_RINV_ISFS(veksFFTInv_PermToR_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, Perm, 8)
VEKS_FFT_RINV_SFS(veksFFTInv_CCSToR_16s_Sfs, T16s, T16s, FftSpec_R_16s, float, fs::kIdR16s, CCS, 8)
VEKS_FFT_RINV_ISFS(veksFFTInv_CCSToR_16s_ISfs, T16s, FftSpec_R_16s, float, fs::kIdR16s, CCS, 8)

VEKS_FFT_RFWD_SFS(veksFFTFwd_RToCCS_16s32s_Sfs, T16s, T32sc, FftSpec_R_16s32s, double, fs::kIdR16s32s, CCS, 16)
VEKS_FFT_RINV_SFS(veksFFTInv_CCSToR_32s16s_Sfs, T32sc, T16s, FftSpec_R_16s32s, double, fs::kIdR16s32s, CCS, 16)

// Complex transforms of floating data, interleaved and split, forward and
// inverse, out of place and in place.
#include "frame/detail/export.h"
#include "transform/fft_exec.h"

namespace veks {
namespace fftexec {
namespace {

// The common frame: spec null, identifier, data pointers; the work buffer
// (none for the short orders); the transform; then the direction's scaling
// as a separate pass over the 2N values.
template <class T>
VekResult complexInterleaved(const void* src, void* dst, const void* spec, uint32_t id, uint8_t* buffer,
                             bool inverse) {
    if (spec == nullptr) return VEK_ERR_NULL_POINTER;
    if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
    if (anyNull(src, dst)) return VEK_ERR_NULL_POINTER;
    const View<T> v = fftspec::complexView<T>(spec);
    Work work;
    if (v.order > fftspec::kComplexFixedMax) {
        const VekResult r = work.acquire(v.workSize, buffer);
        if (r != VEK_OK) return r;
    }
    complexCore<T>(v, v.order, static_cast<const Cx<T>*>(src), static_cast<Cx<T>*>(dst), work.get(), inverse);
    if (inverse ? v.invScale : v.fwdScale) {
        T* d = static_cast<T*>(dst);
        fft::scaleValues<T>(d, d, size_t(2) << v.order, v.scale);
    }
    return VEK_OK;
}

template <class T>
VekResult complexSplit(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const void* spec, uint32_t id,
                       uint8_t* buffer, bool inverse) {
    if (spec == nullptr) return VEK_ERR_NULL_POINTER;
    if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
    if (anyNull(srcRe, srcIm, dstRe, dstIm)) return VEK_ERR_NULL_POINTER;
    const View<T> v = fftspec::complexView<T>(spec);
    Work work;
    if (v.order > fftspec::kComplexFixedMax) {
        const VekResult r = work.acquire(v.workSize, buffer);
        if (r != VEK_OK) return r;
    }
    splitCore<T>(v, v.order, SplitPtr<const T>{srcRe, srcIm}, SplitPtr<T>{dstRe, dstIm}, work.get(), inverse);
    if (inverse ? v.invScale : v.fwdScale) {
        const size_t n = size_t(1) << v.order;
        fft::scaleValues<T>(dstRe, dstRe, n, v.scale);
        fft::scaleValues<T>(dstIm, dstIm, n, v.scale);
    }
    return VEK_OK;
}

}  // namespace
}  // namespace fftexec
}  // namespace veks

namespace fe = veks::fftexec;
namespace fs = veks::fftspec;

#define VEKS_FFT_CTOC(name, TC, Spec, T, id, inverse)                                             \
    VEKS_EXPORT VekResult name(const TC* pSrc, TC* pDst, const Spec* pSpec, T8u* pBuffer) {       \
        return fe::complexInterleaved<T>(pSrc, pDst, pSpec, id, pBuffer, inverse);                \
    }
#define VEKS_FFT_CTOC_I(name, TC, Spec, T, id, inverse)                              \
    VEKS_EXPORT VekResult name(TC* pSrcDst, const Spec* pSpec, T8u* pBuffer) {       \
        return fe::complexInterleaved<T>(pSrcDst, pSrcDst, pSpec, id, pBuffer, inverse); \
    }
#define VEKS_FFT_CTOC_SPLIT(name, T, Spec, id, inverse)                                                  \
    VEKS_EXPORT VekResult name(const T* pSrcRe, const T* pSrcIm, T* pDstRe, T* pDstIm, const Spec* pSpec, \
                               T8u* pBuffer) {                                                           \
        return fe::complexSplit<T>(pSrcRe, pSrcIm, pDstRe, pDstIm, pSpec, id, pBuffer, inverse);         \
    }
#define VEKS_FFT_CTOC_SPLIT_I(name, T, Spec, id, inverse)                                                  \
    VEKS_EXPORT VekResult name(T* pSrcDstRe, T* pSrcDstIm, const Spec* pSpec, T8u* pBuffer) {             \
        return fe::complexSplit<T>(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pSpec, id, pBuffer, inverse); \
    }

VEKS_FFT_CTOC(veksFFTFwd_CToC_32fc, T32fc, FftSpec_C_32fc, float, fs::kIdC32fc, false)
VEKS_FFT_CTOC_I(veksFFTFwd_CToC_32fc_I, T32fc, FftSpec_C_32fc, float, fs::kIdC32fc, false)
VEKS_FFT_CTOC(veksFFTInv_CToC_32fc, T32fc, FftSpec_C_32fc, float, fs::kIdC32fc, true)
VEKS_FFT_CTOC_I(veksFFTInv_CToC_32fc_I, T32fc, FftSpec_C_32fc, float, fs::kIdC32fc, true)
VEKS_FFT_CTOC(veksFFTFwd_CToC_64fc, T64fc, FftSpec_C_64fc, double, fs::kIdC64fc, false)
VEKS_FFT_CTOC_I(veksFFTFwd_CToC_64fc_I, T64fc, FftSpec_C_64fc, double, fs::kIdC64fc, false)
VEKS_FFT_CTOC(veksFFTInv_CToC_64fc, T64fc, FftSpec_C_64fc, double, fs::kIdC64fc, true)
VEKS_FFT_CTOC_I(veksFFTInv_CToC_64fc_I, T64fc, FftSpec_C_64fc, double, fs::kIdC64fc, true)

VEKS_FFT_CTOC_SPLIT(veksFFTFwd_CToC_32f, T32f, FftSpec_C_32f, fs::kIdC32f, false)
VEKS_FFT_CTOC_SPLIT_I(veksFFTFwd_CToC_32f_I, T32f, FftSpec_C_32f, fs::kIdC32f, false)
VEKS_FFT_CTOC_SPLIT(veksFFTInv_CToC_32f, T32f, FftSpec_C_32f, fs::kIdC32f, true)
VEKS_FFT_CTOC_SPLIT_I(veksFFTInv_CToC_32f_I, T32f, FftSpec_C_32f, fs::kIdC32f, true)
VEKS_FFT_CTOC_SPLIT(veksFFTFwd_CToC_64f, T64f, FftSpec_C_64f, fs::kIdC64f, false)
VEKS_FFT_CTOC_SPLIT_I(veksFFTFwd_CToC_64f_I, T64f, FftSpec_C_64f, fs::kIdC64f, false)
VEKS_FFT_CTOC_SPLIT(veksFFTInv_CToC_64f, T64f, FftSpec_C_64f, fs::kIdC64f, true)
VEKS_FFT_CTOC_SPLIT_I(veksFFTInv_CToC_64f_I, T64f, FftSpec_C_64f, fs::kIdC64f, true)

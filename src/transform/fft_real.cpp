// Real transforms of floating data in the Pack, Perm and CCS layouts.
//
// The engine produces and consumes Perm (R0, R(N/2), R1, I1, ...). Pack is
// made from it by taking element 1, moving elements 2..N-1 down one place
// and storing the taken value last; CCS by copying element 1 to element N
// and zeroing elements 1 and N+1. The inverse first rearranges its input
// into Perm in the destination, then works there in place.
#include "frame/detail/export.h"
#include "transform/fft_exec.h"

namespace veks {
namespace fftexec {
namespace {

enum class Packed { Pack, Perm, CCS };

template <class T>
void permTo(Packed layout, T* d, size_t N) {
    if (layout == Packed::Pack) {
        if (N < 3) return;
        const T t = d[1];
        memmove(d + 1, d + 2, (N - 2) * sizeof(T));
        d[N - 1] = t;
    } else if (layout == Packed::CCS) {
        if (N == 1) {
            d[1] = 0;
            return;
        }
        d[N] = d[1];
        d[N + 1] = 0;
        d[1] = 0;
    }
}

// src (in the given layout) into Perm at dst; src may equal dst.
template <class T>
void toPerm(Packed layout, const T* s, T* d, size_t N) {
    if (N == 1) {
        d[0] = s[0];
        return;
    }
    if (layout == Packed::Perm) {
        if (s != d) memcpy(d, s, N * sizeof(T));
    } else if (layout == Packed::Pack) {
        const T r0 = s[0], last = s[N - 1];
        memmove(d + 2, s + 1, (N - 2) * sizeof(T));
        d[0] = r0;
        d[1] = last;
    } else {
        const T r0 = s[0], nyq = s[N];
        if (s != d) memcpy(d + 2, s + 2, (N - 2) * sizeof(T));
        d[0] = r0;
        d[1] = nyq;
    }
}

template <class T>
VekResult realFrame(const void* src, void* dst, const void* spec, uint32_t id, uint8_t* buffer, Work& work,
                    View<T>& v) {
    if (spec == nullptr) return VEK_ERR_NULL_POINTER;
    if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
    if (anyNull(src, dst)) return VEK_ERR_NULL_POINTER;
    v = fftspec::realView<T>(spec);
    if (v.order > fftspec::kRealFixedMax) return work.acquire(v.workSize, buffer);
    return VEK_OK;
}

template <class T>
VekResult realFwd(const T* src, T* dst, const void* spec, uint32_t id, uint8_t* buffer, Packed layout) {
    Work work;
    View<T> v;
    const VekResult r = realFrame<T>(src, dst, spec, id, buffer, work, v);
    if (r != VEK_OK) return r;
    realForward<T>(v, src, dst, work.get());
    permTo<T>(layout, dst, size_t(1) << v.order);
    return VEK_OK;
}

template <class T>
VekResult realInv(const T* src, T* dst, const void* spec, uint32_t id, uint8_t* buffer, Packed layout) {
    Work work;
    View<T> v;
    const VekResult r = realFrame<T>(src, dst, spec, id, buffer, work, v);
    if (r != VEK_OK) return r;
    toPerm<T>(layout, src, dst, size_t(1) << v.order);
    realInverse<T>(v, dst, work.get());
    return VEK_OK;
}

}  // namespace
}  // namespace fftexec
}  // namespace veks

namespace fe = veks::fftexec;
namespace fs = veks::fftspec;
using fe::Packed;

#define VEKS_FFT_RFWD(name, T, Spec, id, layout)                                           \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, const Spec* pSpec, T8u* pBuffer) { \
        return fe::realFwd<T>(pSrc, pDst, pSpec, id, pBuffer, Packed::layout);             \
    }
#define VEKS_FFT_RFWD_I(name, T, Spec, id, layout)                                  \
    VEKS_EXPORT VekResult name(T* pSrcDst, const Spec* pSpec, T8u* pBuffer) {       \
        return fe::realFwd<T>(pSrcDst, pSrcDst, pSpec, id, pBuffer, Packed::layout); \
    }
#define VEKS_FFT_RINV(name, T, Spec, id, layout)                                           \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, const Spec* pSpec, T8u* pBuffer) { \
        return fe::realInv<T>(pSrc, pDst, pSpec, id, pBuffer, Packed::layout);             \
    }
#define VEKS_FFT_RINV_I(name, T, Spec, id, layout)                                  \
    VEKS_EXPORT VekResult name(T* pSrcDst, const Spec* pSpec, T8u* pBuffer) {       \
        return fe::realInv<T>(pSrcDst, pSrcDst, pSpec, id, pBuffer, Packed::layout); \
    }

VEKS_FFT_RFWD(veksFFTFwd_RToPack_32f, T32f, FftSpec_R_32f, fs::kIdR32f, Pack)
VEKS_FFT_RFWD_I(veksFFTFwd_RToPack_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, Pack)
VEKS_FFT_RFWD(veksFFTFwd_RToPerm_32f, T32f, FftSpec_R_32f, fs::kIdR32f, Perm)
VEKS_FFT_RFWD_I(veksFFTFwd_RToPerm_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, Perm)
VEKS_FFT_RFWD(veksFFTFwd_RToCCS_32f, T32f, FftSpec_R_32f, fs::kIdR32f, CCS)
VEKS_FFT_RFWD_I(veksFFTFwd_RToCCS_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, CCS)
VEKS_FFT_RINV(veksFFTInv_PackToR_32f, T32f, FftSpec_R_32f, fs::kIdR32f, Pack)
VEKS_FFT_RINV_I(veksFFTInv_PackToR_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, Pack)
VEKS_FFT_RINV(veksFFTInv_PermToR_32f, T32f, FftSpec_R_32f, fs::kIdR32f, Perm)
VEKS_FFT_RINV_I(veksFFTInv_PermToR_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, Perm)
VEKS_FFT_RINV(veksFFTInv_CCSToR_32f, T32f, FftSpec_R_32f, fs::kIdR32f, CCS)
VEKS_FFT_RINV_I(veksFFTInv_CCSToR_32f_I, T32f, FftSpec_R_32f, fs::kIdR32f, CCS)

VEKS_FFT_RFWD(veksFFTFwd_RToPack_64f, T64f, FftSpec_R_64f, fs::kIdR64f, Pack)
VEKS_FFT_RFWD_I(veksFFTFwd_RToPack_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, Pack)
VEKS_FFT_RFWD(veksFFTFwd_RToPerm_64f, T64f, FftSpec_R_64f, fs::kIdR64f, Perm)
VEKS_FFT_RFWD_I(veksFFTFwd_RToPerm_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, Perm)
VEKS_FFT_RFWD(veksFFTFwd_RToCCS_64f, T64f, FftSpec_R_64f, fs::kIdR64f, CCS)
VEKS_FFT_RFWD_I(veksFFTFwd_RToCCS_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, CCS)
VEKS_FFT_RINV(veksFFTInv_PackToR_64f, T64f, FftSpec_R_64f, fs::kIdR64f, Pack)
VEKS_FFT_RINV_I(veksFFTInv_PackToR_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, Pack)
VEKS_FFT_RINV(veksFFTInv_PermToR_64f, T64f, FftSpec_R_64f, fs::kIdR64f, Perm)
VEKS_FFT_RINV_I(veksFFTInv_PermToR_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, Perm)
VEKS_FFT_RINV(veksFFTInv_CCSToR_64f, T64f, FftSpec_R_64f, fs::kIdR64f, CCS)
VEKS_FFT_RINV_I(veksFFTInv_CCSToR_64f_I, T64f, FftSpec_R_64f, fs::kIdR64f, CCS)

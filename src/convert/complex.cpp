// Taking complex vectors apart and putting them together: Conj, ConjFlip,
// Real, Imag, CplxToReal, RealToCplx. Floating parts move bit for bit (a
// conjugate flips only the sign bit); 16-bit conjugates saturate.
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/traits.h"
#include "kernels/complex.h"

namespace veks {
namespace {

// pDst[i] = conj(pSrc[i]); pSrc may equal pDst.
inline void conjugate(const T16sc* s, T16sc* d, size_t n) { kern::conj16sc(s, d, n); }
inline void conjugate(const T32fc* s, T32fc* d, size_t n) { kern::conj32fc(s, d, n); }
inline void conjugate(const T64fc* s, T64fc* d, size_t n) { kern::conj64fc(s, d, n); }

template <class T>
VekResult conj(const T* pSrc, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    conjugate(pSrc, pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class T>
VekResult conjInPlace(T* pSrcDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    conjugate(pSrcDst, pSrcDst, static_cast<size_t>(len));
    return VEK_OK;
}

inline T16s negatePart(T16s v) { return kern::negSat16(v); }
inline T64f negatePart(T64f v) { return -v; }

inline void conjugateReversed(const T32fc* s, T32fc* d, size_t n) { kern::conjFlip32fc(s, d, n); }
template <class T>
void conjugateReversed(const T* s, T* d, size_t n) {
    for (size_t i = 0; i < n; ++i) {
        d[i].re = s[n - 1 - i].re;
        d[i].im = negatePart(s[n - 1 - i].im);
    }
}

template <class T>
VekResult conjFlip(const T* pSrc, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    conjugateReversed(pSrc, pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class T>
VekResult realPart(const T* pSrc, Base<T>* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    for (int i = 0; i < len; ++i) pDst[i] = pSrc[i].re;
    return VEK_OK;
}

template <class T>
VekResult imagPart(const T* pSrc, Base<T>* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    for (int i = 0; i < len; ++i) pDst[i] = pSrc[i].im;
    return VEK_OK;
}

template <class T>
VekResult cplxToReal(const T* pSrc, Base<T>* pDstRe, Base<T>* pDstIm, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDstRe, pDstIm)) return st;
    for (int i = 0; i < len; ++i) {
        const T v = pSrc[i];
        pDstRe[i] = v.re;
        pDstIm[i] = v.im;
    }
    return VEK_OK;
}

// Either part source may be null and its part is then zero; the
// destination is checked first, then the length, then that a source exists.
template <class B>
VekResult realToCplx(const B* pSrcRe, const B* pSrcIm, Complex<B>* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pDst)) return st;
    if (!pSrcRe && !pSrcIm) return VEK_ERR_NULL_POINTER;
    for (int i = 0; i < len; ++i) {
        pDst[i].re = pSrcRe ? pSrcRe[i] : B(0);
        pDst[i].im = pSrcIm ? pSrcIm[i] : B(0);
    }
    return VEK_OK;
}

}  // namespace
}  // namespace veks

#define VEKS_CONJ(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) { return veks::conj(pSrc, pDst, len); }
#define VEKS_CONJ_I(name, T) \
    VEKS_EXPORT VekResult name(T* pSrcDst, int len) { return veks::conjInPlace(pSrcDst, len); }
#define VEKS_CONJ_FLIP(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) { return veks::conjFlip(pSrc, pDst, len); }
#define VEKS_REAL(name, T, B) \
    VEKS_EXPORT VekResult name(const T* pSrc, B* pDst, int len) { return veks::realPart(pSrc, pDst, len); }
#define VEKS_IMAG(name, T, B) \
    VEKS_EXPORT VekResult name(const T* pSrc, B* pDst, int len) { return veks::imagPart(pSrc, pDst, len); }
#define VEKS_CPLX_TO_REAL(name, T, B)                                          \
    VEKS_EXPORT VekResult name(const T* pSrc, B* pDstRe, B* pDstIm, int len) { \
        return veks::cplxToReal(pSrc, pDstRe, pDstIm, len);                    \
    }
#define VEKS_REAL_TO_CPLX(name, B, T)                                                \
    VEKS_EXPORT VekResult name(const B* pSrcRe, const B* pSrcIm, T* pDst, int len) { \
        return veks::realToCplx(pSrcRe, pSrcIm, pDst, len);                          \
    }

VEKS_CONJ(veksConj_16sc, T16sc)
VEKS_CONJ_I(veksConj_16sc_I, T16sc)
VEKS_CONJ(veksConj_32fc, T32fc)
VEKS_CONJ_I(veksConj_32fc_I, T32fc)
VEKS_CONJ(veksConj_64fc, T64fc)
VEKS_CONJ_I(veksConj_64fc_I, T64fc)

VEKS_CONJ_FLIP(veksConjFlip_16sc, T16sc)
VEKS_CONJ_FLIP(veksConjFlip_32fc, T32fc)
VEKS_CONJ_FLIP(veksConjFlip_64fc, T64fc)

VEKS_REAL(veksReal_16sc, T16sc, T16s)
VEKS_REAL(veksReal_32fc, T32fc, T32f)
VEKS_REAL(veksReal_64fc, T64fc, T64f)
VEKS_IMAG(veksImag_16sc, T16sc, T16s)
VEKS_IMAG(veksImag_32fc, T32fc, T32f)
VEKS_IMAG(veksImag_64fc, T64fc, T64f)

VEKS_CPLX_TO_REAL(veksCplxToReal_16sc, T16sc, T16s)
VEKS_CPLX_TO_REAL(veksCplxToReal_32fc, T32fc, T32f)
VEKS_CPLX_TO_REAL(veksCplxToReal_64fc, T64fc, T64f)

VEKS_REAL_TO_CPLX(veksRealToCplx_16s, T16s, T16sc)
VEKS_REAL_TO_CPLX(veksRealToCplx_32f, T32f, T32fc)
VEKS_REAL_TO_CPLX(veksRealToCplx_64f, T64f, T64fc)

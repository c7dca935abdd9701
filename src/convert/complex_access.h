// Uniform access to the two layouts of complex sources (interleaved pairs or
// two part vectors) and the export shapes of the element-wise complex
// families: an operation maps (re, im) of each element, optionally with a
// scale factor, to one destination element.
#pragma once

#include <stddef.h>

#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/traits.h"
#include "kernels/complex.h"

namespace veks {

template <class T>
struct CplxSrc {
    const T* p;
    Base<T> re(size_t i) const { return p[i].re; }
    Base<T> im(size_t i) const { return p[i].im; }
};

template <class B>
struct PartsSrc {
    const B* pRe;
    const B* pIm;
    B re(size_t i) const { return pRe[i]; }
    B im(size_t i) const { return pIm[i]; }
};

// Single-precision sources also offer four elements at a time.
inline kern::Interleaved32f vectorView(const CplxSrc<T32fc>& s) { return {s.p}; }
inline kern::Split32f vectorView(const PartsSrc<T32f>& s) { return {s.pRe, s.pIm}; }

// The element loop of an operation without a bulk kernel.
template <class Op, class Src, class D>
void mapElements(const Src& s, D* pDst, size_t n) {
    for (size_t i = 0; i < n; ++i) pDst[i] = Op::apply(s.re(i), s.im(i));
}

template <class Op, class Src, class D>
void mapElements(const Src& s, D* pDst, size_t n, int sf) {
    for (size_t i = 0; i < n; ++i) pDst[i] = Op::apply(s.re(i), s.im(i), sf);
}

template <class Op, class T, class D>
VekResult cplxMap(const T* pSrc, D* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    Op::run(CplxSrc<T>{pSrc}, pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class Op, class B, class D>
VekResult partsMap(const B* pSrcRe, const B* pSrcIm, D* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrcRe, pSrcIm, pDst)) return st;
    Op::run(PartsSrc<B>{pSrcRe, pSrcIm}, pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class Op, class T, class D>
VekResult cplxMapSfs(const T* pSrc, D* pDst, int len, int scaleFactor) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    Op::run(CplxSrc<T>{pSrc}, pDst, static_cast<size_t>(len), scaleFactor);
    return VEK_OK;
}

template <class Op, class B, class D>
VekResult partsMapSfs(const B* pSrcRe, const B* pSrcIm, D* pDst, int len, int scaleFactor) {
    if (VekResult st = checkPtrsLen(len, pSrcRe, pSrcIm, pDst)) return st;
    Op::run(PartsSrc<B>{pSrcRe, pSrcIm}, pDst, static_cast<size_t>(len), scaleFactor);
    return VEK_OK;
}

// An operation given by its element function, run element by element.
template <class Derived>
struct ElementOp {
    template <class Src, class D>
    static void run(const Src& s, D* pDst, size_t n) {
        mapElements<Derived>(s, pDst, n);
    }
    template <class Src, class D>
    static void run(const Src& s, D* pDst, size_t n, int sf) {
        mapElements<Derived>(s, pDst, n, sf);
    }
};

}  // namespace veks

// Export rows: a complex source or two part vectors, with or without a
// scale factor.
#define VEKS_CPLX_MAP(name, Op, T, D) \
    VEKS_EXPORT VekResult name(const T* pSrc, D* pDst, int len) { return veks::cplxMap<Op>(pSrc, pDst, len); }
#define VEKS_PARTS_MAP(name, Op, B, D)                                               \
    VEKS_EXPORT VekResult name(const B* pSrcRe, const B* pSrcIm, D* pDst, int len) { \
        return veks::partsMap<Op>(pSrcRe, pSrcIm, pDst, len);                        \
    }
#define VEKS_CPLX_MAP_SFS(name, Op, T, D)                                        \
    VEKS_EXPORT VekResult name(const T* pSrc, D* pDst, int len, int scaleFactor) { \
        return veks::cplxMapSfs<Op>(pSrc, pDst, len, scaleFactor);               \
    }
#define VEKS_PARTS_MAP_SFS(name, Op, B, D)                                                            \
    VEKS_EXPORT VekResult name(const B* pSrcRe, const B* pSrcIm, D* pDst, int len, int scaleFactor) { \
        return veks::partsMapSfs<Op>(pSrcRe, pSrcIm, pDst, len, scaleFactor);                         \
    }

// CartToPolar and PolarToCart.
//
// CartToPolar is Magnitude followed by Phase on the same source, through the
// exported operations. The floating members always run both steps and
// report the magnitude step's status if it failed, else the phase step's, so
// a missing magnitude destination still lets the phases be written. The
// scaled 16-bit member returns as soon as the magnitude step fails and runs
// the phase step only after it succeeded.
//
// PolarToCart computes magn * cos(phase) and magn * sin(phase). Single
// precision uses the four-lane sine and cosine kernel and one rounded product
// per part; double precision the double-precision sincosd (the same bits on
// every target). Integer members work in double precision and round to
// nearest with ties to even, saturated:
//   _32sc: T32s phases are radians;
//   _16sc: T16s phases are fixed-point radians with phaseFixedPoint fraction
//          bits (times 2^-phaseFixedPoint); 16 or more fraction bits are
//          refused with VEK_ERR_SIZE, in the same test as the length;
//   _16sc_Sfs: magnitudes count 2^-magnScaleFactor units of the result and
//          phases 2^-phaseScaleFactor radians, both factors first clamped
//          into [-31, 31].
#include <math.h>

#include "convert/complex_access.h"
#include "frame/detail/rounding.h"
#include "kernels/math_f64.h"

// ---- CartToPolar ----------------------------------------------------------------

namespace {

inline VekResult firstFailure(VekResult magnitudeStep, VekResult phaseStep) {
    return magnitudeStep != VEK_OK ? magnitudeStep : phaseStep;
}

}  // namespace

VEKS_EXPORT VekResult veksCartToPolar_16sc_Sfs(const T16sc* pSrc, T16s* pDstMagn, T16s* pDstPhase, int len,
                                               int magnScaleFactor, int phaseScaleFactor) {
    if (VekResult st = veksMagnitude_16sc_Sfs(pSrc, pDstMagn, len, magnScaleFactor)) return st;
    return veksPhase_16sc_Sfs(pSrc, pDstPhase, len, phaseScaleFactor);
}

VEKS_EXPORT VekResult veksCartToPolar_32f(const T32f* pSrcRe, const T32f* pSrcIm, T32f* pDstMagn,
                                          T32f* pDstPhase, int len) {
    const VekResult magnitudeStep = veksMagnitude_32f(pSrcRe, pSrcIm, pDstMagn, len);
    return firstFailure(magnitudeStep, veksPhase_32f(pSrcRe, pSrcIm, pDstPhase, len));
}

VEKS_EXPORT VekResult veksCartToPolar_32fc(const T32fc* pSrc, T32f* pDstMagn, T32f* pDstPhase, int len) {
    const VekResult magnitudeStep = veksMagnitude_32fc(pSrc, pDstMagn, len);
    return firstFailure(magnitudeStep, veksPhase_32fc(pSrc, pDstPhase, len));
}

VEKS_EXPORT VekResult veksCartToPolar_64f(const T64f* pSrcRe, const T64f* pSrcIm, T64f* pDstMagn,
                                          T64f* pDstPhase, int len) {
    const VekResult magnitudeStep = veksMagnitude_64f(pSrcRe, pSrcIm, pDstMagn, len);
    return firstFailure(magnitudeStep, veksPhase_64f(pSrcRe, pSrcIm, pDstPhase, len));
}

VEKS_EXPORT VekResult veksCartToPolar_64fc(const T64fc* pSrc, T64f* pDstMagn, T64f* pDstPhase, int len) {
    const VekResult magnitudeStep = veksMagnitude_64fc(pSrc, pDstMagn, len);
    return firstFailure(magnitudeStep, veksPhase_64fc(pSrc, pDstPhase, len));
}

// ---- PolarToCart -----------------------------------------------------------------

namespace veks {
namespace {

// Destinations of T64f and integer parts, interleaved or split.
template <class T>
struct CplxDst {
    T* p;
    void store(size_t i, Base<T> re, Base<T> im) const {
        p[i].re = re;
        p[i].im = im;
    }
};

template <class B>
struct PartsDst {
    B* pRe;
    B* pIm;
    void store(size_t i, B re, B im) const {
        pRe[i] = re;
        pIm[i] = im;
    }
};

template <class B, class Dst>
VekResult polarToCartFloat(const B* pSrcMagn, const B* pSrcPhase, const Dst& dst, int len) {
    const size_t n = static_cast<size_t>(len);
    if constexpr (sizeof(B) == 4) {
        kern::polarToCart32f(pSrcMagn, pSrcPhase, dst, n);
    } else {
        for (size_t i = 0; i < n; ++i) {
            double s, c;
            kern::sincosd(pSrcPhase[i], &s, &c);
            const B m = pSrcMagn[i];
            dst.store(i, m * c, m * s);
        }
    }
    return VEK_OK;
}

// magn * 2^-magnShift times cos and sin of phase * 2^-phaseShift, rounded
// to nearest even and saturated to the part type.
template <class TIn, class TOut>
void polarToCartInt(const TIn* pMagn, const TIn* pPhase, TOut* pDst, size_t n, int magnShift,
                    int phaseShift) {
    using B = Base<TOut>;
    // Past +-1100 fraction bits a phase is 0 or not finite either way.
    const int shift = phaseShift < -1100 ? -1100 : phaseShift > 1100 ? 1100 : phaseShift;
    for (size_t i = 0; i < n; ++i) {
        const double ph = ldexp(static_cast<double>(pPhase[i]), -shift);
        const double m = static_cast<double>(pMagn[i]);
        double s, c;
        kern::sincosd(ph, &s, &c);
        pDst[i].re = roundSat<B>(m * c, VEK_ROUND_NEAR, magnShift);
        pDst[i].im = roundSat<B>(m * s, VEK_ROUND_NEAR, magnShift);
    }
}

inline int clamp31(int sf) { return sf < -31 ? -31 : sf > 31 ? 31 : sf; }

}  // namespace
}  // namespace veks

VEKS_EXPORT VekResult veksPolarToCart_32f(const T32f* pSrcMagn, const T32f* pSrcPhase, T32f* pDstRe,
                                          T32f* pDstIm, int len) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDstRe, pDstIm)) return st;
    return veks::polarToCartFloat(pSrcMagn, pSrcPhase, veks::kern::SplitOut32f{pDstRe, pDstIm}, len);
}

VEKS_EXPORT VekResult veksPolarToCart_32fc(const T32f* pSrcMagn, const T32f* pSrcPhase, T32fc* pDst, int len) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDst)) return st;
    return veks::polarToCartFloat(pSrcMagn, pSrcPhase, veks::kern::InterleavedOut32f{pDst}, len);
}

VEKS_EXPORT VekResult veksPolarToCart_64f(const T64f* pSrcMagn, const T64f* pSrcPhase, T64f* pDstRe,
                                          T64f* pDstIm, int len) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDstRe, pDstIm)) return st;
    return veks::polarToCartFloat(pSrcMagn, pSrcPhase, veks::PartsDst<T64f>{pDstRe, pDstIm}, len);
}

VEKS_EXPORT VekResult veksPolarToCart_64fc(const T64f* pSrcMagn, const T64f* pSrcPhase, T64fc* pDst, int len) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDst)) return st;
    return veks::polarToCartFloat(pSrcMagn, pSrcPhase, veks::CplxDst<T64fc>{pDst}, len);
}

VEKS_EXPORT VekResult veksPolarToCart_32sc(const T32s* pSrcMagn, const T32s* pSrcPhase, T32sc* pDst, int len) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDst)) return st;
    veks::polarToCartInt(pSrcMagn, pSrcPhase, pDst, static_cast<size_t>(len), 0, 0);
    return VEK_OK;
}

VEKS_EXPORT VekResult veksPolarToCart_16sc(const T16s* pSrcMagn, const T16s* pSrcPhase, int phaseFixedPoint,
                                           T16sc* pDst, int len) {
    if (veks::anyNull(pSrcMagn, pSrcPhase, pDst)) return VEK_ERR_NULL_POINTER;
    if (len < 1 || phaseFixedPoint >= 16) return VEK_ERR_SIZE;
    veks::polarToCartInt(pSrcMagn, pSrcPhase, pDst, static_cast<size_t>(len), 0, phaseFixedPoint);
    return VEK_OK;
}

VEKS_EXPORT VekResult veksPolarToCart_16sc_Sfs(const T16s* pSrcMagn, const T16s* pSrcPhase, T16sc* pDst, int len,
                                               int magnScaleFactor, int phaseScaleFactor) {
    if (VekResult st = veks::checkPtrsLen(len, pSrcMagn, pSrcPhase, pDst)) return st;
    veks::polarToCartInt(pSrcMagn, pSrcPhase, pDst, static_cast<size_t>(len), veks::clamp31(magnScaleFactor),
                         veks::clamp31(phaseScaleFactor));
    return VEK_OK;
}

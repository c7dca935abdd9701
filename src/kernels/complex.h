// Loops over complex data in its two layouts (interleaved re, im pairs, or
// two part vectors): conjugation, magnitude, phase and polar to Cartesian.
// Each vector loop handles groups of four elements (several groups per step
// where the chain of one group is long) and leaves the tail to the scalar
// twin of the same element function, so every element gets the same bits
// whichever path it took. In-place calls are safe: each step loads its
// elements before it stores them.
#pragma once

#include <math.h>
#include <smmintrin.h>
#include <stddef.h>

#include "kernels/math_sse.h"
#include "veks.h"

namespace veks {
namespace kern {

// ---- layouts of single-precision complex data ----------------------------

struct Interleaved32f {
    const T32fc* p;
    void load4(size_t i, __m128* re, __m128* im) const {
        const __m128 a = _mm_loadu_ps(&p[i].re), b = _mm_loadu_ps(&p[i + 2].re);
        *re = _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0));
        *im = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
    }
    float re(size_t i) const { return p[i].re; }
    float im(size_t i) const { return p[i].im; }
};

struct Split32f {
    const T32f* pRe;
    const T32f* pIm;
    void load4(size_t i, __m128* re, __m128* im) const {
        *re = _mm_loadu_ps(pRe + i);
        *im = _mm_loadu_ps(pIm + i);
    }
    float re(size_t i) const { return pRe[i]; }
    float im(size_t i) const { return pIm[i]; }
};

struct InterleavedOut32f {
    T32fc* p;
    void store4(size_t i, __m128 re, __m128 im) const {
        _mm_storeu_ps(&p[i].re, _mm_unpacklo_ps(re, im));
        _mm_storeu_ps(&p[i + 2].re, _mm_unpackhi_ps(re, im));
    }
    void store(size_t i, float re, float im) const {
        p[i].re = re;
        p[i].im = im;
    }
};

struct SplitOut32f {
    T32f* pRe;
    T32f* pIm;
    void store4(size_t i, __m128 re, __m128 im) const {
        _mm_storeu_ps(pRe + i, re);
        _mm_storeu_ps(pIm + i, im);
    }
    void store(size_t i, float re, float im) const {
        pRe[i] = re;
        pIm[i] = im;
    }
};

// ---- magnitude: sqrt(re * re + im * im) in single precision ---------------

inline float magnitudeS(float re, float im) { return sqrtf(re * re + im * im); }

inline __m128 magnitudeV(__m128 re, __m128 im) {
    return _mm_sqrt_ps(_mm_add_ps(_mm_mul_ps(re, re), _mm_mul_ps(im, im)));
}

template <class Src>
void magnitude32f(const Src& src, T32f* pDst, size_t n) {
    size_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 re, im;
        src.load4(i, &re, &im);
        _mm_storeu_ps(pDst + i, magnitudeV(re, im));
    }
    for (; i < n; ++i) pDst[i] = magnitudeS(src.re(i), src.im(i));
}

// ---- phase: atan2(im, re) -------------------------------------------------

template <class Src>
void phase32f(const Src& src, T32f* pDst, size_t n) {
    size_t i = 0;
    // Two independent groups per step: the chain of one group is long, and
    // the second one fills its latency.
    for (; i + 8 <= n; i += 8) {
        __m128 re0, im0, re1, im1;
        src.load4(i, &re0, &im0);
        src.load4(i + 4, &re1, &im1);
        const __m128 a0 = atan2v(im0, re0), a1 = atan2v(im1, re1);
        _mm_storeu_ps(pDst + i, a0);
        _mm_storeu_ps(pDst + i + 4, a1);
    }
    for (; i + 4 <= n; i += 4) {
        __m128 re, im;
        src.load4(i, &re, &im);
        _mm_storeu_ps(pDst + i, atan2v(im, re));
    }
    for (; i < n; ++i) pDst[i] = atan2s(src.im(i), src.re(i));
}

// ---- polar to Cartesian: magn * cos(phase), magn * sin(phase) -------------

template <class Dst>
void polarToCart32fScalar(const T32f* pMagn, const T32f* pPhase, Dst dst, size_t from, size_t to) {
    for (size_t i = from; i < to; ++i) {
        float s, c;
        sincoss(pPhase[i], &s, &c);
        const float m = pMagn[i];
        dst.store(i, m * c, m * s);
    }
}

// Groups of four elements per step of the main loop, their sine and cosine
// chains advanced side by side (sincosvGroups). Measured against 4 and 6,
// five fill the processor's window best.
constexpr size_t kPolarGroups = 5;

template <class Dst>
void polarToCart32f(const T32f* pMagn, const T32f* pPhase, Dst dst, size_t n) {
    constexpr size_t G = kPolarGroups;
    size_t i = 0;
    // A step with a phase far from zero (or not finite) takes the scalar
    // path whole.
    for (; i + 4 * G <= n; i += 4 * G) {
        __m128 ph[G], s[G], c[G];
        for (size_t g = 0; g < G; ++g) ph[g] = _mm_loadu_ps(pPhase + i + 4 * g);
        if (sincosvGroups<G>(ph, s, c)) {
            polarToCart32fScalar(pMagn, pPhase, dst, i, i + 4 * G);
            continue;
        }
        __m128 mg[G];
        for (size_t g = 0; g < G; ++g) mg[g] = _mm_loadu_ps(pMagn + i + 4 * g);
        for (size_t g = 0; g < G; ++g) dst.store4(i + 4 * g, _mm_mul_ps(mg[g], c[g]), _mm_mul_ps(mg[g], s[g]));
    }
    for (; i + 4 <= n; i += 4) {
        __m128 s, c;
        if (sincosv(_mm_loadu_ps(pPhase + i), &s, &c)) {
            polarToCart32fScalar(pMagn, pPhase, dst, i, i + 4);
            continue;
        }
        const __m128 mg = _mm_loadu_ps(pMagn + i);
        dst.store4(i, _mm_mul_ps(mg, c), _mm_mul_ps(mg, s));
    }
    polarToCart32fScalar(pMagn, pPhase, dst, i, n);
}

// ---- conjugation: (re, -im) ------------------------------------------------
// Floating parts change only their sign bit; 16-bit parts saturate, so the
// conjugate of -32768 is 32767.

inline T16s negSat16(T16s v) { return v == -32768 ? T16s(32767) : static_cast<T16s>(-v); }

inline void conj16sc(const T16sc* pSrc, T16sc* pDst, size_t n) {
    size_t i = 0;
    const __m128i zero = _mm_setzero_si128();
    for (; i + 4 <= n; i += 4) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(pSrc + i));
        // Odd 16-bit lanes are the imaginary parts.
        const __m128i r = _mm_blend_epi16(v, _mm_subs_epi16(zero, v), 0xAA);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(pDst + i), r);
    }
    for (; i < n; ++i) {
        const T16sc v = pSrc[i];
        pDst[i].re = v.re;
        pDst[i].im = negSat16(v.im);
    }
}

template <class T>
inline T negateBits(T v) {
    return -v;  // IEEE negation flips the sign bit only, NaN included
}

inline void conj32fc(const T32fc* pSrc, T32fc* pDst, size_t n) {
    size_t i = 0;
    const __m128 flip = _mm_castsi128_ps(_mm_set_epi32(int(0x80000000u), 0, int(0x80000000u), 0));
    for (; i + 2 <= n; i += 2)
        _mm_storeu_ps(&pDst[i].re, _mm_xor_ps(_mm_loadu_ps(&pSrc[i].re), flip));
    for (; i < n; ++i) {
        const T32fc v = pSrc[i];
        pDst[i].re = v.re;
        pDst[i].im = negateBits(v.im);
    }
}

inline void conj64fc(const T64fc* pSrc, T64fc* pDst, size_t n) {
    const __m128d flip = _mm_castsi128_pd(_mm_set_epi32(int(0x80000000u), 0, 0, 0));
    for (size_t i = 0; i < n; ++i)
        _mm_storeu_pd(&pDst[i].re, _mm_xor_pd(_mm_loadu_pd(&pSrc[i].re), flip));
}

// Conjugates in reversed order: pDst[i] = conj(pSrc[n - 1 - i]). The buffers
// must not overlap.
inline void conjFlip32fc(const T32fc* pSrc, T32fc* pDst, size_t n) {
    size_t i = 0;
    const __m128 flip = _mm_castsi128_ps(_mm_set_epi32(int(0x80000000u), 0, int(0x80000000u), 0));
    for (; i + 2 <= n; i += 2) {
        const __m128 v = _mm_loadu_ps(&pSrc[n - 2 - i].re);
        _mm_storeu_ps(&pDst[i].re, _mm_xor_ps(_mm_shuffle_ps(v, v, _MM_SHUFFLE(1, 0, 3, 2)), flip));
    }
    for (; i < n; ++i) {
        const T32fc v = pSrc[n - 1 - i];
        pDst[i].re = v.re;
        pDst[i].im = negateBits(v.im);
    }
}

}  // namespace kern
}  // namespace veks

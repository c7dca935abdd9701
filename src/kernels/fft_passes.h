// The radix passes written once over a vector policy. A policy names the
// vector of W complex values (V), the buffer type, the twiddle operand (Tw)
// and the handful of operations the passes need. Included only by the
// per-type translation units fft_32f.cpp and fft_64f.cpp.
#pragma once

#include <smmintrin.h>
#include <string.h>

#include "kernels/fft_kernel.h"

namespace veks {
namespace fft {

// ---- policies ---------------------------------------------------------------

// One complex value at a time, any element type: the short transforms and
// the reference the vector policies are checked against.
template <class TT>
struct ScalarPolicy {
    using T = TT;
    static constexpr size_t W = 1;
    using V = Cx<T>;
    using Buf = Cx<T>*;
    using CBuf = const Cx<T>*;
    using Tw = Cx<T>;
    static V load(CBuf b, size_t i) { return b[i]; }
    static void store(Buf b, size_t i, V v) { b[i] = v; }
    static V add(V a, V b) { return {a.re + b.re, a.im + b.im}; }
    static V sub(V a, V b) { return {a.re - b.re, a.im - b.im}; }
    template <bool Inv>
    static V rot(V v) {  // forward: times -i; inverse: times +i
        return Inv ? V{-v.im, v.re} : V{v.im, -v.re};
    }
    template <bool Inv>
    static Tw twLoad(const Cx<T>* w) {
        return Inv ? Tw{w->re, -w->im} : *w;
    }
    template <bool Inv>
    static Tw twBroadcast(const Cx<T>* w) {
        return twLoad<Inv>(w);
    }
    static V mul(V v, Tw w) { return {v.re * w.re - v.im * w.im, v.re * w.im + v.im * w.re}; }
    static void storeT4(Buf y, size_t i, V a, V b, V c, V d) {
        y[i] = a;
        y[i + 1] = b;
        y[i + 2] = c;
        y[i + 3] = d;
    }
    static V scale(V v, T c) { return {v.re * c, v.im * c}; }
    static V conj(V v) { return {v.re, -v.im}; }
    static V rev(V v) { return v; }
    static void storeT8(Buf y, size_t i, const V* v) {
        for (int k = 0; k < 8; ++k) y[i + k] = v[k];
    }
    static Buf offset(Buf b, size_t i) { return b + i; }
    static bool same(CBuf a, CBuf b) { return a == b; }
    static void copy(CBuf src, Buf dst, size_t n) { memcpy(dst, src, n * sizeof(Cx<T>)); }
};

// Interleaved single precision: two complex values per vector.
struct InterleavedF32 {
    using T = float;
    static constexpr size_t W = 2;
    using V = __m128;
    using Buf = Cx<float>*;
    using CBuf = const Cx<float>*;
    struct Tw {
        __m128 re, im;
    };
    static V load(CBuf b, size_t i) { return _mm_loadu_ps(&b[i].re); }
    static void store(Buf b, size_t i, V v) { _mm_storeu_ps(&b[i].re, v); }
    static V add(V a, V b) { return _mm_add_ps(a, b); }
    static V sub(V a, V b) { return _mm_sub_ps(a, b); }
    template <bool Inv>
    static V rot(V v) {
        const V s = _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1));
        const V mask = Inv ? _mm_castsi128_ps(_mm_set_epi32(0, int(0x80000000), 0, int(0x80000000)))
                           : _mm_castsi128_ps(_mm_set_epi32(int(0x80000000), 0, int(0x80000000), 0));
        return _mm_xor_ps(s, mask);
    }
    template <bool Inv>
    static Tw twLoad(const Cx<float>* w) {
        const V t = _mm_loadu_ps(&w->re);
        V im = _mm_movehdup_ps(t);
        if (Inv) im = _mm_xor_ps(im, _mm_set1_ps(-0.0f));
        return {_mm_moveldup_ps(t), im};
    }
    template <bool Inv>
    static Tw twBroadcast(const Cx<float>* w) {
        return {_mm_set1_ps(w->re), _mm_set1_ps(Inv ? -w->im : w->im)};
    }
    static V mul(V v, Tw w) {
        const V s = _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 3, 0, 1));
        return _mm_addsub_ps(_mm_mul_ps(v, w.re), _mm_mul_ps(s, w.im));
    }
    // a..d hold one output each for p and p+1; y[i..i+3] gets p's, y[i+4..]
    // p+1's.
    static void storeT4(Buf y, size_t i, V a, V b, V c, V d) {
        store(y, i, _mm_movelh_ps(a, b));
        store(y, i + 2, _mm_movelh_ps(c, d));
        store(y, i + 4, _mm_movehl_ps(b, a));
        store(y, i + 6, _mm_movehl_ps(d, c));
    }
    // v[k] holds output k for p and p+1; y[i..i+7] gets p's, y[i+8..] p+1's.
    static void storeT8(Buf y, size_t i, const V* v) {
        for (int k = 0; k < 8; k += 2) {
            store(y, i + k, _mm_movelh_ps(v[k], v[k + 1]));
            store(y, i + 8 + k, _mm_movehl_ps(v[k + 1], v[k]));
        }
    }
    static V scale(V v, float c) { return _mm_mul_ps(v, _mm_set1_ps(c)); }
    static V conj(V v) { return _mm_xor_ps(v, _mm_castsi128_ps(_mm_set_epi32(int(0x80000000), 0, int(0x80000000), 0))); }
    static V rev(V v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(1, 0, 3, 2)); }
    static Buf offset(Buf b, size_t i) { return b + i; }
    static bool same(CBuf a, CBuf b) { return a == b; }
    static void copy(CBuf src, Buf dst, size_t n) { memcpy(dst, src, n * sizeof(Cx<float>)); }
};

// Interleaved double precision: one complex value per vector.
struct InterleavedF64 {
    using T = double;
    static constexpr size_t W = 1;
    using V = __m128d;
    using Buf = Cx<double>*;
    using CBuf = const Cx<double>*;
    struct Tw {
        __m128d re, im;
    };
    static V load(CBuf b, size_t i) { return _mm_loadu_pd(&b[i].re); }
    static void store(Buf b, size_t i, V v) { _mm_storeu_pd(&b[i].re, v); }
    static V add(V a, V b) { return _mm_add_pd(a, b); }
    static V sub(V a, V b) { return _mm_sub_pd(a, b); }
    template <bool Inv>
    static V rot(V v) {
        const V s = _mm_shuffle_pd(v, v, 1);
        const V mask = Inv ? _mm_set_pd(0.0, -0.0) : _mm_set_pd(-0.0, 0.0);
        return _mm_xor_pd(s, mask);
    }
    template <bool Inv>
    static Tw twLoad(const Cx<double>* w) {
        return {_mm_set1_pd(w->re), _mm_set1_pd(Inv ? -w->im : w->im)};
    }
    template <bool Inv>
    static Tw twBroadcast(const Cx<double>* w) {
        return twLoad<Inv>(w);
    }
    static V mul(V v, Tw w) {
        const V s = _mm_shuffle_pd(v, v, 1);
        return _mm_addsub_pd(_mm_mul_pd(v, w.re), _mm_mul_pd(s, w.im));
    }
    static void storeT4(Buf y, size_t i, V a, V b, V c, V d) {
        store(y, i, a);
        store(y, i + 1, b);
        store(y, i + 2, c);
        store(y, i + 3, d);
    }
    static void storeT8(Buf y, size_t i, const V* v) {
        for (int k = 0; k < 8; ++k) store(y, i + k, v[k]);
    }
    static V scale(V v, double c) { return _mm_mul_pd(v, _mm_set1_pd(c)); }
    static V conj(V v) { return _mm_xor_pd(v, _mm_set_pd(-0.0, 0.0)); }
    static V rev(V v) { return v; }
    static Buf offset(Buf b, size_t i) { return b + i; }
    static bool same(CBuf a, CBuf b) { return a == b; }
    static void copy(CBuf src, Buf dst, size_t n) { memcpy(dst, src, n * sizeof(Cx<double>)); }
};

// Split single precision: four complex values per vector pair.
struct SplitF32 {
    using T = float;
    static constexpr size_t W = 4;
    struct V {
        __m128 re, im;
    };
    using Buf = SplitPtr<float>;
    using CBuf = SplitPtr<const float>;
    using Tw = V;
    static V load(CBuf b, size_t i) { return {_mm_loadu_ps(b.re + i), _mm_loadu_ps(b.im + i)}; }
    static V load(Buf b, size_t i) { return {_mm_loadu_ps(b.re + i), _mm_loadu_ps(b.im + i)}; }
    static void store(Buf b, size_t i, V v) {
        _mm_storeu_ps(b.re + i, v.re);
        _mm_storeu_ps(b.im + i, v.im);
    }
    static V add(V a, V b) { return {_mm_add_ps(a.re, b.re), _mm_add_ps(a.im, b.im)}; }
    static V sub(V a, V b) { return {_mm_sub_ps(a.re, b.re), _mm_sub_ps(a.im, b.im)}; }
    template <bool Inv>
    static V rot(V v) {
        const __m128 z = _mm_set1_ps(-0.0f);
        return Inv ? V{_mm_xor_ps(v.im, z), v.re} : V{v.im, _mm_xor_ps(v.re, z)};
    }
    template <bool Inv>
    static Tw twLoad(const Cx<float>* w) {
        const __m128 a = _mm_loadu_ps(&w[0].re), b = _mm_loadu_ps(&w[2].re);
        __m128 im = _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1));
        if (Inv) im = _mm_xor_ps(im, _mm_set1_ps(-0.0f));
        return {_mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)), im};
    }
    template <bool Inv>
    static Tw twBroadcast(const Cx<float>* w) {
        return {_mm_set1_ps(w->re), _mm_set1_ps(Inv ? -w->im : w->im)};
    }
    static V mul(V v, Tw w) {
        return {_mm_sub_ps(_mm_mul_ps(v.re, w.re), _mm_mul_ps(v.im, w.im)),
                _mm_add_ps(_mm_mul_ps(v.re, w.im), _mm_mul_ps(v.im, w.re))};
    }
    static void storeT4(Buf y, size_t i, V a, V b, V c, V d) {
        _MM_TRANSPOSE4_PS(a.re, b.re, c.re, d.re);
        _MM_TRANSPOSE4_PS(a.im, b.im, c.im, d.im);
        store(y, i, a);
        store(y, i + 4, b);
        store(y, i + 8, c);
        store(y, i + 12, d);
    }
    static void storeT8(Buf y, size_t i, const V* v) {
        V a = v[0], b = v[1], c = v[2], d = v[3], e = v[4], f = v[5], g = v[6], h = v[7];
        _MM_TRANSPOSE4_PS(a.re, b.re, c.re, d.re);
        _MM_TRANSPOSE4_PS(a.im, b.im, c.im, d.im);
        _MM_TRANSPOSE4_PS(e.re, f.re, g.re, h.re);
        _MM_TRANSPOSE4_PS(e.im, f.im, g.im, h.im);
        store(y, i, a);
        store(y, i + 4, e);
        store(y, i + 8, b);
        store(y, i + 12, f);
        store(y, i + 16, c);
        store(y, i + 20, g);
        store(y, i + 24, d);
        store(y, i + 28, h);
    }
    static V scale(V v, float c) { return {_mm_mul_ps(v.re, _mm_set1_ps(c)), _mm_mul_ps(v.im, _mm_set1_ps(c))}; }
    static Buf offset(Buf b, size_t i) { return {b.re + i, b.im + i}; }
    static bool same(CBuf a, Buf b) { return a.re == b.re || a.im == b.im || a.re == b.im || a.im == b.re; }
    static void copy(CBuf src, Buf dst, size_t n) {
        memcpy(dst.re, src.re, n * sizeof(float));
        memcpy(dst.im, src.im, n * sizeof(float));
    }
};

// Split double precision: two complex values per vector pair.
struct SplitF64 {
    using T = double;
    static constexpr size_t W = 2;
    struct V {
        __m128d re, im;
    };
    using Buf = SplitPtr<double>;
    using CBuf = SplitPtr<const double>;
    using Tw = V;
    static V load(CBuf b, size_t i) { return {_mm_loadu_pd(b.re + i), _mm_loadu_pd(b.im + i)}; }
    static V load(Buf b, size_t i) { return {_mm_loadu_pd(b.re + i), _mm_loadu_pd(b.im + i)}; }
    static void store(Buf b, size_t i, V v) {
        _mm_storeu_pd(b.re + i, v.re);
        _mm_storeu_pd(b.im + i, v.im);
    }
    static V add(V a, V b) { return {_mm_add_pd(a.re, b.re), _mm_add_pd(a.im, b.im)}; }
    static V sub(V a, V b) { return {_mm_sub_pd(a.re, b.re), _mm_sub_pd(a.im, b.im)}; }
    template <bool Inv>
    static V rot(V v) {
        const __m128d z = _mm_set1_pd(-0.0);
        return Inv ? V{_mm_xor_pd(v.im, z), v.re} : V{v.im, _mm_xor_pd(v.re, z)};
    }
    template <bool Inv>
    static Tw twLoad(const Cx<double>* w) {
        const __m128d a = _mm_loadu_pd(&w[0].re), b = _mm_loadu_pd(&w[1].re);
        __m128d im = _mm_unpackhi_pd(a, b);
        if (Inv) im = _mm_xor_pd(im, _mm_set1_pd(-0.0));
        return {_mm_unpacklo_pd(a, b), im};
    }
    template <bool Inv>
    static Tw twBroadcast(const Cx<double>* w) {
        return {_mm_set1_pd(w->re), _mm_set1_pd(Inv ? -w->im : w->im)};
    }
    static V mul(V v, Tw w) {
        return {_mm_sub_pd(_mm_mul_pd(v.re, w.re), _mm_mul_pd(v.im, w.im)),
                _mm_add_pd(_mm_mul_pd(v.re, w.im), _mm_mul_pd(v.im, w.re))};
    }
    static void storeT4(Buf y, size_t i, V a, V b, V c, V d) {
        store(y, i, {_mm_unpacklo_pd(a.re, b.re), _mm_unpacklo_pd(a.im, b.im)});
        store(y, i + 2, {_mm_unpacklo_pd(c.re, d.re), _mm_unpacklo_pd(c.im, d.im)});
        store(y, i + 4, {_mm_unpackhi_pd(a.re, b.re), _mm_unpackhi_pd(a.im, b.im)});
        store(y, i + 6, {_mm_unpackhi_pd(c.re, d.re), _mm_unpackhi_pd(c.im, d.im)});
    }
    static void storeT8(Buf y, size_t i, const V* v) {
        for (int k = 0; k < 8; k += 2) {
            store(y, i + k, {_mm_unpacklo_pd(v[k].re, v[k + 1].re), _mm_unpacklo_pd(v[k].im, v[k + 1].im)});
            store(y, i + 8 + k, {_mm_unpackhi_pd(v[k].re, v[k + 1].re), _mm_unpackhi_pd(v[k].im, v[k + 1].im)});
        }
    }
    static V scale(V v, double c) { return {_mm_mul_pd(v.re, _mm_set1_pd(c)), _mm_mul_pd(v.im, _mm_set1_pd(c))}; }
    static Buf offset(Buf b, size_t i) { return {b.re + i, b.im + i}; }
    static bool same(CBuf a, Buf b) { return a.re == b.re || a.im == b.im || a.re == b.im || a.im == b.re; }
    static void copy(CBuf src, Buf dst, size_t n) {
        memcpy(dst.re, src.re, n * sizeof(double));
        memcpy(dst.im, src.im, n * sizeof(double));
    }
};

// ---- passes -----------------------------------------------------------------

template <class P, bool Inv, bool Twiddled>
inline void butterfly4(typename P::V a, typename P::V b, typename P::V c, typename P::V d,
                       const typename P::Tw& w1, const typename P::Tw& w2, const typename P::Tw& w3,
                       typename P::V& y0, typename P::V& y1, typename P::V& y2, typename P::V& y3) {
    const typename P::V apc = P::add(a, c), amc = P::sub(a, c);
    const typename P::V bpd = P::add(b, d), jbmd = P::template rot<Inv>(P::sub(b, d));
    y0 = P::add(apc, bpd);
    if (Twiddled) {
        y1 = P::mul(P::add(amc, jbmd), w1);
        y2 = P::mul(P::sub(apc, bpd), w2);
        y3 = P::mul(P::sub(amc, jbmd), w3);
    } else {
        y1 = P::add(amc, jbmd);
        y2 = P::sub(apc, bpd);
        y3 = P::sub(amc, jbmd);
    }
}

// First radix-4 pass of a single sequence (s = 1), vectorised over p.
template <class P, bool Inv, class In>
void pass4First(In x, typename P::Buf y, size_t m, const Cx<typename P::T>* tw) {
    for (size_t p = 0; p < m; p += P::W) {
        typename P::V y0, y1, y2, y3;
        const Cx<typename P::T>* g = tw + (p / 4) * 12 + (p % 4);
        butterfly4<P, Inv, true>(P::load(x, p), P::load(x, p + m), P::load(x, p + 2 * m), P::load(x, p + 3 * m),
                                 P::template twLoad<Inv>(g), P::template twLoad<Inv>(g + 4),
                                 P::template twLoad<Inv>(g + 8), y0, y1, y2, y3);
        P::storeT4(y, 4 * p, y0, y1, y2, y3);
    }
}

// A radix-4 pass with s >= W sub-sequences, vectorised over q.
template <class P, bool Inv, class In>
void pass4(In x, typename P::Buf y, size_t m, size_t s, const Cx<typename P::T>* tw) {
    const size_t sm = s * m;
    for (size_t p = 0; p < m; ++p) {
        const size_t i0 = s * p, o0 = 4 * s * p;
        if (p == 0) {
            const typename P::Tw one{};
            for (size_t q = 0; q < s; q += P::W) {
                typename P::V y0, y1, y2, y3;
                butterfly4<P, Inv, false>(P::load(x, q), P::load(x, q + sm), P::load(x, q + 2 * sm),
                                          P::load(x, q + 3 * sm), one, one, one, y0, y1, y2, y3);
                P::store(y, q, y0);
                P::store(y, q + s, y1);
                P::store(y, q + 2 * s, y2);
                P::store(y, q + 3 * s, y3);
            }
            continue;
        }
        const Cx<typename P::T>* g = tw + (p / 4) * 12 + (p % 4);
        const typename P::Tw w1 = P::template twBroadcast<Inv>(g), w2 = P::template twBroadcast<Inv>(g + 4),
                             w3 = P::template twBroadcast<Inv>(g + 8);
        for (size_t q = 0; q < s; q += P::W) {
            typename P::V y0, y1, y2, y3;
            const size_t i = i0 + q, o = o0 + q;
            butterfly4<P, Inv, true>(P::load(x, i), P::load(x, i + sm), P::load(x, i + 2 * sm), P::load(x, i + 3 * sm),
                                     w1, w2, w3, y0, y1, y2, y3);
            P::store(y, o, y0);
            P::store(y, o + s, y1);
            P::store(y, o + 2 * s, y2);
            P::store(y, o + 3 * s, y3);
        }
    }
}

// The closing radix-2 pass of an odd order (n = 2, no twiddles).
template <class P, class In>
void pass2(In x, typename P::Buf y, size_t s) {
    for (size_t q = 0; q < s; q += P::W) {
        const typename P::V a = P::load(x, q), b = P::load(x, q + s);
        P::store(y, q, P::add(a, b));
        P::store(y, q + s, P::sub(a, b));
    }
}

// The 8-point DFT of a0..a7: two 4-point transforms of the even and odd
// inputs joined by w8^k, where w8 z = (z + rot z) / sqrt(2), w8^2 z = rot z
// and w8^3 z = rot(w8 z) = (rot z - z) / sqrt(2).
template <class P, bool Inv>
inline void dft8(const typename P::V* a, typename P::V* y) {
    using V = typename P::V;
    const typename P::T c = static_cast<typename P::T>(0.70710678118654752440);
    const typename P::Tw one{};
    V e0, e1, e2, e3, o0, o1, o2, o3;
    butterfly4<P, Inv, false>(a[0], a[2], a[4], a[6], one, one, one, e0, e1, e2, e3);
    butterfly4<P, Inv, false>(a[1], a[3], a[5], a[7], one, one, one, o0, o1, o2, o3);
    const V t1 = P::scale(P::add(o1, P::template rot<Inv>(o1)), c);
    const V t2 = P::template rot<Inv>(o2);
    const V t3 = P::scale(P::sub(P::template rot<Inv>(o3), o3), c);
    y[0] = P::add(e0, o0);
    y[4] = P::sub(e0, o0);
    y[1] = P::add(e1, t1);
    y[5] = P::sub(e1, t1);
    y[2] = P::add(e2, t2);
    y[6] = P::sub(e2, t2);
    y[3] = P::add(e3, t3);
    y[7] = P::sub(e3, t3);
}

// First radix-8 pass of a single sequence (s = 1), vectorised over p.
template <class P, bool Inv, class In>
void pass8First(In x, typename P::Buf y, size_t m, const Cx<typename P::T>* tw) {
    typename P::V a[8], v[8];
    for (size_t p = 0; p < m; p += P::W) {
        for (size_t j = 0; j < 8; ++j) a[j] = P::load(x, p + j * m);
        dft8<P, Inv>(a, v);
        const Cx<typename P::T>* g = tw + (p / 4) * 28 + (p % 4);
        for (size_t k = 1; k < 8; ++k) v[k] = P::mul(v[k], P::template twLoad<Inv>(g + 4 * (k - 1)));
        P::storeT8(y, 8 * p, v);
    }
}

// A radix-8 pass with s >= W sub-sequences, vectorised over q; m = 1 needs
// no twiddles.
template <class P, bool Inv, class In>
void pass8(In x, typename P::Buf y, size_t m, size_t s, const Cx<typename P::T>* tw) {
    const size_t sm = s * m;
    typename P::V a[8], v[8];
    for (size_t p = 0; p < m; ++p) {
        const size_t i0 = s * p, o0 = 8 * s * p;
        if (p == 0) {
            for (size_t q = 0; q < s; q += P::W) {
                for (size_t j = 0; j < 8; ++j) a[j] = P::load(x, q + j * sm);
                dft8<P, Inv>(a, v);
                for (size_t k = 0; k < 8; ++k) P::store(y, q + k * s, v[k]);
            }
            continue;
        }
        const Cx<typename P::T>* g = tw + (p / 4) * 28 + (p % 4);
        typename P::Tw w[7];
        for (size_t k = 0; k < 7; ++k) w[k] = P::template twBroadcast<Inv>(g + 4 * k);
        for (size_t q = 0; q < s; q += P::W) {
            const size_t i = i0 + q, o = o0 + q;
            for (size_t j = 0; j < 8; ++j) a[j] = P::load(x, i + j * sm);
            dft8<P, Inv>(a, v);
            P::store(y, o, v[0]);
            for (size_t k = 1; k < 8; ++k) P::store(y, o + k * s, P::mul(v[k], w[k - 1]));
        }
    }
}

// The closing radix-4 pass (m = 1, s >= W sub-sequences): no twiddles, a
// loop of its own for the same reason as pass8Last below.
template <class P, bool Inv, class In>
void pass4Last(In x, typename P::Buf y, size_t s) {
    const typename P::Tw one{};
    for (size_t q = 0; q < s; q += P::W) {
        typename P::V y0, y1, y2, y3;
        butterfly4<P, Inv, false>(P::load(x, q), P::load(x, q + s), P::load(x, q + 2 * s), P::load(x, q + 3 * s), one,
                                  one, one, y0, y1, y2, y3);
        P::store(y, q, y0);
        P::store(y, q + s, y1);
        P::store(y, q + 2 * s, y2);
        P::store(y, q + 3 * s, y3);
    }
}

// The closing radix-8 pass (m = 1, s >= W sub-sequences): no twiddles. A
// loop of its own, because pass8's set-up for the twiddled p costs more than
// this whole pass at the short orders.
template <class P, bool Inv, class In>
void pass8Last(In x, typename P::Buf y, size_t s) {
    typename P::V a[8], v[8];
    for (size_t q = 0; q < s; q += P::W) {
        for (size_t j = 0; j < 8; ++j) a[j] = P::load(x, q + j * s);
        dft8<P, Inv>(a, v);
        for (size_t k = 0; k < 8; ++k) P::store(y, q + k * s, v[k]);
    }
}

// All passes of one order (passCount / passRadixLog in fft_kernel.h); see
// stockham() there for the buffers.
template <class P, bool Inv>
void runPasses(typename P::CBuf src, typename P::Buf dst, typename P::Buf scratch, int order, size_t lanes,
               const Cx<typename P::T>* tw) {
    const size_t total = lanes << order;
    if (order == 0) {
        if (!P::same(src, dst)) P::copy(src, dst, total);
        return;
    }
    const int passes = passCount(order);
    bool fromScratch = false;
    if (P::same(src, dst) && (passes & 1)) {
        P::copy(src, scratch, total);
        fromScratch = true;
    }
    int n = order;
    size_t s = lanes;
    const Cx<typename P::T>* twAt = tw;
    typename P::Buf in = fromScratch ? scratch : dst;  // valid once pass 1 has run
    for (int i = 1; i <= passes; ++i) {
        typename P::Buf out = ((passes - i) & 1) ? scratch : dst;
        const bool fromSrc = i == 1 && !fromScratch;
        const int rl = passRadixLog(order, i - 1);
        const size_t m = size_t(1) << (n - rl);
        if (rl == 3) {
            if (s < P::W) {
                if (fromSrc) pass8First<P, Inv>(src, out, m, twAt);
                else pass8First<P, Inv>(in, out, m, twAt);
            } else if (m == 1) {
                if (fromSrc) pass8Last<P, Inv>(src, out, s);
                else pass8Last<P, Inv>(in, out, s);
            } else {
                if (fromSrc) pass8<P, Inv>(src, out, m, s, twAt);
                else pass8<P, Inv>(in, out, m, s, twAt);
            }
            if (m >= 2) twAt += 28 * ((m + 3) / 4);
        } else if (rl == 2) {
            if (s < P::W) {
                if (fromSrc) pass4First<P, Inv>(src, out, m, twAt);
                else pass4First<P, Inv>(in, out, m, twAt);
            } else if (m == 1) {
                if (fromSrc) pass4Last<P, Inv>(src, out, s);
                else pass4Last<P, Inv>(in, out, s);
            } else {
                if (fromSrc) pass4<P, Inv>(src, out, m, s, twAt);
                else pass4<P, Inv>(in, out, m, s, twAt);
            }
            if (m >= 2) twAt += 12 * ((m + 3) / 4);
        } else {
            if (fromSrc) pass2<P>(src, out, s);
            else pass2<P>(in, out, s);
        }
        n -= rl;
        s <<= rl;
        in = out;
    }
}

}  // namespace fft
}  // namespace veks

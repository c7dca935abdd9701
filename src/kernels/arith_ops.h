// Lane operations of the arithmetic families: each gives the exact scalar
// result (floating, exact 64-bit integer, or 128-bit for 64-bit elements)
// and, where it has one, the SSE4.1 form on the same values. Two-source
// operations take x1 from the first source and x2 from the second; the
// constant forms pass the element as x1 and the constant as x2.
#pragma once

#include <pmmintrin.h>
#include <smmintrin.h>
#include <stdint.h>

#include "frame/detail/scale.h"
#include "veks.h"

namespace veks {
namespace kern {

// A constant second operand is prepared once per loop; by default it is
// used as it is.
struct PlainConst {
    template <class V> static V prepare(V y) { return y; }
};

// x1 + x2
struct AddOp : PlainConst {
    static constexpr bool kVecInt = true, kUnsignedLanes = false, kPartwise = true;
    static constexpr int magBits(int m1, int m2) { return (m1 > m2 ? m1 : m2) + 1; }
    template <class T> static T s(T x1, T x2) { return x1 + x2; }
    static int64_t i(int64_t x1, int64_t x2) { return x1 + x2; }
    static Wide128 w(Wide128 x1, Wide128 x2) { return x1 + x2; }
    static __m128 v(__m128 x1, __m128 x2) { return _mm_add_ps(x1, x2); }
    template <class V> static V withConst(V x1, V y) { return v(x1, y); }
    static __m128d v(__m128d x1, __m128d x2) { return _mm_add_pd(x1, x2); }
    static __m128i vi(__m128i x1, __m128i x2) { return _mm_add_epi32(x1, x2); }
};

// x2 - x1: Sub (second minus first) and SubCRev (constant minus element)
struct SubOp : PlainConst {
    static constexpr bool kVecInt = true, kUnsignedLanes = false, kPartwise = true;
    static constexpr int magBits(int m1, int m2) { return (m1 > m2 ? m1 : m2) + 1; }
    template <class T> static T s(T x1, T x2) { return x2 - x1; }
    static int64_t i(int64_t x1, int64_t x2) { return x2 - x1; }
    static Wide128 w(Wide128 x1, Wide128 x2) { return x2 - x1; }
    static __m128 v(__m128 x1, __m128 x2) { return _mm_sub_ps(x2, x1); }
    template <class V> static V withConst(V x1, V y) { return v(x1, y); }
    static __m128d v(__m128d x1, __m128d x2) { return _mm_sub_pd(x2, x1); }
    static __m128i vi(__m128i x1, __m128i x2) { return _mm_sub_epi32(x2, x1); }
};

// x1 - x2: SubC (element minus constant)
struct SubRevOp : PlainConst {
    static constexpr bool kVecInt = true, kUnsignedLanes = false, kPartwise = true;
    static constexpr int magBits(int m1, int m2) { return (m1 > m2 ? m1 : m2) + 1; }
    template <class T> static T s(T x1, T x2) { return x1 - x2; }
    static int64_t i(int64_t x1, int64_t x2) { return x1 - x2; }
    static Wide128 w(Wide128 x1, Wide128 x2) { return x1 - x2; }
    static __m128 v(__m128 x1, __m128 x2) { return _mm_sub_ps(x1, x2); }
    template <class V> static V withConst(V x1, V y) { return v(x1, y); }
    static __m128d v(__m128d x1, __m128d x2) { return _mm_sub_pd(x1, x2); }
    static __m128i vi(__m128i x1, __m128i x2) { return _mm_sub_epi32(x1, x2); }
};

// x1 * x2 on real values, and on the parts of a complex vector scaled by a
// real one. The low 32 bits of a lane product are exact for 16-bit factors
// (unsigned lanes for two unsigned factors).
template <bool UnsignedLanes>
struct MulRealOpT : PlainConst {
    static constexpr bool kVecInt = true, kUnsignedLanes = UnsignedLanes, kPartwise = true;
    static constexpr int magBits(int m1, int m2) { return m1 + m2; }
    template <class T> static T s(T x1, T x2) { return x1 * x2; }
    static int64_t i(int64_t x1, int64_t x2) { return x1 * x2; }
    static Wide128 w(Wide128 x1, Wide128 x2) { return mulWide(static_cast<int64_t>(x1.lo), static_cast<int64_t>(x2.lo)); }
    static __m128 v(__m128 x1, __m128 x2) { return _mm_mul_ps(x1, x2); }
    template <class V> static V withConst(V x1, V y) { return v(x1, y); }
    static __m128d v(__m128d x1, __m128d x2) { return _mm_mul_pd(x1, x2); }
    static __m128i vi(__m128i x1, __m128i x2) { return _mm_mullo_epi32(x1, x2); }
};
using MulRealOp = MulRealOpT<false>;
using MulUnsignedOp = MulRealOpT<true>;

// The product kept in its low 32 bits, read as signed, before scaling.
struct MulLowOp {
    static constexpr bool kVecInt = false, kUnsignedLanes = false, kPartwise = false;
    static constexpr int magBits(int, int) { return 31; }
    static int64_t i(int64_t x1, int64_t x2) {
        return static_cast<int32_t>(static_cast<uint32_t>(x1) * static_cast<uint32_t>(x2));
    }
};

// Complex product: re = x1.re * x2.re - x1.im * x2.im,
// im = x1.re * x2.im + x1.im * x2.re; each product rounded, then the sum.
struct MulCplxOp {
    static constexpr bool kVecInt = false, kUnsignedLanes = false, kPartwise = false;
    static constexpr int magBits(int m1, int m2) { return m1 + m2 + 1; }
    template <class C> static C s(C x1, C x2) {
        C r;
        r.re = x1.re * x2.re - x1.im * x2.im;
        r.im = x1.re * x2.im + x1.im * x2.re;
        return r;
    }
    static __m128 v(__m128 x1, __m128 x2) {
        const __m128 re1 = _mm_moveldup_ps(x1), im1 = _mm_movehdup_ps(x1);
        const __m128 sw2 = _mm_shuffle_ps(x2, x2, _MM_SHUFFLE(2, 3, 0, 1));
        return _mm_addsub_ps(_mm_mul_ps(re1, x2), _mm_mul_ps(im1, sw2));
    }
    // A double element x1 is read from memory, each part duplicated by its
    // own load, which costs no shuffle.
    static __m128d v(const T64fc* x1, __m128d x2) {
        const __m128d re1 = _mm_loaddup_pd(&x1->re), im1 = _mm_loaddup_pd(&x1->im);
        const __m128d sw2 = _mm_shuffle_pd(x2, x2, 1);
        return _mm_addsub_pd(_mm_mul_pd(re1, x2), _mm_mul_pd(im1, sw2));
    }
    // With a constant x2 = c, single precision: x1 * (c.re, c.re) and
    // (x1.im, x1.re) * (c.im, c.im), the second subtracted from the first in
    // the real lane and added in the imaginary one: the same products and
    // sums as above (x1.im * c.re + x1.re * c.im is the same sum in the other
    // order) from one shuffle. Double precision: v above with c and its
    // swapped parts prepared once.
    struct Prepared4 {
        __m128 re, im;
    };
    struct Prepared2 {
        __m128d c, sw;
    };
    static Prepared4 prepare(__m128 c) { return {_mm_moveldup_ps(c), _mm_movehdup_ps(c)}; }
    static Prepared2 prepare(__m128d c) { return {c, _mm_shuffle_pd(c, c, 1)}; }
    static __m128 withConst(__m128 x1, const Prepared4& c) {
        const __m128 sw1 = _mm_shuffle_ps(x1, x1, _MM_SHUFFLE(2, 3, 0, 1));
        return _mm_addsub_ps(_mm_mul_ps(x1, c.re), _mm_mul_ps(sw1, c.im));
    }
    static __m128d withConst(const T64fc* x1, const Prepared2& c) {
        const __m128d re1 = _mm_loaddup_pd(&x1->re), im1 = _mm_loaddup_pd(&x1->im);
        return _mm_addsub_pd(_mm_mul_pd(re1, c.c), _mm_mul_pd(im1, c.sw));
    }
};

}  // namespace kern
}  // namespace veks

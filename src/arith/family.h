// The element-wise arithmetic families, once for every element type: the
// exact result of the lane operation, the scale-factor rule, saturation,
// and the shortcuts whose results equal the rule's.
#pragma once

#include <string.h>

#include <type_traits>

#include "frame/detail/check.h"
#include "frame/detail/scale.h"
#include "frame/detail/traits.h"
#include "kernels/arith_ops.h"
#include "kernels/elementwise.h"

namespace veks {
namespace arith {

using kern::Arr;
using kern::Bcast;
using kern::BcastPair;
using kern::Dup;

// |x| <= 2^magOf<T> for every value of an integer type (of its parts).
template <class T>
constexpr int magOf() {
    using B = Base<T>;
    return std::is_signed<B>::value ? 8 * static_cast<int>(sizeof(B)) - 1 : 8 * static_cast<int>(sizeof(B));
}

// A complex source seen as a vector of parts; a real source beside a
// complex one serves both parts of each element.
template <class T>
inline auto partsOf(Arr<T> s) {
    if constexpr (IsComplex<T>::value)
        return Arr<Base<T>>{reinterpret_cast<const Base<T>*>(s.p)};
    else
        return Dup<T>{s.p};
}
template <class T>
inline auto partsOf(Bcast<T> s) {
    if constexpr (IsComplex<T>::value)
        return BcastPair<Base<T>>{s.v.re, s.v.im};
    else
        return s;
}

template <class S>
struct IsBcast : std::false_type {};
template <class T>
struct IsBcast<Bcast<T>> : std::true_type {};

// Every result is 0 (the exact values are too small for this scale factor).
template <class TD>
inline void fillZero(TD* d, int n) {
    memset(static_cast<void*>(d), 0, sizeof(TD) * static_cast<size_t>(n));
}

// Complex integer product, each part an exact sum of two products, scaled.
template <class TD, class S1, class S2>
inline void mulComplexInt(S1 a, S2 b, TD* d, int n, int sf) {
    using B = Base<TD>;
    for (int i = 0; i < n; ++i) {
        const auto x = at(a, i), y = at(b, i);
        if constexpr (sizeof(B) <= 2) {
            const int64_t re = static_cast<int64_t>(x.re) * y.re - static_cast<int64_t>(x.im) * y.im;
            const int64_t im = static_cast<int64_t>(x.re) * y.im + static_cast<int64_t>(x.im) * y.re;
            d[i].re = scaleSat<B>(re, sf);
            d[i].im = scaleSat<B>(im, sf);
        } else {
            // 32-bit parts: a sum of two products reaches 2^63.
            const Wide128 re = mulWide(x.re, y.re) - mulWide(x.im, y.im);
            const Wide128 im = mulWide(x.re, y.im) + mulWide(x.im, y.re);
            d[i].re = scaleSat<B>(re, sf);
            d[i].im = scaleSat<B>(im, sf);
        }
    }
}

// d[i] = Op(a[i], b[i]) for every family of two operands: exact, then
// scaled by 2^-sf with ties to even and saturated for integers; sf is 0
// for unscaled integer forms and ignored for floating ones.
template <class Op, class TD, class S1, class S2>
inline void run(S1 a, S2 b, TD* d, int n, int sf) {
    using E1 = typename S1::Elem;
    using E2 = typename S2::Elem;
    if constexpr (IsComplex<TD>::value && Op::kPartwise) {
        run<Op>(partsOf(a), partsOf(b), reinterpret_cast<Base<TD>*>(d), 2 * n, sf);
    } else if constexpr (isFloat<TD> && !isFloat<E1>) {
        // 16-bit integers into single precision: exact conversions, one rounding.
        for (int i = 0; i < n; ++i) d[i] = Op::s(static_cast<TD>(at(a, i)), static_cast<TD>(at(b, i)));
    } else if constexpr (isFloat<TD>) {
        kern::floatLoop<Op>(a, b, d, n);
    } else {
        constexpr int mag = Op::magBits(magOf<E1>(), magOf<E2>());
        if (mag < 126 && scaleGivesZero(sf, mag)) return fillZero(d, n);
        // Past this point every non-zero value saturates: the result depends on
        // the sign alone, as at the first such scale factor.
        if (scaleGivesSign<TD>(sf)) sf = -8 * static_cast<int>(sizeof(Base<TD>));
        if constexpr (IsBcast<S2>::value && std::is_same<Op, kern::MulRealOp>::value) {
            if (b.v == 0) return fillZero(d, n);
            if (b.v == 1 && sf == 0 && std::is_same<E1, TD>::value) {
                if (static_cast<const void*>(a.p) != static_cast<const void*>(d))
                    memmove(static_cast<void*>(d), a.p, sizeof(TD) * static_cast<size_t>(n));
                return;
            }
        }
        if constexpr (IsComplex<TD>::value) {
            mulComplexInt(a, b, d, n, sf);
        } else if constexpr (sizeof(TD) == 8) {
            kern::wideLoop<Op>(a, b, d, n, sf);
        } else {
            kern::intLoop<Op>(a, b, d, n, sf);
        }
    }
}

// The in-place constant forms of Add and Sub on integers do nothing for a
// zero constant without scaling.
template <class Op, class TV, class TD>
inline bool constIsIdentity(TV val, int sf) {
    if constexpr (isFloat<TD> || !(std::is_same<Op, kern::AddOp>::value || std::is_same<Op, kern::SubRevOp>::value)) {
        return false;
    } else if constexpr (IsComplex<TV>::value) {
        return sf == 0 && val.re == 0 && val.im == 0;
    } else {
        return sf == 0 && val == 0;
    }
}

}  // namespace arith
}  // namespace veks

// Element traits: what each element type is made of and the range it
// saturates to. Every family asks these instead of spelling out limits.
#pragma once

#include <stdint.h>

#include <limits>
#include <type_traits>

#include "veks.h"

namespace veks {

template <class T>
struct IsComplex : std::false_type {};
template <> struct IsComplex<T8sc> : std::true_type {};
template <> struct IsComplex<T16sc> : std::true_type {};
template <> struct IsComplex<T32sc> : std::true_type {};
template <> struct IsComplex<T64sc> : std::true_type {};
template <> struct IsComplex<T32fc> : std::true_type {};
template <> struct IsComplex<T64fc> : std::true_type {};

// The type of one part: T16s for T16sc, T32f for T32fc, the type itself
// for real types.
template <class T>
struct BaseOf { using type = T; };
template <> struct BaseOf<T8sc> { using type = T8s; };
template <> struct BaseOf<T16sc> { using type = T16s; };
template <> struct BaseOf<T32sc> { using type = T32s; };
template <> struct BaseOf<T64sc> { using type = T64s; };
template <> struct BaseOf<T32fc> { using type = T32f; };
template <> struct BaseOf<T64fc> { using type = T64f; };
template <class T>
using Base = typename BaseOf<T>::type;

// The complex type over a base type.
template <class T>
struct ComplexOf;
template <> struct ComplexOf<T8s> { using type = T8sc; };
template <> struct ComplexOf<T16s> { using type = T16sc; };
template <> struct ComplexOf<T32s> { using type = T32sc; };
template <> struct ComplexOf<T64s> { using type = T64sc; };
template <> struct ComplexOf<T32f> { using type = T32fc; };
template <> struct ComplexOf<T64f> { using type = T64fc; };
template <class T>
using Complex = typename ComplexOf<T>::type;

template <class T>
constexpr bool isFloat = std::is_floating_point<Base<T>>::value;

// Saturation range of an integer element type (of its parts for complex).
template <class T>
struct Range {
    using B = Base<T>;
    static_assert(std::is_integral<B>::value, "saturation ranges are for integer types");
    static constexpr int64_t lo = std::numeric_limits<B>::min();
    static constexpr int64_t hi = static_cast<int64_t>(std::numeric_limits<B>::max() >
                                                               std::numeric_limits<int64_t>::max()
                                                           ? std::numeric_limits<int64_t>::max()
                                                           : std::numeric_limits<B>::max());
};

// The packed 24-bit types saturate to their own 24-bit ranges.
template <>
struct Range<T24s> {
    static constexpr int64_t lo = -(int64_t(1) << 23);
    static constexpr int64_t hi = (int64_t(1) << 23) - 1;
};
template <>
struct Range<T24u> {
    static constexpr int64_t lo = 0;
    static constexpr int64_t hi = (int64_t(1) << 24) - 1;
};

// The packed 24-bit types widen to 32 bits; byte 2 carries the top bits.
inline int32_t widen(const T24s& v) {
    return static_cast<int32_t>(static_cast<uint32_t>(v.b[0]) | static_cast<uint32_t>(v.b[1]) << 8 |
                                static_cast<uint32_t>(v.b[2]) << 16) << 8 >> 8;
}
inline uint32_t widen(const T24u& v) {
    return static_cast<uint32_t>(v.b[0]) | static_cast<uint32_t>(v.b[1]) << 8 |
           static_cast<uint32_t>(v.b[2]) << 16;
}
inline T24s narrow24s(int32_t v) {
    T24s r;
    r.b[0] = static_cast<unsigned char>(v);
    r.b[1] = static_cast<unsigned char>(v >> 8);
    r.b[2] = static_cast<unsigned char>(v >> 16);
    return r;
}
inline T24u narrow24u(uint32_t v) {
    T24u r;
    r.b[0] = static_cast<unsigned char>(v);
    r.b[1] = static_cast<unsigned char>(v >> 8);
    r.b[2] = static_cast<unsigned char>(v >> 16);
    return r;
}

}  // namespace veks

// Convert: element-wise conversion between element types, once for every
// pair. Convert<TSrc, TDst>::run(pSrc, pDst, n, rndMode, sf) is the meaning:
//
//   floating to integer: x * 2^-sf, clamped from above to the destination
//     maximum (a NaN takes it), rounded by rndMode (0 toward zero, 1 to
//     nearest even, any other value half away from zero), saturated from
//     below; members without a mode round to nearest even;
//   integer to floating: the value times 2^-sf, rounded once to nearest
//     even where the destination cannot hold it;
//   integer to integer: exact widening, or the scale-factor rule onto the
//     destination range with positive scale factors rounded by rndMode;
//   between the floating types: exact widening, narrowing to nearest even;
//   half precision: single-precision rounding toward zero (rndMode 0) or to
//     nearest even (1), through single precision for 16-bit integers.
//
// Steps that rely on the processor's rounding run under a RoundingGuard,
// so no result depends on the caller's setting.
#pragma once

#include <math.h>
#include <stddef.h>
#include <stdint.h>

#include <type_traits>

#include "frame/detail/rounding.h"
#include "frame/detail/scale.h"
#include "frame/detail/traits.h"
#include "kernels/convert_float_int.h"
#include "kernels/convert_half.h"
#include "kernels/convert_int_float.h"
#include "kernels/convert_int_int.h"

namespace veks {
namespace convert {

template <class T>
constexpr bool is24 = std::is_same<T, T24s>::value || std::is_same<T, T24u>::value;

// Integer view of an element (24-bit types widened).
template <class T>
inline int64_t load(const T& v) {
    if constexpr (is24<T>)
        return widen(v);
    else
        return static_cast<int64_t>(v);
}

template <class T>
inline void store(T& d, int64_t v) {
    if constexpr (std::is_same<T, T24s>::value)
        d = narrow24s(static_cast<int32_t>(v));
    else if constexpr (std::is_same<T, T24u>::value)
        d = narrow24u(static_cast<uint32_t>(v));
    else
        d = static_cast<T>(v);
}

// 2^-sf is a normal value of T, so multiplying by it is exact until the
// product leaves the normal range.
template <class T>
constexpr bool normalFactor(int sf) {
    return std::is_same<T, float>::value ? (sf >= -127 && sf <= 126) : (sf >= -1023 && sf <= 1022);
}

template <class T>
inline T factorOf(int sf) {
    return static_cast<T>(ldexp(1.0, -sf));
}

inline int clampShift(int sf) { return sf > 2200 ? 2200 : sf < -2200 ? -2200 : sf; }

// ---- floating to integer ------------------------------------------------

template <class TSrc, class TDst, int M>
inline void floatToIntMode(const TSrc* pSrc, TDst* pDst, size_t n, int sf) {
    if (sf == 0)
        kern::floatToInt<TSrc, TDst, M, false>(pSrc, pDst, n, TSrc(1));
    else
        kern::floatToInt<TSrc, TDst, M, true>(pSrc, pDst, n, factorOf<TSrc>(sf));
}

template <class TSrc, class TDst>
inline void floatToInt(const TSrc* pSrc, TDst* pDst, size_t n, int rndMode, int sf) {
    constexpr bool kVector = !is24<TDst> && sizeof(TDst) <= 4;
    if (!kVector || !normalFactor<TSrc>(sf)) {
        for (size_t i = 0; i < n; ++i)
            store(pDst[i], convertRound(pSrc[i], rndMode, sf, Range<TDst>::lo, Range<TDst>::hi));
        return;
    }
    if constexpr (kVector) {
        if (rndMode == VEK_ROUND_ZERO) {
            floatToIntMode<TSrc, TDst, 0>(pSrc, pDst, n, sf);
        } else if (rndMode == VEK_ROUND_NEAR) {
            RoundingGuard g(RoundingGuard::Nearest);
            floatToIntMode<TSrc, TDst, 1>(pSrc, pDst, n, sf);
        } else {
            RoundingGuard g(RoundingGuard::TowardZero);
            floatToIntMode<TSrc, TDst, 2>(pSrc, pDst, n, sf);
        }
    }
}

// ---- integer to floating ------------------------------------------------

template <class TSrc, class TDst>
inline void intToFloatVector(const TSrc* pSrc, TDst* pDst, size_t n, int sf) {
    if (sf == 0)
        kern::intToFloat<TSrc, TDst, false>(pSrc, pDst, n, TDst(1));
    else
        kern::intToFloat<TSrc, TDst, true>(pSrc, pDst, n, factorOf<TDst>(sf));
}

template <class TSrc, class TDst>
inline void intToFloat(const TSrc* pSrc, TDst* pDst, size_t n, int sf) {
    if constexpr (is24<TSrc>) {
        for (size_t i = 0; i < n; ++i) pDst[i] = static_cast<TDst>(load(pSrc[i]));  // 24 bits fit
    } else {
        // Exact unless the integer is wider than the mantissa or a factor
        // applies; then the one rounding happens to nearest.
        // The product of an exact conversion and a normal power of two is
        // exact while it stays below the largest power of two (|x| is at
        // most 2^kBits), so no rounding setting matters then.
        constexpr bool kRounds = sizeof(TSrc) >= sizeof(TDst);
        constexpr int kBits = 8 * static_cast<int>(sizeof(TSrc));
        constexpr int kMaxExp = std::is_same<TDst, float>::value ? 128 : 1024;
        if (!kRounds && normalFactor<TDst>(sf) && sf > kBits - kMaxExp) {
            intToFloatVector(pSrc, pDst, n, sf);
            return;
        }
        RoundingGuard g(RoundingGuard::Nearest);
        if (normalFactor<TDst>(sf)) {
            intToFloatVector(pSrc, pDst, n, sf);
        } else {
            const int k = -clampShift(sf);
            for (size_t i = 0; i < n; ++i)
                pDst[i] = static_cast<TDst>(ldexp(static_cast<double>(pSrc[i]), k));  // exact, then one rounding
        }
    }
}

// ---- integer to integer -------------------------------------------------

template <class TSrc, class TDst>
inline void intToInt(const TSrc* pSrc, TDst* pDst, size_t n, int rndMode, int sf) {
    constexpr int64_t lo = Range<TDst>::lo, hi = Range<TDst>::hi;
    if constexpr (std::is_same<TSrc, T8s>::value && std::is_same<TDst, T16s>::value) {
        kern::widen8s16s(pSrc, pDst, n);
    } else if constexpr (std::is_same<TSrc, T16s>::value && std::is_same<TDst, T32s>::value) {
        kern::widen16s32s(pSrc, pDst, n);
    } else if constexpr (std::is_same<TSrc, T32s>::value && std::is_same<TDst, T16s>::value) {
        if (scaleGivesZero(sf, 31)) {
            for (size_t i = 0; i < n; ++i) pDst[i] = 0;
        } else {
            kern::scale32s16s(pSrc, pDst, n, scaleGivesSign<T16s>(sf) ? -15 : sf);
        }
    } else {
        // The shortcuts: past these bounds only the sign of the value
        // matters, or nothing at all.
        constexpr int kBits = 8 * (is24<TSrc> ? 3 : static_cast<int>(sizeof(TSrc)));
        constexpr int kDstBits = 8 * (is24<TDst> ? 3 : static_cast<int>(sizeof(TDst)));
        if (sf > kBits) {
            for (size_t i = 0; i < n; ++i) store(pDst[i], 0);
            return;
        }
        if (sf < -kDstBits) sf = -kDstBits;
        for (size_t i = 0; i < n; ++i) store(pDst[i], scaleSatRange(load(pSrc[i]), sf, lo, hi, rndMode));
    }
}

// ---- half precision -----------------------------------------------------

// Work in blocks through a single-precision buffer on the stack.
constexpr size_t kBlock = 512;

template <class TSrc, class TDst>
inline void halfConvert(const TSrc* pSrc, TDst* pDst, size_t n, int rndMode, int sf) {
    const bool nearest = rndMode == VEK_ROUND_NEAR;
    if constexpr (std::is_same<TSrc, T32f>::value) {
        if (nearest)
            kern::floatToHalf<true>(pSrc, pDst, n);
        else
            kern::floatToHalf<false>(pSrc, pDst, n);
    } else if constexpr (std::is_same<TDst, T32f>::value) {
        kern::halfToFloat(pSrc, pDst, n);
    } else {
        float buf[kBlock];
        for (size_t i = 0; i < n; i += kBlock) {
            const size_t m = n - i < kBlock ? n - i : kBlock;
            if constexpr (std::is_same<TSrc, T16s>::value) {  // 16s to 16f
                kern::intToFloat<T16s, float, false>(pSrc + i, buf, m, 1.0f);
                if (nearest)
                    kern::floatToHalf<true>(buf, pDst + i, m);
                else
                    kern::floatToHalf<false>(buf, pDst + i, m);
            } else {  // 16f to 16s
                kern::halfToFloat(pSrc + i, buf, m);
                floatToInt<float, T16s>(buf, pDst + i, m, rndMode, sf);
            }
        }
    }
}

// ---- the one entry point ------------------------------------------------

template <class TSrc, class TDst, bool Half = false>
struct Convert {
    static void run(const TSrc* pSrc, TDst* pDst, size_t n, int rndMode, int sf) {
        constexpr bool kSrcFloat = std::is_floating_point<TSrc>::value;
        constexpr bool kDstFloat = std::is_floating_point<TDst>::value;
        if constexpr (Half) {
            halfConvert(pSrc, pDst, n, rndMode, sf);
        } else if constexpr (kSrcFloat && kDstFloat) {
            if constexpr (sizeof(TSrc) < sizeof(TDst)) {
                kern::floatToDouble(pSrc, pDst, n);
            } else {
                RoundingGuard g(RoundingGuard::Nearest);
                kern::doubleToFloat(pSrc, pDst, n);
            }
        } else if constexpr (kSrcFloat) {
            floatToInt(pSrc, pDst, n, rndMode, sf);
        } else if constexpr (kDstFloat) {
            intToFloat(pSrc, pDst, n, sf);
        } else {
            intToInt(pSrc, pDst, n, rndMode, sf);
        }
    }
};

}  // namespace convert
}  // namespace veks

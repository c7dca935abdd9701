// Rounding of floating values to integers, and the guard that fixes the
// processor's rounding setting for the length of a call.
#pragma once

#include <math.h>
#include <stdint.h>
#include <xmmintrin.h>

#include "scale.h"

namespace veks {

// Sets the rounding of SSE arithmetic and conversions for its lifetime and
// restores the caller's setting (and only the rounding bits) on exit.
class RoundingGuard {
public:
    enum Mode : unsigned { Nearest = 0x0000, Down = 0x2000, Up = 0x4000, TowardZero = 0x6000 };
    // Writing the control register is slow, so a setting that is already
    // in force is left alone (and then nothing needs restoring).
    explicit RoundingGuard(Mode m) : saved_(_mm_getcsr()), changed_((saved_ & 0x6000u) != m) {
        if (changed_) _mm_setcsr((saved_ & ~0x6000u) | m);
    }
    ~RoundingGuard() {
        if (changed_) _mm_setcsr((_mm_getcsr() & ~0x6000u) | (saved_ & 0x6000u));
    }
    RoundingGuard(const RoundingGuard&) = delete;
    RoundingGuard& operator=(const RoundingGuard&) = delete;

private:
    unsigned saved_;
    bool changed_;
};

// Round a double to an integral double by a rounding-mode argument
// (VEK_ROUND_ZERO, VEK_ROUND_NEAR: ties to even, VEK_ROUND_HALF_AWAY).
// Independent of the processor's rounding setting.
inline double roundByMode(double x, int rndMode) {
    if (rndMode == VEK_ROUND_ZERO) return __builtin_trunc(x);
    if (rndMode == VEK_ROUND_NEAR) return __builtin_roundeven(x);
    const double t = __builtin_trunc(x);
    return fabs(x - t) >= 0.5 ? t + (x < 0 ? -1.0 : 1.0) : t;
}

// A rounded (integral) double saturated to an integer type; NaN gives 0.
template <class TDst>
inline TDst saturateIntegral(double v) {
    if (!(v == v)) return 0;
    if (v <= static_cast<double>(Range<TDst>::lo)) return static_cast<TDst>(Range<TDst>::lo);
    if (v >= static_cast<double>(Range<TDst>::hi)) return static_cast<TDst>(Range<TDst>::hi);
    return static_cast<TDst>(static_cast<int64_t>(v));
}

// x * 2^-sf, rounded by the mode, saturated.
template <class TDst>
inline TDst roundSat(double x, int rndMode, int sf = 0) {
    return saturateIntegral<TDst>(roundByMode(sf ? ldexp(x, -sf) : x, rndMode));
}

// Float to integer as the conversions define it: x * 2^-sf, then a clamp
// from above to hi that a NaN meets as the larger value (so NaN gives hi),
// then rounding by the mode (roundByMode), then saturation from below to lo.
// Independent of the processor's rounding setting.
inline int64_t convertRound(double x, int rndMode, int sf, int64_t lo, int64_t hi) {
    if (sf != 0) x = ldexp(x, sf > 2200 ? -2200 : sf < -2200 ? 2200 : -sf);
    if (!(x < static_cast<double>(hi))) return hi;  // NaN, and hi itself
    const double r = roundByMode(x, rndMode);
    if (r >= static_cast<double>(hi)) return hi;
    if (r <= static_cast<double>(lo)) return lo;
    return static_cast<int64_t>(r);
}

}  // namespace veks


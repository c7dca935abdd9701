// Floating products scaled by a power of two, rounded to nearest with ties
// to even and saturated to T16s. The caller fixes the processor's rounding
// to nearest for the products.
#pragma once

#include <math.h>
#include <smmintrin.h>

#include "frame/detail/rounding.h"
#include "veks.h"

namespace veks {
namespace kern {

// Scalar twin: the product in single precision, then exact scaling in
// double, rounding and saturation (NaN gives 0).
inline T16s mulScaleRound16s(T32f x, T32f val, int sf) {
    const float p = x * val;
    const int k = sf < -4000 ? 4000 : sf > 4000 ? -4000 : -sf;  // beyond, every value is 0 or infinite
    return saturateIntegral<T16s>(__builtin_roundeven(ldexp(static_cast<double>(p), k)));
}

inline void mulScaleRound16sScalar(const T32f* s, T32f val, T16s* d, int n, int sf) {
    for (int i = 0; i < n; ++i) d[i] = mulScaleRound16s(s[i], val, sf);
}

// With 2^-sf a normal single, p * 2^-sf is exact unless it underflows
// (then it rounds to 0 either way) or overflows (then it saturates either way).
inline void mulScaleRound16sLoop(const T32f* s, T32f val, T16s* d, int n, int sf) {
    int i = 0;
    if (sf >= -127 && sf <= 126) {
        const __m128 v = _mm_set1_ps(val), scale = _mm_set1_ps(ldexpf(1.0f, -sf));
        const __m128 lo = _mm_set1_ps(-32768.0f), hi = _mm_set1_ps(32767.0f);
        for (; i + 8 <= n; i += 8) {
            __m128i r[2];
            for (int k = 0; k < 2; ++k) {
                const __m128 x = _mm_mul_ps(_mm_mul_ps(_mm_loadu_ps(s + i + 4 * k), v), scale);
                const __m128 ordered = _mm_cmpord_ps(x, x);
                const __m128 c = _mm_max_ps(_mm_min_ps(_mm_round_ps(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC), hi), lo);
                r[k] = _mm_cvttps_epi32(_mm_and_ps(c, ordered));
            }
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm_packs_epi32(r[0], r[1]));
        }
    }
    for (; i < n; ++i) d[i] = mulScaleRound16s(s[i], val, sf);
}

}  // namespace kern
}  // namespace veks

#include "support/support.h"

#include <stdlib.h>

namespace vt {

const std::vector<int>& tailLengths() {
    static const std::vector<int> v = [] {
        std::vector<int> r;
        for (int n = 1; n <= 40; ++n) r.push_back(n);
        for (int n : {47, 48, 49, 63, 64, 65, 127, 128, 129, 255, 256, 257, 511, 1000, 1023, 1024, 1025, 4099})
            r.push_back(n);
        return r;
    }();
    return v;
}

namespace {
template <class F, class I>
int64_t ulps(F a, F b) {
    if (a != a && b != b) return 0;
    if (a != a || b != b) return std::numeric_limits<int64_t>::max();
    I ia, ib;
    memcpy(&ia, &a, sizeof a);
    memcpy(&ib, &b, sizeof b);
    // Sign-magnitude patterns onto one ordered line: -0 and +0 meet at 0.
    const int64_t la = ia < 0 ? -static_cast<int64_t>(ia & std::numeric_limits<I>::max()) : ia;
    const int64_t lb = ib < 0 ? -static_cast<int64_t>(ib & std::numeric_limits<I>::max()) : ib;
    if ((la < 0) != (lb < 0) && (la > INT64_MAX / 2 || lb > INT64_MAX / 2 || la < -INT64_MAX / 2 ||
                                 lb < -INT64_MAX / 2))
        return std::numeric_limits<int64_t>::max();
    return llabs(la - lb);
}
}  // namespace

int64_t ulpDistance(float a, float b) { return ulps<float, int32_t>(a, b); }
int64_t ulpDistance(double a, double b) { return ulps<double, int64_t>(a, b); }

}  // namespace vt

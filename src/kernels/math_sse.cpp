// The four-lane literals of the atan2, sine and cosine kernels, built from
// the same scalar constants as the scalar twins.
#include "kernels/math_sse.h"

namespace veks {
namespace kern {

using A = Atan2Consts;
const Atan2Lanes kAtan2Lanes = {A::tanPi8, A::pio4Hi, A::pio4Lo, A::big, A::p0, A::p1, A::p2, A::p3, A::p4, 1.0f, 0.25f,
                                 2.0f,      4.0f,      __builtin_inff(), -0.0f};

using S = SinCosConsts;
const SinCosLanes kSinCosLanes = {S::twoOverPi, S::c1, S::c2, S::c3, S::c4, S::s1,
                                  S::s2,        S::s3, S::k1, S::k2, S::k3, 0.5f, 1.0f};

}  // namespace kern
}  // namespace veks

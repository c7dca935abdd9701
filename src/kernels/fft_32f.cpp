// The radix passes and real split passes for float data.
#include "kernels/fft_impl.h"

namespace veks {
namespace fft {

template void stockham<float>(const Cx<float>*, Cx<float>*, Cx<float>*, int, size_t, const Cx<float>*, bool);
template void stockhamSplit<float>(SplitPtr<const float>, SplitPtr<float>, SplitPtr<float>, int, const Cx<float>*, bool);
template void smallTransform<float>(const Cx<float>*, Cx<float>*, int, bool);
template void scaleValues<float>(const float*, float*, size_t, float);
template void twistRow<float>(Cx<float>*, size_t, size_t, const Cx<float>*, size_t, bool);
template void realSplitForward<float>(Cx<float>*, size_t, const Cx<float>*, size_t, size_t);
template void realSplitInverse<float>(Cx<float>*, size_t, const Cx<float>*, size_t, size_t);

}  // namespace fft
}  // namespace veks

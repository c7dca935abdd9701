// The radix passes and real split passes for double data.
#include "kernels/fft_impl.h"

namespace veks {
namespace fft {

template void stockham<double>(const Cx<double>*, Cx<double>*, Cx<double>*, int, size_t, const Cx<double>*, bool);
template void stockhamSplit<double>(SplitPtr<const double>, SplitPtr<double>, SplitPtr<double>, int, const Cx<double>*, bool);
template void smallTransform<double>(const Cx<double>*, Cx<double>*, int, bool);
template void scaleValues<double>(const double*, double*, size_t, double);
template void twistRow<double>(Cx<double>*, size_t, size_t, const Cx<double>*, size_t, bool);
template void realSplitForward<double>(Cx<double>*, size_t, const Cx<double>*, size_t, size_t);
template void realSplitInverse<double>(Cx<double>*, size_t, const Cx<double>*, size_t, size_t);

}  // namespace fft
}  // namespace veks

// Vector allocation for callers. The byte count is len times the element
// size in unsigned 32-bit arithmetic and is passed to the core as it is,
// wrapped or not; len below 1 gives null without asking the core. Element
// types of one width share one implementation.
#include <stdint.h>

#include "frame/detail/export.h"
#include "vekcore.h"

namespace {

template <uint32_t kBytes>
void* allocate(int len) {
    if (len < 1) return nullptr;
    const uint32_t bytes = static_cast<uint32_t>(len) * kBytes;
    return vekMalloc(bytes);
}

}  // namespace

VEKS_EXPORT T8u* veksMalloc_8u(int len) { return static_cast<T8u*>(allocate<1>(len)); }
VEKS_ALIAS(T8s*, veksMalloc_8s, (int len), veksMalloc_8u);

VEKS_EXPORT T16s* veksMalloc_16s(int len) { return static_cast<T16s*>(allocate<2>(len)); }
VEKS_ALIAS(T16u*, veksMalloc_16u, (int len), veksMalloc_16s);
VEKS_ALIAS(T8sc*, veksMalloc_8sc, (int len), veksMalloc_16s);

VEKS_EXPORT T32f* veksMalloc_32f(int len) { return static_cast<T32f*>(allocate<4>(len)); }
VEKS_ALIAS(T32s*, veksMalloc_32s, (int len), veksMalloc_32f);
VEKS_ALIAS(T32u*, veksMalloc_32u, (int len), veksMalloc_32f);
VEKS_ALIAS(T16sc*, veksMalloc_16sc, (int len), veksMalloc_32f);

VEKS_EXPORT T64f* veksMalloc_64f(int len) { return static_cast<T64f*>(allocate<8>(len)); }
VEKS_ALIAS(T64s*, veksMalloc_64s, (int len), veksMalloc_64f);
VEKS_ALIAS(T32fc*, veksMalloc_32fc, (int len), veksMalloc_64f);
VEKS_ALIAS(T32sc*, veksMalloc_32sc, (int len), veksMalloc_64f);

VEKS_EXPORT T64fc* veksMalloc_64fc(int len) { return static_cast<T64fc*>(allocate<16>(len)); }
VEKS_ALIAS(T64sc*, veksMalloc_64sc, (int len), veksMalloc_64fc);

VEKS_EXPORT void veksFree(void* ptr) { vekFree(ptr); }

// Argument validation in the library's fixed order: null pointers, then the
// length, then the block identifier, then the family's own parameters. An
// export returns the first failing status before it writes anything.
#pragma once

#include <stdint.h>
#include <string.h>

#include "veks.h"

namespace veks {

template <class... P>
inline bool anyNull(const P*... ptrs) {
    return ((ptrs == nullptr) || ...);
}

// Pointers first, then len < 1.
template <class... P>
inline VekResult checkPtrsLen(int len, const P*... ptrs) {
    if (anyNull(ptrs...)) return VEK_ERR_NULL_POINTER;
    if (len < 1) return VEK_ERR_SIZE;
    return VEK_OK;
}

// Every spec and state block begins with its 32-bit identifier.
inline uint32_t blockId(const void* block) {
    uint32_t id;
    memcpy(&id, block, sizeof id);
    return id;
}

inline VekResult checkBlockId(const void* block, uint32_t id) {
    return blockId(block) == id ? VEK_OK : VEK_ERR_CONTEXT_MISMATCH;
}

// A rounding-mode argument accepts 0, 1 and 2.
inline VekResult checkRoundMode(int rndMode) {
    return rndMode >= VEK_ROUND_ZERO && rndMode <= VEK_ROUND_HALF_AWAY ? VEK_OK : VEK_ERR_ROUND_MODE;
}

}  // namespace veks

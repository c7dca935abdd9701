// SwapBytes: each element's bytes in reverse order (for 24-bit elements
// bytes 0 and 2 trade places and byte 1 stays).
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "kernels/convert_swap.h"

namespace veks {
namespace {

template <class T>
inline void swapBytes(const T* pSrc, T* pDst, int len) {
    kern::swapBytes<sizeof(T)>(reinterpret_cast<const uint8_t*>(pSrc), reinterpret_cast<uint8_t*>(pDst),
                               static_cast<size_t>(len));
}

}  // namespace
}  // namespace veks

#define VEKS_SWAP(name, T)                                                        \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) {                 \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;  \
        veks::swapBytes(pSrc, pDst, len);                                         \
        return VEK_OK;                                                            \
    }
#define VEKS_SWAP_I(name, T)                                                      \
    VEKS_EXPORT VekResult name(T* pSrcDst, int len) {                             \
        if (const VekResult st = veks::checkPtrsLen(len, pSrcDst)) return st;     \
        veks::swapBytes(pSrcDst, pSrcDst, len);                                   \
        return VEK_OK;                                                            \
    }

VEKS_SWAP(veksSwapBytes_16u, T16u)
VEKS_SWAP_I(veksSwapBytes_16u_I, T16u)
VEKS_SWAP(veksSwapBytes_24u, T24u)
VEKS_SWAP_I(veksSwapBytes_24u_I, T24u)
VEKS_SWAP(veksSwapBytes_32u, T32u)
VEKS_SWAP_I(veksSwapBytes_32u_I, T32u)
VEKS_SWAP(veksSwapBytes_64u, T64u)
VEKS_SWAP_I(veksSwapBytes_64u_I, T64u)

// Flip: pDst[i] = pSrc[len - 1 - i]; the in-place form swaps elements i and
// len - 1 - i. Elements move whole and bit for bit. An out-of-place call
// whose source is its destination runs the in-place algorithm. Every member
// has its own body, equal widths included.
#include <utility>

#include "frame/detail/check.h"
#include "frame/detail/export.h"

namespace veks {
namespace {

template <class T>
void reverseInPlace(T* p, size_t n) {
    for (size_t i = 0, j = n - 1; i < j; ++i, --j) std::swap(p[i], p[j]);
}

template <class T>
VekResult flip(const T* pSrc, T* pDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    const size_t n = static_cast<size_t>(len);
    if (pSrc == pDst) {
        reverseInPlace(pDst, n);
    } else {
        for (size_t i = 0; i < n; ++i) pDst[i] = pSrc[n - 1 - i];
    }
    return VEK_OK;
}

template <class T>
VekResult flipInPlace(T* pSrcDst, int len) {
    if (VekResult st = checkPtrsLen(len, pSrcDst)) return st;
    reverseInPlace(pSrcDst, static_cast<size_t>(len));
    return VEK_OK;
}

}  // namespace
}  // namespace veks

#define VEKS_FLIP(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pDst, int len) { return veks::flip(pSrc, pDst, len); }
#define VEKS_FLIP_I(name, T) \
    VEKS_EXPORT VekResult name(T* pSrcDst, int len) { return veks::flipInPlace(pSrcDst, len); }

VEKS_FLIP(veksFlip_8u, T8u)
VEKS_FLIP_I(veksFlip_8u_I, T8u)
VEKS_FLIP(veksFlip_16u, T16u)
VEKS_FLIP_I(veksFlip_16u_I, T16u)
VEKS_FLIP(veksFlip_32f, T32f)
VEKS_FLIP_I(veksFlip_32f_I, T32f)
VEKS_FLIP(veksFlip_64f, T64f)
VEKS_FLIP_I(veksFlip_64f_I, T64f)
VEKS_FLIP(veksFlip_32fc, T32fc)
VEKS_FLIP_I(veksFlip_32fc_I, T32fc)
VEKS_FLIP(veksFlip_64fc, T64fc)
VEKS_FLIP_I(veksFlip_64fc_I, T64fc)

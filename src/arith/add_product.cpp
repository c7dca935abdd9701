// AddProduct and AddProductC: pSrcDst + pSrc1 * pSrc2, and pSrcDst + pSrc * val.
// Integer forms scale the exact sum d + a * b once and saturate.
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/scale.h"
#include "kernels/add_product.h"

using namespace veks;
using kern::Arr;
using kern::Bcast;

#define VEKS_ADD_PRODUCT(name, T)                                                            \
    VEKS_EXPORT VekResult name(const T* pSrc1, const T* pSrc2, T* pSrcDst, int len) {        \
        if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pSrcDst)) return st;        \
        kern::addProductFloat(Arr<T>{pSrc1}, Arr<T>{pSrc2}, pSrcDst, len);                   \
        return VEK_OK;                                                                       \
    }

VEKS_EXPORT VekResult veksAddProductC_32f(const T32f* pSrc, T32f val, T32f* pSrcDst, int len) {
    if (const VekResult st = checkPtrsLen(len, pSrc, pSrcDst)) return st;
    kern::addProductFloat(Arr<T32f>{pSrc}, Bcast<T32f>{val}, pSrcDst, len);
    return VEK_OK;
}

VEKS_EXPORT VekResult veksAddProduct_16s32s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T32s* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pSrcDst)) return st;
    kern::addProductIntScalar(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
    return VEK_OK;
}

VEKS_EXPORT VekResult veksAddProduct_16s_Sfs(const T16s* pSrc1, const T16s* pSrc2, T16s* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pSrcDst)) return st;
    kern::addProduct16s(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
    return VEK_OK;
}

VEKS_ADD_PRODUCT(veksAddProduct_32f, T32f)
VEKS_ADD_PRODUCT(veksAddProduct_32fc, T32fc)

VEKS_EXPORT VekResult veksAddProduct_32s_Sfs(const T32s* pSrc1, const T32s* pSrc2, T32s* pSrcDst, int len, int scaleFactor) {
    if (const VekResult st = checkPtrsLen(len, pSrc1, pSrc2, pSrcDst)) return st;
    kern::addProductIntScalar(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
    return VEK_OK;
}

VEKS_ADD_PRODUCT(veksAddProduct_64f, T64f)
VEKS_ADD_PRODUCT(veksAddProduct_64fc, T64fc)

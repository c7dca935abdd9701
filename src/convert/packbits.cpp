// PackBits: len 32-bit values written one after another as bit fields into
// a byte string, starting dstBitOffset bits in. Fields and bytes are filled
// from the most significant bit down: the first field's top bit lands in
// bit 7 - (dstBitOffset % 8) of byte dstBitOffset / 8. Each field is the low
// pSrcBitsLen[i] bits of pSrc[i]; a bit count above 32 is taken as 32 and
// one below 0 as 0. Bits of the destination outside the written run keep
// their values. The number of bits written goes to *pDstLenBit.
#include <stddef.h>
#include <stdint.h>

#include "frame/detail/check.h"
#include "frame/detail/export.h"

VEKS_EXPORT VekResult veksPackBits_32u8u(const T32u* pSrc, const int* pSrcBitsLen, int len, T8u* pDst,
                                         int dstBitOffset, int* pDstLenBit) {
    if (veks::anyNull(pSrc, pSrcBitsLen, pDst, pDstLenBit)) return VEK_ERR_NULL_POINTER;
    if (len < 1 || dstBitOffset < 0) return VEK_ERR_SIZE;
    T8u* p = pDst + (dstBitOffset >> 3);
    int pending = dstBitOffset & 7;  // bits held in acc, not yet stored
    uint64_t acc = pending ? static_cast<uint64_t>(*p >> (8 - pending)) : 0;
    int64_t total = 0;
    for (int i = 0; i < len; ++i) {
        const int b = pSrcBitsLen[i] < 0 ? 0 : pSrcBitsLen[i] > 32 ? 32 : pSrcBitsLen[i];
        if (b == 0) continue;
        const uint64_t field = static_cast<uint64_t>(pSrc[i]) & ((uint64_t(1) << b) - 1);
        acc = (acc << b) | field;  // at most 7 + 32 bits
        pending += b;
        total += b;
        while (pending >= 8) {
            pending -= 8;
            *p++ = static_cast<T8u>(acc >> pending);
        }
        acc &= (uint64_t(1) << pending) - 1;
    }
    if (pending > 0) {
        const int keep = 8 - pending;  // trailing bits of the last byte stay
        *p = static_cast<T8u>((acc << keep) | (*p & ((1u << keep) - 1u)));
    }
    *pDstLenBit = static_cast<int>(total);
    return VEK_OK;
}

// Bit copy modelled one bit at a time: read bit (srcOff mod 8) + i of the
// source and write it to bit (dstOff mod 8) + i of the destination, in the
// operation's numbering of the bits of a byte.
#pragma once

#include <stdint.h>

#include "veks.h"

namespace ref {

enum class BitOrder { MsbFirst, LsbFirst };

inline unsigned bitMask(int64_t pos, BitOrder order) {
    const int b = static_cast<int>(pos % 8);
    return order == BitOrder::MsbFirst ? 0x80u >> b : 1u << b;
}

inline VekResult copyBits(const T8u* src, int srcOff, T8u* dst, int dstOff, int len, BitOrder order) {
    if (!src || !dst) return VEK_ERR_NULL_POINTER;
    if (len < 1 || srcOff < 0 || dstOff < 0) return VEK_ERR_SIZE;
    for (int64_t i = 0; i < len; ++i) {
        const int64_t sp = srcOff % 8 + i, dp = dstOff % 8 + i;
        const bool bit = (src[sp / 8] & bitMask(sp, order)) != 0;
        if (bit)
            dst[dp / 8] = static_cast<T8u>(dst[dp / 8] | bitMask(dp, order));
        else
            dst[dp / 8] = static_cast<T8u>(dst[dp / 8] & ~bitMask(dp, order));
    }
    return VEK_OK;
}

}  // namespace ref

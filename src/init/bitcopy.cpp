// Bit copies between byte arrays at arbitrary bit positions.
//
// A bit string is a byte pointer plus a bit offset of which only the low
// three bits count: the pointer is never advanced by offset / 8. Copy_1u and
// CopyLE_1u number the bits of a byte from the most significant one (mask
// 0x80 is position 0); CopyBE_1u from the least significant one. A run that
// passes position 7 continues at position 0 of the next byte. Destination
// bits outside the run keep their values.
#include "frame/detail/check.h"
#include "frame/detail/export.h"

namespace veks {
namespace {

// Position 0 at the most significant bit.
struct MsbFirst {
    // Bits [lo, hi] of a byte, 0 <= lo <= hi <= 7.
    static unsigned mask(int lo, int hi) { return (0xFFu >> lo) & (0xFFu << (7 - hi)) & 0xFFu; }
    // The 8 bits that start at position k (1..7) of byte a and go on in b.
    static unsigned join(unsigned a, unsigned b, int k) { return ((a << k) | (b >> (8 - k))) & 0xFFu; }
};

// Position 0 at the least significant bit.
struct LsbFirst {
    static unsigned mask(int lo, int hi) { return (0xFFu << lo) & (0xFFu >> (7 - hi)) & 0xFFu; }
    static unsigned join(unsigned a, unsigned b, int k) { return ((a >> k) | (b << (8 - k))) & 0xFFu; }
};

template <class Order>
void copyBits(const T8u* src, int s, T8u* dst, int d, int len) {
    const int64_t lastSrcByte = (s + static_cast<int64_t>(len) - 1) >> 3;
    const int64_t lastDstByte = (d + static_cast<int64_t>(len) - 1) >> 3;
    const int shift = s - d;  // source position of destination position 0, minus 0
    // Source byte k, or 0 outside the bytes that hold the run (never read).
    auto at = [&](int64_t k) -> unsigned { return k >= 0 && k <= lastSrcByte ? src[k] : 0u; };
    // The 8 source bits that belong at destination byte j.
    auto gather = [&](int64_t j, bool bounded) -> unsigned {
        const int64_t q = 8 * j + shift;  // source position of the byte's first bit
        const int64_t k = q >> 3;         // arithmetic: q may be -7..-1 for j = 0
        const int r = static_cast<int>(q & 7);
        if (bounded) return r ? Order::join(at(k), at(k + 1), r) : at(k);
        return r ? Order::join(src[k], src[k + 1], r) : src[k];
    };
    auto put = [&](int64_t j, unsigned v, unsigned m) {
        dst[j] = static_cast<T8u>((dst[j] & ~m) | (v & m));
    };

    if (lastDstByte == 0) {
        put(0, gather(0, true), Order::mask(d, d + len - 1));
        return;
    }
    put(0, gather(0, true), Order::mask(d, 7));
    if (shift == 0) {
        // Same offsets: the inner bytes are whole source bytes.
        for (int64_t j = 1; j < lastDstByte; ++j) dst[j] = src[j];
    } else {
        // Inner destination bytes are full, so both source bytes they draw
        // on hold run bits and are in range.
        for (int64_t j = 1; j < lastDstByte; ++j) dst[j] = static_cast<T8u>(gather(j, false));
    }
    const int lastBit = static_cast<int>((d + static_cast<int64_t>(len) - 1) & 7);
    put(lastDstByte, gather(lastDstByte, true), Order::mask(0, lastBit));
}

template <class Order>
VekResult bitCopy(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len) {
    if (VekResult st = checkPtrsLen(len, pSrc, pDst)) return st;
    if (srcBitOffset < 0 || dstBitOffset < 0) return VEK_ERR_SIZE;
    copyBits<Order>(pSrc, srcBitOffset & 7, pDst, dstBitOffset & 7, len);
    return VEK_OK;
}

}  // namespace
}  // namespace veks

VEKS_EXPORT VekResult veksCopy_1u(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len) {
    return veks::bitCopy<veks::MsbFirst>(pSrc, srcBitOffset, pDst, dstBitOffset, len);
}
VEKS_ALIAS(VekResult, veksCopyLE_1u, (const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len),
           veksCopy_1u);
VEKS_EXPORT VekResult veksCopyBE_1u(const T8u* pSrc, int srcBitOffset, T8u* pDst, int dstBitOffset, int len) {
    return veks::bitCopy<veks::LsbFirst>(pSrc, srcBitOffset, pDst, dstBitOffset, len);
}

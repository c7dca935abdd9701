// A-law and mu-law companding between 16-bit linear samples (or single
// precision on the same scale) and 8-bit codes. Bits below a law's
// resolution are dropped. Single-precision samples are first converted as
// veksConvert_32f16s_Sfs does to nearest with scale factor 0 (NaN gives
// 32767); decoding to single precision is exact.
#include "convert/convert.h"
#include "frame/detail/check.h"
#include "frame/detail/export.h"

namespace veks {
namespace {

inline int log2Floor(unsigned q) { return 31 - __builtin_clz(q); }  // q >= 1

struct ALaw {
    static T8u encode(int x) {
        const int m = x >= 0 ? x : -x - 1;
        const int q = m >> 4;
        int seg = 0, mant = q;
        if (q >= 16) {
            seg = log2Floor(static_cast<unsigned>(q)) - 3;
            mant = (q >> (seg - 1)) & 15;
        }
        return static_cast<T8u>(((x >= 0 ? 0x80 : 0) | (seg << 4) | mant) ^ 0x55);
    }
    static int decode(T8u code) {
        const int c = code ^ 0x55, seg = (c >> 4) & 7, t = c & 15;
        const int mag = seg == 0 ? (2 * t + 1) << 3 : (2 * t + 33) << (seg + 2);
        return (c & 0x80) ? mag : -mag;
    }
};

struct MuLaw {
    static T8u encode(int x) {
        const int m = x >= 0 ? x : -x - 1;
        const int q = (m >> 2) + 33 < 8191 ? (m >> 2) + 33 : 8191;
        const int seg = log2Floor(static_cast<unsigned>(q)) - 5;
        const int t = (q >> (seg + 1)) & 15;
        return static_cast<T8u>((x >= 0 ? 0x80 : 0) | (0x7F ^ ((seg << 4) | t)));
    }
    static int decode(T8u code) {
        const int c = ~code & 0xFF, seg = (c >> 4) & 7, t = c & 15;
        const int mag = 4 * (((2 * t + 33) << seg) - 33);
        return (c & 0x80) ? -mag : mag;
    }
};

template <class Law, class TSrc>
void encode(const TSrc* pSrc, T8u* pDst, size_t n) {
    if constexpr (std::is_same<TSrc, T16s>::value) {
        for (size_t i = 0; i < n; ++i) pDst[i] = Law::encode(pSrc[i]);
    } else {
        T16s buf[convert::kBlock];
        for (size_t i = 0; i < n; i += convert::kBlock) {
            const size_t m = n - i < convert::kBlock ? n - i : convert::kBlock;
            convert::Convert<T32f, T16s>::run(pSrc + i, buf, m, VEK_ROUND_NEAR, 0);
            for (size_t k = 0; k < m; ++k) pDst[i + k] = Law::encode(buf[k]);
        }
    }
}

template <class Law, class TDst>
void decode(const T8u* pSrc, TDst* pDst, size_t n) {
    for (size_t i = 0; i < n; ++i) pDst[i] = static_cast<TDst>(Law::decode(pSrc[i]));
}

}  // namespace
}  // namespace veks

#define VEKS_COMPAND(name, TSrc, TDst, fn)                                        \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, TDst* pDst, int len) {           \
        if (const VekResult st = veks::checkPtrsLen(len, pSrc, pDst)) return st;  \
        fn(pSrc, pDst, static_cast<size_t>(len));                                 \
        return VEK_OK;                                                            \
    }

VEKS_COMPAND(veksLinToALaw_16s8u, T16s, T8u, (veks::encode<veks::ALaw, T16s>))
VEKS_COMPAND(veksLinToALaw_32f8u, T32f, T8u, (veks::encode<veks::ALaw, T32f>))
VEKS_COMPAND(veksALawToLin_8u16s, T8u, T16s, (veks::decode<veks::ALaw, T16s>))
VEKS_COMPAND(veksALawToLin_8u32f, T8u, T32f, (veks::decode<veks::ALaw, T32f>))
VEKS_COMPAND(veksLinToMuLaw_16s8u, T16s, T8u, (veks::encode<veks::MuLaw, T16s>))
VEKS_COMPAND(veksLinToMuLaw_32f8u, T32f, T8u, (veks::encode<veks::MuLaw, T32f>))
VEKS_COMPAND(veksMuLawToLin_8u16s, T8u, T16s, (veks::decode<veks::MuLaw, T16s>))
VEKS_COMPAND(veksMuLawToLin_8u32f, T8u, T32f, (veks::decode<veks::MuLaw, T32f>))

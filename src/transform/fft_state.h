// The FFT spec block: identifiers, the 88-byte header, the size rules and
// where each table sits. One home for the layout; the FFT spec and transform
// sources read it from here.
//
// A floating-point spec starts at the first 64-byte boundary of the caller's
// memory: the header, then at offset 128 the stage twiddles of the innermost
// ordinary order, the bit-reversal table at the next 64-byte boundary, for the
// two-level orders the half-circle table w_N^j (j < N/2), and for real specs
// the split-pass coefficients. Every table starts on a 64-byte boundary.
//
// The 32-bit integer and 16-bit specs wrap a floating-point spec of the same
// order and flag laid out 64 bytes behind their own short header.
#pragma once

#include <math.h>
#include <stddef.h>
#include <stdint.h>
#include <string.h>

#include "frame/detail/check.h"
#include "kernels/fft_kernel.h"
#include "veks.h"
#include "vekcore.h"

namespace veks {
namespace fftspec {

using fft::Cx;

enum : uint32_t {
    kIdC16sc = 1,
    kIdC16s = 2,
    kIdR16s = 3,
    kIdC32fc = 4,
    kIdC32f = 5,
    kIdR32f = 6,
    kIdC64fc = 7,
    kIdC64f = 8,
    kIdR64f = 9,
    kIdC32sc = 0x434D414C,
    kIdC32s = 0x434D414D,
    kIdR32s = 0x434D414E,
    kIdR16s32s = 0x434D414F
};

// Orders up to these use the dedicated short routines and hold no tables.
constexpr int kComplexFixedMax = 5;
constexpr int kRealFixedMax = 4;

// Per-precision constants.
template <class T>
struct Prec;
template <>
struct Prec<float> {
    static constexpr int64_t kCx = 8;     // bytes per complex value
    static constexpr int kLargeFrom = 18; // first two-level complex order
    static constexpr int kMaxComplex = 28;
    static constexpr int kMaxReal = 29;
    static constexpr size_t kBlock = 8;   // columns per block in the two-level passes (64 bytes)
};
template <>
struct Prec<double> {
    static constexpr int64_t kCx = 16;
    static constexpr int kLargeFrom = 17;
    static constexpr int kMaxComplex = 27;
    static constexpr int kMaxReal = 28;
    static constexpr size_t kBlock = 4;
};

// Split exponent of the two-level decomposition 2^k x 2^(order-k).
inline int splitExponent(int order) { return order <= 20 ? 4 : 8; }

// Real orders from this one keep the split coefficients as a coarse table of
// 2^(m-12) complex doubles times a fine table of 2,048 values (single
// precision only; double real specs always hold the full table).
constexpr int kRealTwoLevelFrom32f = 20;
constexpr size_t kFineCount = 2048;

inline int64_t align64(int64_t v) { return (v + 63) & ~int64_t(63); }
inline uint8_t* alignPtr64(uint8_t* p) {
    return reinterpret_cast<uint8_t*>((reinterpret_cast<uintptr_t>(p) + 63) & ~uintptr_t(63));
}

// ---- header ---------------------------------------------------------------

union Slot {
    const void* p;
    uint64_t pad;
};

template <class T>
struct HeadFields {
    int32_t id;
    int32_t order;
    int32_t fwdScale;  // 0 or 1
    int32_t invScale;  // 0 or 1
    T scale;           // 1/N or 1/sqrt(N); 0 when no direction scales
    int32_t hint;
    int32_t workSize;  // bytes, 0 when none is needed
    int32_t owned;     // 1 when InitAlloc obtained the block
};

template <class T>
struct FloatSpec {
    HeadFields<T> f;
    uint8_t reserved[56 - sizeof(HeadFields<T>)];
    Slot twiddle;
    Slot bitrev;
    Slot split;
    Slot split2;
};
static_assert(sizeof(FloatSpec<float>) == 88, "the header is 88 bytes");
static_assert(sizeof(FloatSpec<double>) == 88, "the header is 88 bytes");

// Header of the wrapping specs (integer kinds).
struct WrapSpec {
    int32_t id;
    int32_t order;
    int32_t hint;
    int32_t workSize;
    int32_t owned;
    int32_t pad;
    Slot inner;
};
constexpr int64_t kWrapHeader = 64;

// ---- sizes ----------------------------------------------------------------

struct Sizes {
    int64_t spec, init, work;
};

template <class T>
inline int64_t quarterBytes(int64_t N) {
    return sizeof(T) == 4 ? ((N + 67) & ~int64_t(63)) : ((2 * N + 71) & ~int64_t(63));
}
template <class T>
inline int64_t twiddleTerm(int64_t N) {
    return sizeof(T) == 4 ? ((8 * N + 71) & ~int64_t(63)) : ((16 * N + 79) & ~int64_t(63));
}
inline int64_t bitrevTerm(int64_t N) { return (N + 67) & ~int64_t(63); }

// Work of a two-level transform: a block of gathered rows, the row
// transform's own work, and two column blocks.
template <class T>
int64_t largeWorkBytes(int order, int64_t innerWork) {
    const int k = splitExponent(order);
    const int64_t N1 = int64_t(1) << k, N2 = int64_t(1) << (order - k);
    const int64_t B = static_cast<int64_t>(Prec<T>::kBlock);
    return align64(B * N2 * Prec<T>::kCx) + align64(innerWork) + align64(2 * N1 * B * Prec<T>::kCx) + 64;
}

template <class T>
Sizes complexSizes(int order) {
    const int64_t N = int64_t(1) << order;
    if (order <= kComplexFixedMax) return {152, 0, 0};
    if (order < Prec<T>::kLargeFrom) {
        return {twiddleTerm<T>(N) + bitrevTerm(N) + 192, order >= 11 ? quarterBytes<T>(N) + 64 : 0,
                align64(Prec<T>::kCx * N) + 64};
    }
    const int k = splitExponent(order);
    const Sizes in = complexSizes<T>(order - k);
    Sizes s;
    s.spec = in.spec + (Prec<T>::kCx / 2) * N + (order >= 19 ? (int64_t(4) << (order - 12)) + 4160 : 0);
    s.init = quarterBytes<T>(N) + 64 + in.init;
    const int w = order <= 20 ? 10 : 14;
    int64_t work = largeWorkBytes<T>(order, in.work);
    if (work < (int64_t(8) << w)) work = int64_t(8) << w;
    if (order >= 19 && work < 65536) work = 65536;
    s.work = work;
    return s;
}

template <class T>
inline int64_t realSplitBytes(int m) {
    const int64_t N = int64_t(1) << m;
    if (sizeof(T) == 4 && m >= kRealTwoLevelFrom32f) return ((int64_t(16) << (m - 12)) + 16510) & ~int64_t(127);
    return sizeof(T) == 4 ? ((4 * (N & ~int64_t(3)) + 126) & ~int64_t(127)) : ((8 * N + 126) & ~int64_t(127));
}

template <class T>
Sizes realSizes(int m) {
    const int64_t N = int64_t(1) << m;
    if (m <= kRealFixedMax) return {152, 0, 0};
    const int64_t init = m >= 11 ? quarterBytes<T>(N) + 64 : 0;
    if (m <= 6) return {realSplitBytes<T>(m) + 192, init, 0};
    const Sizes c = complexSizes<T>(m - 1);
    if (sizeof(T) == 4 && m >= kRealTwoLevelFrom32f) return {c.spec + realSplitBytes<T>(m) + 192, init, c.work};
    return {c.spec - 192 + realSplitBytes<T>(m) + 192, init, c.work};
}

// ---- layout ---------------------------------------------------------------

// The innermost ordinary order whose stage tables a transform walks.
template <class T>
inline int innermostOrder(int order) {
    while (order >= Prec<T>::kLargeFrom) order -= splitExponent(order);
    return order;
}

struct Layout {
    int64_t tw = 0, br = 0, half = 0, split = 0, split2 = 0, end = 0;
};

// Offsets from the aligned base. Complex orders above the fixed ones only.
template <class T>
Layout complexLayout(int order) {
    Layout L;
    const int inner = innermostOrder<T>(order);
    L.tw = 128;
    L.br = align64(L.tw + Prec<T>::kCx * static_cast<int64_t>(fft::stageTwiddleCount(inner)));
    L.end = L.br + 4 * ((int64_t(1) << inner) / 4 + 1);
    if (order >= Prec<T>::kLargeFrom) {
        L.half = align64(L.end);
        L.end = L.half + Prec<T>::kCx * ((int64_t(1) << order) / 2);
    }
    return L;
}

template <class T>
Layout realLayout(int m) {
    Layout L;
    if (m >= 7) L = complexLayout<T>(m - 1);
    else L.end = 128;
    const int64_t N = int64_t(1) << m;
    L.split = align64(L.end);
    if (sizeof(T) == 4 && m >= kRealTwoLevelFrom32f) {
        // coarse complex doubles first, then the fine single-precision table
        L.split2 = L.split;
        L.split = align64(L.split2 + 16 * (int64_t(1) << (m - 12)));
        L.end = L.split + 8 * static_cast<int64_t>(kFineCount);
    } else {
        L.split2 = L.split + Prec<T>::kCx * (N / 4);
        L.end = L.split + Prec<T>::kCx * (N / 2);
    }
    return L;
}

// ---- what a transform reads ------------------------------------------------

template <class T>
struct View {
    int order;
    bool fwdScale, invScale;
    T scale;
    int32_t workSize;
    const Cx<T>* tw;     // stage twiddles of the innermost ordinary order
    const Cx<T>* half;   // w_N^j, j < N/2, two-level orders only
    const Cx<T>* A;      // split coefficients (real), or the fine table
    const Cx<double>* coarse;  // real two-level split coefficients
};

template <class T>
inline const FloatSpec<T>* head(const void* spec) {
    return static_cast<const FloatSpec<T>*>(spec);
}

// The fields both kinds of spec share; no tables yet.
template <class T>
View<T> headView(const FloatSpec<T>* h) {
    View<T> v{};
    v.order = h->f.order;
    v.fwdScale = h->f.fwdScale != 0;
    v.invScale = h->f.invScale != 0;
    v.scale = h->f.scale;
    v.workSize = h->f.workSize;
    return v;
}

// Reads a complex spec (order = the transform order).
template <class T>
View<T> complexView(const void* spec) {
    const FloatSpec<T>* h = head<T>(spec);
    View<T> v = headView(h);
    if (v.order > kComplexFixedMax) {
        v.tw = static_cast<const Cx<T>*>(h->twiddle.p);
        if (v.order >= Prec<T>::kLargeFrom) {
            const Layout L = complexLayout<T>(v.order);
            v.half = reinterpret_cast<const Cx<T>*>(static_cast<const uint8_t*>(spec) + L.half);
        }
    }
    return v;
}

// Reads a real spec; the tables are those of the half-length complex
// transform plus the split coefficients.
template <class T>
View<T> realView(const void* spec) {
    const FloatSpec<T>* h = head<T>(spec);
    View<T> v = headView(h);
    if (v.order > kRealFixedMax) {
        if (v.order >= 7) {
            v.tw = static_cast<const Cx<T>*>(h->twiddle.p);
            if (v.order - 1 >= Prec<T>::kLargeFrom) {
                const Layout L = realLayout<T>(v.order);
                v.half = reinterpret_cast<const Cx<T>*>(static_cast<const uint8_t*>(spec) + L.half);
            }
        }
        v.A = static_cast<const Cx<T>*>(h->split.p);
        if (sizeof(T) == 4 && v.order >= kRealTwoLevelFrom32f) v.coarse = static_cast<const Cx<double>*>(h->split2.p);
    }
    return v;
}

// ---- validation and life cycle ------------------------------------------------

inline bool validFlag(int flag) {
    return flag == VEK_FFT_SCALE_NONE || flag == VEK_FFT_SCALE_SQRT || flag == VEK_FFT_SCALE_FWD ||
           flag == VEK_FFT_SCALE_INV;
}

// The size query's checks: order (unsigned) above 30, the three pointers,
// the flag, the type's maximum order.
inline VekResult checkSizeQuery(int order, int flag, int maxOrder, const int* a, const int* b, const int* c) {
    if (static_cast<unsigned>(order) > 30u) return VEK_ERR_FFT_ORDER;
    if (anyNull(a, b, c)) return VEK_ERR_NULL_POINTER;
    if (!validFlag(flag)) return VEK_ERR_FFT_FLAG;
    if (order > maxOrder) return VEK_ERR_FFT_ORDER;
    return VEK_OK;
}

enum class Kind { Complex, Real };

// Sizes and maximum order of a floating kind.
template <class T>
Sizes floatSizes(Kind kind, int order) {
    return kind == Kind::Complex ? complexSizes<T>(order) : realSizes<T>(order);
}
template <class T>
int maxOrder(Kind kind) {
    return kind == Kind::Complex ? Prec<T>::kMaxComplex : Prec<T>::kMaxReal;
}

template <class T>
VekResult floatGetSize(Kind kind, int order, int flag, int* pSpecSize, int* pInitBufSize, int* pBufSize) {
    const VekResult r = checkSizeQuery(order, flag, maxOrder<T>(kind), pSpecSize, pInitBufSize, pBufSize);
    if (r != VEK_OK) return r;
    const Sizes s = floatSizes<T>(kind, order);
    *pSpecSize = static_cast<int>(s.spec);
    *pInitBufSize = static_cast<int>(s.init);
    *pBufSize = static_cast<int>(s.work);
    return VEK_OK;
}

template <class T>
VekResult floatInit(Kind kind, uint32_t id, void** ppSpec, int order, int flag, int hint, uint8_t* pSpecMem,
                    uint8_t* pInitBuf);

template <class T>
VekResult floatInitAlloc(Kind kind, uint32_t id, void** ppSpec, int order, int flag, int hint);

// Wrapping kinds (integer data through a floating spec of type TF).
template <class TF>
VekResult wrapGetSize(Kind kind, int order, int flag, int elemBytes, int* pSpecSize, int* pInitBufSize,
                      int* pBufSize);
template <class TF>
VekResult wrapInit(Kind kind, uint32_t id, uint32_t innerId, int elemBytes, void** ppSpec, int order, int flag,
                   int hint, uint8_t* pSpecMem, uint8_t* pInitBuf);
template <class TF>
VekResult wrapInitAlloc(Kind kind, uint32_t id, uint32_t innerId, int elemBytes, void** ppSpec, int order,
                        int flag, int hint);

// Free and GetBufSize: the identifier first, then the owned switch or the
// stored work size of the header type H.
inline int32_t ownedOf(const FloatSpec<float>* h) { return h->f.owned; }
inline int32_t ownedOf(const FloatSpec<double>* h) { return h->f.owned; }
inline int32_t ownedOf(const WrapSpec* h) { return h->owned; }
inline int32_t workOf(const FloatSpec<float>* h) { return h->f.workSize; }
inline int32_t workOf(const FloatSpec<double>* h) { return h->f.workSize; }
inline int32_t workOf(const WrapSpec* h) { return h->workSize; }

template <class H>
VekResult specFree(void* spec, uint32_t id) {
    if (spec == nullptr) return VEK_ERR_NULL_POINTER;
    if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
    if (ownedOf(static_cast<const H*>(spec))) vekFree(spec);
    return VEK_OK;
}

// The stored work size plus the 64 bytes that let a transform align the
// caller's buffer; 0 when no work is needed.
template <class H>
VekResult specGetBufSize(const void* spec, uint32_t id, int* pBufSize) {
    if (anyNull(spec, pBufSize)) return VEK_ERR_NULL_POINTER;
    if (checkBlockId(spec, id) != VEK_OK) return VEK_ERR_CONTEXT_MISMATCH;
    const int32_t w = workOf(static_cast<const H*>(spec));
    *pBufSize = w >= 1 ? w + 64 : 0;
    return VEK_OK;
}

inline const void* wrapInner(const void* spec) { return static_cast<const WrapSpec*>(spec)->inner.p; }

}  // namespace fftspec
}  // namespace veks

// Operations on packed real spectra: products of two Pack or Perm spectra
// (optionally with the destination conjugated), and the expansion of a
// Pack, Perm or CCS spectrum into the full conjugate-symmetric one.
#include "frame/detail/check.h"
#include "frame/detail/export.h"
#include "frame/detail/scale.h"
#include "frame/detail/traits.h"

namespace veks {
namespace packed {
namespace {

enum class Form { Pack, Perm };

// Where the lone real values and the first (re, im) pair of a packed
// spectrum of `len` values sit.
struct Shape {
    size_t firstPair;  // index of the first Rk of the pairs
    size_t pairsEnd;   // the pairs fill [firstPair, pairsEnd)
    bool secondReal;   // a second lone real value (R(N/2)), even lengths
    size_t secondAt;
};
inline Shape shapeOf(Form f, size_t len) {
    const bool even = len % 2 == 0;
    if (f == Form::Perm && even) return {2, len, len >= 2, 1};
    if (f == Form::Pack && even) return {1, len - 1, len >= 2, len - 1};
    return {1, len, false, 0};
}

// Floating products: the lone reals multiply as reals, each (Rk, Ik) pair
// as a complex number; with Conj the destination's own pair is conjugated
// (source x conj(destination)).
template <class T, bool Conj>
void mulFloat(Form f, const T* a, const T* b, T* d, size_t len) {
    const Shape s = shapeOf(f, len);
    d[0] = a[0] * b[0];
    if (s.secondReal) d[s.secondAt] = a[s.secondAt] * b[s.secondAt];
    for (size_t i = s.firstPair; i + 1 < s.pairsEnd; i += 2) {
        const T ar = a[i], ai = a[i + 1], br = b[i], bi = Conj ? -b[i + 1] : b[i + 1];
        d[i] = ar * br - ai * bi;
        d[i + 1] = ar * bi + ai * br;
    }
}

// The 16-bit scale rule of the packed products: a positive factor shifts
// the 32-bit (or wider) product right arithmetically, a negative one first
// saturates it to 16 bits and shifts left; the result saturates.
inline T16s scaleProduct(int64_t p, int sf) {
    if (sf > 0) return saturate<T16s>(sf >= 63 ? (p < 0 ? -1 : 0) : p >> sf);
    if (sf < 0) {
        const int64_t q = saturate<T16s>(p);
        const int k = -sf > 32 ? 32 : -sf;
        return saturate<T16s>(q * (int64_t(1) << k));
    }
    return saturate<T16s>(p);
}

void mul16(Form f, const T16s* a, const T16s* b, T16s* d, size_t len, int sf) {
    const Shape s = shapeOf(f, len);
    d[0] = scaleProduct(int32_t(a[0]) * int32_t(b[0]), sf);
    if (s.secondReal) d[s.secondAt] = scaleProduct(int32_t(a[s.secondAt]) * int32_t(b[s.secondAt]), sf);
    for (size_t i = s.firstPair; i + 1 < s.pairsEnd; i += 2) {
        const int64_t ar = a[i], ai = a[i + 1], br = b[i], bi = b[i + 1];
        const int64_t re = ar * br - ai * bi, im = ar * bi + ai * br;
        d[i] = scaleProduct(re, sf);
        d[i + 1] = scaleProduct(im, sf);
    }
}

template <class T>
VekResult mulFloatI(Form f, const T* pSrc, T* pSrcDst, int len) {
    const VekResult r = checkPtrsLen(len, pSrc, pSrcDst);
    if (r != VEK_OK) return r;
    mulFloat<T, false>(f, pSrc, pSrcDst, pSrcDst, static_cast<size_t>(len));
    return VEK_OK;
}

// The out-of-place product runs the in-place one when the destination is
// one of the sources, before any check.
template <class T>
VekResult mulFloatOut(Form f, const T* pSrc1, const T* pSrc2, T* pDst, int len) {
    if (pSrc2 == pDst) return mulFloatI<T>(f, pSrc1, pDst, len);
    if (pSrc1 == pDst) return mulFloatI<T>(f, pSrc2, pDst, len);
    const VekResult r = checkPtrsLen(len, pSrc1, pSrc2, pDst);
    if (r != VEK_OK) return r;
    mulFloat<T, false>(f, pSrc1, pSrc2, pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class T>
VekResult mulConjI(const T* pSrc, T* pSrcDst, int len) {
    const VekResult r = checkPtrsLen(len, pSrc, pSrcDst);
    if (r != VEK_OK) return r;
    mulFloat<T, true>(Form::Pack, pSrc, pSrcDst, pSrcDst, static_cast<size_t>(len));
    return VEK_OK;
}

VekResult mul16I(Form f, const T16s* pSrc, T16s* pSrcDst, int len, int sf) {
    const VekResult r = checkPtrsLen(len, pSrc, pSrcDst);
    if (r != VEK_OK) return r;
    mul16(f, pSrc, pSrcDst, pSrcDst, static_cast<size_t>(len), sf);
    return VEK_OK;
}

VekResult mul16Out(Form f, const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int sf) {
    if (pSrc2 == pDst) return mul16I(f, pSrc1, pDst, len, sf);
    if (pSrc1 == pDst) return mul16I(f, pSrc2, pDst, len, sf);
    const VekResult r = checkPtrsLen(len, pSrc1, pSrc2, pDst);
    if (r != VEK_OK) return r;
    mul16(f, pSrc1, pSrc2, pDst, static_cast<size_t>(len), sf);
    return VEK_OK;
}

// ---- expansion to the full spectrum -------------------------------------------

template <class B>
inline B negate(B v) {
    if constexpr (std::is_integral<B>::value)
        return saturate<B>(-static_cast<int64_t>(v));  // -(-32768) saturates
    else
        return -v;
}

enum class Packed { Pack, Perm, CCS };

// dst[k] from the packed values p (which may lie inside dst's own memory):
// first the values whose sources would be overwritten last, walking k down,
// then the mirrored half, then element 0.
template <class B, class C>
void expand(Packed form, const B* p, C* dst, size_t N) {
    const bool even = N % 2 == 0;
    const size_t half = (N - 1) / 2;  // pairs k = 1..half
    B r0, nyq = 0;
    if (form == Packed::CCS) {
        const C* c = reinterpret_cast<const C*>(p);
        r0 = c[0].re;
        const B i0 = c[0].im;
        if (even) nyq = c[N / 2].re;
        const B inyq = even ? c[N / 2].im : B(0);
        for (size_t k = half; k >= 1; --k) {
            const C v = c[k];
            dst[k] = v;
            dst[N - k] = {v.re, negate(v.im)};
        }
        if (even && N >= 2) dst[N / 2] = {nyq, inyq};
        dst[0] = {r0, i0};
        return;
    }
    r0 = p[0];
    const size_t pairAt = (form == Packed::Perm && even) ? 2 : 1;
    if (even) nyq = form == Packed::Perm ? p[1] : p[N - 1];
    if (even) dst[N / 2] = {nyq, B(0)};
    for (size_t k = half; k >= 1; --k) {
        const B re = p[pairAt + 2 * (k - 1)], im = p[pairAt + 2 * (k - 1) + 1];
        dst[N - k] = {re, negate(im)};
        dst[k] = {re, im};
    }
    dst[0] = {r0, B(0)};
}

template <class B, class C>
VekResult conjOut(Packed form, const void* pSrc, C* pDst, int len) {
    const VekResult r = checkPtrsLen(len, pSrc, pDst);
    if (r != VEK_OK) return r;
    expand<B, C>(form, static_cast<const B*>(pSrc), pDst, static_cast<size_t>(len));
    return VEK_OK;
}

template <class B, class C>
VekResult conjI(Packed form, C* pSrcDst, int len) {
    const VekResult r = checkPtrsLen(len, pSrcDst);
    if (r != VEK_OK) return r;
    expand<B, C>(form, reinterpret_cast<const B*>(pSrcDst), pSrcDst, static_cast<size_t>(len));
    return VEK_OK;
}

// The expansion with source equal to destination runs the in-place form.
template <class B, class C>
VekResult conjDispatch(Packed form, const void* pSrc, C* pDst, int len) {
    if (pSrc == static_cast<const void*>(pDst)) return conjI<B, C>(form, pDst, len);
    return conjOut<B, C>(form, pSrc, pDst, len);
}

}  // namespace
}  // namespace packed
}  // namespace veks

namespace pk = veks::packed;
using pk::Form;
using pk::Packed;

#define VEKS_MUL_PACKED(name, T, form)                                                     \
    VEKS_EXPORT VekResult name(const T* pSrc1, const T* pSrc2, T* pDst, int len) {         \
        return pk::mulFloatOut<T>(Form::form, pSrc1, pSrc2, pDst, len);                    \
    }
#define VEKS_MUL_PACKED_I(name, T, form) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len) { return pk::mulFloatI<T>(Form::form, pSrc, pSrcDst, len); }
#define VEKS_MUL_PACKED_CONJ_I(name, T) \
    VEKS_EXPORT VekResult name(const T* pSrc, T* pSrcDst, int len) { return pk::mulConjI<T>(pSrc, pSrcDst, len); }
#define VEKS_MUL_PACKED_SFS(name, form)                                                                   \
    VEKS_EXPORT VekResult name(const T16s* pSrc1, const T16s* pSrc2, T16s* pDst, int len, int scaleFactor) { \
        return pk::mul16Out(Form::form, pSrc1, pSrc2, pDst, len, scaleFactor);                            \
    }
#define VEKS_MUL_PACKED_ISFS(name, form)                                                  \
    VEKS_EXPORT VekResult name(const T16s* pSrc, T16s* pSrcDst, int len, int scaleFactor) { \
        return pk::mul16I(Form::form, pSrc, pSrcDst, len, scaleFactor);                   \
    }
#define VEKS_CONJ_PACKED(name, TSrc, C, form)                                  \
    VEKS_EXPORT VekResult name(const TSrc* pSrc, C* pDst, int len) {           \
        return pk::conjDispatch<veks::Base<C>, C>(Packed::form, pSrc, pDst, len); \
    }
#define VEKS_CONJ_PACKED_I(name, C, form) \
    VEKS_EXPORT VekResult name(C* pSrcDst, int len) { return pk::conjI<veks::Base<C>, C>(Packed::form, pSrcDst, len); }

VEKS_MUL_PACKED_ISFS(veksMulPack_16s_ISfs, Pack)
VEKS_MUL_PACKED_SFS(veksMulPack_16s_Sfs, Pack)
VEKS_MUL_PACKED(veksMulPack_32f, T32f, Pack)
VEKS_MUL_PACKED_I(veksMulPack_32f_I, T32f, Pack)
VEKS_MUL_PACKED(veksMulPack_64f, T64f, Pack)
VEKS_MUL_PACKED_I(veksMulPack_64f_I, T64f, Pack)
VEKS_MUL_PACKED_ISFS(veksMulPerm_16s_ISfs, Perm)
VEKS_MUL_PACKED_SFS(veksMulPerm_16s_Sfs, Perm)
VEKS_MUL_PACKED(veksMulPerm_32f, T32f, Perm)
VEKS_MUL_PACKED_I(veksMulPerm_32f_I, T32f, Perm)
VEKS_MUL_PACKED(veksMulPerm_64f, T64f, Perm)
VEKS_MUL_PACKED_I(veksMulPerm_64f_I, T64f, Perm)
VEKS_MUL_PACKED_CONJ_I(veksMulPackConj_32f_I, T32f)
VEKS_MUL_PACKED_CONJ_I(veksMulPackConj_64f_I, T64f)

VEKS_CONJ_PACKED(veksConjPack_16sc, T16s, T16sc, Pack)
VEKS_CONJ_PACKED_I(veksConjPack_16sc_I, T16sc, Pack)
VEKS_CONJ_PACKED(veksConjPack_32fc, T32f, T32fc, Pack)
VEKS_CONJ_PACKED_I(veksConjPack_32fc_I, T32fc, Pack)
VEKS_CONJ_PACKED(veksConjPack_64fc, T64f, T64fc, Pack)
VEKS_CONJ_PACKED_I(veksConjPack_64fc_I, T64fc, Pack)
VEKS_CONJ_PACKED(veksConjPerm_16sc, T16s, T16sc, Perm)
VEKS_CONJ_PACKED_I(veksConjPerm_16sc_I, T16sc, Perm)
VEKS_CONJ_PACKED(veksConjPerm_32fc, T32f, T32fc, Perm)
VEKS_CONJ_PACKED_I(veksConjPerm_32fc_I, T32fc, Perm)
VEKS_CONJ_PACKED(veksConjPerm_64fc, T64f, T64fc, Perm)
VEKS_CONJ_PACKED_I(veksConjPerm_64fc_I, T64fc, Perm)
VEKS_CONJ_PACKED(veksConjCcs_16sc, T16sc, T16sc, CCS)
VEKS_CONJ_PACKED_I(veksConjCcs_16sc_I, T16sc, CCS)
VEKS_CONJ_PACKED(veksConjCcs_32fc, T32fc, T32fc, CCS)
VEKS_CONJ_PACKED_I(veksConjCcs_32fc_I, T32fc, CCS)
VEKS_CONJ_PACKED(veksConjCcs_64fc, T64fc, T64fc, CCS)
VEKS_CONJ_PACKED_I(veksConjCcs_64fc_I, T64fc, CCS)

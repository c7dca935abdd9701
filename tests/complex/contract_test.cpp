// The contract of every export of this folder, generated per argument
// shape: a null required pointer gives VEK_ERR_NULL_POINTER before a length
// below 1 gives VEK_ERR_SIZE, and an error writes nothing anywhere.
#include <functional>

#include "support/support.h"

namespace {

// An export called with up to four buffers (any of which may be null) and a
// length; extra arguments fixed to valid values.
struct Row {
    const char* name;
    int pointers;  // how many of the buffers are required pointers
    std::function<VekResult(void* const*, int)> call;
    unsigned quietWhenNull = ~0u;  // pointers whose absence must leave every buffer untouched
    int checkedLate = -1;          // a pointer checked only after the length
};

// CartToPolar: the phase destination belongs to the second step, which
// reports only when the magnitude step (pointers, then length) passed.
Row cartToPolar(Row r, unsigned quietMask) {
    r.quietWhenNull = quietMask;
    r.checkedLate = r.pointers - 1;
    return r;
}

VekResult cartToPolar16(const T16sc* pSrc, T16s* pMagn, T16s* pPhase, int len) {
    return veksCartToPolar_16sc_Sfs(pSrc, pMagn, pPhase, len, 1, -12);
}

template <class A, class B>
Row src1dst1(const char* name, VekResult (*f)(const A*, B*, int)) {
    return {name, 2, [f](void* const* p, int len) { return f(static_cast<const A*>(p[0]), static_cast<B*>(p[1]), len); }};
}
template <class A>
Row inPlace(const char* name, VekResult (*f)(A*, int)) {
    return {name, 1, [f](void* const* p, int len) { return f(static_cast<A*>(p[0]), len); }};
}
template <class A, class B>
Row src1dst1Sfs(const char* name, VekResult (*f)(const A*, B*, int, int)) {
    return {name, 2,
            [f](void* const* p, int len) { return f(static_cast<const A*>(p[0]), static_cast<B*>(p[1]), len, 1); }};
}
template <class A, class B>
Row src2dst1(const char* name, VekResult (*f)(const A*, const A*, B*, int)) {
    return {name, 3, [f](void* const* p, int len) {
                return f(static_cast<const A*>(p[0]), static_cast<const A*>(p[1]), static_cast<B*>(p[2]), len);
            }};
}
template <class A, class B>
Row src2dst1Sfs(const char* name, VekResult (*f)(const A*, const A*, B*, int, int)) {
    return {name, 3, [f](void* const* p, int len) {
                return f(static_cast<const A*>(p[0]), static_cast<const A*>(p[1]), static_cast<B*>(p[2]), len, -2);
            }};
}
template <class A, class B>
Row src1dst2(const char* name, VekResult (*f)(const A*, B*, B*, int)) {
    return {name, 3, [f](void* const* p, int len) {
                return f(static_cast<const A*>(p[0]), static_cast<B*>(p[1]), static_cast<B*>(p[2]), len);
            }};
}
template <class A, class B>
Row src2dst2(const char* name, VekResult (*f)(const A*, const A*, B*, B*, int)) {
    return {name, 4, [f](void* const* p, int len) {
                return f(static_cast<const A*>(p[0]), static_cast<const A*>(p[1]), static_cast<B*>(p[2]),
                         static_cast<B*>(p[3]), len);
            }};
}
template <class T>
Row preemph(const char* name, VekResult (*f)(const T*, T*, int, T32f, T*)) {
    // pMem may be null and is not part of the checks.
    return {name, 2, [f](void* const* p, int len) {
                static T mem;
                return f(static_cast<const T*>(p[0]), static_cast<T*>(p[1]), len, 0.5f, &mem);
            }};
}
template <class T>
Row preemphI(const char* name, VekResult (*f)(T*, int, T32f, T*)) {
    return {name, 1, [f](void* const* p, int len) {
                static T mem;
                return f(static_cast<T*>(p[0]), len, 0.5f, &mem);
            }};
}

const std::vector<Row>& rows() {
    static const std::vector<Row> r = {
        src1dst1("veksConj_16sc", veksConj_16sc), inPlace("veksConj_16sc_I", veksConj_16sc_I),
        src1dst1("veksConj_32fc", veksConj_32fc), inPlace("veksConj_32fc_I", veksConj_32fc_I),
        src1dst1("veksConj_64fc", veksConj_64fc), inPlace("veksConj_64fc_I", veksConj_64fc_I),
        src1dst1("veksConjFlip_16sc", veksConjFlip_16sc), src1dst1("veksConjFlip_32fc", veksConjFlip_32fc),
        src1dst1("veksConjFlip_64fc", veksConjFlip_64fc), src1dst1("veksReal_16sc", veksReal_16sc),
        src1dst1("veksReal_32fc", veksReal_32fc), src1dst1("veksReal_64fc", veksReal_64fc),
        src1dst1("veksImag_16sc", veksImag_16sc), src1dst1("veksImag_32fc", veksImag_32fc),
        src1dst1("veksImag_64fc", veksImag_64fc), src1dst2("veksCplxToReal_16sc", veksCplxToReal_16sc),
        src1dst2("veksCplxToReal_32fc", veksCplxToReal_32fc), src1dst2("veksCplxToReal_64fc", veksCplxToReal_64fc),
        src2dst1("veksMagnitude_16s32f", veksMagnitude_16s32f),
        src2dst1Sfs("veksMagnitude_16s_Sfs", veksMagnitude_16s_Sfs),
        src1dst1("veksMagnitude_16sc32f", veksMagnitude_16sc32f),
        src1dst1Sfs("veksMagnitude_16sc_Sfs", veksMagnitude_16sc_Sfs),
        src2dst1("veksMagnitude_32f", veksMagnitude_32f), src1dst1("veksMagnitude_32fc", veksMagnitude_32fc),
        src1dst1Sfs("veksMagnitude_32sc_Sfs", veksMagnitude_32sc_Sfs),
        src2dst1("veksMagnitude_64f", veksMagnitude_64f), src1dst1("veksMagnitude_64fc", veksMagnitude_64fc),
        src1dst1("veksMagSquared_32fc64f", veksMagSquared_32fc64f),
        src1dst1Sfs("veksMagSquared_32sc32s_Sfs", veksMagSquared_32sc32s_Sfs),
        src2dst1("veksPhase_16s32f", veksPhase_16s32f), src2dst1Sfs("veksPhase_16s_Sfs", veksPhase_16s_Sfs),
        src1dst1("veksPhase_16sc32f", veksPhase_16sc32f), src1dst1Sfs("veksPhase_16sc_Sfs", veksPhase_16sc_Sfs),
        src2dst1("veksPhase_32f", veksPhase_32f), src1dst1("veksPhase_32fc", veksPhase_32fc),
        src1dst1Sfs("veksPhase_32sc_Sfs", veksPhase_32sc_Sfs), src2dst1("veksPhase_64f", veksPhase_64f),
        src1dst1("veksPhase_64fc", veksPhase_64fc), src2dst1("veksPowerSpectr_16s32f", veksPowerSpectr_16s32f),
        src2dst1Sfs("veksPowerSpectr_16s_Sfs", veksPowerSpectr_16s_Sfs),
        src1dst1("veksPowerSpectr_16sc32f", veksPowerSpectr_16sc32f),
        src1dst1Sfs("veksPowerSpectr_16sc_Sfs", veksPowerSpectr_16sc_Sfs),
        src2dst1("veksPowerSpectr_32f", veksPowerSpectr_32f), src1dst1("veksPowerSpectr_32fc", veksPowerSpectr_32fc),
        src2dst1("veksPowerSpectr_64f", veksPowerSpectr_64f), src1dst1("veksPowerSpectr_64fc", veksPowerSpectr_64fc),
        src2dst1("veksPolarToCart_32fc", veksPolarToCart_32fc), src2dst1("veksPolarToCart_32sc", veksPolarToCart_32sc),
        src2dst1("veksPolarToCart_64fc", veksPolarToCart_64fc), src2dst2("veksPolarToCart_32f", veksPolarToCart_32f),
        src2dst2("veksPolarToCart_64f", veksPolarToCart_64f),
        {"veksPolarToCart_16sc", 3,
         [](void* const* p, int len) {
             return veksPolarToCart_16sc(static_cast<const T16s*>(p[0]), static_cast<const T16s*>(p[1]), 4,
                                         static_cast<T16sc*>(p[2]), len);
         }},
        {"veksPolarToCart_16sc_Sfs", 3,
         [](void* const* p, int len) {
             return veksPolarToCart_16sc_Sfs(static_cast<const T16s*>(p[0]), static_cast<const T16s*>(p[1]),
                                             static_cast<T16sc*>(p[2]), len, 0, -12);
         }},
        src1dst1("veksFlip_8u", veksFlip_8u), inPlace("veksFlip_8u_I", veksFlip_8u_I),
        src1dst1("veksFlip_16u", veksFlip_16u), inPlace("veksFlip_16u_I", veksFlip_16u_I),
        src1dst1("veksFlip_32f", veksFlip_32f), inPlace("veksFlip_32f_I", veksFlip_32f_I),
        src1dst1("veksFlip_64f", veksFlip_64f), inPlace("veksFlip_64f_I", veksFlip_64f_I),
        src1dst1("veksFlip_32fc", veksFlip_32fc), inPlace("veksFlip_32fc_I", veksFlip_32fc_I),
        src1dst1("veksFlip_64fc", veksFlip_64fc), inPlace("veksFlip_64fc_I", veksFlip_64fc_I),
        preemph("veksPreemphasize_32f", veksPreemphasize_32f),
        preemphI("veksPreemphasize_32f_I", veksPreemphasize_32f_I),
        preemph("veksPreemphasize_16s", veksPreemphasize_16s),
        preemphI("veksPreemphasize_16s_I", veksPreemphasize_16s_I),
        // CartToPolar runs its phase step after the magnitude step (the
        // floating members also after a failed one), so only a missing
        // source, or a missing magnitude destination of the scaled member,
        // must leave everything untouched; TwoFailureBehaviours covers the rest.
        cartToPolar(src1dst2("veksCartToPolar_16sc_Sfs", cartToPolar16), 0x3),
        cartToPolar(src1dst2("veksCartToPolar_32fc", veksCartToPolar_32fc), 0x1),
        cartToPolar(src1dst2("veksCartToPolar_64fc", veksCartToPolar_64fc), 0x1),
        cartToPolar(src2dst2("veksCartToPolar_32f", veksCartToPolar_32f), 0x3),
        cartToPolar(src2dst2("veksCartToPolar_64f", veksCartToPolar_64f), 0x3),
    };
    return r;
}

TEST(Contract, CheckOrderAndNothingWritten) {
    // Every buffer holds 64 bytes: enough for 4 elements of any type here.
    for (const Row& row : rows()) {
        SCOPED_TRACE(row.name);
        for (int nulled = -1; nulled < row.pointers; ++nulled) {
            for (int len : {4, 0, -1}) {
                std::vector<vt::Guarded<unsigned char>> bufs;
                for (int i = 0; i < 4; ++i) bufs.emplace_back(std::vector<unsigned char>(64, 0x11), 16 * i);
                void* ptrs[4];
                for (int i = 0; i < 4; ++i) {
                    bufs[static_cast<size_t>(i)].freeze();
                    ptrs[i] = i == nulled ? nullptr : bufs[static_cast<size_t>(i)].data();
                }
                VekResult want = nulled >= 0 ? VEK_ERR_NULL_POINTER : len < 1 ? VEK_ERR_SIZE : VEK_OK;
                if (nulled >= 0 && nulled == row.checkedLate && len < 1) want = VEK_ERR_SIZE;
                ASSERT_EQ(row.call(ptrs, len), want) << "nulled=" << nulled << " len=" << len;
                if (want == VEK_OK) continue;
                if (nulled >= 0 && !((row.quietWhenNull >> nulled) & 1)) continue;
                for (auto& b : bufs) ASSERT_TRUE(b.intact()) << "written on error, nulled=" << nulled << " len=" << len;
            }
        }
    }
}

}  // namespace

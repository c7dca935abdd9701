// The contract of every export of this family (complex and polar data,
// Flip, Preemphasize, and the copies and fills of tests/init), generated per
// argument shape: a null required pointer gives VEK_ERR_NULL_POINTER before a length
// below 1 gives VEK_ERR_SIZE, and an error writes nothing anywhere.
#include <functional>

#include "support/support.h"

namespace {

// An export called with up to four buffers (any of which may be null) and a
// length; extra arguments fixed to valid values. The shape is picked by
// overload resolution on the export's own type.
struct Row {
    const char* name;
    int pointers;  // how many of the buffers are required pointers
    std::function<VekResult(void* const*, int)> call;
    unsigned quietWhenNull = ~0u;  // pointers whose absence must leave every buffer untouched
    int checkedLate = -1;          // a pointer checked only after the length
};
using P = void* const*;
template <class T>
T* at(P p, int i) { return static_cast<T*>(p[i]); }

template <class A>
Row row(const char* n, VekResult (*f)(A*, int)) { return {n, 1, [f](P p, int l) { return f(at<A>(p, 0), l); }}; }
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, B*, int)) {
    return {n, 2, [f](P p, int l) { return f(at<const A>(p, 0), at<B>(p, 1), l); }};
}
template <class T>
Row row(const char* n, VekResult (*f)(T, T*, int)) {
    return {n, 1, [f](P p, int l) { return f(T{}, at<T>(p, 0), l); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, int, B*, int, int)) {
    return {n, 2, [f](P p, int l) { return f(at<const A>(p, 0), 3, at<B>(p, 1), 9, l); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, B*, int, int)) {
    return {n, 2, [f](P p, int l) { return f(at<const A>(p, 0), at<B>(p, 1), l, 1); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, const A*, B*, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<const A>(p, 1), at<B>(p, 2), l); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, const A*, B*, int, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<const A>(p, 1), at<B>(p, 2), l, -2); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, const A*, int, B*, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<const A>(p, 1), 4, at<B>(p, 2), l); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, const A*, B*, int, int, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<const A>(p, 1), at<B>(p, 2), l, 0, -12); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, B*, B*, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<B>(p, 1), at<B>(p, 2), l); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, B*, B*, int, int, int)) {
    return {n, 3, [f](P p, int l) { return f(at<const A>(p, 0), at<B>(p, 1), at<B>(p, 2), l, 1, -12); }};
}
template <class A, class B>
Row row(const char* n, VekResult (*f)(const A*, const A*, B*, B*, int)) {
    return {n, 4, [f](P p, int l) { return f(at<const A>(p, 0), at<const A>(p, 1), at<B>(p, 2), at<B>(p, 3), l); }};
}
// Preemphasize: pMem may be null and is not part of the checks.
template <class T>
Row row(const char* n, VekResult (*f)(const T*, T*, int, T32f, T*)) {
    return {n, 2, [f](P p, int l) { T m{}; return f(at<const T>(p, 0), at<T>(p, 1), l, 0.5f, &m); }};
}
template <class T>
Row row(const char* n, VekResult (*f)(T*, int, T32f, T*)) {
    return {n, 1, [f](P p, int l) { T m{}; return f(at<T>(p, 0), l, 0.5f, &m); }};
}
// CartToPolar runs its phase step after the magnitude step (the floating
// members also after a failed one), so only a missing source, or a missing
// magnitude destination of the scaled member, must leave everything
// untouched; polar_test pins the rest.
Row late(Row r, unsigned quietMask) {
    r.quietWhenNull = quietMask;
    r.checkedLate = r.pointers - 1;
    return r;
}
#define ROW(f) row(#f, f)

const std::vector<Row> kRows = {
    ROW(veksConj_16sc), ROW(veksConj_16sc_I), ROW(veksConj_32fc), ROW(veksConj_32fc_I), ROW(veksConj_64fc),
    ROW(veksConj_64fc_I), ROW(veksConjFlip_16sc), ROW(veksConjFlip_32fc), ROW(veksConjFlip_64fc),
    ROW(veksReal_16sc), ROW(veksReal_32fc), ROW(veksReal_64fc), ROW(veksImag_16sc), ROW(veksImag_32fc),
    ROW(veksImag_64fc), ROW(veksCplxToReal_16sc), ROW(veksCplxToReal_32fc), ROW(veksCplxToReal_64fc),
    ROW(veksMagnitude_16s32f), ROW(veksMagnitude_16s_Sfs), ROW(veksMagnitude_16sc32f), ROW(veksMagnitude_16sc_Sfs),
    ROW(veksMagnitude_32f), ROW(veksMagnitude_32fc), ROW(veksMagnitude_32sc_Sfs), ROW(veksMagnitude_64f),
    ROW(veksMagnitude_64fc), ROW(veksMagSquared_32fc64f), ROW(veksMagSquared_32sc32s_Sfs), ROW(veksPhase_16s32f),
    ROW(veksPhase_16s_Sfs), ROW(veksPhase_16sc32f), ROW(veksPhase_16sc_Sfs), ROW(veksPhase_32f),
    ROW(veksPhase_32fc), ROW(veksPhase_32sc_Sfs), ROW(veksPhase_64f), ROW(veksPhase_64fc),
    ROW(veksPowerSpectr_16s32f), ROW(veksPowerSpectr_16s_Sfs), ROW(veksPowerSpectr_16sc32f),
    ROW(veksPowerSpectr_16sc_Sfs), ROW(veksPowerSpectr_32f), ROW(veksPowerSpectr_32fc), ROW(veksPowerSpectr_64f),
    ROW(veksPowerSpectr_64fc), ROW(veksPolarToCart_32fc), ROW(veksPolarToCart_32sc), ROW(veksPolarToCart_64fc),
    ROW(veksPolarToCart_32f), ROW(veksPolarToCart_64f), ROW(veksPolarToCart_16sc), ROW(veksPolarToCart_16sc_Sfs),
    ROW(veksFlip_8u), ROW(veksFlip_8u_I), ROW(veksFlip_16u), ROW(veksFlip_16u_I), ROW(veksFlip_32f),
    ROW(veksFlip_32f_I), ROW(veksFlip_64f), ROW(veksFlip_64f_I), ROW(veksFlip_32fc), ROW(veksFlip_32fc_I),
    ROW(veksFlip_64fc), ROW(veksFlip_64fc_I), ROW(veksPreemphasize_32f), ROW(veksPreemphasize_32f_I),
    ROW(veksPreemphasize_16s), ROW(veksPreemphasize_16s_I),
    ROW(veksCopy_8u), ROW(veksCopy_16s), ROW(veksCopy_16sc), ROW(veksCopy_32s), ROW(veksCopy_32f), ROW(veksCopy_32sc),
    ROW(veksCopy_32fc), ROW(veksCopy_64s), ROW(veksCopy_64f), ROW(veksCopy_64sc), ROW(veksCopy_64fc),
    ROW(veksMove_8u), ROW(veksMove_16s), ROW(veksMove_16sc), ROW(veksMove_32s), ROW(veksMove_32f), ROW(veksMove_32sc),
    ROW(veksMove_32fc), ROW(veksMove_64s), ROW(veksMove_64f), ROW(veksMove_64sc), ROW(veksMove_64fc),
    ROW(veksZero_8u), ROW(veksZero_16s), ROW(veksZero_16sc), ROW(veksZero_32s), ROW(veksZero_32f), ROW(veksZero_32sc),
    ROW(veksZero_32fc), ROW(veksZero_64s), ROW(veksZero_64f), ROW(veksZero_64sc), ROW(veksZero_64fc),
    ROW(veksSet_8u), ROW(veksSet_16s), ROW(veksSet_16sc), ROW(veksSet_32s), ROW(veksSet_32f), ROW(veksSet_32sc),
    ROW(veksSet_32fc), ROW(veksSet_64s), ROW(veksSet_64f), ROW(veksSet_64sc), ROW(veksSet_64fc),
    ROW(veksCopy_1u), ROW(veksCopyLE_1u), ROW(veksCopyBE_1u),
    late(ROW(veksCartToPolar_16sc_Sfs), 0x3), late(ROW(veksCartToPolar_32fc), 0x1),
    late(ROW(veksCartToPolar_64fc), 0x1), late(ROW(veksCartToPolar_32f), 0x3), late(ROW(veksCartToPolar_64f), 0x3),
};

TEST(Contract, CheckOrderAndNothingWritten) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        for (int nulled = -1; nulled < row.pointers; ++nulled) {
            for (int len : {4, 0, -1}) {
                // 64 bytes a buffer: 4 elements of any type here.
                std::vector<vt::Guarded<unsigned char>> bufs;
                bufs.reserve(4);
                void* ptrs[4];
                for (int i = 0; i < 4; ++i) {
                    bufs.emplace_back(std::vector<unsigned char>(64, 0x11), 16 * i);
                    bufs.back().freeze();
                    ptrs[i] = i == nulled ? nullptr : bufs.back().data();
                }
                VekResult want = nulled >= 0 ? VEK_ERR_NULL_POINTER : len < 1 ? VEK_ERR_SIZE : VEK_OK;
                if (nulled >= 0 && nulled == row.checkedLate && len < 1) want = VEK_ERR_SIZE;
                ASSERT_EQ(row.call(ptrs, len), want) << "nulled=" << nulled << " len=" << len;
                if (want == VEK_OK || (nulled >= 0 && !((row.quietWhenNull >> nulled) & 1))) continue;
                for (auto& b : bufs) ASSERT_TRUE(b.intact()) << "written on error, nulled=" << nulled << " len=" << len;
            }
        }
    }
}

}  // namespace

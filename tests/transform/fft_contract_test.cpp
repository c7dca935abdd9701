// The common frame of every transform, one table row per export: the FFT spec
// is checked first (null, then identifier), then the data pointers; a
// missing work buffer is allocated for the call and released, and when that
// allocation fails nothing is written.
#include <functional>

#include "support/core_spy.h"
#include "fft_harness.h"

namespace {

// A call of one export on raw memory: spec, source, destination, buffer.
using Call = std::function<VekResult(const void* spec, void* src, void* dst, T8u* buf)>;

struct Row {
    const char* name;
    Call call;
    VekResult (*alloc)(void**, int, int, int);  // its own spec kind
    VekResult (*allocOther)(void**, int, int, int);  // a spec of another kind
    VekResult (*bufSize)(const void*, int*);
    VekResult (*freeSpec)(void*);
};

template <class F>
auto asAlloc(F f) {
    return reinterpret_cast<VekResult (*)(void**, int, int, int)>(f);
}
template <class F>
auto asBuf(F f) {
    return reinterpret_cast<VekResult (*)(const void*, int*)>(f);
}
template <class F>
auto asFree(F f) {
    return reinterpret_cast<VekResult (*)(void*)>(f);
}

// Shapes: interleaved or real (src, dst, spec, buf); in place; split; with
// a scale factor.
template <class TS, class TD, class Spec>
Call oop(VekResult (*f)(const TS*, TD*, const Spec*, T8u*)) {
    return [f](const void* s, void* a, void* b, T8u* w) {
        return f(static_cast<const TS*>(a), static_cast<TD*>(b), static_cast<const Spec*>(s), w);
    };
}
template <class T, class Spec>
Call inpl(VekResult (*f)(T*, const Spec*, T8u*)) {
    return [f](const void* s, void*, void* b, T8u* w) { return f(static_cast<T*>(b), static_cast<const Spec*>(s), w); };
}
template <class T, class Spec>
Call split(VekResult (*f)(const T*, const T*, T*, T*, const Spec*, T8u*)) {
    return [f](const void* s, void* a, void* b, T8u* w) {
        T* d = static_cast<T*>(b);
        const T* x = static_cast<const T*>(a);
        return f(x, x ? x + 8192 : nullptr, d, d ? d + 8192 : nullptr, static_cast<const Spec*>(s), w);
    };
}
template <class TS, class TD, class Spec>
Call sfs(VekResult (*f)(const TS*, TD*, const Spec*, int, T8u*)) {
    return [f](const void* s, void* a, void* b, T8u* w) {
        return f(static_cast<const TS*>(a), static_cast<TD*>(b), static_cast<const Spec*>(s), 1, w);
    };
}
template <class T, class Spec>
Call isfs(VekResult (*f)(T*, const Spec*, int, T8u*)) {
    return [f](const void* s, void*, void* b, T8u* w) { return f(static_cast<T*>(b), static_cast<const Spec*>(s), 1, w); };
}
template <class T, class Spec>
Call splitSfs(VekResult (*f)(const T*, const T*, T*, T*, const Spec*, int, T8u*)) {
    return [f](const void* s, void* a, void* b, T8u* w) {
        T* d = static_cast<T*>(b);
        const T* x = static_cast<const T*>(a);
        return f(x, x ? x + 8192 : nullptr, d, d ? d + 8192 : nullptr, static_cast<const Spec*>(s), 1, w);
    };
}

#define KIND(k) asAlloc(veksFFTInitAlloc_##k)
#define BUF(k) asBuf(veksFFTGetBufSize_##k)
#define FREE(k) asFree(veksFFTFree_##k)

std::vector<Row> rows() {
    return {
        {"Fwd_CToC_32fc", oop(veksFFTFwd_CToC_32fc), KIND(C_32fc), KIND(C_32f), BUF(C_32fc), FREE(C_32fc)},
        {"Inv_CToC_32fc_I", inpl(veksFFTInv_CToC_32fc_I), KIND(C_32fc), KIND(R_32f), BUF(C_32fc), FREE(C_32fc)},
        {"Fwd_CToC_64fc", oop(veksFFTFwd_CToC_64fc), KIND(C_64fc), KIND(C_32fc), BUF(C_64fc), FREE(C_64fc)},
        {"Inv_CToC_64fc_I", inpl(veksFFTInv_CToC_64fc_I), KIND(C_64fc), KIND(C_64f), BUF(C_64fc), FREE(C_64fc)},
        {"Fwd_CToC_32f", split(veksFFTFwd_CToC_32f), KIND(C_32f), KIND(C_32fc), BUF(C_32f), FREE(C_32f)},
        {"Inv_CToC_64f", split(veksFFTInv_CToC_64f), KIND(C_64f), KIND(C_64fc), BUF(C_64f), FREE(C_64f)},
        {"Fwd_RToPerm_32f", oop(veksFFTFwd_RToPerm_32f), KIND(R_32f), KIND(C_32fc), BUF(R_32f), FREE(R_32f)},
        {"Inv_CCSToR_32f_I", inpl(veksFFTInv_CCSToR_32f_I), KIND(R_32f), KIND(R_64f), BUF(R_32f), FREE(R_32f)},
        {"Fwd_RToPack_64f", oop(veksFFTFwd_RToPack_64f), KIND(R_64f), KIND(R_32f), BUF(R_64f), FREE(R_64f)},
        {"Inv_PermToR_64f", oop(veksFFTInv_PermToR_64f), KIND(R_64f), KIND(C_64f), BUF(R_64f), FREE(R_64f)},
        {"Fwd_CToC_32sc_Sfs", sfs(veksFFTFwd_CToC_32sc_Sfs), KIND(C_32sc), KIND(C_32s), BUF(C_32sc), FREE(C_32sc)},
        {"Inv_CToC_16sc_ISfs", isfs(veksFFTInv_CToC_16sc_ISfs), KIND(C_16sc), KIND(C_32fc), BUF(C_16sc), FREE(C_16sc)},
        {"Fwd_CToC_32s_Sfs", splitSfs(veksFFTFwd_CToC_32s_Sfs), KIND(C_32s), KIND(C_32sc), BUF(C_32s), FREE(C_32s)},
        {"Inv_CToC_16s_Sfs", splitSfs(veksFFTInv_CToC_16s_Sfs), KIND(C_16s), KIND(R_16s), BUF(C_16s), FREE(C_16s)},
        {"Fwd_RToCCS_32s_Sfs", sfs(veksFFTFwd_RToCCS_32s_Sfs), KIND(R_32s), KIND(R_16s32s), BUF(R_32s), FREE(R_32s)},
        {"Inv_PackToR_16s_ISfs", isfs(veksFFTInv_PackToR_16s_ISfs), KIND(R_16s), KIND(R_32f), BUF(R_16s), FREE(R_16s)},
        {"Fwd_RToCCS_16s32s_Sfs", sfs(veksFFTFwd_RToCCS_16s32s_Sfs), KIND(R_16s32s), KIND(R_32s), BUF(R_16s32s),
         FREE(R_16s32s)},
        {"Inv_CCSToR_32s16s_Sfs", sfs(veksFFTInv_CCSToR_32s16s_Sfs), KIND(R_16s32s), KIND(R_64f), BUF(R_16s32s),
         FREE(R_16s32s)},
    };
}

// Big enough for every row at order 12 (split rows use two halves).
constexpr size_t kBytes = 16 * 8192 * 2;

TEST(FftContract, ChecksInOrderAndWritesNothingOnError) {
    for (const Row& r : rows()) {
        void* own = nullptr;
        void* other = nullptr;
        ASSERT_EQ(r.alloc(&own, 12, VEK_FFT_SCALE_FWD, 0), VEK_OK) << r.name;
        ASSERT_EQ(r.allocOther(&other, 12, VEK_FFT_SCALE_FWD, 0), VEK_OK) << r.name;
        vt::Guarded<uint8_t> src(kBytes), dst(kBytes);
        vt::Rng rng(11);
        for (size_t i = 0; i < kBytes; ++i) src[i] = dst[i] = static_cast<uint8_t>(rng.range(0, 255) & 0x3F);
        src.freeze();
        dst.freeze();
        EXPECT_EQ(r.call(nullptr, nullptr, nullptr, nullptr), VEK_ERR_NULL_POINTER) << r.name;
        EXPECT_EQ(r.call(other, nullptr, nullptr, nullptr), VEK_ERR_CONTEXT_MISMATCH) << r.name;
        EXPECT_EQ(r.call(own, src.data(), nullptr, nullptr), VEK_ERR_NULL_POINTER) << r.name;
        if (r.call(own, nullptr, dst.data(), nullptr) != VEK_OK) {  // in-place rows take no source
            EXPECT_EQ(r.call(own, nullptr, dst.data(), nullptr), VEK_ERR_NULL_POINTER) << r.name;
        }
        dst.freeze();
        EXPECT_TRUE(src.intact() && dst.intact()) << r.name;
        // the allocation of the missing buffer fails: nothing written
        CoreSpy::get().reset();
        CoreSpy::get().failNext = true;
        EXPECT_EQ(r.call(own, src.data(), dst.data(), nullptr), VEK_ERR_NO_MEMORY) << r.name;
        EXPECT_TRUE(src.intact() && dst.intact()) << r.name;
        // with no buffer the call allocates exactly the work size and frees it
        int bs = 0;
        ASSERT_EQ(r.bufSize(own, &bs), VEK_OK);
        CoreSpy::get().reset();
        EXPECT_EQ(r.call(own, src.data(), dst.data(), nullptr), VEK_OK) << r.name;
        ASSERT_EQ(CoreSpy::get().mallocSizes.size(), 1u) << r.name;
        EXPECT_EQ(CoreSpy::get().mallocSizes[0], static_cast<size_t>(bs - 64)) << r.name;
        EXPECT_EQ(CoreSpy::get().freed.size(), 1u) << r.name;
        // with a caller buffer nothing is allocated
        std::vector<uint8_t> buf(static_cast<size_t>(bs));
        CoreSpy::get().reset();
        EXPECT_EQ(r.call(own, src.data(), dst.data(), buf.data()), VEK_OK) << r.name;
        EXPECT_TRUE(CoreSpy::get().mallocSizes.empty()) << r.name;
        EXPECT_EQ(r.freeSpec(own), VEK_OK);
        veksFree(other);  // an InitAlloc block starts at the allocated address
    }
}

// Short orders use no buffer at all and ignore the argument.
TEST(FftContract, ShortOrdersIgnoreTheBuffer) {
    for (int order = 0; order <= 5; ++order) {
        FftSpec_C_32fc* spec = nullptr;
        ASSERT_EQ(veksFFTInitAlloc_C_32fc(&spec, order, VEK_FFT_SCALE_NONE, 0), VEK_OK);
        std::vector<T32fc> x(size_t(1) << order, T32fc{1, 2});
        CoreSpy::get().reset();
        EXPECT_EQ(veksFFTFwd_CToC_32fc_I(x.data(), spec, nullptr), VEK_OK);
        EXPECT_TRUE(CoreSpy::get().mallocSizes.empty());
        EXPECT_EQ(x[0].re, static_cast<float>(1 << order));
        EXPECT_EQ(veksFFTFree_C_32fc(spec), VEK_OK);
    }
}

}  // namespace

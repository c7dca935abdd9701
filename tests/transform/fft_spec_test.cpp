// FFT specs: size rules, validation order, the header, table placement,
// the bit-reversal table, ownership and the work-buffer size rule.
#include <stdint.h>

#include "support/core_spy.h"
#include "fft_harness.h"

namespace {

using GetSize = VekResult (*)(int, int, int, int*, int*, int*);

ref::Sizes query(GetSize g, int order, int flag = VEK_FFT_SCALE_NONE) {
    int s = -1, i = -1, w = -1;
    EXPECT_EQ(g(order, flag, 0, &s, &i, &w), VEK_OK) << order;
    return {s, i, w};
}

TEST(FftSpec, SizeFormulasOfTheOrdinaryOrders) {
    struct Row {
        GetSize g;
        ref::Sizes (*want)(int);
        int maxOrder;
    };
    const Row rows[] = {{veksFFTGetSize_C_32fc, ref::complex32f, 17}, {veksFFTGetSize_C_32f, ref::complex32f, 17},
                        {veksFFTGetSize_C_64fc, ref::complex64f, 16}, {veksFFTGetSize_C_64f, ref::complex64f, 16},
                        {veksFFTGetSize_R_32f, ref::real32f, 18}};
    for (size_t r = 0; r < 5; ++r) {
        for (int order = 0; order <= rows[r].maxOrder; ++order) {
            const ref::Sizes want = rows[r].want(order), got = query(rows[r].g, order, ft::kFlags[order % 4]);
            EXPECT_TRUE(got.spec == want.spec && got.init == want.init && got.work == want.work)
                << "row " << r << " order " << order << ": " << got.spec << " " << got.init << " " << got.work;
        }
    }
}

TEST(FftSpec, TwoLevelOrdersCarryTheirExtraTables) {
    for (int order = 18; order <= 28; ++order) {
        const int k = order <= 20 ? 4 : 8;
        const ref::Sizes s = query(veksFFTGetSize_C_32fc, order), in = query(veksFFTGetSize_C_32fc, order - k);
        const int64_t N = int64_t(1) << order;
        // the inner spec, N/2 complex twiddles, and from order 19 the extra term
        EXPECT_EQ(s.spec, in.spec + 4 * N + (order >= 19 ? (int64_t(4) << (order - 12)) + 4160 : 0)) << order;
        EXPECT_EQ(s.init, ((N + 67) & ~int64_t(63)) + 64 + in.init) << order;
        EXPECT_GE(s.work, int64_t(8) << (order <= 20 ? 10 : 14)) << order;
        if (order >= 19) {
            EXPECT_GE(s.work, 65536) << order;
        }
    }
    for (int m = 20; m <= 29; ++m) {
        const ref::Sizes r = query(veksFFTGetSize_R_32f, m), c = query(veksFFTGetSize_C_32fc, m - 1);
        EXPECT_EQ(r.spec, c.spec + ((((int64_t(16) << (m - 12)) + 16510)) & ~int64_t(127)) + 192) << m;
        EXPECT_EQ(r.work, c.work) << m;
    }
}

// The 32-bit integer kinds wrap a double spec: +128 spec bytes, +64 on a
// non-zero init size, +16N + 64 work bytes; C_32s and C_32sc are one function.
TEST(FftSpec, WrappedKindsAddTheirOwnShare) {
    struct Row {
        GetSize wrap, inner;
        int64_t perElement;
        int maxOrder;
    };
    const Row rows[] = {{veksFFTGetSize_C_32sc, veksFFTGetSize_C_64fc, 16, 26},
                        {veksFFTGetSize_C_32s, veksFFTGetSize_C_64f, 16, 26},
                        {veksFFTGetSize_R_32s, veksFFTGetSize_R_64f, 16, 26},
                        {veksFFTGetSize_R_16s32s, veksFFTGetSize_R_64f, 16, 26},
                        {veksFFTGetSize_C_16sc, veksFFTGetSize_C_32fc, 8, 27},
                        {veksFFTGetSize_C_16s, veksFFTGetSize_C_32f, 8, 27},
                        {veksFFTGetSize_R_16s, veksFFTGetSize_R_32f, 8, 27}};
    for (const Row& r : rows) {
        for (int order = 0; order <= r.maxOrder; order += 1) {
            const ref::Sizes w = query(r.wrap, order), in = query(r.inner, order);
            EXPECT_EQ(w.spec, in.spec + 128) << order;
            EXPECT_EQ(w.init, in.init ? in.init + 64 : 0) << order;
            EXPECT_EQ(w.work, in.work + r.perElement * (int64_t(1) << order) + 64) << order;
        }
    }
    EXPECT_EQ(reinterpret_cast<void*>(veksFFTGetSize_C_32s), reinterpret_cast<void*>(veksFFTGetSize_C_32sc));
}

// Validation of the size query: order (unsigned) above 30, then the
// pointers, then the flag, then the type's maximum.
TEST(FftSpec, SizeQueryChecksInOrder) {
    struct Case {
        GetSize fn;
        int order, flag;
        bool nullPtr;
        VekResult want;
    };
    const Case cases[] = {
        {veksFFTGetSize_C_32fc, -1, 3, true, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_32fc, 31, 8, false, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_32fc, 29, 3, true, VEK_ERR_NULL_POINTER},
        {veksFFTGetSize_C_32fc, 29, 3, false, VEK_ERR_FFT_FLAG},
        {veksFFTGetSize_C_32fc, 29, 8, false, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_32fc, 28, 8, false, VEK_OK},
        {veksFFTGetSize_C_32fc, 0, 0, false, VEK_ERR_FFT_FLAG},
        {veksFFTGetSize_R_32f, 29, 4, false, VEK_OK},
        {veksFFTGetSize_R_32f, 30, 4, false, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_64fc, 28, 1, false, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_64fc, 27, 2, false, VEK_OK},
        {veksFFTGetSize_C_32sc, -5, 3, true, VEK_ERR_FFT_ORDER},
        {veksFFTGetSize_C_32sc, 5, 3, true, VEK_ERR_NULL_POINTER},
        {veksFFTGetSize_R_16s, 6, 16, false, VEK_ERR_FFT_FLAG},
    };
    for (const Case& c : cases) {
        int a = -7, b = -7, w = -7;
        const VekResult r = c.fn(c.order, c.flag, 0, &a, c.nullPtr ? nullptr : &b, &w);
        EXPECT_EQ(r, c.want) << c.order << " " << c.flag;
        if (r != VEK_OK) {
            EXPECT_EQ(a, -7);  // nothing written
        }
    }
}

uint8_t* aligned(std::vector<uint8_t>& v, size_t skew) {
    uint8_t* p = v.data() + ((64 - reinterpret_cast<uintptr_t>(v.data()) % 64) % 64);
    return p + skew;
}

template <class F>
F field(const void* spec, size_t offset) {
    F v;
    memcpy(&v, static_cast<const uint8_t*>(spec) + offset, sizeof v);
    return v;
}

// Init: spec-pointer argument, order, memory, then (after the header is
// written) the flag, which clears the identifier, then the init buffer.
TEST(FftSpec, InitChecksInOrderAndClearsTheIdentifierOnABadFlag) {
    std::vector<uint8_t> mem(4096 + 128, 0xEE), ib(4096, 0);
    FftSpec_C_32fc* spec = nullptr;
    EXPECT_EQ(veksFFTInit_C_32fc(nullptr, 40, 3, 0, nullptr, nullptr), VEK_ERR_NULL_POINTER);
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 31, 3, 0, nullptr, nullptr), VEK_ERR_FFT_ORDER);
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 29, 8, 0, mem.data(), nullptr), VEK_ERR_FFT_ORDER);
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 4, 3, 0, nullptr, nullptr), VEK_ERR_NULL_POINTER);
    uint8_t* m = aligned(mem, 5);
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 4, 8, 0, m, nullptr), VEK_OK);
    uint8_t* base = m + 59;  // the next 64-byte boundary
    EXPECT_EQ(static_cast<void*>(spec), static_cast<void*>(base));
    EXPECT_EQ(field<int32_t>(base, 0), 4);
    spec = nullptr;
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 4, 3, 0, m, nullptr), VEK_ERR_FFT_FLAG);
    EXPECT_EQ(spec, nullptr);
    EXPECT_EQ(field<int32_t>(base, 0), 0);
    EXPECT_EQ(field<int32_t>(base, 4), 4);  // the header was written, the identifier taken back
    // order 11 needs the init buffer; without it the block is not accepted either
    std::vector<uint8_t> big(static_cast<size_t>(query(veksFFTGetSize_C_32fc, 11).spec) + 64);
    EXPECT_EQ(veksFFTInit_C_32fc(&spec, 11, 8, 0, big.data(), nullptr), VEK_ERR_NULL_POINTER);
    int bs = 0;
    EXPECT_EQ(veksFFTGetBufSize_C_32fc(reinterpret_cast<FftSpec_C_32fc*>(aligned(big, 0)), &bs),
              VEK_ERR_CONTEXT_MISMATCH);
    // a wrapped kind passes the inner status on and clears its own identifier
    FftSpec_C_32sc* ws = nullptr;
    std::vector<uint8_t> wm(8192, 0xEE);
    EXPECT_EQ(veksFFTInit_C_32sc(&ws, 6, 5, 0, wm.data(), nullptr), VEK_ERR_FFT_FLAG);
    EXPECT_EQ(field<int32_t>(aligned(wm, 0), 0), 0);
}

// The header fields in their stated order and the factor rules.
TEST(FftSpec, HeaderFields) {
    struct Case {
        int flag, fwd, inv;
    };
    const Case cases[] = {{1, 1, 0}, {2, 0, 1}, {4, 1, 1}, {8, 0, 0}};
    for (int order : {0, 3, 7, 12}) {
        const int64_t N = int64_t(1) << order;
        for (const Case& c : cases) {
            const ref::Sizes sz = query(veksFFTGetSize_C_32fc, order, c.flag);
            std::vector<uint8_t> mem(static_cast<size_t>(sz.spec) + 64, 0xFF), ib(static_cast<size_t>(sz.init) + 1);
            FftSpec_C_32fc* spec = nullptr;
            ASSERT_EQ(veksFFTInit_C_32fc(&spec, order, c.flag, -12345, aligned(mem, 1), ib.data()), VEK_OK);
            EXPECT_EQ(reinterpret_cast<uintptr_t>(spec) % 64, 0u);
            EXPECT_EQ(field<int32_t>(spec, 0), 4);
            EXPECT_EQ(field<int32_t>(spec, 4), order);
            EXPECT_EQ(field<int32_t>(spec, 8), c.fwd);
            EXPECT_EQ(field<int32_t>(spec, 12), c.inv);
            const float want = c.flag == 8 ? 0.0f
                               : c.flag == 4 ? static_cast<float>(1.0 / sqrt(static_cast<double>(N)))
                                             : 1.0f / static_cast<float>(N);
            EXPECT_EQ(field<float>(spec, 16), want);
            EXPECT_EQ(field<int32_t>(spec, 20), -12345);
            EXPECT_EQ(field<int32_t>(spec, 24), sz.work);
            EXPECT_EQ(field<int32_t>(spec, 28), 0);
            for (size_t o = 32; o < 56; ++o) EXPECT_EQ(field<uint8_t>(spec, o), 0) << "reserved byte " << o;
        }
    }
    // double precision: the factor is a double, the later fields move by 4
    std::vector<uint8_t> mem(static_cast<size_t>(query(veksFFTGetSize_C_64fc, 6).spec) + 64);
    FftSpec_C_64fc* spec = nullptr;
    ASSERT_EQ(veksFFTInit_C_64fc(&spec, 6, VEK_FFT_SCALE_SQRT, 7, mem.data(), nullptr), VEK_OK);
    EXPECT_EQ(field<double>(spec, 16), 1.0 / sqrt(64.0));
    EXPECT_EQ(field<int32_t>(spec, 24), 7);
    EXPECT_EQ(field<int32_t>(spec, 28), query(veksFFTGetSize_C_64fc, 6).work);
}

// The bit-reversal table: M = N/4 entries 2 * rev(i) and a terminating 0,
// 64-byte aligned, behind the twiddle table.
TEST(FftSpec, BitReversalTable) {
    for (int order : {6, 9, 12, 17}) {
        const ref::Sizes sz = query(veksFFTGetSize_C_32fc, order);
        std::vector<uint8_t> mem(static_cast<size_t>(sz.spec) + 64), ib(static_cast<size_t>(sz.init) + 64);
        FftSpec_C_32fc* spec = nullptr;
        ASSERT_EQ(veksFFTInit_C_32fc(&spec, order, 8, 0, mem.data(), ib.data()), VEK_OK);
        const uint8_t* tw = field<const uint8_t*>(spec, 56);
        const int32_t* br = field<const int32_t*>(spec, 64);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(tw) % 64, 0u);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(br) % 64, 0u);
        EXPECT_GT(static_cast<const void*>(br), static_cast<const void*>(tw));
        const int M = 1 << (order - 2), bits = order - 2;
        for (int i = 0; i < M; ++i) {
            int r = 0;
            for (int b = 0; b < bits; ++b)
                if (i & (1 << b)) r |= 1 << (bits - 1 - b);
            ASSERT_EQ(br[i], 2 * r) << order << " " << i;
        }
        EXPECT_EQ(br[M], 0);
        EXPECT_LE(reinterpret_cast<const uint8_t*>(br + M + 1), reinterpret_cast<const uint8_t*>(spec) + sz.spec - 63);
    }
}

// The quarter-wave table Init builds in the init buffer: sin(2 pi k / N) up
// to N/8, the cosine of the complementary angle above, exactly 1 at N/4; the
// values agree with the C library's to an ulp (they are computed without it,
// so that every target gets the same bits).
TEST(FftSpec, QuarterWaveTableInTheInitBuffer) {
    for (int order : {11, 13, 16}) {
        const ref::Sizes sz = query(veksFFTGetSize_C_64fc, order);
        std::vector<uint8_t> mem(static_cast<size_t>(sz.spec) + 64), ib(static_cast<size_t>(sz.init) + 64);
        FftSpec_C_64fc* spec = nullptr;
        uint8_t* init = aligned(ib, 0);
        ASSERT_EQ(veksFFTInit_C_64fc(&spec, order, 8, 0, mem.data(), init), VEK_OK);
        const double* q = reinterpret_cast<const double*>(init);
        const int64_t N = int64_t(1) << order;
        const double step = 2.0 * M_PI / static_cast<double>(N);
        for (int64_t k = 0; k < N / 4; ++k) {
            const double want = k <= N / 8 ? sin(static_cast<double>(k) * step) : cos(static_cast<double>(N / 4 - k) * step);
            ASSERT_LE(vt::ulpDistance(q[k], want), 1) << order << " " << k;
        }
        EXPECT_EQ(q[N / 4], 1.0);
    }
}

// Init writes only inside the size it asked for, from any start, and reads
// the init buffer only inside its size.
TEST(FftSpec, InitStaysInsideItsSizes) {
    using InitFn = VekResult (*)(void**, int, int, int, T8u*, T8u*);
    struct Row {
        const char* name;
        GetSize g;
        InitFn init;
        int maxOrder;
    };
#define ROW(k, m) {#k, veksFFTGetSize_##k, reinterpret_cast<InitFn>(veksFFTInit_##k), m}
    const Row rows[] = {ROW(C_32fc, 22), ROW(C_32f, 19), ROW(R_32f, 22), ROW(C_64fc, 21),
                        ROW(R_64f, 21), ROW(C_32sc, 18), ROW(R_16s, 18)};
#undef ROW
    for (const Row& r : rows) {
        for (int order = 0; order <= r.maxOrder; ++order) {
            const ref::Sizes sz = query(r.g, order);
            const int skew = order % 64 + 1;
            vt::Guarded<uint8_t> mem(static_cast<size_t>(sz.spec), skew), ib(static_cast<size_t>(sz.init), 1);
            void* spec = nullptr;
            ASSERT_EQ(r.init(&spec, order, VEK_FFT_SCALE_INV, 0, mem.data(), sz.init ? ib.data() : nullptr), VEK_OK)
                << r.name << " " << order;
            EXPECT_TRUE(mem.intact()) << r.name << " order " << order;
            EXPECT_TRUE(ib.intact()) << r.name << " order " << order;
        }
    }
}

// InitAlloc owns its block, asks exactly the sizes, frees the init buffer;
// Free releases only owned blocks; GetBufSize adds 64 to a non-zero size.
TEST(FftSpec, OwnershipAndBufferSize) {
    CoreSpy& spy = CoreSpy::get();
    for (int order : {0, 5, 6, 11}) {
        const ref::Sizes sz = query(veksFFTGetSize_C_32fc, order);
        spy.reset();
        FftSpec_C_32fc* spec = nullptr;
        ASSERT_EQ(veksFFTInitAlloc_C_32fc(&spec, order, 2, 0), VEK_OK);
        ASSERT_GE(spy.mallocSizes.size(), 1u);
        EXPECT_EQ(spy.mallocSizes[0], static_cast<size_t>(sz.spec));
        EXPECT_EQ(spy.mallocSizes.size(), sz.init ? 2u : 1u);
        EXPECT_EQ(spy.freed.size(), sz.init ? 1u : 0u);
        EXPECT_EQ(field<int32_t>(spec, 28), 1);
        int bs = -1;
        EXPECT_EQ(veksFFTGetBufSize_C_32fc(spec, &bs), VEK_OK);
        EXPECT_EQ(bs, sz.work ? sz.work + 64 : 0);
        EXPECT_EQ(veksFFTGetBufSize_C_32fc(spec, nullptr), VEK_ERR_NULL_POINTER);
        EXPECT_EQ(veksFFTFree_R_32f(reinterpret_cast<FftSpec_R_32f*>(spec)), VEK_ERR_CONTEXT_MISMATCH);
        spy.reset();
        EXPECT_EQ(veksFFTFree_C_32fc(spec), VEK_OK);
        ASSERT_EQ(spy.freed.size(), 1u);
        EXPECT_EQ(spy.freed[0], static_cast<void*>(spec));
    }
    // a block in caller memory is left alone
    std::vector<uint8_t> mem(4096);
    FftSpec_C_32fc* spec = nullptr;
    ASSERT_EQ(veksFFTInit_C_32fc(&spec, 6, 8, 0, mem.data(), nullptr), VEK_OK);
    spy.reset();
    EXPECT_EQ(veksFFTFree_C_32fc(spec), VEK_OK);
    EXPECT_TRUE(spy.freed.empty());
    EXPECT_EQ(veksFFTFree_C_32fc(nullptr), VEK_ERR_NULL_POINTER);
    // allocation failures
    spy.reset();
    spy.failNext = true;
    spec = nullptr;
    EXPECT_EQ(veksFFTInitAlloc_C_32fc(&spec, 12, 8, 0), VEK_ERR_NO_MEMORY);
    EXPECT_EQ(spec, nullptr);
    // a bad flag is found before anything is allocated
    spy.reset();
    EXPECT_EQ(veksFFTInitAlloc_C_32fc(&spec, 12, 3, 0), VEK_ERR_FFT_FLAG);
    EXPECT_TRUE(spy.mallocSizes.empty());
    // the wrapped kinds own the wrapper
    FftSpec_R_32s* ws = nullptr;
    spy.reset();
    ASSERT_EQ(veksFFTInitAlloc_R_32s(&ws, 8, 8, 0), VEK_OK);
    EXPECT_EQ(field<int32_t>(ws, 0), static_cast<int32_t>(0x434D414E));
    int bs = 0, s = 0, i = 0, w = 0;
    ASSERT_EQ(veksFFTGetSize_R_32s(8, 8, 0, &s, &i, &w), VEK_OK);
    EXPECT_EQ(veksFFTGetBufSize_R_32s(ws, &bs), VEK_OK);
    EXPECT_EQ(bs, w + 64);  // stored: inner buffer (work + 64) + 16N; reported: plus 64
    EXPECT_EQ(veksFFTFree_R_32s(ws), VEK_OK);
    EXPECT_EQ(spy.freed.back(), static_cast<void*>(ws));
}

TEST(FftSpec, IdentifiersOfEveryKind) {
    struct Row {
        const char* name;
        VekResult (*alloc)(void**, int, int, int);
        VekResult (*fr)(void*);
        uint32_t id;
    };
#define ROW(kind, id) \
    {#kind, reinterpret_cast<VekResult (*)(void**, int, int, int)>(veksFFTInitAlloc_##kind), reinterpret_cast<VekResult (*)(void*)>(veksFFTFree_##kind), id}
    const Row rows[] = {ROW(C_16sc, 1),          ROW(C_16s, 2),          ROW(R_16s, 3),          ROW(C_32fc, 4),
                        ROW(C_32f, 5),           ROW(R_32f, 6),          ROW(C_64fc, 7),         ROW(C_64f, 8),
                        ROW(R_64f, 9),           ROW(C_32sc, 0x434D414C), ROW(C_32s, 0x434D414D), ROW(R_32s, 0x434D414E),
                        ROW(R_16s32s, 0x434D414F)};
#undef ROW
    for (const Row& r : rows) {
        void* spec = nullptr;
        ASSERT_EQ(r.alloc(&spec, 7, VEK_FFT_SCALE_FWD, 0), VEK_OK) << r.name;
        EXPECT_EQ(field<uint32_t>(spec, 0), r.id) << r.name;
        EXPECT_EQ(r.fr(spec), VEK_OK) << r.name;
    }
}

}  // namespace

// The failure contract of every (pSrc, pDst, len, ...) member of the
// conversion, byte-swapping and companding families, generated from one table: null pointers first, then
// the length, then the rounding mode where it is checked; nothing written
// on error.
#include <functional>

#include "support/support.h"

namespace {

enum Shape : unsigned {
    kPlain = 0,
    kHalfMode = 1,  // refuses rounding modes other than 0 and 1, after the length
    kCount = 2,     // the length is an unsigned count: only 0 is refused
    kInPlace = 4,   // one pointer, source and destination
};

struct Member {
    const char* name;
    unsigned shape;
    size_t srcBytes, dstBytes;
    std::function<VekResult(const void*, void*, int len, int mode)> call;
};

#define M(f, TS, TD, ...) \
    Member { #f, kPlain, sizeof(TS), sizeof(TD), [](const void* s, void* d, int n, int) { return f((const TS*)s, (TD*)d, n __VA_ARGS__); } }
#define M_MODE(f, TS, TD, ...) \
    Member { #f, kPlain, sizeof(TS), sizeof(TD), [](const void* s, void* d, int n, int m) { return f((const TS*)s, (TD*)d, n, m __VA_ARGS__); } }
#define M_HALF(f, TS, TD, ...) \
    Member { #f, kHalfMode, sizeof(TS), sizeof(TD), [](const void* s, void* d, int n, int m) { return f((const TS*)s, (TD*)d, n, m __VA_ARGS__); } }
#define M_INPLACE(f, T) \
    Member { #f, kInPlace, sizeof(T), sizeof(T), [](const void*, void* d, int n, int) { return f((T*)d, n); } }

const std::vector<Member>& members() {
    static const std::vector<Member> v = {
        M_MODE(veksConvert_32f8s_Sfs, T32f, T8s, , 0),    M_MODE(veksConvert_32f8u_Sfs, T32f, T8u, , 0),
        M_MODE(veksConvert_32f16s_Sfs, T32f, T16s, , 0),  M_MODE(veksConvert_32f16u_Sfs, T32f, T16u, , 0),
        M(veksConvert_32f24s_Sfs, T32f, T24s, , 0),       M(veksConvert_32f24u_Sfs, T32f, T24u, , 0),
        M_MODE(veksConvert_32f32s_Sfs, T32f, T32s, , 0),  M_MODE(veksConvert_64f16s_Sfs, T64f, T16s, , 0),
        M_MODE(veksConvert_64f32s_Sfs, T64f, T32s, , 0),  M_MODE(veksConvert_64f64s_Sfs, T64f, T64s, , 0),
        M(veksConvert_8s32f, T8s, T32f),                  M(veksConvert_8u32f, T8u, T32f),
        M(veksConvert_16s32f, T16s, T32f),                M(veksConvert_16s32f_Sfs, T16s, T32f, , 0),
        M(veksConvert_16s64f_Sfs, T16s, T64f, , 0),       M(veksConvert_16u32f, T16u, T32f),
        M(veksConvert_24s32f, T24s, T32f),                M(veksConvert_24u32f, T24u, T32f),
        M(veksConvert_32s32f, T32s, T32f),                M(veksConvert_32s32f_Sfs, T32s, T32f, , 0),
        M(veksConvert_32s64f, T32s, T64f),                M(veksConvert_32s64f_Sfs, T32s, T64f, , 0),
        M(veksConvert_64s64f, T64s, T64f),                M(veksConvert_32f64f, T32f, T64f),
        M(veksConvert_64f32f, T64f, T32f),                M(veksConvert_8s16s, T8s, T16s),
        M(veksConvert_16s32s, T16s, T32s),                M(veksConvert_24s32s, T24s, T32s),
        M(veksConvert_24u32u, T24u, T32u),                M(veksConvert_32s16s, T32s, T16s),
        M(veksConvert_32s16s_Sfs, T32s, T16s, , 0),       M(veksConvert_32s24s_Sfs, T32s, T24s, , 0),
        M(veksConvert_32u24u_Sfs, T32u, T24u, , 0),       M_MODE(veksConvert_64s32s_Sfs, T64s, T32s, , 0),
        M_HALF(veksConvert_16f16s_Sfs, T16f, T16s, , 0),  M_HALF(veksConvert_16s16f, T16s, T16f),
        M_HALF(veksConvert_32f16f, T32f, T16f),           M(veksConvert_16f32f, T16f, T32f),
        M(veksSwapBytes_16u, T16u, T16u),                 M_INPLACE(veksSwapBytes_16u_I, T16u),
        M(veksSwapBytes_24u, T24u, T24u),                 M_INPLACE(veksSwapBytes_24u_I, T24u),
        M(veksSwapBytes_32u, T32u, T32u),                 M_INPLACE(veksSwapBytes_32u_I, T32u),
        M(veksSwapBytes_64u, T64u, T64u),                 M_INPLACE(veksSwapBytes_64u_I, T64u),
        M(veksLinToALaw_16s8u, T16s, T8u),                M(veksLinToALaw_32f8u, T32f, T8u),
        M(veksALawToLin_8u16s, T8u, T16s),                M(veksALawToLin_8u32f, T8u, T32f),
        M(veksLinToMuLaw_16s8u, T16s, T8u),               M(veksLinToMuLaw_32f8u, T32f, T8u),
        M(veksMuLawToLin_8u16s, T8u, T16s),               M(veksMuLawToLin_8u32f, T8u, T32f),
    };
    return v;
}

TEST(ConvertContract, ChecksInOrderAndWritesNothingOnError) {
    const int n = 8;
    std::vector<Member> all = members();
    Member count = M_MODE(veksConvert_16s8s_Sfs, T16s, T8s, , 0);
    count.shape = kCount;
    all.push_back(count);
    for (const Member& m : all) {
        SCOPED_TRACE(m.name);
        vt::Guarded<unsigned char> src(m.srcBytes * n), dst(m.dstBytes * n);
        for (size_t i = 0; i < src.size(); ++i) src[i] = static_cast<unsigned char>(i * 7 + 1);
        src.freeze();
        dst.freeze();
        const bool inPlace = m.shape & kInPlace;
        struct Row {
            bool nullSrc, nullDst;
            int len, mode;
            VekResult want;
        };
        std::vector<Row> rows = {
            {false, true, n, 0, VEK_ERR_NULL_POINTER},
            {false, true, 0, 0, VEK_ERR_NULL_POINTER},
            {false, false, 0, 0, VEK_ERR_SIZE},
        };
        if (!inPlace) {
            rows.push_back({true, false, n, 0, VEK_ERR_NULL_POINTER});
            rows.push_back({true, false, 0, 0, VEK_ERR_NULL_POINTER});
        }
        if (!(m.shape & kCount)) rows.push_back({false, false, -1, 0, VEK_ERR_SIZE});
        if (!(m.shape & kCount)) rows.push_back({false, false, INT32_MIN, 0, VEK_ERR_SIZE});
        if (m.shape & kHalfMode) {
            for (int bad : {2, 3, -1}) rows.push_back({false, false, n, bad, VEK_ERR_ROUND_MODE});
            rows.push_back({false, false, 0, 2, VEK_ERR_SIZE});
            rows.push_back({false, true, n, 2, VEK_ERR_NULL_POINTER});
        }
        for (const Row& r : rows) {
            const VekResult st = m.call(r.nullSrc ? nullptr : src.data(), r.nullDst ? nullptr : dst.data(), r.len, r.mode);
            EXPECT_EQ(st, r.want) << "null src " << r.nullSrc << " null dst " << r.nullDst << " len " << r.len
                                  << " mode " << r.mode;
            EXPECT_TRUE(dst.intact());
            EXPECT_TRUE(src.intact());
        }
        // And a valid call succeeds (so the rows above fail for their reason).
        EXPECT_EQ(m.call(src.data(), dst.data(), n, 1), VEK_OK);
    }
}

}  // namespace

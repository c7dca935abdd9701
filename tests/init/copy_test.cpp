// Copy, Move, Set and Zero for every width: byte-exact results over lengths
// that cross every block size, misaligned starts (every pair for Copy),
// overlapping moves in both directions and fills large enough to bypass the
// caches. Their check order is in the contract table of tests/complex.
#include <string.h>

#include "support/support.h"

namespace {

// Random bytes make NaN payloads, negative zeros and every bit pattern.
template <class T>
std::vector<T> randomElems(vt::Rng& rng, size_t n) {
    const std::vector<unsigned char> bytes = rng.vec<unsigned char>(n * sizeof(T));
    std::vector<T> v(n);
    if (n) memcpy(v.data(), bytes.data(), bytes.size());
    return v;
}

// Runs f on a guarded buffer that holds `init` and compares it with `want`.
template <class T, class F>
void inBuffer(F f, const std::vector<T>& init, const std::vector<T>& want, int ms) {
    vt::Guarded<T> buf(init, ms);
    ASSERT_EQ(f(buf.data(), static_cast<int>(init.size())), VEK_OK);
    ASSERT_TRUE(vt::sameElements(buf.data(), want.data(), want.size())) << "len=" << init.size();
    ASSERT_TRUE(buf.intact());
}

template <class T>
void checkAll(VekResult (*copy)(const T*, T*, int), VekResult (*move)(const T*, T*, int), VekResult (*zero)(T*, int),
              VekResult (*set)(T, T*, int), uint64_t seed) {
    vt::Rng rng(seed);
    for (int len : vt::tailLengths()) {
        const size_t n = static_cast<size_t>(len);
        for (int ms : vt::misalignments()) {
            const std::vector<T> data = randomElems<T>(rng, n), junk = randomElems<T>(rng, n);
            const vt::Guarded<T> src(data, ms);
            for (int md : vt::misalignments())
                inBuffer([&](T* d, int l) { return copy(src.data(), d, l); }, junk, data, md);
            inBuffer([&](T* d, int l) { return move(src.data(), d, l); }, junk, data, (ms + 1) % 3);
            ASSERT_TRUE(src.intact());
            inBuffer(zero, junk, std::vector<T>(n), ms);  // all-zero bytes
            const T val = randomElems<T>(rng, 1)[0];
            inBuffer([&](T* d, int l) { return set(val, d, l); }, junk, std::vector<T>(n, val), ms);
        }
    }
    // Overlapping moves: one buffer of len + shift elements, the destination
    // `shift` elements below or above the source (0: onto itself).
    for (int len : {1, 2, 3, 7, 16, 33, 257, 4099}) {
        for (int shift : {0, 1, 3, len / 2, len - 1}) {
            for (int dir : {-1, 1}) {
                const std::vector<T> init = randomElems<T>(rng, static_cast<size_t>(len + shift));
                const int srcAt = dir > 0 ? 0 : shift, dstAt = dir > 0 ? shift : 0;
                std::vector<T> want = init;
                memmove(want.data() + dstAt, init.data() + srcAt, static_cast<size_t>(len) * sizeof(T));
                inBuffer([&](T* b, int) { return move(b + srcAt, b + dstAt, len); }, init, want, 1);
            }
        }
    }
}

TEST(CopyMoveSetZero, EveryType) {
    checkAll<T8u>(veksCopy_8u, veksMove_8u, veksZero_8u, veksSet_8u, 100);
    checkAll<T16s>(veksCopy_16s, veksMove_16s, veksZero_16s, veksSet_16s, 200);
    checkAll<T16sc>(veksCopy_16sc, veksMove_16sc, veksZero_16sc, veksSet_16sc, 300);
    checkAll<T32s>(veksCopy_32s, veksMove_32s, veksZero_32s, veksSet_32s, 400);
    checkAll<T32f>(veksCopy_32f, veksMove_32f, veksZero_32f, veksSet_32f, 500);
    checkAll<T32sc>(veksCopy_32sc, veksMove_32sc, veksZero_32sc, veksSet_32sc, 600);
    checkAll<T32fc>(veksCopy_32fc, veksMove_32fc, veksZero_32fc, veksSet_32fc, 700);
    checkAll<T64s>(veksCopy_64s, veksMove_64s, veksZero_64s, veksSet_64s, 800);
    checkAll<T64f>(veksCopy_64f, veksMove_64f, veksZero_64f, veksSet_64f, 900);
    checkAll<T64sc>(veksCopy_64sc, veksMove_64sc, veksZero_64sc, veksSet_64sc, 1000);
    checkAll<T64fc>(veksCopy_64fc, veksMove_64fc, veksZero_64fc, veksSet_64fc, 1100);
}

TEST(CopyMoveSetZero, LargeFillsKeepFloatBits) {
    // A NaN with a payload and a negative zero repeated bit for bit on fills
    // that bypass the caches, from a misaligned start.
    const uint32_t bits = 0x7FA12345u;
    T32f nan;
    memcpy(&nan, &bits, 4);
    const T64fc v = {-0.0, 1.5};
    const size_t n32 = (32 << 20) / 4 + 3, n64 = 300001;
    inBuffer([&](T32f* d, int l) { return veksSet_32f(nan, d, l); }, std::vector<T32f>(n32),
             std::vector<T32f>(n32, nan), 1);
    inBuffer([&](T64fc* d, int l) { return veksSet_64fc(v, d, l); }, std::vector<T64fc>(n64),
             std::vector<T64fc>(n64, v), 1);
}

// Large fills at byte offsets the element types allow but the guarded
// buffers do not reach (a 4-byte offset within 8-byte elements), across the
// sizes where a fill changes method: each element must hold the value's
// bytes, and nothing outside may change.
template <class T>
void fillAtOffset(VekResult (*set)(T, T*, int), T val, size_t offset, size_t count) {
    constexpr size_t kGuard = 64;
    std::vector<unsigned char> buf(count * sizeof(T) + offset + 2 * kGuard + 64, 0xA5);
    unsigned char* base = buf.data() + ((64 - reinterpret_cast<uintptr_t>(buf.data()) % 64) % 64) + kGuard;
    unsigned char* d = base + offset;
    ASSERT_EQ(set(val, reinterpret_cast<T*>(d), static_cast<int>(count)), VEK_OK);
    for (size_t i = 0; i < count; ++i)
        ASSERT_EQ(memcmp(d + i * sizeof(T), &val, sizeof(T)), 0) << "element " << i << " of " << count;
    for (unsigned char* g = buf.data(); g < d; ++g) ASSERT_EQ(*g, 0xA5);
    for (unsigned char* g = d + count * sizeof(T); g < buf.data() + buf.size(); ++g) ASSERT_EQ(*g, 0xA5);
}

TEST(CopyMoveSetZero, LargeFillsAtEveryOffset) {
    const T32f f = -1.25f;
    const T16s h = -12345;
    const T64f g = -3.0e-300;
    const T32fc c = {1.5f, -0.0f};
    for (size_t bytes : {size_t(2048), size_t(2056), size_t(4104), (size_t(1) << 20) - 8, size_t(1) << 20,
                         (size_t(1) << 20) + 8, (size_t(4) << 20) - 8, size_t(4) << 20}) {
        SCOPED_TRACE("bytes " + std::to_string(bytes));
        for (size_t offset : {0, 4, 8, 12, 60}) {
            fillAtOffset(veksSet_32f, f, offset, bytes / 4);
            fillAtOffset(veksSet_64f, g, offset, bytes / 8);
            fillAtOffset(veksSet_32fc, c, offset, bytes / 8);
        }
        for (size_t offset : {0, 2, 6})
            fillAtOffset(veksSet_16s, h, offset, bytes / 2 + 1);  // a 2-byte remainder
    }
}

}  // namespace

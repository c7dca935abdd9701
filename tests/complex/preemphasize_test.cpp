// Preemphasize: y(n) = x(n) - val * x(n - 1) with the sample before the block
// in *pMem (0 without a memory), compared exactly with the model
// (single-precision product then difference for 32f; the exact difference
// rounded to even and saturated for 16s), out of place, and in place split
// into two blocks that carry the memory.
#include "ref/complex_ref.h"
#include "support/support.h"

namespace {

T32f model(T32f x, T32f prev, T32f val) {
    const T32f prod = val * prev;  // rounded to single
    return x - prod;
}
T16s model(T16s x, T16s prev, T32f val) { return ref::preemphasize16(x, prev, val); }

template <class T>
void checkPreemphasize(VekResult (*f)(const T*, T*, int, T32f, T*), VekResult (*fI)(T*, int, T32f, T*), uint64_t seed) {
    vt::Rng rng(seed);
    for (T32f val : {0.0f, 0.5f, 0.97f, -1.0f, 1.0f, 1e-7f, 3.75f, -2.5e4f}) {
        for (int len : vt::tailLengths()) {
            const size_t n = static_cast<size_t>(len);
            for (int ms : {0, 1}) {
                std::vector<T> x = rng.vec<T>(n, -1e3, 1e3);
                if (n > 2) x[n / 2] = std::numeric_limits<T>::lowest(), x[n / 2 - 1] = std::numeric_limits<T>::max();
                const T mem0 = rng.next<T>(-10, 10);
                // Out of place without a memory on odd rounds.
                std::vector<T> want(n), wantNoMem(n);
                for (size_t i = 0; i < n; ++i) {
                    want[i] = model(x[i], i ? x[i - 1] : mem0, val);
                    wantNoMem[i] = model(x[i], i ? x[i - 1] : T(0), val);
                }
                vt::Guarded<T> src(x, ms), dst(n, 1 - ms), ip(x, ms);
                T mem = mem0, memI = mem0;
                ASSERT_EQ(f(src.data(), dst.data(), len, val, ms ? nullptr : &mem), VEK_OK);
                ASSERT_TRUE(vt::sameElements(dst.data(), (ms ? wantNoMem : want).data(), n)) << val << " len=" << len;
                const int first = (len + 1) / 2;
                ASSERT_EQ(fI(ip.data(), first, val, &memI), VEK_OK);
                if (len > first) {
                    ASSERT_EQ(fI(ip.data() + first, len - first, val, &memI), VEK_OK);
                }
                ASSERT_TRUE(vt::sameElements(ip.data(), want.data(), n)) << val << " len=" << len;
                ASSERT_TRUE(memI == x.back() && (ms || mem == x.back()));
                ASSERT_TRUE(dst.intact() && ip.intact() && src.intact());
            }
        }
    }
}

TEST(Preemphasize, MatchesModel) {
    checkPreemphasize(veksPreemphasize_32f, veksPreemphasize_32f_I, 51);
    checkPreemphasize(veksPreemphasize_16s, veksPreemphasize_16s_I, 52);
}

}  // namespace

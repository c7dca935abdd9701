// The memory-bandwidth baseline every element-wise family is measured
// against: memcpy and memset of the same bytes.
#include "bench_util.h"

namespace {

void BM_memcpy(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0));
    vb::Buf<unsigned char> a(bytes), b(bytes);
    for (auto _ : st) {
        memcpy(b.p, a.p, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, bytes, bytes);
}
BENCHMARK(BM_memcpy)->RangeMultiplier(8)->Range(64, 64 << 20);

void BM_memset(benchmark::State& st) {
    const size_t bytes = static_cast<size_t>(st.range(0));
    vb::Buf<unsigned char> a(bytes);
    for (auto _ : st) {
        memset(a.p, 1, bytes);
        benchmark::ClobberMemory();
    }
    vb::setCounters(st, bytes, 0, bytes);
}
BENCHMARK(BM_memset)->RangeMultiplier(8)->Range(64, 64 << 20);

}  // namespace

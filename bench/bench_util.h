// Shared benchmark helpers: aligned buffers and the byte counters that turn
// Google Benchmark's times into bandwidth and per-element figures.
#pragma once

#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <string.h>

#include <vector>

namespace vb {

// Buffers start at a fixed offset from a page boundary chosen by their slot
// (0, 1, 2, ... within one benchmark). Buffers of equal power-of-two sizes
// would otherwise sit a whole number of pages apart wherever the allocator
// put them, and a load that follows a store to an address equal modulo 4 KiB
// waits for it (false store forwarding): the timing of a kernel would depend
// on the heap, differently for veks and for its peer. Slot -1 takes the next
// slot of a running counter.
inline size_t staggerOf(int slot) {
    static size_t k = 0;
    const size_t s = slot >= 0 ? static_cast<size_t>(slot) : k++;
    return (s % 7) * 576;  // 9 cache lines apart
}

template <class T>
struct Buf {
    explicit Buf(size_t n, size_t misalignBytes = 0, int slot = -1) : n(n) {
        const size_t bytes = (n * sizeof(T) + misalignBytes + 7 * 576 + 4095) / 4096 * 4096;
        raw = static_cast<unsigned char*>(aligned_alloc(4096, bytes));
        memset(raw, 0, bytes);
        p = reinterpret_cast<T*>(raw + staggerOf(slot) + misalignBytes);
    }
    ~Buf() { free(raw); }
    Buf(const Buf&) = delete;
    Buf& operator=(const Buf&) = delete;
    T* p;
    size_t n;
    unsigned char* raw;
};

// Reports elements/s and bytes/s for a kernel that reads `readBytes` and
// writes `writeBytes` per iteration over `n` elements.
inline void setCounters(benchmark::State& st, size_t n, size_t readBytes, size_t writeBytes) {
    st.SetItemsProcessed(static_cast<int64_t>(st.iterations() * n));
    st.SetBytesProcessed(static_cast<int64_t>(st.iterations() * (readBytes + writeBytes)));
}

}  // namespace vb

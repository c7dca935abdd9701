// Shared benchmark helpers: aligned buffers and the byte counters that turn
// Google Benchmark's times into bandwidth and per-element figures.
#pragma once

#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <string.h>

#include <vector>

namespace vb {

template <class T>
struct Buf {
    explicit Buf(size_t n, size_t misalignBytes = 0) : n(n) {
        raw = static_cast<unsigned char*>(aligned_alloc(64, (n * sizeof(T) + misalignBytes + 127) / 64 * 64));
        memset(raw, 0, (n * sizeof(T) + misalignBytes + 127) / 64 * 64);
        p = reinterpret_cast<T*>(raw + misalignBytes);
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

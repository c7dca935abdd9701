// The companion core: aligned allocation and the processor-feature query.
#include "vekcore.h"

#include <cpuid.h>
#include <stdint.h>
#include <stdlib.h>

namespace {

struct Cpuid {
    unsigned a = 0, b = 0, c = 0, d = 0;
};

Cpuid cpuid(unsigned leaf, unsigned sub) {
    Cpuid r;
    if (__get_cpuid_max(leaf & 0x80000000u, nullptr) < leaf) return r;
    __cpuid_count(leaf, sub, r.a, r.b, r.c, r.d);
    return r;
}

// XCR0 says which register states the operating system saves; AVX is only
// enabled when both the SSE and AVX states are.
bool osSavesYmm(const Cpuid& l1) {
    if (!(l1.c & (1u << 27))) return false;  // OSXSAVE
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return (lo & 6u) == 6u;
}

unsigned long long enabledFeatures() {
    const Cpuid l1 = cpuid(1, 0);
    const Cpuid l7 = cpuid(7, 0);
    unsigned long long m = 0;
    if (l1.d & (1u << 23)) m |= VEK_CPU_MMX;
    if (l1.d & (1u << 25)) m |= VEK_CPU_SSE;
    if (l1.d & (1u << 26)) m |= VEK_CPU_SSE2;
    if (l1.c & (1u << 0)) m |= VEK_CPU_SSE3;
    if (l1.c & (1u << 9)) m |= VEK_CPU_SSSE3;
    if (l1.c & (1u << 22)) m |= VEK_CPU_MOVBE;
    if (l1.c & (1u << 19)) m |= VEK_CPU_SSE41;
    if (l1.c & (1u << 20)) m |= VEK_CPU_SSE42;
    if (l1.c & (1u << 25)) m |= VEK_CPU_AES;
    if (l1.c & (1u << 1)) m |= VEK_CPU_CLMUL;
    if (l1.c & (1u << 30)) m |= VEK_CPU_RDRAND;
    if (l1.c & (1u << 23)) m |= VEK_CPU_POPCNT;
    if (osSavesYmm(l1)) {
        if (l1.c & (1u << 28)) m |= VEK_CPU_AVX;
        if (l1.c & (1u << 29)) m |= VEK_CPU_F16C;
        if (l7.b & (1u << 5)) m |= VEK_CPU_AVX2;
    }
    return m;
}

}  // namespace

extern "C" {

VEKCORE_API void* vekMalloc(size_t length) {
    void* p = nullptr;
    if (posix_memalign(&p, VEK_MALLOC_ALIGNMENT, length ? length : 1) != 0) return nullptr;
    return p;
}

VEKCORE_API void vekFree(void* ptr) { free(ptr); }

VEKCORE_API void* vekAlignPtr(void* ptr, int alignBytes) {
    const uintptr_t a = static_cast<uintptr_t>(alignBytes);
    return reinterpret_cast<void*>((reinterpret_cast<uintptr_t>(ptr) + a - 1) & ~(a - 1));
}

VEKCORE_API unsigned long long vekGetEnabledCpuFeatures(void) { return enabledFeatures(); }

VEKCORE_API int ownGetFeature(unsigned long long featureMask) {
    return (enabledFeatures() & featureMask) == featureMask ? 1 : 0;
}

}  // extern "C"

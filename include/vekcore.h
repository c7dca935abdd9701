/* vekcore: the companion core of veks. Aligned allocation, pointer
 * alignment and the processor-feature query. */
#ifndef VEKCORE_H
#define VEKCORE_H

#include <stddef.h>

#if defined(VEKCORE_BUILDING_LIBRARY) && defined(__GNUC__)
#define VEKCORE_API __attribute__((visibility("default")))
#else
#define VEKCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Processor-feature bits of vekGetEnabledCpuFeatures and ownGetFeature. */
#define VEK_CPU_MMX 0x1ULL
#define VEK_CPU_SSE 0x2ULL
#define VEK_CPU_SSE2 0x4ULL
#define VEK_CPU_SSE3 0x8ULL
#define VEK_CPU_SSSE3 0x10ULL
#define VEK_CPU_MOVBE 0x20ULL
#define VEK_CPU_SSE41 0x40ULL
#define VEK_CPU_SSE42 0x80ULL
#define VEK_CPU_AVX 0x100ULL
#define VEK_CPU_AES 0x200ULL
#define VEK_CPU_CLMUL 0x400ULL
#define VEK_CPU_RDRAND 0x800ULL
#define VEK_CPU_F16C 0x1000ULL
#define VEK_CPU_AVX2 0x2000ULL
#define VEK_CPU_POPCNT 0x4000ULL

/* Alignment of every block vekMalloc returns. */
#define VEK_MALLOC_ALIGNMENT 64

/* A block of at least `length` bytes aligned to 64, or null when the
 * system has no memory. A length of 0 still returns a unique block. */
VEKCORE_API void* vekMalloc(size_t length);

/* Releases a block of vekMalloc; null does nothing. */
VEKCORE_API void vekFree(void* ptr);

/* `ptr` rounded up to the next multiple of `alignBytes` (a power of two). */
VEKCORE_API void* vekAlignPtr(void* ptr, int alignBytes);

/* Mask of the features the processor has and the operating system enables. */
VEKCORE_API unsigned long long vekGetEnabledCpuFeatures(void);

/* Non-zero when every feature of `featureMask` is present. */
VEKCORE_API int ownGetFeature(unsigned long long featureMask);

#ifdef __cplusplus
}
#endif

#endif /* VEKCORE_H */

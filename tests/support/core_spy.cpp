// A stand-in for the core's allocator in the tests that link it: the executable
// exports vekMalloc and vekFree, so the library's calls reach these first.
// They record what was asked and forward to the real core.
#include "support/core_spy.h"

#include <dlfcn.h>

namespace {
using MallocFn = void* (*)(size_t);
using FreeFn = void (*)(void*);

MallocFn realMalloc() {
    static MallocFn f = reinterpret_cast<MallocFn>(dlsym(RTLD_NEXT, "vekMalloc"));
    return f;
}
FreeFn realFree() {
    static FreeFn f = reinterpret_cast<FreeFn>(dlsym(RTLD_NEXT, "vekFree"));
    return f;
}
}  // namespace

CoreSpy& CoreSpy::get() {
    static CoreSpy s;
    return s;
}

extern "C" __attribute__((visibility("default"))) void* vekMalloc(size_t length) {
    CoreSpy& s = CoreSpy::get();
    s.mallocSizes.push_back(length);
    if (s.failNext) {
        s.failNext = false;
        return nullptr;
    }
    // A zero-byte request still gets a block the test can free.
    return realMalloc()(length);
}

extern "C" __attribute__((visibility("default"))) void vekFree(void* ptr) {
    CoreSpy::get().freed.push_back(ptr);
    realFree()(ptr);
}

extern "C" __attribute__((visibility("default"))) int ownGetFeature(unsigned long long mask) {
    CoreSpy& s = CoreSpy::get();
    s.featureMasks.push_back(mask);
    if (s.featureAnswer >= 0) return s.featureAnswer;
    using Fn = int (*)(unsigned long long);
    static Fn real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "ownGetFeature"));
    return real(mask);
}

extern "C" __attribute__((visibility("default"))) unsigned long long vekGetEnabledCpuFeatures(void) {
    ++CoreSpy::get().enabledFeatureCalls;
    using Fn = unsigned long long (*)(void);
    static Fn real = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "vekGetEnabledCpuFeatures"));
    return real();
}

#pragma once

#include <stddef.h>

#include <vector>

// What the library asked of the core since the last reset().
struct CoreSpy {
    std::vector<size_t> mallocSizes;
    std::vector<void*> freed;
    bool failNext = false;
    void reset() {
        mallocSizes.clear();
        freed.clear();
        failNext = false;
    }
    static CoreSpy& get();
};

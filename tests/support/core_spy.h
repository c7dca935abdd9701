#pragma once

#include <stddef.h>

#include <vector>

// What the library asked of the core since the last reset().
struct CoreSpy {
    std::vector<size_t> mallocSizes;
    std::vector<void*> freed;
    bool failNext = false;
    // The feature query: the masks asked and the answer to give (-1: the
    // real core's answer).
    std::vector<unsigned long long> featureMasks;
    int featureAnswer = -1;
    int enabledFeatureCalls = 0;  // calls of vekGetEnabledCpuFeatures, ever
    void reset() {
        mallocSizes.clear();
        freed.clear();
        failNext = false;
        featureMasks.clear();
        featureAnswer = -1;
    }
    static CoreSpy& get();
};

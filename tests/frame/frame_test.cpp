// Version records and vector allocation.
#include <dlfcn.h>
#include <string.h>

#include <string>

#include "support/core_spy.h"
#include "support/support.h"
#include "vekcore.h"

namespace {

TEST(Version, RecordMatchesFeatureAnswerAndIsStable) {
    const VekLibraryVersion* v = veksGetLibVersion();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v, veksGetLibVersion());
    const std::string name = v->name;
    EXPECT_EQ(name.rfind("vekSP SSE4.1/4.2 (", 0), 0u) << name;
    const bool plus = ownGetFeature(0x80) != 0;
    EXPECT_EQ(name.back() == '+', plus) << name;
    const std::string code(v->targetCode, strnlen(v->targetCode, 4));
    EXPECT_EQ(name, "vekSP SSE4.1/4.2 (" + code + ")" + (plus ? "+" : ""));
    // Zero padding after the code.
    for (size_t i = code.size(); i < 4; ++i) EXPECT_EQ(v->targetCode[i], 0);
    const std::string ver = std::to_string(v->major) + "." + std::to_string(v->minor) + "." +
                            std::to_string(v->update) + " (r" + std::to_string(v->build) + ")";
    EXPECT_EQ(std::string(v->version), ver);
    // "Nov 22 2026": month, day, four-digit year separated by blanks.
    char month[8] = {0};
    int day = 0, year = 0;
    ASSERT_EQ(sscanf(v->buildDate, "%3s %d %d", month, &day, &year), 3) << v->buildDate;
    EXPECT_NE(std::string("JanFebMarAprMayJunJulAugSepOctNovDec").find(month), std::string::npos);
    EXPECT_TRUE(day >= 1 && day <= 31);
    EXPECT_TRUE(year >= 2000 && year <= 9999);
}

TEST(Version, FeatureMask0x80ChoosesThePlusRecord) {
    CoreSpy& spy = CoreSpy::get();
    spy.reset();
    spy.featureAnswer = 0;
    const VekLibraryVersion* plain = veksGetLibVersion();
    EXPECT_EQ(plain, veksGetLibVersion());
    spy.featureAnswer = 7;  // any non-zero answer
    const VekLibraryVersion* plus = veksGetLibVersion();
    ASSERT_EQ(spy.featureMasks.size(), 3u);
    for (unsigned long long m : spy.featureMasks) EXPECT_EQ(m, 0x80ull);
    ASSERT_NE(plain, plus);
    const std::string a = plain->name, b = plus->name;
    EXPECT_EQ(a + "+", b);
    // The records differ in nothing else.
    EXPECT_EQ(plain->major, plus->major);
    EXPECT_EQ(plain->minor, plus->minor);
    EXPECT_EQ(plain->update, plus->update);
    EXPECT_EQ(plain->build, plus->build);
    EXPECT_EQ(memcmp(plain->targetCode, plus->targetCode, 4), 0);
    EXPECT_EQ(plain->version, plus->version);
    EXPECT_EQ(plain->buildDate, plus->buildDate);
    spy.reset();
}

TEST(Attach, ReadsTheFeatureMaskOnceAndNeverAgain) {
    EXPECT_EQ(CoreSpy::get().enabledFeatureCalls, 1);
    T32f* p = veksMalloc_32f(16);
    veksFree(p);
    (void)veksGetLibVersion();
    EXPECT_EQ(CoreSpy::get().enabledFeatureCalls, 1);
}

struct MallocCase {
    const char* name;
    void* (*fn)(int);
    uint32_t bytes;
};

template <class T, T* (*F)(int)>
void* call(int len) {
    return F(len);
}

const MallocCase kMalloc[] = {
    {"veksMalloc_8u", call<T8u, veksMalloc_8u>, 1},       {"veksMalloc_8s", call<T8s, veksMalloc_8s>, 1},
    {"veksMalloc_16s", call<T16s, veksMalloc_16s>, 2},    {"veksMalloc_16u", call<T16u, veksMalloc_16u>, 2},
    {"veksMalloc_8sc", call<T8sc, veksMalloc_8sc>, 2},    {"veksMalloc_32f", call<T32f, veksMalloc_32f>, 4},
    {"veksMalloc_32s", call<T32s, veksMalloc_32s>, 4},    {"veksMalloc_32u", call<T32u, veksMalloc_32u>, 4},
    {"veksMalloc_16sc", call<T16sc, veksMalloc_16sc>, 4}, {"veksMalloc_64f", call<T64f, veksMalloc_64f>, 8},
    {"veksMalloc_64s", call<T64s, veksMalloc_64s>, 8},    {"veksMalloc_32fc", call<T32fc, veksMalloc_32fc>, 8},
    {"veksMalloc_32sc", call<T32sc, veksMalloc_32sc>, 8}, {"veksMalloc_64fc", call<T64fc, veksMalloc_64fc>, 16},
    {"veksMalloc_64sc", call<T64sc, veksMalloc_64sc>, 16},
};

TEST(Malloc, ByteCountsWrapInUnsigned32BitsAndReachTheCoreUnchanged) {
    CoreSpy& spy = CoreSpy::get();
    for (const MallocCase& c : kMalloc) {
        for (int len : {1, 3, 1000, 268435456, 1073741825, 0x7fffffff}) {
            spy.reset();
            // Large requests are answered "no memory" by the spy itself, so
            // only the byte count that reached the core is looked at.
            spy.failNext = len > 1000;
            void* p = c.fn(len);
            const uint32_t want = static_cast<uint32_t>(static_cast<uint64_t>(len) * c.bytes);
            ASSERT_EQ(spy.mallocSizes.size(), 1u) << c.name << " " << len;
            EXPECT_EQ(spy.mallocSizes[0], want) << c.name << " " << len;
            if (p) {
                EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % VEK_MALLOC_ALIGNMENT, 0u);
                veksFree(p);
                ASSERT_EQ(spy.freed.size(), 1u);
                EXPECT_EQ(spy.freed[0], p);
            }
        }
        spy.reset();
        EXPECT_EQ(c.fn(0), nullptr) << c.name;
        EXPECT_EQ(c.fn(-5), nullptr) << c.name;
        EXPECT_EQ(c.fn(INT32_MIN), nullptr) << c.name;
        EXPECT_TRUE(spy.mallocSizes.empty()) << c.name << ": len < 1 must not ask the core";
    }
}

TEST(Malloc, NamedEdgeCases) {
    CoreSpy& spy = CoreSpy::get();
    spy.reset();
    void* p = veksMalloc_64fc(268435456);  // 2^32 bytes wrap to 0
    ASSERT_EQ(spy.mallocSizes.size(), 1u);
    EXPECT_EQ(spy.mallocSizes[0], 0u);
    veksFree(p);
    spy.reset();
    spy.failNext = true;
    EXPECT_EQ(veksMalloc_32f(10), nullptr);  // the core's failure is passed on
    spy.reset();
    veksFree(nullptr);  // passed to the core as it is
    ASSERT_EQ(spy.freed.size(), 1u);
    EXPECT_EQ(spy.freed[0], nullptr);
}

TEST(Malloc, SharedGroupsResolveToOneImplementation) {
    void* lib = dlopen(nullptr, RTLD_NOW);
    ASSERT_NE(lib, nullptr);
    const char* groups[][4] = {{"veksMalloc_8u", "veksMalloc_8s", nullptr, nullptr},
                               {"veksMalloc_16s", "veksMalloc_16u", "veksMalloc_8sc", nullptr},
                               {"veksMalloc_32f", "veksMalloc_32s", "veksMalloc_32u", "veksMalloc_16sc"},
                               {"veksMalloc_64f", "veksMalloc_64s", "veksMalloc_32fc", "veksMalloc_32sc"},
                               {"veksMalloc_64fc", "veksMalloc_64sc", nullptr, nullptr}};
    for (auto& g : groups) {
        void* first = dlsym(lib, g[0]);
        ASSERT_NE(first, nullptr) << g[0];
        for (int i = 1; i < 4 && g[i]; ++i) EXPECT_EQ(dlsym(lib, g[i]), first) << g[i];
    }
    EXPECT_NE(dlsym(lib, "veksMalloc_8u"), dlsym(lib, "veksMalloc_16s"));
    dlclose(lib);
}

}  // namespace

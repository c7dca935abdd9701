// Runs once when the library is attached to a process: reads the enabled
// processor-feature mask and notes whether SSSE3 and MOVBE (0x10, 0x20) are
// both enabled. No operation consults the note; every export's result and
// path are independent of it.
#include "vekcore.h"

namespace {

bool gSsse3AndMovbe = false;

__attribute__((constructor)) void attach() {
    const unsigned long long m = vekGetEnabledCpuFeatures();
    gSsse3AndMovbe = (m & 0x30ull) == 0x30ull;
    (void)gSsse3AndMovbe;
}

}  // namespace

// The version query. Two constant records differ only in the name; the one
// ending in "+" is chosen when the core reports feature 0x80 (SSE4.2).
#include "frame/detail/export.h"
#include "version_info.h"
#include "vekcore.h"

namespace {

#define VEKS_TARGET_CODE "s41"
#define VEKS_NAME_TEXT "vekSP SSE4.1/4.2 (" VEKS_TARGET_CODE ")"

const VekLibraryVersion kPlain = {VEKS_VERSION_MAJOR, VEKS_VERSION_MINOR, VEKS_VERSION_UPDATE,
                                  VEKS_VERSION_BUILD, VEKS_TARGET_CODE,   VEKS_NAME_TEXT,
                                  VEKS_VERSION_TEXT,  VEKS_BUILD_DATE};
const VekLibraryVersion kPlus = {VEKS_VERSION_MAJOR, VEKS_VERSION_MINOR, VEKS_VERSION_UPDATE,
                                 VEKS_VERSION_BUILD, VEKS_TARGET_CODE,   VEKS_NAME_TEXT "+",
                                 VEKS_VERSION_TEXT,  VEKS_BUILD_DATE};

}  // namespace

VEKS_EXPORT const VekLibraryVersion* veksGetLibVersion(void) {
    const unsigned long long mask = 0x80ull;  // low word 0x80, high word 0
    return ownGetFeature(mask) ? &kPlus : &kPlain;
}

// How an export is defined. Each export is one row: a shape macro of its
// family given the export's full name written out, which expands to a real
// extern "C" function. The prototype in veks.h is in scope wherever rows are
// expanded, so a row whose signature differs from its declaration does not
// compile.
//
// Exports whose element types have the same width and whose operation does
// not look at the values share one implementation: VEKS_ALIAS makes the
// second name another symbol for the first one's code.
#pragma once

#include "veks.h"

#define VEKS_EXPORT extern "C" VEKS_API

// VEKS_ALIAS(returns, name, (arguments), target): name resolves to target's
// code. Target must be defined in the same translation unit.
#define VEKS_ALIAS(ret, name, args, target) \
    extern "C" VEKS_API ret name args __attribute__((alias(#target)))

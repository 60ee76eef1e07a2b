// The one rule of annotation that the machine uses directly, for the Pairs that it makes itself.
#pragma once

#include <cstdint>

#include "graph/cell.h"

namespace tarn {

// The annotation bits (field, code, flag) of a new Pair of l and r, which are both annotated.
uint64_t pairbits(const Cell* l, const Cell* r);

}  // namespace tarn

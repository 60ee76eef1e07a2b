// Putting arguments in for variables. What does not hold the variable is shared, not copied, so the
// cost is that of the places where it occurs.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Fills in body with arg, a closed term, in place of the free occurrences of letter; a letter
// outside 'a' to 'z' is a program fault. Takes both.
void substitute(CellRef& out, CellRef body, CellRef arg, uint8_t letter);

// For each letter, 'a' at 0, its argument: lent, closed and annotated. Set only for the letters
// that are replaced.
using Bindings = Cell* [26];

// Replaces several letters at once, those of the set `letters`, bit 0 for 'a'. Lends body, which
// must be annotated, and gives the result, which is annotated too.
Cell* instantiate(Cell* body, const Bindings& to, uint32_t letters);

}  // namespace tarn

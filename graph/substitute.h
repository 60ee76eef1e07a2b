// Putting arguments in for variables. What does not hold the variable is shared, not copied, so the
// cost is that of the places where it occurs.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Replaces the free occurrences of letter ('a' to 'z', else a program fault) in body by arg, a
// closed term. Takes both.
void substitute(CellRef& out, CellRef body, CellRef arg, uint8_t letter);

// For each letter its argument, lent, closed and annotated; set only for letters that are replaced.
using Bindings = Cell* [26];

// Replaces several letters at once, those of the set `letters`, bit 0 for 'a'. Lends body, which is
// annotated; gives a reference to the result, which is annotated too.
Cell* instantiate(Cell* body, const Bindings& to, uint32_t letters);

}  // namespace tarn

// The set of interned terms: of equal terms one is kept, so that equal becomes the same cell.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Gives the one term of the set that is equal to x, by termorder; if there is none, x is put in,
// rebuilt of interned links where its own are not. Lends x.
CellRef tern(Cell* x);

// Empties the set; at the end of a run, since a name may mean another thing in the next. Finalisers
// must be off.
void ternclear();

}  // namespace tarn

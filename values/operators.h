// The operators of the language, over every pair of kinds: arithmetic on numbers, joining, cutting
// and repeating on strings and arrays. Arguments are lent.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valueplus(Cell* x, Cell* y);  // +
CellRef valuedash(Cell* x, Cell* y);  // -
CellRef valuemult(Cell* x, Cell* y);  // *
CellRef valuecent(Cell* x, Cell* y);  // %
CellRef valuebuck(Cell* x);           // $
CellRef valuewave(Cell* x);           // ~
CellRef valuerank(Cell* x);           // the length

// `/` and `^`, which append to arrays: an array that nothing else holds grows where it is, so that
// a loop of appends costs what its steps cost.
CellRef& callover(CellRef& out, CellRef application);
CellRef& callpowa(CellRef& out, CellRef application);

}  // namespace tarn

// The operators of the language, over every pair of kinds: arithmetic on numbers, joining, cutting
// and repeating on strings and arrays. Arguments are lent.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valueplus(Cell* x, Cell* y);  // +
CellRef valuedash(Cell* x, Cell* y);  // -
CellRef valuemult(Cell* x, Cell* y);  // *
CellRef valueover(Cell* x, Cell* y);  // /
CellRef valuecent(Cell* x, Cell* y);  // %
CellRef valuepowa(Cell* x, Cell* y);  // ^
CellRef valuebuck(Cell* x);           // $
CellRef valuewave(Cell* x);           // ~
CellRef valuerank(Cell* x);           // the length

}  // namespace tarn

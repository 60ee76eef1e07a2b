// Elements by their index, for all kinds of values by one rule: an index from 0 on, or a negative
// one counted from the end. An index that is no integer or out of range answers `Z`.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valuelook(Cell* x, Cell* i);           // the element or bit at i
CellRef valuetrim(Cell* x, Cell* a, Cell* b);  // what stands from a up to but not including b

// `cork x i v`: x with v at i. When nothing but its own application holds x, x itself is changed
// and becomes the answer, so that a loop over an array that nobody else sees costs what its steps
// cost. Nobody can look at the old x any more.
CellRef& callcork(CellRef& out, CellRef application);

}  // namespace tarn

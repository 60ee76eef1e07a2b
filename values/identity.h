// Builtins that ask which cell a value is, or make it the same cell as its equals.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valueraws(Cell* x, Cell* y);  // whether x and y are one cell
CellRef valuetern(Cell* x);           // the shared twin of x
// The name of the kind as a zits, shared: each of the seven answers is one cell.
CellRef valuetype(Cell* x);

// `todo a b c`: `c a b`, a pair in the manner of V; but `todo a b` itself if c is the very leaf
// `todo` that heads this application. The release of `todo a b` evaluates `a b` (release.cpp).
CellRef& calltodo(CellRef& out, CellRef application);

}  // namespace tarn

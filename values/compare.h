// Comparison. The four operators order all values: those of one kind by what they are, those of
// different kinds by the letters of their kinds. Functions, truth values and failures (kind 'e')
// have an order but no equality, unless they are one cell. Arguments are lent.
#pragma once

#include "graph/cell.h"

namespace tarn {

// On purpose: `>` is greater or equal.
CellRef valueless(Cell* x, Cell* y);  // <
CellRef valuegteq(Cell* x, Cell* y);  // >
CellRef valuesame(Cell* x, Cell* y);  // =
CellRef valuediff(Cell* x, Cell* y);  // #

CellRef valuecmpr(Cell* x, Cell* y);  // termorder: 0, 1 if x is the lower, or 01

}  // namespace tarn

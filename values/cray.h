// Arrays: one leaf that holds a count and a row of slots, each a cell or empty. Arrays do not
// change: each of these makes a new leaf that shares the elements (but see `cork` in access.h).
//
// Storing the leaf "U" leaves a slot empty, and an empty slot reads as a leaf "Z".
//
// Arguments are lent and must be arrays, v any value; answers are given.
#pragma once

#include "graph/cell.h"

namespace tarn {

// The array of no slots that the language starts from; one cell for the whole process.
CellRef crayempty();

CellRef crayget(const Cell* x, int64_t i);             // i must be in range
CellRef crayset(const Cell* x, int64_t i, Cell* v);    // a copy but for one slot
void craysethere(Cell* x, int64_t i, Cell* v);         // in place; the old element is released last
CellRef crayappend(const Cell* x, Cell* v);
CellRef crayprepend(Cell* v, const Cell* x);
CellRef crayconcat(const Cell* x, const Cell* y);
CellRef crayslice(const Cell* x, int64_t from, int64_t to);
// n times all slots of x, n 0 or more. No more slots than fit the memory; where they do not fit
// the count of the header, that keeps its low bits, and the slots above are never read or released.
CellRef crayrepeat(const Cell* x, int64_t n);

// The list of the slots, `J s0 (J s1 .. K)`.
CellRef craylist(const Cell* x);

}  // namespace tarn

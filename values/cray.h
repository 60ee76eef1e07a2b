// Arrays: one leaf that holds a count and a row of slots, each a cell or empty. An array does not
// change as long as anybody can see it: all of these but craysethere make a new leaf, which shares
// the elements.
//
// Storing the leaf "U" leaves a slot empty, and an empty slot reads as a leaf "Z".
//
// Arguments are lent and must be arrays, v any value; answers are given.
#pragma once

#include "graph/cell.h"

namespace tarn {

// The array of no slots that the language starts from; one cell for the whole process.
CellRef crayempty();

CellRef crayget(const Cell* x, int64_t i);           // i must be in range here and below
CellRef crayset(const Cell* x, int64_t i, Cell* v);  // a copy but for one slot
void craysethere(Cell* x, int64_t i, Cell* v);       // in place; the old element is released last
CellRef crayappend(const Cell* x, Cell* v);
CellRef crayprepend(Cell* v, const Cell* x);
CellRef crayconcat(const Cell* x, const Cell* y);
CellRef crayslice(const Cell* x, int64_t from, int64_t to);
// The slots of x, n times over; n is 0 or more. Of a count that the header has no room for it keeps
// the low bits, and the slots above are never read or released; slots beyond all memory make malloc
// fail.
CellRef crayrepeat(const Cell* x, int64_t n);

// The list of the slots, `J s0 (J s1 .. K)`.
CellRef craylist(const Cell* x);

}  // namespace tarn

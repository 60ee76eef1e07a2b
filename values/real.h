// Reals, kind 'r': an IEEE double in a leaf, the 8 bytes behind a space. Arithmetic on them raises
// nothing: infinities and NaNs are ordinary reals. All functions lend their arguments.
//
//   header, ' ', 8 bytes of the double, not aligned, 0
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

double realvalue(const Cell* x);  // of a real leaf; any other cell is a program fault
CellRef realleaf(double d);

// As it is joined to text, in the C format "%e": six decimals and an exponent, "1.500000e+00".
Str realtext(const Cell* x);

// The double nearest to a digit text of kind 'i'.
double doubleofhint(const Str& text);

// A real as it is, an integer or a numb as a real; fatal for any other kind, with the word
// "truecast". Null for a list that is no number.
CellRef truecast(Cell* x);

}  // namespace tarn

// The numbs of the language, kind 'o': exact binary numbers with a fraction. A digit leaf whose
// text begins "00", or a list of truth values that begins with H; numbbody.h tells how the bits
// stand.
//
//   "00"  0      "001"  1      "002"  0.5      "003"  1.5      "0017"  5      "000"  -1
//
// All functions lend their arguments. Those that answer a cell answer the leaf Z if an operand is a
// list that is no number; the others are to be asked only about numbers (coerce.h). An operand that
// is no numb at all is a program fault.
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// Each call of these two appends a line to "/tmp/both.bug": "jjaa", the sign of y, the sign of x
// (for numbsub, y's is that of the negated y). On purpose: the trace is part of what they do.
CellRef numbadd(Cell* x, Cell* y);
CellRef numbsub(Cell* x, Cell* y);

CellRef numbmul(Cell* x, Cell* y);
CellRef numbmod(Cell* x, Cell* y);  // never negative; Z for a zero y. There is no division.
CellRef numbneg(Cell* x);

// y is an integer. If x is 2, the numb "004", the power is exact, for a negative y too; Z if the
// magnitude of y is 2^59 or more. With any other x a negative y gives Z, and zero gives 00.
CellRef numbpow(Cell* x, Cell* y);

// On purpose: the sign that programs see is the bit at the place of 2^0, and the order of numbs
// goes by it as well.
bool numbsign(Cell* x);
bool numbless(Cell* x, Cell* y);

// The body of a numb (numbbody.h), empty for a list that is no number; and the digit leaf of a
// body. A body without a set bit is a program fault.
Str numbbits(Cell* x);
CellRef numbleaf(const Str& t);

}  // namespace tarn

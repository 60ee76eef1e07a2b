// The integers of the language, kind 'i': signed, of any length. The value of a digit leaf is its
// text: decimal digits, highest first, and a leading '0' for the minus sign.
//
//   "0"  zero      "123"  123      "0123"  -123      "00.."  not an integer, see numb.h
//
// Operands may also be lists of truth values (see bitlist.h). All functions lend their arguments;
// those that answer a cell give a new digit leaf, or the leaf Z if an operand is a list that is no
// number. Anything but an integer is a program fault.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef hintadd(Cell* x, Cell* y);
CellRef hintsub(Cell* x, Cell* y);
// On purpose: the product is born annotated, with arity 2 where all other integers have 1.
CellRef hintmul(Cell* x, Cell* y);
CellRef hintdiv(Cell* x, Cell* y);  // floored; Z for a zero y
// On purpose: the remainder is never negative, whatever the signs, and so no companion of the
// quotient for a negative y; and a negative power is 0 even of 1. Z for the remainder by zero.
CellRef hintmod(Cell* x, Cell* y);
CellRef hintpow(Cell* x, Cell* y);
CellRef hintneg(Cell* x);
CellRef hintabs(Cell* x);

// For these a list that is no number counts as zero.
bool hintsign(Cell* x);    // zero and positive
bool hintiszero(Cell* x);  // the leaf K counts as zero too
bool hintless(Cell* x, Cell* y);
bool hintgteq(Cell* x, Cell* y);

}  // namespace tarn

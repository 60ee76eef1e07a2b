// Numbers as lists of truth values. Every digit leaf is also the list of its bits (see bits.h), and
// a list `J b rest` whose first element is `K` or `H` is a number, an integer or a numb. Its tail
// may be a digit leaf, which stands for the rest of the list. All functions here lend cells, but
// for a tail that is taken.
//
//   2    J K (J K (J H K))      K K H, behind them the sentinel: the bits 1011 are 11 = 4 * 2 + 3
//   -1   J K 00                 the leaf 00 is the list H, so K H: the bits 101 are 5 = 4 * 1 + 1
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// A Pair of the shape `J b y`, where b is the leaf of that one byte. Looks at the first element
// only.
bool islistof(const Cell* x, char byte);

// Whether every element is K or H and the end is K or a digit leaf. True for any cell that is no
// list.
bool iswholelist(const Cell* x);

// The bit string of the leaf K, of a digit leaf or of a list of truth values; anything else is a
// program fault. Empty for a list with an element that is neither K nor H, or with an end that is
// neither K nor a digit leaf: such a list is no number, though its kind says so.
Str bitsofterm(Cell* x);

// Gives the leaf K for the empty list, else the digit leaf; s must have a set bit.
CellRef termofbits(const Str& s);

// Gives the complete list of the bit string, each element a new leaf K or H, and behind it the
// tail, which is taken.
CellRef listofbits(const Str& s, CellRef tail);

// A value of kind 'i' or 'o' in digit form: x itself if it is a leaf, else the list packed; null
// for a list that is no number.
CellRef digitform(Cell* x);

}  // namespace tarn

// What builtins ask of their arguments, and how a C value becomes a cell and a cell a C value. All
// functions lend their arguments and give what they make.
#pragma once

#include <cstdint>

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// --- Shapes: these look at the first byte or the first element only ------------------------------

bool ishint(const Cell* x);     // the leaf K, a digit leaf that does not begin "00", or J K y
bool isnumbish(const Cell* x);  // the leaf K, any digit leaf, J H y or J K y
// A size: the leaf K, the leaf 0, a digit leaf that does not begin with '0', or J H y. On purpose:
// it is the list of a numb that is a size, and not that of an integer.
bool isnat(const Cell* x);

// --- Integers ------------------------------------------------------------------------------------

// The low 64 bits of the magnitude of what passes isnumbish. There is no test of the range: a
// number that is too large wraps. The leaf K, and a list that is no number, are 0.
uint64_t hintlow(Cell* x);
int64_t hintsmall(Cell* x);   // the same, negated if x is negative
CellRef hintfrom(int64_t n);  // a digit leaf
CellRef hintfromu(uint64_t n);

// The decimal text, sign and marker zeros included, of a value of kind 'i' or 'o'; empty for a list
// that is no number.
Str hinttext(Cell* x);

// False for a list of kind 'i' or 'o' that is no number: an element is not K or H, or the end is
// neither K nor a digit leaf. A builtin that needs its value answers Z. True for any other cell.
bool isnumber(const Cell* x);

// --- Truth values --------------------------------------------------------------------------------

int truthof(const Cell* x);  // 1 for the leaf K, 0 for H; anything else is a program fault
CellRef truthleaf(bool v);   // a new leaf K or H

}  // namespace tarn

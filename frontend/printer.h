// From terms back to text, in the language's own syntax, with no more parentheses and spaces than
// keep the atoms apart.
//
//   S K K        SKK            f x          (f x)
//   plus 1       plus1          plus 1 2     (plus1 2)
//   f [ab]       f[ab]          1 (K H)      (1 KH)
//
// Operators and binders have no form of their own: + 1 2 prints as (+1 2), \ a a as (\a a).
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// The text of a term, which is lent and not evaluated.
Str printcell(Cell* term);

}  // namespace tarn

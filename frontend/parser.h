// From tidied program text to terms. There are no tokens: a text is cut at its operators, the
// loosest first, and the pieces are parsed in turn. An operator is a name applied to its operands
// and has no meaning here; a missing operand is the name "}". Parsing never fails: what is wrong
// with a term is found by the checks.
//
//   "1+2=3?H;K"   ; (? (= (+ 1 2) 3) H) K
//   "f(a,b)"      f a b
//   "x{1}x"       { x 1 x                     a let: bind x to 1 in x
//   "a\a b"       \ a (a b)                   an abstraction
//   "f!x~y"       f (! x) (~ y)
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// The term of one expression, as a tree without shared cells, not annotated. The text must be
// balanced: one that passed bracketcheck, and was tidied, or a piece of it between commas.
CellRef parseterm(const Str& text);

}  // namespace tarn

// Which calls of the builtins on values end the process by rule, or as good as never come back.
// What is thrown at the language at random keeps clear of them, so that every death is a find.
#pragma once

#include <string_view>

#include "graph/cell.h"

namespace tarn {

// Whether a call of the builtin is such a one. `args` are its arguments, lent, from the first to
// the last, `n` of them. A builtin that reaches out of the language is not judged here.
bool callends(std::string_view builtin, Cell* const* args, int n);

// Whether the text of a zits, which may be a rope, is out of balance: such a text may not be taken
// apart.
bool isunbalanced(Cell* x);

// A count that asks for more memory or time than there is.
bool ishuge(Cell* x);

}  // namespace tarn

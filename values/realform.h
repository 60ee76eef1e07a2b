// The builtin `real`: the real form of a value.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Lends x and gives its real form. A real is answered as it is; integers and numbs are converted;
// the text of a post or a zits is read as C's `strtod` reads it, as 0 if it is no number. A tree of
// the 64 bits of a double, as an applied real hands it out, gives that double. All else is `Z`. On
// purpose: a tree that goes wrong below the top of a byte is a program fault.
CellRef valuereal(Cell* x);

}  // namespace tarn

// The builtin `real`: the real form of a value.
#pragma once

#include "graph/cell.h"

namespace tarn {

// A real is answered as it is; integers and numbs are converted; the text of a post or a zits is
// read as C's `strtod` reads it, 0 if it is none. A tree of the 64 bits of a double, as an
// applied real hands it out, gives that double. All else is `Z`. Lends.
CellRef valuereal(Cell* x);

}  // namespace tarn

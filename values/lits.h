// The builtins `lits` and `lots`: from a list of truth values to the leaf that stands for it, and
// back. Strings and reals have such forms too. Both lend their argument and give the answer.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Packs. A list of truth values becomes its digit leaf, and the empty one `K`; a digit leaf is
// answered as it is; a real becomes the exact numb; of a zits or a post the first 8 bytes are read
// as one signed integer, lowest byte first. All else is `Z`.
CellRef valuelits(Cell* x);

// Unpacks into a complete list that ends in `K`. A number becomes its bits; a real the 64 bits of
// its pattern, lowest first; a zits its tree; a post an `H` for each NUL at its end, one `K`, and
// then the bits of the bytes before, without the highest set one. `K` is answered as `K`, all else
// as `Z`.
CellRef valuelots(Cell* x);

}  // namespace tarn

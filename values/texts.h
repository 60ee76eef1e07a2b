// The builtins that turn values into text and back, and that walk text as a tree.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valuecape(Cell* x);  // post to zits and back, with the escapes [p] [q] [r]
CellRef valuezits(Cell* x);  // the zits form of a value
CellRef valueinit(Cell* x);  // the post form of a value
CellRef valueleft(Cell* x);  // a zits, or its tree form, without its last item
CellRef valuerght(Cell* x);  // the last item
CellRef valueleaf(Cell* x);  // whether there is none

}  // namespace tarn

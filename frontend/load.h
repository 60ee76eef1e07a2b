// Program text that is compiled while a program runs. It goes the way of every program, on
// definitions of its own, which are then added to those of the run: it can add names, and can
// redefine none.
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// The value of the text's main expression. A fault of the text is the leaf Z for load, a value that
// raises the report for road. Both reduce, and may be called while a reduction goes on. Once the
// definitions are in, they stay until the run ends: what then turns out to have an unbound letter
// is the leaf Z under its name.
CellRef loadtext(const Str& text);
CellRef roadtext(const Str& text);

}  // namespace tarn

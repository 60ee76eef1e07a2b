// Program text that is compiled while a program runs. It goes the way of every program, on
// definitions of its own, which are then added to those of the run: it can add names, and can
// redefine none.
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// Give the value of the text's main expression; the text is lent. If the text has a fault, loadtext
// gives the leaf Z, and roadtext a value that raises the report. Both reduce, and may be called
// while a reduction goes on. Definitions that have been added stay until the run ends, even if the
// last check then finds an unbound letter in one: that one is the leaf Z.
CellRef loadtext(const Str& text);
CellRef roadtext(const Str& text);

}  // namespace tarn

// Sharing: equal subterms of all definitions of a run become one cell. The table of what has been
// met keeps its terms alive until the run ends; so a builtin that may change a value in place, as
// its only holder, never gets at the text of the program.
#pragma once

#include "graph/cell.h"

namespace tarn {

// The one cell for the term, lent, and all terms equal to it.
CellRef sharepass(Cell* term);

// Takes the entries out of the table that still need evaluation: all of them, or those of the term
// down to where it is normal. These annotate.
void sharetrim();
void unsharepass(Cell* term);

// Empties the table.
void shareclear();

}  // namespace tarn

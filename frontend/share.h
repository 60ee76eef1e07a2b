// Sharing: equal subterms of all definitions of a run become one cell. The table of what has been
// met keeps its terms alive until the run ends; so a builtin that may change a value in place, as
// its only holder, never gets at the text of the program.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Gives the one cell that stands for the term, which is lent, and for all terms equal to it.
CellRef sharepass(Cell* term);

// Takes out of the table what still needs evaluation: all such entries, or those of one term, down
// to where it is normal. Both annotate.
void sharetrim();
void unsharepass(Cell* term);

// Empties the table.
void shareclear();

}  // namespace tarn

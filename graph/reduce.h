// The abstract machine: turns a closed term into its normal form.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Takes a closed term and fills in its normal form. It may be called again from within, by a
// builtin or a finaliser. A term without a normal form keeps it busy for ever.
void reduceterm(CellRef& out, CellRef term);

// How many steps there were since the start of the process. Steps are those of the plain machine,
// whose whole state is a term; where this one does several of them at once, it counts them all.
int64_t reducesteps();

// Once so many steps have been made since the start of the process, every run is cut off with an
// empty failure for its value. There is no limit at first: it is for tests that evaluate whatever
// they come across.
void reducelimit(int64_t steps);

// Turns finalisers on or off, and answers what they were. They run only while they are on, and
// reduceterm alone turns them on. What must not run any from within an evaluation (parsing, checks,
// passes) turns them off, and afterwards back to what they were.
bool finaliserswitch(bool on);

}  // namespace tarn

// The abstract machine: turns a closed term into its normal form.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Takes a closed term and fills in its normal form. It may be called again from within, by a
// builtin or a finaliser. A term without a normal form keeps it busy for ever.
void reduceterm(CellRef& out, CellRef term);

// How many steps there were since the start of the process. A step is one of a machine whose whole
// state is a term: the real one does several at once where it can, and counts them all.
int64_t reducesteps();

// Once so many steps have been made since the start of the process, every run is cut off with an
// empty failure for its value. Without a limit at first; it is for tests that evaluate whatever they
// come across.
void reducelimit(int64_t steps);

// Finalisers run only while this is on, and reduceterm alone turns it on. What must not run any
// from within an evaluation (parsing, checks, passes) turns it off and puts back what it was.
bool finaliserswitch(bool on);  // gives the old state

}  // namespace tarn

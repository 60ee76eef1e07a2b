// The abstract machine: turns a closed term into its normal form.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Takes a closed term and fills in its normal form. It may be called again from within, by a builtin
// or a finaliser. A term without a normal form keeps it busy for ever.
void reduceterm(CellRef& out, CellRef term);

// How many steps the machine has made since the start of the process.
int64_t reducesteps();

// Finalisers run only while this is on, and reduceterm alone turns it on. What calls code from within an evaluation that
// must not run any (parsing, checks, passes) turns it off and puts back what it was.
bool finaliserswitch(bool on);  // gives the old state

}  // namespace tarn

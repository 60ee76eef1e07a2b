// One evaluation, from a text to what is shown for it. Every run starts from scratch and nothing of
// it outlives its end:
//
//   loadprelude()  readprogram(text, base)  runcheck(report)  maindefinition()  cleardefs()
#pragma once

#include <cstdint>

#include "foundation/str.h"
#include "frontend/report.h"
#include "graph/cell.h"

namespace tarn {

// Checks the definitions and evaluates the main expression, the value of "_" if that is defined.
// The value takes the place of the main expression; a fault, static or raised, goes into the
// report, which comes in sound. Failure values such as Z are values.
void runcheck(Report& report);

// The main expression, or its value; none at all is a program fault.
CellRef maindefinition();

// Ends a run: erases all definitions and forgets all that was kept of their terms. No finaliser
// runs: that is for what a program drops, not for what is left when it is over.
void cleardefs();

// The value that raises a report, `] text`: as the answer of a builtin it ends the whole run.
CellRef reportvalue(const Report& report);

// What Escape-e shows.
struct Evaluation {
  bool ok;    // the program ran to its end
  Str shown;  // the printed value; if not ok, the message of the report
  Str place;  // if not ok, the place field of the report; else empty
};

// Runs a program: all of the above in order. Places in messages count from `base`.
Evaluation evaluate(const Str& text, int64_t base);

}  // namespace tarn

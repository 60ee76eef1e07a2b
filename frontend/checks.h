// The checks that a program can run: keys are names, every name that can be reached is defined,
// local variables fit the 26 letters and arities the machine, and nothing stays unbound. The
// passes that bring the definitions into the form of the machine run between them.
#pragma once

#include <map>
#include <set>

#include "foundation/str.h"
#include "frontend/report.h"
#include "graph/cell.h"

namespace tarn {

// Checks and rewrites all definitions, in the order of their names; stops at the first fault, which
// is then in the report. The report comes in sound. When all is well, every definition is
// annotated.
void checkprogram(Report& report);

// The single checks, for text that is compiled at run time. Each gives the report on one
// definition, sound if there is no fault; the name "" is the main expression.
Report checkfunky(const Str& key, Cell* term);
Report checkarity(const Str& key, Cell* term);
Report checkunbound(const Str& key, Cell* term);  // annotates

// Gives each long local name of a definition a letter; the report tells if there are not letters
// enough. The term is replaced.
Report namelocals(const Str& key, CellRef& term);

// The names that each definition of a program refers to, as name lists (namelist.h). A name that is
// no key here may still be a global definition.
using References = std::map<Str, CellRef>;

// Whether all names that can be reached from the main expression are defined. `what` stands before
// the undefined name in the message, with a blank behind it if it is not empty.
Report checkreferences(const References& uses, const char* what);

// The definitions that cannot run: those that use an undefined name, and all that use them.
std::set<Str> deaddefinitions(const References& uses);

}  // namespace tarn

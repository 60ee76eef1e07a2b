// From a program's text to its definitions.
//
//   main , item , item , ...        at top-level commas
//
// Everything before the first comma is the main expression; it may be empty. An item is a
// definition if it is `key\value`; every other item is passed over in silence. A key is a name
// (name\value), or a name marked live (name()\value), which is evaluated anew at each use. The last
// definition of a name in the text wins.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/str.h"
#include "frontend/report.h"
#include "graph/cell.h"

namespace tarn {

struct Item {
  Str key;        // the name that is defined, a symbol without brackets
  CellRef value;  // for a live one, the identity applied to what the text has
  bool live;
  int64_t place;  // of the item's first byte in the tidied text
};

struct Program {
  CellRef main;
  std::vector<Item> items;  // the definitions among the items, in text order
};

// Parses a raw text that has passed bracketcheck. The leaf of each "`" outside strings gets the
// number of a line with one, from 1. On purpose: they are handed out in the order of the trees,
// left before right, the main expression first, and not in that of the text.
Program parseprogram(const Str& text);

// The name that the term of one item defines, a symbol without brackets; empty if it is no
// definition.
Str itemname(Cell* term);

// Starts a run: empties all definitions and defines what the prelude does, keeping a copy.
void loadprelude();

// Adds the builtins and then the program to the definitions, the main expression under "". Places
// in the report count from `base`. It stops at the first report; what it has defined by then stays
// until the run is cleared.
Report readprogram(const Str& text, int64_t base);

// The report on a name of one small letter, which is for local variables only; sound for others.
Report refuseletter(const Item& item, int64_t base);

}  // namespace tarn

// What atoms do when they are applied: integers, strings, posts, reals and arrays can all stand at
// the head of an application. The machine only tells their kinds apart; the functions belong to
// the values and are handed in when the program starts.
#pragma once

#include "graph/cell.h"

namespace tarn {

// Gives the term that becomes the next focus. The head is the atom itself, lent; a0 is its first
// argument, taken.
using AtomFn = CellRef (*)(Cell* head, CellRef a0);

struct AtomTable {
  AtomFn integer;  // a digit leaf
  AtomFn data;     // a string, or a rope of them
  AtomFn post;
  AtomFn real;
  AtomFn cray;
};

// Hands the functions in, all of them. To be called before anything is evaluated.
void atomsuse(const AtomTable& table);
const AtomTable& atoms();

}  // namespace tarn

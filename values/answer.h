// What builtins answer with, and how a function over values becomes one.
//
// A value function lends its arguments and gives its answer; the templates below find the arguments
// on the spine of the application. The application is dropped after the answer is stored, so an
// argument outlives the work that is done on it.
//
//   {"plus", 2, with2<valueplus>},     a row of the table of builtins
#pragma once

#include <utility>

#include "graph/builtins.h"
#include "graph/cell.h"

namespace tarn {

// A new leaf each time, like the truth values of coerce.h: programs can tell one cell from another,
// and no two answers are one.
inline CellRef failure() { return leafbyte('Z'); }

// What was made, or a failure if it is null.
inline CellRef orfailure(CellRef made) { return made.null() ? failure() : std::move(made); }

inline bool istrue(const Cell* x) { return leafisbyte(x, 'K'); }
inline bool isfalse(const Cell* x) { return leafisbyte(x, 'H'); }
inline bool istruth(const Cell* x) { return istrue(x) || isfalse(x); }

// The arguments of an application, lent, counted from the last one.
inline Cell* lastarg(const Cell* f) { return rightlink(f); }
inline Cell* secondlastarg(const Cell* f) { return rightlink(leftlink(f)); }
inline Cell* thirdlastarg(const Cell* f) { return rightlink(leftlink(leftlink(f))); }

// Whether nothing but this application of n arguments holds its first one: neither that is shared,
// nor any of the Pairs on the way to it. Such a value may be changed, since nobody can look at the
// old one again.
inline bool ownsfirst(const Cell* f, int n) {
  for (; n > 1; n--, f = leftlink(f)) {
    if (!alone(cellrefs(f))) return false;
  }
  return alone(cellrefs(f)) && alone(cellrefs(rightlink(f)));
}

template <CellRef (*work)()>
CellRef& with0(CellRef& out, CellRef) {
  return out = work();
}

template <CellRef (*work)(Cell*)>
CellRef& with1(CellRef& out, CellRef f) {
  return out = work(lastarg(f));
}

template <CellRef (*work)(Cell*, Cell*)>
CellRef& with2(CellRef& out, CellRef f) {
  return out = work(secondlastarg(f), lastarg(f));
}

template <CellRef (*work)(Cell*, Cell*, Cell*)>
CellRef& with3(CellRef& out, CellRef f) {
  return out = work(thirdlastarg(f), secondlastarg(f), lastarg(f));
}

}  // namespace tarn

// Terms of the shape `head p q`, where the head is one letter: the list cells `J x y` and the pairs
// `V x y` that values are taken apart into.
//
//   Pair( Pair(head, p), q )
#pragma once

#include <utility>

#include "graph/cell.h"

namespace tarn {

// Gives `head p q`; takes p and q.
inline CellRef twofold(uint8_t head, CellRef p, CellRef q) {
  return cellpairtake(cellpairtake(leafbyte(head), std::move(p)), std::move(q));
}

// Whether x is `head p q`. Looks no further than its head.
inline bool istwofold(const Cell* x, char head) {
  return cellispair(x) && cellispair(leftlink(x)) && leafisbyte(leftlink(leftlink(x)), head);
}

// The p and the q of such a term, lent.
inline Cell* firstof(const Cell* x) { return rightlink(leftlink(x)); }
inline Cell* secondof(const Cell* x) { return rightlink(x); }

}  // namespace tarn

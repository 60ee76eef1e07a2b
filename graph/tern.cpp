// Interning. An array is told from others by the identity of its slots, as termorder has it.
#include "graph/tern.h"

#include <set>
#include <utility>

namespace tarn {

namespace {

struct Lower {
  bool operator()(const CellRef& x, const CellRef& y) const { return termorder(x, y) == 1; }
};

using Terms = std::set<CellRef, Lower>;

}  // namespace

static Terms& interned() {
  static Terms& set = *new Terms;
  return set;
}

static CellRef internedpair(Cell* x) {
  CellRef left = tern(leftlink(x));
  CellRef right = tern(rightlink(x));
  bool kept = left == leftlink(x) && right == rightlink(x);
  return kept ? cellcopy(x) : cellpairtake(std::move(left), std::move(right));
}

CellRef tern(Cell* x) {
  CellRef wanted = cellcopy(x);
  auto found = interned().find(wanted);
  if (found != interned().end()) return *found;
  if (cellispair(x)) wanted = internedpair(x);
  return *interned().insert(std::move(wanted)).first;
}

void ternclear() { interned().clear(); }

}  // namespace tarn

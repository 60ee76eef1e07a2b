// What happens when the last reference to a cell goes: its links are released, the left one before
// the right one, the slots of an array from the first, and the record is given back. Values nest a
// million deep, so this keeps a list of the dead cells that still have links to release. The list
// is threaded through the cells themselves: once its first link has been released, a Pair keeps the
// next cell of the list in its left link, an array in its first slot.
//
// A Pair `todo x y` is a finaliser: when it dies, the program evaluates `x y` and drops the result.
#include <cstdint>

#include "graph/annotate.h"
#include "graph/cellstore.h"
#include "graph/reduce.h"

namespace tarn {

static bool finaliserson = false;

bool finaliserswitch(bool on) {
  bool was = finaliserson;
  finaliserson = on;
  return was;
}

// An application is evaluated only if both parts are closed values: anything else was never the
// program's own finaliser, but a piece of its text. What is known to be open is not annotated.
static void finalise(Cell* x, Cell* y) {
  if (knownfree(x) != 0 || knownfree(y) != 0) return;
  CellRef heldx = cellcopy(x);
  CellRef heldy = cellcopy(y);
  if (!cellnormal(x) || !cellnormal(y)) return;
  if (cellfree(x) != 0 || cellfree(y) != 0) return;
  CellRef result;
  reduceterm(result, cellpair(x, y));
}

static void finalisepair(const Cell* c) {
  const Cell* l = leftlink(c);
  if (cellispair(l) && istodo(leftlink(l))) finalise(rightlink(l), rightlink(c));
}

// --- The list of dead cells with links to release ------------------------------------------------

// How many slots of a dead array have been released is kept in its hidden word.

// Hands out the first link of a dead cell and puts the cell on the list; a cell without links is
// freed, and the answer is null, as it is for an empty slot.
static Cell* firstlink(Cell* c, Cell*& list) {
  Cell* v = nullptr;
  if (cellispair(c)) {
    if (finaliserson && cellstore.todos != 0) finalisepair(c);
    v = leftlink(c);
    leftlink(c) = list;
  } else if (leafbytes(c)[0] == '\n' && crayslots(c) != 0) {
    v = crayslot(c, 0);
    crayput(c, 0, list);
    setleafcount(c, 1);
  } else {
    storefreeleaf(c);
    return nullptr;
  }
  list = c;
  return v;
}

// Hands out the next link of the cell at the head of the list; the cell is taken off and freed when
// that was its last.
static Cell* nextlink(Cell*& list) {
  Cell* c = list;
  if (cellispair(c)) {
    list = leftlink(c);
    Cell* v = rightlink(c);
    storefreepair(c);
    return v;
  }
  int64_t i = leafcount(c);
  if (i < crayslots(c)) {
    setleafcount(c, i + 1);
    return crayslot(c, i);
  }
  list = crayslot(c, 0);
  storefreeleaf(c);
  return nullptr;
}

void cellfreed(Cell* c) {
  Cell* list = nullptr;
  Cell* v = firstlink(c, list);
  while (true) {
    while (v != nullptr && (--v->header & cellrefsmask) == 0) v = firstlink(v, list);
    if (list == nullptr) return;
    v = nextlink(list);
  }
}

}  // namespace tarn

// What happens when the last reference to a cell goes: its links are released, the left one before
// the right one, the slots of an array from the first, and the record is given back. Values nest a
// million deep, so this keeps a list of the dead cells that still have links to release, and
// threads it through the cells themselves: a Pair's left link and an array's first slot hold the
// next of the list once they have been released.
//
// A Pair `todo x y` is a finaliser: when it dies, the program evaluates `x y` and drops the result.
#include "graph/cellstore.h"
#include "graph/reduce.h"

namespace tarn {

static bool finaliserson = false;

bool finaliserswitch(bool on) {
  bool was = finaliserson;
  finaliserson = on;
  return was;
}

// The free letters as the header tells them, without annotating: a new cell has none.
static bool rawopen(const Cell* c) {
  uint8_t first = cellbyte(c);
  if ((first >= '0' && first <= '9') || first == '[' || first == '\n' || first == '`') return false;
  bool data = (c->header & (CELLCODE | CELLFLAG)) == CELLFLAG;
  return cellfield(c) != 0 && !data;
}

// An application is evaluated only if both parts are closed values: anything else was never the
// program's own finaliser, but a piece of its text.
static void finalise(Cell* x, Cell* y) {
  if (rawopen(x) || rawopen(y)) return;
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
static int64_t slotsreleased(const Cell* c) { return static_cast<int64_t>(leafhint(c) >> 3); }

static void setslotsreleased(Cell* c, int64_t n) {
  leafhint(c) = (leafhint(c) & ~CELLHINT) | static_cast<uint64_t>(n) << 3;
}

static void setslotzero(Cell* c, Cell* v) { memcpy(leafbytes(c) + 1, &v, sizeof v); }

// Gives the first link of a dead cell and puts the cell on the list; a cell without links is freed,
// and the answer is null, as it is for an empty slot.
static Cell* firstlink(Cell* c, Cell*& list) {
  Cell* v = nullptr;
  if (cellispair(c)) {
    if (finaliserson && cellstore.todos != 0) finalisepair(c);
    v = leftlink(c);
    leftlink(c) = list;
  } else if (leafbytes(c)[0] == '\n' && crayslots(c) != 0) {
    v = crayslot(c, 0);
    setslotzero(c, list);
    setslotsreleased(c, 1);
  } else {
    storefreeleaf(c);
    return nullptr;
  }
  list = c;
  return v;
}

// Gives the next link of the cell at the head of the list, which is taken off and freed once it has
// no more.
static Cell* nextlink(Cell*& list) {
  Cell* c = list;
  if (cellispair(c)) {
    list = leftlink(c);
    Cell* v = rightlink(c);
    storefreepair(c);
    return v;
  }
  int64_t i = slotsreleased(c);
  if (i < crayslots(c)) {
    setslotsreleased(c, i + 1);
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
    while (v != nullptr && (--v->header & CELLREFS) == 0) v = firstlink(v, list);
    if (list == nullptr) return;
    v = nextlink(list);
  }
}

}  // namespace tarn

// Making arrays from arrays: the slots are copied as a row of links, and each gets a reference.
#include "values/cray.h"

#include <cstring>
#include <utility>

#include "values/answer.h"
#include "values/pairs.h"

namespace tarn {

CellRef crayempty() {
  static Cell* const empty = craynew(0).give();
  return cellcopy(empty);
}

// Copies n slots of `from`, from i on, to those of `to` from j on, which are empty.
static void copyslots(Cell* to, int64_t j, const Cell* from, int64_t i, int64_t n) {
  if (n == 0) return;
  for (int64_t k = 0; k < n; k++) {
    Cell* v = crayslot(from, i + k);
    if (v != nullptr) cellhold(v);
  }
  memcpy(leafbytes(to) + 1 + 8 * j, leafbytes(from) + 1 + 8 * i, static_cast<size_t>(8 * n));
}

// The element that is stored for v.
static CellRef stored(Cell* v) { return leafisbyte(v, 'U') ? CellRef() : cellcopy(v); }

CellRef crayget(const Cell* x, int64_t i) {
  Cell* v = crayslot(x, i);
  return v == nullptr ? failure() : cellcopy(v);
}

void craysethere(Cell* x, int64_t i, Cell* v) { crayfill(x, i, stored(v)); }

CellRef crayset(const Cell* x, int64_t i, Cell* v) {
  CellRef made = crayslice(x, 0, crayslots(x));
  craysethere(made, i, v);
  return made;
}

CellRef crayappend(const Cell* x, Cell* v) {
  int64_t n = crayslots(x);
  CellRef made = craynew(n + 1);
  copyslots(made, 0, x, 0, n);
  crayfill(made, n, stored(v));
  return made;
}

CellRef crayprepend(Cell* v, const Cell* x) {
  int64_t n = crayslots(x);
  CellRef made = craynew(n + 1);
  copyslots(made, 1, x, 0, n);
  crayfill(made, 0, stored(v));
  return made;
}

CellRef crayconcat(const Cell* x, const Cell* y) {
  int64_t n = crayslots(x);
  int64_t m = crayslots(y);
  CellRef made = craynew(n + m);
  copyslots(made, 0, x, 0, n);
  copyslots(made, n, y, 0, m);
  return made;
}

CellRef crayslice(const Cell* x, int64_t from, int64_t to) {
  CellRef made = craynew(to - from);
  copyslots(made, 0, x, from, to - from);
  return made;
}

CellRef crayrepeat(const Cell* x, int64_t n) {
  int64_t slots = crayslots(x);
  if (slots == 0) return craynew(0);
  int64_t all = 0;
  if (__builtin_mul_overflow(slots, n, &all)) all = INT64_MAX;  // more than malloc grants
  CellRef made = craynew(all);
  for (int64_t i = 0; i < n; i++) copyslots(made, i * slots, x, 0, slots);
  return made;
}

CellRef craylist(const Cell* x) {
  CellRef list = leafbyte('K');
  for (int64_t i = crayslots(x); i > 0; i--) {
    list = twofold('J', crayget(x, i - 1), std::move(list));
  }
  return list;
}

}  // namespace tarn

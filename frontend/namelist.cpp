// Walks along the chain.
#include "frontend/namelist.h"

#include <cstring>

namespace tarn {

// No name holds a NUL, so that the texts can be compared as they lie.
int nameorder(const Cell* x, const Cell* y) {
  return strcmp(reinterpret_cast<const char*>(leafbytes(x)),
                reinterpret_cast<const char*>(leafbytes(y)));
}

CellRef emptylist() { return leafcstr("()"); }

CellRef listone(Cell* x) { return cellpairtake(cellcopy(x), emptylist()); }

CellRef listunion(Cell* a, Cell* b) {
  if (cellisleaf(a)) return cellcopy(b);
  if (cellisleaf(b)) return cellcopy(a);
  int order = nameorder(leftlink(a), leftlink(b));
  Cell* first = order <= 0 ? leftlink(a) : leftlink(b);
  CellRef rest = listunion(order <= 0 ? rightlink(a) : a, order >= 0 ? rightlink(b) : b);
  return cellpair(first, rest);
}

bool listhas(Cell* list, Cell* x) {
  for (; cellispair(list); list = rightlink(list)) {
    int order = nameorder(leftlink(list), x);
    if (order >= 0) return order == 0;
  }
  return false;
}

CellRef listremove(Cell* list, Cell* x) {
  if (!listhas(list, x)) return cellcopy(list);
  if (nameorder(leftlink(list), x) == 0) return cellcopy(rightlink(list));
  return cellpair(leftlink(list), listremove(rightlink(list), x));
}

CellRef listinsert(Cell* list, Cell* x) {
  if (cellisleaf(list)) return cellpair(x, list);
  int order = nameorder(leftlink(list), x);
  if (order == 0) return cellcopy(list);
  if (order > 0) return cellpair(x, list);
  return cellpair(leftlink(list), listinsert(rightlink(list), x));
}

int64_t listsize(Cell* list) {
  int64_t n = 0;
  for (; cellispair(list); list = rightlink(list)) n++;
  return n;
}

}  // namespace tarn

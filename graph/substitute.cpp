// Putting arguments in for variables, guided by the sets of free letters: what holds none of the
// letters is shared.
#include "graph/substitute.h"

#include "graph/annotate.h"
#include "graph/cellstore.h"

namespace tarn {

static uint32_t letterbit(uint8_t letter) { return uint32_t{1} << (letter - 'a'); }

static Cell* newpair(Cell* l, Cell* r) { return storepair(l, r, pairbits(l, r) | 1); }

static Cell* bound(Cell* body, const Bindings& to, uint32_t letters);

// `{ v e b`: e sees the letters, b all but v.
static Cell* boundlocal(Cell* body, const Bindings& to, uint32_t letters) {
  Cell* key = leftlink(leftlink(body));
  Cell* b = bound(rightlink(body), to, letters & ~letterbit(cellbyte(rightlink(key))));
  Cell* e = bound(rightlink(leftlink(body)), to, letters);
  return newpair(newpair(cellhold(key), e), b);
}

// Gives body with the letters replaced. No renaming: arguments are closed.
static Cell* bound(Cell* body, const Bindings& to, uint32_t letters) {
  uint32_t here = cellfree(body) & letters;
  if (here == 0) return cellhold(body);
  if (cellisleaf(body)) return cellhold(to[leafbytes(body)[0] - 'a']);
  char form = cellform(body);
  if (form == 'i') return boundlocal(body, to, here);
  Cell* r = bound(rightlink(body), to, here);
  Cell* l = form == 'u' ? cellhold(leftlink(body)) : bound(leftlink(body), to, here);
  return newpair(l, r);
}

CellRef instantiate(Cell* body, const Bindings& to, uint32_t letters) {
  return CellRef::adopt(bound(body, to, letters));
}

void substitute(CellRef& out, CellRef body, CellRef arg, uint8_t letter) {
  check(letter >= 'a' && letter <= 'z');
  cellannotate(arg);
  Bindings to;
  to[letter - 'a'] = arg;
  out = instantiate(body, to, letterbit(letter));
}

}  // namespace tarn

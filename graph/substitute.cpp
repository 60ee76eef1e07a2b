// Putting arguments in for variables, guided by the sets of free letters: what holds none of the
// letters is shared.
#include "graph/substitute.h"

#include "graph/annotate.h"

namespace tarn {

static uint64_t letterbit(uint8_t letter) {
  return uint64_t{1} << (letter - 'a' + cellfieldshift);
}

// Here `letters` stand where a header has them. In boundwithin some of them are free in body.
static Cell* boundwithin(Cell* body, const Bindings& to, uint64_t letters);

static Cell* bound(Cell* body, const Bindings& to, uint64_t letters) {
  uint64_t here = knownfree(body) & letters;
  return here == 0 ? cellhold(body) : boundwithin(body, to, here);
}

// `{ v e b`: all letters are replaced in e, and all but v in b.
static Cell* boundlocal(Cell* body, const Bindings& to, uint64_t letters) {
  Cell* key = leftlink(leftlink(body));
  Cell* b = bound(rightlink(body), to, letters & ~letterbit(cellbyte(rightlink(key))));
  Cell* e = bound(rightlink(leftlink(body)), to, letters);
  return newpair(newpair(cellhold(key), e), b);
}

// No renaming: arguments are closed. The arity tells most shapes without a look at their links: an
// abstraction has 1, a local binding 0.
static Cell* boundwithin(Cell* body, const Bindings& to, uint64_t letters) {
  if (cellisleaf(body)) return cellhold(to[leafbytes(body)[0] - 'a']);
  uint64_t code = codeof(body);
  if (code == codebits(0) && cellform(body) == 'i') return boundlocal(body, to, letters);
  Cell* r = bound(rightlink(body), to, letters);
  bool abstraction = code == codebits(1) && cellform(body) == 'u';
  Cell* l = abstraction ? cellhold(leftlink(body)) : bound(leftlink(body), to, letters);
  return newpair(l, r);
}

Cell* instantiate(Cell* body, const Bindings& to, uint32_t letters) {
  return bound(body, to, uint64_t{letters} << cellfieldshift);
}

void substitute(CellRef& out, CellRef body, CellRef arg, uint8_t letter) {
  check(letter >= 'a' && letter <= 'z');
  cellannotate(arg);
  cellannotate(body);
  Bindings to;
  to[letter - 'a'] = arg;
  out = CellRef::adopt(instantiate(body, to, uint32_t{1} << (letter - 'a')));
}

}  // namespace tarn

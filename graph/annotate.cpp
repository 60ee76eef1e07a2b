// The description of a term that its header caches: whether it is data, how many arguments it still
// takes, whether it holds unevaluated work, and which letters are free in it. It is worked out from
// the two links alone, so a new Pair over annotated links is annotated in a few instructions.
#include "graph/annotate.h"

#include <vector>

#include "foundation/chars.h"
#include "graph/definitions.h"

namespace tarn {

// --- Leaves --------------------------------------------------------------------------------------

// A name without a definition has to be a variable.
static uint64_t variablebits(const uint8_t* text) {
  check(text[1] == 0);
  check(text[0] >= 'a');
  check(text[0] <= 'z');
  return codebits(cellmaxarity) | uint64_t{1} << (text[0] - 'a' + cellfieldshift);
}

static uint64_t namebits(Cell* c) {
  Definition* d = definitionof(c);
  if (!d->named) return codebits(1);
  if (d->term.null()) return variablebits(leafbytes(c));
  definitionknow(d);
  return codebits(d->arity);
}

static uint64_t leafbits(Cell* c) {
  switch (leafbytes(c)[0]) {
    case '`':
    case '\n':
    case ')': return codebits(1);
    case ']': return codebits(2);
    case '[': return cellflagbit;
    case ' ':
    case '(': return codebits(1);
    default: return isdigitbyte(leafbytes(c)[0]) ? codebits(1) : namebits(c);
  }
}

// --- Pairs ---------------------------------------------------------------------------------------

uint64_t datapairbits(const Cell* l, const Cell* r) {
  uint64_t sum = cellfield(l) + cellfield(r);
  if (cellfield(l) < 2 || cellfield(r) < 2 || sum >= cellfieldlimit) sum = 0;
  return cellflagbit | sum << cellfieldshift;
}

// `{ v e` does not see its v, and `{ v e body` binds it in the body.
uint64_t binderletters(const Cell* l, const Cell* r, uint64_t letters) {
  const Cell* ll = leftlink(l);
  if (cellisleaf(ll)) return cellbyte(ll) == '{' ? knownfree(r) : letters;
  if (cellbyte(leftlink(ll)) != '{') return letters;
  return knownfree(l) | (knownfree(r) & ~knownfree(rightlink(ll)));
}

// --- Whole terms ---------------------------------------------------------------------------------

// Deep terms: a list of the cells to do, the last one first.
static void annotatedeep(Cell* c) {
  std::vector<Cell*> list = {c};
  while (!list.empty()) {
    Cell* x = list.back();
    if (cellannotated(x)) {
      list.pop_back();
    } else if (cellisleaf(x)) {
      x->header |= leafbits(x);
    } else if (!cellannotated(leftlink(x))) {
      list.push_back(leftlink(x));
    } else if (!cellannotated(rightlink(x))) {
      list.push_back(rightlink(x));
    } else {
      x->header |= pairbits(leftlink(x), rightlink(x));
    }
  }
}

void cellannotatenew(Cell* c) {
  if (cellisleaf(c)) {
    c->header |= leafbits(c);
  } else {
    annotatedeep(c);
  }
}

uint32_t cellfree(Cell* c) {
  cellannotate(c);
  return static_cast<uint32_t>(knownfree(c) >> cellfieldshift);
}

}  // namespace tarn

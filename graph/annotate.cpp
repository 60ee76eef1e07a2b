// The description of a term that its header caches: whether it is data, how many arguments it still
// takes, whether it holds unevaluated work, and which letters are free in it. It is worked out from
// the two links alone, so a new Pair over annotated links is annotated in a few instructions.
#include "graph/annotate.h"

#include <vector>

#include "foundation/chars.h"
#include "graph/definitions.h"

namespace tarn {

static uint64_t codebits(int arity) {
  return static_cast<uint64_t>(arity + CELLNOARITY) << CELLCODESHIFT;
}

// --- Leaves --------------------------------------------------------------------------------------

// A name without a definition has to be a variable.
static uint64_t variablebits(const uint8_t* text) {
  check(text[1] == 0);
  check(text[0] >= 'a');
  check(text[0] <= 'z');
  return codebits(CELLMAXARITY) | uint64_t{1} << (text[0] - 'a' + CELLFIELDSHIFT);
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
    case '[': return CELLFLAG;
    case ' ':
    case '(': return codebits(1);
    default: break;
  }
  if (isdigitbyte(leafbytes(c)[0])) return codebits(1);
  return namebits(c);
}

// --- Pairs ---------------------------------------------------------------------------------------

static bool isdata(const Cell* c) { return (c->header & (CELLCODE | CELLFLAG)) == CELLFLAG; }

// cellfree, of an annotated cell, in the place of field.
static uint64_t freebits(const Cell* c) {
  uint64_t bits = c->header & CELLFIELD;
  if (bits == 0 || isdata(c)) return 0;
  if (cellispair(c)) return bits;
  uint8_t first = leafbytes(c)[0];
  return isdigitbyte(first) || first == '\n' || first == '`' ? 0 : bits;
}

static uint64_t databits(const Cell* l, const Cell* r) {
  uint64_t sum = cellfield(l) + cellfield(r);
  if (cellfield(l) < 2 || cellfield(r) < 2 || sum >= CELLFIELDLIMIT) sum = 0;
  return CELLFLAG | sum << CELLFIELDSHIFT;
}

// The arity of an application of l, as a code.
static uint64_t appliedcode(const Cell* l) {
  uint64_t code = l->header & CELLCODE;
  if (code == 0) return codebits(0);  // data
  bool sticky = code == codebits(CELLMAXARITY) || code <= codebits(CELLMINARITY);
  return sticky ? code : code - codebits(1 - CELLNOARITY);
}

// An application is clean only if its head is clean and its argument a clean value.
static bool pends(const Cell* l, const Cell* r) {
  if (!isdata(l) && (l->header & CELLFLAG) != 0) return true;
  if (isdata(r)) return false;
  return (r->header & CELLFLAG) != 0 || (r->header & CELLCODE) < codebits(1);
}

uint64_t pairbits(const Cell* l, const Cell* r) {
  bool ldata = isdata(l);
  if (ldata && isdata(r)) return databits(l, r);
  uint64_t code = appliedcode(l);
  uint64_t letters = freebits(l) | freebits(r);
  if (cellispair(l)) {
    const Cell* ll = leftlink(l);
    uint8_t head = cellbyte(ll);
    if (head == '\\') return code | (freebits(r) & ~freebits(l));
    if (head == '{') letters = freebits(r);
    if (cellispair(ll) && cellbyte(leftlink(ll)) == '{') {
      letters = freebits(l) | (freebits(r) & ~freebits(rightlink(ll)));
    }
  }
  return code | letters | (pends(l, r) ? CELLFLAG : 0);
}

// --- Whole terms ---------------------------------------------------------------------------------

void cellannotatenew(Cell* c) {
  std::vector<Cell*> list = {c};
  while (!list.empty()) {
    Cell* x = list.back();
    if (cellannotated(x)) {
      list.pop_back();
    } else if (cellisleaf(x)) {
      x->header |= leafbits(x);
      list.pop_back();
    } else if (!cellannotated(leftlink(x))) {
      list.push_back(leftlink(x));
    } else if (!cellannotated(rightlink(x))) {
      list.push_back(rightlink(x));
    } else {
      x->header |= pairbits(leftlink(x), rightlink(x));
      list.pop_back();
    }
  }
}

uint32_t cellfree(Cell* c) {
  cellannotate(c);
  return static_cast<uint32_t>(freebits(c) >> CELLFIELDSHIFT);
}

}  // namespace tarn

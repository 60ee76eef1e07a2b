// The cached description as the machine reads and writes it: of cells that are annotated already,
// so that each test is a load and a compare, and a new Pair of two such cells is annotated at once.
#pragma once

#include <cstdint>

#include "graph/cell.h"
#include "graph/cellstore.h"

namespace tarn {

constexpr uint64_t codebits(int arity) {
  return static_cast<uint64_t>(arity + CELLNOARITY) << CELLCODESHIFT;
}

inline uint64_t codeof(const Cell* c) { return c->header & CELLCODE; }

// cellisdata, cellarity, cellpending and cellnormal.
inline bool knowndata(const Cell* c) { return (c->header & (CELLCODE | CELLFLAG)) == CELLFLAG; }
inline int knownarity(const Cell* c) {
  uint64_t code = codeof(c);
  return code == 0 ? 1 : static_cast<int>(code >> CELLCODESHIFT) - CELLNOARITY;
}
inline bool knownpending(const Cell* c) { return (c->header & CELLFLAG) != 0 && codeof(c) != 0; }
inline bool knownnormal(const Cell* c) {
  uint64_t word = c->header & (CELLCODE | CELLFLAG);
  return word == CELLFLAG || (word > codebits(0) && word < CELLFLAG);
}

// cellfree, in the place of field. Of the leaves only variables have free letters, and only they
// have an arity that is not known; the field of any other is a length or a count.
inline uint64_t knownfree(const Cell* c) {
  uint64_t code = codeof(c);
  bool counts = code == 0 || (cellisleaf(c) && code != codebits(CELLMAXARITY));
  return counts ? 0 : c->header & CELLFIELD;
}

// The parts of pairbits that are seldom needed: all bits of a Pair of two data, and the letters of a
// Pair over a Pair, which may be a local binding; `letters` are those of both links.
uint64_t datapairbits(const Cell* l, const Cell* r);
uint64_t binderletters(const Cell* l, const Cell* r, uint64_t letters);

// A Pair over l is `\ v body`.
inline bool takesbody(const Cell* l) {
  return cellispair(l) && cellbyte(leftlink(l)) == '\\';
}

// The description bits (field, code, flag) of a new Pair of l and r.
inline uint64_t pairbits(const Cell* l, const Cell* r) {
  uint64_t code = codeof(l);
  if (code == 0) {  // data
    if (knowndata(r)) return datapairbits(l, r);
    code = codebits(1);
  }
  bool sticky = code == codebits(CELLMAXARITY) || code <= codebits(CELLMINARITY);
  if (!sticky) code -= codebits(1) - codebits(0);
  uint64_t letters = knownfree(l) | knownfree(r);
  if (cellispair(l)) {
    if (takesbody(l)) return code | (knownfree(r) & ~knownfree(l));  // never pending
    if (letters != 0) letters = binderletters(l, r, letters);
  }
  // Clean only if the head is clean and the argument is a clean value.
  bool pends = knownpending(l) || (!knowndata(r) && ((r->header & CELLFLAG) != 0 ||
                                                     codeof(r) < codebits(1)));
  return code | letters | (pends ? CELLFLAG : 0);
}

// The Pair of two annotated cells, annotated, taking over the caller's references to both.
inline Cell* newpair(Cell* l, Cell* r) { return storepair(l, r, pairbits(l, r) | 1); }

}  // namespace tarn

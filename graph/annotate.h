// The cached description as the machine writes it: a new Pair of two cells that are annotated
// already is annotated at once, in a few instructions. Only the files of graph/ use this.
#pragma once

#include <cstdint>

#include "graph/cell.h"
#include "graph/cellstore.h"

namespace tarn {

// The letters of cellfree, where they stand in the header. Of the leaves only variables have free
// letters, and only they have an arity that is not known; the field of any other is a length, a
// count or a line. 0 for a cell that is not annotated.
inline uint64_t knownfree(const Cell* c) {
  uint64_t code = codeof(c);
  bool counts = code == 0 || (cellisleaf(c) && code != codebits(cellmaxarity));
  return counts ? 0 : c->header & cellfieldmask;
}

// The two parts of pairbits that are seldom needed: all bits of a Pair of two data, and the letters
// of a Pair whose left link is a Pair, so that it may be a local binding; `letters` are those of
// both links.
uint64_t datapairbits(const Cell* l, const Cell* r);
uint64_t binderletters(const Cell* l, const Cell* r, uint64_t letters);

// Whether a Pair with l on its left is an abstraction, `\ v body`.
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
  bool sticky = code == codebits(cellmaxarity) || code <= codebits(cellminarity);
  if (!sticky) code -= codebits(1) - codebits(0);
  uint64_t letters = knownfree(l) | knownfree(r);
  if (cellispair(l)) {
    if (takesbody(l)) return code | (knownfree(r) & ~knownfree(l));  // never pending
    if (letters != 0) letters = binderletters(l, r, letters);
  }
  // Clean only if the head is clean and the argument is a clean value.
  bool pends = knownpending(l) || (!knowndata(r) && ((r->header & cellflagbit) != 0 ||
                                                     codeof(r) < codebits(1)));
  return code | letters | (pends ? cellflagbit : 0);
}

// Gives the Pair of two annotated cells, annotated too; takes over the caller's references to both.
inline Cell* newpair(Cell* l, Cell* r) { return storepair(l, r, pairbits(l, r) | 1); }

}  // namespace tarn

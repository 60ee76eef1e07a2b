// Sets of names. A set is itself a term: a chain of Pairs, each with a name leaf on its left, ended
// by the leaf "()". The names ascend in the byte order of texts, and none stands twice. A set never
// changes: what adds or removes a name gives a new set, which shares what it can with the old one.
//
//   {"bar", "foo"}    Pair(bar, Pair(foo, "()"))
//
// All functions lend their arguments: sets, and name leaves.
#pragma once

#include <cstdint>

#include "graph/cell.h"

namespace tarn {

CellRef emptylist();
CellRef listone(Cell* x);                 // {x}
CellRef listunion(Cell* a, Cell* b);      // of names in both, the leaves of a
bool listhas(Cell* list, Cell* x);        // a leaf of the same text
CellRef listremove(Cell* list, Cell* x);  // the same set if x is not in it
CellRef listinsert(Cell* list, Cell* x);  // the same set if x is in it
int64_t listsize(Cell* list);             // the number of names

// The byte order of the texts of two name leaves: negative, 0 or positive.
int nameorder(const Cell* x, const Cell* y);

}  // namespace tarn

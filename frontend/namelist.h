// Sets of names. A set is itself a term: a chain of Pairs, each with a name leaf on its left, ended
// by the leaf "()". The names ascend in the byte order of texts, without doubles. A set never
// changes: what adds or removes gives a new one, and shares what it can.
//
//   {"bar", "foo"}    Pair(bar, Pair(foo, "()"))
#pragma once

#include <cstdint>

#include "graph/cell.h"

namespace tarn {

CellRef emptylist();
CellRef listone(Cell* x);
CellRef listunion(Cell* a, Cell* b);
bool listhas(Cell* list, Cell* x);
CellRef listremove(Cell* list, Cell* x);
CellRef listinsert(Cell* list, Cell* x);
int64_t listsize(Cell* list);

// The byte order of the texts of two name leaves: negative, 0 or positive.
int nameorder(const Cell* x, const Cell* y);

}  // namespace tarn

// What integers, strings, posts, reals and arrays do when they are applied: each answers its
// argument with a term made of pairs and lists, so that a program can walk any value bit by bit or
// element by element. The head is lent, the argument taken, the answer given.
//
//   integer   V head rest          the list of its bits; the argument is dropped
//   zits      a (X J) list         `K` for "[]"; but V init last for the argument `G`
//   post      V left right         Z for none; the bits of a single byte; the argument is dropped
//   real      tree a               the 64 bits as pairs of pairs, the lowest first
//   cray      the list             for the argument `Z`
//             an array of a slots  if it has none itself
//             K or H               whether slot a is set
#pragma once

#include "graph/atoms.h"
#include "graph/cell.h"
#include "values/bytes.h"

namespace tarn {

CellRef integerapplied(Cell* head, CellRef a);
CellRef dataapplied(Cell* head, CellRef a);
CellRef postapplied(Cell* head, CellRef a);
CellRef realapplied(Cell* head, CellRef a);
CellRef crayapplied(Cell* head, CellRef a);

inline constexpr AtomTable atomrules = {integerapplied, dataapplied, postapplied, realapplied,
                                        crayapplied};

// The rest of the list that a digit text spells, an integer's or a numb's: the list without its
// first element. A digit leaf again, or the leaf K if there was just the one.
CellRef intrest(Bytes text);

}  // namespace tarn

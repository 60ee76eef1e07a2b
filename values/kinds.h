// The seven kinds of values, by the letters of `cellkind`, and tables over them. The order of the
// letters is the order of values of different kinds.
#pragma once

#include "graph/cell.h"

namespace tarn {

constexpr int kinds = 7;

// 0 to 6 for 'a' post, 'c' cray, 'e' void, 'i' hint, 'o' numb, 'r' real, 'u' zits.
inline int kindindex(char kind) {
  switch (kind) {
    case 'a': return 0;
    case 'c': return 1;
    case 'e': return 2;
    case 'i': return 3;
    case 'o': return 4;
    case 'r': return 5;
    default: return 6;
  }
}

// What an operator does with a value of one kind, or with two of two kinds. Arguments are lent, the
// answer is given.
using Arm1 = CellRef (*)(Cell* x);
using Arm2 = CellRef (*)(Cell* x, Cell* y);

// The arms of an operator of one argument, and of two: a row for the kind of x, a column for y's.
using Row1 = Arm1[kinds];
using Matrix = Arm2[kinds][kinds];

inline CellRef choose(const Row1& row, Cell* x) { return row[kindindex(cellkind(x))](x); }

inline CellRef choose(const Matrix& matrix, Cell* x, Cell* y) {
  return matrix[kindindex(cellkind(x))][kindindex(cellkind(y))](x, y);
}

}  // namespace tarn

// Conversions between integers, numbs and doubles. All functions lend their arguments.
#pragma once

#include "graph/cell.h"

namespace tarn {

// The numb of an integer; null for a list that is no number.
CellRef hinttonumb(Cell* x);

// The exact numb of a double. On purpose: +0.0 gives "000", which reads as -1; -0.0, an infinity
// and a NaN give "00".
CellRef numbofreal(double d);

// The double of a numb, a real leaf; null for a list that is no number. Low bits are cut off, never
// rounded. On purpose: a magnitude of 2^1024 and more, or below 2^-1074, gives the NaN with the
// pattern 0x7FF9000000000000, and below 2^-1022 the highest bit is lost and the others come out in
// reverse.
CellRef numbtoreal(Cell* x);

}  // namespace tarn

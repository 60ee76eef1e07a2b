// The builtins between values and program text: showing a value, and compiling text while a program
// runs.
#pragma once

#include "graph/cell.h"

namespace tarn {

CellRef valuelisp(Cell* x);  // the printed form, as a string
CellRef valueload(Cell* x);  // the value of the text's main expression; Z for every fault
CellRef valueroad(Cell* x);  // the same, but a fault of the text ends the run with its report

}  // namespace tarn

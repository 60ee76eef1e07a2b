// Values of all kinds for builtins to chew on, chosen by a source: near nothing, near the limits,
// and nested a few levels deep. Each is in normal form.
#pragma once

#include "fuzz/source.h"
#include "graph/cell.h"

namespace tarn {

CellRef anyvalue(Source& s);

CellRef anyinteger(Source& s);   // as a digit leaf: small, signed, or at the edges of 64 bits
CellRef anyreal(Source& s);
CellRef anypost(Source& s);      // a few bytes of any kind
CellRef anytext(Source& s);      // a zits, in balance
CellRef anyarray(Source& s);

CellRef nameleaf(const char* name);

}  // namespace tarn

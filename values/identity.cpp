// The builtins of identity.
#include "values/identity.h"

#include "graph/tern.h"
#include "values/answer.h"
#include "values/coerce.h"

namespace tarn {

CellRef valueraws(Cell* x, Cell* y) { return truthleaf(x == y); }

CellRef valuetern(Cell* x) { return tern(x); }

static const char* kindname(char kind) {
  switch (kind) {
    case 'a': return "[post]";
    case 'c': return "[cray]";
    case 'e': return "[void]";
    case 'i': return "[hint]";
    case 'o': return "[numb]";
    case 'r': return "[real]";
    case 'u': return "[zits]";
    default: return "69";  // there is no other kind
  }
}

CellRef valuetype(Cell* x) { return tern(leafcstr(kindname(cellkind(x)))); }

CellRef& calltodo(CellRef& out, CellRef application) {
  Cell* pair = leftlink(application);
  Cell* a = rightlink(leftlink(pair));
  Cell* b = rightlink(pair);
  Cell* c = lastarg(application);
  bool asked = c == leftlink(leftlink(pair));
  return out = asked ? cellcopy(pair) : cellapply2(c, a, b);
}

}  // namespace tarn

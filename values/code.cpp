// Values as program text, and back.
#include "values/code.h"

#include "foundation/str.h"
#include "frontend/load.h"
#include "frontend/printer.h"
#include "values/coerce.h"
#include "values/post.h"
#include "values/zits.h"

namespace tarn {

CellRef valuelisp(Cell* x) { return leafstr("[" + printcell(x) + "]"); }

// Posts, integers and strings are texts; anything else is none.
static CellRef compiled(Cell* x, CellRef (*compile)(const Str& text)) {
  switch (cellkind(x)) {
    case 'a': return compile(posttext(x));
    case 'i': return compile(hinttext(x));
    case 'u': return compile(zitstext(x));
    default: return leafbyte('Z');
  }
}

CellRef valueload(Cell* x) { return compiled(x, loadtext); }
CellRef valueroad(Cell* x) { return compiled(x, roadtext); }

}  // namespace tarn

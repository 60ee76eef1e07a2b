// `assert`: the check of a program of the language ends the process as a check of Tarn's own does.
#include "host/systemcalls.h"

#include "foundation/diag.h"
#include "values/answer.h"

namespace tarn {

CellRef& hostassert(CellRef& out, CellRef application) {
  Cell* x = lastarg(application);
  if (!istrue(x) && !isfalse(x)) return out = failure();
  check(istrue(x));
  return out = leafbyte('I');
}

}  // namespace tarn

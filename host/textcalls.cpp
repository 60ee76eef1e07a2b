// `bzero`, the one call on memory that looks at its count before it does anything.
#include "host/textcalls.h"

namespace tarn {

CellRef& hostbzero(CellRef& out, CellRef application) {
  Cell* at = secondlastarg(application);
  Cell* count = lastarg(application);
  if (!ishint(at) || !ishint(count)) return out = failure();
  int64_t n = hintsmall(count);
  if (n < 0) return out = failure();
  if (n > 0) memset(reinterpret_cast<void*>(hintsmall(at)), 0, static_cast<size_t>(n));
  return out = leafbyte('I');
}

}  // namespace tarn

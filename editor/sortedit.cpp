// Putting the definitions in order, as an oper. Its data is the whole text before it.
#include "editor/edits.h"
#include "editor/history.h"
#include "editor/reader.h"
#include "editor/vows.h"
#include "editor/window.h"

namespace tarn {

// The end of a full text does not fit in t; the byte before it serves as well.
void opsort() {
  const sheet& s = currentsheet();
  int64_t last = static_cast<int64_t>(opermask);
  carry(opsorted, s.point < last ? s.point : last, flatten(s));
}

void todosorted(sheet& s, const oper& o) {
  setpoint(s, opert(o));
  retext(s, vowsort(o.data));
  setpoint(s, linestart(s, s.point));
  recentre(s);
}

void undosorted(sheet& s, const oper& o) {
  retext(s, o.data);
  setpoint(s, opert(o));
  showpoint(s);
}

}  // namespace tarn

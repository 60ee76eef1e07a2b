// The opening and the closing of a buffer by a single key.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/tempname.h"

namespace tarn {

// On purpose: without a question, whatever it holds. The scratch buffer stays, and comes first.
void tarndomc() {
  if (currentname == dotname) return chirp();
  Str closed = currentname;
  currentname = dotname;
  closefile(closed);
  switchbuffer(sheets.begin()->first);
}

void tarndomn() {
  Str name = tempname();
  sheets[name] = openrecord(name);
  switchbuffer(name);
}

}  // namespace tarn

// The keys that open, save and close a buffer without a prompt.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/tempname.h"
#include "editor/wholefile.h"

namespace tarn {

// On purpose: closes without a question, whatever the buffer holds. The scratch buffer stays, and
// as the first by name is the next one shown.
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

void tarndocw() {
  if (isclean(currentsheet())) return chirp();
  savesheet();
}

}  // namespace tarn

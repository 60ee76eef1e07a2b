// The commands that change nothing but the status row or the mode.
#include "editor/commands.h"
#include "editor/paint.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

void tarndocg() {
  repaint = paintfile;
  chirp();
}

void tarndoch() {
  if (statshift == 0) return chirp();
  statshift = 0;
}

void tarndoct() {
  // On purpose: one column less than the field has, so that a blank stays behind the end.
  if (statshift >= stat.len() - width + 6) return chirp();
  statshift++;
}

}  // namespace tarn

// The status text, the bell, and the ways out of a prompt.
#include "editor/status.h"

#include <algorithm>

#include "editor/console.h"
#include "editor/dispatch.h"
#include "editor/keys.h"
#include "editor/paint.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/window.h"

namespace tarn {

void setstat(const Str& text) {
  stat = text;
  statshift = std::max<int64_t>(0, text.len() - width + 6);
}

void chirp() { consolewrite("\a", 1); }

void leave() {
  setstat(currentname);
  line = Str();
  repaint = paintfile;
}

void leaveunmarked() {
  mark = -1;
  leave();
}

void switchbuffer(const Str& name) {
  currentname = name;
  aligntop(currentsheet());
  showpoint(currentsheet());
  leave();
}

void leaveunpainted() {
  leave();
  holdpaint(true);
  repaint();
  holdpaint(false);
}

void replay() {
  Str key = line.substr(lastkey(line));
  leaveunpainted();
  line = key;
  bool outer = suppressed;
  suppressed = true;
  dispatch();
  suppressed = outer;
  painted = false;
}

}  // namespace tarn

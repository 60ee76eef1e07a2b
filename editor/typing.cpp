// Typing and deleting at the point, the ink and the mode in which that is done, and the way back.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/pink.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"

namespace tarn {

void tarntype(uint8_t key) {
  if (!opinsert(nopqchar(inkmode, key))) chirp();
}

void tarnbackspace() {
  sheet& s = currentsheet();
  if (s.point == 0) return chirp();
  if (s.insertmode == 0) {
    s.point--;
    return showpoint(s);
  }
  if (!opbackspace()) chirp();
}

// On purpose: in overwrite mode, where Backspace deletes nothing, this deletes nothing either.
void tarndelete() {
  sheet& s = currentsheet();
  if (s.point == size(s)) return chirp();
  s.point++;
  tarnbackspace();
}

void tarndocx() {
  sheet& s = currentsheet();
  s.insertmode = s.insertmode == 0;
}

static void setink(int32_t ink) {
  if (inkmode == ink) return chirp();
  inkmode = ink;
}

void tarndomr() { setink(classred); }
void tarndomg() { setink(classgreen); }
void tarndomy() { setink(classyellow); }

void tarnundo() {
  if (!editback()) chirp();
}

void tarndocr() {
  if (!editredo()) chirp();
}

void tarndomd() {
  if (!forgetall()) chirp();
}

}  // namespace tarn

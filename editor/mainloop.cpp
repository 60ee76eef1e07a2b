// The start of the editor, and its loop.
#include "editor/mainloop.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "editor/console.h"
#include "editor/dispatch.h"
#include "editor/grid.h"
#include "editor/history.h"
#include "editor/keys.h"
#include "editor/paint.h"
#include "editor/paths.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/wholefile.h"
#include "editor/window.h"
#include "foundation/diag.h"
#include "host/start.h"

namespace tarn {

void bail(const Str& message) {
  outstream << message;
  exit(1);
}

// On purpose: the random numbers are the same in each run, so that what a program or a command does
// with them can be repeated.
static void findsurroundings() {
  starttime = time(nullptr);
  hoststart();
  home = findhome();
  cwdpath = findcwd();
  srand(0);
}

static void openscratch() {
  dotname = ".";
  sheets[dotname] = openrecord(dotname);
  currentname = dotname;
}

// Opens one file named on the command line, unless it is open already, and makes it current.
static void openargument(const Str& argument) {
  Str path = normalise(argument);
  if (path.empty()) bail("Cannot normalize file: " + argument + "\n");
  if (!isfile(path)) bail("Cannot open file: " + path + "\n");
  if (!sheets.contains(path)) {
    openrecord(path);
    sheets[path] = sheetnew(readwhole(path));
  }
  currentname = path;
}

static void openscreen() {
  consolesize(width, height);
  gridreset();
  consolewrite("\x1B[1;1H", 6);
  showpoint(currentsheet());
  stat = currentname;
  repaint();
}

// The state of the keys in `line`.
static KeyState pending = KeyState::done;

// Appends a key to `line` and, if that completes it, acts.
static void presskey(const KeyText& key) {
  line += Str(key.bytes, key.n);
  for (int32_t i = 0; i < key.n; i++) pending = keystep(pending, key.bytes[i]);
  if (pending != KeyState::done) return;
  dispatch();
  check(fflush(stdout) == 0);
}

// Takes a new size. What the terminal shows is unknown, so that the grids start anew. On purpose: a
// window too small for a status row and one of text ends the process, whatever has not been saved.
static void resize(int64_t columns, int64_t rows) {
  if (columns < 7 || rows < 2) {
    bail("\x1B[1;1HTarn cannot recover from windows less than 7,2\n");
  }
  width = columns;
  height = rows;
  gridreset();
  aligntop(currentsheet());
  showpoint(currentsheet());
  if (!suppressed) repaint();
}

void mainloop() {
  if (owespaint() && !consolewaiting()) paintowed();
  ConsoleEvent event;
  consolenext(event);
  switch (event.kind) {
    case ConsoleEventKind::none: return;
    case ConsoleEventKind::key:
      for (int32_t i = 0; i < event.repeat; i++) presskey(event.key);
      return;
    case ConsoleEventKind::resize: return resize(event.width, event.height);
  }
}

void runeditor(int argc, char** argv) {
  findsurroundings();
  openscratch();
  for (int i = 1; i < argc; i++) openargument(argv[i]);
  consoleopen();
  openscreen();
  for (;;) mainloop();
}

}  // namespace tarn

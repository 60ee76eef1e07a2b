// The motions: the point over the text, and the window over its rows.
#include <algorithm>

#include "editor/commands.h"
#include "editor/console.h"
#include "editor/paint.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/str.h"

namespace tarn {

void tarndoca() {
  sheet& s = currentsheet();
  if (s.point == 0) return chirp();
  movepoint(s, linestart(s, s.point));
}

void tarndocb() {
  sheet& s = currentsheet();
  if (s.point == 0) return chirp();
  movepoint(s, s.point - 1);
}

void tarndoce() {
  sheet& s = currentsheet();
  movepoint(s, lineend(s, s.point));
}

void tarndocf() {
  sheet& s = currentsheet();
  if (s.point == size(s)) return chirp();
  movepoint(s, s.point + 1);
}

// --- By rows -------------------------------------------------------------------------------------

// Whether a row holds nothing but the newline of a line of exactly `width` bytes. Up and down pass
// such a row by, unless the cursor comes from the first column.
static bool lonenewline(const sheet& s, int64_t row) {
  return row > 0 && row < size(s) && byteat(s, row) == '\n' && byteat(s, row - 1) != '\n';
}

// The place at `column` of a row, or the row's last byte where it is shorter. The next row begins
// at `next`, -1 where there is none.
static int64_t inrow(const sheet& s, int64_t row, int64_t column, int64_t next) {
  return std::min(row + column, next < 0 ? size(s) : next - 1);
}

void tarndocn() {
  sheet& s = currentsheet();
  int64_t start = rowstart(s, s.point);
  int64_t column = s.point - start;
  int64_t row = nextrow(s, start);
  if (row < 0) return chirp();
  if (column != 0 && lonenewline(s, row)) row = nextrow(s, row);
  movepoint(s, inrow(s, row, column, nextrow(s, row)));
}

static Str movesequence(int64_t rowsup, int64_t column) {
  Str text = "\x1B[" + strnumber(rowsup) + "F";
  return column == 0 ? text : text + "\x1B[" + strnumber(column + 1) + "G";
}

// Whether the screen shows the state before the motion, and would show the one after it if the
// cursor alone were moved.
static bool cursoronly(const sheet& s) {
  return s.point >= s.top && mark < 0 && repaint == paintfile && !suppressed && !owespaint() &&
         !deferpaint();
}

void tarndocp() {
  sheet& s = currentsheet();
  int64_t start = rowstart(s, s.point);
  int64_t column = s.point - start;
  int64_t rows = 1;
  int64_t next = start;
  int64_t row = previousrow(s, start);
  if (row < 0) return chirp();
  if (column != 0 && lonenewline(s, row)) {
    rows = 2;
    next = row;
    row = previousrow(s, row);
  }
  setpoint(s, inrow(s, row, column, next));
  if (cursoronly(s)) {
    Str sequence = movesequence(rows, s.point - row);
    consolewrite(sequence.bytes(), sequence.len());
    painted = true;
  } else {
    showpoint(s);
  }
}

// --- By the window -------------------------------------------------------------------------------

static void movetop(sheet& s, int64_t to) { s.top = static_cast<int32_t>(to); }

// Puts the point at `to`, or at the end of the text if that is before.
static void clamppoint(sheet& s, int64_t to) { setpoint(s, std::min(to, size(s))); }

// Brings a point that the window has left to the middle of it.
static void keeppoint(sheet& s) {
  if (!pointshows(s)) clamppoint(s, s.top + (windowbottom(s) - s.top) / 2);
}

void tarndocd() {
  sheet& s = currentsheet();
  int64_t bottom = windowbottom(s);
  if (bottom > size(s)) return chirp();
  movetop(s, bottom);
  clamppoint(s, (s.top + windowbottom(s)) / 2);
}

void tarndocu() {
  sheet& s = currentsheet();
  if (s.top == 0) return chirp();
  movetop(s, rowsabove(s, s.top, std::max<int64_t>(1, height - 2)));
  keeppoint(s);
}

void tarndocl() { recentre(currentsheet()); }

void tarndomf() {
  sheet& s = currentsheet();
  int64_t top = rowsabove(s, size(s), std::max<int64_t>(0, height - 2));
  if (top == s.top) return chirp();
  movetop(s, top);
  keeppoint(s);
}

void tarndomh() {
  sheet& s = currentsheet();
  if (s.top == 0) return chirp();
  movetop(s, 0);
  if (!pointshows(s)) clamppoint(s, std::min(size(s), windowbottom(s)) / 2);
}

}  // namespace tarn

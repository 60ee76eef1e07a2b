// The walks over wrapped rows. The rows of the window are remembered, so that a key walks only over
// what it has changed; all other walks go no further than a few thousand bytes, however long the
// lines are.
#include "editor/window.h"

#include <algorithm>
#include <vector>

#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"

namespace tarn {

// How far back the start of a line is searched. A line that is longer has no known start: its rows
// then begin at multiples of the width.
static constexpr int64_t linesearch = 4095;

// The rows of the window as far as they have been walked. They hold as long as the sheet, its `top`
// and the size of the screen are those that they were made for.
struct Rows {
  const sheet* owner;  // null before the first use
  int64_t top;
  int64_t columns;
  int64_t lines;
  std::vector<int64_t> starts;  // of the rows from `top` on, 1 to `lines` of them
  int64_t scanned;              // the last of them holds no newline before this offset
};

static Rows rows = {nullptr, 0, 0, 0, {}, 0};

static void forgetrows(const sheet& s) {
  rows.owner = &s;
  rows.top = s.top;
  rows.columns = width;
  rows.lines = height;
  rows.starts.assign(1, s.top);
  rows.scanned = s.top;
}

static bool rowsfit(const sheet& s) {
  return rows.owner == &s && rows.top == s.top && rows.columns == width && rows.lines == height;
}

// Brings the remembered rows in line with the sheet.
static void refreshrows(sheet& s) {
  int64_t touched = s.touched;
  s.touched = untouched;
  if (touched < s.top) aligntop(s);
  if (!rowsfit(s)) return forgetrows(s);
  if (touched >= rows.scanned) return;
  while (rows.starts.size() > 1 && rows.starts.back() > touched) rows.starts.pop_back();
  rows.scanned = std::max(rows.starts.back(), touched);
}

// Walks on to the next row if that begins at or before offset i. False if it does not, be it that
// the text ends there, and if all rows of the window are known.
static bool walkrow(reader& r, int64_t i) {
  if (static_cast<int64_t>(rows.starts.size()) >= rows.lines) return false;
  int64_t full = rows.starts.back() + width;
  int64_t end = std::min(i, full);
  int64_t newline = rows.scanned < end ? newlinefrom(r, rows.scanned, end) : end;
  rows.scanned = end;
  if (newline == end && end < full) return false;
  rows.starts.push_back(newline < end ? newline + 1 : full);
  rows.scanned = rows.starts.back();
  return true;
}

// The row of the window that holds offset i, counted from 0; -1 if none does.
static int64_t windowrow(sheet& s, int64_t i) {
  refreshrows(s);
  if (i < s.top) return -1;
  reader r = readsheet(s);
  while (i >= rows.scanned && rows.starts.back() <= i && walkrow(r, i)) {
  }
  auto behind = std::upper_bound(rows.starts.begin(), rows.starts.end(), i);
  int64_t row = behind - rows.starts.begin() - 1;
  return row < height - 1 ? row : -1;
}

bool pointshows(sheet& s) { return windowrow(s, s.point) >= 0; }

void recentre(sheet& s) {
  refreshrows(s);
  s.top = static_cast<int32_t>(rowsabove(s, s.point, (height - 2) / 2));
}

void showpoint(sheet& s) {
  if (!pointshows(s)) recentre(s);
}

void movepoint(sheet& s, int64_t to) {
  setpoint(s, to);
  showpoint(s);
}

void aligntop(sheet& s) {
  int64_t top = std::min<int64_t>(s.top, size(s));
  int64_t from = std::max<int64_t>(0, top - linesearch);
  reader r = readsheet(s);
  int64_t begin = newlinebefore(r, top, from) + 1;
  bool known = begin > from || from == 0;
  int64_t aligned = known ? top - (top - begin) % width : (top + width - 1) / width * width;
  s.top = static_cast<int32_t>(aligned);
}

int64_t windowbottom(sheet& s) {
  refreshrows(s);
  reader r = readsheet(s);
  while (walkrow(r, size(s))) {
  }
  int64_t known = static_cast<int64_t>(rows.starts.size());
  return known == height ? rows.starts.back() : size(s) + (height - known);
}

int64_t nextrow(sheet& s, int64_t start) {
  int64_t full = start + width;
  int64_t end = std::min(full, size(s));
  reader r = readsheet(s);
  int64_t newline = newlinefrom(r, start, end);
  if (newline < end) return newline + 1;
  return end == full ? full : -1;
}

int64_t rowstart(sheet& s, int64_t i) {
  int64_t row = windowrow(s, i);
  return row >= 0 ? rows.starts[static_cast<size_t>(row)] : rowsabove(s, i, 0);
}

int64_t previousrow(sheet& s, int64_t start) {
  if (start == 0) return -1;
  int64_t from = std::max<int64_t>(0, start - width);
  reader r = readsheet(s);
  int64_t begin = newlinebefore(r, start, from) + 1;
  return begin < start ? begin : rowstart(s, start - 1);
}

// The last rows of a walk forward, so that at its end a row some way back is known.
struct RowRing {
  std::vector<int64_t> starts;  // as many as must be known; row n at index n modulo their number
  int64_t walked;               // rows entered so far
};

static void enterrow(RowRing& ring, int64_t start) {
  ring.starts[static_cast<size_t>(ring.walked++) % ring.starts.size()] = start;
}

// Walks the rows from `begin`, a row's start, to the one that holds i.
static void walkrows(const sheet& s, RowRing& ring, int64_t begin, int64_t i) {
  reader r = readsheet(s);
  ring.walked = 0;
  for (int64_t start = begin;;) {
    enterrow(ring, start);
    int64_t end = std::min(start + width, i);
    int64_t newline = newlinefrom(r, start, end);
    if (newline == end && end < start + width) return;
    start = newline < end ? newline + 1 : end;
  }
}

// Walks forward from a line that begins early enough, and looks back from i. Where no line begins
// there, the first line behind serves; the rows before it are those of a line without a known
// start.
int64_t rowsabove(sheet& s, int64_t i, int64_t above) {
  static RowRing ring = {};
  int64_t low = std::max<int64_t>(0, i - (above + 1) * width);
  int64_t from = std::max<int64_t>(0, low - linesearch);
  reader r = readsheet(s);
  int64_t begin = newlinebefore(r, low, from) + 1;
  bool known = begin > from || from == 0;
  if (!known) begin = newlinefrom(r, low, i) + 1;
  if (begin > i) return std::max<int64_t>(0, (i / width - above) * width);
  ring.starts.resize(static_cast<size_t>(above + 1));
  walkrows(s, ring, begin, i);
  int64_t row = ring.walked - 1 - above;
  if (row >= 0) return ring.starts[static_cast<size_t>(row) % ring.starts.size()];
  if (known) return 0;
  int64_t lastrow = (begin - 1) / width;  // of the line that ends just before `begin`
  return std::max<int64_t>(0, (lastrow + 1 + row) * width);
}

}  // namespace tarn

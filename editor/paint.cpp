// The painter of texts: colours, the layout of rows, the status row.
#include "editor/paint.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "editor/console.h"
#include "editor/kink.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/alphabet.h"
#include "foundation/diag.h"

namespace tarn {

int32_t byteclass(uint8_t byte) {
  if (byte >= 0xA1 && byte <= 0xFE) return classred;
  return byte >= 0x21 && byte <= 0x7E ? classyellow : classgreen;
}

// The glyph of every byte: the green ones have names, the others show themselves.
static constexpr std::array<uint8_t, 256> glyphs = [] {
  std::array<uint8_t, 256> table = {};
  for (size_t b = 0; b < 256; b++) table[b] = static_cast<uint8_t>(b & 0x7F);
  for (size_t i = 0; i < lownames.size(); i++) {
    table[(i + 255) % 256] = static_cast<uint8_t>(lownames[i]);
  }
  for (size_t i = 0; i < highnames.size(); i++) {
    table[i + 127] = static_cast<uint8_t>(highnames[i]);
  }
  return table;
}();

uint8_t byteglyph(uint8_t byte) { return glyphs[byte]; }

// The four states of a sheet, in the order of their backgrounds n3 to n6; the flags of n12 run the
// other way.
static int32_t editstate(bool changed, bool overwrite) {
  return overwrite ? (changed ? 2 : 3) : (changed ? 1 : 0);
}

static bool schemea(int32_t state) { return kinknibble(12) >> (3 - state) & 1; }

static int32_t currentstate() {
  const sheet& s = currentsheet();
  return editstate(!isclean(s), s.insertmode == 0);
}

uint32_t pinkfore(bool changed, bool overwrite, int32_t byteclass) {
  if (byteclass < classred || byteclass > classyellow) die("pinkfore");
  int32_t first = schemea(editstate(changed, overwrite)) ? 0 : 7;
  return kinknibble(first + byteclass - classred);
}

static uint32_t pinkback(bool chosen, bool statusrow, int32_t state) {
  if (statusrow) return kinknibble(chosen ? 10 : 11);
  if (chosen) return kinknibble(schemea(state) ? 13 : 14);
  return kinknibble(3 + state);
}

Cell16 pinkcell(bool chosen, bool changedbyte, bool statusrow, uint8_t byte) {
  const sheet& s = currentsheet();
  bool changed = !isclean(s);
  bool overwrite = s.insertmode == 0;
  int32_t kind = byteclass(byte);
  uint32_t fore = statusrow ? kinknibble(6 + kind) : pinkfore(changed, overwrite, kind);
  uint32_t back = pinkback(chosen, statusrow, editstate(changed, overwrite));
  return gridcell(back, fore, byteglyph(byte) | (changedbyte ? cellchanged : 0u));
}

Cell16 pinkblank(bool chosen, bool statusrow) {
  uint32_t back = pinkback(chosen, statusrow, currentstate());
  return gridcell(back, back, ' ');
}

// The cells of all bytes of a text, unselected and selected, and what they were made for.
struct CellTable {
  uint64_t palette;
  int32_t state;  // -1 before the first use
  Cell16 cells[2][256];
  Cell16 blank;
};

static CellTable celltable = {0, -1, {}, 0};

static const CellTable& presentcells() {
  CellTable& t = celltable;
  int32_t state = currentstate();
  if (t.palette == kink && t.state == state) return t;
  for (int32_t b = 0; b < 256; b++) {
    t.cells[0][b] = pinkcell(false, false, false, static_cast<uint8_t>(b));
    t.cells[1][b] = pinkcell(true, false, false, static_cast<uint8_t>(b));
  }
  t.blank = pinkblank(false, false);
  t.palette = kink;
  t.state = state;
  return t;
}

// The layout of a text, on its way through the grid.
struct Layout {
  const CellTable* table;
  int64_t at;      // the offset of the next byte
  Cell16* cell;    // where it goes
  Cell16* rowend;  // behind the row of that cell; cell < rowend but at the end of the grid
  Cell16* end;     // behind the grid
};

static void endrow(Layout& l) {
  std::fill(l.cell, l.rowend, l.table->blank);
  l.cell = l.rowend;
  l.rowend += width;
}

// How the bytes of a stretch differ from the saved text.
struct Difference {
  const uint8_t* saved;  // the saved bytes to compare with, or null
  Cell16 flag;           // without `saved`: cellchanged or 0, for all
};

// Lays out n bytes of one look, as far as the grid goes.
static void drawstretch(Layout& l, const uint8_t* bytes, int64_t n, const Cell16* cells,
                        Difference difference) {
  for (int64_t i = 0; i < n && l.cell < l.end; i++) {
    Cell16 flag = difference.flag;
    if (difference.saved != nullptr) flag = difference.saved[i] != bytes[i] ? cellchanged : 0;
    *l.cell++ = cells[bytes[i]] | flag;
    l.at++;
    if (bytes[i] == '\n') {
      endrow(l);
    } else if (l.cell == l.rowend) {
      l.rowend += width;
    }
  }
}

struct Range {
  int64_t low;
  int64_t high;
};

static bool within(Range r, int64_t i) { return r.low <= i && i < r.high; }

// The end of the stretch from i on, up to `stop`, that lies wholly within or without the range.
static int64_t untilborder(Range r, int64_t i, int64_t stop) {
  if (i < r.low) return std::min(stop, r.low);
  return i < r.high ? std::min(stop, r.high) : stop;
}

static Range selection(const sheet& s) {
  if (mark < 0) return {0, 0};
  return {std::min<int64_t>(mark, s.point), std::max<int64_t>(mark, s.point)};
}

static Difference differenceat(const sheet& s, Range changed, int64_t i) {
  if (!within(changed, i)) return {nullptr, 0};
  if (size(s) == s.saved.len()) return {s.saved.bytes() + i, 0};
  return {nullptr, cellchanged};
}

Spot drawtext(Highlight highlight) {
  const sheet& s = currentsheet();
  Cell16* grid = drawngrid();
  const Range picked = selection(s);
  const Range changed = {s.difflow, s.diffhigh};
  Layout l = {&presentcells(), s.top, grid + width, grid + 2 * width, grid + width * height};
  Cell16* found = nullptr;
  reader r = readsheet(s);
  while (l.cell < l.end) {
    if (l.at == s.point) found = l.cell;
    if (!readto(r, l.at)) break;
    int64_t stop = untilborder(picked, l.at, untilborder(changed, l.at, r.start + r.length));
    if (l.at < s.point) stop = std::min<int64_t>(stop, s.point);
    if (highlight != nullptr) stop = l.at + 1;
    bool chosen = highlight != nullptr ? highlight(l.at) : within(picked, l.at);
    drawstretch(l, r.bytes + (l.at - r.start), stop - l.at, l.table->cells[chosen],
                differenceat(s, changed, l.at));
  }
  while (l.cell < l.end) endrow(l);
  check(found != nullptr);
  return {(found - grid) % width, (found - grid) / width};
}

static bool isword(const char* word, const char* other) { return strcmp(word, other) == 0; }

// The cell of column 4, in the colour of the ink.
static Cell16 inkcell(const char* word) {
  bool number = isword(word, "Byte") || isword(word, "Line");
  uint32_t colour = kinknibble(number ? 10 : 6 + inkmode);
  return gridcell(colour, colour, ' ');
}

void paintword(const char* word) {
  bool tabs = isword(word, "Tabs");
  bool list = tabs || isword(word, "Open") || isword(word, "Save");
  bool picked = tabs && selected % height == 0;
  Cell16* row = drawngrid();
  for (int64_t col = 0; col < width; col++) {
    int64_t i = col - 5 + statshift;
    if (col < 4) {
      row[col] = pinkcell(picked, false, list, static_cast<uint8_t>(word[col]));
    } else if (col == 4) {
      row[col] = inkcell(word);
    } else if (i < stat.len()) {
      row[col] = pinkcell(picked, false, list, stat.at(i));
    } else {
      row[col] = pinkblank(picked, list);
    }
  }
}

Spot drawsheet(const char* word) {
  Spot spot = drawtext(nullptr);
  paintword(word);
  return spot;
}

void paintsheet(const char* word) {
  if (deferpaint()) return;
  Spot spot = drawsheet(word);
  paintdiff(spot.col, spot.row);
}

void paintfile() {
  static const Str help =
      "Escape-O opens an existing file. Escape-W writes to a new file.";
  if (currentname == dotname) {
    stat = help;
    paintsheet("Tarn");
  } else {
    paintsheet("File");
  }
}

static bool owed = false;
static bool held = false;

bool deferpaint() {
  owed = held || consolewaiting();
  return owed;
}

void paintowed() {
  if (owed) repaint();
}

bool owespaint() { return owed; }

void holdpaint(bool hold) { held = hold; }

}  // namespace tarn

// The painter of texts: the layout of rows, the status row, and paints put off while keys wait.
#include "editor/paint.h"

#include <algorithm>
#include <cstring>

#include "editor/console.h"
#include "editor/grid.h"
#include "editor/kink.h"
#include "editor/pink.h"
#include "editor/reader.h"
#include "editor/selection.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/diag.h"

namespace tarn {

// The layout of a text, on its way through the grid.
struct Layout {
  const PinkTable* pinks;
  int64_t at;      // the offset of the next byte
  Cell16* cell;    // where it goes
  Cell16* rowend;  // behind the row of that cell; cell < rowend but at the end of the grid
  Cell16* end;     // behind the grid
};

static void endrow(Layout& l) {
  fillcells(l.cell, l.rowend, l.pinks->blanks[0][0]);
  l.cell = l.rowend;
  l.rowend += width;
}

// How the bytes of a stretch differ from the saved text.
struct Difference {
  const uint8_t* saved;  // the saved bytes to compare with, or null
  Cell16 flag;           // without `saved`: cellchanged or 0, for all
};

// Makes the cells of n bytes of one look that stand in one row.
static void drawrun(Cell16* out, const uint8_t* bytes, int64_t n, const Cell16* cells,
                    Difference difference) {
  if (difference.saved == nullptr) {
    for (int64_t i = 0; i < n; i++) out[i] = cells[bytes[i]] | difference.flag;
    return;
  }
  for (int64_t i = 0; i < n; i++) {
    out[i] = cells[bytes[i]] | (difference.saved[i] != bytes[i] ? cellchanged : Cell16{0});
  }
}

// Lays out n bytes of one look, as far as the grid goes.
static void drawstretch(Layout& l, const uint8_t* bytes, int64_t n, const Cell16* cells,
                        Difference difference) {
  for (int64_t i = 0; i < n && l.cell < l.end;) {
    int64_t run = std::min<int64_t>(n - i, l.rowend - l.cell);
    const void* newline = memchr(bytes + i, '\n', static_cast<size_t>(run));
    if (newline != nullptr) run = static_cast<const uint8_t*>(newline) + 1 - (bytes + i);
    drawrun(l.cell, bytes + i, run, cells, difference);
    if (difference.saved != nullptr) difference.saved += run;
    l.cell += run;
    l.at += run;
    i += run;
    if (newline != nullptr) {
      endrow(l);
    } else if (l.cell == l.rowend) {
      l.rowend += width;
    }
  }
}

static bool within(Range r, int64_t i) { return r.low <= i && i < r.high; }

// The end of the stretch from i on, up to `stop`, that lies wholly within or without the range.
static int64_t untilborder(Range r, int64_t i, int64_t stop) {
  if (i < r.low) return std::min(stop, r.low);
  return i < r.high ? std::min(stop, r.high) : stop;
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
  Layout l = {&presentpinks(), s.top, grid + width, grid + 2 * width, grid + width * height};
  Cell16* found = nullptr;
  reader r = readsheet(s);
  while (l.cell < l.end) {
    if (l.at == s.point) found = l.cell;
    if (!readto(r, l.at)) break;
    int64_t stop = untilborder(picked, l.at, untilborder(changed, l.at, r.start + r.length));
    if (l.at < s.point) stop = std::min<int64_t>(stop, s.point);
    if (highlight != nullptr) stop = l.at + 1;
    bool chosen = highlight != nullptr ? highlight(l.at) : within(picked, l.at);
    drawstretch(l, r.bytes + (l.at - r.start), stop - l.at, l.pinks->cells[0][chosen],
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
  const PinkTable& pinks = presentpinks();
  const Cell16* cells = pinks.cells[list][picked];
  const Cell16 ink = inkcell(word);
  Cell16* row = drawngrid();
  Cell16* out = row;
  Cell16* end = row + width;  // the window of the start may be narrower than the word
  for (; out < end && *word != 0; word++) *out++ = cells[static_cast<uint8_t>(*word)];
  if (out < end) *out++ = ink;
  for (int64_t i = statshift; out < end && i < stat.len(); i++) *out++ = cells[stat.at(i)];
  fillcells(out, end, pinks.blanks[list][picked]);
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

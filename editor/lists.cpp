// The list of names that a prompt shows, and how it is painted.
#include "editor/lists.h"

#include <algorithm>

#include "editor/grid.h"
#include "editor/kink.h"
#include "editor/paint.h"
#include "editor/pink.h"
#include "editor/state.h"

namespace tarn {

static std::vector<Str> entries;
static int64_t widest = 0;

void listset(std::vector<Str> names) {
  entries = std::move(names);
  std::sort(entries.begin(), entries.end());
  widest = 0;
  for (const Str& name : entries) widest = std::max(widest, name.len());
}

int64_t listcount() { return static_cast<int64_t>(entries.size()); }
const Str& listname(int64_t entry) { return entries[static_cast<size_t>(entry)]; }
int64_t listwidth() { return widest; }

int64_t listfind(const Str& text) {
  auto found = std::lower_bound(entries.begin(), entries.end(), text);
  bool begins = found != entries.end() && found->substr(0, text.len()) == text;
  return begins ? found - entries.begin() : -1;
}

void listground(const char* word) {
  Cell16* grid = drawngrid();
  fillcells(grid, grid + width * height, gridcell(kinknibble(11), kinknibble(9), '!'));
  paintword(word);
}

void listfield(int64_t row, int64_t col, int64_t columns, const Str& text, bool picked) {
  Cell16* cells = drawngrid() + row * width + col;
  columns = std::min(columns, width - col);
  int64_t shown = std::min(columns, text.len());
  const PinkTable& pinks = presentpinks();
  for (int64_t i = 0; i < shown; i++) cells[i] = pinks.cells[1][picked][text.bytes()[i]];
  fillcells(cells + shown, cells + columns, pinks.blanks[1][picked]);
}

}  // namespace tarn

// The painter of lists.
#include "editor/listpaint.h"

#include <algorithm>

#include "editor/grid.h"
#include "editor/kink.h"
#include "editor/paint.h"
#include "editor/pink.h"
#include "editor/state.h"

namespace tarn {

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

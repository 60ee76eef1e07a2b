// The painter of lists.
#include "editor/listpaint.h"

#include <algorithm>

#include "editor/grid.h"
#include "editor/kink.h"
#include "editor/paint.h"
#include "editor/state.h"

namespace tarn {

void listground(const char* word) {
  Cell16* grid = drawngrid();
  std::fill(grid, grid + width * height, gridcell(kinknibble(11), kinknibble(9), '!'));
  paintword(word);
}

void listfield(int64_t row, int64_t col, int64_t columns, const Str& text, bool picked) {
  Cell16* cells = drawngrid() + row * width + col;
  columns = std::min(columns, width - col);
  int64_t shown = std::min(columns, text.len());
  for (int64_t i = 0; i < shown; i++) cells[i] = pinkcell(picked, false, true, text.bytes()[i]);
  std::fill(cells + shown, cells + std::max(shown, columns), pinkblank(picked, true));
}

}  // namespace tarn

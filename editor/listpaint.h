// The painter of lists: names in fields over a ground of "!".
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// Covers the grid that is drawn with "!" and draws the status row with the word.
void listground(const char* word);

// Draws one entry of a list from a column of a row on: the text, cut at `columns`, and blanks up to
// them; highlighted if it is picked. Columns beyond the window are left out.
void listfield(int64_t row, int64_t col, int64_t columns, const Str& text, bool picked);

}  // namespace tarn

// The selection: the bytes between `mark` and the point.
#pragma once

#include <cstdint>

#include "editor/sheet.h"

namespace tarn {

// The bytes from offset low to before offset high; low <= high.
struct Range {
  int64_t low;
  int64_t high;
};

// The selection in the current sheet; without one the empty range at the point.
Range selection(const sheet& s);

// What a command works on that takes the selection or, without one, the whole text.
Range selectionorall(const sheet& s);

}  // namespace tarn

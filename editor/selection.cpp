// The selection.
#include "editor/selection.h"

#include <algorithm>

#include "editor/state.h"

namespace tarn {

Range selection(const sheet& s) {
  if (mark < 0) return {s.point, s.point};
  return {std::min<int64_t>(mark, s.point), std::max<int64_t>(mark, s.point)};
}

Range selectionorall(const sheet& s) { return mark < 0 ? Range{0, size(s)} : selection(s); }

}  // namespace tarn

// The palette.
#include "editor/kink.h"

#include <cstdlib>

#include "editor/state.h"

namespace tarn {

uint32_t kinknibble(int32_t n) { return static_cast<uint32_t>(kink >> (4 * n)) & 15; }

void newkink() {
  kink = 0;
  for (int32_t bit = 63; bit >= 0; bit--) {
    kink |= static_cast<uint64_t>(rand() & 1) << bit;
  }
}

}  // namespace tarn

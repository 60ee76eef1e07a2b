// The test walks from the last byte to the first.
#include "foundation/text.h"

#include <cstring>

namespace tarn {

bool isloweridentifier(const Str& s) {
  for (int64_t i = s.len(); i-- > 0;) {
    uint8_t c = s.bytes()[i];
    if (c != '_' && (c < 'a' || c > 'z')) return false;
  }
  return !s.empty();
}

uint32_t word4(const Str& s) {
  check(s.len() == 4);
  uint32_t n = 0;
  memcpy(&n, s.bytes(), 4);
  return n;
}

Str str4(uint32_t n) { return Str(&n, 4); }

}  // namespace tarn

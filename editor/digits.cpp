// Numbers typed at prompts.
#include "editor/digits.h"

#include "foundation/alphabet.h"
#include "foundation/diag.h"

namespace tarn {

int64_t decimalvalue(const Str& digits, int64_t most) {
  int64_t value = 0;
  for (uint8_t digit : digits) {
    check(digit >= '0' && digit <= '9');
    value = value * 10 + (digit - '0');
    if (value >= most) return most;
  }
  return value;
}

int64_t base64value(const Str& digits, int64_t most) {
  int64_t value = 0;
  for (uint8_t digit : digits) {
    value = value * 64 + digitvalue(digit);
    if (value >= most) return most;
  }
  return value;
}

}  // namespace tarn

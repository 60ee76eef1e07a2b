// Places to digits, and what is left of the way back.
#include "foundation/place.h"

#include "foundation/alphabet.h"

namespace tarn {

static constexpr int64_t digits = 5;
static constexpr int64_t toofar = int64_t{1} << (6 * digits);

Str placename(int64_t n) {
  check(n >= 0 && n <= toofar);
  if (n == toofar) return "!!!!!";
  Str name = strsized(digits);
  uint8_t* out = name.own();
  for (int64_t i = digits; i-- > 0; n /= 64) {
    out[i] = static_cast<uint8_t>(digitalphabet[static_cast<size_t>(n % 64)]);
  }
  return name;
}

int64_t placevalue(const Str& field) {
  if (field.len() == digits) digitvalue(field.at(0));  // refuses what is no digit
  return -1;
}

}  // namespace tarn

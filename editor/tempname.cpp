// The generator of temporary names.
#include "editor/tempname.h"

#include <cstdint>

#include "editor/paths.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/system.h"

namespace tarn {

static constexpr char alphabet[] = "0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY";
static constexpr uint32_t base = sizeof alphabet - 1;
static_assert(base == 36);

// Starts from the time at which the program did, and runs on from name to name; 0 before the first.
static uint64_t counter = 0;

static uint32_t randombit() {
  counter = counter * 6364136223846793005u + 1442695040888963407u;
  return static_cast<uint32_t>(counter >> 63);
}

static Str randomdigits() {
  uint32_t value = 0;
  for (int32_t bit = 0; bit < 31; bit++) value = value << 1 | randombit();
  uint8_t digits[6];
  for (int32_t i = 5; i >= 0; i--, value /= base) {
    digits[i] = static_cast<uint8_t>(alphabet[value % base]);
  }
  return {digits, 6};
}

Str tempname() {
  systemmakedir("/tmp");
  if (counter == 0) counter = static_cast<uint64_t>(starttime);
  for (;;) {
    Str name = "/tmp/tarn.new." + randomdigits();
    if (!sheets.contains(name) && !pathexists(name)) return name;
  }
}

}  // namespace tarn

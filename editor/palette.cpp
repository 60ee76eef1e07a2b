// The palette commands.
#include "editor/palette.h"

#include "editor/commands.h"
#include "editor/kink.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

using namespace std::literals;

Str kinktext(uint64_t palette) {
  Str text = strsized(16);
  uint8_t* digits = text.own();
  for (int32_t i = 0; i < 16; i++) {
    digits[i] = static_cast<uint8_t>("0123456789ABCDEF"[palette >> (60 - 4 * i) & 15]);
  }
  return text;
}

// The value of a hexadecimal digit, -1 for any other byte.
static int32_t hexvalue(uint8_t c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

bool kinkparse(const uint8_t* digits, uint64_t& palette) {
  bool sound = true;
  palette = 0;
  for (int32_t i = 0; i < 16; i++) {
    int32_t value = hexvalue(digits[i]);
    if (value < 0) {
      sound = false;
      continue;
    }
    // On purpose: the places repeat after eight digits, and a product is signed before it is
    // widened.
    uint32_t product = static_cast<uint32_t>(value) * (0x10u << ((60 - 4 * i) % 32));
    palette += static_cast<uint64_t>(static_cast<int64_t>(static_cast<int32_t>(product)));
  }
  return sound;
}

void tarndomk() {
  const sheet& s = currentsheet();
  uint8_t digits[16];
  for (int32_t i = 0; i < 16; i++) digits[i] = byteat(s, s.point + i);
  if (!kinkparse(digits, kink)) newkink();
}

void tarndomu() { kink = defaultkink; }

static void paintpink() { paintsheet("Pink"); }

static void showkink() { setstat(kinktext(kink)); }

static void enterpink() {
  repaint = paintpink;
  showkink();
}

static void pinkrandom() {
  newkink();
  showkink();
}

static void pinkdefault() {
  tarndomu();
  showkink();
}

static constexpr PromptKey pinkkeys[] = {
    {"\x1Bk"sv, pinkrandom},
    {"\x1Bu"sv, pinkdefault},
};
static constexpr Prompt pinkprompt = {2, enterpink, pinkkeys, nullptr, replay};

void tarndomp() { runprompt(pinkprompt); }

}  // namespace tarn

// Taps: one byte many times.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

using namespace std::literals;

static void painttaps() { paintsheet("Taps"); }

static void entertaps() {
  repaint = painttaps;
  setstat("");
}

// A digit adds to the count, any other key is what is put in. On purpose: without ink, like the key
// of Dent.
static void typetaps(uint8_t key) {
  if (key >= '0' && key <= '9') return setstat(stat + strbyte(key));
  if (!oprun(stat, key)) return chirp();
  leave();
}

static constexpr PromptKey tapskeys[] = {{"\x7F"sv, dropstat}};
static constexpr Prompt tapsprompt = {2, entertaps, tapskeys, typetaps, chirp};

void tarndomt() { runprompt(tapsprompt); }

}  // namespace tarn

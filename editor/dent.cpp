// Dent: puts a key in front of lines, or takes a space off them.
#include <algorithm>

#include "editor/commands.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

using namespace std::literals;

static void paintdent() { paintsheet("Dent"); }

static void enterdent() {
  repaint = paintdent;
  setstat("Press indent key or return.");
}

static void leavedent() {
  mark = -1;
  leave();
}

// The key goes in as it is, without ink.
static void typedent(uint8_t key) {
  int64_t point = currentsheet().point;
  int64_t from = mark < 0 ? point : std::min(mark, point);
  int64_t to = mark < 0 ? point : std::max(mark, point);
  if (!opindent(from, to, key)) chirp();
  leavedent();
}

static constexpr PromptKey dentkeys[] = {{"\x07"sv, leavedent}};
static constexpr Prompt dentprompt = {2, enterdent, dentkeys, typedent, chirp};

void tarndomi() { runprompt(dentprompt); }

}  // namespace tarn

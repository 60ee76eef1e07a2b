// Dent: puts a key in front of lines, or takes a space off them.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/selection.h"
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

// On purpose: the key is taken without ink, as the byte of a green comma is the newline that means
// the opposite.
static void typedent(uint8_t key) {
  Range range = selection(currentsheet());
  if (!opindent(range.low, range.high, key)) chirp();
  leaveunmarked();
}

static constexpr PromptKey dentkeys[] = {{"\x07"sv, leaveunmarked}};
static constexpr Prompt dentprompt = {2, enterdent, dentkeys, typedent, chirp};

void tarndomi() { runprompt(dentprompt); }

}  // namespace tarn

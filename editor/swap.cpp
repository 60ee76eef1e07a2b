// Swap: replaces one text by another, in the selection or everywhere. The first text is typed under
// the word "Swap", the second under "With".
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/selection.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "foundation/alphabet.h"

namespace tarn {

using namespace std::literals;

static Str oldtext;  // what is to be replaced; under the word "With"

static void paintswap() { paintsheet("Swap"); }
static void paintwith() { paintsheet("With"); }

static void enterswap() {
  repaint = paintswap;
  setstat("");
}

// Both texts are inked, so that a replacement can change the colour of a word.
static void typeswap(uint8_t key) { setstat(stat + strbyte(nopqchar(inkmode, key))); }

static void replaceall() {
  Range range = selectionorall(currentsheet());
  if (!opreplace(range.low, range.high, oldtext, stat)) chirp();
  leaveunmarked();
}

static void endfield() {
  if (repaint == paintwith) return replaceall();
  oldtext = stat;
  repaint = paintwith;
  setstat("");
}

static constexpr PromptKey swapkeys[] = {
    {"\t"sv, endfield},
    {"\x7F"sv, dropstat},
    {"\x07"sv, leaveunmarked},  // C-g
    {"\x1Br"sv, redink},
    {"\x1Bg"sv, greenink},
    {"\x1By"sv, yellowink},
};
static constexpr Prompt swapprompt = {2, enterswap, swapkeys, typeswap, chirp};

void tarndomx() { runprompt(swapprompt); }

}  // namespace tarn

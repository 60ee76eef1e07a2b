// The prompts that go to a place told by number: Byte and Line.
#include "editor/commands.h"
#include "editor/digits.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"

namespace tarn {

using namespace std::literals;

static void jump(sheet& s, int64_t to) {
  movepoint(s, to);
  leave();
}

// --- Byte: a number in the 64 digits -------------------------------------------------------------

static void paintbyte() { paintsheet("Byte"); }

static void enterbyte() {
  repaint = paintbyte;
  setstat("");
}

static void typebyte(uint8_t key) {
  if (!isdigitvalue(key)) return chirp();
  setstat(stat + strbyte(key));
}

static void gobyte() {
  sheet& s = currentsheet();
  jump(s, base64value(stat, size(s)));
}

static constexpr PromptKey bytekeys[] = {{"\n"sv, gobyte}, {"\x7F"sv, dropstat}};
static constexpr Prompt byteprompt = {2, enterbyte, bytekeys, typebyte, chirp};

void tarndomb() { runprompt(byteprompt); }

// --- Line: a decimal number, from 1 --------------------------------------------------------------

static void paintline() { paintsheet("Line"); }

static void enterline() {
  repaint = paintline;
  setstat("");
}

static void typeline(uint8_t key) {
  if (key < '0' || key > '9') return chirp();
  setstat(stat + strbyte(key));
}

// The start of a line counted from 1, or the end of the text where there are not so many.
static int64_t findline(const sheet& s, int64_t number) {
  reader r = readsheet(s);
  int64_t end = size(s);
  int64_t at = 0;
  for (int64_t n = 1; n < number; n++) {
    int64_t newline = newlinefrom(r, at, end);
    if (newline == end) return end;
    at = newline + 1;
  }
  return at;
}

static void goline() {
  sheet& s = currentsheet();
  int64_t number = decimalvalue(stat, size(s) + 2);  // more lines than there can be
  if (number > 0) return jump(s, findline(s, number));
  chirp();
  leave();
}

static constexpr PromptKey linekeys[] = {{"\n"sv, goline}, {"\x7F"sv, dropstat}};
static constexpr Prompt lineprompt = {2, enterline, linekeys, typeline, chirp};

void tarndoml() { runprompt(lineprompt); }

}  // namespace tarn

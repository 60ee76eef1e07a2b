// Eval: hands the text to the language and shows the result. Only this command evaluates.
#include <algorithm>
#include <cstdio>
#include <string>

#include "editor/commands.h"
#include "editor/console.h"
#include "editor/grid.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/selection.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"
#include "foundation/diag.h"
#include "foundation/place.h"
#include "frontend/driver.h"

namespace tarn {

using namespace std::literals;

static void write(const std::string& bytes) {
  consolewrite(bytes.data(), static_cast<int64_t>(bytes.size()));
}

static void painteval() { paintsheet("Eval"); }

// Whether the place field of a report tells an offset of this text, and which.
static bool toldplace(const Str& place, int64_t limit, int64_t& offset) {
  if (place.empty() || !isdigitvalue(place.at(0))) return false;
  offset = placevalue(place);
  return offset >= 0 && offset <= limit;
}

// Covers the whole screen with bright red "!", so that the next paint draws every cell anew,
// whatever the program has printed.
static void flash() {
  check(fflush(stdout) == 0);  // what it has printed must not come later
  int64_t cells = width * height;
  write("\x1B[1;1H\x1B[J\x1B[m\x1B[91m\n" + std::string(static_cast<size_t>(cells), '!'));
  std::fill_n(showngrid(), cells, gridcell(9, 0, '!'));
}

static void showresult(sheet& s, const Evaluation& result) {
  int64_t offset = 0;
  setstat(result.shown);
  if (result.ok || !toldplace(result.place, size(s), offset)) return;
  movepoint(s, offset);
}

static void entereval() {
  write("\x1B[1;1H\x1B[J\x1B[mEval\n"s);
  sheet& s = currentsheet();
  Range range = selectionorall(s);
  mark = -1;
  showresult(s, evaluate(stretch(s, range.low, range.high), range.low));
  flash();
  repaint = painteval;
}

static constexpr Prompt evalprompt = {2, entereval, {}, nullptr, replay};

void tarndome() { runprompt(evalprompt); }

}  // namespace tarn

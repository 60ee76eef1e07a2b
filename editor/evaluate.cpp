// The commands where the editor meets the language: Escape-e evaluates a text, Escape-v sorts its
// definitions.
#include <algorithm>
#include <cstdio>
#include <string>

#include "editor/commands.h"
#include "editor/console.h"
#include "editor/grid.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"
#include "foundation/diag.h"
#include "foundation/place.h"
#include "frontend/brackets.h"
#include "frontend/driver.h"
#include "host/builtintable.h"

namespace tarn {

using namespace std::literals;

// Sets the language up, the first time that it is needed: most sessions never do.
static void needlanguage() {
  static bool ready = false;
  if (!ready) hostinstall();
  ready = true;
}

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
  s.point = static_cast<int32_t>(offset);
  showpoint(s);
}

static void entereval() {
  write("\x1B[1;1H\x1B[J\x1B[mEval\n"s);
  sheet& s = currentsheet();
  int64_t from = mark < 0 ? 0 : std::min<int64_t>(mark, s.point);
  int64_t to = mark < 0 ? size(s) : std::max<int64_t>(mark, s.point);
  mark = -1;
  needlanguage();
  showresult(s, evaluate(stretch(s, from, to), from));
  flash();
  repaint = painteval;
}

static constexpr Prompt evalprompt = {2, entereval, {}, nullptr, replay};

void tarndome() { runprompt(evalprompt); }

static void paintvows() { paintsheet("Vows"); }

void tarndomv() {
  sheet& s = currentsheet();
  Report report;
  int64_t place = 0;
  if (bracketcheck(flatten(s), 0, report, place)) {
    needlanguage();
    opsort();
    return leave();
  }
  s.point = static_cast<int32_t>(place);
  showpoint(s);
  setstat(report.message);
  repaint = paintvows;
  showsfault = true;
}

}  // namespace tarn

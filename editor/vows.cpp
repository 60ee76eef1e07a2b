// Vows: puts the definitions of a program in the order of their names. Only their order changes,
// each keeps its own bytes, white space and all.
#include "editor/vows.h"

#include <algorithm>
#include <vector>

#include "editor/commands.h"
#include "editor/history.h"
#include "editor/paint.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"
#include "foundation/strbuilder.h"
#include "frontend/brackets.h"
#include "frontend/parser.h"
#include "frontend/program.h"
#include "frontend/report.h"
#include "frontend/tidy.h"

namespace tarn {

struct Vow {
  Str name;
  Str piece;  // as it stands in the text, with the comma in front
};

Str vowsort(const Str& text) {
  std::vector<int64_t> cuts = scantop(text, ",");
  cuts.push_back(text.len());
  std::vector<Vow> vows;
  size_t next = 0;
  for (; next + 1 < cuts.size(); next++) {
    Str piece = text.substr(cuts[next], cuts[next + 1] - cuts[next]);
    Str name = itemname(parseterm(tidytext(piece.substr(1))));
    if (name.empty()) break;
    vows.push_back({name, piece});
  }
  std::stable_sort(vows.begin(), vows.end(),
                   [](const Vow& a, const Vow& b) { return namebefore(a.name, b.name); });
  StrBuilder* sorted = StrBuilder::add(nullptr, text.substr(0, cuts[0]));
  for (const Vow& vow : vows) sorted = StrBuilder::add(sorted, vow.piece);
  return StrBuilder::take(StrBuilder::add(sorted, text.substr(cuts[next])));
}

// --- The command ---------------------------------------------------------------------------------

static void paintvows() { paintsheet("Vows"); }

static void showfault(const Report& report, int64_t place) {
  movepoint(currentsheet(), place);
  setstat(report.message);
  repaint = paintvows;
  showsfault = true;
}

void tarndomv() {
  Report report;
  int64_t place = 0;
  if (!bracketcheck(flatten(currentsheet()), 0, report, place)) return showfault(report, place);
  opsort();
  leave();
}

}  // namespace tarn

// Sorting definitions: only their order changes, each keeps its own bytes, white space and all.
#include "editor/vows.h"

#include <algorithm>
#include <vector>

#include "foundation/alphabet.h"
#include "foundation/strbuilder.h"
#include "frontend/brackets.h"
#include "frontend/parser.h"
#include "frontend/program.h"
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

}  // namespace tarn

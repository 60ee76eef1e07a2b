// The abstract machine once more, slow and to the letter: its state is one term, `C F`, and each
// step makes the next. What it answers, the real machine has to answer too, in as many steps.
#pragma once

#include <cstdint>
#include <string>

#include "graph/cell.h"

namespace tarn {

struct LetterRun {
  bool ended;  // within the limit
  int64_t steps;
  std::string result;
};

LetterRun letterreduce(CellRef term, int64_t limit);

}  // namespace tarn

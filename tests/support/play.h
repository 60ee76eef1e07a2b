// Plays a scenario against the real program.
#pragma once

#include <functional>
#include <string>

#include "tests/support/scenario.h"
#include "tests/support/terminal.h"

namespace tarn {

// How keys are typed: a line of them at once, as a fast typist or a paste sends them, or each one
// after the answer to the one before; and whether every step is then painted once more from
// nothing, which must change no cell.
enum class Pace { together, apart, repainted };

struct Stage {
  std::string program;         // its path
  Pace pace = Pace::together;
  std::string directory = "";  // made for the scenario and removed; a fresh one in /tmp if it is ""
  std::function<void(const Terminal&)> lastscreen = nullptr;  // called with it, if all went well
};

// Says what went wrong, with the place in the file and the screen as it was; "" if nothing did.
std::string play(const Scenario& scenario, const Stage& stage);

}  // namespace tarn

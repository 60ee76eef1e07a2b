// Plays a scenario against the real program, in a fresh directory under /tmp.
#pragma once

#include <string>

#include "tests/support/scenario.h"

namespace tarn {

// How keys are typed: a line of them at once, as a fast typist or a paste sends them, or each one
// after the answer to the one before; and whether every step is then painted once more from
// nothing, which must change no cell.
enum class Pace { together, apart, repainted };

// Says what went wrong, with the place in the file and the screen as it was; "" if nothing did.
std::string play(const Scenario& scenario, const std::string& program, Pace pace);

}  // namespace tarn

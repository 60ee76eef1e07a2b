// Comparing a screen with the rows that a scenario draws, and drawing one in the same notation.
#pragma once

#include <string>

#include "tests/support/scenario.h"
#include "tests/support/terminal.h"

namespace tarn {

// What is wrong with row y of the screen, or "".
//
// The bottom right cell may hold the bold "<" on magenta where a blank is wanted: the painter never
// leaves that cell black.
std::string rowfault(const Terminal& terminal, int y, const RowWanted& wanted);

// All rows, with their colours and attributes if asked, and the cursor.
std::string picture(const Terminal& terminal, bool colours);

// The rows of colours and attributes of one row of the screen.
std::string inks(const Terminal& terminal, int y);

}  // namespace tarn

// The lists of names that the buffer list and the file prompts show, one list at a time: what they
// have in common, which is keeping the names in order and painting them over a ground of "!".
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/str.h"

namespace tarn {

// Makes these names the list, in the order of their bytes.
void listset(std::vector<Str> names);

int64_t listcount();
const Str& listname(int64_t entry);  // 0 to listcount() - 1
int64_t listwidth();                 // the length of the longest name, in bytes

// The first entry that begins with the text, or -1.
int64_t listfind(const Str& text);

// Covers the grid that is drawn with "!" and draws the status row with the word.
void listground(const char* word);

// Draws one entry from a column of a row on: the text, cut at `columns`, and blanks up to them;
// highlighted if it is picked. Columns beyond the window are left out.
void listfield(int64_t row, int64_t col, int64_t columns, const Str& text, bool picked);

}  // namespace tarn

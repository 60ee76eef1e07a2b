// A strict reader of what the editor sends to the terminal. It knows only the sequences that the
// editor has a use for; anything else is a byte of some file that reached the terminal raw.
#pragma once

#include <string>

namespace tarn {

struct StrictOutput {
  int width, height;      // no cursor address may lie outside; 0 turns that test off
  std::string sequence;   // an escape sequence begun, from its ESC on
  std::string fault;      // "" while all was well; afterwards what was wrong, and where
  size_t taken = 0;       // bytes read so far
};

// Reads n more bytes; false once something was wrong.
bool readstrictly(StrictOutput& output, const char* bytes, size_t n);

}  // namespace tarn

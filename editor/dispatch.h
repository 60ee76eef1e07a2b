// From keys to commands. Which key does what in the plain state stands in the table of dispatch.cpp
// and nowhere else.
#pragma once

#include <cstdint>

namespace tarn {

// Runs the command that answers `line`, which must hold whole keys, and then `repaint`, unless
// `suppressed` or the command set `painted`. On entry of every command
//   - `killchain` is set, but for C-k, which looks at it;
//   - `line` is empty, but for the prompts, which look at what follows their own key and stay on
//     `line` until they leave.
// A command does not paint, but for C-p where a move of the cursor is all there is to show.
void dispatch();

// How a row of the table takes `line`.
enum struct KeyMatch : uint8_t {
  whole,   // `line` is the key; it is cleared on entry
  start,   // `line` begins with the key; it is cleared on entry
  prompt,  // `line` begins with the key and stays: the command gets all further keys
};

struct KeyRow {
  const char* name;  // as the pages write it
  uint8_t length;    // of the key: 1, or 2 with ESC in front
  uint8_t keys[2];   // the first `length` of them are valid
  KeyMatch match;
  void (*command)();
};

// The rows, `keyrows` of them. No two have the same key.
extern const KeyRow keytable[];
extern const int64_t keyrows;

}  // namespace tarn

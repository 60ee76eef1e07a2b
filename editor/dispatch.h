// From keys to commands. The table of dispatch.cpp is all there is to know about which key does what.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// Runs the command that answers `line`, which must hold whole keys, and then `repaint`, unless
// `suppressed` or the command set `painted`. On entry of every command
//   - `killchain` is set, but for C-k, which looks at it;
//   - `line` is empty, but for the prompts, which look at what follows their own key and stay on
//     `line` until they leave. A command never paints by itself.
void dispatch();

// How a row of the table takes `line`.
enum struct KeyMatch : uint8_t {
  whole,   // `line` is the key; it is cleared on entry
  start,   // `line` begins with the key; it is cleared on entry
  prompt,  // `line` begins with the key and stays: the command gets all further keys
};

struct KeyRow {
  const char* name;   // as docs and traces write it
  uint8_t length;     // of the key: 1, or 2 with ESC in front
  uint8_t keys[2];
  KeyMatch match;
  void (*command)();
};

// The rows in the order in which they are tested.
extern const KeyRow keytable[];
extern const int64_t keyrows;

}  // namespace tarn

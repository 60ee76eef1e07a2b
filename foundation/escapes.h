// The three bytes that cannot stand in a string as data, since they would end it or change its
// shape, and the letters that stand for them there, in brackets: "a[p]b" spells a newline between
// "a" and "b".
#pragma once

#include <cstdint>

namespace tarn {

struct Escape {
  uint8_t byte;
  uint8_t letter;
};

inline constexpr Escape escapes[] = {
    {'\n', 'p'},
    {'[', 'q'},
    {']', 'r'},
};

// The letter that stands for a byte; 0 for a byte that stands for itself.
constexpr uint8_t escapeletter(uint8_t byte) {
  for (const Escape& e : escapes) {
    if (e.byte == byte) return e.letter;
  }
  return 0;
}

// The byte that a letter stands for; -1 for any other letter.
constexpr int32_t escapedbyte(uint8_t letter) {
  for (const Escape& e : escapes) {
    if (e.letter == letter) return e.byte;
  }
  return -1;
}

}  // namespace tarn

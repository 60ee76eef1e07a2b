// Keys as bytes. A control key is its ASCII code, a meta key is ESC and the key, an arrow is a control
// sequence, everything else is the byte it types. `line` collects them, and a command may look at
// `line` only when it holds whole keys.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The bytes of one key; n 0 means no key at all.
struct KeyText {
  uint8_t n;
  uint8_t bytes[7];
};

// A key event of a console that reports keys and not bytes.
struct KeyPress {
  int32_t virtualkey;
  uint32_t control;  // the bits below
};

inline constexpr uint32_t pressedctrl = 0x0C;   // either Ctrl
inline constexpr uint32_t pressedshift = 0x10;
inline constexpr uint32_t pressedlock = 0x80;   // Caps Lock

// What a press types on a US keyboard; n is 0 for a key that means nothing here. Alt is not looked
// at: the meta prefix is the Escape key.
KeyText translate(const KeyPress& press);

// Where in a key the bytes read so far end.
enum struct KeyState : uint8_t {
  done,          // between keys
  escape,        // behind ESC
  parameter,     // in a control sequence, among its parameter bytes 0x30 to 0x3F
  intermediate,  // the same, among its intermediate bytes 0x20 to 0x2F
  need1,         // in a UTF-8 group that lacks 1, 2 or 3 bytes
  need2,
  need3,
};

// The state behind one more byte.
KeyState keystep(KeyState state, uint8_t byte);

// Whether text consists of whole keys.
bool keysdone(const Str& text);

// Where the last key of a text of whole keys begins; 0 for an empty text.
int64_t lastkey(const Str& text);

}  // namespace tarn

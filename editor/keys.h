// Keys as bytes. A control key is its ASCII code, a meta key is ESC and the key, an arrow is a
// control sequence, and every other key is the byte that it types. `line` collects them, and a
// command may look at `line` only when it holds whole keys.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The bytes of one key.
struct KeyText {
  uint8_t n;         // how many; 0 means no key at all
  uint8_t bytes[7];  // the first n of them are valid
};

// A key event of a console that reports keys and not bytes.
struct KeyPress {
  int32_t virtualkey;  // the console's number for the key, whatever it types
  uint32_t control;    // the bits below, and others that mean nothing here
};

inline constexpr uint32_t pressedctrl = 0x0C;   // either Ctrl
inline constexpr uint32_t pressedshift = 0x10;
inline constexpr uint32_t pressedlock = 0x80;   // Caps Lock

// What a press types on a US keyboard; n is 0 for a key that means nothing here. Alt is not looked
// at: the meta prefix is the Escape key.
KeyText translate(const KeyPress& press);

// Whether a key of one byte types something: a printable character or a newline.
inline bool istyped(uint8_t byte) { return byte == '\n' || (byte >= 0x20 && byte <= 0x7E); }

// The control key that a control sequence stands for, by its last byte: the arrows are C-p, C-n,
// C-f and C-b. 0 for any other.
uint8_t arrowcontrol(uint8_t last);

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

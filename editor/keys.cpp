// The translation of key presses, and the end of keys.
#include "editor/keys.h"

namespace tarn {

// What a key of the keyboard types. A row with `last` stands for the virtual keys from `key` to
// `last`, whose bytes follow each other in `plain` and `shifted`.
struct VirtualKey {
  int32_t key;
  int32_t last;
  const char* plain;
  const char* shifted;
};

static constexpr VirtualKey virtualkeys[] = {
    {8, 8, "\x7F", "\x7F"},                 // Backspace
    {9, 9, "\t", "\t"},                     // Tab
    {13, 13, "\n", "\n"},                   // Return
    {27, 27, "\x1B", "\x1B"},               // Escape
    {32, 32, " ", " "},                     // Space
    {33, 33, "\x15", "\x15"},               // Page Up: C-u
    {34, 34, "\x04", "\x04"},               // Page Down: C-d
    {35, 35, "\x05", "\x05"},               // End: C-e
    {36, 36, "\x01", "\x01"},               // Home: C-a
    {45, 45, "\x18", "\x18"},               // Insert: C-x
    {46, 46, "\x1C", "\x1C"},               // Delete: C-backslash
    {48, 57, "0123456789", ")!@#$%^&*("},   // digits
    {96, 105, "0123456789", ")!@#$%^&*("},  // digits of the keypad
    {107, 107, "=", "+"},                   // Add
    {109, 109, "-", "_"},                   // Subtract
    {110, 110, ".", ">"},                   // Decimal
    {111, 111, "/", "?"},                   // Divide
    {186, 192, ";=,-./`", ":+<_>?~"},
    {219, 222, "[\\]'", "{|}\""},
};

// Left, Up, Right, Down, from virtual key 37 on.
static constexpr int32_t firstarrow = 37;
static constexpr char arrows[] = "DACB";

static KeyText onekey(int32_t byte) { return {1, {static_cast<uint8_t>(byte)}}; }

static KeyText translateletter(const KeyPress& press) {
  int32_t capital = press.virtualkey;
  if (press.control & pressedctrl) return onekey(capital - 0x40);
  bool shiftlock = (press.control & (pressedshift | pressedlock)) != 0;
  return onekey(shiftlock ? capital : capital + 0x20);
}

// The keys that Ctrl changes, beside the letters.
static KeyText translatectrl(const KeyPress& press) {
  if (press.virtualkey == 32) return onekey(0);
  bool minus = press.virtualkey == 109 || press.virtualkey == 189;
  if (minus && (press.control & pressedshift)) return onekey(0x1F);
  return {};
}

KeyText translate(const KeyPress& press) {
  int32_t key = press.virtualkey;
  if (key >= 'A' && key <= 'Z') return translateletter(press);
  if (key >= firstarrow && key < firstarrow + 4) {
    return {3, {0x1B, '[', static_cast<uint8_t>(arrows[key - firstarrow])}};
  }
  if (press.control & pressedctrl) {
    KeyText text = translatectrl(press);
    if (text.n > 0) return text;
  }
  for (const VirtualKey& row : virtualkeys) {
    if (key < row.key || key > row.last) continue;
    return onekey((press.control & pressedshift ? row.shifted : row.plain)[key - row.key]);
  }
  return {};
}

uint8_t arrowcontrol(uint8_t last) {
  switch (last) {
    case 'A': return 0x10;
    case 'B': return 0x0E;
    case 'C': return 0x06;
    case 'D': return 0x02;
    default: return 0;
  }
}

// The state behind a byte that begins a key.
static KeyState keybegin(uint8_t byte) {
  if (byte == 0x1B) return KeyState::escape;
  if (byte >= 0xF8 || byte < 0xC0) return KeyState::done;
  return byte >= 0xF0 ? KeyState::need3 : byte >= 0xE0 ? KeyState::need2 : KeyState::need1;
}

// Whether a byte cannot go on with the key and so begins the next one.
static bool keybreaks(KeyState state, uint8_t byte) {
  switch (state) {
    case KeyState::done: return true;
    case KeyState::escape: return false;
    case KeyState::parameter:
    case KeyState::intermediate: return byte < 0x20 || byte >= 0x80;
    case KeyState::need1:
    case KeyState::need2:
    case KeyState::need3: return (byte & 0xC0) != 0x80;
  }
  return true;
}

KeyState keystep(KeyState state, uint8_t byte) {
  if (keybreaks(state, byte)) return keybegin(byte);
  switch (state) {
    case KeyState::escape:
      if (byte >= 0x80) return keybegin(byte);  // ESC and a whole group are one key
      return byte == '[' ? KeyState::parameter : KeyState::done;
    case KeyState::parameter:
      if (byte >= 0x30 && byte <= 0x3F) return state;
      [[fallthrough]];
    case KeyState::intermediate:
      return byte <= 0x2F ? KeyState::intermediate : KeyState::done;
    case KeyState::need3: return KeyState::need2;
    case KeyState::need2: return KeyState::need1;
    default: return KeyState::done;
  }
}

bool keysdone(const Str& text) {
  KeyState state = KeyState::done;
  for (uint8_t byte : text) state = keystep(state, byte);
  return state == KeyState::done;
}

int64_t lastkey(const Str& text) {
  KeyState state = KeyState::done;
  int64_t last = 0;
  for (int64_t i = 0; i < text.len(); i++) {
    if (keybreaks(state, text.at(i))) last = i;
    state = keystep(state, text.at(i));
  }
  return last;
}

}  // namespace tarn

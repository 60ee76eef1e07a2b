// What all prompts have in common. A prompt is no loop that waits for keys: it stays on `line`, is
// called again with each key behind its own, and looks at that last key only. Its painter is
// `repaint` as long as it lasts.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace tarn {

// A key that a prompt answers in its own way.
struct PromptKey {
  std::string_view key;  // its bytes; an arrow comes as the control key that it stands for
  void (*act)();
};

struct Prompt {
  int64_t prefix;                   // how many bytes of `line` are the prompt's own key
  void (*enter)();                  // on that key: sets `repaint` and the field
  std::span<const PromptKey> keys;  // tested before the keys that all prompts share
  void (*type)(uint8_t key);        // a printable key or newline; null: it has no use for them
  void (*other)();                  // any other key: `chirp` to stay, `replay` to leave with it
};

// Answers `line` for a prompt: the prompt's own keys, then the keys that all share, then typing.
// The shared ones are C-g, which leaves, C-h and C-t, which scroll the status text, ESC k and ESC u
// for the palette, ESC a and ESC z, which fill `clip`.
void runprompt(const Prompt& prompt);

// Drops the last byte of the field; the bell if it is empty.
void dropstat();

// What ESC r, ESC g and ESC y do within a prompt that takes them. Unlike the plain commands they do
// not mind if the ink is set already.
void redink();
void greenink();
void yellowink();

}  // namespace tarn

// The keys that all prompts share, and the walk from `line` to what a prompt does with its last
// key.
#include "editor/prompts.h"

#include "editor/commands.h"
#include "editor/keys.h"
#include "editor/kink.h"
#include "editor/state.h"
#include "editor/status.h"
#include "foundation/alphabet.h"

namespace tarn {

using namespace std::literals;

static constexpr PromptKey sharedkeys[] = {
    {"\x07"sv, leave},        // C-g
    {"\x08"sv, tarndoch},     // C-h
    {"\x14"sv, tarndoct},     // C-t
    {"\x1Bk"sv, newkink},     // ESC k: a random palette
    {"\x1Bu"sv, tarndomu},    // ESC u: the default palette
    {"\x1B" "a"sv, tarndoma},  // ESC a: clip := stat
    {"\x1Bz"sv, tarndomz},    // ESC z: clip := the whole text
};

static const PromptKey* findkey(std::span<const PromptKey> keys, std::string_view key) {
  for (const PromptKey& row : keys) {
    if (row.key == key) return &row;
  }
  return nullptr;
}

static void answer(const Prompt& prompt, std::string_view key) {
  if (const PromptKey* row = findkey(prompt.keys, key)) return row->act();
  if (const PromptKey* row = findkey(sharedkeys, key)) return row->act();
  uint8_t byte = static_cast<uint8_t>(key[0]);
  bool typed = key.size() == 1 && (byte == '\n' || (byte >= 0x20 && byte <= 0x7E));
  if (typed && prompt.type != nullptr) return prompt.type(byte);
  prompt.other();
}

void runprompt(const Prompt& prompt) {
  if (line.len() == prompt.prefix) return prompt.enter();
  Str before = line;
  Str key = line.substr(lastkey(line));
  answer(prompt, {key.text(), static_cast<size_t>(key.len())});
  // A key that ended the prompt has put something else in `line`.
  if (line.same(before)) line = line.substr(0, prompt.prefix);
}

void dropstat() {
  if (stat.empty()) return chirp();
  setstat(stat.substr(0, stat.len() - 1));
}

void redink() { inkmode = 1; }
void greenink() { inkmode = 2; }
void yellowink() { inkmode = 3; }

int64_t decimalvalue(const Str& digits, int64_t most) {
  int64_t value = 0;
  for (uint8_t digit : digits) {
    value = value * 10 + (digit - '0');
    if (value >= most) return most;
  }
  return value;
}

int64_t base64value(const Str& digits, int64_t most) {
  int64_t value = 0;
  for (uint8_t digit : digits) {
    value = value * 64 + digitvalue(digit);
    if (value >= most) return most;
  }
  return value;
}

}  // namespace tarn

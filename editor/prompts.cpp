// The keys that all prompts share, and the walk from `line` to what a prompt does with its last
// key.
#include "editor/prompts.h"

#include "editor/commands.h"
#include "editor/keys.h"
#include "editor/kink.h"
#include "editor/pink.h"
#include "editor/state.h"
#include "editor/status.h"

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

// The key that an arrow stands for; any other key as it is.
static Str unarrowed(const Str& key) {
  bool sequence = key.len() > 2 && key.at(0) == 0x1B && key.at(1) == '[';
  uint8_t control = sequence ? arrowcontrol(key.at(key.len() - 1)) : 0;
  return control == 0 ? key : strbyte(control);
}

static void answer(const Prompt& prompt, const Str& pressed) {
  Str kept = unarrowed(pressed);
  std::string_view key = {kept.text(), static_cast<size_t>(kept.len())};
  if (const PromptKey* row = findkey(prompt.keys, key)) return row->act();
  if (const PromptKey* row = findkey(sharedkeys, key)) return row->act();
  uint8_t byte = static_cast<uint8_t>(key[0]);
  bool typed = key.size() == 1 && istyped(byte);
  if (typed && prompt.type != nullptr) return prompt.type(byte);
  prompt.other();
}

void runprompt(const Prompt& prompt) {
  if (line.len() == prompt.prefix) return prompt.enter();
  Str before = line;
  answer(prompt, line.substr(lastkey(line)));
  // The key is taken off again, unless it has ended the prompt and `line` holds something else.
  if (line.same(before)) line = line.substr(0, prompt.prefix);
}

void dropstat() {
  if (stat.empty()) return chirp();
  setstat(stat.substr(0, stat.len() - 1));
}

void redink() { inkmode = classred; }
void greenink() { inkmode = classgreen; }
void yellowink() { inkmode = classyellow; }

}  // namespace tarn

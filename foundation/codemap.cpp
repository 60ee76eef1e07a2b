// The words, made by the pairing of numbers with trees, and the tables of them.
#include "foundation/codemap.h"

#include <array>

#include "foundation/alphabet.h"

namespace tarn {

static constexpr int32_t wordcount = 677;  // 1 + 26 * 26: the tree of 0, and all pairs below 26
static constexpr int32_t firstbyte = 145;  // the word of the byte at place 0

static int32_t squareroot(int32_t n) {
  int32_t s = 0;
  while ((s + 1) * (s + 1) <= n) s++;
  return s;
}

Str bracketcode(int32_t n) {
  check(n >= 0 && n < wordcount);
  if (n == 0) return "[]";
  int32_t s = squareroot(n - 1);
  int32_t r = n - 1 - s * s;
  int32_t rest = r % 2 != 0 ? (r - 1) / 2 : s;
  int32_t first = r % 2 != 0 ? s : r / 2;
  return "[" + bracketcode(first) + bracketcode(rest).substr(1);
}

static bool hascode(uint8_t c) { return c != '[' && c != ']'; }

static std::array<Str, 256> makecodes() {
  std::array<Str, 256> codes;
  for (size_t p = 0; p < bytelist.size(); p++) {
    uint8_t c = bytelist[p];
    if (hascode(c)) codes[c] = bracketcode(static_cast<int32_t>(p) + firstbyte);
  }
  return codes;
}

const Str& codeofbyte(uint8_t c) {
  static const std::array<Str, 256>& codes = *new std::array<Str, 256>(makecodes());
  return codes[c];
}

static std::map<Str, Str> makemap() {
  std::map<Str, Str> map;
  for (uint8_t c : bytelist) {
    if (!hascode(c)) continue;
    map[strbyte(c)] = codeofbyte(c);
    map[codeofbyte(c)] = strbyte(c);
  }
  return map;
}

const std::map<Str, Str>& codemap() {
  static const std::map<Str, Str>& map = *new std::map<Str, Str>(makemap());
  return map;
}

int32_t byteofcode(const Str& word) {
  if (word.len() < 2) return -1;  // a byte, not a word
  auto found = codemap().find(word);
  return found == codemap().end() ? -1 : found->second.bytes()[0];
}

}  // namespace tarn

// The classes of bytes, as tables.
#include "editor/charmatch.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace tarn {

// The characters that bytes fold to. On purpose: two neighbouring bytes fold to one, and these are
// not the glyphs that the screen shows.
static constexpr char lowfold[] = "~!@#$%^&*<>-|+/=";  // 0 to 31
static constexpr char highfold[] =                     // 130 to 255
    "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY";
static_assert(sizeof lowfold == 16 + 1 && sizeof highfold == 63 + 1);

static uint8_t foldbyte(uint8_t b) {
  if (b == '\n') return b;
  if (b == 127) return '{';
  if (b == 128) return '%';
  if (b == 129) return '}';
  if (b >= 130) return static_cast<uint8_t>(highfold[(b - 130) / 2]);
  return b < 32 ? static_cast<uint8_t>(lowfold[b / 2]) : b;
}

struct SymbolClass {
  uint8_t letter;          // the capital that stands for the class
  std::string_view bytes;  // all that are in it
};

// The classes of bytes as they stand in the text.
static constexpr SymbolClass symbolclasses[] = {
    {'G', "\\;"},
    {'I', "&|"},
    {'J', "<=>#"},
    {'L', "+-.;"},
    {'M', "%'*/"},
    {'N', "^?@"},
    {'O', "!\"$`~"},
    {'P', "()[]{}"},
    {'Q', "!@#$%^&*<>-|+/=\\.`'\":;?"},
};

// The classes of folded bytes.
static constexpr SymbolClass foldedclasses[] = {
    {'H', "-.029:<acfhlnoqx"},
    {'K', "+,136;>bdgikmrty"},
};

// The classes of kinds: the letter at index i stands for the kinds in the bits of i + 1.
static constexpr std::string_view kindletters = "RUSTVWZXYABCDEF";
enum Kind : uint32_t { smallkind = 1, capitalkind = 2, digitkind = 4, otherkind = 8 };

static bool issmall(uint8_t c) { return c >= 'a' && c <= 'z'; }
static bool iscapital(uint8_t c) { return c >= 'A' && c <= 'Z'; }

static Kind kindof(uint8_t c) {
  if (issmall(c) || c == '_') return smallkind;
  if (iscapital(c)) return capitalkind;
  return c >= '0' && c <= '9' ? digitkind : otherkind;
}

static bool contains(std::string_view set, uint8_t c) {
  return set.find(static_cast<char>(c)) != set.npos;
}

static const SymbolClass* findclass(const SymbolClass* begin, const SymbolClass* end, uint8_t p) {
  const SymbolClass* found =
      std::find_if(begin, end, [p](const SymbolClass& row) { return row.letter == p; });
  return found == end ? nullptr : found;
}

bool charmatch(uint8_t p, uint8_t b) {
  if (p <= 32 || p >= 127) return b == p;
  uint8_t g = foldbyte(b);
  if (issmall(p)) return g == p || g == p - 'a' + 'A';
  if (const SymbolClass* row = findclass(std::begin(symbolclasses), std::end(symbolclasses), p)) {
    return contains(row->bytes, b);
  }
  // A plain capital counts as small, so that only high bytes fold to capitals.
  uint8_t c = iscapital(b) ? static_cast<uint8_t>(b - 'A' + 'a') : g;
  size_t kinds = kindletters.find(static_cast<char>(p));
  if (kinds != kindletters.npos) return ((kinds + 1) & kindof(c)) != 0;
  if (const SymbolClass* row = findclass(std::begin(foldedclasses), std::end(foldedclasses), p)) {
    return contains(row->bytes, c);
  }
  return c == p;
}

}  // namespace tarn

// Digits, names of bytes, and the order of names.
#include "foundation/alphabet.h"

#include "foundation/chars.h"

namespace tarn {

static constexpr std::array<int8_t, 256> digitvalues = [] {
  std::array<int8_t, 256> values = {};
  values.fill(-1);
  for (size_t i = 0; i < digitalphabet.size(); i++) {
    values[static_cast<uint8_t>(digitalphabet[i])] = static_cast<int8_t>(i);
  }
  return values;
}();

bool isdigitvalue(uint8_t c) { return digitvalues[c] >= 0; }

int32_t digitvalue(uint8_t c) {
  check(isdigitvalue(c));
  return digitvalues[c];
}

void detail::namelessbyte() { die("nopqchar"); }

uint8_t charnopq(uint8_t b) {
  if (b >= 33 && b <= 126) return b;
  if (b >= 161 && b <= 254) return static_cast<uint8_t>(b + 128);
  if (b >= 127 && b <= 159) return static_cast<uint8_t>(highnames[b - 127u]);
  if (b == 255 || b <= 32) return static_cast<uint8_t>(lownames[(b + 1u) % 256]);
  die("charnopq");
}

static_assert([] {  // bytelist holds every byte once
  std::array<bool, 256> seen = {};
  for (uint8_t b : bytelist) seen[b] = true;
  for (bool s : seen) {
    if (!s) return false;
  }
  return true;
}());

static constexpr std::string_view capitalorder = "ABCDEFGHIJKLMNOPQRUSTVWZXY";
static constexpr std::string_view symbolorder = "{},~!@#$%^&*<>-|+/=\\.`'\":;?";
static constexpr std::string_view loworder =
    "0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY~!@#$%^&*<>-|+/=\\.`'\":;?(){},[]";
static constexpr std::string_view highorder =
    "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY~!@#$%^&*<>-|+/=\\.`'\":;?"
    "(){},[]";

// The weights of "a" to "z" in plain order. They are the inverse of the language's alphabet, so
// that the letters of "rust" and "vwzxy" come out ascending.
static constexpr std::string_view letterweights = "abcdefghijklmnopqrtusvwyzx";
static_assert(letterweights.size() == 26);

static bool wordbefore(const Str& a, const Str& b) {
  int64_t i = 0;
  while (i < a.len() && i < b.len() && a.bytes()[i] == b.bytes()[i]) i++;
  if (i == a.len()) return i < b.len();
  if (i == b.len()) return false;
  uint8_t x = a.bytes()[i];
  uint8_t y = b.bytes()[i];
  if (x == '_' || y == '_') return x == '_';
  return letterweights[x - 'a' + 0u] < letterweights[y - 'a' + 0u];
}

static bool placebefore(std::string_view order, uint8_t x, uint8_t y) {
  return order.find(static_cast<char>(x)) < order.find(static_cast<char>(y));
}

static bool iscapital(uint8_t c) { return c >= 'A' && c <= 'Z'; }
static bool isprintable(uint8_t c) { return c >= 32 && c <= 126; }

// Of the bytes that do not print these come first: 1 to 31, 127 to 159 and 255.
static bool iscontrol(uint8_t c) { return (c + 1) % 128 < 33; }

// On purpose: byte 160 has no name, though highnames ends with a "9" for it. Two names can still be
// compared if one of them is that byte: it ranks by the "9".
static uint8_t rankchar(uint8_t b) { return b == 160 ? '9' : charnopq(b); }

bool namebefore(const Str& a, const Str& b) {
  check(isname(a));
  check(isname(b));
  uint8_t x = a.bytes()[0];
  uint8_t y = b.bytes()[0];
  if (isnamebyte(x) && isnamebyte(y)) return wordbefore(a, b);
  if (isnamebyte(x) || isnamebyte(y)) return isnamebyte(x);
  if (iscapital(x) && iscapital(y)) return placebefore(capitalorder, x, y);
  if (iscapital(x) || iscapital(y)) return iscapital(x);
  if (isprintable(x) && isprintable(y)) return placebefore(symbolorder, x, y);
  if (isprintable(x) || isprintable(y)) return isprintable(y);
  if (iscontrol(x) != iscontrol(y)) return iscontrol(x);
  return placebefore(iscontrol(x) ? loworder : highorder, rankchar(x), rankchar(y));
}

}  // namespace tarn

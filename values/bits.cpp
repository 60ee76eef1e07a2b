// Bit strings, worked on by 64-bit words.
#include "values/bits.h"

#include <cstring>

#include "values/bitwords.h"

namespace tarn {

// --- Single bits ---------------------------------------------------------------------------------

bool bitget(int64_t i, const Str& s) {
  check(i >= 0);
  return i / 8 < s.len() && (s.bytes()[i / 8] >> (i % 8) & 1) != 0;
}

void bitset(int64_t i, bool v, Str& s) {
  check(i >= 0);
  if (i / 8 >= s.len()) s += bitzeros(i / 8 + 1 - s.len());
  uint8_t& byte = s.own()[i / 8];
  uint8_t mask = static_cast<uint8_t>(1 << (i % 8));
  byte = static_cast<uint8_t>(v ? byte | mask : byte & ~mask);
}

static int64_t trimmedlength(const Str& s) {
  int64_t n = s.len();
  while (n > 0 && s.bytes()[n - 1] == 0) n--;
  return n;
}

int64_t bittop(const Str& s) {
  int64_t n = trimmedlength(s);
  return n == 0 ? -1 : 8 * n - 1 - (__builtin_clz(s.bytes()[n - 1]) - 24);
}

int64_t bitlen(const Str& s) { return bittop(s) + 1; }
bool bitiszero(const Str& s) { return trimmedlength(s) == 0; }
bool bitnonzero(const Str& s) { return !bitiszero(s); }

// --- Arithmetic ----------------------------------------------------------------------------------

Str bittrim(const Str& s) { return s.substr(0, trimmedlength(s)); }

Str bitzeros(int64_t n) {
  Str zeros = strsized(n);
  if (n != 0) memset(zeros.own(), 0, static_cast<size_t>(n));
  return zeros;
}

Str bitshift(int64_t n, const Str& s) { return bitsofwords(wordsshift(wordsofbits(s), n)); }

Str bitadd(const Str& a, const Str& b) {
  return bitsofwords(wordsadd(wordsofbits(a), wordsofbits(b)));
}

static Str muladd(const Str& s, uint64_t factor, uint64_t more) {
  check(static_cast<int64_t>(factor) >= 0);
  check(static_cast<int64_t>(more) >= 0);
  BitWords words = wordsofbits(s);
  wordsmuladd(words, factor, more);
  return bitsofwords(words);
}

Str bitaddsmall(const Str& s, uint64_t n) { return muladd(s, 1, n); }
Str bitmulsmall(const Str& s, uint64_t n) { return muladd(s, n, 0); }
Str bitinc(const Str& s) { return bitaddsmall(s, 1); }

Str bitdivsmall(const Str& s, uint64_t n) {
  BitWords words = wordsofbits(s);
  wordsdivsmall(words, n);
  return bitsofwords(words);
}

int bitmodten(const Str& s) {
  BitWords words = wordsofbits(s);
  return static_cast<int>(wordsdivsmall(words, 10));
}

// --- From digits ---------------------------------------------------------------------------------

static Str naturalbits(const uint8_t* digits, int64_t n) {
  return bitsofwords(wordsofdigits(digits, n));
}

// The text of a numb: "00", a '0' for each zero element behind the first, then a set one, and then
// the elements behind that as a number, if there are any.
static Str numbbitsofdigits(const Str& text) {
  int64_t zeros = 0;
  while (text.at(2 + zeros) == '0') zeros++;
  int64_t used = 2 + zeros;
  if (used == text.len()) {
    Str s;
    bitset(zeros + 1, true, s);
    return s;
  }
  Str rest = naturalbits(text.bytes() + used, text.len() - used);
  return bitshift(zeros + 1, bitinc(bitshift(1, rest)));
}

static bool digitsarezeros(const Str& text, int64_t n) {
  return text.len() == n && memcmp(text.bytes(), "00", static_cast<size_t>(n)) == 0;
}

Str bitsofdigits(const Str& text) {
  check(!text.empty());
  if (digitsarezeros(text, 1)) return strbyte(3);
  if (digitsarezeros(text, 2)) return strbyte(2);
  bool negative = text.at(0) == '0';
  if (negative && text.at(1) == '0') return numbbitsofdigits(text);
  Str x = naturalbits(text.bytes() + negative, text.len() - negative);
  return bitaddsmall(bitmulsmall(x, 4), negative ? 1 : 3);
}

// --- To digits -----------------------------------------------------------------------------------

static Str naturaldigits(const BitWords& s, int64_t from) {
  return digitsofwords(wordsshift(s, -from));
}

static Str zerodigits(int64_t n) {
  Str zeros = strsized(n);
  memset(zeros.own(), '0', static_cast<size_t>(n));
  return zeros;
}

static Str numbdigitsofbits(const BitWords& s) {
  int64_t first = 1;
  while ((s[static_cast<size_t>(first / 64)] >> (first % 64) & 1) == 0) first++;
  Str text = zerodigits(1 + first);
  return wordsbitlen(s) == first + 1 ? text : text + naturaldigits(s, first + 1);
}

Str digitsofbits(const Str& s) {
  BitWords words = wordsofbits(bittrim(s));
  check(wordsbitlen(words) > 1);
  if ((words[0] & 1) == 0) return numbdigitsofbits(words);
  if (words[0] == 3 && words.size() == 1) return Str("0");
  Str digits = naturaldigits(words, 2);
  return (words[0] & 2) != 0 ? digits : "0" + digits;
}

}  // namespace tarn

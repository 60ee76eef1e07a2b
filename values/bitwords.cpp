// Words of 64 bits: the carry of one step is the other half of a 128-bit sum or product.
#include "values/bitwords.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "values/digitrow.h"

namespace tarn {

__extension__ typedef unsigned __int128 DoubleWord;

constexpr int64_t chunkdigits = 19;  // the most decimal digits that a word has room for
constexpr uint64_t chunkbase = 10000000000000000000u;  // 10^19

static uint64_t low(DoubleWord d) { return static_cast<uint64_t>(d); }
static uint64_t high(DoubleWord d) { return static_cast<uint64_t>(d >> 64); }

// --- Between bytes and words ---------------------------------------------------------------------

BitWords wordsofbits(const Str& s) {
  BitWords words(static_cast<size_t>((s.len() + 7) / 8));
  if (!s.empty()) memcpy(words.data(), s.bytes(), static_cast<size_t>(s.len()));
  return words;
}

Str bitsofwords(const BitWords& words) {
  int64_t n = (wordsbitlen(words) + 7) / 8;
  return Str(words.data(), n);
}

// --- Between digits and words --------------------------------------------------------------------

static uint64_t parsechunk(const uint8_t* digits, int64_t n) {
  uint64_t value = 0;
  for (int64_t i = 0; i < n; i++) value = value * 10 + (digits[i] - '0');
  return value;
}

static uint64_t powerof10(int64_t n) {
  uint64_t power = 1;
  while (n-- > 0) power *= 10;
  return power;
}

BitWords wordsofdigits(const uint8_t* digits, int64_t n) {
  BitWords words;
  words.reserve(static_cast<size_t>(n / chunkdigits + 2));
  int64_t first = n % chunkdigits;
  wordsmuladd(words, powerof10(first), parsechunk(digits, first));
  for (int64_t at = first; at < n; at += chunkdigits) {
    wordsmuladd(words, chunkbase, parsechunk(digits + at, chunkdigits));
  }
  return words;
}

Str digitsofwords(BitWords words) {
  int64_t room = wordsbitlen(words) * 30103 / 100000 + chunkdigits + 2;
  Str text = strsized(room);
  uint8_t* end = text.own() + room;
  uint8_t* at = end;
  wordstrim(words);
  while (!words.empty()) {
    uint64_t chunk = wordsdivsmall(words, chunkbase);
    for (int64_t i = 0; i < chunkdigits; i++, chunk /= 10) {
      *--at = static_cast<uint8_t>('0' + chunk % 10);
    }
  }
  while (at < end && *at == '0') at++;
  return at == end ? Str("0") : Str(at, end - at);
}

// --- Arithmetic ----------------------------------------------------------------------------------

void wordstrim(BitWords& words) {
  while (!words.empty() && words.back() == 0) words.pop_back();
}

int64_t wordsbitlen(const BitWords& words) {
  size_t n = words.size();
  while (n > 0 && words[n - 1] == 0) n--;
  return n == 0 ? 0 : static_cast<int64_t>(64 * n) - std::countl_zero(words[n - 1]);
}

int wordscompare(const BitWords& a, const BitWords& b) {
  for (size_t i = std::max(a.size(), b.size()); i-- > 0;) {
    uint64_t x = i < a.size() ? a[i] : 0;
    uint64_t y = i < b.size() ? b[i] : 0;
    if (x != y) return x < y ? -1 : 1;
  }
  return 0;
}

BitWords wordsadd(const BitWords& a, const BitWords& b) {
  if (a.size() < b.size()) return wordsadd(b, a);
  BitWords sum(a.size() + 1);
  DoubleWord carry = 0;
  for (size_t i = 0; i < a.size(); i++) {
    carry += a[i];
    if (i < b.size()) carry += b[i];
    sum[i] = low(carry);
    carry >>= 64;
  }
  sum[a.size()] = low(carry);
  return sum;
}

// Takes b, with n words, from the words at a, which go on beyond n as far as a borrow needs.
static void takefrom(uint64_t* a, const uint64_t* b, size_t n) {
  bool borrow = false;
  for (size_t i = 0; i < n || borrow; i++) {
    uint64_t y = i < n ? b[i] : 0;
    bool first = __builtin_sub_overflow(a[i], y, &a[i]);
    bool second = __builtin_sub_overflow(a[i], uint64_t{borrow}, &a[i]);
    borrow = first || second;
  }
}

static size_t wordcount(const BitWords& a) {
  return static_cast<size_t>((wordsbitlen(a) + 63) / 64);
}

BitWords wordssub(const BitWords& a, const BitWords& b) {
  check(wordscompare(a, b) >= 0);
  BitWords difference = a;
  takefrom(difference.data(), b.data(), wordcount(b));
  return difference;
}

BitWords wordsmul(const BitWords& a, const BitWords& b) {
  BitWords product(a.size() + b.size());
  for (size_t j = 0; j < b.size(); j++) {
    uint64_t carry = 0;
    for (size_t i = 0; i < a.size(); i++) {
      DoubleWord sum = static_cast<DoubleWord>(a[i]) * b[j] + product[i + j] + carry;
      product[i + j] = low(sum);
      carry = high(sum);
    }
    product[a.size() + j] = carry;
  }
  return product;
}

static void halve(BitWords& a) {
  for (size_t i = 0; i + 1 < a.size(); i++) a[i] = a[i] >> 1 | a[i + 1] << 63;
  a.back() >>= 1;
}

// One bit of the quotient at a time: b is moved up as far as a reaches and comes down bit by bit.
BitWords wordsmod(BitWords a, const BitWords& b) {
  int64_t ahead = wordsbitlen(a) - wordsbitlen(b);
  check(wordsbitlen(b) != 0);
  if (ahead < 0) return a;
  BitWords multiple = wordsshift(b, ahead);
  for (; ahead >= 0; ahead--) {
    if (wordscompare(a, multiple) >= 0) takefrom(a.data(), multiple.data(), wordcount(multiple));
    halve(multiple);
  }
  return a;
}

static BitWords shiftup(const BitWords& a, int64_t n) {
  size_t words = static_cast<size_t>(n / 64);
  int bits = static_cast<int>(n % 64);
  BitWords shifted(a.size() + words + 1);
  for (size_t i = 0; i < a.size(); i++) {
    shifted[i + words] |= a[i] << bits;
    if (bits != 0) shifted[i + words + 1] = a[i] >> (64 - bits);
  }
  return shifted;
}

static BitWords shiftdown(const BitWords& a, int64_t n) {
  size_t words = static_cast<size_t>(n / 64);
  int bits = static_cast<int>(n % 64);
  if (words >= a.size()) return {};
  BitWords shifted(a.size() - words);
  for (size_t i = 0; i < shifted.size(); i++) {
    shifted[i] = a[i + words] >> bits;
    bool more = bits != 0 && i + 1 < shifted.size();
    if (more) shifted[i] |= a[i + words + 1] << (64 - bits);
  }
  return shifted;
}

BitWords wordsshift(const BitWords& a, int64_t n) {
  return n < 0 ? shiftdown(a, -n) : shiftup(a, n);
}

void wordsmuladd(BitWords& a, uint64_t factor, uint64_t more) {
  uint64_t carry = more;
  for (uint64_t& word : a) {
    DoubleWord sum = static_cast<DoubleWord>(word) * factor + carry;
    word = low(sum);
    carry = high(sum);
  }
  if (carry != 0) a.push_back(carry);
}

uint64_t wordsdivsmall(BitWords& a, uint64_t divisor) {
  check(divisor != 0);
  uint64_t rest = 0;
  for (size_t i = a.size(); i-- > 0;) {
    DoubleWord part = static_cast<DoubleWord>(rest) << 64 | a[i];
    a[i] = low(part / divisor);
    rest = low(part % divisor);
  }
  wordstrim(a);
  return rest;
}

}  // namespace tarn

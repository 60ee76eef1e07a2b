// Product by column sums and quotient by trial words, both as on paper, with eight digits for one;
// long products are put together from shorter ones.
#include "values/digitwords.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "foundation/diag.h"
#include "values/digitrow.h"

namespace tarn {

constexpr uint64_t wordbase = 100000000;
constexpr int64_t settlerows = 1800;  // rows of products that a column sum has room for

// --- Between digits and words --------------------------------------------------------------------

// The value of eight digits: digits are joined to pairs, pairs to fours, and fours to the eight.
static uint32_t parseword(uint64_t digits) {
  uint64_t v = __builtin_bswap64(digits) - repeated('0');
  v = (v * 10 + (v >> 8)) & 0x00FF00FF00FF00FFu;
  v = (v * 100 + (v >> 16)) & 0x0000FFFF0000FFFFu;
  return static_cast<uint32_t>(v * 10000 + (v >> 32));
}

// The same the other way: 10486 / 2^20 and 103 / 2^10 stand for a division by 100 and by 10.
static uint64_t formatword(uint32_t word) {
  uint64_t fours = word / 10000 | static_cast<uint64_t>(word % 10000) << 32;
  uint64_t high = ((fours * 10486) >> 20) & 0x0000007F0000007Fu;
  uint64_t pairs = high | (fours - 100 * high) << 16;
  uint64_t tens = ((pairs * 103) >> 10) & 0x000F000F000F000Fu;
  uint64_t digits = tens | (pairs - 10 * tens) << 8;
  return __builtin_bswap64(digits | repeated('0'));
}

static void trim(DigitWords& words) {
  while (!words.empty() && words.back() == 0) words.pop_back();
}

DigitWords wordsofrow(const uint8_t* row, int64_t n) {
  DigitWords words(static_cast<size_t>((n + 7) / 8));
  uint32_t* out = words.data();
  for (; n >= 8; n -= 8, row += 8) *out++ = parseword(loadword(row));
  if (n > 0) {
    uint64_t last = repeated('0');
    memcpy(&last, row, static_cast<size_t>(n));
    *out = parseword(last);
  }
  trim(words);
  return words;
}

void rowofwords(uint8_t* row, const DigitWords& words) {
  for (uint32_t word : words) {
    storeword(row, formatword(word));
    row += 8;
  }
}

// --- Product -------------------------------------------------------------------------------------

static void addrow(uint64_t* columns, const uint32_t* a, size_t n, uint32_t b) {
  for (size_t i = 0; i < n; i++) columns[i] += static_cast<uint64_t>(a[i]) * b;
}

static void settle(uint64_t* columns, size_t n) {
  uint64_t carry = 0;
  for (size_t i = 0; i < n; i++) {
    uint64_t sum = columns[i] + carry;
    carry = sum / wordbase;
    columns[i] = sum % wordbase;
  }
}

// a must not be shorter than b.
static DigitWords columnproduct(const DigitWords& a, const DigitWords& b) {
  std::vector<uint64_t> columns(a.size() + b.size());
  for (size_t j = 0; j < b.size(); j++) {
    addrow(columns.data() + j, a.data(), a.size(), b[j]);
    if (j % settlerows == settlerows - 1) settle(columns.data(), columns.size());
  }
  settle(columns.data(), columns.size());
  DigitWords product(columns.begin(), columns.end());
  trim(product);
  return product;
}

// --- Long products -------------------------------------------------------------------------------

// From so many words on, three products of half the length beat four.
constexpr size_t splitwords = 256;

static DigitWords slice(const DigitWords& a, size_t from, size_t to) {
  DigitWords part(a.data() + from, a.data() + to);
  trim(part);
  return part;
}

// sum, which must have room for the carry, becomes sum plus a times the base to the power of `at`.
static void addat(DigitWords& sum, const DigitWords& a, size_t at) {
  uint32_t carry = 0;
  for (size_t i = 0; i < a.size() || carry != 0; i++) {
    uint32_t word = sum[at + i] + (i < a.size() ? a[i] : 0) + carry;
    carry = word >= wordbase;
    sum[at + i] = static_cast<uint32_t>(word - carry * wordbase);
  }
}

static DigitWords plus(const DigitWords& a, const DigitWords& b) {
  DigitWords sum = a;
  sum.resize(std::max(a.size(), b.size()) + 1);
  addat(sum, b, 0);
  trim(sum);
  return sum;
}

static void takeaway(DigitWords& from, const DigitWords& a) {
  uint32_t borrow = 0;
  for (size_t i = 0; i < a.size() || borrow != 0; i++) {
    uint32_t less = (i < a.size() ? a[i] : 0) + borrow;
    borrow = from[i] < less;
    from[i] = static_cast<uint32_t>(from[i] + borrow * wordbase - less);
  }
}

// a is cut in two. If b is longer than half of a, it is cut at the same place, and the middle of
// the product comes from one product of sums: (a0 + a1) (b0 + b1) less the two outer products.
static DigitWords splitproduct(const DigitWords& a, const DigitWords& b) {
  size_t half = (a.size() + 1) / 2;
  DigitWords a0 = slice(a, 0, half);
  DigitWords a1 = slice(a, half, a.size());
  DigitWords product(a.size() + b.size() + 1);
  if (b.size() <= half) {
    addat(product, wordsproduct(a0, b), 0);
    addat(product, wordsproduct(a1, b), half);
  } else {
    DigitWords b0 = slice(b, 0, half);
    DigitWords b1 = slice(b, half, b.size());
    DigitWords low = wordsproduct(a0, b0);
    DigitWords high = wordsproduct(a1, b1);
    DigitWords middle = wordsproduct(plus(a0, a1), plus(b0, b1));
    takeaway(middle, low);
    takeaway(middle, high);
    addat(product, low, 0);
    addat(product, middle, half);
    addat(product, high, 2 * half);
  }
  trim(product);
  return product;
}

DigitWords wordsproduct(const DigitWords& a, const DigitWords& b) {
  if (a.size() < b.size()) return wordsproduct(b, a);
  return b.size() < splitwords ? columnproduct(a, b) : splitproduct(a, b);
}

// --- Quotient ------------------------------------------------------------------------------------

// Gives a / b and leaves the remainder in a.
static uint32_t divideshort(DigitWords& a, uint32_t b) {
  uint64_t rest = 0;
  for (size_t i = a.size(); i-- > 0;) {
    rest = rest * wordbase + a[i];
    a[i] = static_cast<uint32_t>(rest / b);
    rest %= b;
  }
  return static_cast<uint32_t>(rest);
}

static void scale(DigitWords& a, uint32_t factor) {
  uint64_t carry = 0;
  for (uint32_t& word : a) {
    carry += static_cast<uint64_t>(word) * factor;
    word = static_cast<uint32_t>(carry % wordbase);
    carry /= wordbase;
  }
  a.push_back(static_cast<uint32_t>(carry));
}

// Takes q times b from the n + 1 words at a. True if that was too much: the borrow out of the top
// word has been dropped then.
static bool takemultiple(uint32_t* a, const uint32_t* b, size_t n, uint64_t q) {
  uint64_t carry = 0;
  for (size_t i = 0; i < n; i++) {
    carry += q * b[i];
    uint64_t high = carry / wordbase;
    uint64_t low = carry - high * wordbase;
    uint64_t borrow = a[i] < low;
    a[i] = static_cast<uint32_t>(a[i] + borrow * wordbase - low);
    carry = high + borrow;
  }
  bool toomuch = a[n] < carry;
  a[n] = static_cast<uint32_t>(a[n] + (toomuch ? wordbase : 0) - carry);
  return toomuch;
}

static void addback(uint32_t* a, const uint32_t* b, size_t n) {
  uint32_t carry = 0;
  for (size_t i = 0; i < n; i++) {
    uint32_t sum = a[i] + b[i] + carry;
    carry = sum >= wordbase;
    a[i] = static_cast<uint32_t>(sum - carry * wordbase);
  }
  a[n] = static_cast<uint32_t>((a[n] + carry) % wordbase);
}

// How many times b goes into the n + 1 words at a, less than the base; guessed from the two top
// words of b, and at most one too high. The top word of b must be at least half the base.
static uint64_t guess(const uint32_t* a, const uint32_t* b, size_t n) {
  uint64_t top = a[n] * wordbase + a[n - 1];
  uint64_t q = std::min(top / b[n - 1], wordbase - 1);
  uint64_t rest = top - q * b[n - 1];
  while (rest < wordbase && q * b[n - 2] > rest * wordbase + a[n - 2]) {
    q--;
    rest += b[n - 1];
  }
  return q;
}

// The quotient by a single word; the remainder stays in a.
static DigitWords shortquotient(DigitWords& a, uint32_t b) {
  DigitWords quotient = std::move(a);
  a = {divideshort(quotient, b)};
  trim(a);
  trim(quotient);
  return quotient;
}

// The same by two words and more. Both numbers are scaled by a factor that brings the top word of b
// to half the base, and the remainder is scaled back.
static DigitWords longquotient(DigitWords& a, const DigitWords& b) {
  size_t n = b.size();
  uint32_t factor = static_cast<uint32_t>(wordbase / (b.back() + 1));
  DigitWords divisor = b;
  scale(divisor, factor);  // the new top word is 0
  scale(a, factor);
  DigitWords quotient(a.size() - n);
  for (size_t j = quotient.size(); j-- > 0;) {
    uint64_t q = guess(a.data() + j, divisor.data(), n);
    if (takemultiple(a.data() + j, divisor.data(), n, q)) {
      addback(a.data() + j, divisor.data(), n);
      q--;
    }
    quotient[j] = static_cast<uint32_t>(q);
  }
  divideshort(a, factor);
  trim(a);
  trim(quotient);
  return quotient;
}

DigitWords wordsquotient(DigitWords& a, const DigitWords& b) {
  check(!b.empty());
  if (a.size() < b.size()) return {};
  return b.size() == 1 ? shortquotient(a, b[0]) : longquotient(a, b);
}

}  // namespace tarn

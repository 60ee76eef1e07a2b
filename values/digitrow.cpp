// Rows of digits, eight at a time, with a plain loop for the last few.
#include "values/digitrow.h"

namespace tarn {

void rowreverse(uint8_t* out, const uint8_t* in, int64_t n) {
  out += n;
  for (; n >= 8; n -= 8, in += 8) storeword(out -= 8, __builtin_bswap64(loadword(in)));
  for (; n > 0; n--) *--out = *in++;
}

int64_t rowlength(const uint8_t* row, int64_t n) {
  while (n >= 8 && loadword(row + n - 8) == repeated('0')) n -= 8;
  while (n > 0 && row[n - 1] == '0') n--;
  return n;
}

int rowcompare(const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb) {
  if (na != nb) return na < nb ? -1 : 1;
  for (; na >= 8; na -= 8) {
    uint64_t x = loadword(a + na - 8);
    uint64_t y = loadword(b + na - 8);
    if (x != y) return x < y ? -1 : 1;
  }
  while (na-- > 0) {
    if (a[na] != b[na]) return a[na] < b[na] ? -1 : 1;
  }
  return 0;
}

// The digits of a sum or difference whose bytes are either right, 0 to 9, or 246 too high. Of the
// latter the top bit is set, and the low half is 6 too high.
static uint64_t todigits(uint64_t sum) {
  uint64_t high = (sum & repeated(0x80)) >> 7;
  return (sum & repeated(0x0F)) - 6 * high + repeated('0');
}

// Each byte starts 246 too high, so that a digit sum of 10 or more carries out of its byte.
static uint64_t wordadd(uint64_t x, uint64_t y, uint8_t& carry) {
  uint64_t sum = x + repeated(246 - 2 * '0');
  uint8_t first = __builtin_add_overflow(sum, y, &sum);
  uint8_t second = __builtin_add_overflow(sum, uint64_t{carry}, &sum);
  carry = first | second;
  return todigits(sum);
}

// A digit difference below 0 borrows 256 from the next byte, which is 246 more than the 10 that it
// should.
static uint64_t wordsub(uint64_t x, uint64_t y, uint8_t& borrow) {
  uint64_t difference;
  uint8_t first = __builtin_sub_overflow(x, y, &difference);
  uint8_t second = __builtin_sub_overflow(difference, uint64_t{borrow}, &difference);
  borrow = first | second;
  return todigits(difference);
}

// Up to 8 digits, the missing ones read as '0'.
static uint64_t loadpart(const uint8_t* row, int64_t n) {
  uint64_t word = repeated('0');
  memcpy(&word, row, static_cast<size_t>(n));
  return word;
}

// One row from two, word by word: first where both have digits, then the rest of the longer.
template <uint64_t (*step)(uint64_t, uint64_t, uint8_t&)>
static uint8_t rowstep(uint8_t* out, const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb) {
  uint8_t carry = 0;
  int64_t at = 0;
  for (; at + 8 <= nb; at += 8) {
    storeword(out + at, step(loadword(a + at), loadword(b + at), carry));
  }
  int64_t left = nb - at;
  for (; at + 8 <= na; at += 8, left = 0) {
    storeword(out + at, step(loadword(a + at), loadpart(b + at, left), carry));
  }
  if (at == na) return carry;
  int64_t n = na - at;
  uint64_t last = step(loadpart(a + at, n), loadpart(b + at, left), carry);
  memcpy(out + at, &last, static_cast<size_t>(n));
  return carry | (((last >> (8 * n)) & 0x0F) != 0);
}

uint8_t rowadd(uint8_t* out, const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb) {
  return rowstep<wordadd>(out, a, na, b, nb);
}

uint8_t rowsub(uint8_t* out, const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb) {
  return rowstep<wordsub>(out, a, na, b, nb);
}

}  // namespace tarn

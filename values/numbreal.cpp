// Doubles bit by bit:
//
//   bit    63     62 .. 52   51 .. 0
//          sign   exponent   mantissa      2^(exponent - 1023) * 1.mantissa
//                 0          mantissa      2^-1022 * 0.mantissa
#include "values/numbreal.h"

#include <bit>

#include "values/bits.h"
#include "values/bitwords.h"
#include "values/bitlist.h"
#include "values/numb.h"
#include "values/numbbody.h"
#include "values/real.h"

namespace tarn {

constexpr int MANTISSABITS = 52;
constexpr int64_t EXPONENTBIAS = 1023;
constexpr int64_t LEASTNORMAL = -1022;    // the exponent of the least double with a leading 1
constexpr int64_t LEASTPOSITION = -1074;  // the weight of the last bit of a double
constexpr uint64_t LEADINGBIT = uint64_t{1} << MANTISSABITS;
constexpr uint64_t MANTISSA = LEADINGBIT - 1;
constexpr uint64_t SIGNBIT = uint64_t{1} << 63;
constexpr uint64_t OUTOFRANGE = 0x7FF9000000000000u;

// --- To numbs ------------------------------------------------------------------------------------

CellRef hinttonumb(Cell* x) {
  Str s = bitsofterm(x);
  if (s.empty()) return CellRef();
  if (s == strbyte(3)) return leafcstr("00");  // no sign, no magnitude
  return numbleaf(numbspread(bitget(1, s), {wordsofbits(bitshift(-2, s)), 0}));
}

CellRef numbofreal(double d) {
  uint64_t bits = std::bit_cast<uint64_t>(d);
  int64_t exponent = static_cast<int64_t>(bits >> MANTISSABITS & 0x7FF);
  if (bits == 0) return leafcstr("000");
  if (bits == SIGNBIT || exponent == 0x7FF) return leafcstr("00");
  bool normal = exponent != 0;
  uint64_t significand = (bits & MANTISSA) | (normal ? LEADINGBIT : 0);
  int64_t point = -LEASTPOSITION - (normal ? exponent - 1 : 0);
  BitWords words = {significand};
  if (point < 0) words = wordsshift(words, -point);
  return numbleaf(numbspread((bits & SIGNBIT) == 0, {words, point < 0 ? 0 : point}));
}

// --- To doubles ----------------------------------------------------------------------------------

// n bits of the row, the highest of them at a position.
static uint64_t bitsfrom(const NumbRow& row, int64_t position, int n) {
  BitWords shifted = wordsshift(row.words, n - 1 - position - row.point);
  return shifted.empty() ? 0 : shifted[0] & ((uint64_t{1} << n) - 1);
}

static uint64_t reversed(uint64_t value, int n) {
  uint64_t reverse = 0;
  for (int i = 0; i < n; i++) reverse = reverse << 1 | (value >> i & 1);
  return reverse;
}

// The n bits below the top one, the highest of them in the lowest place of the n at the top.
static uint64_t subnormalbits(const NumbRow& row, int64_t top) {
  int n = static_cast<int>(top - LEASTPOSITION + 1);
  return reversed(bitsfrom(row, top - 1, n), n) << (MANTISSABITS - n);
}

static uint64_t magnitudebits(const Str& t) {
  int64_t top = numbtop(t);
  if (top > EXPONENTBIAS || top < LEASTPOSITION) return OUTOFRANGE;
  NumbRow row = numbgather(t, t.len());
  if (top < LEASTNORMAL) return subnormalbits(row, top);
  uint64_t exponent = static_cast<uint64_t>(top + EXPONENTBIAS);
  return exponent << MANTISSABITS | bitsfrom(row, top - 1, MANTISSABITS);
}

static double doubleofbody(const Str& t) {
  if (numbiszero(t)) return 0.0;
  uint64_t bits = magnitudebits(t);
  if (bits != OUTOFRANGE && !numbpositive(t)) bits |= SIGNBIT;
  return std::bit_cast<double>(bits);
}

CellRef numbtoreal(Cell* x) {
  Str t = numbbits(x);
  return t.empty() ? CellRef() : realleaf(doubleofbody(t));
}

}  // namespace tarn

// Doubles bit by bit:
//
//   bit    63     62 .. 52   51 .. 0
//          sign   exponent   mantissa      2^(exponent - 1023) * 1.mantissa
//                 0          mantissa      2^-1022 * 0.mantissa
#include "values/numbreal.h"

#include <bit>

#include "foundation/str.h"
#include "values/bits.h"
#include "values/bitwords.h"
#include "values/bitlist.h"
#include "values/numb.h"
#include "values/numbbody.h"
#include "values/real.h"

namespace tarn {

constexpr int mantissabits = 52;
constexpr int64_t exponentbias = 1023;
constexpr int64_t leastnormal = -1022;    // the exponent of the least double with a leading 1
constexpr int64_t leastposition = -1074;  // the weight of the last bit of a double
constexpr uint64_t leadingbit = uint64_t{1} << mantissabits;
constexpr uint64_t mantissamask = leadingbit - 1;
constexpr uint64_t doublesign = uint64_t{1} << 63;
constexpr uint64_t outofrange = 0x7FF9000000000000u;

// --- To numbs ------------------------------------------------------------------------------------

CellRef hinttonumb(Cell* x) {
  Str s = bitsofterm(x);
  if (s.empty()) return CellRef();
  if (s == strbyte(3)) return leafcstr("00");  // no sign, no magnitude
  return numbleaf(numbspread(bitget(1, s), {wordsofbits(bitshift(-2, s)), 0}));
}

CellRef numbofreal(double d) {
  uint64_t bits = std::bit_cast<uint64_t>(d);
  int64_t exponent = static_cast<int64_t>(bits >> mantissabits & 0x7FF);
  if (bits == 0) return leafcstr("000");
  if (bits == doublesign || exponent == 0x7FF) return leafcstr("00");
  bool normal = exponent != 0;
  uint64_t significand = (bits & mantissamask) | (normal ? leadingbit : 0);
  int64_t point = -leastposition - (normal ? exponent - 1 : 0);
  BitWords words = {significand};
  if (point < 0) words = wordsshift(words, -point);
  return numbleaf(numbspread((bits & doublesign) == 0, {words, point < 0 ? 0 : point}));
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
  int n = static_cast<int>(top - leastposition + 1);
  return reversed(bitsfrom(row, top - 1, n), n) << (mantissabits - n);
}

static uint64_t magnitudebits(const Str& t) {
  int64_t top = numbtop(t);
  if (top > exponentbias || top < leastposition) return outofrange;
  NumbRow row = numbgather(t, t.len());
  if (top < leastnormal) return subnormalbits(row, top);
  uint64_t exponent = static_cast<uint64_t>(top + exponentbias);
  return exponent << mantissabits | bitsfrom(row, top - 1, mantissabits);
}

static double doubleofbody(const Str& t) {
  if (numbiszero(t)) return 0.0;
  uint64_t bits = magnitudebits(t);
  if (bits != outofrange && !numbpositive(t)) bits |= doublesign;
  return std::bit_cast<double>(bits);
}

CellRef numbtoreal(Cell* x) {
  Str t = numbbits(x);
  return t.empty() ? CellRef() : realleaf(doubleofbody(t));
}

}  // namespace tarn

// Gathering and spreading, a byte of the body at a time: four places before the point and four
// behind.
#include "values/numbbody.h"

#include <array>
#include <bit>

#include "values/bits.h"

namespace tarn {

bool numbpositive(const Str& t) { return bitget(0, t); }

bool numbiszero(const Str& t) { return bittop(t) <= 0; }

// --- One byte of the body ------------------------------------------------------------------------

static constexpr int bitof(int value, int i) { return value >> i & 1; }

// Of a byte of the body: its odd bits in their order, and its even bits in reverse.
static constexpr int wholebits(int byte) {
  return bitof(byte, 1) | bitof(byte, 3) << 1 | bitof(byte, 5) << 2 | bitof(byte, 7) << 3;
}
static constexpr int fractionbits(int byte) {
  return bitof(byte, 6) | bitof(byte, 4) << 1 | bitof(byte, 2) << 2 | bitof(byte, 0) << 3;
}

template <int (*function)(int)>
static constexpr std::array<uint8_t, 256> tableof() {
  std::array<uint8_t, 256> table = {};
  for (int byte = 0; byte < 256; byte++) {
    table[static_cast<size_t>(byte)] = static_cast<uint8_t>(function(byte));
  }
  return table;
}

// The way back from four bits to their places.
static constexpr int wholeplaces(int four) {
  return bitof(four, 0) << 1 | bitof(four, 1) << 3 | bitof(four, 2) << 5 | bitof(four, 3) << 7;
}
static constexpr int fractionplaces(int four) {
  return bitof(four, 3) | bitof(four, 2) << 2 | bitof(four, 1) << 4 | bitof(four, 0) << 6;
}

static constexpr std::array<uint8_t, 256> wholes = tableof<wholebits>();
static constexpr std::array<uint8_t, 256> fractions = tableof<fractionbits>();
static constexpr std::array<uint8_t, 256> wholeback = tableof<wholeplaces>();
static constexpr std::array<uint8_t, 256> fractionback = tableof<fractionplaces>();

// Four bits of a row, counted in fours.
static int fourat(const BitWords& words, int64_t i) {
  size_t word = static_cast<size_t>(i / 16);
  return word < words.size() ? static_cast<int>(words[word] >> (i % 16 * 4) & 15) : 0;
}

static void putfour(BitWords& words, int64_t i, uint8_t four) {
  words[static_cast<size_t>(i / 16)] |= static_cast<uint64_t>(four) << (i % 16 * 4);
}

static BitWords zerorow(int64_t fours) {
  return BitWords(static_cast<size_t>((fours + 15) / 16));
}

// --- Whole bodies --------------------------------------------------------------------------------

// The sign would be the highest bit of the fraction; the lowest whole place takes that bit.
static void dropsign(BitWords& fraction, int64_t n) {
  int64_t sign = 4 * n - 1;
  fraction[static_cast<size_t>(sign / 64)] &= ~(uint64_t{1} << (sign % 64));
}

NumbRow numbgather(const Str& t, int64_t n) {
  BitWords whole = zerorow(n);
  BitWords fraction = zerorow(n);
  for (int64_t k = 0; k < t.len(); k++) {
    uint8_t byte = t.bytes()[k];
    putfour(whole, k, wholes[byte]);
    putfour(fraction, n - 1 - k, fractions[byte]);
  }
  dropsign(fraction, n);
  int64_t point = 4 * n - 1;
  return {wordsadd(wordsshift(whole, point), fraction), point};
}

static int64_t lowestbit(const BitWords& words) {
  int64_t word = 0;
  while (words[static_cast<size_t>(word)] == 0) word++;
  return 64 * word + std::countr_zero(words[static_cast<size_t>(word)]);
}

// The bytes of a body with room for the lowest and the highest place of the row.
static int64_t bodylength(const NumbRow& row) {
  int64_t whole = wordsbitlen(row.words) - row.point;
  int64_t fraction = row.point - lowestbit(row.words);
  int64_t places = whole > fraction ? whole : fraction;
  return places > 0 ? places / 4 + 1 : 1;
}

Str numbspread(bool positive, const NumbRow& row) {
  if (wordsbitlen(row.words) == 0) return strbyte(1);
  int64_t n = bodylength(row);
  int64_t point = 4 * n - 1;
  BitWords fraction = wordsshift(row.words, point - row.point);
  BitWords whole = wordsshift(fraction, -point);
  Str t = strsized(n);
  uint8_t* bytes = t.own();
  for (int64_t k = 0; k < n; k++) {
    size_t w = static_cast<size_t>(fourat(whole, k));
    size_t f = static_cast<size_t>(fourat(fraction, n - 1 - k));
    bytes[k] = wholeback[w] | fractionback[f];
  }
  bitset(0, positive, t);  // where the lowest whole place stood too
  return t;
}

int64_t numbtop(const Str& t) {
  check(!numbiszero(t));
  NumbRow row = numbgather(t, t.len());
  return wordsbitlen(row.words) - 1 - row.point;
}

}  // namespace tarn

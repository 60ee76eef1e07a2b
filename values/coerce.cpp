// Between cells and C values.
#include "values/coerce.h"

#include "foundation/chars.h"
#include "values/bitlist.h"
#include "values/bits.h"

namespace tarn {

// --- Shapes --------------------------------------------------------------------------------------

static bool isdigitleaf(const Cell* x) { return isdigitbyte(cellbyte(x)); }

static bool beginswithzeros(const Cell* x) {
  return leafbytes(x)[0] == '0' && leafbytes(x)[1] == '0';
}

bool ishint(const Cell* x) {
  if (isdigitleaf(x)) return !beginswithzeros(x);
  return leafisbyte(x, 'K') || islistof(x, 'K');
}

bool isnumbish(const Cell* x) {
  return isdigitleaf(x) || leafisbyte(x, 'K') || islistof(x, 'K') || islistof(x, 'H');
}

bool isnat(const Cell* x) {
  if (isdigitleaf(x)) return cellbyte(x) != '0' || leafisbyte(x, '0');
  return leafisbyte(x, 'K') || islistof(x, 'H');
}

// --- Integers ------------------------------------------------------------------------------------

static bool isintegerleaf(const Cell* x) { return isdigitleaf(x) && !beginswithzeros(x); }

// The magnitude of an integer leaf modulo 2^64; the sign '0' adds nothing.
static uint64_t lowofdigits(const Cell* x) {
  uint64_t low = 0;
  for (const uint8_t* digit = leafbytes(x); *digit != 0; digit++) low = low * 10 + (*digit - '0');
  return low;
}

// Bit 0 is the kind, bit 1 the sign; the sentinel serves as the magnitude's top bit.
static uint64_t lowofbits(const Str& s) {
  uint64_t low = 0;
  for (int64_t i = 0; i < 64; i++) low |= static_cast<uint64_t>(bitget(i + 2, s)) << i;
  return low;
}

uint64_t hintlow(Cell* x) {
  return isintegerleaf(x) ? lowofdigits(x) : lowofbits(bitsofterm(x));
}

static bool isnegative(Cell* x) {
  if (isintegerleaf(x)) return cellbyte(x) == '0';
  return !bitget(1, bitsofterm(x));
}

int64_t hintsmall(Cell* x) {
  uint64_t low = hintlow(x);
  return static_cast<int64_t>(isnegative(x) ? 0 - low : low);
}

static CellRef leafofmagnitude(bool negative, uint64_t magnitude) {
  uint8_t digits[24];
  uint8_t* end = digits + sizeof digits;
  uint8_t* at = end;
  do {
    *--at = static_cast<uint8_t>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  if (negative) *--at = '0';
  return leafmade(at, end - at);
}

CellRef hintfrom(int64_t n) {
  uint64_t magnitude = static_cast<uint64_t>(n);
  return leafofmagnitude(n < 0, n < 0 ? 0 - magnitude : magnitude);
}

CellRef hintfromu(uint64_t n) { return leafofmagnitude(false, n); }

Str hinttext(Cell* x) {
  CellRef leaf = digitform(x);
  return leaf.null() ? Str() : celltext(leaf);
}

bool isnumber(const Cell* x) { return iswholelist(x); }

// --- Truth values --------------------------------------------------------------------------------

int truthof(const Cell* x) {
  bool yes = leafisbyte(x, 'K');
  check(yes || leafisbyte(x, 'H'));
  return yes;
}

CellRef truthleaf(bool v) { return leafbyte(v ? 'K' : 'H'); }

}  // namespace tarn

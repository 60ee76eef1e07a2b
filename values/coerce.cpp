// Between cells and C values.
#include "values/coerce.h"

#include "values/answer.h"
#include "values/bitlist.h"
#include "values/bits.h"

namespace tarn {

// --- Shapes --------------------------------------------------------------------------------------

static bool beginswithzeros(const Cell* x) {
  return leafbytes(x)[0] == '0' && leafbytes(x)[1] == '0';
}

static bool isintegerleaf(const Cell* x) { return isdigitleaf(x) && !beginswithzeros(x); }

bool ishint(const Cell* x) {
  return isintegerleaf(x) || leafisbyte(x, 'K') || islistof(x, 'K');
}

bool isnumbish(const Cell* x) {
  return isdigitleaf(x) || leafisbyte(x, 'K') || islistof(x, 'K') || islistof(x, 'H');
}

bool isnat(const Cell* x) {
  if (isdigitleaf(x)) return cellbyte(x) != '0' || leafisbyte(x, '0');
  return leafisbyte(x, 'K') || islistof(x, 'H');
}

// --- Integers ------------------------------------------------------------------------------------

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

CellRef hintfrom(int64_t n) {
  uint64_t magnitude = static_cast<uint64_t>(n);
  return leafdigits(n < 0 ? 0 - magnitude : magnitude, n < 0);
}

CellRef hintfromu(uint64_t n) { return leafdigits(n); }

Str hinttext(Cell* x) {
  CellRef leaf = digitform(x);
  return leaf.null() ? Str() : celltext(leaf);
}

bool isnumber(const Cell* x) { return iswholelist(x); }

// --- Truth values --------------------------------------------------------------------------------

int truthof(const Cell* x) {
  check(istruth(x));
  return istrue(x);
}

CellRef truthleaf(bool v) { return leafbyte(v ? 'K' : 'H'); }

}  // namespace tarn

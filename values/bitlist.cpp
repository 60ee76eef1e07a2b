// From lists of truth values to bit strings and back.
#include "values/bitlist.h"

#include <utility>

#include "values/answer.h"
#include "values/bits.h"
#include "values/pairs.h"

namespace tarn {

static bool islistcell(const Cell* x) { return istwofold(x, 'J') && istruth(firstof(x)); }

bool islistof(const Cell* x, char byte) {
  return istwofold(x, 'J') && leafisbyte(firstof(x), byte);
}

// The elements up to the tail, which comes back in x.
static int64_t countelements(const Cell*& x) {
  int64_t n = 0;
  for (; islistcell(x); x = secondof(x)) n++;
  return n;
}

bool iswholelist(const Cell* x) {
  if (!islistcell(x)) return true;
  countelements(x);
  return leafisbyte(x, 'K') || isdigitleaf(x);
}

Str bitsofterm(Cell* x) {
  check(leafisbyte(x, 'K') || isdigitleaf(x) || islistcell(x));
  const Cell* tail = x;
  int64_t n = countelements(tail);
  Str s;
  if (leafisbyte(tail, 'K')) {
    bitset(n, true, s);
  } else if (isdigitleaf(tail)) {
    s = bitshift(n, bitsofdigits(celltext(tail)));
  } else {
    return Str();
  }
  uint8_t* bytes = s.own();
  for (int64_t i = 0; i < n; i++, x = secondof(x)) {
    bool set = istrue(firstof(x));
    bytes[i / 8] = static_cast<uint8_t>(bytes[i / 8] | set << (i % 8));
  }
  return s;
}

CellRef termofbits(const Str& s) {
  if (bittop(s) == 0) return leafbyte('K');
  return leafstr(digitsofbits(s));
}

CellRef listofbits(const Str& s, CellRef tail) {
  for (int64_t i = bittop(s); i-- > 0;) {
    tail = twofold('J', leafbyte(bitget(i, s) ? 'K' : 'H'), std::move(tail));
  }
  return tail;
}

CellRef digitform(Cell* x) {
  if (cellisleaf(x)) return cellcopy(x);
  Str s = bitsofterm(x);
  return s.empty() ? CellRef() : termofbits(s);
}

}  // namespace tarn

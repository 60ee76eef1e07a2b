// Reading a real from a number, from text, and from the tree of its bits.
#include "values/realform.h"

#include <cstdlib>
#include <cstring>

#include "foundation/str.h"
#include "values/answer.h"
#include "values/pairs.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

// --- The tree of a double ------------------------------------------------------------------------
//
//   double   V (V (V byte byte) (V byte byte)) (V (V byte byte) (V byte byte))
//   byte     V four four, the low four bits first
//   four     V (V bit bit) (V bit bit), the lowest bit first; K for 1 and H for 0

// The value of 2^depth bits, lowest first. Below the top of a byte all must be well formed.
static int bitsofforks(const Cell* x, int depth) {
  if (depth == 0) {
    bool set = leafisbyte(x, 'K');
    check(set || leafisbyte(x, 'H'));
    return set;
  }
  check(istwofold(x, 'V'));
  int low = bitsofforks(firstof(x), depth - 1);
  int high = bitsofforks(secondof(x), depth - 1);
  return low | high << (1 << (depth - 1));
}

// Writes the 2^depth bytes of x; false if x has another shape.
static bool bytesofforks(const Cell* x, int depth, uint8_t* out) {
  if (!istwofold(x, 'V')) return false;
  if (depth == 0) {
    *out = static_cast<uint8_t>(bitsofforks(x, 3));
    return true;
  }
  return bytesofforks(firstof(x), depth - 1, out) &&
         bytesofforks(secondof(x), depth - 1, out + (1 << (depth - 1)));
}

static CellRef realoftree(const Cell* x) {
  uint8_t bytes[sizeof(double)];
  if (!bytesofforks(x, 3, bytes)) return failure();
  double d;
  memcpy(&d, bytes, sizeof d);
  return realleaf(d);
}

// --- The builtin ---------------------------------------------------------------------------------

static CellRef realoftext(const Str& text) { return realleaf(strtod(text.text(), nullptr)); }

CellRef valuereal(Cell* x) {
  switch (cellkind(x)) {
    case 'a': return realoftext(posttext(x));
    case 'c': return failure();
    case 'e': return realoftree(x);
    case 'u': return realoftext(zitstext(x));
    default: break;
  }
  return orfailure(truecast(x));
}

}  // namespace tarn

// Packing and unpacking.
#include "values/lits.h"

#include <cstring>

#include "foundation/str.h"
#include "values/answer.h"
#include "values/bitlist.h"
#include "values/bits.h"
#include "values/bytes.h"
#include "values/coerce.h"
#include "values/numbreal.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

// --- lits ----------------------------------------------------------------------------------------

static CellRef integerofbytes(Bytes bytes) {
  uint64_t value = 0;
  memcpy(&value, bytes.at, static_cast<size_t>(bytes.n < 8 ? bytes.n : 8));
  return hintfrom(static_cast<int64_t>(value));
}

CellRef valuelits(Cell* x) {
  switch (cellkind(x)) {
    case 'a': return integerofbytes(postbytes(x));
    case 'i':
    case 'o': return orfailure(digitform(x));
    case 'r': return numbofreal(realvalue(x));
    case 'u': return integerofbytes(strbytes(zitstext(x)));
    default: return leafisbyte(x, 'K') ? leafbyte('K') : failure();
  }
}

// --- lots ----------------------------------------------------------------------------------------

static CellRef listof(const Str& bits) { return listofbits(bits, leafbyte('K')); }

static CellRef listofnumber(Cell* x) {
  Str bits = bitsofterm(x);
  return bits.empty() ? failure() : listof(bits);
}

static CellRef listofreal(Cell* x) {
  double d = realvalue(x);
  return listof(Str(&d, sizeof d) + strbyte(1));  // the sentinel stands behind bit 63
}

// The highest set bit of the payload serves as the sentinel; a payload of NULs alone has none, and
// its list ends behind the `K`.
static CellRef listofpost(Cell* x) {
  Bytes payload = postbytes(x);
  int64_t zeros = 0;
  while (zeros < payload.n && payload.at[payload.n - 1 - zeros] == 0) zeros++;
  Str rest = Str(payload.at, payload.n - zeros);
  if (rest.empty()) rest = strbyte(1);
  return listof(bitshift(zeros, bitinc(bitshift(1, rest))));
}

CellRef valuelots(Cell* x) {
  switch (cellkind(x)) {
    case 'a': return listofpost(x);
    case 'i':
    case 'o': return listofnumber(x);
    case 'r': return listofreal(x);
    case 'u': return zitstree(x);
    default: return leafisbyte(x, 'K') ? leafbyte('K') : failure();
  }
}

}  // namespace tarn

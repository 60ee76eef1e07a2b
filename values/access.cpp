// `look`, `cork` and `trim`, a function for each kind of value.
#include "values/access.h"

#include <bit>

#include "foundation/str.h"
#include "values/answer.h"
#include "values/bitlist.h"
#include "values/bits.h"
#include "values/bytes.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/hint.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

// An index into n elements, its negative ones counted from the end; -1 if it is out of range.
static int64_t placeof(Cell* i, int64_t n) {
  int64_t at = hintsmall(i);
  if (at < 0) at += n;
  return at < 0 || at >= n ? -1 : at;
}

constexpr int64_t realbits = 64;

static uint64_t patternof(Cell* x) { return std::bit_cast<uint64_t>(realvalue(x)); }

// --- look ----------------------------------------------------------------------------------------

static CellRef lookbytes(Bytes bytes, Cell* i) {
  int64_t at = placeof(i, bytes.n);
  return at < 0 ? failure() : hintfrom(bytes.at[at]);
}

static CellRef lookcray(const Cell* x, Cell* i) {
  int64_t at = placeof(i, crayslots(x));
  return at < 0 ? failure() : crayget(x, at);
}

// On purpose: bit 64, one past the last, is in range and clear.
static CellRef lookreal(Cell* x, Cell* i) {
  int64_t at = hintsmall(i);
  if (at < 0) at += realbits;
  if (at < 0 || at > realbits) return failure();
  return truthleaf(at < realbits && (patternof(x) >> at & 1) != 0);
}

// On purpose: there is no upper end. Elements past the last one are false.
static CellRef lookbits(Cell* x, Cell* i) {
  Str bits = bitsofterm(x);
  if (bits.empty()) return failure();
  int64_t n = bittop(bits);
  int64_t at = hintsmall(i);
  if (at < 0) at += n;
  if (at < 0) return failure();
  return truthleaf(at < n && bitget(at, bits));
}

CellRef valuelook(Cell* x, Cell* i) {
  if (!ishint(i)) return failure();
  switch (cellkind(x)) {
    case 'a': return lookbytes(postbytes(x), i);
    case 'u': return lookbytes(flatcontent(zitsflat(x)), i);
    case 'c': return lookcray(x, i);
    case 'r': return lookreal(x, i);
    case 'i':
    case 'o': return lookbits(x, i);
    default: return failure();
  }
}

// --- cork ----------------------------------------------------------------------------------------

namespace {

// The arguments of one `cork`, lent by its application, and whether it alone holds x.
struct Cork {
  Cell* x;
  Cell* i;
  Cell* v;
  bool owned;

  // x itself if it may be changed, else a copy.
  CellRef target() const {
    if (owned) return cellcopy(x);
    return leafmade(leafbytes(x), cellsize(x));
  }
};

}  // namespace

static CellRef corkpost(const Cork& cork) {
  if (!ishint(cork.v)) return failure();
  int64_t at = placeof(cork.i, postlen(cork.x));
  if (at < 0) return failure();
  CellRef target = cork.target();
  uint8_t* payload = const_cast<uint8_t*>(postbytes(target).at);
  payload[at] = static_cast<uint8_t>(hintsmall(cork.v));
  return target;
}

// On purpose: the new byte may be a bracket, and then the text is out of balance; only the old one
// may not.
static CellRef corkflat(const Cork& cork) {
  if (!ishint(cork.v)) return failure();
  Bytes content = flatcontent(cork.x);
  int64_t at = placeof(cork.i, content.n);
  if (at < 0 || content.at[at] == '[' || content.at[at] == ']') return failure();
  CellRef target = cork.target();
  leafbytes(target)[1 + at] = static_cast<uint8_t>(hintsmall(cork.v));
  return target;
}

static CellRef corkzits(const Cork& cork) {
  if (cellisleaf(cork.x)) return corkflat(cork);
  CellRef flat = zitsflat(cork.x);
  return corkflat({flat, cork.i, cork.v, alone(cellrefs(flat))});
}

static CellRef corkcray(const Cork& cork) {
  int64_t at = placeof(cork.i, crayslots(cork.x));
  if (at < 0) return failure();
  if (!cork.owned) return crayset(cork.x, at, cork.v);
  craysethere(cork.x, at, cork.v);
  return cellcopy(cork.x);
}

static CellRef corkreal(const Cork& cork) {
  if (!istruth(cork.v)) return failure();
  int64_t at = hintsmall(cork.i);
  if (at < -realbits || at >= realbits) return failure();
  if (at < 0) at += realbits;
  uint64_t bit = uint64_t{1} << at;
  uint64_t pattern = patternof(cork.x);
  return realleaf(std::bit_cast<double>(istrue(cork.v) ? pattern | bit : pattern & ~bit));
}

// On purpose: past the end the bit is set in the string as it is, so that its old top bit, the
// mark of the end, becomes an element.
static CellRef corkbits(const Cork& cork) {
  if (!istruth(cork.v)) return failure();
  Str bits = bitsofterm(cork.x);
  if (bits.empty()) return failure();
  int64_t at = hintsmall(cork.i);
  if (at < 0) at += bittop(bits);
  if (at < 0) return failure();
  bitset(at, istrue(cork.v), bits);
  return bitiszero(bits) ? failure() : termofbits(bits);
}

static CellRef corked(const Cork& cork) {
  if (!ishint(cork.i)) return failure();
  switch (cellkind(cork.x)) {
    case 'a': return corkpost(cork);
    case 'u': return corkzits(cork);
    case 'c': return corkcray(cork);
    case 'r': return corkreal(cork);
    case 'i':
    case 'o': return corkbits(cork);
    default: return failure();
  }
}

CellRef& callcork(CellRef& out, CellRef application) {
  Cell* f = application;
  return out = corked({thirdlastarg(f), secondlastarg(f), lastarg(f), ownsfirst(f, 3)});
}

// --- trim ----------------------------------------------------------------------------------------

namespace {

// A slice, as it was asked for and as it comes out.
struct Slice {
  int64_t from;
  int64_t to;
  bool empty;  // equal ends: an empty value, whatever the length
  bool good;   // in range; from and to count from the start then
};

}  // namespace

static Slice sliceof(Cell* a, Cell* b, int64_t n) {
  int64_t from = hintsmall(a);
  int64_t to = hintsmall(b);
  if (from == to) return {0, 0, true, true};
  if (from < 0) from += n;
  if (to < 0) to += n;
  return {from, to, false, from >= 0 && from <= to && to <= n};
}

static CellRef trimpost(Bytes payload, Cell* a, Cell* b) {
  Slice slice = sliceof(a, b, payload.n);
  if (!slice.good) return failure();
  return postmake({payload.at + slice.from, slice.to - slice.from});
}

static CellRef trimzits(Bytes content, Cell* a, Cell* b) {
  Slice slice = sliceof(a, b, content.n);
  if (!slice.good) return failure();
  Bytes items = {content.at + slice.from, slice.to - slice.from};
  return isbalanced(items) ? zitsmake(items) : failure();
}

static CellRef trimcray(const Cell* x, Cell* a, Cell* b) {
  Slice slice = sliceof(a, b, crayslots(x));
  return slice.good ? crayslice(x, slice.from, slice.to) : failure();
}

CellRef valuetrim(Cell* x, Cell* a, Cell* b) {
  if (!ishint(a) || !ishint(b)) return failure();
  switch (cellkind(x)) {
    case 'a': return trimpost(postbytes(x), a, b);
    case 'u': return trimzits(flatcontent(zitsflat(x)), a, b);
    case 'c': return trimcray(x, a, b);
    default: return failure();
  }
}

}  // namespace tarn

// Numb arithmetic: the places of both operands are gathered into rows, and the answer is spread.
#include "values/numb.h"

#include <algorithm>
#include <utility>

#include "foundation/chars.h"
#include "values/answer.h"
#include "values/bitlist.h"
#include "values/bits.h"
#include "values/bitwords.h"
#include "values/coerce.h"
#include "values/hint.h"
#include "values/numbbody.h"

namespace tarn {

// --- Between cells and bodies --------------------------------------------------------------------

static bool isnumbleaf(const Cell* x) {
  return cellisleaf(x) && leafbytes(x)[0] == '0' && leafbytes(x)[1] == '0';
}

Str numbbits(Cell* x) {
  check(isnumbleaf(x) || islistof(x, 'H'));
  return bitshift(-1, bitsofterm(x));
}

CellRef numbleaf(const Str& t) {
  check(bitnonzero(t));
  return leafstr(digitsofbits(bitshift(1, t)));
}

// --- Two operands --------------------------------------------------------------------------------

// Two bodies gathered with the same point.
struct NumbPair {
  BitWords a;
  BitWords b;
  int64_t point;
};

static NumbPair gatherboth(const Str& a, const Str& b) {
  int64_t n = std::max(a.len(), b.len());
  NumbRow x = numbgather(a, n);
  NumbRow y = numbgather(b, n);
  return {std::move(x.words), std::move(y.words), x.point};
}

// --- Sum and difference --------------------------------------------------------------------------

static void trace(bool ysign, bool xsign) {
  char line[] = {'j', 'j', 'a', 'a', ysign ? '1' : '0', xsign ? '1' : '0', '\n'};
  appendbug(Str(line, sizeof line));
}

static Str addbodies(const Str& x, const Str& y) {
  bool xsign = numbpositive(x);
  bool ysign = numbpositive(y);
  trace(ysign, xsign);
  NumbPair pair = gatherboth(x, y);
  if (xsign == ysign) return numbspread(xsign, {wordsadd(pair.a, pair.b), pair.point});
  if (wordscompare(pair.a, pair.b) < 0) {
    return numbspread(ysign, {wordssub(pair.b, pair.a), pair.point});
  }
  return numbspread(xsign, {wordssub(pair.a, pair.b), pair.point});
}

static Str negated(Str t) {
  if (!numbiszero(t)) bitset(0, !numbpositive(t), t);
  return t;
}

CellRef numbadd(Cell* x, Cell* y) {
  Str a = numbbits(x);
  Str b = numbbits(y);
  return a.empty() || b.empty() ? failure() : numbleaf(addbodies(a, b));
}

CellRef numbsub(Cell* x, Cell* y) {
  Str a = numbbits(x);
  Str b = numbbits(y);
  return a.empty() || b.empty() ? failure() : numbleaf(addbodies(a, negated(b)));
}

CellRef numbneg(Cell* x) {
  Str t = numbbits(x);
  return t.empty() ? failure() : numbleaf(negated(t));
}

// --- Product and remainder -----------------------------------------------------------------------

static Str mulbodies(const Str& x, const Str& y) {
  NumbRow a = numbgather(x, x.len());
  NumbRow b = numbgather(y, y.len());
  return numbspread(numbpositive(x) == numbpositive(y),
                    {wordsmul(a.words, b.words), a.point + b.point});
}

CellRef numbmul(Cell* x, Cell* y) {
  Str a = numbbits(x);
  Str b = numbbits(y);
  return a.empty() || b.empty() ? failure() : numbleaf(mulbodies(a, b));
}

static Str modbodies(const Str& x, const Str& y) {
  NumbPair pair = gatherboth(x, y);
  BitWords rest = wordsmod(std::move(pair.a), pair.b);
  bool fromabove = numbpositive(x) != numbpositive(y) && wordsbitlen(rest) != 0;
  return numbspread(true, {fromabove ? wordssub(pair.b, rest) : rest, pair.point});
}

CellRef numbmod(Cell* x, Cell* y) {
  Str a = numbbits(x);
  Str b = numbbits(y);
  if (a.empty() || b.empty() || numbiszero(b)) return failure();
  return numbleaf(modbodies(a, b));
}

// --- Power ---------------------------------------------------------------------------------------

constexpr int64_t powerlimit = 61;  // the list of an exponent must be shorter

static CellRef poweroftwo(Cell* y) {
  if (bittop(bitsofterm(y)) >= powerlimit) return failure();
  Str t = strbyte(1);
  bitset(numbindex(hintsmall(y)), true, t);
  return numbleaf(t);
}

// On purpose: a leaf is odd by its first digit, so that 12 is odd and 21 even; a list by the lowest
// bit of its magnitude.
static bool countsasodd(Cell* y) {
  if (cellispair(y)) return bitget(2, bitsofterm(y));
  const uint8_t* digit = leafbytes(y);
  if (*digit == '0') digit++;
  return isdigitbyte(*digit) && (*digit - '0') % 2 == 1;
}

// On purpose: this reads the exponent's bits from the lowest up and multiplies as if they came from
// the highest down; 1.5 to the 5 is 1.5 to the 6.
static Str powerloop(const Str& x, CellRef y) {
  CellRef one = leafbyte('1');
  CellRef two = leafbyte('2');
  Str r = x;
  while (hintless(one, y)) {
    r = mulbodies(r, r);
    if (countsasodd(y)) r = mulbodies(r, x);
    y = hintdiv(y, two);
  }
  return r;
}

CellRef numbpow(Cell* x, Cell* y) {
  Str t = numbbits(x);
  if (t.empty() || !isnumber(y)) return failure();
  if (hinttext(x) == Str("004")) return poweroftwo(y);
  if (!hintsign(y)) return failure();
  if (hintiszero(y)) return leafcstr("00");
  return numbleaf(powerloop(t, cellcopy(y)));
}

// --- Order ---------------------------------------------------------------------------------------

static bool unitsbit(const Str& t) { return bitget(numbindex(0), t); }

bool numbsign(Cell* x) { return unitsbit(numbbits(x)); }

// On purpose: the greater magnitude counts as the less where the units bits are 0.
bool numbless(Cell* x, Cell* y) {
  Str a = numbbits(x);
  Str b = numbbits(y);
  if (unitsbit(a) != unitsbit(b)) return unitsbit(b);
  NumbPair pair = gatherboth(a, b);
  int order = wordscompare(pair.a, pair.b);
  return unitsbit(a) ? order < 0 : order > 0;
}

}  // namespace tarn

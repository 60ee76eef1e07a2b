// Integer arithmetic. Texts of up to 18 digits are worked out in machine integers, longer ones as
// magnitudes; the answers are the same.
#include "values/hint.h"

#include <cstring>

#include "foundation/str.h"
#include "values/answer.h"
#include "values/bitlist.h"
#include "values/coerce.h"
#include "values/mag.h"

namespace tarn {

// --- Reading an operand --------------------------------------------------------------------------

constexpr int64_t shortdigits = 18;  // so many digits fit into 63 bits, and the sum of two as well

// An operand, its sign taken off. The digits stand in the leaf that is held.
struct HintView {
  CellRef leaf;           // null: a list that is no number
  const uint8_t* digits;  // without the sign
  int64_t n;              // 0: no number
  bool negative;

  bool isnumber() const { return n != 0; }
  bool iszero() const { return n == 1 && *digits == '0'; }
  bool isshort() const { return n <= shortdigits; }
};

static HintView view(Cell* x) {
  HintView v = {digitform(x), nullptr, 0, false};
  if (v.leaf.null()) return v;
  v.digits = leafbytes(v.leaf);
  v.n = cellsize(v.leaf);
  check((v.digits[0] >= '1' && v.digits[0] <= '9') || (v.digits[0] == '0' && v.digits[1] != '0'));
  v.negative = v.digits[0] == '0' && v.n > 1;
  v.digits += v.negative;
  v.n -= v.negative;
  return v;
}

static int64_t shortmagnitude(const HintView& v) {
  int64_t value = 0;
  for (int64_t i = 0; i < v.n; i++) value = value * 10 + (v.digits[i] - '0');
  return value;
}

static int64_t shortvalue(const HintView& v) {
  int64_t magnitude = shortmagnitude(v);
  return v.negative ? -magnitude : magnitude;
}

static Str magnitude(const HintView& v) { return magload(v.digits, v.n); }

static CellRef signedleaf(bool negative, const Str& m) {
  return leafstr(magsign(negative, magstore(m)));
}

// --- Sum and difference --------------------------------------------------------------------------

static CellRef addsigned(const Str& a, bool anegative, const Str& b, bool bnegative) {
  if (anegative == bnegative) return signedleaf(anegative, magadd(a, b));
  if (magless(a, b)) return signedleaf(bnegative, magsub(b, a));
  return signedleaf(anegative, magsub(a, b));
}

static CellRef add(HintView x, HintView y) {
  if (!x.isnumber() || !y.isnumber()) return failure();
  if (x.isshort() && y.isshort()) return hintfrom(shortvalue(x) + shortvalue(y));
  return addsigned(magnitude(x), x.negative, magnitude(y), y.negative);
}

static HintView negated(HintView x) {
  x.negative = !x.negative && !x.iszero();
  return x;
}

CellRef hintadd(Cell* x, Cell* y) { return add(view(x), view(y)); }
CellRef hintsub(Cell* x, Cell* y) { return add(view(x), negated(view(y))); }

static CellRef leafofview(const HintView& x) {
  if (!x.isnumber()) return failure();
  return leafstr(magsign(x.negative, Str(x.digits, x.n)));
}

CellRef hintneg(Cell* x) { return leafofview(negated(view(x))); }

CellRef hintabs(Cell* x) {
  HintView v = view(x);
  v.negative = false;
  return leafofview(v);
}

// --- Product -------------------------------------------------------------------------------------

static CellRef product(const HintView& x, const HintView& y) {
  if (x.n + y.n <= shortdigits) return hintfrom(shortvalue(x) * shortvalue(y));
  return signedleaf(x.negative != y.negative, magmul(magnitude(x), magnitude(y)));
}

CellRef hintmul(Cell* x, Cell* y) {
  HintView a = view(x);
  HintView b = view(y);
  if (!a.isnumber() || !b.isnumber()) return failure();
  if (a.iszero() || b.iszero()) return leafbyte('0');
  CellRef made = product(a, b);
  setarity(made, 2);
  return made;
}

// --- Quotient and remainder ----------------------------------------------------------------------

static CellRef shortquotient(int64_t x, int64_t y) {
  bool inexact = x % y != 0;
  return hintfrom(x / y - (inexact && (x < 0) != (y < 0)));
}

CellRef hintdiv(Cell* x, Cell* y) {
  HintView a = view(x);
  HintView b = view(y);
  if (!a.isnumber() || !b.isnumber() || b.iszero()) return failure();
  if (a.isshort() && b.isshort()) return shortquotient(shortvalue(a), shortvalue(b));
  bool agree = a.negative == b.negative;
  return signedleaf(!agree, magdiv(agree, magnitude(a), magnitude(b)));
}

static CellRef shortremainder(int64_t x, int64_t y, bool agree) {
  int64_t rest = x % y;
  return hintfrom(agree || rest == 0 ? rest : y - rest);
}

CellRef hintmod(Cell* x, Cell* y) {
  HintView a = view(x);
  HintView b = view(y);
  if (!a.isnumber() || !b.isnumber() || b.iszero()) return failure();
  bool agree = a.negative == b.negative;
  if (a.isshort() && b.isshort()) {
    return shortremainder(shortmagnitude(a), shortmagnitude(b), agree);
  }
  Str divisor = magnitude(b);
  Str rest = magmod(magnitude(a), divisor);
  if (!agree && !magiszero(rest)) rest = magsub(divisor, rest);
  return signedleaf(false, rest);
}

// --- Power ---------------------------------------------------------------------------------------

CellRef hintpow(Cell* x, Cell* y) {
  HintView a = view(x);
  HintView b = view(y);
  if (!a.isnumber() || !b.isnumber()) return failure();
  if (b.negative) return leafbyte('0');
  Str exponent = magnitude(b);
  return signedleaf(a.negative && !magiseven(exponent), magpow(magnitude(a), exponent));
}

// --- Order ---------------------------------------------------------------------------------------

bool hintsign(Cell* x) { return !view(x).negative; }

bool hintiszero(Cell* x) {
  if (leafisbyte(x, 'K')) return true;
  HintView v = view(x);
  return !v.isnumber() || v.iszero();
}

// Texts without leading zeros: the longer one is greater, equally long ones compare as bytes.
static bool lessmagnitude(const HintView& x, const HintView& y) {
  if (x.n != y.n) return x.n < y.n;
  return x.n != 0 && memcmp(x.digits, y.digits, static_cast<size_t>(x.n)) < 0;
}

bool hintless(Cell* x, Cell* y) {
  HintView a = view(x);
  HintView b = view(y);
  if (a.negative != b.negative) return a.negative;
  return a.negative ? lessmagnitude(b, a) : lessmagnitude(a, b);
}

bool hintgteq(Cell* x, Cell* y) { return !hintless(x, y); }

}  // namespace tarn

// A matrix for each operator, and above it the arms that only it has. In a matrix "none" is the
// answer `Z`.
//
// On purpose: where a number meets an array and the operator has no meaning for the two, the number
// rule is tried all the same, and dies on the array: "truecast", or the check of a numb's shape.
// The arms `numbs` and `reals` in the columns and rows of arrays are these deaths.
#include "values/operators.h"

#include <cmath>

#include "foundation/escapes.h"
#include "foundation/str.h"
#include "values/answer.h"
#include "values/bytes.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/hint.h"
#include "values/kinds.h"
#include "values/numb.h"
#include "values/numbreal.h"
#include "values/post.h"
#include "values/real.h"
#include "values/slices.h"
#include "values/zits.h"

namespace tarn {

static CellRef none(Cell*) { return failure(); }
static CellRef none(Cell*, Cell*) { return failure(); }

// Both as reals; what is no number dies.
template <double (*work)(double, double)>
static CellRef reals(Cell* x, Cell* y) {
  if (!isnumber(x) || !isnumber(y)) return failure();
  CellRef a = truecast(x);
  CellRef b = truecast(y);
  return realleaf(work(realvalue(a), realvalue(b)));
}

static CellRef asnumb(Cell* x) { return cellkind(x) == 'i' ? hinttonumb(x) : cellcopy(x); }

// Both as numbs, the integers turned into them; what is no number dies.
template <Arm2 work>
static CellRef numbs(Cell* x, Cell* y) {
  if (!isnumber(x) || !isnumber(y)) return failure();
  CellRef a = asnumb(x);
  CellRef b = asnumb(y);
  return work(a, b);
}

// --- + -------------------------------------------------------------------------------------------

static double add(double x, double y) { return x + y; }

static CellRef joincrays(Cell* x, Cell* y) {
  uint64_t slots = cellfield(x) + cellfield(y);
  return slots < cellfieldlimit ? crayconcat(x, y) : failure();
}

static CellRef joinposts(Cell* x, Cell* y) { return postjoin(postbytes(x), postbytes(y)); }

// The text of a number or a zits, as it is joined to a string.
static Str joinedtext(Cell* x) {
  switch (cellkind(x)) {
    case 'r': return realtext(x);
    case 'u': return zitstext(x);
    default: return hinttext(x);
  }
}

static CellRef postthentext(Cell* x, Cell* y) {
  if (!isnumber(y)) return failure();
  return postjoin(postbytes(x), strbytes(joinedtext(y)));
}

static CellRef textthenpost(Cell* x, Cell* y) {
  if (!isnumber(x)) return failure();
  return postjoin(strbytes(joinedtext(x)), postbytes(y));
}

static CellRef zitsjoined(Bytes a, Bytes b) {
  uint8_t* out = nullptr;
  CellRef made = zitssized(a.n + b.n, out);
  putbytes(putbytes(out, a), b);
  return made;
}

static CellRef joinzits(Cell* x, Cell* y) {
  CellRef a = zitsflat(x);
  CellRef b = zitsflat(y);
  return zitsjoined(flatcontent(a), flatcontent(b));
}

static CellRef zitsthentext(Cell* x, Cell* y) {
  if (!isnumber(y)) return failure();
  return zitsjoined(flatcontent(zitsflat(x)), strbytes(joinedtext(y)));
}

static CellRef textthenzits(Cell* x, Cell* y) {
  if (!isnumber(x)) return failure();
  return zitsjoined(strbytes(joinedtext(x)), flatcontent(zitsflat(y)));
}

CellRef valueplus(Cell* x, Cell* y) {
  constexpr Arm2 pp = joinposts, pt = postthentext, tp = textthenpost;
  constexpr Arm2 zz = joinzits, zt = zitsthentext, tz = textthenzits;
  constexpr Arm2 cc = joincrays, ii = hintadd, oo = numbs<numbadd>, rr = reals<add>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   pp,   none, none, pt,   pt,   pt,   pt  }, // post x
      {   none, cc,   none, none, none, none, none}, // cray
      {   none, none, none, none, none, none, none}, // void
      {   tp,   none, none, ii,   oo,   rr,   tz  }, // hint
      {   tp,   none, none, oo,   oo,   rr,   tz  }, // numb
      {   tp,   none, none, rr,   rr,   rr,   tz  }, // real
      {   tp,   none, none, zt,   zt,   zt,   zz  }, // zits
  };
  return choose(matrix, x, y);
}

// --- - -------------------------------------------------------------------------------------------

static double subtract(double x, double y) { return x - y; }

static CellRef cutpost(Cell* x, Cell* y) {
  Bytes payload = postbytes(x);
  Cut cut = cutof(hintsmall(y), payload.n);
  return cut.good ? postmake({payload.at + cut.from, cut.to - cut.from}) : failure();
}

static CellRef cutzits(Cell* x, Cell* y) {
  CellRef flat = zitsflat(x);
  Bytes content = flatcontent(flat);
  Cut cut = cutof(hintsmall(y), content.n);
  return cut.good ? zitsmake({content.at + cut.from, cut.to - cut.from}) : failure();
}

static CellRef cutcray(Cell* x, Cell* y) {
  Cut cut = cutof(hintsmall(y), crayslots(x));
  return cut.good ? crayslice(x, cut.from, cut.to) : failure();
}

static CellRef rope(Cell* x, Cell* y) { return cellapply1(x, y); }

CellRef valuedash(Cell* x, Cell* y) {
  constexpr Arm2 pi = cutpost, ci = cutcray, zi = cutzits, zz = rope;
  constexpr Arm2 ii = hintsub, oo = numbs<numbsub>, rr = reals<subtract>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   none, none, none, pi,   none, none, none}, // post x
      {   none, none, none, ci,   oo,   rr,   none}, // cray
      {   none, none, none, none, none, none, none}, // void
      {   none, oo,   none, ii,   oo,   rr,   none}, // hint
      {   none, oo,   none, oo,   oo,   rr,   none}, // numb
      {   none, rr,   none, rr,   rr,   rr,   none}, // real
      {   none, none, none, zi,   none, none, zz  }, // zits
  };
  return choose(matrix, x, y);
}

// --- * -------------------------------------------------------------------------------------------

static double multiply(double x, double y) { return x * y; }

static CellRef repeatpost(Cell* x, Cell* y) {
  int64_t n = hintsmall(y);
  if (n < 0) return failure();
  if (n == 1) return cellcopy(x);
  Bytes payload = postbytes(x);
  uint8_t* out = nullptr;
  CellRef made = postsized(repeatedsize(payload.n, n), out);
  putrepeated(out, payload, n);
  return made;
}

static CellRef repeatzits(Cell* x, Cell* y) {
  int64_t n = hintsmall(y);
  if (n < 0) return failure();
  if (n == 1) return cellcopy(x);
  CellRef flat = zitsflat(x);
  Bytes content = flatcontent(flat);
  uint8_t* out = nullptr;
  CellRef made = zitssized(repeatedsize(content.n, n), out);
  putrepeated(out, content, n);
  return made;
}

static CellRef repeatcray(Cell* x, Cell* y) {
  int64_t n = hintsmall(y);
  return n < 0 ? failure() : crayrepeat(x, n);
}

template <Arm2 work>
static CellRef swapped(Cell* x, Cell* y) {
  return work(y, x);
}

CellRef valuemult(Cell* x, Cell* y) {
  constexpr Arm2 pi = repeatpost, ci = repeatcray, zi = repeatzits;
  constexpr Arm2 ip = swapped<repeatpost>, ic = swapped<repeatcray>, iz = swapped<repeatzits>;
  constexpr Arm2 ii = hintmul, oo = numbs<numbmul>, rr = reals<multiply>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   none, none, none, pi,   none, none, none}, // post x
      {   none, none, none, ci,   oo,   rr,   none}, // cray
      {   none, none, none, none, none, none, none}, // void
      {   ip,   ic,   none, ii,   oo,   rr,   iz  }, // hint
      {   none, oo,   none, oo,   oo,   rr,   none}, // numb
      {   none, rr,   none, rr,   rr,   rr,   none}, // real
      {   none, none, none, zi,   none, none, none}, // zits
  };
  return choose(matrix, x, y);
}

// --- / -------------------------------------------------------------------------------------------

static double divide(double x, double y) { return x / y; }  // by zero: the IEEE result

static CellRef append(Cell* x, Cell* y) {
  return cellfield(x) == cellfieldlimit - 1 ? failure() : crayappend(x, y);
}

// `over x y` or `powa x y`, where x is an array that may grow in place.
static bool appendshere(const Cell* f) {
  const Cell* x = secondlastarg(f);
  if (cellbyte(x) != '\n' || cellfield(x) >= cellfieldlimit - 1) return false;
  return ownsfirst(f, 2) && cellkind(lastarg(f)) != 'e';
}

static CellRef appendedhere(Cell* f) {
  Cell*& x = rightlink(leftlink(f));
  x = craygrown(x);
  craysethere(x, crayslots(x) - 1, lastarg(f));
  return cellcopy(x);
}

static CellRef over(Cell* x, Cell* y) {
  constexpr Arm2 c = append, ii = hintdiv, rr = reals<divide>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   none, none, none, none, none, none, none}, // post x
      {   c,    c,    none, c,    c,    c,    c   }, // cray
      {   none, none, none, none, none, none, none}, // void
      {   none, rr,   none, ii,   rr,   rr,   none}, // hint
      {   none, rr,   none, rr,   none, rr,   none}, // numb: there is no exact division
      {   none, rr,   none, rr,   rr,   rr,   none}, // real
      {   none, none, none, none, none, none, none}, // zits
  };
  return choose(matrix, x, y);
}

CellRef& callover(CellRef& out, CellRef f) {
  return out = appendshere(f) ? appendedhere(f) : over(secondlastarg(f), lastarg(f));
}

// --- % -------------------------------------------------------------------------------------------

static double modulo(double x, double y) { return std::fmod(x, y); }

static CellRef prepend(Cell* x, Cell* y) {
  return cellfield(y) == cellfieldlimit - 1 ? failure() : crayprepend(x, y);
}

CellRef valuecent(Cell* x, Cell* y) {
  constexpr Arm2 c = prepend, ii = hintmod, oo = numbs<numbmod>, rr = reals<modulo>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   none, c,    none, none, none, none, none}, // post x
      {   none, c,    none, oo,   oo,   rr,   none}, // cray
      {   none, none, none, none, none, none, none}, // void
      {   none, c,    none, ii,   oo,   rr,   none}, // hint
      {   none, c,    none, oo,   oo,   rr,   none}, // numb
      {   none, c,    none, rr,   rr,   rr,   none}, // real
      {   none, c,    none, none, none, none, none}, // zits
  };
  return choose(matrix, x, y);
}

// --- ^ -------------------------------------------------------------------------------------------

static double power(double x, double y) { return std::pow(x, y); }

// On purpose: unlike "/" and "%" this stops one slot later than the count in the header can tell,
// so that an array of 0x3ffffff slots grows to one that counts 0.
static CellRef appendlate(Cell* x, Cell* y) { return crayappend(x, y); }

static CellRef powa(Cell* x, Cell* y) {
  constexpr Arm2 c = appendlate, ii = hintpow, oi = numbpow, rr = reals<power>;
  static const Matrix matrix = {
      //  post  cray  void  hint  numb  real  zits   y
      {   none, none, none, none, none, none, none}, // post x
      {   c,    c,    none, c,    c,    c,    c   }, // cray
      {   none, none, none, none, none, none, none}, // void
      {   none, rr,   none, ii,   rr,   rr,   none}, // hint
      {   none, rr,   none, oi,   none, rr,   none}, // numb
      {   none, rr,   none, rr,   rr,   rr,   none}, // real
      {   none, none, none, none, none, none, none}, // zits
  };
  return choose(matrix, x, y);
}

CellRef& callpowa(CellRef& out, CellRef f) {
  return out = appendshere(f) ? appendedhere(f) : powa(secondlastarg(f), lastarg(f));
}

// --- $ and ~ -------------------------------------------------------------------------------------

static CellRef firstofpost(Cell* x) {
  Bytes payload = postbytes(x);
  if (payload.n == 0) return failure();
  return escapeletter(payload.at[0]) != 0 ? zitsofescape(payload.at[0]) : zitsmake({payload.at, 1});
}

static CellRef restofpost(Cell* x) {
  Bytes payload = postbytes(x);
  return payload.n == 0 ? failure() : postmake({payload.at + 1, payload.n - 1});
}

template <bool (*sign)(Cell*)>
static CellRef signof(Cell* x) {
  return isnumber(x) ? truthleaf(sign(x)) : failure();
}

static CellRef signofreal(Cell* x) { return truthleaf(!std::signbit(realvalue(x))); }
static CellRef negativereal(Cell* x) { return realleaf(-realvalue(x)); }
static CellRef leftofzits(Cell* x) { return zitsempty(x) ? failure() : zitsleft(x); }
static CellRef rightofzits(Cell* x) { return zitsempty(x) ? failure() : zitsright(x); }

CellRef valuebuck(Cell* x) {
  constexpr Arm1 hint = signof<hintsign>, numb = signof<numbsign>;
  //                       post         cray  void  hint  numb  real        zits
  static const Row1 row = {firstofpost, none, none, hint, numb, signofreal, leftofzits};
  return choose(row, x);
}

CellRef valuewave(Cell* x) {
  //                       post        cray  void  hint     numb     real          zits
  static const Row1 row = {restofpost, none, none, hintneg, numbneg, negativereal, rightofzits};
  return choose(row, x);
}

// --- rank ----------------------------------------------------------------------------------------

static CellRef rankofpost(Cell* x) { return hintfrom(postlen(x)); }
static CellRef rankofcray(Cell* x) { return hintfrom(crayslots(x)); }
static CellRef rankofreal(Cell*) { return hintfrom(8); }
static CellRef rankofzits(Cell* x) { return hintfrom(zitslength(x) - 2); }

// On purpose: of the digits as they stand, so that the zero of a sign and those of a numb count.
static CellRef rankofnumber(Cell* x) {
  return isnumber(x) ? hintfrom(hinttext(x).len()) : failure();
}

CellRef valuerank(Cell* x) {
  constexpr Arm1 post = rankofpost, cray = rankofcray, number = rankofnumber;
  //                       post  cray  void  hint    numb    real        zits
  static const Row1 row = {post, cray, none, number, number, rankofreal, rankofzits};
  return choose(row, x);
}

}  // namespace tarn

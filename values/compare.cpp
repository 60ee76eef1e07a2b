// The comparisons, by kind. Within this file an answer is a Verdict, which becomes a leaf at the
// end; that saves a cell for each element of an array.
#include "values/compare.h"

#include "values/answer.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/hint.h"
#include "values/kinds.h"
#include "values/numb.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

namespace {

enum Verdict { no, yes, none };  // the leaf H, K or Z

using Comparison = Verdict (*)(Cell* x, Cell* y);

// What one operator does with two values of one kind.
using Comparisons = Comparison[kinds];

}  // namespace

static Verdict verdict(bool holds) { return holds ? yes : no; }

static Verdict opposite(Verdict v) {
  if (v == none) return none;
  return v == yes ? no : yes;
}

static CellRef answered(Verdict v) { return v == none ? failure() : truthleaf(v == yes); }

static Verdict less(Cell* x, Cell* y);
static Verdict gteq(Cell* x, Cell* y);
static Verdict same(Cell* x, Cell* y);
static Verdict diff(Cell* x, Cell* y);

static Verdict failed(Cell*, Cell*) { return none; }

// --- Void: by the order of terms -----------------------------------------------------------------

static Verdict voidless(Cell* x, Cell* y) { return verdict(termorder(x, y) == 1); }
static Verdict voidgteq(Cell* x, Cell* y) { return verdict(termorder(x, y) < 1); }

// --- Posts and zits: by their bytes --------------------------------------------------------------

static int postorder(Cell* x, Cell* y) { return bytescompare(postbytes(x), postbytes(y)); }

static int zitsorder(Cell* x, Cell* y) {
  CellRef a = zitsflat(x);
  CellRef b = zitsflat(y);
  return bytescompare(flatcontent(a), flatcontent(b));
}

static Verdict postless(Cell* x, Cell* y) { return verdict(postorder(x, y) < 0); }
static Verdict postgteq(Cell* x, Cell* y) { return verdict(postorder(x, y) >= 0); }
static Verdict postsame(Cell* x, Cell* y) {
  return verdict(bytesequal(postbytes(x), postbytes(y)));
}
static Verdict zitsless(Cell* x, Cell* y) { return verdict(zitsorder(x, y) < 0); }
static Verdict zitsgteq(Cell* x, Cell* y) { return verdict(zitsorder(x, y) >= 0); }
static Verdict zitssame(Cell* x, Cell* y) { return verdict(zitsorder(x, y) == 0); }

// --- Numbers -------------------------------------------------------------------------------------

// A list of truth values that is no number fails whatever it is compared with.
static bool arenumbers(Cell* x, Cell* y) { return isnumber(x) && isnumber(y); }

template <bool (*holds)(Cell*, Cell*)>
static Verdict ofnumbers(Cell* x, Cell* y) {
  return arenumbers(x, y) ? verdict(holds(x, y)) : none;
}

static bool numbgteq(Cell* x, Cell* y) { return !numbless(x, y); }

// By the digits as they stand.
static bool numbersame(Cell* x, Cell* y) {
  if (cellispair(x) || cellispair(y)) return hinttext(x) == hinttext(y);
  return bytesequal({leafbytes(x), cellsize(x)}, {leafbytes(y), cellsize(y)});
}

// A NaN is neither less nor greater than anything, and not the same as itself.
static Verdict realless(Cell* x, Cell* y) { return verdict(realvalue(y) > realvalue(x)); }
static Verdict realgteq(Cell* x, Cell* y) { return verdict(realvalue(x) >= realvalue(y)); }
static Verdict realsame(Cell* x, Cell* y) { return verdict(realvalue(x) == realvalue(y)); }

// --- Arrays: element by element ------------------------------------------------------------------
//
// An empty slot compares as a leaf Z; two slots that are one cell, or both empty, are passed over.

namespace {

struct Elements {
  CellRef a;
  CellRef b;

  Elements(const Cell* x, const Cell* y, int64_t i) : a(crayget(x, i)), b(crayget(y, i)) {}
};

}  // namespace

static bool oneslot(const Cell* x, const Cell* y, int64_t i) {
  return crayslot(x, i) == crayslot(y, i);
}

static int64_t shorterslots(const Cell* x, const Cell* y) {
  return crayslots(x) < crayslots(y) ? crayslots(x) : crayslots(y);
}

// On purpose: the elements' `same` looks at them the other way round, and where it fails the walk
// goes on to the next elements.
static Verdict crayless(Cell* x, Cell* y) {
  for (int64_t i = 0; i < shorterslots(x, y); i++) {
    if (oneslot(x, y, i)) continue;
    Elements at(x, y, i);
    Verdict lower = less(at.a, at.b);
    if (lower != no) return lower;
    if (same(at.b, at.a) == no) return no;
  }
  return verdict(crayslots(x) < crayslots(y));
}

static Verdict craygteq(Cell* x, Cell* y) {
  for (int64_t i = 0; i < shorterslots(x, y); i++) {
    if (oneslot(x, y, i)) continue;
    Elements at(x, y, i);
    Verdict equal = same(at.a, at.b);
    if (equal == none) return none;
    if (equal == no) return gteq(at.a, at.b);
  }
  return verdict(crayslots(x) >= crayslots(y));
}

static Verdict craysame(Cell* x, Cell* y) {
  if (crayslots(x) != crayslots(y)) return no;
  for (int64_t i = 0; i < crayslots(x); i++) {
    if (oneslot(x, y, i)) continue;
    Elements at(x, y, i);
    Verdict equal = same(at.a, at.b);
    if (equal != yes) return equal;
  }
  return yes;
}

static Verdict craydiff(Cell* x, Cell* y) {
  if (crayslots(x) != crayslots(y)) return yes;
  for (int64_t i = 0; i < crayslots(x); i++) {
    if (oneslot(x, y, i)) continue;
    Elements at(x, y, i);
    Verdict unequal = diff(at.a, at.b);
    if (unequal != no) return unequal;
  }
  return no;
}

// --- The operators -------------------------------------------------------------------------------

static Verdict less(Cell* x, Cell* y) {
  constexpr Comparison hint = ofnumbers<hintless>, numb = ofnumbers<numbless>;
  //                          post      cray      void      hint  numb  real      zits
  static const Comparisons by = {postless, crayless, voidless, hint, numb, realless, zitsless};
  int kx = kindindex(cellkind(x));
  int ky = kindindex(cellkind(y));
  return kx == ky ? by[kx](x, y) : verdict(kx < ky);
}

static Verdict gteq(Cell* x, Cell* y) {
  constexpr Comparison hint = ofnumbers<hintgteq>, numb = ofnumbers<numbgteq>;
  //                          post      cray      void      hint  numb  real      zits
  static const Comparisons by = {postgteq, craygteq, voidgteq, hint, numb, realgteq, zitsgteq};
  int kx = kindindex(cellkind(x));
  int ky = kindindex(cellkind(y));
  return kx == ky ? by[kx](x, y) : verdict(kx > ky);
}

static Verdict same(Cell* x, Cell* y) {
  constexpr Comparison number = ofnumbers<numbersame>;
  //                          post      cray      void    hint    numb    real      zits
  static const Comparisons by = {postsame, craysame, failed, number, number, realsame, zitssame};
  if (x == y) return yes;
  int kx = kindindex(cellkind(x));
  int ky = kindindex(cellkind(y));
  return kx == ky ? by[kx](x, y) : no;
}

// The opposite of `same` but for arrays, whose slots are looked at by `diff` in turn.
static Verdict diff(Cell* x, Cell* y) {
  if (x == y) return no;
  bool crays = cellkind(x) == 'c' && cellkind(y) == 'c';
  return crays ? craydiff(x, y) : opposite(same(x, y));
}

CellRef valueless(Cell* x, Cell* y) { return answered(less(x, y)); }
CellRef valuegteq(Cell* x, Cell* y) { return answered(gteq(x, y)); }
CellRef valuesame(Cell* x, Cell* y) { return answered(same(x, y)); }
CellRef valuediff(Cell* x, Cell* y) { return answered(diff(x, y)); }

CellRef valuecmpr(Cell* x, Cell* y) { return hintfrom(termorder(x, y)); }

}  // namespace tarn

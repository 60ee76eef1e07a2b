// The abstract machine: one flat loop over one state (state.h). This is its scheduler: it decides
// which redex goes next, and what is evaluated first. Where a value meets an argument, or a
// function that waits for it, the common cases go on without making the Pair of the two.
#include "graph/reduce.h"

#include <cstdlib>

#include "graph/prims.h"

namespace tarn {

static int64_t steplimit = INT64_MAX;

int64_t reducesteps() { return stepcount; }

void reducelimit(int64_t steps) { steplimit = steps; }

static bool islazyhead(Cell* f) { return islazybyte(cellbyte(spinehead(f))); }

// --- Taking the focus apart ----------------------------------------------------------------------

// Takes the focus apart, `l b`, into a reference to each link.
static void splitfocus(State& s, Cell*& l, Cell*& b) {
  Cell* f = s.focus;
  l = leftlink(f);
  b = rightlink(f);
  if (alone(cellrefs(f))) {
    storefreepair(f);  // no finaliser: those are values, and a value is never split
  } else {
    cellhold(l);
    cellhold(b);
    if constexpr (checking) cellunhold(f);
    else f->header--;
  }
}

// The argument waits, the function is evaluated.
static void pushright(State& s) {
  stepcount++;
  Cell* l = nullptr;
  Cell* b = nullptr;
  splitfocus(s, l, b);
  pushgive(s, b);
  s.focus = l;
}

// The function waits, the argument is evaluated.
static void pushleft(State& s) {
  stepcount++;
  Cell* l = nullptr;
  Cell* b = nullptr;
  splitfocus(s, l, b);
  s.focus = b;
  pushwait(s, l);
}

// --- A value meets a value -----------------------------------------------------------------------

// The spine of a value: a leaf, a partial application or data.
static void startspine(Spine& p, Cell* v) {
  if (cellisleaf(v)) {
    p.head = v;
    p.count = 0;
  } else {
    walkspine(p, v);
  }
}

// The definition that a head unfolds when it gets n arguments, its parameters known; null if it
// does anything else, or takes another number.
static Definition* unfolds(Cell* head, int n) {
  if (cellispair(head)) return nullptr;
  uint8_t first = leafbytes(head)[0];
  if (first == '\n' || first == '\\' || first == '{' || first == ')') return nullptr;
  Definition* d = leafdefinition(head);
  if (d == nullptr || d->builtin != nullptr || d->term.null()) return nullptr;
  definitionknow(d);
  return d->arity == n && n <= definitionparams ? d : nullptr;
}

// Applies the value l to the value b, and takes both: while arguments are still missing that is a
// value again, else the redex is reduced at once.
static void applyvalue(State& s, Cell* l, Cell* b) {
  s.focus = l;
  if (knownarity(l) == 1 && cellispair(l) && takesbody(leftlink(l))) {
    stepcount++;
    primbind(s, rightlink(leftlink(l)), b, rightlink(l));
    return cellunhold(b);
  }
  if (knownarity(l) == 1 && !knowndata(l)) {
    Spine p;
    startspine(p, l);
    p.args[p.count++] = b;
    if (Definition* d = unfolds(p.head, p.count)) {
      stepcount++;
      primunfold(s, d, p);
      return cellunhold(b);
    }
  }
  s.focus = newpair(l, b);
  if (knownarity(s.focus) == 0) reduceprim(s);
}

// --- A value meets an argument -------------------------------------------------------------------

static Definition* flipper() {
  static Definition* d = definitionof("T");
  return d;
}

// The focus v becomes `T b v`. On purpose: it is the definition of T that then applies v to b, so
// that a T of the program's own changes what surplus arguments do.
static void stepflip(State& s, Cell* b) {
  if (!flipper()->term.null()) definitionknow(flipper());
  CellRef flip = leafbyte('T');
  cellannotate(flip);
  s.focus = newpair(newpair(flip.give(), b), s.focus);
}

// A lazy head with all its arguments in frames takes them as they are. False if it has not, or
// unfolds no definition. An argument counts as two steps as long as the application so far is a
// value; once it is not, all the rest are taken in one.
static bool takelazy(State& s, Spine& p, int n) {
  if (givesupply(s, n) < n) return false;
  Definition* d = unfolds(p.head, p.count + n);
  if (d == nullptr) return false;
  bool value = true;
  for (int i = 0; i < n; i++) {
    Cell* b = framecell(s.top[-1 - i]);
    p.args[p.count++] = b;
    if (value) stepcount += 2;
    if (!knownnormal(b)) value = false;
  }
  stepcount++;
  s.top -= n;
  uint64_t taken[maxargs];
  for (int i = 0; i < n; i++) taken[i] = s.top[i];  // unfolding may push new frames there
  primunfold(s, d, p);
  for (int i = n; i > 0; i--) cellunhold(framecell(taken[i - 1]));
  return true;
}

// Takes the argument b out of the last frame, and the focus v becomes `v b`: two steps, the first
// of them to `T b v`.
static void joingiven(State& s) {
  stepcount += 2;
  Cell* b = framecell(*--s.top);
  s.focus = newpair(s.focus, b);
}

// The same, and a step on: v waits, and b is evaluated.
static void waitforgiven(State& s) {
  stepcount += 3;
  Cell* v = s.focus;
  s.focus = framecell(*--s.top);
  pushwait(s, v);
}

// The value in the focus meets the argument in the last frame.
static void stepgive(State& s) {
  Cell* v = s.focus;
  if (knowndata(v) || knownarity(v) == cellmaxarity) return joingiven(s);
  Cell* b = framecell(s.top[-1]);
  Spine p;
  startspine(p, v);
  uint8_t first = cellbyte(p.head);
  if (islazybyte(first)) {
    if (!takelazy(s, p, knownarity(v))) joingiven(s);
  } else if (knownnormal(b)) {
    stepcount += 2;
    s.top--;
    applyvalue(s, v, b);
  } else if (first != '\\' && first != '{') {
    waitforgiven(s);
  } else {
    joingiven(s);
  }
}

// The focus is a value: it goes to its frame.
static void stepvalue(State& s) {
  uint64_t frame = s.top[-1];
  if (!framegives(frame)) {
    s.top--;
    stepcount++;
    return applyvalue(s, framecell(frame), s.focus);
  }
  Definition* t = flipper();
  if (t->known && t->flips) return stepgive(s);
  s.top--;
  stepcount++;
  stepflip(s, framecell(frame));
}

// --- A redex -------------------------------------------------------------------------------------

// The head wants its arguments evaluated first, from the left.
static void stepstrict(State& s) {
  Cell* f = s.focus;
  if (!knownpending(f)) return reduceprim(s);
  if (cellform(f) == 'i') {
    Cell* key = leftlink(leftlink(f));
    Cell* e = rightlink(leftlink(f));
    if (knownnormal(e)) return reduceprim(s);
    stepcount++;
    return waitlocal(s, rightlink(key), e, rightlink(f));
  }
  if (knownpending(leftlink(f))) {
    pushright(s);
  } else {
    pushleft(s);
  }
}

// A partial application with unevaluated arguments, n more missing. If its head is lazy and the
// frames have all n, it takes them, and nothing is evaluated.
static void steppartial(State& s, int n) {
  if (islazyhead(s.focus) && givesupply(s, n) == n) {
    for (; n > 0; n--) s.focus = newpair(s.focus, framecell(*--s.top));
    return reduceprim(s);
  }
  if (knownnormal(leftlink(s.focus))) {
    pushleft(s);
  } else {
    pushright(s);
  }
}

static void reducestep(State& s) {
  if (knownnormal(s.focus)) return stepvalue(s);
  int n = knownarity(s.focus);
  if (n < 0) {
    pushright(s);
  } else if (n > 0) {
    steppartial(s, n);
  } else if (islazyhead(s.focus)) {
    reduceprim(s);
  } else {
    stepstrict(s);
  }
}

// Ends the run at the limit of steps. A failure leaf is a value whatever the program has defined; Z
// need not be one.
static void giveup(State& s) {
  focuson(s, leafbyte(']').give());
  dropframes(s);
}

void reduceterm(CellRef& out, CellRef term) {
  bool was = finaliserswitch(true);
  cellannotate(term);
  State s = {term.give(), nullptr, nullptr, nullptr};
  while (s.top != s.frames || !knownnormal(s.focus)) {
    reducestep(s);
    if (stepcount >= steplimit) giveup(s);
  }
  free(s.frames);
  finaliserswitch(was);
  out = CellRef::adopt(s.focus);
}

}  // namespace tarn

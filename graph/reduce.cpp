// The abstract machine: one flat loop over one state, `C F`, a continuation and a focus. The state
// is a term of the language: a continuation is `I`, or `B k f` to go on with `f v` under `k` when
// the focus has become the value v. The machine keeps the continuation as an array of frames, the
// nearest last, and not as cells; nothing of a program can tell.
//
//   array          as a term                  when the focus is the value v
//   (empty)        I                          v is the result
//   .. wait l      B C l                      go on with l v
//   .. give b      B C (T b)                  go on with T b v
//
// `T b v` is `v b` by the definition of T, which a program may replace: see stepgive.
#include "graph/reduce.h"

#include <vector>

#include "foundation/chars.h"
#include "graph/annotate.h"
#include "graph/atoms.h"
#include "graph/cellstore.h"
#include "graph/definitions.h"
#include "graph/substitute.h"

namespace tarn {

enum FrameKind { WAIT, GIVE };

struct Frame {
  Cell* cell;  // owned
  FrameKind kind;
};

struct State {
  std::vector<Frame> frames;
  Cell* focus;  // owned, annotated
};

static int64_t steps = 0;

int64_t reducesteps() { return steps; }

// --- Small moves on the state --------------------------------------------------------------------

// The Pair of two annotated cells, taking over the references to both.
static Cell* newpair(Cell* l, Cell* r) { return storepair(l, r, pairbits(l, r) | 1); }

static void focuson(State& s, Cell* made) {
  Cell* old = s.focus;
  s.focus = made;
  cellannotate(made);
  cellunhold(old);
}

static void push(State& s, FrameKind kind, Cell* c) { s.frames.push_back({c, kind}); }

// Splits the focus `l b`: b goes to the frames, l becomes the focus, or the other way round.
static void splitfocus(State& s, Cell*& l, Cell*& b) {
  Cell* f = s.focus;
  l = leftlink(f);
  b = rightlink(f);
  if (cellrefs(f) == 1) {
    storefreepair(f);
  } else {
    cellhold(l);
    cellhold(b);
    f->header--;
  }
}

static void pushright(State& s) {
  Cell* l = nullptr;
  Cell* b = nullptr;
  splitfocus(s, l, b);
  push(s, GIVE, b);
  s.focus = l;
}

// A frame of `T a` that the program itself spells is one that gives.
static void pushwait(State& s, Cell* l) {
  if (cellispair(l) && cellbyte(leftlink(l)) == 'T') {
    push(s, GIVE, cellhold(rightlink(l)));
    cellunhold(l);
  } else {
    push(s, WAIT, l);
  }
}

static void pushleft(State& s) {
  Cell* l = nullptr;
  Cell* b = nullptr;
  splitfocus(s, l, b);
  s.focus = b;
  pushwait(s, l);
}

// Throws the continuation away: x is the result of all.
static void cutoff(State& s, CellRef x) {
  focuson(s, x.give());
  std::vector<Frame> dead;
  dead.swap(s.frames);
  for (Frame& f : dead) cellunhold(f.cell);
}

// A new leaf of a mark and a text behind it.
static CellRef marked(uint8_t mark, const Str& text) { return leafstr(strbyte(mark) + text); }

// --- The heads -----------------------------------------------------------------------------------

// The spine of a redex: its head, and the arguments from the nearest to the head on; all lent.
struct Spine {
  Cell* head;
  Cell* args[CELLMAXARITY + 1];
  int count;
};

static Cell* spinehead(Cell* f) {
  while (!cellhead(f)) f = leftlink(f);
  return f;
}

static void walkspine(Spine& p, Cell* f) {
  Cell* reversed[CELLMAXARITY + 1];
  int n = 0;
  for (; !cellhead(f); f = leftlink(f)) {
    check(n <= CELLMAXARITY);
    reversed[n++] = rightlink(f);
  }
  p.head = f;
  p.count = n;
  for (int i = 0; i < n; i++) p.args[i] = reversed[n - 1 - i];
}

static bool islazyhead(Cell* f) { return islazybyte(cellbyte(spinehead(f))); }

static bool israised(const Cell* r) {
  if (cellisleaf(r)) return false;
  uint8_t mark = cellbyte(leftlink(r));
  return mark == ')' || mark == ']';
}

static void primbuiltin(State& s, BuiltinFn fn) {
  CellRef out;
  fn(out, CellRef::adopt(s.focus));
  s.focus = out.give();
  cellannotate(s.focus);
  if (israised(s.focus)) cutoff(s, cellcopy(s.focus));
}

static void primatom(State& s, Spine& p, AtomFn fn) {
  focuson(s, fn(p.head, cellcopy(p.args[0])).give());
}

static void primbind(State& s, Cell* v, Cell* arg, Cell* body) {
  CellRef made;
  substitute(made, cellcopy(body), cellcopy(arg), cellbyte(v));
  focuson(s, made.give());
}

// `{ v e body` with an e to be evaluated first: the abstraction `\ v body` waits for it.
static void waitlocal(State& s, Cell* v, Cell* e, Cell* body) {
  CellRef l = cellapply2(leafbyte('\\'), v, body);
  cellannotate(l);
  focuson(s, cellhold(e));
  pushwait(s, l.give());
}

static void primlocal(State& s, Spine& p) {
  if (cellnormal(p.args[1])) {
    primbind(s, p.args[0], p.args[1], p.args[2]);
  } else {
    waitlocal(s, p.args[0], p.args[1], p.args[2]);
  }
}

// The value of a constant goes into its definition. An abstraction is stored as `B I f`, so that
// the name stays a constant.
static void primmemo(State& s, Spine& p) {
  Definition* d = leafdefinition(p.head);
  if (d == nullptr) d = definitionof(celltext(p.head).substr(1));
  check(!d->term.null());
  check(cellnormal(p.args[0]));
  check(!d->alive);
  CellRef value = cellcopy(p.args[0]);
  if (cellform(value) == 'u') value = cellapply2(leafbyte('B'), leafbyte('I'), value);
  defset(d, value);
  focuson(s, value.give());
}

// A constant is evaluated at most once: meanwhile its definition is the leaf ")", and its value
// comes back to the memo mark, ")" and its name.
static void primconstant(State& s, Definition* d) {
  Cell* term = d->term;
  if (d->alive || (cellbyte(term) != ')' && cellnormal(term))) {
    focuson(s, cellhold(term));
  } else if (cellbyte(term) == ')') {
    cutoff(s, marked(')', d->name));
  } else {
    CellRef mark = marked(')', d->name);
    setleafdefinition(mark, d);
    CellRef f = cellpair(mark, term);
    defset(d, leafbyte(')'));
    focuson(s, f.give());
  }
}

static void primdefinition(State& s, Spine& p, Definition* d) {
  if (d->term.null()) return cutoff(s, marked(']', d->name));
  definitionknow(d);
  check(p.count == d->arity);
  if (p.count == 0) return primconstant(s, d);
  Bindings to;
  uint32_t letters = 0;
  for (int i = 0; i < p.count; i++) {
    int place = d->letters[i] - 'a';
    to[place] = p.args[i];
    letters |= uint32_t{1} << place;
  }
  focuson(s, instantiate(d->body, to, letters).give());
}

static void primname(State& s, Spine& p) {
  Definition* d = definitionof(p.head);
  if (d->builtin != nullptr) return primbuiltin(s, d->builtin->fn);
  if (leafisbyte(p.head, '{')) return primlocal(s, p);
  if (leafisbyte(p.head, '\\')) return primbind(s, p.args[0], p.args[2], p.args[1]);
  primdefinition(s, p, d);
}

// One primitive reduction of the focus, which is closed and of arity 0.
static void reduceprim(State& s) {
  steps++;
  check(cellfree(s.focus) == 0);
  check(cellarity(s.focus) == 0);
  Spine p;
  walkspine(p, s.focus);
  uint8_t first = cellbyte(p.head);
  if (isdigitbyte(first)) return primatom(s, p, atoms().integer);
  if (cellispair(p.head)) return primatom(s, p, atoms().data);
  switch (first) {
    case '[': return primatom(s, p, atoms().data);
    case '(': return primatom(s, p, atoms().post);
    case ' ': return primatom(s, p, atoms().real);
    case '\n': return primatom(s, p, atoms().cray);
    case ')': return primmemo(s, p);
    case ']': return cutoff(s, marked(']', celltext(p.args[0])));
    default: return primname(s, p);
  }
}

// --- The scheduler -------------------------------------------------------------------------------

static Definition* flipper() {
  static Definition* d = definitionof("T");
  return d;
}

// `T b v`. As long as T is what the prelude says, that is `v b`, and the step to it is made at once.
static void stepgive(State& s, Cell* b) {
  Definition* t = flipper();
  if (t->known && t->flips) {
    steps++;
    s.focus = newpair(s.focus, b);
    return;
  }
  CellRef f = cellpairtake(cellpairtake(leafbyte('T'), CellRef::adopt(b)), CellRef::adopt(s.focus));
  if (!t->term.null()) definitionknow(t);
  s.focus = f.give();
  cellannotate(s.focus);
}

// The focus is a value: it goes to its frame.
static void stepvalue(State& s) {
  steps++;
  Frame top = s.frames.back();
  s.frames.pop_back();
  if (top.kind == WAIT) {
    s.focus = newpair(top.cell, s.focus);
  } else {
    stepgive(s, top.cell);
  }
}

// A redex whose head wants its arguments evaluated first: from the left.
static void stepstrict(State& s) {
  Cell* f = s.focus;
  if (!cellpending(f)) return reduceprim(s);
  steps++;
  if (cellform(f) == 'i') {
    Cell* key = leftlink(leftlink(f));
    Cell* e = rightlink(leftlink(f));
    if (!cellnormal(e)) return waitlocal(s, rightlink(key), e, rightlink(f));
    steps--;
    return reduceprim(s);
  }
  if (cellpending(leftlink(f))) {
    pushright(s);
  } else {
    pushleft(s);
  }
}

// The last n frames all give an argument.
static bool givesupply(const State& s, int n) {
  size_t count = s.frames.size();
  if (count < static_cast<size_t>(n)) return false;
  for (int i = 1; i <= n; i++) {
    if (s.frames[count - static_cast<size_t>(i)].kind != GIVE) return false;
  }
  return true;
}

// A partial application with unevaluated arguments, n more missing. A lazy head takes them from the
// frames, all or none, with nothing evaluated.
static void steppartial(State& s, int n) {
  if (islazyhead(s.focus) && givesupply(s, n)) {
    for (; n > 0; n--) {
      s.focus = newpair(s.focus, s.frames.back().cell);
      s.frames.pop_back();
    }
    return reduceprim(s);
  }
  steps++;
  if (cellnormal(leftlink(s.focus))) {
    pushleft(s);
  } else {
    pushright(s);
  }
}

static void reducestep(State& s) {
  if (cellnormal(s.focus)) return stepvalue(s);
  int n = cellarity(s.focus);
  if (n < 0) {
    steps++;
    pushright(s);
  } else if (n > 0) {
    steppartial(s, n);
  } else if (islazyhead(s.focus)) {
    reduceprim(s);
  } else {
    stepstrict(s);
  }
}

void reduceterm(CellRef& out, CellRef term) {
  bool was = finaliserswitch(true);
  State s = {{}, term.give()};
  while (!s.frames.empty() || !cellnormal(s.focus)) reducestep(s);
  finaliserswitch(was);
  out = CellRef::adopt(s.focus);
}

}  // namespace tarn

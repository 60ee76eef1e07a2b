// The primitive reductions, a function each.
#include "graph/prims.h"

#include <utility>

#include "foundation/chars.h"
#include "foundation/str.h"
#include "graph/atoms.h"
#include "graph/substitute.h"

namespace tarn {

int64_t stepcount = 0;

// --- Spines --------------------------------------------------------------------------------------

Cell* spinehead(Cell* f) {
  while (cellispair(f) && !knowndata(f)) f = leftlink(f);
  return f;
}

void walkspine(Spine& p, Cell* f) {
  Cell* reversed[maxargs];
  int n = 0;
  for (; cellispair(f) && !knowndata(f); f = leftlink(f)) {
    check(n < maxargs);
    reversed[n++] = rightlink(f);
  }
  p.head = f;
  p.count = n;
  for (int i = 0; i < n; i++) p.args[i] = reversed[n - 1 - i];
}

// --- Putting arguments in ------------------------------------------------------------------------

// Puts arguments in for letters of a body. If the body has more arguments than its head takes,
// those go into frames at once, and no Pairs are made for them; each is a step. Not under a head of
// data: if its argument turns out to be data, the two are a rope.
static void unfold(State& s, Cell* body, const Bindings& to, uint32_t letters) {
  uint64_t set = uint64_t{letters} << cellfieldshift;
  if (knownarity(body) < 0 && knownarity(body) > cellminarity && !knowndata(spinehead(body))) {
    while (knownarity(body) < 0 && (knownfree(body) & set) != 0) {
      pushgive(s, instantiate(rightlink(body), to, letters));
      body = leftlink(body);
      stepcount++;
    }
  }
  focuson(s, instantiate(body, to, letters));
}

void primunfold(State& s, const Definition* d, const Spine& p) {
  Bindings to;
  uint32_t letters = 0;
  for (int i = 0; i < p.count; i++) {
    int place = d->letters[i] - 'a';
    to[place] = p.args[i];
    letters |= uint32_t{1} << place;
  }
  cellannotate(d->body);
  unfold(s, d->body, to, letters);
}

void primbind(State& s, Cell* v, Cell* arg, Cell* body) {
  uint8_t letter = cellbyte(v);
  check(letter >= 'a' && letter <= 'z');
  Bindings to;
  to[letter - 'a'] = arg;
  unfold(s, body, to, uint32_t{1} << (letter - 'a'));
}

// --- Builtins and atoms --------------------------------------------------------------------------

// Ends the run with the value x, whatever was to follow.
static void cutoff(State& s, CellRef x) {
  focuson(s, x.give());
  dropframes(s);
}

// A new leaf: a mark, and a text behind it.
static CellRef marked(uint8_t mark, const Str& text) { return leafstr(strbyte(mark) + text); }

// A report, or a cycle, that is to be the value of the run.
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
  if (israised(s.focus)) dropframes(s);
}

static void primatom(State& s, const Spine& p, AtomFn fn) {
  focuson(s, fn(p.head, cellcopy(p.args[0])).give());
}

// --- Locals --------------------------------------------------------------------------------------

void waitlocal(State& s, Cell* v, Cell* e, Cell* body) {
  CellRef l = cellapply2(leafbyte('\\'), v, body);
  cellannotate(l);
  focuson(s, cellhold(e));
  pushwait(s, l.give());
}

static void primlocal(State& s, const Spine& p) {
  if (knownnormal(p.args[1])) {
    primbind(s, p.args[0], p.args[1], p.args[2]);
  } else {
    waitlocal(s, p.args[0], p.args[1], p.args[2]);
  }
}

// --- Definitions ---------------------------------------------------------------------------------

// The value of a constant goes into its definition. An abstraction is stored as `B I f`, so that
// the name stays a constant.
static void primmemo(State& s, const Spine& p) {
  Definition* d = leafdefinition(p.head);
  if (d == nullptr) d = definitionof(celltext(p.head).substr(1));
  check(!d->term.null());
  check(knownnormal(p.args[0]));
  check(!d->alive);
  CellRef value = cellcopy(p.args[0]);
  if (cellform(value) == 'u') value = cellapply2(leafbyte('B'), leafbyte('I'), value);
  defset(d, value);
  focuson(s, value.give());
}

// A constant is evaluated at most once. Meanwhile its definition is the leaf ")", so that a cycle
// is noticed, and the value comes back to the memo mark, a leaf of ")" and the name.
static void primconstant(State& s, Definition* d) {
  Cell* term = d->term;
  if (!d->alive && cellbyte(term) == ')') return cutoff(s, marked(')', d->name));
  if (d->alive || cellnormal(term)) return focuson(s, cellhold(term));
  CellRef mark = marked(')', d->name);
  setleafdefinition(mark, d);
  CellRef f = cellpairtake(std::move(mark), cellcopy(term));
  defset(d, leafbyte(')'));
  focuson(s, f.give());
}

static void primdefinition(State& s, const Spine& p, Definition* d) {
  if (d->term.null()) return cutoff(s, marked(']', d->name));
  definitionknow(d);
  check(p.count == d->arity);
  if (p.count == 0) {
    primconstant(s, d);
  } else {
    primunfold(s, d, p);
  }
}

static void primname(State& s, const Spine& p) {
  Definition* d = definitionof(p.head);
  if (d->builtin != nullptr) return primbuiltin(s, d->builtin->fn);
  if (leafisbyte(p.head, '{')) return primlocal(s, p);
  if (leafisbyte(p.head, '\\')) return primbind(s, p.args[0], p.args[2], p.args[1]);
  primdefinition(s, p, d);
}

void reduceprim(State& s) {
  stepcount++;
  check(knownfree(s.focus) == 0);
  check(knownarity(s.focus) == 0);
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

}  // namespace tarn

// The rules of the machine, one function each, in the order in which they are tried.
#include "tests/graph/lettermachine.h"

#include <vector>

#include "foundation/chars.h"
#include "graph/atoms.h"
#include "graph/definitions.h"
#include "graph/reduce.h"
#include "graph/substitute.h"
#include "tests/graph/terms.h"

namespace tarn {

static CellRef state(Cell* c, Cell* f) { return cellpair(c, f); }

// B k f
static CellRef frame(Cell* k, Cell* f) { return cellapply2(leafcstr("B"), k, f); }

static CellRef give(Cell* b) { return cellapply1(leafcstr("T"), b); }

static CellRef marked(const char* mark, const Str& text) { return leafstr(Str(mark) + text); }

static CellRef put(Cell* body, Cell* arg, Cell* v) {
  CellRef out;
  substitute(out, cellcopy(body), cellcopy(arg), cellbyte(v));
  return out;
}

static CellRef primdefinition(Cell* c, Definition* d, const std::vector<CellRef>& args) {
  if (d->term.null()) return state(leafcstr("I"), marked("]", d->name));
  CellRef body = d->term;
  std::vector<CellRef> letters;
  for (; cellform(body) == 'u'; body = cellright(body)) {
    letters.push_back(cellright(cellleft(body)));
  }
  check(letters.size() == args.size());
  for (size_t i = args.size(); i > 0; i--) body = put(body, args[i - 1], letters[i - 1]);
  if (!letters.empty() || d->alive) return state(c, body);
  if (cellbyte(body) == ')') return state(leafcstr("I"), marked(")", d->name));
  if (cellnormal(body)) return state(c, body);
  defset(d, leafcstr(")"));
  return state(c, cellpair(marked(")", d->name), body));
}

static CellRef primmemo(Cell* c, Cell* m, Cell* a0) {
  CellRef value = cellcopy(a0);
  if (cellform(a0) == 'u') value = cellapply2(leafcstr("B"), leafcstr("I"), a0);
  defset(celltext(m).substr(1), value);
  return state(c, value);
}

static CellRef primbuiltin(Cell* c, Cell* f, BuiltinFn fn) {
  CellRef r;
  fn(r, cellcopy(f));
  bool raised = cellispair(r) && (cellbyte(leftlink(r)) == ')' || cellbyte(leftlink(r)) == ']');
  return raised ? state(leafcstr("I"), r) : state(c, r);
}

static AtomFn atomof(Cell* h) {
  uint8_t first = cellbyte(h);
  if (isdigitbyte(first)) return atoms().integer;
  if (cellisdata(h)) return atoms().data;
  if (first == '(') return atoms().post;
  if (first == ' ') return atoms().real;
  return first == '\n' ? atoms().cray : nullptr;
}

static CellRef prim(Cell* c, Cell* f) {
  std::vector<CellRef> args;
  Cell* h = f;
  for (; !cellhead(h); h = leftlink(h)) args.insert(args.begin(), cellright(h));
  if (AtomFn fn = atomof(h)) return state(c, fn(h, args.at(0)));
  Definition* d = definitionof(celltext(h));
  if (d->builtin != nullptr) return primbuiltin(c, f, d->builtin->fn);
  if (leafisbyte(h, '{')) {
    if (cellnormal(args[1])) return state(c, put(args[2], args[1], args[0]));
    return state(frame(c, cellapply2(leafcstr("\\"), args[0], args[2])), args[1]);
  }
  if (leafisbyte(h, '\\')) return state(c, put(args[1], args[2], args[0]));
  if (cellbyte(h) == ')') return primmemo(c, h, args[0]);
  if (cellbyte(h) == ']') return state(leafcstr("I"), marked("]", celltext(args[0])));
  return primdefinition(c, d, args);
}

static bool lazy(Cell* f) {
  while (!cellhead(f)) f = leftlink(f);
  return islazybyte(cellbyte(f));
}

static CellRef partial(Cell* c, Cell* f, int n) {
  Cell* l = leftlink(f);
  Cell* b = rightlink(f);
  int found = 0;
  for (Cell* x = c; found < n && cellispair(x) && cellispair(rightlink(x)) &&
                    cellbyte(leftlink(rightlink(x))) == 'T';) {
    found++;
    x = rightlink(leftlink(x));
  }
  if (!lazy(f) || found < n) {
    return cellnormal(l) ? state(frame(c, l), b) : state(frame(c, give(b)), l);
  }
  CellRef k = cellcopy(c);
  CellRef full = cellcopy(f);
  for (; n > 0; n--) {
    full = cellpair(full, rightlink(rightlink(k)));
    k = cellright(cellleft(k));
  }
  return prim(k, full);
}

static CellRef step(Cell* t) {
  Cell* c = leftlink(t);
  Cell* f = rightlink(t);
  if (cellnormal(f)) return state(rightlink(leftlink(c)), cellpair(rightlink(c), f));
  int n = cellarity(f);
  if (n > 0) return partial(c, f, n);
  if (n < 0) return state(frame(c, give(rightlink(f))), leftlink(f));
  if (lazy(f) || !cellpending(f)) return prim(c, f);
  Cell* l = leftlink(f);
  Cell* b = rightlink(f);
  if (cellform(f) == 'i') {
    if (cellnormal(rightlink(l))) return prim(c, f);
    CellRef waiting = cellapply2(leafcstr("\\"), rightlink(leftlink(l)), b);
    return state(frame(c, waiting), rightlink(l));
  }
  return cellpending(l) ? state(frame(c, give(b)), l) : state(frame(c, l), b);
}

LetterRun letterreduce(CellRef term, int64_t limit) {
  bool was = finaliserswitch(true);
  LetterRun run = {false, 0, ""};
  CellRef t = state(leafcstr("I"), term);
  while (run.steps <= limit) {
    run.ended = cellbyte(leftlink(t)) == 'I' && cellnormal(rightlink(t));
    if (run.ended) break;
    t = step(t);
    run.steps++;
  }
  if (run.ended) run.result = shown(rightlink(t));
  finaliserswitch(was);
  return run;
}

}  // namespace tarn

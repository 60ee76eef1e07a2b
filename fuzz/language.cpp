// The checks on one program, and the making of programs.
#include "fuzz/language.h"

#include <cstring>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "frontend/brackets.h"
#include "frontend/driver.h"
#include "frontend/parser.h"
#include "frontend/printer.h"
#include "frontend/program.h"
#include "frontend/tidy.h"
#include "fuzz/told.h"
#include "graph/builtins.h"
#include "graph/definitions.h"
#include "graph/reduce.h"
#include "host/builtintable.h"
#include "values/atoms.h"

namespace tarn {

// --- The builtins --------------------------------------------------------------------------------

// What works on values and answers them.
static constexpr std::string_view harmless[] = {
    "buck", "cape", "cent", "cmpr", "cork", "cray", "dash", "diff", "gteq", "init", "leaf", "left",
    "less", "lisp", "lits", "load", "look", "lots", "mult", "over", "plus", "powa", "rank", "raws",
    "real", "rght", "road", "same", "tern", "todo", "trim", "type", "wave", "zits",
};

static bool isharmless(const char* name) {
  for (std::string_view h : harmless) {
    if (h == name) return true;
  }
  return false;
}

static CellRef& answernothing(CellRef& out, CellRef) { return out = leafbyte('Z'); }

// Calls the builtin itself, unless that would be the end. A text out of balance would be, sooner or
// later.
static CellRef& callguarded(CellRef& out, CellRef application) {
  std::vector<Cell*> args;
  Cell* head = application;
  for (; cellispair(head); head = leftlink(head)) args.insert(args.begin(), rightlink(head));
  const char* name = reinterpret_cast<const char*>(leafbytes(head));
  for (const BuiltinRow& row : builtinrows) {
    if (strcmp(row.name, name) != 0) continue;
    if (callends(name, args.data(), static_cast<int>(args.size()))) return answernothing(out, {});
    row.fn(out, std::move(application));
    return cellkind(out) == 'u' && isunbalanced(out) ? answernothing(out, {}) : out;
  }
  return answernothing(out, {});
}

// An array without slots makes one of as many as it is told.
static CellRef applyarray(Cell* head, CellRef x) {
  if (crayslots(head) == 0 && ishuge(x)) return leafbyte('Z');
  return atomrules.cray(head, std::move(x));
}

void fuzzinstall() {
  static AtomTable rules = atomrules;
  static BuiltinRow rows[builtincount];
  hostinstall();
  for (int i = 0; i < builtincount; i++) {
    rows[i] = builtinrows[i];
    rows[i].fn = isharmless(rows[i].name) ? callguarded : answernothing;
  }
  builtinuse(rows, builtincount);
  rules.cray = applyarray;
  atomsuse(rules);
  evaluate("cray", 0);  // what is made once for the process does not count as lost
}

// --- One program ---------------------------------------------------------------------------------

static constexpr int64_t moststeps = 2000;
static constexpr int64_t mostshown = 100000;

// The cells of a term as a tree, at most `mostshown`: a small graph can be an endless text.
static int64_t treesize(Cell* term, std::unordered_map<Cell*, int64_t>& known) {
  if (cellisleaf(term)) return 1;
  auto found = known.find(term);
  if (found != known.end()) return found->second;
  int64_t size = treesize(leftlink(term), known) + treesize(rightlink(term), known);
  return known[term] = size < mostshown ? size : mostshown;
}

bool isprintable(Cell* term) {
  std::unordered_map<Cell*, int64_t> known;
  return treesize(term, known) < mostshown;
}

static Str showsmall(Cell* term) {
  if (!isprintable(term)) return "(large)";
  Str shown = printcell(term);
  check(!shown.empty());
  return shown;
}

static Str run(const Str& text) {
  loadprelude();
  Report report = readprogram(text, 0);
  if (report.sound()) runcheck(report);
  return report.sound() ? showsmall(maindefinition()) : report.place + " " + report.message;
}

static void parse(const Str& text) {
  Report report;
  int64_t place = 0;
  bool balanced = bracketcheck(text, 0, report, place);
  check(balanced == report.message.empty());
  if (!balanced) return;
  Str tidied = tidytext(text);
  check(tidytext(tidied) == tidied);
  for (const Item& item : parseprogram(text).items) showsmall(item.value);
}

std::string fuzzprogram(const std::string& text) {
  int64_t before = cellcounts().alive;
  Str program = Str(text.data(), static_cast<int64_t>(text.size()));
  parse(program);
  reducelimit(reducesteps() + moststeps);
  Str shown = run(program);
  cleardefs();
  check(cellcounts().alive == before);
  return {shown.text(), static_cast<size_t>(shown.len())};
}

// --- Making programs -----------------------------------------------------------------------------

static constexpr std::string_view someatoms[] = {
    "a",    "b",    "c",    "x",    "foo",  "bar",  "zap",         "total", "0",       "1",
    "2",    "10",   "01",   "007",  "A",    "B",    "C",           "D",     "E",       "F",
    "G",    "H",    "I",    "J",    "K",    "L",    "M",           "N",     "O",       "P",
    "Q",    "R",    "S",    "T",    "U",    "V",    "W",           "X",     "Y",       "Z",
    "[ab]", "[]",   "[[]]", "[+]",  "look", "cork", "rank",        "cray",  "lots",    "lits",
    "load", "road", "todo", "type", "cape", "tern", "[1,foo\\2]", "[foo]", "[a[p]b]",
};
static constexpr std::string_view someoperators[] = {
    "+", "-", "*", "/", "<", ">", "=", "#", "?", ";",  "&", "|", "@", ".",
    ":", " ", " ", "",  "",  "!", "~", "$", "`", "\"", "'", "^", "%",
};

static std::string_view one(uint64_t n, const std::string_view* from, size_t count) {
  return from[n % count];
}

static std::string expression(uint64_t (*next)(), int depth) {
  std::string atom(one(next(), someatoms, std::size(someatoms)));
  if (depth == 0) return atom;
  std::string first = expression(next, depth - 1);
  switch (next() % 9) {
    case 0: return "(" + first + ")";
    case 1: return atom + "(" + first + ")";
    case 2: return atom + "(" + first + "," + expression(next, depth - 1) + ")";
    case 3: return "(" + atom + "\\" + first + ")";
    case 4: return atom + "{" + first + "}" + expression(next, depth - 1);
    case 5: return "(a b){" + first + "}" + expression(next, depth - 1);
    case 6: return atom;
    default:
      return first + std::string(one(next(), someoperators, std::size(someoperators))) +
             expression(next, depth - 1);
  }
}

static void spoil(std::string& text, uint64_t (*next)()) {
  static constexpr std::string_view bytes = "()[]{},\\`! \n}\t\x01\x80\xff";
  for (uint64_t n = next() % 4; n-- > 0 && !text.empty();) {
    size_t at = next() % text.size();
    char byte = next() % 2 == 0 ? bytes[next() % bytes.size()] : static_cast<char>(next());
    switch (next() % 3) {
      case 0: text[at] = byte; break;
      case 1: text.insert(at, 1, byte); break;
      case 2: text.erase(at, 1 + next() % 3); break;
    }
  }
}

std::string fuzztext(uint64_t (*next)()) {
  static constexpr std::string_view keys[] = {
      "foo", "bar", "zap", "foo()", "K", "[+]", "T", "Z", "a",
  };
  std::string text = expression(next, static_cast<int>(next() % 6));
  for (uint64_t n = next() % 4; n-- > 0;) {
    text += "," + std::string(one(next(), keys, std::size(keys))) + "\\";
    text += expression(next, static_cast<int>(next() % 5));
  }
  if (next() % 3 == 0) spoil(text, next);
  return text;
}

}  // namespace tarn

// Reading terms as the tests write them.
#include "tests/graph/terms.h"

#include <cstdlib>
#include <string>
#include <vector>

#include "graph/atoms.h"
#include "graph/builtins.h"
#include "graph/definitions.h"
#include "graph/reduce.h"

namespace tarn {

// --- Reading -------------------------------------------------------------------------------------

static CellRef readterm(const std::string& text, size_t& at);

static CellRef readatom(const std::string& text, size_t& at) {
  if (text[at] == '(') {
    CellRef inner = readterm(text, ++at);
    at++;
    return inner;
  }
  size_t end = at;
  int depth = 0;
  while (end < text.size()) {
    if (text[end] == '[') depth++;
    if (text[end] == ']') depth--;
    if (depth <= 0 && (text[end] == ' ' || text[end] == ')') && end > at) break;
    end++;
  }
  CellRef leaf = leafmade(text.data() + at, static_cast<int64_t>(end - at));
  at = end;
  return leaf;
}

static CellRef readterm(const std::string& text, size_t& at) {
  CellRef made;
  while (at < text.size() && text[at] != ')') {
    if (text[at] == ' ') {
      at++;
      continue;
    }
    CellRef next = readatom(text, at);
    made = made.null() ? std::move(next) : cellpairtake(std::move(made), std::move(next));
  }
  return made;
}

CellRef term(const std::string& text) {
  size_t at = 0;
  return readterm(text, at);
}

std::string shown(Cell* c) {
  if (cellisleaf(c)) {
    Str text = celltext(c);
    return std::string(text.text(), static_cast<size_t>(text.len()));
  }
  std::string r = shown(rightlink(c));
  if (cellispair(rightlink(c))) r = "(" + r + ")";
  return shown(leftlink(c)) + " " + r;
}

// --- Builtins of the tests -----------------------------------------------------------------------

std::string told;

static int64_t number(Cell* c) { return atoll(celltext(c).text()); }

static CellRef& answer(CellRef& out, CellRef made) {
  out = std::move(made);
  return out;
}

static CellRef& answernumber(CellRef& out, int64_t n) {
  return answer(out, n < 0 ? leafcstr("Z") : leafdigits(static_cast<uint64_t>(n)));
}

static CellRef& doplus(CellRef& out, CellRef f) {
  return answernumber(out, number(rightlink(leftlink(f))) + number(rightlink(f)));
}

static CellRef& dodash(CellRef& out, CellRef f) {
  return answernumber(out, number(rightlink(leftlink(f))) - number(rightlink(f)));
}

static CellRef& doless(CellRef& out, CellRef f) {
  return answer(out, leafcstr(number(rightlink(leftlink(f))) < number(rightlink(f)) ? "K" : "H"));
}

static CellRef& dosame(CellRef& out, CellRef f) {
  return answer(out, leafcstr(number(rightlink(leftlink(f))) == number(rightlink(f)) ? "K" : "H"));
}

static CellRef& dotodo(CellRef& out, CellRef f) {
  Cell* ab = leftlink(f);
  return answer(out, cellapply2(rightlink(f), rightlink(leftlink(ab)), rightlink(ab)));
}

static CellRef& dotell(CellRef& out, CellRef f) {
  told += shown(rightlink(f)) + " ";
  return answer(out, cellright(f));
}

// Answers whether nobody but the application holds the argument.
static CellRef& doalone(CellRef& out, CellRef f) {
  bool alone = cellrefs(f) == 1 && cellrefs(rightlink(f)) == 1;
  return answer(out, leafcstr(alone ? "K" : "H"));
}

static CellRef& doraise(CellRef& out, CellRef f) {
  return answer(out, cellpair(leafcstr("]"), rightlink(f)));
}

static CellRef& dofour(CellRef& out, CellRef f) {
  check(cellisleaf(f));
  return answer(out, leafcstr("4"));
}

static CellRef& dofail(CellRef& out, CellRef) { return answer(out, leafcstr("Z")); }

// The last ones are there because the operators name them.
static const BuiltinRow rows[] = {
    {"alone", 1, doalone},
    {"dash",  2, dodash},
    {"four",  0, dofour},
    {"less",  2, doless},
    {"plus",  2, doplus},
    {"raise", 1, doraise},
    {"same",  2, dosame},
    {"tell",  1, dotell},
    {"todo",  3, dotodo},
    {"buck",  1, dofail},
    {"cent",  2, dofail},
    {"diff",  2, dofail},
    {"gteq",  2, dofail},
    {"mult",  2, dofail},
    {"over",  2, dofail},
    {"powa",  2, dofail},
    {"wave",  1, dofail},
};

// --- Atoms of the tests: each answers its name applied to the argument ---------------------------

static CellRef named(const char* name, CellRef a0) {
  return cellpairtake(cellpair(leafcstr("V"), leafcstr(name)), std::move(a0));
}
static CellRef onepost(Cell*, CellRef a0) { return named("11", std::move(a0)); }
static CellRef oneinteger(Cell*, CellRef a0) { return named("12", std::move(a0)); }
static CellRef onedata(Cell*, CellRef a0) { return named("13", std::move(a0)); }
static CellRef onereal(Cell*, CellRef a0) { return named("14", std::move(a0)); }
static CellRef onecray(Cell*, CellRef a0) { return named("15", std::move(a0)); }

// --- Definitions ---------------------------------------------------------------------------------

struct TestDefinition {
  const char* name;
  const char* term;
};

static const TestDefinition prelude[] = {
    {"B", "\\ a (\\ b (\\ c (a (b c))))"},
    {"C", "\\ a (\\ b (\\ c (a c b)))"},
    {"H", "\\ a I"},
    {"I", "\\ a a"},
    {"J", "\\ a (\\ b (\\ c (V a b)))"},
    {"K", "\\ a (\\ b a)"},
    {"M", "\\ a (a a)"},
    {"S", "\\ a (\\ b (\\ c (a c (b c))))"},
    {"T", "\\ a (\\ b (b a))"},
    {"V", "\\ a (\\ b (\\ c (c a b)))"},
    {"W", "\\ a (\\ b (a b b))"},
    {"Y", "\\ a (\\ b (a (Y a) b))"},
    {"Z", "\\ a Z"},
    {"+", "plus"},
    {"-", "dash"},
    {"<", "less"},
    {"=", "same"},
    {"?", "I"},
    {";", "I"},
    {"&", "\\ q (\\ r (q r H))"},
    {"|", "\\ q (\\ r (q K r))"},
    {"\\", "\\ a (\\ b (\\ c Z))"},
    {"{", "\\ a (\\ b (\\ c Z))"},
    {"`", "\\ a Z"},
};

void define(const char* name, const std::string& text) { defset(name, term(text)); }

static void definestub(const BuiltinRow& row) {
  CellRef stub = leafcstr("Z");
  for (uint32_t i = row.arity; i > 0; i--) {
    CellRef letter = leafbyte(static_cast<uint8_t>('a' + i - 1));
    stub = cellapply2(leafbyte('\\'), letter, stub);
  }
  defset(row.name, stub);
}

void loadtestdefs() {
  defclear();
  aliveclear();
  told.clear();
  builtinuse(rows, static_cast<int>(sizeof rows / sizeof rows[0]));
  atomsuse({oneinteger, onedata, onepost, onereal, onecray});
  for (const TestDefinition& d : prelude) define(d.name, d.term);
  for (const BuiltinRow& row : rows) definestub(row);
}

std::string reduced(const std::string& text) {
  CellRef result;
  reduceterm(result, term(text));
  return shown(result);
}

}  // namespace tarn

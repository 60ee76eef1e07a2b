// Items and what they define, line marks, the prelude and the builtins' entries.
#include "frontend/program.h"

#include <utility>

#include "foundation/chars.h"
#include "foundation/place.h"
#include "frontend/brackets.h"
#include "frontend/parser.h"
#include "frontend/prelude.h"
#include "frontend/tidy.h"
#include "graph/builtins.h"
#include "graph/definitions.h"

namespace tarn {

// The lines of all marks outside strings, rising, a line once for each of its marks.
static std::vector<uint64_t> marklines(const Str& text) {
  std::vector<uint64_t> lines;
  uint64_t line = 1;
  int64_t depth = 0;
  for (uint8_t c : text) {
    line += c == '\n';
    depth += c == '[' ? 1 : c == ']' ? -1 : 0;
    if (c == '`' && depth == 0) lines.push_back(line);
  }
  return lines;
}

// Gives the marks of a term their lines, from `next` on; the first line not used yet is the answer.
static const uint64_t* handoutlines(Cell* term, const uint64_t* next) {
  for (; cellispair(term); term = rightlink(term)) next = handoutlines(leftlink(term), next);
  if (cellbyte(term) == '`') setfield(term, *next++);
  return next;
}

// The two halves of `\ key value`, lent; both null for any other term.
struct Halves {
  Cell* key;
  Cell* value;
};

static Halves splititem(Cell* term) {
  if (cellisleaf(term) || cellisleaf(leftlink(term))) return {nullptr, nullptr};
  if (!leafisbyte(leftlink(leftlink(term)), '\\')) return {nullptr, nullptr};
  return {rightlink(leftlink(term)), rightlink(term)};
}

// The name before the "()" of a live key.
static Str livename(Cell* key) {
  return leafisbyte(rightlink(key), '}') ? celltext(leftlink(key)) : Str();
}

Str itemname(Cell* term) {
  auto [key, value] = splititem(term);
  if (key == nullptr) return Str();
  Str name = cellispair(key) ? livename(key) : celltext(key);
  return isdefinable(name) ? defname(name) : Str();
}

static void additem(std::vector<Item>& items, Cell* term, int64_t place) {
  Str name = itemname(term);
  if (name.empty()) return;
  auto [key, value] = splititem(term);
  bool live = cellispair(key);
  CellRef stored = live ? cellpair(leafbyte('I'), value) : cellcopy(value);
  items.push_back({name, std::move(stored), live, place});
}

Program parseprogram(const Str& text) {
  std::vector<uint64_t> lines = marklines(text);
  const uint64_t* next = lines.data();
  Str tidied = tidytext(text);
  Program program;
  int64_t from = 0;
  std::vector<int64_t> cuts = scantop(tidied, ",");
  cuts.push_back(tidied.len());
  for (int64_t cut : cuts) {
    CellRef term = parseterm(tidied.substr(from, cut - from));
    next = handoutlines(term, next);
    if (from == 0) {
      program.main = std::move(term);
    } else {
      additem(program.items, term, from);
    }
    from = cut + 1;
  }
  check(next == lines.data() + lines.size());
  return program;
}

static void define(const Item& item) {
  defset(item.key, item.value);
  if (item.live) {
    aliveadd(item.key);
  } else {
    aliveremove(item.key);
  }
}

void loadprelude() {
  defclear();
  aliveclear();
  preludecopy().clear();
  Str text = Str(prelude.data(), static_cast<int64_t>(prelude.size()));
  for (const Item& item : parseprogram(text).items) define(item);
  for (const auto& [name, definition] : globaldefs()) preludecopy()[name] = definition->term;
}

// Each builtin is defined as so many abstractions over Z, which give the name its arity. The body
// is never entered.
static void definebuiltins() {
  constexpr uint32_t most = 7;  // arguments of a builtin
  CellRef stubs[most + 1] = {leafbyte('Z')};
  for (uint32_t n = 1; n <= most; n++) {
    stubs[n] = leafbyte('Z');
    for (uint32_t i = n; i-- > 0;) {
      CellRef binder = cellpairtake(leafbyte('\\'), leafbyte(static_cast<uint8_t>('a' + i)));
      stubs[n] = cellpairtake(std::move(binder), std::move(stubs[n]));
    }
  }
  for (const auto& [name, entry] : builtintable()) {
    check(entry.arity <= most);
    defset(name, stubs[entry.arity]);
  }
}

Report refuseletter(const Item& item, int64_t base) {
  Report report;
  if (!isvariable(item.key)) return report;
  report.message =
      "Single lowercase letters (" + item.key + ") cannot be defined as global variables.";
  report.word = "lower";
  report.place = placename(base + item.place);
  report.name = shortname(item.key);
  return report;
}

static Report refusebuiltin(const Item& item, int64_t base) {
  Report report;
  bool binder = item.key == "\\" || item.key == "{";
  if (!binder && builtinfind(item.key) == nullptr) return report;
  report.message = "Built in function [" + item.key + "] cannot be re-defined.";
  report.word = "built";
  report.place = placename(base + item.place);
  report.name = shortname(item.key);
  return report;
}

Report readprogram(const Str& text, int64_t base) {
  Report report;
  int64_t place = 0;
  if (!bracketcheck(text, base, report, place)) return report;
  definebuiltins();
  Program program = parseprogram(text);
  defset("", program.main);
  for (const Item& item : program.items) {
    report = refuseletter(item, base);
    if (report.sound()) report = refusebuiltin(item, base);
    if (!report.sound()) return report;
    define(item);
  }
  return report;
}

}  // namespace tarn

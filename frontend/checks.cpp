// The ten steps from parsed definitions to runnable ones, a function each.
#include "frontend/checks.h"

#include <utility>
#include <vector>

#include "frontend/namelist.h"
#include "frontend/passes.h"
#include "frontend/printer.h"
#include "frontend/share.h"
#include "frontend/typetable.h"
#include "graph/builtins.h"
#include "graph/definitions.h"

namespace tarn {

// What messages call a definition.
static Str displayname(const Str& key) { return key.empty() ? Str("TOP") : key; }

// The tail of a message about a definition.
static Str whose(const char* link, const Str& key) {
  return key.empty() ? Str(".") : link + key + ".";
}

static Report fault(const char* word, const Str& message, const Str& place, const Str& name) {
  return {message, word, place, name, ""};
}

// --- Faults of one definition --------------------------------------------------------------------

Report checkfunky(const Str& key, Cell* term) {
  Cell* found = findfunky(term);
  if (found == nullptr) return {};
  Str text = printcell(found);
  return fault("funky", "Funky key in expression " + text + whose(" in function ", key),
               shortname(key), shortcode(text));
}

static std::set<uint8_t> letters(Cell* list) {
  std::set<uint8_t> found;
  for (; cellispair(list); list = rightlink(list)) found.insert(cellbyte(leftlink(list)));
  return found;
}

Report namelocals(const Str& key, CellRef& term) {
  constexpr int64_t most = 26;  // letters
  CellRef longnames = binders(term, false);
  CellRef shortnames = binders(term, true);
  if (listsize(longnames) + listsize(shortnames) > most) {
    return fault("place", "Place error" + whose(" in function ", key), shortname(key), "");
  }
  std::set<uint8_t> taken = letters(shortnames);
  uint8_t letter = 'a';
  for (Cell* list = longnames; cellispair(list); list = rightlink(list)) {
    while (taken.count(letter) != 0) letter++;
    term = renamebinder(term, celltext(leftlink(list)), letter++);
  }
  return {};
}

static int64_t abstractions(Cell* term) {
  int64_t n = 0;
  for (; cellform(term) == 'u'; term = rightlink(term)) n++;
  return n;
}

Report checkarity(const Str& key, Cell* term) {
  if (abstractions(term) <= definitionparams) return {};
  // On purpose: the main expression goes by its empty name here, and the message has two blanks.
  return fault("arity", "Arity of function " + key + " may not exceed ten.", shortname(key), "");
}

Report checkunbound(const Str& key, Cell* term) {
  uint32_t open = cellfree(term);
  if (open == 0) return {};
  uint8_t letter = 'a';
  for (; (open & 1) == 0; open >>= 1) letter++;
  return fault("local",
               "Local variable " + strbyte(letter) + " unbound" + whose(" in function ", key),
               shorttext(key), "");
}

// --- References between definitions --------------------------------------------------------------

static References references() {
  References found;
  for (const auto& [key, definition] : globaldefs()) found[key] = freenames(definition->term);
  return found;
}

// Walks from the main expression, always on to the smallest of the names that wait. Where several
// definitions refer to a name, the message tells the one that the walk came to last.
Report checkreferences(const References& uses, const char* what) {
  std::map<Str, Str> waiting = {{"", "nowhere"}};  // each with the name that refers to it
  std::set<Str> done;
  while (!waiting.empty()) {
    auto [name, referrer] = *waiting.begin();
    waiting.erase(waiting.begin());
    done.insert(name);
    auto found = uses.find(name);
    if (found == uses.end() && defterm(name) != nullptr) continue;
    if (found == uses.end()) {
      return fault("alive",
                   "Alive function " + referrer + " references undefined " + what + name + ".",
                   shortname(referrer), shortname(name));
    }
    for (Cell* list = found->second; cellispair(list); list = rightlink(list)) {
      Str used = celltext(leftlink(list));
      if (done.count(used) == 0) waiting[used] = displayname(name);
    }
  }
  return {};
}

// A builtin is never dead, whatever its entry refers to: the body of that is never entered.
std::set<Str> deaddefinitions(const References& uses) {
  std::multimap<Str, Str> users;
  std::vector<Str> found;
  for (const auto& [key, names] : uses) {
    if (builtinfind(key) != nullptr) continue;
    for (Cell* list = names; cellispair(list); list = rightlink(list)) {
      Str used = celltext(leftlink(list));
      users.emplace(used, key);
      if (uses.count(used) == 0 && defterm(used) == nullptr) found.push_back(key);
    }
  }
  std::set<Str> dead;
  while (!found.empty()) {
    Str key = found.back();
    found.pop_back();
    if (!dead.insert(key).second) continue;
    auto [from, to] = users.equal_range(key);
    for (auto user = from; user != to; ++user) found.push_back(user->second);
  }
  return dead;
}

// What is broken and out of reach vanishes without a word; a name of the prelude falls back to it.
static void dropdead(const References& uses) {
  for (const Str& key : deaddefinitions(uses)) {
    check(!key.empty());
    auto kept = preludecopy().find(key);
    if (kept != preludecopy().end()) {
      defset(key, kept->second);
    } else {
      deferase(key);
    }
    aliveremove(key);
  }
  preludecopy().clear();
}

// --- The whole program ---------------------------------------------------------------------------

static void eachterm(CellRef (*pass)(const Str& key, Cell* term)) {
  for (const auto& [key, definition] : globaldefs()) {
    defset(definition, pass(key, definition->term));
  }
}

static Report firstfault(Report (*checkone)(const Str& key, Cell* term)) {
  for (const auto& [key, definition] : globaldefs()) {
    Report report = checkone(key, definition->term);
    if (!report.sound()) return report;
  }
  return {};
}

static Report entertypes() {
  defset("_", leafstr(typetable()));
  return {};
}

static Report takepatterns() {
  eachterm([](const Str&, Cell* term) { return patternpass(term); });
  return {};
}

static Report checkkeys() { return firstfault(checkfunky); }

static Report checknames() {
  References uses = references();
  Report report = checkreferences(uses, "");
  if (report.sound()) dropdead(uses);
  return report;
}

static Report nameall() {
  for (const auto& [key, definition] : globaldefs()) {
    CellRef term = definition->term;
    Report report = namelocals(key, term);
    if (!report.sound()) return report;
    defset(definition, std::move(term));
  }
  return {};
}

static Report checkarities() { return firstfault(checkarity); }

static Report takemarks() {
  eachterm(markpass);
  return {};
}

static Report shareall() {
  shareclear();
  eachterm([](const Str&, Cell* term) { return sharepass(term); });
  sharetrim();
  return {};
}

static Report checkletters() { return firstfault(checkunbound); }

static Report annotateall() {
  for (const auto& [key, definition] : globaldefs()) cellannotate(definition->term);
  return {};
}

// The order matters: nothing may be annotated before all names are known to be defined.
static constexpr Report (*steps[])() = {
    entertypes, takepatterns, checkkeys, checknames,   nameall,
    checkarities, takemarks,  shareall,  checkletters, annotateall,
};

void checkprogram(Report& report) {
  for (auto step : steps) {
    report = step();
    if (!report.sound()) return;
  }
}

}  // namespace tarn

// The steps of compiling at run time, in the order of those for a whole program.
#include "frontend/load.h"

#include <map>
#include <set>
#include <utility>

#include "foundation/place.h"
#include "frontend/brackets.h"
#include "frontend/checks.h"
#include "frontend/driver.h"
#include "frontend/passes.h"
#include "frontend/program.h"
#include "frontend/report.h"
#include "frontend/share.h"
#include "frontend/tidy.h"
#include "graph/definitions.h"
#include "graph/reduce.h"

namespace tarn {

namespace {

// A text on its way: what it defines itself, the main expression under "".
struct Loading {
  std::map<Str, CellRef> terms;
  std::set<Str> live;  // of the names in terms
};

// --- From the text to definitions of its own -----------------------------------------------------

Report refusebinder(const Item& item) {
  if (item.key != "\\" && item.key != "{") return {};
  return {"Built in function " + item.key + " cannot be re-defined.", "built",
          placename(item.place), shortname(item.key), ""};
}

Report read(const Str& text, Loading& loading) {
  Program program = parseprogram(text);
  loading.terms[""] = program.main;
  for (const Item& item : program.items) {
    Report report = refuseletter(item, 0);
    if (report.sound()) report = refusebinder(item);
    if (!report.sound()) return report;
    loading.terms[item.key] = item.value;
    if (item.live) {
      loading.live.insert(item.key);
    } else {
      loading.live.erase(item.key);
    }
  }
  return {};
}

Report checknew(const Loading& loading) {
  for (const auto& [key, term] : loading.terms) {
    if (key.empty() || defterm(key) == nullptr) continue;
    return {"Attempt to redefine function " + key + " using the road function.", "roads",
            shortname(key), "", ""};
  }
  return {};
}

Report checkkeys(Loading& loading) {
  for (auto& [key, term] : loading.terms) term = patternpass(term);
  for (auto& [key, term] : loading.terms) {
    Report report = checkfunky(key, term);
    if (!report.sound()) return report;
  }
  return {};
}

Report checknames(Loading& loading) {
  References uses;
  for (const auto& [key, term] : loading.terms) uses[key] = freenames(term);
  Report report = checkreferences(uses, "function ");
  if (!report.sound()) return report;
  for (const Str& dead : deaddefinitions(uses)) loading.terms.erase(dead);
  return {};
}

Report checkshapes(Loading& loading) {
  for (auto& [key, term] : loading.terms) {
    Report report = namelocals(key, term);
    if (!report.sound()) return report;
  }
  for (auto& [key, term] : loading.terms) {
    Report report = checkarity(key, term);
    if (!report.sound()) return report;
  }
  return {};
}

// --- Into the definitions of the run -------------------------------------------------------------

// Writes what the passes made of the terms; the main expression is no definition of the run.
void merge(const Loading& loading) {
  for (const auto& [key, term] : loading.terms) {
    if (!key.empty()) defset(key, term);
  }
}

void mergelive(const Loading& loading) {
  for (const auto& [key, term] : loading.terms) {
    if (loading.live.count(key) != 0) {
      aliveadd(key);
    } else {
      aliveremove(key);
    }
  }
}

// On purpose: the names are among the definitions of the run by now, and stay there. Those whose
// terms cannot run become Z, and fail when they are used.
Report checkletters(Loading& loading) {
  Report first;
  for (auto& [key, term] : loading.terms) {
    Report report = checkunbound(key, term);
    if (report.sound()) continue;
    if (first.sound()) first = report;
    term = leafbyte('Z');
  }
  return first;
}

// The names must be in before the passes annotate anything that uses them; and marks must be gone
// before terms are shared, since all marks look alike.
Report install(Loading& loading) {
  merge(loading);
  mergelive(loading);
  for (auto& [key, term] : loading.terms) term = markpass(key, term);
  Report report = checkletters(loading);
  for (auto& [key, term] : loading.terms) term = sharepass(term);
  for (auto& [key, term] : loading.terms) unsharepass(term);
  merge(loading);
  return report;
}

// --- The whole -----------------------------------------------------------------------------------

Report compile(const Str& text, CellRef& main) {
  Report report;
  int64_t place = 0;
  if (!bracketcheck(text, 0, report, place)) return report;
  Loading loading;
  constexpr Report (*steps[])(Loading&) = {
      [](Loading& l) { return checknew(l); }, checkkeys, checknames, checkshapes, install,
  };
  report = read(text, loading);
  for (auto step : steps) {
    if (report.sound()) report = step(loading);
  }
  if (report.sound()) main = loading.terms[""];  // else it dies here, while finalisers are off
  return report;
}

}  // namespace

static Report compileonly(const Str& text, CellRef& main) {
  bool finalisers = finaliserswitch(false);
  Report report = compile(text, main);
  finaliserswitch(finalisers);
  return report;
}

static CellRef valueof(CellRef main) {
  CellRef value;
  reduceterm(value, std::move(main));
  return value;
}

CellRef loadtext(const Str& text) {
  CellRef main;
  return compileonly(text, main).sound() ? valueof(std::move(main)) : leafbyte('Z');
}

// A text with unmatched brackets cannot be tidied, so it is not shown.
CellRef roadtext(const Str& text) {
  CellRef main;
  Report report = compileonly(text, main);
  if (report.sound()) return valueof(std::move(main));
  report.context = report.word == "match" ? Str("yes") : shorttext(tidytext(text));
  return reportvalue(report);
}

}  // namespace tarn

// The histories: entering opers, finding them, and walking back and forth through the states of the
// text.
#include "editor/history.h"

#include <vector>

#include "editor/edits.h"
#include "editor/state.h"
#include "foundation/diag.h"

namespace tarn {

// Where the current history was found last.
static Str foundname;
static std::vector<oper>* foundhistory = nullptr;

static std::vector<oper>& currenthistory() {
  if (foundhistory != nullptr && foundname.same(currentname)) return *foundhistory;
  auto found = opers.find(currentname);
  check(found != opers.end());
  foundname = currentname;
  foundhistory = &found->second;
  return *foundhistory;
}

// --- The life of a history -----------------------------------------------------------------------

sheet openrecord(const Str& name) {
  check(!sheets.contains(name));
  check(!opers.contains(name));
  opers[name].push_back(opermake(opswapped, 0, Str()));
  return sheetnew(Str());
}

void closefile(const Str& name) {
  sheetclose(name);
  opers.erase(name);
  foundhistory = nullptr;
}

bool forgetall() {
  bool any = false;
  for (auto& [name, history] : opers) {
    any = any || history.size() > 1;
    history.erase(history.begin() + 1, history.end());
  }
  return any;
}

// --- Entering and finding ------------------------------------------------------------------------

void enteroper(oper made) {
  std::vector<oper>& history = currenthistory();
  opersetv(made, history.size() == 1 ? 1 : operv(history.back()) + 2);
  history.push_back(std::move(made));
}

oper& firstoper() { return currenthistory().front(); }
oper& lastoper() { return currenthistory().back(); }

oper& findoper(int64_t version) {
  std::vector<oper>& history = currenthistory();
  check(version >= 0);
  size_t i = static_cast<size_t>(version + 1) / 2;
  check(i < history.size() && operv(history[i]) == version);
  return history[i];
}

// --- Doing and reversing -------------------------------------------------------------------------

// The version that a marker undoes. The t of the marker that begins a chain has been raised by
// those behind it, so that its own version is then the smaller of the two.
static int64_t markertarget(const oper& marker) {
  int64_t v = operv(marker);
  int64_t head = opert(marker) < v ? opert(marker) : v;
  return 2 * (head - 1) - v;
}

void edittodo(int64_t version) {
  const oper& o = findoper(version);
  sheet& s = currentsheet();
  switch (operw(o)) {
    case opmarker: return editundo(markertarget(o));
    case opswapped: return todoswapped(s, o);
    case opran: return todoran(s, o);
    case opsorted: return todosorted(s, o);
    case opcut: return todocut(s, o);
    case oppasted: return todopasted(s, o);
    case optyped: return todotyped(s, o);
    case opdented: return tododented(s, o);
    default: die("Kinda bad type in edittodo last!");
  }
}

void editundo(int64_t version) {
  const oper& o = findoper(version);
  sheet& s = currentsheet();
  switch (operw(o)) {
    case opmarker: return edittodo(markertarget(o));
    case opswapped: return undoswapped(s, o);
    case opran: return undoran(s, o);
    case opsorted: return undosorted(s, o);
    case opcut: return undocut(s, o);
    case oppasted: return undopasted(s, o);
    case optyped: return undotyped(s, o);
    case opdented: return undodented(s, o);
    default: die("Kinda bad type in editundo!");
  }
}

// --- Undo and redo -------------------------------------------------------------------------------

int64_t undodepth() {
  const oper& last = lastoper();
  if (&last == &firstoper()) return 0;
  if (operw(last) != opmarker) return 1;
  int64_t v = operv(last);
  int64_t below = (opert(last) < v ? opert(last) : v) - 1;
  return below / 2 - (v - below + 1) / 2;
}

bool editback() {
  if (undodepth() == 0) return false;
  const oper top = lastoper();
  enteroper(opermake(opmarker, 0, Str()));
  oper& marker = lastoper();
  int64_t v = operv(marker);
  if (operw(top) == opmarker) {
    int64_t head = opert(top) < operv(top) ? opert(top) : operv(top);
    opersett(marker, head);
    oper& first = findoper(head);
    opersett(first, opert(first) + 2);
  } else {
    opersett(marker, v);
  }
  edittodo(v);
  return true;
}

bool editredo() {
  const oper& last = lastoper();
  if (operw(last) != opmarker) return false;
  editundo(operv(last));
  currenthistory().pop_back();
  return true;
}

}  // namespace tarn

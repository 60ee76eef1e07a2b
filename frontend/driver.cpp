// The order of one evaluation, and what becomes of failures.
#include "frontend/driver.h"

#include <utility>

#include "frontend/checks.h"
#include "frontend/printer.h"
#include "frontend/program.h"
#include "frontend/share.h"
#include "graph/definitions.h"
#include "graph/reduce.h"
#include "graph/tern.h"

namespace tarn {

static Report cyclereport(Cell* value) {
  Str name = celltext(value).substr(1);
  check(!name.empty());
  Report report;
  report.message = "Cycle detected on function " + name + ".";
  report.word = "cycle";
  report.place = shorttext(name);
  return report;
}

static bool israised(Cell* value) {
  return cellispair(value) && cellbyte(leftlink(value)) == ']';
}

CellRef reportvalue(const Report& report) {
  return cellpairtake(leafbyte(']'), leafstr(reporttext(report)));
}

// The name "_" is for the main expression here; from the checks on it is the table of types.
static void choosemain() {
  Cell* chosen = defterm("_");
  if (chosen != nullptr) defset("", cellcopy(chosen));
}

void runcheck(Report& report) {
  choosemain();
  checkprogram(report);
  if (!report.sound()) return;
  CellRef value;
  reduceterm(value, maindefinition());
  if (cellbyte(value) == ')') {
    report = cyclereport(value);
  } else if (israised(value)) {
    report = reportparse(celltext(rightlink(value)));
  } else {
    defset("", std::move(value));
  }
}

CellRef maindefinition() {
  Cell* term = defterm("");
  check(term != nullptr);
  return cellcopy(term);
}

void cleardefs() {
  bool finalisers = finaliserswitch(false);
  defclear();
  aliveclear();
  preludecopy().clear();
  shareclear();
  ternclear();
  finaliserswitch(finalisers);
}

// The run itself; what it leaves behind is cleared by the caller.
static Evaluation run(const Str& text, int64_t base) {
  loadprelude();
  Report report = readprogram(text, base);
  if (report.sound()) runcheck(report);
  if (report.sound()) return {true, printcell(maindefinition()), ""};
  return {false, report.message, report.place};
}

Evaluation evaluate(const Str& text, int64_t base) {
  Evaluation evaluation = run(text, base);
  cleardefs();
  return evaluation;
}

}  // namespace tarn

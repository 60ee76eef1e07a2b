// Bytes as a row of calls of the builtins, with arguments by their signatures and with the answers
// of earlier calls.
//
// Each answer must be a closed term that can be shown, no cell may be lost, and what somebody else
// holds a reference to must be the same after a call, but for the calls whose purpose is to write
// through.
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "frontend/checks.h"
#include "frontend/driver.h"
#include "frontend/printer.h"
#include "frontend/program.h"
#include "fuzz/arguments.h"
#include "fuzz/directory.h"
#include "fuzz/language.h"
#include "fuzz/signatures.h"
#include "fuzz/target.h"
#include "fuzz/told.h"
#include "fuzz/values.h"
#include "graph/atoms.h"
#include "graph/reduce.h"
#include "graph/tern.h"
#include "host/builtintable.h"
#include "values/coerce.h"

namespace tarn {

namespace {

constexpr int mostcalls = 24;
constexpr int64_t moststeps = 2000;  // of what load and road evaluate
constexpr int64_t mostkept = 2000;   // bytes of an answer, shown

// --- Answers -------------------------------------------------------------------------------------

std::string shown(Cell* term) {
  Str text = printcell(term);
  return {text.text(), static_cast<size_t>(text.len())};
}

void keepvalue(Things& t, CellRef answer) {
  cellannotate(answer);
  check(cellfree(answer) == 0);
  if (!isprintable(answer)) return;
  std::string look = shown(answer);
  size_t length = look.size();
  check(length > 0);
  if (!t.wild) t.told += look + "\n";
  if (length <= mostkept && cellnormal(answer)) t.values.push_back(std::move(answer));
}

void keepdescriptor(int descriptor) {
  if (descriptor >= 0) close(descriptor);
}

void keepstream(Things& t, void* stream) {
  if (!t.descriptors.empty()) {
    if (stream == nullptr) close(t.descriptors.back());
    t.descriptors.pop_back();
  }
  if (stream != nullptr) t.streams.push_back(static_cast<FILE*>(stream));
}

void keepanswer(Things& t, char letter, CellRef answer) {
  if (letter == 'v') return keepvalue(t, std::move(answer));
  bool number = cellkind(answer) == 'i';
  void* p = number ? reinterpret_cast<void*>(hintsmall(answer)) : nullptr;
  if (letter == 'f') return keepstream(t, p);
  if (letter == 'o' && number) return keepdescriptor(static_cast<int>(hintsmall(answer)));
  if (p == nullptr) return;
  if (letter == 'm') t.blocks.push_back(p);
  if (letter == 'y') t.directories.push_back(p);
  if (letter == 'l') t.leaked.push_back(static_cast<Cell*>(p));
  if (letter == 't') t.fields = p;
}

// --- Calls ---------------------------------------------------------------------------------------

// The arguments as they look, held by somebody else while the call goes on.
struct Held {
  std::vector<CellRef> arguments;
  std::vector<std::string> looks;
};

Held hold(const std::vector<CellRef>& arguments) {
  Held held;
  for (const CellRef& x : arguments) {
    if (!isprintable(x)) continue;
    held.arguments.push_back(x);
    held.looks.push_back(shown(x));
  }
  return held;
}

void checkheld(const Held& held) {
  for (size_t i = 0; i < held.arguments.size(); i++) {
    check(shown(held.arguments[i]) == held.looks[i]);
  }
}

CellRef application(const char* builtin, std::vector<CellRef>& arguments) {
  CellRef f = nameleaf(builtin);
  for (CellRef& x : arguments) f = cellpairtake(std::move(f), std::move(x));
  return f;
}

bool isleftout(const char* builtin, const std::vector<CellRef>& arguments) {
  std::vector<Cell*> lent(arguments.begin(), arguments.end());
  return callends(builtin, lent.data(), static_cast<int>(lent.size()));
}

bool holdsslots(const Cell* x) {
  if (cellispair(x)) return holdsslots(leftlink(x)) || holdsslots(rightlink(x));
  return cellbyte(x) == '\n' && crayslots(x) != 0;
}

// Whether the answer is not a matter of the values alone. The order of terms tells arrays apart by
// the addresses in their slots.
bool iswild(const Signature& row, const Cell* application) {
  if (row.answer != 'v') return false;
  if (strspn(row.arguments, "vg") != strlen(row.arguments)) return true;
  std::string_view name = row.name;
  return (name == "cmpr" || name == "less" || name == "gteq") && holdsslots(application);
}

void callbuiltin(Things& t, const Signature& row, const BuiltinRow& builtin) {
  std::vector<CellRef> arguments;
  for (const char* letter = row.arguments; *letter != 0; letter++) {
    arguments.push_back(argument(t, *letter));
  }
  if (isleftout(row.name, arguments)) return;
  Held held;
  bool writesthrough = strchr(row.arguments, 'b') != nullptr;
  if (!writesthrough && seldom(t.source, 2)) held = hold(arguments);
  CellRef f = application(row.name, arguments);
  cellannotate(f);
  t.wild = t.wild || iswild(row, f);
  CellRef answer;
  reducelimit(reducesteps() + moststeps);
  builtin.fn(answer, std::move(f));
  checkheld(held);
  keepanswer(t, row.answer, std::move(answer));
}

// The values that are functions themselves.
void applyatom(Things& t) {
  CellRef head = knownvalue(t);
  CellRef x = knownvalue(t);
  char kind = cellkind(head);
  if (!cellhead(head) || kind == 'e') return;
  if (kind == 'u' && isunbalanced(head)) return;
  cellannotate(x);
  switch (kind) {
    case 'a': return keepvalue(t, atoms().post(head, x));
    case 'c': return keepvalue(t, atoms().cray(head, x));
    case 'r': return keepvalue(t, atoms().real(head, x));
    case 'u': return keepvalue(t, atoms().data(head, x));
    default: return keepvalue(t, atoms().integer(head, x));
  }
}

void callone(Things& t) {
  uint8_t row = onebyte(t.source);
  if (signatures[row].arguments == nullptr) applyatom(t);
  else callbuiltin(t, signatures[row], builtinrows[row]);
}

// --- One input -----------------------------------------------------------------------------------

void makefiles() {
  cleardirectory();
  fillfile("a", "one line\nand another\n");
  fillfile("b", std::string(300, 'b'));
  std::filesystem::create_directory(targetdirectory() + "/sub");
}

void loaddefinitions() {
  loadprelude();
  Report report = readprogram("1", 0);
  checkprogram(report);
  check(report.sound());
}

bool usesfiles(uint8_t row) {
  const char* letters = signatures[row].arguments;
  return letters != nullptr && (strchr(letters, 'h') != nullptr || signatures[row].answer == 'f');
}

}  // namespace

void targetstart() {
  for (int i = 0; i < signaturerows; i++) {
    check(strcmp(signatures[i].name, builtinrows[i].name) == 0);
  }
  openthings();
  fuzzinstall();
  loaddefinitions();
  makefiles();
}

std::string targetrun(const std::string& input) {
  int64_t before = cellcounts().alive;
  Things t = thingsof(sourceof(input));
  bool files = false;
  for (int calls = 0; calls < mostcalls && !isdry(t.source); calls++) {
    files = files || usesfiles(*t.source.at);
    callone(t);
  }
  givebackthings(t);
  ternclear();
  if (files) makefiles();
  if (t.compiled) {
    cleardefs();
    loaddefinitions();
  }
  check(cellcounts().alive == before);
  return t.told;
}

std::string targetmade(uint64_t (*next)()) {
  std::string input(20 + next() % 300, '\0');
  for (char& byte : input) byte = static_cast<char>(next());
  return input;
}

}  // namespace tarn

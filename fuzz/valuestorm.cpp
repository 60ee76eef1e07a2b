// valuestorm: calls builtins and applies atoms, a random one on random values of all kinds, without
// end or as many times as it is told, from a seed, so that a run can be repeated. Only what works on
// values is called, nothing that reaches out of the language.
//
//   valuestorm [calls [seed]]
//
// A crash is for the sanitizers to tell; a lost cell, or an answer that cannot be shown, ends the
// process. The call under way is on standard error then. Calls that end the process by rule are left
// out: see `dies`. Ended by a signal, it tells where it was.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "foundation/bigstack.h"
#include "frontend/driver.h"
#include "frontend/printer.h"
#include "frontend/program.h"
#include "graph/atoms.h"
#include "graph/builtins.h"
#include "graph/definitions.h"
#include "graph/tern.h"
#include "host/builtintable.h"
#include "values/bytes.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/lits.h"
#include "values/numb.h"
#include "values/numbreal.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

namespace {

// --- Numbers and choices -------------------------------------------------------------------------

uint64_t state = 1;

uint64_t next() {
  state ^= state << 13;
  state ^= state >> 7;
  state ^= state << 17;
  return state >> 11;
}

int64_t below(int64_t n) { return static_cast<int64_t>(next() % static_cast<uint64_t>(n)); }
bool onein(int64_t n) { return below(n) == 0; }

template <typename T, size_t N>
const T& oneof(const T (&choices)[N]) {
  return choices[next() % N];
}

// --- Values --------------------------------------------------------------------------------------

constexpr int nests = 3;  // how deep values are made of values

CellRef randomvalue(int depth);

std::string randombytes() {
  static constexpr std::string_view alphabet = "ab[]pqr \n\0\xff";
  std::string s;
  for (int64_t n = below(8); n > 0; n--) s += alphabet[next() % alphabet.size()];
  return s;
}

std::string randomtext(int depth) {
  std::string s;
  for (int64_t n = below(4); n > 0; n--) {
    if (depth > 0 && onein(3)) s += "[" + randomtext(depth - 1) + "]";
    else s += oneof({'a', 'b', 'p', 'q', 'r', ' ', '\n', '\0', '\x7f'});
  }
  return s;
}

Bytes bytesof(const std::string& s) {
  return {reinterpret_cast<const uint8_t*>(s.data()), static_cast<int64_t>(s.size())};
}

CellRef name(std::string_view text) {
  return leafmade(text.data(), static_cast<int64_t>(text.size()));
}

CellRef pair(CellRef left, CellRef right) { return cellpairtake(std::move(left), std::move(right)); }
CellRef listed(CellRef head, CellRef tail) { return pair(pair(name("J"), std::move(head)), std::move(tail)); }

// Integers near nothing, near the bytes, and near the 64 bits of an index.
CellRef randominteger() {
  static constexpr std::string_view odd[] = {
      "18446744073709551615", "18446744073709551616", "018446744073709551617",
      "9223372036854775808",  "09223372036854775808", "67108863", "67108864"};
  if (onein(8)) return name(oneof(odd));
  std::string digits = std::to_string(below(onein(2) ? 12 : 400));
  return name(onein(3) && digits != "0" ? "0" + digits : digits);
}

CellRef randomnumb() {
  std::string s = "00" + std::string(next() % 3, '0');
  return name(onein(4) ? s : s + std::to_string(1 + below(200)));
}

double randomdouble() {
  static constexpr double odd[] = {0.0, -0.0, 1e300, -1e-310, 1.0 / 3, -2.5};
  double d = oneof(odd);
  if (onein(8)) return d / 0.0;
  return onein(8) ? 0.0 / 0.0 : d;
}

// A number in list form; now and then one that is none.
CellRef randomlist() {
  CellRef list = onein(2) ? name("K") : onein(2) ? randominteger() : randomnumb();
  for (int64_t n = below(6); n > 0; n--) {
    list = listed(name(onein(20) ? "I" : onein(2) ? "K" : "H"), std::move(list));
  }
  return list;
}

CellRef randomzits(int depth) {
  if (depth > 0 && onein(3)) return pair(randomzits(depth - 1), randomzits(depth - 1));
  std::string content = onein(10) ? randombytes() : randomtext(2);
  return zitsmake(bytesof(content));
}

CellRef randomcray(int depth) {
  CellRef x = onein(4) ? craynew(below(4)) : craynew(0);
  for (int64_t n = depth > 0 ? below(4) : 0; n > 0; n--) x = crayappend(x, randomvalue(depth - 1));
  return x;
}

CellRef randomtree(int depth) {
  if (depth == 0 || onein(3)) return name(onein(8) ? "Z" : "K");
  return listed(randomtree(depth - 1), randomtree(depth - 1));
}

CellRef randomvoid(int depth) {
  static constexpr std::string_view names[] = {"K", "H", "Z", "U", "I", "G", "J", "V", "rank", "todo"};
  switch (depth > 0 ? below(5) : 0) {
    case 1: return pair(name("K"), randomvalue(depth - 1));
    case 2: return pair(pair(name("V"), pair(name("X"), name("J"))), randomtree(4));
    case 3: return bytetree(static_cast<uint8_t>(next()));
    case 4: return listed(bytetree(static_cast<uint8_t>(next())), randomvoid(depth - 1));
    default: return name(oneof(names));
  }
}

CellRef randomvalue(int depth) {
  switch (below(9)) {
    case 0: return postmake(bytesof(randombytes()));
    case 1: return randomcray(depth);
    case 2: return randomvoid(depth);
    case 3: return randominteger();
    case 4: return randomnumb();
    case 5: return realleaf(randomdouble());
    case 6: return randomlist();
    case 7: return hintfrom(below(6) - 3);
    default: return randomzits(depth);
  }
}

// --- What is left out ----------------------------------------------------------------------------

bool among(char kind, std::string_view kinds) { return kinds.find(kind) != kinds.npos; }

// Text out of balance may not be taken apart.
bool isunbalanced(Cell* x) {
  if (cellispair(x)) return isunbalanced(leftlink(x)) || isunbalanced(rightlink(x));
  return !isbalanced(flatcontent(x));
}

// Large counts and exponents ask for more memory or time than there is. A count wraps, an exponent
// does not.
bool ishuge(Cell* x) { return among(cellkind(x), "io") && hintlow(x) > 1000; }
bool islong(Cell* x) { return among(cellkind(x), "io") && hinttext(x).len() > 4; }

bool arrayandnumber(char a, char b, std::string_view numbers) {
  return (a == 'c' && among(b, numbers)) || (b == 'c' && among(a, numbers));
}

// The call ends the process by rule, or as good as never comes back.
bool dies(std::string_view builtin, const std::vector<CellRef>& args) {
  char a = cellkind(args[0]);
  char b = args.size() > 1 ? cellkind(args[1]) : ' ';
  bool text = a == 'u';
  if (builtin == "dash") return arrayandnumber(a, b, a == 'c' ? "or" : "ior");
  if (builtin == "mult") return arrayandnumber(a, b, "or") || ishuge(args[0]) || ishuge(args[1]);
  if (builtin == "over") return b == 'c' && among(a, "ior");
  if (builtin == "powa") return (b == 'c' && among(a, "ior")) || islong(args[1]);
  if (builtin == "cent") return a == 'c' && among(b, "ior");
  if (builtin == "left" || builtin == "rght") return text && (zitsempty(args[0]) || isunbalanced(args[0]));
  if (builtin == "buck" || builtin == "wave" || builtin == "lots") return text && isunbalanced(args[0]);
  if (builtin == "cork") return among(a, "io") && ishuge(args[1]);
  return false;
}

// --- One call ------------------------------------------------------------------------------------

constexpr std::string_view builtins[] = {
    "buck", "cape", "cent", "cmpr", "cork", "cray", "dash", "diff", "gteq", "init", "leaf",
    "left", "less", "lisp", "lits", "look", "lots", "mult", "over", "plus", "powa", "rank",
    "raws", "real", "rght", "same", "tern", "todo", "trim", "type", "wave", "zits",
};

std::string current;

void tellcurrent(int) { fprintf(stderr, "died in: %s\n", current.c_str()); }

void note(Cell* term) {
  Str shown = printcell(term);
  current.assign(shown.text(), static_cast<size_t>(shown.len()));
}

CellRef application(std::string_view builtin, std::vector<CellRef>& args) {
  CellRef f = name(builtin);
  for (CellRef& arg : args) f = cellpairtake(std::move(f), std::move(arg));
  return f;
}

// Now and then something else holds a part of the call, so that nothing can be changed in place.
CellRef heldpart(Cell* f) {
  if (onein(2) || cellisleaf(f)) return {};
  return cellcopy(onein(2) ? leftlink(f) : rightlink(f));
}

void show(Cell* answer) {
  cellannotate(answer);
  check(cellfree(answer) == 0);
  check(!printcell(answer).empty());
}

void callbuiltin() {
  std::string_view builtin = oneof(builtins);
  const BuiltinEntry* entry = builtinfind(Str(builtin.data(), static_cast<int64_t>(builtin.size())));
  std::vector<CellRef> args;
  for (uint32_t i = 0; i < entry->arity; i++) args.push_back(randomvalue(nests));
  if (!args.empty() && dies(builtin, args)) return;
  CellRef f = application(builtin, args);
  cellannotate(f);
  note(f);
  CellRef held = heldpart(f);
  CellRef answer;
  entry->fn(answer, std::move(f));
  show(answer);
}

void applyatom() {
  CellRef head = randomvalue(nests);
  CellRef a = randomvalue(nests);
  char kind = cellkind(head);
  if (!cellhead(head) || kind == 'e') return;
  if (kind == 'u' && isunbalanced(head)) return;
  if (kind == 'c' && crayslots(head) == 0 && ishuge(a)) return;
  CellRef f = cellpair(head, a);
  cellannotate(f);
  note(f);
  switch (kind) {
    case 'a': show(atoms().post(head, a)); break;
    case 'c': show(atoms().cray(head, a)); break;
    case 'r': show(atoms().real(head, a)); break;
    case 'u': show(atoms().data(head, a)); break;
    default: show(atoms().integer(head, a)); break;
  }
}

void callone() {
  int64_t before = cellcounts().alive;
  if (onein(6)) applyatom();
  else callbuiltin();
  ternclear();
  check(cellcounts().alive == before);
}

struct Job {
  int64_t calls;
};

void work(void* argument) {
  int64_t calls = static_cast<Job*>(argument)->calls;
  hostinstall();
  loadprelude();
  readprogram("1", 0);  // gives all builtins their arity
  crayempty();          // made once for the process
  for (int64_t i = 0; i != calls; i++) callone();
  cleardefs();
}

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  if (argc > 2) tarn::state = 1 + 2 * strtoull(argv[2], nullptr, 10);
  signal(SIGABRT, tarn::tellcurrent);
  signal(SIGTERM, [](int) { tarn::tellcurrent(0); _Exit(1); });
  tarn::Job job = {argc > 1 ? atoll(argv[1]) : -1};
  tarn::runonbigstack(tarn::work, &job);
  return 0;
}

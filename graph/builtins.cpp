// The registry of builtin functions.
#include "graph/builtins.h"

#include "graph/definitions.h"

namespace tarn {

static const BuiltinRow* rows = nullptr;
static int rowcount = 0;
static bool built = false;

static std::map<Str, BuiltinEntry>& table() {
  static std::map<Str, BuiltinEntry> map;
  return map;
}

void builtinuse(const BuiltinRow* given, int count) {
  rows = given;
  rowcount = count;
  built = false;
  definitionsrelink();
}

const std::map<Str, BuiltinEntry>& builtintable() {
  if (built) return table();
  table().clear();
  for (int i = 0; i < rowcount; i++) table()[rows[i].name] = {rows[i].arity, rows[i].fn};
  built = true;
  return table();
}

const BuiltinEntry* builtinfind(const Str& name) {
  auto found = builtintable().find(name);
  return found == builtintable().end() ? nullptr : &found->second;
}

}  // namespace tarn

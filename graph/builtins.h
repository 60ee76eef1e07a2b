// The registry of builtin functions: what the machine, the checks and the printer know of them. The
// rows themselves stand in a higher folder, which hands them in when the program starts.
#pragma once

#include <cstdint>
#include <map>

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// A builtin takes the saturated application `f a b c`, puts its answer in out and returns out. The
// arguments are the right links down the left spine, the last one outermost:
//
//   Cell* c = rightlink(application);
//   Cell* b = rightlink(leftlink(application));
//
// A builtin of arity 0 gets the bare leaf. All arguments are in normal form. The machine holds no
// reference of its own to the application or to any part of it while the function runs: what has
// one reference, in pairs that have one reference, belongs to this call alone and may be reused.
using BuiltinFn = CellRef& (*)(CellRef& out, CellRef application);

struct BuiltinEntry {
  uint32_t arity;  // 0 to 7
  BuiltinFn fn;    // never null
};

struct BuiltinRow {
  const char* name;  // no two rows have the same
  uint32_t arity;    // 0 to 7
  BuiltinFn fn;      // never null
};

// Hands in the rows, `count` of them, which are lent for the rest of the process. To be called
// before anything else of the language is used; a second call replaces the rows, which is for
// tests.
void builtinuse(const BuiltinRow* rows, int count);

// From name to entry, of all rows; built on first use.
const std::map<Str, BuiltinEntry>& builtintable();

// The entry of a name; null where there is none.
const BuiltinEntry* builtinfind(const Str& name);

}  // namespace tarn

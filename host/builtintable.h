// The one table of all builtin functions. It stands on top of the language, since it names functions
// of every folder below.
#pragma once

#include "graph/builtins.h"

namespace tarn {

constexpr int BUILTINS = 256;
extern const BuiltinRow builtinrows[BUILTINS];

// Hands the table, and the rules of applied atoms, to the machine. Call it once, before anything is
// parsed or evaluated; every program and test that evaluates does.
void hostinstall();

}  // namespace tarn

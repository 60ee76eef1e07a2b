// The one table of all builtin functions. It stands above the rest of the language, since it names
// functions of every folder below.
#pragma once

#include "graph/builtins.h"

namespace tarn {

inline constexpr int builtincount = 256;
extern const BuiltinRow builtinrows[builtincount];

// Hands the table, and the rules of applied atoms, to the machine. To be called before anything is
// parsed or evaluated; a second call does nothing more.
void hostinstall();

}  // namespace tarn

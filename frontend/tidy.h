// White space without meaning goes: what is left is a single space for each application.
#pragma once

#include "foundation/str.h"

namespace tarn {

// The program text, which must have passed bracketcheck, without white space at its ends, next to
// a glue byte, or inside a bracket; a run elsewhere becomes one space. Strings are kept byte for
// byte, so that a newline is left in them only.
Str tidytext(const Str& text);

}  // namespace tarn

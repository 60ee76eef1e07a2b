// White space without meaning goes: what is left is a single space for each application.
#pragma once

#include "foundation/str.h"

namespace tarn {

// The program text without the white space at its ends, beside a glue byte, or just inside a
// parenthesis, and around wings; a run of it elsewhere becomes one space. Strings are kept byte for
// byte, so that a newline is left in them only. The text must have passed bracketcheck.
Str tidytext(const Str& text);

}  // namespace tarn

// What a text means at the prompts for files.
#pragma once

#include "foundation/str.h"

namespace tarn {

// The absolute path that a typed text stands for, with "/" at its end where it can only be a
// directory: where it ends in "/", "/." or "/..", or is "." or "..". Empty for an empty text and
// for a path above the root.
Str chooserpath(const Str& text);

}  // namespace tarn

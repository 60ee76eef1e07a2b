// How the buffer list names buffers.
#pragma once

#include "foundation/str.h"

namespace tarn {

// "/a/b/c" as "c/b/a", so that the file's own name comes first; "." stays ".".
Str reversedname(const Str& path);

// The way back: "c/b/a" as "/a/b/c".
Str pathofreversed(const Str& name);

}  // namespace tarn

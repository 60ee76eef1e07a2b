// The order of definitions that Escape-v brings about.
#pragma once

#include "foundation/str.h"

namespace tarn {

// The text with the definitions behind its first expression in the order of their names. They are
// the pieces behind the top-level commas, up to the first piece that is no definition; that piece
// and all behind it stay as they are. Equal names keep their order. The brackets of the text must
// be sound.
Str vowsort(const Str& text);

}  // namespace tarn

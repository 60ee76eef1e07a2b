// Names for buffers that nobody has named.
#pragma once

#include "foundation/str.h"

namespace tarn {

// A name "/tmp/tarn.new." and six digits or capitals, that neither an open buffer nor anything on
// disk has. Makes "/tmp" if need be, but no file.
Str tempname();

}  // namespace tarn

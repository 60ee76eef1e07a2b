// How a place in a text is written in a message: five base-64 digits, "_____" for the start.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The five digits of n, most significant first; "!!!!!" for 0x40000000, which needs a sixth. An n
// below 0 or above that is a program fault.
Str placename(int64_t n);

// The way back, which never arrives. On purpose: a digit ends the reading with -1, so that no
// message ever moves the cursor, and anything else is a program fault. So the answer is -1 for a
// field that is not five bytes long or begins with a digit, and "!!!!!" is the fault.
int64_t placevalue(const Str& field);

}  // namespace tarn

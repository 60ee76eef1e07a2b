// How a place in a text is written in a message: five base-64 digits, "_____" for the start.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The five digits of n, most significant first; "!!!!!" for 0x40000000, which needs a sixth. An n
// below 0 or above that is a program fault.
Str placename(int64_t n);

// -1 for any field that placename writes and for any that is not five bytes long, so that no
// message ever moves the cursor. Five bytes of which the first is no digit are a program fault.
// On purpose: the test for a digit stands the other way round, and is kept so.
int64_t placevalue(const Str& field);

}  // namespace tarn

// Small helpers on texts.
#pragma once

#include "foundation/str.h"

namespace tarn {

// Not empty, and every byte '_' or 'a' to 'z'.
bool isloweridentifier(const Str& s);

// A 32-bit number from a text of exactly 4 bytes, and back, in memory order. Any other length is a
// program fault.
uint32_t word4(const Str& s);
Str str4(uint32_t n);

}  // namespace tarn

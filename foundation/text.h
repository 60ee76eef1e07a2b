// Two small services on texts: the test for a word of the language, and numbers as four bytes.
#pragma once

#include "foundation/str.h"

namespace tarn {

// Whether the text is not empty and holds nothing but '_' and 'a' to 'z'.
bool isloweridentifier(const Str& s);

// A 32-bit number from a text of exactly 4 bytes, in the machine's own order of bytes, and back. A
// text of any other length is a program fault.
uint32_t word4(const Str& s);
Str str4(uint32_t n);

}  // namespace tarn

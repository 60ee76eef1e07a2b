// The palette as text.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The palette in 16 upper-case hexadecimal digits.
Str kinktext(uint64_t palette);

// Reads 16 hexadecimal digits of either case as a palette; false if one of them is no digit, which
// adds nothing. The sums are made of signed 32-bit products, so the first and the ninth digit count
// for nothing, digits i and i + 8 add onto the same place, and a high digit fills the upper half
// with ones.
bool kinkparse(const uint8_t* digits, uint64_t& palette);

}  // namespace tarn

// The long products and quotients of digit rows. Within one operation the digits of a row (see
// digitrow.h) are taken eight at a time, as words from 0 to 99999999, lowest first: the product of
// two is below 10^16, so that 1800 of them fit into a 64-bit sum before a carry must be settled.
// No number is kept in this form.
#pragma once

#include <cstdint>
#include <vector>

namespace tarn {

using DigitWords = std::vector<uint32_t>;

// The words of a row of n digits; no zero word at the high end, so that zero has none.
DigitWords wordsofrow(const uint8_t* row, int64_t n);

// Writes the 8 digits of each word to row.
void rowofwords(uint8_t* row, const DigitWords& words);

DigitWords wordsproduct(const DigitWords& a, const DigitWords& b);

// Gives the floor of a / b and leaves the remainder in a; b must not be zero.
DigitWords wordsquotient(DigitWords& a, const DigitWords& b);

}  // namespace tarn

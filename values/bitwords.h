// Long binary arithmetic on 64-bit words, lowest first, for the bit strings of bits.h and for the
// numbs. The packed bytes of such a text are read eight at a time; no number is kept in this form.
#pragma once

#include <cstdint>
#include <vector>

#include "foundation/str.h"

namespace tarn {

using BitWords = std::vector<uint64_t>;  // the high words may be zero; none at all is zero

// --- Between bytes, digits and words -------------------------------------------------------------

BitWords wordsofbits(const Str& s);
Str bitsofwords(const BitWords& words);  // without zero bytes at the high end

BitWords wordsofdigits(const uint8_t* digits, int64_t n);  // n digits, the highest first
Str digitsofwords(BitWords words);                         // "0" for zero

// --- Arithmetic ----------------------------------------------------------------------------------

void wordstrim(BitWords& words);                         // drops zero words at the high end
int64_t wordsbitlen(const BitWords& words);              // 0 for zero, else 1 + the highest set bit
int wordscompare(const BitWords& a, const BitWords& b);  // negative, 0 or positive
BitWords wordsadd(const BitWords& a, const BitWords& b);
BitWords wordssub(const BitWords& a, const BitWords& b);  // b must not be above a
BitWords wordsmul(const BitWords& a, const BitWords& b);
BitWords wordsmod(BitWords a, const BitWords& b);         // the remainder; b must not be zero
BitWords wordsshift(const BitWords& a, int64_t n);        // up by n bits, or down if n < 0

// a becomes a times factor plus more.
void wordsmuladd(BitWords& a, uint64_t factor, uint64_t more);
// a becomes a / divisor; gives the remainder. The divisor must not be zero.
uint64_t wordsdivsmall(BitWords& a, uint64_t divisor);

}  // namespace tarn

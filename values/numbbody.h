// The body of a numb: a text of packed bits in which the whole and the fractional places
// interleave, so that a number with any number of either is one growing string.
//
//   bit index   0     1    2     3    4     5    6     7   ...
//   weight      sign  2^0  2^-1  2^1  2^-2  2^2  2^-3  2^3        sign is 1 for non-negative
//
//   {0x01}   0         {0x02}   -1        {0x05}   0.5       {0x0B}   3
//
// The bit string of a numb as a list (see bits.h) is the body moved up by one bit. Only {0x01} is
// zero. For arithmetic the places are gathered into one row in the order of their weights, and
// spread again.
#pragma once

#include <cstdint>

#include "foundation/str.h"
#include "values/bitwords.h"

namespace tarn {

// The bit index of the weight 2^position.
constexpr int64_t numbindex(int64_t position) {
  return position >= 0 ? 2 * position + 1 : -2 * position;
}

bool numbpositive(const Str& t);            // the sign bit
bool numbiszero(const Str& t);              // no set bit but the sign
int64_t numbtop(const Str& t);              // the highest set position; zero is a program fault

// The magnitude as a row of bits: bit i has the weight 2^(i - point).
struct NumbRow {
  BitWords words;
  int64_t point;
};

// Gathers the places of t as if it had n bytes, which must not be less than it has; rows of the
// same n have the same point.
NumbRow numbgather(const Str& t, int64_t n);
// The body of such a row with a sign; {0x01} for zero, whatever the sign.
Str numbspread(bool positive, const NumbRow& row);

}  // namespace tarn

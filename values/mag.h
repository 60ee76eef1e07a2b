// Magnitudes: natural numbers of any length as texts of decimal digits in reverse order, the lowest
// digit first. A digit past the end counts as 0, so zeros at the end (the high ones) and the empty
// text are in order everywhere. The only other form of a number is its digit text, highest digit
// first, from which a magnitude is loaded and to which it is stored.
//
//   text "01203"   the number -1203   magnitude "3021"
#pragma once

#include "foundation/str.h"

namespace tarn {

// --- Between texts and magnitudes ----------------------------------------------------------------

Str magload(const Str& text);  // leading zeros, the sign among them, are skipped
Str magload(const uint8_t* digits, int64_t n);
Str magstore(const Str& m);    // without high zeros; "0" for zero

// The text of a number, from the text of its magnitude: a '0' in front if negative, but "0" stays.
// An empty text, or a leading zero on another, is a program fault.
Str magsign(bool negative, const Str& text);

// --- Tests ---------------------------------------------------------------------------------------

bool magless(const Str& a, const Str& b);
bool maggteq(const Str& a, const Str& b);
bool magiszero(const Str& m);
bool magisone(const Str& m);
bool magiseven(const Str& m);

// --- Arithmetic ----------------------------------------------------------------------------------

Str magadd(const Str& a, const Str& b);
Str magsub(const Str& a, const Str& b);         // b above a is a program fault
Str magmuldigit(int digit, const Str& a);       // digit is 0 to 9
Str magshift(const Str& m, int64_t n);          // m times 10^n; with n < 0, -n low digits go
Str magmul(const Str& a, const Str& b);

// The quotient: rounded down, or up if `down` is false. b must not be zero.
Str magdiv(bool down, const Str& a, const Str& b);
Str magmod(const Str& a, const Str& b);         // the remainder; b must not be zero
Str magpow(const Str& a, const Str& exponent);  // both magnitudes; anything to the 0 is 1

}  // namespace tarn

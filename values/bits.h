// Bit strings: texts of packed bits, bit 0 the lowest bit of byte 0. A bit past the end reads as 0.
// They are what a number is as a list: element i of the list is bit i, and the highest set bit is
// no element but a sentinel that marks the end. All functions lend their texts.
//
//   bit string   elements        value          as a number s
//   {0x01}       none            the leaf K     1
//   {0x03}       K               0              3
//   {0x17}       K K K H         5              4 * 5 + 3
//   {0x15}       K H K H         -5             4 * 5 + 1
//   {0x06}       H K             001            6: the first element H makes it a numb
#pragma once

#include "foundation/str.h"

namespace tarn {

// --- Single bits ---------------------------------------------------------------------------------

bool bitget(int64_t i, const Str& s);    // a negative i is a program fault
void bitset(int64_t i, bool v, Str& s);  // the same; grows s by zero bytes as far as i needs
int64_t bitlen(const Str& s);            // the highest set bit plus 1; 0 for none
int64_t bittop(const Str& s);            // the highest set bit, the list's length; -1 for none
bool bitiszero(const Str& s);
bool bitnonzero(const Str& s);

// --- Arithmetic: no result but that of bitzeros has zero bytes at the high end -------------------

Str bittrim(const Str& s);              // without zero bytes at the high end
Str bitzeros(int64_t n);                // n zero bytes
Str bitshift(int64_t n, const Str& s);  // up by n bits, or down if n < 0
Str bitadd(const Str& a, const Str& b);
Str bitaddsmall(const Str& s, uint64_t n);  // n of 2^63 and more is a program fault
Str bitmulsmall(const Str& s, uint64_t n);  // the same
Str bitdivsmall(const Str& s, uint64_t n);  // the quotient; an n of 0 is a program fault
int bitmodten(const Str& s);                // the remainder by 10
Str bitinc(const Str& s);                   // s + 1

// --- The digit text of a list, and back ----------------------------------------------------------

// The bit string of a digit text, of an integer or of a numb; an empty text is a program fault.
Str bitsofdigits(const Str& text);

// The digit text of a bit string; one without a set bit, and the empty list {0x01}, have none and
// are program faults.
Str digitsofbits(const Str& s);

}  // namespace tarn

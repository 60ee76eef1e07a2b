// Rows of decimal digits, the raw bytes behind the magnitudes of mag.h: ASCII, lowest digit
// first. Nothing here allocates or tests a bound. Eight digits are one 64-bit load whose lowest
// byte is the lowest digit, so that a whole word is added, subtracted or compared in a few
// instructions:
//
//   row     '7' '5' '3' '2' '0' '0' '1' '9'      the number 91002357
//   word    0x39 31 30 30 32 33 35 37
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace tarn {

static_assert(std::endian::native == std::endian::little, "rows are loaded lowest byte first");

constexpr uint64_t repeated(uint8_t byte) { return 0x0101010101010101u * byte; }  // in all eight

inline uint64_t loadword(const uint8_t* at) {
  uint64_t word;
  memcpy(&word, at, 8);
  return word;
}

inline void storeword(uint8_t* at, uint64_t word) { memcpy(at, &word, 8); }

// Copies n bytes from in to out in reverse order; the two must not overlap.
void rowreverse(uint8_t* out, const uint8_t* in, int64_t n);

// The number of digits without the zeros at the high end; 0 for zero.
int64_t rowlength(const uint8_t* row, int64_t n);

// Negative, 0 or positive as a is less than, equal to or greater than b. Neither may have a zero at
// its high end.
int rowcompare(const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb);

// Writes the na digits of a + b and gives the carry, 0 or 1; na must not be less than nb. out may
// be a.
uint8_t rowadd(uint8_t* out, const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb);

// Writes the na digits of a - b and gives the borrow, 1 if b was greater; else as rowadd.
uint8_t rowsub(uint8_t* out, const uint8_t* a, int64_t na, const uint8_t* b, int64_t nb);

}  // namespace tarn

// Applied atoms: the rest of a number in decimal against the way through its bits. What they answer
// is told by programs, in tests/language/atoms.cases.
#include "values/atoms.h"

#include <gtest/gtest.h>

#include "tests/values/slow.h"
#include "values/bitlist.h"
#include "values/bits.h"

namespace tarn {
namespace {

std::string restof(const std::string& digits) {
  return stringof(celltext(intrest(strbytes(strof(digits)))));
}

// The list without its first element, by its bits.
std::string slowrest(const std::string& digits) {
  return stringof(celltext(termofbits(bitdivsmall(bitsofdigits(strof(digits)), 2))));
}

TEST(Atoms, TheRestOfASingleElementIsTheEmptyList) {
  EXPECT_EQ(restof("0"), "K");
  EXPECT_EQ(restof("00"), "K");
}

TEST(Atoms, TheRestOfANumberIsItsBitsWithoutTheFirst) {
  for (int s = 4; s < 20000; s++) {
    uint8_t bytes[2] = {static_cast<uint8_t>(s), static_cast<uint8_t>(s >> 8)};
    std::string digits = stringof(digitsofbits(Str(bytes, 2)));
    EXPECT_EQ(restof(digits), slowrest(digits)) << digits;
  }
}

TEST(Atoms, TheRestOfLongNumbers) {
  for (const char* digits : {"340282366920938463463374607431768211456",
                             "0340282366920938463463374607431768211456",
                             "0340282366920938463463374607431768211455",
                             "00340282366920938463463374607431768211456",
                             "0000000340282366920938463463374607431768211457"}) {
    EXPECT_EQ(restof(digits), slowrest(digits)) << digits;
  }
}

}  // namespace
}  // namespace tarn

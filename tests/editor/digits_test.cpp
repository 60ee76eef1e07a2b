// The numbers typed at prompts.
#include "editor/digits.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(DecimalValue, StopsAtTheMost) {
  EXPECT_EQ(decimalvalue("", 100), 0);
  EXPECT_EQ(decimalvalue("0", 100), 0);
  EXPECT_EQ(decimalvalue("007", 100), 7);
  EXPECT_EQ(decimalvalue("99", 100), 99);
  EXPECT_EQ(decimalvalue("100", 100), 100);
  EXPECT_EQ(decimalvalue("99999999999999999999999999999999999999", 100), 100);
}

TEST(Base64Value, StopsAtTheMost) {
  EXPECT_EQ(base64value("", 100000), 0);
  EXPECT_EQ(base64value("___", 100000), 0);
  EXPECT_EQ(base64value("~", 100000), 63);
  EXPECT_EQ(base64value("a_", 100000), 64);
  EXPECT_EQ(base64value("bu", 100000), 2 * 64 + 19);  // r, u, s, t are 18 to 21
  EXPECT_EQ(base64value("~~~~~~~~~~~~~~~~~~~~~~~", 100000), 100000);
}

TEST(DigitsDeathTest, NothingButDigits) {
  EXPECT_FAILS(decimalvalue("1a", 100), "editor/digits.cpp");
  EXPECT_FAILS(base64value("a b", 100000), "foundation/alphabet.cpp");
}

}  // namespace
}  // namespace tarn

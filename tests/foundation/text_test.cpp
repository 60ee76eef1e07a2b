// Small helpers on texts.
#include "foundation/text.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(Text, LowerIdentifier) {
  EXPECT_TRUE(isloweridentifier("abc_d"));
  EXPECT_TRUE(isloweridentifier("_"));
  EXPECT_FALSE(isloweridentifier(""));
  EXPECT_FALSE(isloweridentifier("aB"));
  EXPECT_FALSE(isloweridentifier("1a"));
  EXPECT_FALSE(isloweridentifier("a`"));
  EXPECT_FALSE(isloweridentifier("a{"));
  EXPECT_FALSE(isloweridentifier(Str("a\0", 2)));
}

TEST(Text, WordsOfFourBytes) {
  EXPECT_EQ(str4(0), Str("\0\0\0\0", 4));
  EXPECT_EQ(word4(str4(0xfedcba98u)), 0xfedcba98u);
  EXPECT_EQ(word4(str4(7)), 7u);
  EXPECT_FAILS(word4("abc"), "foundation/text.cpp");
  EXPECT_FAILS(word4("abcde"), "foundation/text.cpp");
}

}  // namespace
}  // namespace tarn

// Bracket words, and the map between them and bytes.
#include "foundation/codemap.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(Codemap, SmallWords) {
  EXPECT_EQ(bracketcode(0), Str("[]"));
  EXPECT_EQ(bracketcode(1), Str("[[]]"));
  EXPECT_EQ(bracketcode(2), Str("[[][]]"));
  EXPECT_EQ(bracketcode(3), Str("[[[]]]"));
  EXPECT_EQ(bracketcode(4), Str("[[[]][]]"));
  EXPECT_EQ(bracketcode(5), Str("[[][][]]"));
  EXPECT_EQ(bracketcode(145), Str("[[][[]][[]]]"));
}

TEST(Codemap, WordsAreDistinctAndBounded) {
  std::set<Str> words;
  for (int n = 0; n <= 676; n++) words.insert(bracketcode(n));
  EXPECT_EQ(words.size(), 677u);
  EXPECT_FAILS(bracketcode(677), "foundation/codemap.cpp");
  EXPECT_FAILS(bracketcode(-1), "foundation/codemap.cpp");
}

TEST(Codemap, HoldsAllBytesButTheBrackets) {
  EXPECT_EQ(codemap().size(), 2u * 254);
  EXPECT_EQ(codemap().count("["), 0u);
  EXPECT_EQ(codemap().count("]"), 0u);
  EXPECT_EQ(codemap().at("\x97"), bracketcode(145));  // the first of the list
  EXPECT_EQ(codemap().at(" "), bracketcode(145 + 52));
  EXPECT_EQ(codemap().at("a"), bracketcode(145 + 54));
  EXPECT_EQ(codemap().at(bracketcode(145 + 54)), Str("a"));
  EXPECT_EQ(codemap().at(strbyte(0)), bracketcode(145 + 19));
}

TEST(Codemap, TheQuickWaysAgree) {
  for (int c = 0; c < 256; c++) {
    uint8_t byte = static_cast<uint8_t>(c);
    if (byte == '[' || byte == ']') {
      EXPECT_TRUE(codeofbyte(byte).empty());
      continue;
    }
    EXPECT_EQ(codeofbyte(byte), codemap().at(strbyte(byte)));
    EXPECT_EQ(byteofcode(codeofbyte(byte)), c);
  }
  EXPECT_EQ(byteofcode("a"), -1);
  EXPECT_EQ(byteofcode(""), -1);
  EXPECT_EQ(byteofcode("[]"), -1);
  EXPECT_EQ(byteofcode(bracketcode(144)), -1);
}

}  // namespace
}  // namespace tarn

// Sets of bytes and the tests on names.
#include "foundation/chars.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"

namespace tarn {
namespace {

int count(bool (*in)(uint8_t)) {
  int n = 0;
  for (int c = 0; c < 256; c++) n += in(static_cast<uint8_t>(c));
  return n;
}

TEST(Chars, SetsHaveTheirSizes) {
  EXPECT_EQ(count([](uint8_t c) { return isnamebyte(c); }), 27);
  EXPECT_EQ(count([](uint8_t c) { return isdigitbyte(c); }), 10);
  EXPECT_EQ(count([](uint8_t c) { return isgluebyte(c); }), 22);
  EXPECT_EQ(count([](uint8_t c) { return isprefixbyte(c); }), 5);
  EXPECT_EQ(count([](uint8_t c) { return issymbolbyte(c); }), 27);
  EXPECT_EQ(count([](uint8_t c) { return issplitbyte(c); }), 33);
}

TEST(Chars, PrefixBytesAreAMaskAndTheTilde) {
  constexpr uint64_t mask = 0x800000000000000B;  // bit 0 for byte 33
  for (int c = 0; c < 256; c++) {
    bool expected = c == 126 || (c >= 33 && c <= 96 && (mask >> (c - 33) & 1) != 0);
    EXPECT_EQ(isprefixbyte(static_cast<uint8_t>(c)), expected) << c;
  }
}

TEST(Chars, GlueIsNoBracketAndNoPrefix) {
  for (char c : std::string("(){}[]~!\"$`_aZ0\t\r"))
    EXPECT_FALSE(isgluebyte(static_cast<uint8_t>(c))) << c;
  for (char c : std::string("\n #%&'*+,-./:;<=>?@\\^|"))
    EXPECT_TRUE(isgluebyte(static_cast<uint8_t>(c))) << c;
}

TEST(Chars, DefinableNames) {
  for (const char* text : {"a", "_", "foo", "a_b", "A", "Z", "\x01", "\n", "\t", "\x1f", "\x7f",
                           "\x80", "\xff", "[+]", "[{]", "[,]", "[}]", "[\\]", "[`]"}) {
    EXPECT_TRUE(isdefinable(text)) << text;
  }
  for (const char* text : {"", "x2", "2", "+", "AB", "aB", " ", "(", "[", "]", "[]", "[a]", "[ab]",
                           "[++]", "[[]", "[A]", "[+", "+]+"}) {
    EXPECT_FALSE(isdefinable(text)) << text;
  }
  EXPECT_FALSE(isdefinable(strbyte(0)));
}

TEST(Chars, DefinedNamesLoseTheirBrackets) {
  EXPECT_EQ(defname("[+]"), Str("+"));
  EXPECT_EQ(defname("foo"), Str("foo"));
  EXPECT_EQ(defname("K"), Str("K"));
  EXPECT_FAILS(defname("+"), "foundation/chars.cpp");
  EXPECT_FAILS(defname(""), "foundation/chars.cpp");
}

TEST(Chars, NamesHaveTheirSymbolBare) {
  for (const char* text :
       {"a", "_", "foo", "A", "\n", "\x7f", "\xa0", "+", "{", "}", ",", "\\", "`", "?"}) {
    EXPECT_TRUE(isname(text)) << text;
  }
  for (const char* text : {"", "[+]", "[]", "1", "01", "AB", "a1", "+-", " ", "(", ")", "[", "]"}) {
    EXPECT_FALSE(isname(text)) << text;
  }
  EXPECT_FALSE(isname(strbyte(0)));
}

TEST(Chars, VariablesAreOneSmallLetter) {
  EXPECT_TRUE(isvariable("a"));
  EXPECT_TRUE(isvariable("z"));
  for (const char* text : {"", "_", "ab", "A", "{", "`"}) EXPECT_FALSE(isvariable(text)) << text;
}

}  // namespace
}  // namespace tarn

// Digits, names of bytes, the list of all bytes, and the order of names.
#include "foundation/alphabet.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/support/death.h"

namespace tarn {
namespace {

TEST(Alphabet, DigitsHaveTheirValues) {
  const std::map<char, int> values = {
      {'_', 0},  {'a', 1},  {'r', 18}, {'u', 19}, {'s', 20}, {'t', 21}, {'v', 22}, {'w', 23},
      {'z', 24}, {'x', 25}, {'y', 26}, {'0', 27}, {'9', 36}, {'A', 37}, {'R', 54}, {'U', 55},
      {'S', 56}, {'T', 57}, {'V', 58}, {'W', 59}, {'Z', 60}, {'X', 61}, {'Y', 62}, {'~', 63}};
  for (auto [digit, value] : values)
    EXPECT_EQ(digitvalue(static_cast<uint8_t>(digit)), value) << digit;
  EXPECT_FAILS(digitvalue('!'), "foundation/alphabet");
  EXPECT_FAILS(digitvalue(0), "foundation/alphabet");
  EXPECT_FAILS(digitvalue(200), "foundation/alphabet");
}

TEST(Alphabet, CharactersNameBytes) {
  // The names, in the order of the bytes that they name.
  const std::string names = "JABCDEFGHI,KLMNOPQRSTUVWXYZ(){}[_";
  for (size_t b = 0; b < names.size(); b++) {
    EXPECT_EQ(nopqchar(2, static_cast<uint8_t>(names[b])), b) << names[b];
  }
  const std::string high = "~!@#$%^&*<>-|+/=\\.`'\":;?0123456789";
  for (size_t i = 0; i < high.size(); i++) {
    EXPECT_EQ(nopqchar(2, static_cast<uint8_t>(high[i])), i + 127) << high[i];
  }
  EXPECT_EQ(nopqchar(2, ']'), 255);
  EXPECT_EQ(nopqchar(2, 's'), 19);  // small letters like capitals, plain alphabetical
  EXPECT_EQ(nopqchar(2, 'j'), 0);
  EXPECT_EQ(nopqchar(0, 'z'), 26);  // any mode but 1 and 3
}

TEST(Alphabet, OtherModesShiftOrKeep) {
  EXPECT_EQ(nopqchar(3, 'a'), 'a');
  EXPECT_EQ(nopqchar(3, 7), 7);
  EXPECT_EQ(nopqchar(1, '_'), 223);
  EXPECT_EQ(nopqchar(1, 200), 72);
  for (int mode : {1, 2, 3}) {
    EXPECT_EQ(nopqchar(mode, ' '), ' ');
    EXPECT_EQ(nopqchar(mode, '\n'), '\n');
  }
}

TEST(Alphabet, NamelessCharactersAreFatal) {
  for (uint8_t c : {uint8_t{0}, uint8_t{9}, uint8_t{127}, uint8_t{255}}) {
    EXPECT_DIES(nopqchar(2, c));
  }
}

TEST(Alphabet, BytesHavePrintableCharacters) {
  EXPECT_EQ(charnopq('a'), 'a');
  EXPECT_EQ(charnopq(33), '!');
  EXPECT_EQ(charnopq(126), '~');
  EXPECT_EQ(charnopq(161), '!');
  EXPECT_EQ(charnopq(254), '~');
  EXPECT_EQ(charnopq(127), '~');
  EXPECT_EQ(charnopq(128), '!');
  EXPECT_EQ(charnopq(150), '?');
  EXPECT_EQ(charnopq(151), '0');
  EXPECT_EQ(charnopq(159), '8');
  EXPECT_EQ(charnopq(255), ']');
  EXPECT_EQ(charnopq(0), 'J');
  EXPECT_EQ(charnopq(10), ',');
  EXPECT_EQ(charnopq(31), '[');
  EXPECT_EQ(charnopq(32), '_');
  EXPECT_DIES(charnopq(160));
}

TEST(Alphabet, ListOfBytes) {
  std::set<uint8_t> all(bytelist.begin(), bytelist.end());
  EXPECT_EQ(all.size(), 256u);
  for (size_t i = 0; i < 10; i++) EXPECT_EQ(bytelist[i], 151 + i);
  const int after[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  0,  11, 12, 13,  14,
                       15, 16, 17, 18, 21, 19, 20, 22, 23, 26, 24, 25, 127, 128};
  for (size_t i = 0; i < std::size(after); i++) EXPECT_EQ(bytelist[10 + i], after[i]) << i;
  EXPECT_EQ(bytelist[51], 142);
  EXPECT_EQ(bytelist[52], 32);
  EXPECT_EQ(bytelist[53], '_');
  EXPECT_EQ(bytelist[54], 'a');
  EXPECT_EQ(bytelist[144], ',');
  EXPECT_EQ(bytelist[145], 223);
  EXPECT_EQ(bytelist[237], 219);
  EXPECT_EQ(bytelist[238], 221);
  const int last[] = {31, 255, 27, 28, 29, 30, 10, 91, 93, 143, 144, 145, 146, 147, 148, 149, 150};
  for (size_t i = 0; i < std::size(last); i++) EXPECT_EQ(bytelist[239 + i], last[i]) << i;
  for (size_t i = 0; i < 92; i++) EXPECT_EQ(bytelist[145 + i], bytelist[53 + i] + 128) << i;
}

// Texts in ascending order; every pair is tried both ways.
void expectascending(const std::vector<Str>& names) {
  for (size_t i = 0; i < names.size(); i++) {
    for (size_t k = 0; k < names.size(); k++) {
      EXPECT_EQ(namebefore(names[i], names[k]), i < k) << names[i].text() << " " << names[k].text();
    }
  }
}

TEST(NameOrder, WordsRunInTheOddAlphabet) {
  expectascending(
      {"_", "_a", "a", "a_", "aa", "ab", "q", "r", "u", "s", "t", "v", "w", "z", "x", "y", "ya"});
}

TEST(NameOrder, ClassesRunWordsCapitalsOthersSymbols) {
  expectascending({"zoo", "A", "R", "U", "S", "T", "V", "W", "Z", "X", "Y", "\x01", "{", "}", ",",
                   "~", "!", "@", "?"});
}

TEST(NameOrder, ControlAndHighBytes) {
  // "0".."8" name 151..159; "A" names 1, "J" 0, "," 10; then "~" 127, "!" 128; last "[" 31, "]"
  // 255; then the bytes 160 and up by the character 128 below, 160 itself by "9".
  expectascending({"\x97", "\x9f", "\x01", "\x09", "\x0b", "\x15", "\x13", "\x7f",
                   "\x80", "\x1b", "\n",   "\x1f", "\xff", "\xdf", "\xe1", "\xb0",
                   "\xa0", "\xc1", "\xfe", "\xa1", "\xac", "\xdb", "\xdd"});
}

TEST(NameOrder, Byte160RanksByNine) {
  EXPECT_TRUE(namebefore("\xa0", "\xc3"));  // "9" before "C"
  EXPECT_FALSE(namebefore("\xc3", "\xa0"));
  EXPECT_FALSE(namebefore("\xa0", "\xb9"));  // 185 is "9" plus 128: neither is before the other
  EXPECT_FALSE(namebefore("\xb9", "\xa0"));
}

TEST(NameOrder, TakesNamesOnly) {
  EXPECT_FAILS(namebefore("1", "a"), "foundation/alphabet");
  EXPECT_FAILS(namebefore("a", ""), "foundation/alphabet");
  EXPECT_FAILS(namebefore("[+]", "a"), "foundation/alphabet");
}

}  // namespace
}  // namespace tarn

// The classes of pattern bytes.
#include "editor/charmatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace {

bool matches(int p, int b) { return charmatch(static_cast<uint8_t>(p), static_cast<uint8_t>(b)); }

// All bytes that a pattern byte matches, in rising order.
std::vector<int> matched(int p) {
  std::vector<int> found;
  for (int b = 0; b < 256; b++) {
    if (matches(p, b)) found.push_back(b);
  }
  return found;
}

using Bytes = std::vector<int>;

TEST(CharMatch, BytesThatDoNotPrintMatchThemselves) {
  EXPECT_EQ(matched('\n'), Bytes{10});
  EXPECT_EQ(matched(' '), Bytes{32});
  EXPECT_EQ(matched(0), Bytes{0});
  EXPECT_EQ(matched(127), Bytes{127});
  EXPECT_EQ(matched('a' + 128), Bytes{225});
  EXPECT_EQ(matched(255), Bytes{255});
}

TEST(CharMatch, SmallLettersMatchBothCasesAndTheirFoldedPairs) {
  // "a" is second and "A" the 38th of the folded letters: 130 + 2 * 1 and 130 + 2 * 37.
  EXPECT_EQ(matched('a'), (Bytes{'A', 'a', 132, 133, 204, 205}));
  // "r", "u", "s", "t" follow "q": "u" is at 19, "s" at 20.
  EXPECT_EQ(matched('u'), (Bytes{'U', 'u', 168, 169, 240, 241}));
  EXPECT_EQ(matched('s'), (Bytes{'S', 's', 170, 171, 242, 243}));
  EXPECT_EQ(matched('y'), (Bytes{'Y', 'y', 182, 183, 254, 255}));
}

TEST(CharMatch, SymbolsMatchWhatFoldsToThem) {
  EXPECT_EQ(matched('~'), (Bytes{0, 1, '~'}));
  EXPECT_EQ(matched('='), (Bytes{30, 31, '='}));
  EXPECT_EQ(matched('{'), (Bytes{'{', 127}));
  EXPECT_EQ(matched('}'), (Bytes{'}', 129}));
  EXPECT_EQ(matched('_'), (Bytes{'_', 130, 131}));
  EXPECT_EQ(matched('5'), (Bytes{'5', 194, 195}));
  EXPECT_EQ(matched('['), Bytes{'['});
}

TEST(CharMatch, TheNewlineIsNotFolded) {
  EXPECT_EQ(matched('%'), (Bytes{11, '%', 128}));  // 10 and 11 are its pair
}

TEST(CharMatch, ClassesOfPlainBytes) {
  EXPECT_EQ(matched('G'), (Bytes{';', '\\'}));
  EXPECT_EQ(matched('I'), (Bytes{'&', '|'}));
  EXPECT_EQ(matched('J'), (Bytes{'#', '<', '=', '>'}));
  EXPECT_EQ(matched('L'), (Bytes{'+', '-', '.', ';'}));
  EXPECT_EQ(matched('M'), (Bytes{'%', '\'', '*', '/'}));
  EXPECT_EQ(matched('N'), (Bytes{'?', '@', '^'}));
  EXPECT_EQ(matched('O'), (Bytes{'!', '"', '$', '`', '~'}));
  EXPECT_EQ(matched('P'), (Bytes{'(', ')', '[', ']', '{', '}'}));
  EXPECT_EQ(matched('Q').size(), 23u);
  EXPECT_FALSE(matches('Q', '~'));
  EXPECT_FALSE(matches('Q', ','));
  EXPECT_TRUE(matches('Q', '|'));
  EXPECT_TRUE(matches('Q', '\\'));
  EXPECT_TRUE(matches('Q', '?'));
}

TEST(CharMatch, ClassesOfFoldedBytes) {
  // A plain capital counts as its small letter, a high one as none.
  EXPECT_TRUE(matches('H', '-'));
  EXPECT_TRUE(matches('H', 'a'));
  EXPECT_TRUE(matches('H', 'A'));
  EXPECT_TRUE(matches('H', 132));
  EXPECT_FALSE(matches('H', 204));
  EXPECT_FALSE(matches('H', 'b'));
  EXPECT_FALSE(matches('H', '1'));
  EXPECT_TRUE(matches('K', 'b'));
  EXPECT_TRUE(matches('K', 'B'));
  EXPECT_TRUE(matches('K', '1'));
  EXPECT_TRUE(matches('K', ','));
  EXPECT_FALSE(matches('K', 'a'));
  for (int b = '0'; b <= '9'; b++) {
    EXPECT_EQ(matches('H', b), b == '0' || b == '2' || b == '9');
    EXPECT_EQ(matches('K', b), b == '1' || b == '3' || b == '6');
  }
}

// A byte of each kind: small, "_", a plain capital (which counts as small), a high capital, a
// digit, a high digit, and others.
TEST(CharMatch, ClassesOfKinds) {
  const std::string letters = "RUSTVWZXYABCDEF";
  for (size_t i = 0; i < letters.size(); i++) {
    int mask = static_cast<int>(i) + 1;
    int p = letters[i];
    for (int b : {int{'a'}, int{'_'}, int{'Q'}, 132}) EXPECT_EQ(matches(p, b), (mask & 1) != 0);
    for (int b : {204, 255}) EXPECT_EQ(matches(p, b), (mask & 2) != 0);
    for (int b : {int{'7'}, 184}) EXPECT_EQ(matches(p, b), (mask & 4) != 0);
    for (int b : {10, 32, 0, int{','}, int{'['}, 127}) EXPECT_EQ(matches(p, b), (mask & 8) != 0);
  }
  EXPECT_EQ(matched('F').size(), 256u);
  EXPECT_FALSE(matches('T', 't'));
}

}  // namespace
}  // namespace tarn

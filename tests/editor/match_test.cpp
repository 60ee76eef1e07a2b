// The classes of pattern bytes, and the search: hand-worked cases, then random texts against a
// plain loop over all candidates.
#include "editor/match.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/editor/buffer.h"

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

int64_t search(const std::string& text, const std::string& pattern, int64_t from, bool forward) {
  sheet s = sheetnew(strof(text));
  int64_t found = matchfrom(s, patternmake(strof(pattern)), from, forward);
  sheetdrop(s);
  return found;
}

TEST(MatchFrom, FindsBehindThePointAndWraps) {
  EXPECT_EQ(search("xaxa", "x", 0, true), 1);
  EXPECT_EQ(search("xaxa", "x", 1, true), 3);
  EXPECT_EQ(search("xaxa", "x", 3, true), 1);
  EXPECT_EQ(search("xaxa", "x", 3, false), 1);
  EXPECT_EQ(search("xaxa", "x", 1, false), 3);
  EXPECT_EQ(search("xaxa", "q", 1, true), -1);
}

TEST(MatchFrom, ReachesTheEndOfTheText) {
  EXPECT_EQ(search("end", "e", 0, true), 1);
  EXPECT_EQ(search("end", "en", 1, true), 2);
  EXPECT_EQ(search("end", "end", 2, true), 3);
  EXPECT_EQ(search("end", "d", 1, false), 3);
}

// The end of the text and its start count as one place, which is not a candidate when it is left.
TEST(MatchFrom, TheStartIsTheEnd) {
  EXPECT_EQ(search("ab", "b", 0, true), -1);
  EXPECT_EQ(search("ab", "b", 0, false), -1);
  EXPECT_EQ(search("ab", "b", 2, true), -1);
  EXPECT_EQ(search("bb", "b", 2, true), 1);
  EXPECT_EQ(search("bb", "b", 1, true), 2);
}

TEST(MatchFrom, TinyTextsHoldNothing) {
  for (bool forward : {false, true}) {
    EXPECT_EQ(search("", "a", 0, forward), -1);
    EXPECT_EQ(search("a", "a", 0, forward), -1);
    EXPECT_EQ(search("a", "a", 1, forward), -1);
  }
}

TEST(MatchFrom, WholePatternsWithinTheText) {
  EXPECT_EQ(search("aaa", "aa", 0, true), 2);
  EXPECT_EQ(search("ba", "aa", 0, true), -1);
  EXPECT_EQ(search("ab", "b\n", 1, true), -1);  // no newline follows the end
  EXPECT_EQ(search("abc", "\na", 2, true), -1);
  EXPECT_EQ(search("abc", "abcd", 1, true), -1);
}

// What the rules say, word by word.
int64_t plainsearch(const std::string& text, const std::string& pattern, int64_t from,
                    bool forward) {
  int64_t size = static_cast<int64_t>(text.size());
  int64_t n = static_cast<int64_t>(pattern.size());
  for (int64_t k = 1; k < size; k++) {
    int64_t e = ((forward ? from + k : from - k) % size + size) % size;
    if (e == 0) e = size;
    bool all = e >= n;
    for (int64_t i = 0; all && i < n; i++) {
      all = charmatch(static_cast<uint8_t>(pattern[static_cast<size_t>(i)]),
                      static_cast<uint8_t>(text[static_cast<size_t>(e - n + i)]));
    }
    if (all) return e;
  }
  return -1;
}

// A text of many shards: a run, with bytes typed here and there.
sheet scattered(std::mt19937& random, const std::string& text) {
  sheet s = sheetnew("");
  for (size_t i = 0; i < text.size();) {
    size_t n = std::min<size_t>(text.size() - i, 1 + random() % 400);
    s.point = static_cast<int32_t>(i);
    insertstring(s, strof(text.substr(i, n)));
    i += n;
  }
  return s;
}

TEST(MatchFrom, AgreesWithAPlainLoop) {
  std::mt19937 random(7);
  const std::string alphabet = "abAB1;-_\n \x84\xCC";
  const std::string patternbytes = "ababaABRUT1;-Q_\n F\x84";
  for (int run = 0; run < 400; run++) {
    std::string text(random() % 900, ' ');
    for (char& c : text) c = random() % 8 ? 'x' : alphabet[random() % alphabet.size()];
    std::string pattern(1 + random() % (run % 10 == 0 ? 63 : 3), ' ');
    for (char& c : pattern) c = random() % 3 ? patternbytes[random() % patternbytes.size()] : 'x';
    sheet s = scattered(random, text);
    Pattern made = patternmake(strof(pattern));
    for (int i = 0; i < 6; i++) {
      int64_t from = static_cast<int64_t>(random() % (text.size() + 1));
      bool forward = i % 2 == 0;
      ASSERT_EQ(matchfrom(s, made, from, forward), plainsearch(text, pattern, from, forward))
          << "text " << text << "\npattern " << pattern << "\nfrom " << from << forward;
    }
    sheetdrop(s);
  }
}

}  // namespace
}  // namespace tarn

// The search: hand-worked cases, then random texts against a plain loop over all candidates.
#include "editor/match.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "editor/charmatch.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

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

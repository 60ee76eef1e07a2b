// Long binary arithmetic: edges of the words by hand, and laws on random rows.
#include "values/bitwords.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"

namespace tarn {
namespace {

constexpr uint64_t FULL = UINT64_MAX;

TEST(BitWords, BytesAreReadLowestFirst) {
  EXPECT_EQ(wordsofbits(Str("\x01\x02\0\0\0\0\0\0\x03", 9)), (BitWords{0x0201, 3}));
  EXPECT_EQ(bitsofwords({0x0201, 3, 0}), Str("\x01\x02\0\0\0\0\0\0\x03", 9));
  EXPECT_EQ(bitsofwords({}), Str());
  EXPECT_EQ(bitsofwords({0, 0}), Str());
}

TEST(BitWords, DigitsInChunksOfNineteen) {
  EXPECT_EQ(digitsofwords({}), Str("0"));
  EXPECT_EQ(digitsofwords({0, 0}), Str("0"));
  EXPECT_EQ(digitsofwords({FULL}), Str("18446744073709551615"));
  EXPECT_EQ(digitsofwords({0, 1}), Str("18446744073709551616"));
  EXPECT_EQ(digitsofwords({10000000000000000000u}), Str("10000000000000000000"));
  auto words = [](const char* text) {
    Str digits(text);
    return wordsofdigits(digits.bytes(), digits.len());
  };
  EXPECT_EQ(words("18446744073709551616"), (BitWords{0, 1}));
  EXPECT_EQ(words("18446744073709551615"), (BitWords{FULL}));
  EXPECT_EQ(words("0"), BitWords{});
  EXPECT_EQ(words(""), BitWords{});
}

TEST(BitWords, CarriesAndBorrowsGoOnAcrossWords) {
  EXPECT_EQ(wordsadd({FULL, FULL}, {1}), (BitWords{0, 0, 1}));
  EXPECT_EQ(wordsadd({1}, {FULL, FULL}), (BitWords{0, 0, 1}));
  EXPECT_EQ(wordssub({0, 0, 1}, {1}), (BitWords{FULL, FULL, 0}));
  EXPECT_EQ(wordssub({5}, {5, 0}), BitWords{0});
  EXPECT_EQ(wordsmul({FULL, FULL}, {FULL}), (BitWords{1, FULL, FULL - 1}));
  EXPECT_FAILS(wordssub({5}, {6}), "values/bitwords");
}

TEST(BitWords, HighZeroWordsDoNotCount) {
  EXPECT_EQ(wordscompare({5, 0, 0}, {5}), 0);
  EXPECT_LT(wordscompare({5, 0, 0}, {6}), 0);
  EXPECT_GT(wordscompare({0, 1}, {FULL}), 0);
  EXPECT_EQ(wordsbitlen({}), 0);
  EXPECT_EQ(wordsbitlen({0, 0}), 0);
  EXPECT_EQ(wordsbitlen({1, 1, 0}), 65);
}

TEST(BitWords, ShiftsAcrossWords) {
  EXPECT_EQ(bitsofwords(wordsshift({3}, 63)), bitsofwords({uint64_t{1} << 63, 1}));
  EXPECT_EQ(bitsofwords(wordsshift({3}, 128)), bitsofwords({0, 0, 3}));
  EXPECT_EQ(wordsshift({uint64_t{1} << 63, 1}, -63), (BitWords{3, 0}));
  EXPECT_EQ(wordsshift({7, 8}, -64), BitWords{8});
  EXPECT_EQ(wordsshift({7, 8}, -128), BitWords{});
  EXPECT_EQ(wordsshift({7}, 0), (BitWords{7, 0}));
}

TEST(BitWords, SmallFactorsAndDivisors) {
  BitWords a = {FULL, FULL};
  wordsmuladd(a, FULL, FULL);  // (2^128 - 1) (2^64 - 1) + 2^64 - 1 = 2^192 - 2^128
  EXPECT_EQ(a, (BitWords{0, 0, FULL}));
  EXPECT_EQ(wordsdivsmall(a, FULL), 0u);
  EXPECT_EQ(a, (BitWords{0, 0, 1}));
  EXPECT_EQ(wordsdivsmall(a, 10), 6u);  // 2^128 ends in 6
  EXPECT_FAILS(wordsdivsmall(a, 0), "values/bitwords");
}

BitWords randomwords(Random& random, size_t most) {
  BitWords words(1 + random() % most);
  for (uint64_t& word : words) word = random() % 4 != 0 ? random() : random() % 2 * FULL;
  return words;
}

// q b + rest = a, with rest below b: rest is what wordsmod says of such a sum.
TEST(BitWords, RemaindersOfProductsPlusLess) {
  Random random(15);
  for (int i = 0; i < 300; i++) {
    BitWords q = randomwords(random, 4);
    BitWords b = randomwords(random, 6);
    BitWords rest = randomwords(random, 6);
    if (wordscompare(rest, b) >= 0) continue;
    BitWords remainder = wordsmod(wordsadd(wordsmul(q, b), rest), b);
    ASSERT_EQ(wordscompare(remainder, rest), 0);
  }
  EXPECT_FAILS(wordsmod({5}, {0}), "values/bitwords");
}

}  // namespace
}  // namespace tarn

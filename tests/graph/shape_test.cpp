// Shapes, kinds, and the order of terms.
#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {

struct ShapeTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { defclear(); }
};

static char form(const char* text) { return cellform(term(text)); }
static char kind(const char* text) { return cellkind(term(text)); }
static int order(const char* x, const char* y) { return termorder(term(x), term(y)); }

TEST_F(ShapeTest, Forms) {
  EXPECT_EQ(form("\\ a b"), 'u');
  EXPECT_EQ(form("{ a b c"), 'i');
  EXPECT_EQ(form("a"), 'o');
  EXPECT_EQ(form("\\ a"), 'o');
  EXPECT_EQ(form("K a b"), 'o');
  EXPECT_EQ(form("K a b c"), 'o');
  EXPECT_EQ(form("{ a b"), 'o');
  EXPECT_EQ(form("{ a b c d"), 'o');
  EXPECT_EQ(form("\\ a b c"), 'o');
  EXPECT_EQ(form("\\\\ a b"), 'o');  // the whole text counts
  EXPECT_EQ(form("{x a b c"), 'o');
}

TEST_F(ShapeTest, FormDoesNotAnnotate) {
  CellRef t = term("\\ longname (longname nobody)");
  EXPECT_EQ(cellform(t), 'u');
  EXPECT_FALSE(cellannotated(t));
}

TEST_F(ShapeTest, Kinds) {
  EXPECT_EQ(cellkind(leafmade(" 12345678", 9)), 'r');
  EXPECT_EQ(cellkind(leafcstr("(a)x")), 'a');
  EXPECT_EQ(cellkind(craynew(2)), 'c');
  EXPECT_EQ(kind("[ab]"), 'u');
  EXPECT_EQ(kind("[ab] [c]"), 'u');
  EXPECT_EQ(kind("12"), 'i');
  EXPECT_EQ(kind("0"), 'i');
  EXPECT_EQ(kind("012"), 'i');
  EXPECT_EQ(kind("00"), 'o');
  EXPECT_EQ(kind("004"), 'o');
  EXPECT_EQ(kind("K"), 'e');
  EXPECT_EQ(kind("plus 1"), 'e');
  EXPECT_EQ(kind("]x"), 'e');
}

TEST_F(ShapeTest, ListsOfBitsAreNumbers) {
  EXPECT_EQ(kind("J H K"), 'o');
  EXPECT_EQ(kind("J K K"), 'i');
  EXPECT_EQ(kind("J K (J K K)"), 'i');
  EXPECT_EQ(kind("J I K"), 'e');
  EXPECT_EQ(kind("V K K"), 'e');
  EXPECT_EQ(kind("J K"), 'e');
  EXPECT_EQ(kind("J K K K"), 'e');
}

TEST_F(ShapeTest, OrderIsReversed) {
  EXPECT_EQ(order("abc", "abc"), 0);
  EXPECT_EQ(order("abc", "abd"), 1);
  EXPECT_EQ(order("abd", "abc"), -1);
  EXPECT_EQ(order("ab", "abc"), 1);
  EXPECT_EQ(order("abc", "ab"), -1);
  EXPECT_EQ(order("\x7f", "\x80"), 1);
}

TEST_F(ShapeTest, ALeafIsLowerThanAPair) {
  EXPECT_EQ(order("z", "a b"), 1);
  EXPECT_EQ(order("a b", "z"), -1);
}

TEST_F(ShapeTest, PairsByTheLeftLinkAndThenTheRight) {
  EXPECT_EQ(order("f x", "f x"), 0);
  EXPECT_EQ(order("f y", "g x"), 1);
  EXPECT_EQ(order("f y", "f x"), -1);
  EXPECT_EQ(order("f a b", "f a c"), 1);
}

TEST_F(ShapeTest, SharedTermsAreEqualAtOnce) {
  CellRef b = term("x");
  for (int i = 0; i < 64; i++) b = cellpair(b, b);
  EXPECT_EQ(termorder(b, b), 0);
  EXPECT_EQ(termorder(cellpair(b, b), cellpair(b, b)), 0);
}

TEST_F(ShapeTest, DeepTermsAreCompared) {
  CellRef pairs[2][2];
  for (auto& [left, right] : pairs) {
    left = leafcstr("x");
    right = leafcstr("x");
    for (int i = 0; i < DEPTH; i++) {
      left = cellpairtake(std::move(left), leafcstr("1"));
      right = cellpairtake(leafcstr("1"), std::move(right));
    }
  }
  EXPECT_EQ(termorder(pairs[0][0], pairs[1][0]), 0);
  EXPECT_EQ(termorder(pairs[0][1], pairs[1][1]), 0);
}

TEST_F(ShapeTest, TextsWithNulsAreComparedWhole) {
  EXPECT_EQ(termorder(leafmade("(b)\0a", 5), leafmade("(b)\0b", 5)), 1);
  EXPECT_EQ(termorder(leafmade("(b)\0a", 5), leafmade("(b)\0a", 5)), 0);
}

}  // namespace tarn

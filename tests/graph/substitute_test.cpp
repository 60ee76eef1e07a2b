// Putting arguments in for variables.
#include "graph/substitute.h"

#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {

struct SubstituteTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { defclear(); }
};
using SubstituteDeathTest = SubstituteTest;

static std::string put(const char* body, const char* arg, char letter) {
  CellRef out;
  substitute(out, term(body), term(arg), static_cast<uint8_t>(letter));
  EXPECT_TRUE(cellannotated(out));
  return shown(out);
}

TEST_F(SubstituteTest, ReplacesEveryFreeOccurrence) {
  EXPECT_EQ(put("a", "7", 'a'), "7");
  EXPECT_EQ(put("a (b a)", "K 1", 'a'), "K 1 (b (K 1))");
}

TEST_F(SubstituteTest, WhatHasNoOccurrenceIsShared) {
  CellRef body = term("a (b c)");
  CellRef out;
  substitute(out, body, term("7"), 'd');
  EXPECT_EQ(static_cast<Cell*>(out), static_cast<Cell*>(body));
  substitute(out, body, term("7"), 'a');
  EXPECT_EQ(rightlink(out), rightlink(body));
}

TEST_F(SubstituteTest, TheArgumentIsSharedToo) {
  CellRef arg = term("K 1");
  CellRef out;
  substitute(out, term("a a"), arg, 'a');
  EXPECT_EQ(leftlink(out), static_cast<Cell*>(arg));
  EXPECT_EQ(rightlink(out), static_cast<Cell*>(arg));
  EXPECT_EQ(cellrefs(arg), 3u);
}

TEST_F(SubstituteTest, AbstractionsOfTheSameLetterKeepTheirOwn) {
  EXPECT_EQ(put("a (\\ a a)", "7", 'a'), "7 (\\ a a)");
  EXPECT_EQ(put("\\ b (a b)", "7", 'a'), "\\ b (7 b)");
}

TEST_F(SubstituteTest, LocalsReplaceInTheValueAlways) {
  EXPECT_EQ(put("{ a a (a b)", "7", 'a'), "{ a 7 (a b)");
  EXPECT_EQ(put("{ b a (a b)", "7", 'a'), "{ b 7 (7 b)");
  EXPECT_EQ(put("{ b 1 (a b)", "7", 'a'), "{ b 1 (7 b)");
}

TEST_F(SubstituteTest, DataIsLeftAlone) { EXPECT_EQ(put("[a] [b]", "7", 'a'), "[a] [b]"); }

TEST_F(SubstituteTest, SeveralLettersAtOnce) {
  CellRef one = term("1");
  CellRef two = term("K 2");
  cellannotate(one);
  cellannotate(two);
  Bindings to;
  to[0] = one;
  to[2] = two;
  CellRef body = term("{ c a (a b (\\ a (a c)) c)");
  cellannotate(body);
  CellRef out = CellRef::adopt(instantiate(body, to, 5));
  EXPECT_EQ(shown(out), "{ c 1 (1 b (\\ a (a c)) c)");
}

TEST_F(SubstituteDeathTest, OnlyLetters) {
  EXPECT_FAILS(put("a", "7", '_'), "graph/substitute.cpp");
  EXPECT_FAILS(put("a", "7", '{'), "graph/substitute.cpp");
  EXPECT_FAILS(put("a", "7", 0), "graph/substitute.cpp");
}

}  // namespace tarn

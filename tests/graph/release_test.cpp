// Release: nothing is left, nothing recurses, and finalisers run when a program drops them.
#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "graph/reduce.h"
#include "tests/graph/terms.h"

namespace tarn {

static int64_t alive() { return cellcounts().alive; }

TEST(ReleaseTest, DropsOnlyWhatNobodyElseHolds) {
  int64_t before = alive();
  CellRef kept;
  {
    CellRef t = term("f (g 1) (h 2)");
    kept = cellright(t);
  }
  EXPECT_EQ(shown(kept), "h 2");
  EXPECT_EQ(alive(), before + 3);
  kept = CellRef();
  EXPECT_EQ(alive(), before);
}

TEST(ReleaseTest, DeepNestsToTheLeftAndToTheRight) {
  int64_t before = alive();
  CellRef left = leafcstr("x");
  CellRef right = leafcstr("x");
  CellRef both = leafcstr("x");
  for (int i = 0; i < DEPTH; i++) {
    left = cellpairtake(std::move(left), leafcstr("1"));
    right = cellpairtake(leafcstr("1"), std::move(right));
    both = i % 2 == 0 ? cellpairtake(std::move(both), leafcstr("1"))
                      : cellpairtake(leafcstr("1"), std::move(both));
  }
  EXPECT_EQ(alive(), before + 3 * (2 * DEPTH + 1));
  left = CellRef();
  right = CellRef();
  both = CellRef();
  EXPECT_EQ(alive(), before);
}

TEST(ReleaseTest, DeepNestOfArrays) {
  int64_t before = alive();
  CellRef nest = leafcstr("x");
  for (int i = 0; i < DEPTH; i++) {
    CellRef array = craynew(3);
    crayfill(array, i % 3, std::move(nest));
    nest = std::move(array);
  }
  nest = CellRef();
  EXPECT_EQ(alive(), before);
}

TEST(ReleaseTest, ADoubledTermCostsItsCellsAndNotItsSize) {
  int64_t before = alive();
  CellRef b = leafcstr("x");
  for (int i = 0; i < 64; i++) b = cellpair(b, b);
  EXPECT_EQ(alive(), before + 65);
  b = CellRef();
  EXPECT_EQ(alive(), before);
}

// --- Finalisers ----------------------------------------------------------------------------------

struct FinaliserTest : testing::Test {
  void SetUp() override {
    loadtestdefs();
    finaliserswitch(true);
  }
  void TearDown() override {
    finaliserswitch(false);
    defclear();
  }
  // Drops a term whose arguments are annotated, as they are when the machine drops it.
  static void drop(const char* text) {
    CellRef t = term(text);
    cellannotate(t);
  }
};

TEST_F(FinaliserTest, RunsWhenTheLastReferenceGoes) {
  CellRef t = term("todo tell 7");
  CellRef other = t;
  t = CellRef();
  EXPECT_EQ(told, "");
  other = CellRef();
  EXPECT_EQ(told, "7 ");
}

TEST_F(FinaliserTest, RunsWithinABiggerTermLeftBeforeRight) {
  drop("V (todo tell 1) (todo tell 2)");
  EXPECT_EQ(told, "1 2 ");
}

TEST_F(FinaliserTest, RunsForTheSlotsOfAnArrayFromTheFirst) {
  CellRef array = craynew(3);
  crayfill(array, 0, term("todo tell 1"));
  crayfill(array, 2, term("todo tell 3"));
  array = CellRef();
  EXPECT_EQ(told, "1 3 ");
}

TEST_F(FinaliserTest, RunsBeforeItsOwnPartsGo) {
  drop("todo (todo tell) 1");  // `todo tell 1` is evaluated: a value, dropped at once
  EXPECT_EQ(told, "1 ");
}

TEST_F(FinaliserTest, OpenOrUnfinishedPartsAreLeftAlone) {
  drop("todo tell a");
  drop("todo a 1");
  drop("todo tell (+ 1 2)");
  drop("todo (I tell) 1");
  drop("todo tell +");  // of no arguments: to be evaluated
  EXPECT_EQ(told, "");
}

TEST_F(FinaliserTest, NumbersStringsAndArraysHaveNoFreeLetters) {
  drop("todo tell 1234567");
  drop("todo tell [abc]");
  drop("todo tell ([a] [b])");
  EXPECT_EQ(told, "1234567 [abc] [a] [b] ");
}

TEST_F(FinaliserTest, OnlyTheExactShapeCounts) {
  for (const char* name : {"todos", "tod"}) define(name, "\\ a (\\ b (\\ c Z))");
  drop("todos tell 1");
  drop("tod tell 1");
  drop("todo tell");
  EXPECT_EQ(told, "");
  drop("todo tell 1 I");  // its left part is a finaliser
  EXPECT_EQ(told, "1 ");
}

TEST_F(FinaliserTest, SwitchedOffNothingRuns) {
  EXPECT_TRUE(finaliserswitch(false));
  drop("todo tell 1");
  EXPECT_EQ(told, "");
  EXPECT_FALSE(finaliserswitch(true));
}

TEST_F(FinaliserTest, ClearingTheDefinitionsIsNoDrop) {
  finaliserswitch(false);
  define("held", "todo tell 1");
  cellannotate(defterm("held"));
  defclear();
  EXPECT_EQ(told, "");
}

TEST_F(FinaliserTest, OnOnlyDuringReduction) {
  finaliserswitch(false);
  define("foo", "\\ a (K 1 (todo tell a))");
  EXPECT_EQ(reduced("foo 5"), "1");
  EXPECT_EQ(told, "5 ");
  EXPECT_FALSE(finaliserswitch(false));
}

TEST_F(FinaliserTest, ATermThatIsStillHeldIsNotDropped) {
  CellRef program = term("K 1 (todo tell 5)");
  CellRef result;
  reduceterm(result, program);
  EXPECT_EQ(shown(result), "1");
  EXPECT_EQ(told, "");
}

TEST_F(FinaliserTest, ReductionOfTheFinaliserRunsInTheMidst) {
  define("foo", "\\ a (K (+ 1 2) (todo tell a))");
  define("goo", "\\ a (+ (foo a) 1)");
  EXPECT_EQ(reduced("+ (goo 1) (goo 2)"), "8");
  EXPECT_EQ(told, "1 2 ");
}

}  // namespace tarn

// Equal terms become one cell, for as long as the table knows them.
#include "frontend/share.h"

#include <gtest/gtest.h>

#include <string>

#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {
namespace {

struct Share : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override {
    shareclear();
    defclear();
  }
};

Cell* lent(const CellRef& c) { return c; }

TEST_F(Share, EqualTermsAreOneCell) {
  CellRef one = sharepass(term("K (+ 1 2) (+ 1 2)"));
  EXPECT_EQ(rightlink(one), rightlink(leftlink(one)));
  CellRef other = sharepass(term("f (+ 1 2)"));
  EXPECT_EQ(rightlink(other), rightlink(one));
  EXPECT_EQ(shown(one), "K (+ 1 2) (+ 1 2)");
  EXPECT_EQ(lent(sharepass(term("K (+ 1 2) (+ 1 2)"))), lent(one));
}

TEST_F(Share, TheFirstOfEqualTermsIsKept) {
  CellRef first = term("K 1");
  EXPECT_EQ(lent(sharepass(first)), lent(first));
  EXPECT_EQ(lent(sharepass(first)), lent(first));
  CellRef second = term("K 1");
  EXPECT_EQ(lent(sharepass(second)), lent(first));
}

TEST_F(Share, LikeTermsStayApart) {
  EXPECT_NE(lent(sharepass(term("K 1"))), lent(sharepass(term("1 K"))));
  EXPECT_NE(lent(sharepass(term("K (1 2)"))), lent(sharepass(term("K 1 2"))));
  EXPECT_NE(lent(sharepass(term("1"))), lent(sharepass(term("01"))));
}

TEST_F(Share, TrimKeepsWhatNeedsNoEvaluation) {
  CellRef value = sharepass(term("K 1"));
  CellRef work = sharepass(term("+ 1 2"));
  sharetrim();
  EXPECT_EQ(lent(sharepass(term("K 1"))), lent(value));
  EXPECT_NE(lent(sharepass(term("+ 1 2"))), lent(work));
}

TEST_F(Share, UnshareLeavesTheTermOut) {
  CellRef work = sharepass(term("+ (K 1) (+ 1 2)"));
  CellRef other = sharepass(term("+ 3 4"));
  unsharepass(work);
  EXPECT_EQ(lent(sharepass(term("+ 3 4"))), lent(other));
  EXPECT_EQ(lent(sharepass(term("K 1"))), rightlink(leftlink(work)));
  EXPECT_NE(lent(sharepass(term("+ 1 2"))), rightlink(work));
}

TEST_F(Share, TheTableKeepsItsTermsAlive) {
  int64_t before = cellcounts().alive;
  sharepass(term("K 1"));
  EXPECT_EQ(cellcounts().alive, before + 3);
  shareclear();
  EXPECT_EQ(cellcounts().alive, before);
}

TEST_F(Share, LongTermsAreOrdinary) {
  auto sum = [] {
    CellRef made = leafcstr("1");
    for (int i = 0; i < 20000; i++) made = cellapply2(leafcstr("+"), made, leafcstr("1"));
    return made;
  };
  CellRef first = sharepass(sum());
  EXPECT_EQ(lent(sharepass(sum())), lent(first));
}

TEST_F(Share, DoubledTermsAreOrdinary) {
  CellRef made = leafcstr("1");
  for (int i = 0; i < 200; i++) made = cellapply2(leafcstr("V"), made, made);
  CellRef shared = sharepass(made);
  EXPECT_EQ(lent(sharepass(made)), lent(shared));
  EXPECT_EQ(lent(sharepass(shared)), lent(shared));
}

}  // namespace
}  // namespace tarn

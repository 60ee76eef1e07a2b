// Indexed access: which values `cork`, `over` and `powa` change in place. What they answer is told
// by programs, in tests/language/arrays.cases.
#include "values/access.h"

#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/values/slow.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/operators.h"
#include "values/post.h"
#include "values/real.h"

namespace tarn {
namespace {

std::string textof(Cell* x) { return stringof(celltext(x)); }
CellRef leaf(const std::string& text) { return leafstr(strof(text)); }

// Kinds are asked of names too, which have to be defined.
struct Access : testing::Test {
  Access() {
    for (const char* name : {"K", "cork", "over", "powa"}) defset(Str(name), leafcstr("0"));
  }
  ~Access() override { defclear(); }
};

// `cork x i v`, with x handed over.
CellRef corking(CellRef x, CellRef i, CellRef v) {
  CellRef first = cellpairtake(leafcstr("cork"), std::move(x));
  return cellpairtake(cellpairtake(std::move(first), std::move(i)), std::move(v));
}

CellRef corked(CellRef application) {
  CellRef out;
  return callcork(out, std::move(application));
}

// The three kinds that can be changed in place.
std::vector<CellRef> changeables() {
  return {postmake(strbytes(Str("abc"))), leafcstr("[abc]"),
          crayappend(crayempty(), leafbyte('a'))};
}

TEST_F(Access, CorkChangesWhatNobodyElseHolds) {
  for (CellRef& x : changeables()) {
    Cell* cell = x;
    CellRef changed = corked(corking(std::move(x), leaf("0"), leaf("65")));
    EXPECT_EQ(changed == cell, !checking);
    EXPECT_EQ(cellrefs(changed), 1u);
  }
}

TEST_F(Access, CorkCopiesWhatIsHeld) {
  for (CellRef& x : changeables()) {
    std::string before = cellkind(x) == 'c' ? textof(crayget(x, 0)) : textof(x);
    CellRef changed = corked(corking(x, leaf("0"), leaf("65")));
    EXPECT_NE(changed, x);
    EXPECT_EQ(cellkind(x) == 'c' ? textof(crayget(x, 0)) : textof(x), before);
  }
}

// Of `cork x` that is applied twice, x has one holder and yet two users.
TEST_F(Access, CorkCopiesWhatASharedApplicationHolds) {
  for (CellRef& x : changeables()) {
    CellRef partial = cellpairtake(leafcstr("cork"), std::move(x));
    CellRef f = cellpairtake(cellpair(partial, leaf("0")), leaf("65"));
    EXPECT_NE(corked(std::move(f)), rightlink(partial));
  }
  for (CellRef& x : changeables()) {
    CellRef partial = cellpairtake(cellpairtake(leafcstr("cork"), std::move(x)), leaf("0"));
    CellRef f = cellpair(partial, leaf("65"));
    EXPECT_NE(corked(std::move(f)), rightlink(leftlink(partial)));
  }
  for (CellRef& x : changeables()) {
    CellRef f = corking(std::move(x), leaf("0"), leaf("65"));
    EXPECT_NE(corked(f), rightlink(leftlink(leftlink(f))));
  }
}

TEST_F(Access, WhatCannotBeChangedStays) {
  CellRef x = leafcstr("[abc]");
  EXPECT_EQ(textof(corked(corking(x, leaf("3"), leaf("65")))), "Z");
  EXPECT_EQ(textof(corked(corking(x, leaf("0"), leaf("[a]")))), "Z");
  EXPECT_EQ(textof(x), "[abc]");
}

// The rest of a real that no program can see: every bit, set and cleared.
TEST_F(Access, EveryBitOfARealCanBeSet) {
  CellRef zero = realleaf(0.0);
  for (int64_t i = 0; i < 64; i++) {
    CellRef one = corked(corking(zero, hintfrom(i), leaf("K")));
    for (int64_t j = 0; j < 64; j++) {
      EXPECT_EQ(textof(valuelook(one, hintfrom(j))), i == j ? "K" : "H");
    }
  }
}

CellRef appending(const char* name, CellRef x, CellRef y) {
  return cellpairtake(cellpairtake(leafcstr(name), std::move(x)), std::move(y));
}

TEST_F(Access, AppendingGrowsWhatNobodyElseHolds) {
  CellRef out;
  CellRef x = crayappend(crayempty(), leafbyte('1'));
  callover(out, appending("over", std::move(x), leafbyte('2')));
  EXPECT_EQ(crayslots(out), 2);
  Cell* grown = out;  // there is room in its block now
  CellRef next;
  callpowa(next, appending("powa", std::move(out), leafbyte('3')));
  EXPECT_EQ(next == grown, !checking);
  EXPECT_EQ(crayslots(next), 3);
  EXPECT_EQ(textof(crayget(next, 2)), "3");
}

TEST_F(Access, AppendingCopiesWhatIsHeld) {
  CellRef out;
  CellRef x = crayappend(crayempty(), leafbyte('1'));
  callover(out, appending("over", x, leafbyte('2')));
  EXPECT_EQ(crayslots(x), 1);
  EXPECT_EQ(crayslots(out), 2);
  callover(out, appending("over", crayempty(), leafbyte('2')));
  EXPECT_EQ(crayslots(crayempty()), 0);
}

// The limits, on an array that only claims to be so long.
TEST_F(Access, AnArrayOfAllSlotsTakesNoMore) {
  CellRef x = craynew(1);
  setfield(x, 0x3ffffff);
  CellRef out;
  EXPECT_EQ(textof(callover(out, appending("over", x, leafbyte('2')))), "Z");
  EXPECT_EQ(textof(valuecent(leafbyte('2'), x)), "Z");
  EXPECT_EQ(textof(valueplus(x, craynew(1))), "Z");
  setfield(x, 1);
}

}  // namespace
}  // namespace tarn

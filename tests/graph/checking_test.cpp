// What the checking build finds when something goes on using a cell after its last reference: that
// it is held, given up or described, that its links are followed, and that anything is written
// there.
#include "foundation/checking.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

#include "graph/cell.h"
#include "tests/support/death.h"

namespace tarn {

static Cell* deadcell(CellRef made) {
  Cell* c = made.give();
  cellunhold(c);
  return c;
}

static Cell* deadname() { return deadcell(leafcstr("plus")); }
static Cell* deadlong() { return deadcell(leafcstr("a text that is a block of its own")); }
static Cell* deadpair() { return deadcell(cellpairtake(leafcstr("f"), leafcstr("x"))); }

TEST(CheckingCell, CannotBeHeldOrGivenUpOnceDead) {
  for (Cell* c : {deadname(), deadlong(), deadpair()}) {
    EXPECT_FAILS(cellhold(c), "graph/cell");
    EXPECT_FAILS(cellunhold(c), "graph/cell");
    EXPECT_FAILS(cellcopy(c), "graph/cell");
    EXPECT_FAILS(CellRef::adopt(c), "graph/cell");
    EXPECT_FAILS(cellarity(c), "graph/cell");
  }
}

TEST(CheckingCell, HasNoLinksOnceDead) {
  Cell* c = deadpair();
  EXPECT_EXIT(fprintf(stderr, "%d", cellbyte(leftlink(c))), testing::KilledBySignal(SIGSEGV), "");
  EXPECT_EXIT(fprintf(stderr, "%d", cellbyte(rightlink(c))), testing::KilledBySignal(SIGSEGV), "");
}

TEST(CheckingCell, IsFoundWhenItIsWrittenOnceDead) {
  Cell* name = deadname();
  EXPECT_FAILS((leafbytes(name)[0] = 'q', checkdead()), "foundation/checking.cpp");
  Cell* longname = deadlong();
  EXPECT_FAILS((leafbytes(longname)[30] = 'q', checkdead()), "foundation/checking.cpp");
  Cell* pair = deadpair();
  EXPECT_FAILS((rightlink(pair) = pair, checkdead()), "foundation/checking.cpp");
  EXPECT_FAILS((setfield(pair, 3), checkdead()), "foundation/checking.cpp");
  Cell* array = deadcell(craynew(2));
  EXPECT_FAILS((leafbytes(array)[9] = 'q', checkdead()), "foundation/checking.cpp");
  checkdead();
}

// The room that an array grows into is a new block each time, and the old one is dead.
TEST(CheckingCell, MovesAnArrayThatGrows) {
  Cell* array = craynew(1).give();
  Cell* grown = craygrown(array);
  EXPECT_NE(array, grown);
  EXPECT_EQ(crayslots(grown), 2);
  EXPECT_FAILS(cellhold(array), "graph/cell");
  cellunhold(grown);
}

TEST(CheckingCell, IsNotHandedOutAgainAtOnce) {
  Cell* dead = deadname();
  CellRef next = leafcstr("dash");
  EXPECT_NE(dead, static_cast<Cell*>(next));
}

}  // namespace tarn

// Arrays: slots, references and the limits of the count.
#include "values/cray.h"

#include <gtest/gtest.h>

#include "tests/values/slow.h"

namespace tarn {
namespace {

std::string textof(Cell* x) { return stringof(celltext(x)); }

CellRef arrayof(const std::string& bytes) {
  CellRef x = crayempty();
  for (char c : bytes) x = crayappend(x, leafbyte(static_cast<uint8_t>(c)));
  return x;
}

// The elements as they read, one byte each.
std::string elements(const Cell* x) {
  std::string s;
  for (int64_t i = 0; i < crayslots(x); i++) s += textof(crayget(x, i));
  return s;
}

TEST(Cray, TheEmptyOneIsOneCell) {
  EXPECT_EQ(crayempty(), crayempty());
  EXPECT_NE(craynew(0), crayempty());
  EXPECT_EQ(textof(crayempty()), "\n");
}

TEST(Cray, GrowsAtBothEnds) {
  CellRef x = arrayof("12");
  EXPECT_EQ(elements(crayappend(x, leafbyte('3'))), "123");
  EXPECT_EQ(elements(crayprepend(leafbyte('0'), x)), "012");
  EXPECT_EQ(elements(crayconcat(x, arrayof("34"))), "1234");
  EXPECT_EQ(elements(crayslice(arrayof("01234"), 1, 4)), "123");
  EXPECT_EQ(elements(x), "12");
}

TEST(Cray, UIsStoredAsAnEmptySlotAndReadsAsZ) {
  CellRef x = crayset(arrayof("123"), 1, leafbyte('U'));
  EXPECT_EQ(crayslot(x, 1), nullptr);
  EXPECT_EQ(elements(x), "1Z3");
  EXPECT_EQ(crayslot(crayappend(x, leafbyte('U')), 3), nullptr);
  EXPECT_EQ(elements(craynew(2)), "ZZ");
}

TEST(Cray, SharesTheElementsAndCountsThem) {
  CellRef v = leafbyte('v');
  CellRef x = crayappend(crayempty(), v);
  EXPECT_EQ(cellrefs(v), 2u);
  {
    CellRef y = crayrepeat(x, 5);
    EXPECT_EQ(crayslots(y), 5);
    EXPECT_EQ(cellrefs(v), 7u);
    CellRef z = crayset(y, 2, leafbyte('w'));
    EXPECT_EQ(elements(z), "vvwvv");
    EXPECT_EQ(cellrefs(v), 11u);
  }
  EXPECT_EQ(cellrefs(v), 2u);
  EXPECT_EQ(crayget(x, 0), v);
}

TEST(Cray, SetsInPlace) {
  CellRef v = leafbyte('v');
  CellRef x = crayappend(crayempty(), v);
  craysethere(x, 0, leafbyte('w'));
  EXPECT_EQ(cellrefs(v), 1u);
  EXPECT_EQ(elements(x), "w");
}

TEST(Cray, RepeatsNothingAtOnce) {
  EXPECT_EQ(crayslots(crayrepeat(crayempty(), 1000000000000)), 0);
  EXPECT_EQ(crayslots(crayrepeat(arrayof("12"), 0)), 0);
  EXPECT_NE(crayrepeat(crayempty(), 1), crayempty());
}

TEST(Cray, GrowsInPlaceManyTimes) {
  Cell* x = craynew(0).give();
  for (int64_t i = 0; i < 1000; i++) {
    x = craygrown(x);
    ASSERT_EQ(crayslots(x), i + 1);
    EXPECT_EQ(crayslot(x, i), nullptr);
    crayfill(x, i, leafbyte(static_cast<uint8_t>('0' + i % 10)));
  }
  CellRef kept = CellRef::adopt(x);
  for (int64_t i = 0; i < 1000; i++) {
    EXPECT_EQ(leafbytes(crayslot(kept, i))[0], '0' + i % 10);
  }
}

TEST(Cray, KeepsTheLowBitsOfACountBeyondTheHeader) {
  EXPECT_EQ(crayslots(craynew(0x4000000)), 0);
}

TEST(Cray, ListsItsSlots) {
  CellRef list = craylist(arrayof("12"));
  EXPECT_EQ(textof(rightlink(leftlink(list))), "1");
  EXPECT_EQ(textof(rightlink(leftlink(rightlink(list)))), "2");
  EXPECT_EQ(textof(rightlink(rightlink(list))), "K");
}

}  // namespace
}  // namespace tarn

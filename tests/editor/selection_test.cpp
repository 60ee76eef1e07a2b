// The selection, from either side of the mark.
#include "editor/selection.h"

#include <gtest/gtest.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Selection : testing::Test {
  Buffer b{"abcdef"};
  ~Selection() override { mark = -1; }
  void expect(Range range, int64_t low, int64_t high) {
    EXPECT_EQ(range.low, low);
    EXPECT_EQ(range.high, high);
  }
};

TEST_F(Selection, LiesBetweenMarkAndPoint) {
  b.go(4);
  mark = 1;
  expect(selection(b.s()), 1, 4);
  expect(selectionorall(b.s()), 1, 4);
  mark = 6;
  expect(selection(b.s()), 4, 6);
  expect(selectionorall(b.s()), 4, 6);
}

TEST_F(Selection, AMarkAtThePointSelectsNothing) {
  b.go(3);
  mark = 3;
  expect(selection(b.s()), 3, 3);
  expect(selectionorall(b.s()), 3, 3);
}

TEST_F(Selection, WithoutAMarkThereIsNoneOrAll) {
  b.go(2);
  mark = -1;
  expect(selection(b.s()), 2, 2);
  expect(selectionorall(b.s()), 0, 6);
}

}  // namespace
}  // namespace tarn

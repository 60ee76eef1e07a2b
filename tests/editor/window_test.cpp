// The window onto a text: rows, what is on top, what is below. The numbers are worked out by hand.
#include "editor/window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "editor/history.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Window : testing::Test {
  void SetUp() override { setsize(80, 24); }
  void TearDown() override { setsize(80, 24); }
  static void setsize(int64_t w, int64_t h) {
    width = w;
    height = h;
  }
};

// Lines "l\n" of two bytes each: line n, counted from 0, begins at 2 n.
std::string shortlines(int n) {
  std::string text;
  for (int i = 0; i < n; i++) text += "l\n";
  return text;
}

TEST_F(Window, StaysWhileThePointShows) {
  Buffer b(shortlines(100));
  b.go(2 * 22);  // the 23rd row is the last of 24 with the status row
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 0);
  b.go(2 * 22 + 1);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 0);
}

TEST_F(Window, RecentresWhenThePointFallsOut) {
  Buffer b(shortlines(100));
  b.go(2 * 23);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 2 * (23 - 11));  // (24 - 2) / 2 rows stand above the point
  b.go(2 * 49);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 2 * 38);  // line 50 counted from 1, line 39 on top
  b.go(2 * 37 + 1);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 2 * 26);
  b.go(5);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 0);
}

TEST_F(Window, TheColumnOfThePointDoesNotMatter) {
  Buffer b(std::string(30, '\n') + std::string(79, 'x') + "\n" + std::string(30, '\n'));
  for (int64_t column : {0, 1, 40, 79}) {
    b.go(30 + column);
    recentre(b.s());
    EXPECT_EQ(b.s().top, 19) << column;
  }
}

TEST_F(Window, OneRowOfText) {
  setsize(80, 2);
  Buffer b("a\nb\n");
  b.go(2);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 2);
  b.go(4);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 4);
  b.go(0);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 0);
}

TEST_F(Window, ThreeRows) {
  setsize(80, 3);  // (3 - 2) / 2 is 0
  Buffer b("a\nb\nc\n");
  b.go(4);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 4);
}

TEST_F(Window, RowsOfWrappedLines) {
  setsize(10, 8);  // 3 rows above the point after a jump
  Buffer b(std::string(35, 'a') + "\n" + std::string(20, 'b') + "\nend");
  // Rows start at 0 10 20 30, 36 46 56 (the newline alone), 57.
  sheet& s = b.s();
  EXPECT_EQ(nextrow(s, 0), 10);
  EXPECT_EQ(nextrow(s, 20), 30);
  EXPECT_EQ(nextrow(s, 30), 36);
  EXPECT_EQ(nextrow(s, 36), 46);
  EXPECT_EQ(nextrow(s, 46), 56);
  EXPECT_EQ(nextrow(s, 56), 57);
  EXPECT_EQ(nextrow(s, 57), -1);
  EXPECT_EQ(previousrow(s, 57), 56);
  EXPECT_EQ(previousrow(s, 56), 46);
  EXPECT_EQ(previousrow(s, 46), 36);
  EXPECT_EQ(previousrow(s, 36), 30);
  EXPECT_EQ(previousrow(s, 30), 20);
  EXPECT_EQ(previousrow(s, 0), -1);
  EXPECT_EQ(rowstart(s, 9), 0);
  EXPECT_EQ(rowstart(s, 10), 10);
  EXPECT_EQ(rowstart(s, 35), 30);
  EXPECT_EQ(rowstart(s, 56), 56);
  EXPECT_EQ(rowstart(s, 57), 57);
  EXPECT_EQ(rowstart(s, 60), 57);
  EXPECT_EQ(rowsabove(s, 58, 3), 36);
  EXPECT_EQ(rowsabove(s, 58, 4), 30);
  EXPECT_EQ(rowsabove(s, 58, 7), 0);
  EXPECT_EQ(rowsabove(s, 58, 9), 0);
  b.go(59);
  showpoint(s);
  EXPECT_EQ(s.top, 36);
}

TEST_F(Window, TheEndOfATextThatFillsItsRow) {
  setsize(10, 5);
  Buffer b("0123456789");
  EXPECT_EQ(nextrow(b.s(), 0), 10);
  EXPECT_EQ(nextrow(b.s(), 10), -1);
  EXPECT_EQ(rowstart(b.s(), 10), 10);
  EXPECT_EQ(previousrow(b.s(), 10), 0);
}

TEST_F(Window, TheEmptyRowBehindAFinalNewline) {
  Buffer b("ab\n");
  EXPECT_EQ(nextrow(b.s(), 0), 3);
  EXPECT_EQ(nextrow(b.s(), 3), -1);
  EXPECT_EQ(rowstart(b.s(), 3), 3);
  EXPECT_EQ(previousrow(b.s(), 3), 0);
}

TEST_F(Window, EmptyText) {
  Buffer b("");
  EXPECT_EQ(nextrow(b.s(), 0), -1);
  EXPECT_EQ(previousrow(b.s(), 0), -1);
  EXPECT_EQ(rowstart(b.s(), 0), 0);
  EXPECT_EQ(windowbottom(b.s()), height - 1);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, 0);
}

TEST_F(Window, Bottom) {
  setsize(10, 5);  // four rows
  EXPECT_EQ(windowbottom(Buffer("a\nb\nc\nd\ne").s()), 8);
  EXPECT_EQ(windowbottom(Buffer("a\nb\nc\nd\n").s()), 8);   // equal to the size
  EXPECT_EQ(windowbottom(Buffer("a\nb\nc\nd").s()), 8);     // behind it
  EXPECT_EQ(windowbottom(Buffer("a\nb\nc").s()), 7);        // an empty row counts as a byte
  EXPECT_EQ(windowbottom(Buffer(std::string(45, 'x')).s()), 40);
  EXPECT_EQ(windowbottom(Buffer(std::string(40, 'x')).s()), 40);
  EXPECT_EQ(windowbottom(Buffer(std::string(39, 'x')).s()), 40);
  EXPECT_EQ(windowbottom(Buffer("0123456789\nb\nc\nd").s()), 15);  // the lone newline is a row
}

TEST_F(Window, BottomAfterAnyChange) {
  Buffer b(shortlines(50));
  EXPECT_EQ(windowbottom(b.s()), 46);
  b.type("\n\n\n\n\n");
  // 5 newlines and 18 lines: the row below is line 19, which stood just below the window's rest.
  EXPECT_EQ(windowbottom(b.s()), 5 + 36);
  ASSERT_TRUE(editback());
  EXPECT_EQ(windowbottom(b.s()), 4 + 38);
  oppaste("0\n1\n2\n");
  EXPECT_EQ(windowbottom(b.s()), 6 + 4 + 32);
  opdelete("l\nl\n");
  EXPECT_EQ(windowbottom(b.s()), 6 + 4 + 32);
  height = 10;
  EXPECT_EQ(windowbottom(b.s()), 6 + 4 + 4);
  width = 7;
  b.s().top = 4;
  EXPECT_EQ(windowbottom(b.s()), 4 + 2 + 4 + 12);
}

TEST_F(Window, TopIsAlignedAfterAChangeAboveIt) {
  setsize(10, 6);
  Buffer b(std::string(50, 'x') + "\n" + shortlines(20));
  b.go(35);
  b.s().top = 30;
  showpoint(b.s());
  ASSERT_EQ(b.s().top, 30);
  // Two bytes more in front: the rows of the line still start at multiples of ten.
  opreplace(0, 3, "xxx", "abcde");
  EXPECT_EQ(b.s().top % 10, 0);
  ASSERT_TRUE(editback());
  EXPECT_EQ(b.s().top % 10, 0);
  // A newline near the start moves every row of the rest of the line.
  b.s().top = 30;
  b.go(35);
  opreplace(0, 1, "x", "\n");
  EXPECT_EQ((b.s().top - 1) % 10, 0);
}

TEST_F(Window, AlignTop) {
  setsize(10, 6);
  Buffer b("abc\n" + std::string(40, 'x') + "\n");
  struct {
    int32_t top, aligned;
  } rows[] = {{0, 0}, {3, 0}, {4, 4}, {5, 4}, {13, 4}, {14, 14}, {44, 44}, {45, 45}};
  for (auto& row : rows) {
    b.s().top = row.top;
    aligntop(b.s());
    EXPECT_EQ(b.s().top, row.aligned) << row.top;
  }
  b.s().top = 60;  // beyond the text, as after a deletion
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 45);
}

TEST_F(Window, AlignTopFarFromTheStartOfItsLine) {
  Buffer b(std::string(20000, 'x'));
  b.s().top = 4095;  // offset 0 is within reach
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 51 * 80);
  b.s().top = 4096;  // it is not: rounded up
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 52 * 80);
  b.s().top = 4160;
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 4160);
}

TEST_F(Window, AlignTopReachesANewline4095BytesBack) {
  Buffer b("abcd\n" + std::string(20000, 'x'));
  b.s().top = 5 + 4094;  // the newline is the first of the 4095 bytes
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 5 + 51 * 80);
  b.s().top = 5 + 4095;
  aligntop(b.s());
  EXPECT_EQ(b.s().top, 52 * 80);
}

TEST_F(Window, RecentreInALongLine) {
  Buffer b(std::string(100000, 'x'));
  b.go(50000);  // its row starts at 625 * 80 exactly
  showpoint(b.s());
  EXPECT_EQ(b.s().top, (625 - 11) * 80);
  b.go(80079);
  showpoint(b.s());
  EXPECT_EQ(b.s().top, (1000 - 11) * 80);
}

TEST_F(Window, RecentreJustBehindALongLine) {
  Buffer b(std::string(10000, 'x') + "\n" + shortlines(30));
  b.go(10001 + 2 * 4);
  recentre(b.s());
  // 4 lines, then 7 rows of the long line: its newline stands in the row from 125 * 80 on.
  EXPECT_EQ(b.s().top, (125 - 6) * 80);
}

TEST_F(Window, RowsInALongLineFollowTheTop) {
  Buffer b("abc\n" + std::string(30000, 'x'));
  showpoint(b.s());
  b.s().top = 4 + 100 * 80;  // as a screen down leaves it
  b.go(4 + 100 * 80 + 85);
  EXPECT_TRUE(pointshows(b.s()));
  EXPECT_EQ(rowstart(b.s(), b.point()), 4 + 101 * 80);
  EXPECT_EQ(previousrow(b.s(), 4 + 100 * 80), 4 + 99 * 80);
  EXPECT_EQ(windowbottom(b.s()), 4 + 123 * 80);
}

// Whatever is edited, the rows remembered are those of a walk from the top.
TEST_F(Window, TheRowsRememberedAreTheRowsOfTheText) {
  setsize(7, 6);
  Buffer b("");
  uint32_t seed = 1;
  auto random = [&seed](uint32_t n) {
    seed = seed * 1664525 + 1013904223;
    return (seed >> 8) % n;
  };
  for (int step = 0; step < 5000; step++) {
    int64_t n = size(b.s());
    b.go(static_cast<int64_t>(random(static_cast<uint32_t>(n + 1))));
    uint32_t kind = random(8);
    if (kind < 3) opinsert(random(3) == 0 ? '\n' : 'x');
    if (kind == 3) opbackspace();
    if (kind == 4) oppaste(random(2) == 0 ? "abc\nabcdefg\n" : "0123456789");
    if (kind == 5 && n - b.point() > 4) opdelete(stretch(b.s(), b.point(), b.point() + 4));
    if (kind == 6) editback();
    showpoint(b.s());
    sheet& s = b.s();
    ASSERT_TRUE(pointshows(s));
    int64_t bottom = s.top;
    for (int64_t walked = 0; walked < height - 1; walked++) {
      int64_t row = bottom > size(s) ? -1 : nextrow(s, bottom);
      bottom = row >= 0 ? row : std::max(bottom, size(s)) + 1;
    }
    ASSERT_EQ(windowbottom(s), bottom) << step;
    int64_t start = rowstart(s, s.point);
    ASSERT_LE(start, s.point);
    int64_t next = nextrow(s, start);
    ASSERT_TRUE(next < 0 || next > s.point) << step;
    ASSERT_TRUE(s.top == 0 || byteat(s, s.top - 1) == '\n' || rowsabove(s, s.top, 0) == s.top);
  }
}

}  // namespace
}  // namespace tarn

// The look of texts: the layout of rows, the selection, and the status row.
#include "editor/paint.h"

#include <gtest/gtest.h>

#include <string>

#include "editor/grid.h"
#include "editor/kink.h"
#include "editor/state.h"
#include "tests/editor/buffer.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct Paint : testing::Test {
  void SetUp() override { setsize(20, 5); }
  void TearDown() override {
    setsize(80, 24);
    kink = defaultkink;
    inkmode = 3;
    mark = -1;
    stat = "";
    statshift = 0;
  }
  static void setsize(int64_t w, int64_t h) {
    width = w;
    height = h;
    gridreset();
  }
  static Cell16 cell(int64_t col, int64_t row) { return drawngrid()[row * width + col]; }
  static std::string glyphs(int64_t row) {
    std::string text;
    for (int64_t col = 0; col < width; col++) text += static_cast<char>(cell(col, row) & 0x7F);
    return text;
  }
};

TEST_F(Paint, ALineAndTheEmptyRows) {
  Buffer b("ab c\nd");
  b.go(5);
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 0);
  EXPECT_EQ(spot.row, 2);
  EXPECT_EQ(glyphs(1), "ab_c,               ");
  EXPECT_EQ(glyphs(2), "d                   ");
  EXPECT_EQ(glyphs(3), std::string(20, ' '));
  EXPECT_EQ(cell(0, 1), 0x0361);
  EXPECT_EQ(cell(2, 1), 0x025F);
  EXPECT_EQ(cell(4, 1), 0x022C);
  EXPECT_EQ(cell(5, 1), 0x0020);
  EXPECT_EQ(cell(1, 2), 0x0020);
}

TEST_F(Paint, WrapsAtTheWidth) {
  setsize(10, 5);
  Buffer b("0123456789abc\nxyz");
  b.go(10);
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 0);
  EXPECT_EQ(spot.row, 2);
  EXPECT_EQ(glyphs(1), "0123456789");
  EXPECT_EQ(glyphs(2), "abc,      ");
  EXPECT_EQ(glyphs(3), "xyz       ");
}

TEST_F(Paint, TheNewlineOfAFullRow) {
  setsize(10, 5);
  Buffer b("0123456789\nx");
  b.go(10);
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 0);
  EXPECT_EQ(spot.row, 2);
  EXPECT_EQ(glyphs(2), ",         ");
  EXPECT_EQ(glyphs(3), "x         ");
}

TEST_F(Paint, TheEndOfAFullRow) {
  setsize(10, 5);
  Buffer b("0123456789");
  b.go(10);
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 0);
  EXPECT_EQ(spot.row, 2);
}

TEST_F(Paint, TheScreenCutsALine) {
  setsize(10, 3);
  Buffer b(std::string(100, 'x') + "\n");
  b.go(15);
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 5);
  EXPECT_EQ(spot.row, 2);
  EXPECT_EQ(glyphs(2), "xxxxxxxxxx");
}

TEST_F(Paint, StartsAtTheTop) {
  Buffer b("a\nb\nc\n");
  b.go(4);
  b.s().top = 2;
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.row, 2);
  EXPECT_EQ(glyphs(1), "b,                  ");
}

TEST_F(Paint, AnEmptyText) {
  Buffer b("");
  Spot spot = drawtext(nullptr);
  EXPECT_EQ(spot.col, 0);
  EXPECT_EQ(spot.row, 1);
  EXPECT_EQ(glyphs(1), std::string(20, ' '));
}

TEST_F(Paint, ASelection) {
  Buffer b("abcdef");
  b.go(1);
  mark = 3;
  drawtext(nullptr);
  EXPECT_EQ(cell(0, 1), 0x0361);
  EXPECT_EQ(cell(1, 1), 0xE362);  // clean insert has its flag set: n13
  EXPECT_EQ(cell(2, 1), 0xE363);
  EXPECT_EQ(cell(3, 1), 0x0364);
  mark = 1;
  drawtext(nullptr);
  EXPECT_EQ(cell(1, 1), 0x0362);  // at the point: nothing
  mark = 0;
  b.go(6);
  drawtext(nullptr);
  EXPECT_EQ(cell(5, 1), 0xE366);
  EXPECT_EQ(cell(6, 1), 0x0020);
}

TEST_F(Paint, ChangedBytes) {
  Buffer b("aab");
  b.type("a");  // in front of its equal: underlined all the same, as nothing was changed before
  b.go(0);
  drawtext(nullptr);
  EXPECT_EQ(cell(0, 1), 0x0BE1);
  EXPECT_EQ(cell(1, 1), 0x0B61);
  EXPECT_EQ(cell(2, 1), 0x0B61);
}

TEST_F(Paint, ChangedBytesOfATextOfTheSameLength) {
  Buffer b("abcdef");
  b.s().insertmode = 0;
  b.type("x");
  b.go(5);
  b.type("y");
  drawtext(nullptr);
  EXPECT_EQ(cell(0, 1), 0x8BF8);
  EXPECT_EQ(cell(1, 1), 0x8B62);  // within the bounds, but the same as saved
  EXPECT_EQ(cell(5, 1), 0x8BF9);
}

TEST_F(Paint, AHighlight) {
  Buffer b("abc\n");
  drawtext([](int64_t i) { return i == 1 || i == 3; });
  EXPECT_EQ(cell(0, 1), 0x0361);
  EXPECT_EQ(cell(1, 1), 0xE362);
  EXPECT_EQ(cell(2, 1), 0x0363);
  EXPECT_EQ(cell(3, 1), 0xE22C);
  EXPECT_EQ(cell(4, 1), 0x0020);
}

TEST_F(Paint, ThePointMustBeInTheWindow) {
  Buffer b("a\nb\nc\nd\ne\n");
  b.go(8);
  EXPECT_FAILS(drawtext(nullptr), "editor/paint.cpp");
  b.go(0);
  b.s().top = 2;
  EXPECT_FAILS(drawtext(nullptr), "editor/paint.cpp");
  setsize(20, 1);
  b.s().top = 0;
  EXPECT_FAILS(drawtext(nullptr), "editor/paint.cpp");
}

TEST_F(Paint, TheStatusRow) {
  Buffer b("");
  stat = "/a/b c";
  paintword("File");
  EXPECT_EQ(glyphs(0), "File /a/b_c         ");
  EXPECT_EQ(cell(0, 0), 0x0346);
  EXPECT_EQ(cell(4, 0), 0xBB20);
  EXPECT_EQ(cell(5, 0), 0x032F);
  EXPECT_EQ(cell(9, 0), 0x025F);
  EXPECT_EQ(cell(11, 0), 0x0020);
  b.type("x");
  paintword("File");
  EXPECT_EQ(cell(0, 0), 0x0B46);
}

TEST_F(Paint, TheInkCell) {
  Buffer b("");
  for (int32_t mode = 1; mode <= 3; mode++) {
    inkmode = mode;
    paintword("File");
    uint32_t colour = 8 + static_cast<uint32_t>(mode);
    EXPECT_EQ(cell(4, 0), gridcell(colour, colour, ' '));
  }
  paintword("Byte");
  EXPECT_EQ(cell(4, 0), 0x8820);
  paintword("Line");
  EXPECT_EQ(cell(4, 0), 0x8820);
  paintword("Taps");
  EXPECT_EQ(cell(4, 0), 0xBB20);
}

TEST_F(Paint, TheStatusRowOfTheLists) {
  Buffer b("");
  stat = "x";
  for (const char* word : {"Open", "Save", "Tabs"}) {
    selected = 1;
    paintword(word);
    EXPECT_EQ(cell(0, 0) >> 8, 0x4B) << word;
    EXPECT_EQ(cell(5, 0), 0x4B78);
    EXPECT_EQ(cell(6, 0), 0x4420);
    selected = 5;  // a multiple of the height: only the buffer list can stand on row 0
    paintword(word);
    EXPECT_EQ(cell(0, 0) >> 8, word[0] == 'T' ? 0x8B : 0x4B) << word;
    EXPECT_EQ(cell(6, 0), word[0] == 'T' ? 0x8820 : 0x4420);
  }
  paintword("Find");
  EXPECT_EQ(cell(0, 0), 0x0346);
  selected = 0;
}

TEST_F(Paint, ALongStatusText) {
  Buffer b("");
  stat = "abcdefghijklmnopqrstuvwxyz";
  statshift = 0;
  paintword("File");
  EXPECT_EQ(glyphs(0), "File abcdefghijklmno");
  statshift = 12;
  paintword("File");
  EXPECT_EQ(glyphs(0), "File mnopqrstuvwxyz ");
  statshift = 100;
  paintword("File");
  EXPECT_EQ(glyphs(0), "File                ");
}

TEST_F(Paint, ANarrowStatusRow) {
  for (int64_t w = 1; w < 7; w++) {
    setsize(w, 2);
    Buffer b("");
    stat = "ab";
    paintword("File");
    EXPECT_EQ(glyphs(0), std::string("File ab").substr(0, static_cast<size_t>(w)));
  }
}

TEST_F(Paint, ColoursFollowThePalette) {
  Buffer b("a");
  drawtext(nullptr);
  EXPECT_EQ(cell(0, 1), 0x0361);
  kink = 0x76e948ba98800521;
  drawtext(nullptr);
  EXPECT_EQ(cell(0, 1), 0x0561);
}

}  // namespace
}  // namespace tarn

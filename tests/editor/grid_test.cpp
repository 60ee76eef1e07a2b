// The bytes of a painted difference, worked out by hand.
#include "editor/grid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace {

std::string bytes(const std::vector<Cell16>& drawn, const std::vector<Cell16>& shown,
                  int64_t columns, int64_t col, int64_t row) {
  int64_t cells = static_cast<int64_t>(drawn.size());
  std::vector<uint8_t> out(static_cast<size_t>(gridroom(cells)));
  int64_t n = gridbytes(drawn.data(), shown.data(), cells, columns, col, row, out.data());
  return std::string(reinterpret_cast<const char*>(out.data()), static_cast<size_t>(n));
}

// One changed cell in front of a cell that stays.
std::string onecell(Cell16 cell) {
  std::string all = bytes({cell, 7}, {0, 7}, 2, 0, 0);
  const std::string begin = "\x1B[1;1H\x1B[0m", end = "\x1B[1;1H";
  EXPECT_EQ(all.substr(0, begin.size()), begin);
  EXPECT_EQ(all.substr(all.size() - end.size()), end);
  return all.substr(begin.size(), all.size() - begin.size() - end.size());
}

TEST(Gridbytes, NothingChanged) {
  EXPECT_EQ(bytes({1, 2, 3, 4}, {1, 2, 3, 4}, 2, 1, 1), "\x1B[1;1H\x1B[0m\x1B[2;2H");
}

TEST(Gridbytes, PlainCells) {
  EXPECT_EQ(onecell(0x0361), "\x1B[33m\x1B[40ma");
  EXPECT_EQ(onecell(0x8961), "\x1B[91m\x1B[100ma");
  EXPECT_EQ(onecell(0xF761), "\x1B[37m\x1B[107ma");
  EXPECT_EQ(onecell(0x7F7E), "\x1B[97m\x1B[47m~");
  EXPECT_EQ(onecell(0x0121), "\x1B[31m\x1B[40m!");
}

TEST(Gridbytes, ChangedCellsAreUnderlined) {
  EXPECT_EQ(onecell(0x03E1), "\x1B[4m\x1B[33m\x1B[40ma");
  EXPECT_EQ(onecell(0x03A1), "\x1B[4m\x1B[33m\x1B[40m!");
  EXPECT_EQ(onecell(0x03FE), "\x1B[4m\x1B[33m\x1B[40m~");
  EXPECT_EQ(onecell(0x03FF), "\x1B[1m\x1B[33m\x1B[40m>");  // not these two
  EXPECT_EQ(onecell(0x03A0), "\x1B[1m\x1B[33m\x1B[40m<");
}

TEST(Gridbytes, BlanksSendNoForeground) {
  EXPECT_EQ(onecell(0x2220), "\x1B[42m ");
  EXPECT_EQ(onecell(0x22A0), "\x1B[4m\x1B[42m ");  // changed
}

TEST(Gridbytes, EqualColoursShowTheOppositeInItalics) {
  EXPECT_EQ(onecell(0x0061), "\x1B[3m\x1B[97m\x1B[40ma");   // 15 - 0
  EXPECT_EQ(onecell(0x3361), "\x1B[3m\x1B[94m\x1B[43ma");   // 15 - 3
  EXPECT_EQ(onecell(0x8861), "\x1B[3m\x1B[37m\x1B[100ma");  // 7 - 0
  EXPECT_EQ(onecell(0xFF61), "\x1B[3m\x1B[30m\x1B[107ma");  // 7 - 7
  EXPECT_EQ(onecell(0x33E1), "\x1B[4m\x1B[3m\x1B[94m\x1B[43ma");
  EXPECT_EQ(onecell(0x3341 - 0x40), "\x1B[1m\x1B[3m\x1B[94m\x1B[43mA");
}

TEST(Gridbytes, CodesThatDoNotPrintAreBoldNames) {
  struct {
    int glyph;
    char shown;
  } rows[] = {{0x00, '['}, {0x01, 'A'}, {0x1A, 'Z'}, {0x1B, '('}, {0x1C, ')'}, {0x1D, '{'},
              {0x1E, '}'}, {0x1F, ']'}, {0x20, '<'}, {0x7F, '>'}};
  for (auto& row : rows) {
    EXPECT_EQ(onecell(static_cast<Cell16>(0x0200 + row.glyph)),
              std::string("\x1B[1m\x1B[32m\x1B[40m") + row.shown)
        << row.glyph;
  }
}

TEST(Gridbytes, ColoursAreSentWhenTheyChange) {
  EXPECT_EQ(bytes({0x0361, 0x0362, 0x0163, 0x4164}, {0, 0, 0, 0}, 4, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[33m\x1B[40mab\x1B[31mc\x1B[44md\x1B[1;1H");
}

TEST(Gridbytes, ABlankKeepsTheForegroundSent) {
  EXPECT_EQ(bytes({0x0361, 0x0020, 0x0362, 9}, {0, 0, 0, 9}, 4, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[33m\x1B[40ma b\x1B[1;1H");
}

TEST(Gridbytes, AStyleThatEndsForgetsTheColours) {
  EXPECT_EQ(bytes({0x03E1, 0x0362, 0x0363, 9}, {0, 0, 0, 9}, 4, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[4m\x1B[33m\x1B[40ma\x1B[0m\x1B[33m\x1B[40mbc\x1B[1;1H");
}

TEST(Gridbytes, AStyleThatStaysWhileAnotherEndsIsSentAgain) {
  // Underlined italics, then underlined only.
  EXPECT_EQ(bytes({0x33E1, 0x03E2, 9, 9}, {0, 0, 9, 9}, 4, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[4m\x1B[3m\x1B[94m\x1B[43ma"
            "\x1B[0m\x1B[4m\x1B[33m\x1B[40mb\x1B[1;1H");
}

TEST(Gridbytes, AStyleThatBeginsKeepsTheColours) {
  EXPECT_EQ(bytes({0x0361, 0x03E2, 9, 9}, {0, 0, 9, 9}, 4, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[33m\x1B[40ma\x1B[4mb\x1B[1;1H");
}

TEST(Gridbytes, MovesOverWhatStays) {
  // Rows of 3: the first cell, then the last of row 2, then row 3's middle.
  EXPECT_EQ(bytes({0x0361, 1, 1, 1, 1, 0x0362, 1, 0x0363, 1}, {0, 1, 1, 1, 1, 0, 1, 0, 1}, 3, 2, 0),
            "\x1B[1;1H\x1B[0m\x1B[33m\x1B[40ma\x1B[2;3Hb\x1B[3;2Hc\x1B[1;3H");
  EXPECT_EQ(bytes({1, 0x0362}, {1, 0}, 2, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[1;2H\x1B[33m\x1B[40mb\x1B[1;1H");
}

TEST(Gridbytes, ARunGoesOverTheEndOfARow) {
  EXPECT_EQ(bytes({1, 0x0361, 0x0362, 1}, {1, 0, 0, 1}, 2, 1, 1),
            "\x1B[1;1H\x1B[0m\x1B[1;2H\x1B[33m\x1B[40mab\x1B[2;2H");
}

TEST(Gridbytes, LongEqualRunsAreSkippedToTheCell) {
  for (size_t at = 0; at < 200; at++) {
    std::vector<Cell16> shown(200, 0x0361), drawn = shown;
    drawn[at] = 0x0362;
    std::string move = at == 0 ? "" : "\x1B[1;" + std::to_string(at + 1) + "H";
    EXPECT_EQ(bytes(drawn, shown, 200, 0, 0),
              "\x1B[1;1H\x1B[0m" + move + "\x1B[33m\x1B[40mb\x1B[1;1H");
  }
}

TEST(Fillcells, FillsThoseCellsAlone) {
  for (size_t from = 0; from < 40; from++) {
    for (size_t to = from; to < 40; to++) {
      std::vector<Cell16> cells(40, 0x1234), expected = cells;
      for (size_t i = from; i < to; i++) expected[i] = 0xF0A5;
      fillcells(cells.data() + from, cells.data() + to, 0xF0A5);
      EXPECT_EQ(cells, expected) << from << " " << to;
    }
  }
  Cell16 cell = 7;
  fillcells(&cell + 1, &cell, 9);
  EXPECT_EQ(cell, 7);
}

TEST(Gridbytes, TheDetour) {
  const std::vector<Cell16> same(12, 5);
  const std::string begin = "\x1B[1;1H\x1B[0m";
  EXPECT_EQ(bytes(same, same, 3, 0, 2), begin + "\x1B[3;1H\x1B[1;3H\x1B[3;1H");
  EXPECT_EQ(bytes(same, same, 3, 1, 2), begin + "\x1B[3;2H");
  EXPECT_EQ(bytes(same, same, 3, 0, 1), begin + "\x1B[2;1H");
  EXPECT_EQ(bytes(same, same, 3, 0, 3), begin + "\x1B[4;1H");
}

TEST(Gridbytes, TheCellsOfTheFlash) {
  // What stands shown behind an evaluation differs from every cell of a text.
  EXPECT_EQ(bytes({0x0020, 0x0361}, {0x9021, 0x9021}, 2, 0, 0),
            "\x1B[1;1H\x1B[0m\x1B[40m \x1B[33ma\x1B[1;1H");
}

TEST(Gridbytes, FitsItsRoom) {
  // The longest cells: each ends a style, begins three, and has two bright colours.
  std::vector<Cell16> drawn, shown;
  for (int i = 0; i < 1000; i++) {
    drawn.push_back(i % 4 == 0 ? 0xFFE1 : i % 4 == 2 ? 0x9800 : 7);
    shown.push_back(i % 2 == 0 ? 0 : 7);
  }
  EXPECT_LE(static_cast<int64_t>(bytes(drawn, shown, 10, 0, 0).size()), gridroom(1000));
}

}  // namespace
}  // namespace tarn

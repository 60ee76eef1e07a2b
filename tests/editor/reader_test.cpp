// Sequential reading in both directions, and the searches for newlines across pieces.
#include "editor/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

// "ab\ncd" and "ef\n" as runs with "X" and a newline typed between, backwards: ab\ncdX\nef\n
struct Pieces {
  sheet s = sheetnew(Str("ab\ncdef\n"));
  Pieces() {
    s.point = 5;
    insertbyte(s, '\n');
    insertbyte(s, 'X');
  }
  ~Pieces() { sheetdrop(s); }
  Pieces(const Pieces&) = delete;
  Pieces& operator=(const Pieces&) = delete;
};
const std::string text = "ab\ncdX\nef\n";

TEST(Reader, ReadsEveryByteForwardsBackwardsAndAtRandom) {
  Pieces pieces;
  int64_t n = size(pieces.s);
  ASSERT_EQ(n, 10);
  reader r = readsheet(pieces.s);
  for (int64_t i = 0; i < n; i++) EXPECT_EQ(readbyte(r, i), text[static_cast<size_t>(i)]);
  for (int64_t i = n; i-- > 0;) EXPECT_EQ(readbyte(r, i), text[static_cast<size_t>(i)]);
  for (int64_t k = 0; k < 100; k++) {
    int64_t i = k * 7 % n;
    EXPECT_EQ(readbyte(r, i), text[static_cast<size_t>(i)]);
  }
}

TEST(Reader, OutsideTheTextAreNewlinesAndTheStretchStays) {
  Pieces pieces;
  reader r = readsheet(pieces.s);
  EXPECT_EQ(readbyte(r, -1), 10);
  EXPECT_EQ(readbyte(r, 10), 10);
  EXPECT_EQ(readbyte(r, 9), '\n');
  EXPECT_EQ(readbyte(r, 10), 10);
  EXPECT_EQ(readbyte(r, 8), 'f');
  EXPECT_EQ(readbyte(r, 0), 'a');
  EXPECT_EQ(readbyte(r, -1), 10);
  EXPECT_EQ(readbyte(r, 1), 'b');
  EXPECT_FALSE(readto(r, 10));
  EXPECT_TRUE(readto(r, 5));
  EXPECT_EQ(r.start, 5);
  EXPECT_EQ(r.length, 1);
}

TEST(Reader, AnEmptyTextHasNothing) {
  sheet s = sheetnew(Str());
  reader r = readsheet(s);
  EXPECT_EQ(readbyte(r, 0), 10);
  EXPECT_EQ(newlinefrom(r, 0, 0), 0);
  EXPECT_EQ(newlinebefore(r, 0, 0), -1);
  EXPECT_EQ(newlinecount(r, 0, 0), 0);
  EXPECT_EQ(linestart(s, 0), 0);
  EXPECT_EQ(lineend(s, 0), 0);
}

TEST(Reader, FindsTheNextNewlineUpToALimit) {
  Pieces pieces;
  reader r = readsheet(pieces.s);
  EXPECT_EQ(newlinefrom(r, 0, 10), 2);
  EXPECT_EQ(newlinefrom(r, 2, 10), 2);
  EXPECT_EQ(newlinefrom(r, 3, 10), 6);
  EXPECT_EQ(newlinefrom(r, 3, 6), 6);  // none before the limit
  EXPECT_EQ(newlinefrom(r, 3, 5), 5);
  EXPECT_EQ(newlinefrom(r, 10, 10), 10);
}

TEST(Reader, FindsTheLastNewlineDownToALimit) {
  Pieces pieces;
  reader r = readsheet(pieces.s);
  EXPECT_EQ(newlinebefore(r, 10, 0), 9);
  EXPECT_EQ(newlinebefore(r, 9, 0), 6);
  EXPECT_EQ(newlinebefore(r, 6, 0), 2);
  EXPECT_EQ(newlinebefore(r, 6, 2), 2);
  EXPECT_EQ(newlinebefore(r, 6, 3), 2);  // none: one less than the limit
  EXPECT_EQ(newlinebefore(r, 2, 0), -1);
}

// The backward search looks at eight bytes at once.
TEST(Reader, FindsANewlineAtEveryPlaceOfALongRun) {
  for (size_t at = 0; at < 40; at++) {
    std::string line(40, '\v');  // 11, the neighbour of 10
    line[at] = '\n';
    sheet s = sheetnew(strof(line));
    reader r = readsheet(s);
    for (int64_t i = 0; i <= 40; i++) {
      bool before = static_cast<int64_t>(at) < i;
      ASSERT_EQ(newlinebefore(r, i, 0), before ? static_cast<int64_t>(at) : -1) << at << ' ' << i;
    }
    sheetdrop(s);
  }
}

// What a search remembers must not be wrong after an edit in the stretch, or in another text.
TEST(Reader, VeryLongLinesAreSearchedRightAgainAndAgain) {
  sheet s = sheetnew(strof(std::string(300000, 'a') + "\n" + std::string(300000, 'b')));
  for (int round = 0; round < 2; round++) {
    EXPECT_EQ(linestart(s, 200000), 0);
    EXPECT_EQ(lineend(s, 100000), 300000);
    EXPECT_EQ(linestart(s, 600001), 300001);
    EXPECT_EQ(lineend(s, 300001), 600001);
    EXPECT_EQ(lineend(s, 300000), 300000);
    EXPECT_EQ(linestart(s, 300000), 0);
  }
  s.point = 150000;
  insertbyte(s, '\n');
  EXPECT_EQ(lineend(s, 10), 150000);
  EXPECT_EQ(linestart(s, 290000), 150001);
  EXPECT_EQ(lineend(s, 150001), 300001);
  retext(s, strof(std::string(100000, 'c') + "\n" + std::string(100000, 'd')));
  EXPECT_EQ(lineend(s, 10), 100000);
  EXPECT_EQ(linestart(s, 200001), 100001);
  sheetdrop(s);
  s = sheetnew(strof(std::string(70000, 'e') + "\n" + std::string(530000, 'f')));
  EXPECT_EQ(lineend(s, 0), 70000);
  EXPECT_EQ(linestart(s, 600000), 70001);
  sheetdrop(s);
}

TEST(Reader, CountsNewlinesOfAnyNeighbours) {
  std::string bytes;
  for (int i = 0; i < 20000; i++) {
    bytes += static_cast<char>(i * 37 % 256);
    bytes += i % 3 == 0 ? '\n' : '\v';
  }
  int64_t count = std::count(bytes.begin(), bytes.end(), '\n');
  sheet s = sheetnew(strof(bytes));
  reader r = readsheet(s);
  EXPECT_EQ(newlinecount(r, 0, size(s)), count);
  sheetdrop(s);
}

TEST(Reader, CountsNewlines) {
  Pieces pieces;
  reader r = readsheet(pieces.s);
  EXPECT_EQ(newlinecount(r, 0, 10), 3);
  EXPECT_EQ(newlinecount(r, 2, 3), 1);
  EXPECT_EQ(newlinecount(r, 3, 6), 0);
  EXPECT_EQ(newlinecount(r, 3, 7), 1);
}

TEST(Reader, TellsStartAndEndOfALine) {
  Pieces pieces;
  EXPECT_EQ(linestart(pieces.s, 2), 0);  // on the newline: still its line
  EXPECT_EQ(lineend(pieces.s, 2), 2);
  EXPECT_EQ(linestart(pieces.s, 3), 3);
  EXPECT_EQ(lineend(pieces.s, 3), 6);
  EXPECT_EQ(linestart(pieces.s, 10), 10);
  EXPECT_EQ(lineend(pieces.s, 10), 10);
}

}  // namespace
}  // namespace tarn

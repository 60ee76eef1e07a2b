// Indenting and outdenting: which lines are touched, the point, and taking it back.
#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(Dentedit, TouchesLinesWithAByteInTheRange) {
  Buffer buffer("aa\nbb\ncc\n");
  EXPECT_TRUE(opindent(1, 4, ' '));
  EXPECT_EQ(buffer.text(), " aa\n bb\ncc\n");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "aa\nbb\ncc\n");
  EXPECT_TRUE(opindent(0, 3, '#'));  // a line that begins at the end of the range stays
  EXPECT_EQ(buffer.text(), "#aa\nbb\ncc\n");
}

TEST(Dentedit, AnEmptyRangeIsTheLineOfThePoint) {
  Buffer buffer("aa\nbb\ncc");
  EXPECT_TRUE(opindent(4, 4, 'x'));
  EXPECT_EQ(buffer.text(), "aa\nxbb\ncc");
  EXPECT_TRUE(opindent(9, 9, 'y'));  // behind the last byte
  EXPECT_EQ(buffer.text(), "aa\nxbb\nycc");
}

TEST(Dentedit, PassesEmptyLinesOver) {
  Buffer buffer("a\n\n\nb");
  EXPECT_TRUE(opindent(0, 5, ' '));
  EXPECT_EQ(buffer.text(), " a\n\n\n b");
  EXPECT_TRUE(opindent(0, 7, '\n'));
  EXPECT_EQ(buffer.text(), "a\n\n\nb");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), " a\n\n\n b");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "a\n\n\nb");
}

TEST(Dentedit, WithoutALineToTouchIsRefused) {
  Buffer buffer("\n\n");
  EXPECT_FALSE(opindent(0, 2, ' '));
  EXPECT_FALSE(opindent(1, 1, ' '));
  EXPECT_FALSE(opindent(2, 2, '\n'));
  EXPECT_FALSE(editback());
}

TEST(Dentedit, OutdentingNeedsASpaceOnEveryLine) {
  Buffer buffer(" a\nb\n c");
  EXPECT_FALSE(opindent(0, 7, '\n'));
  EXPECT_EQ(buffer.text(), " a\nb\n c");
  EXPECT_TRUE(opindent(0, 2, '\n'));
  EXPECT_EQ(buffer.text(), "a\nb\n c");
}

TEST(Dentedit, ALineMadeEmptyComesBack) {
  Buffer buffer(" ");
  EXPECT_TRUE(opindent(0, 0, '\n'));
  EXPECT_EQ(buffer.text(), "");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), " ");
}

TEST(Dentedit, LinesMadeEmptyAreToldFromEmptyOnes) {
  Buffer buffer(" \n\n  \n\n \n");
  EXPECT_TRUE(opindent(0, size(buffer.s()), '\n'));
  EXPECT_EQ(buffer.text(), "\n\n \n\n\n");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), " \n\n  \n\n \n");
  EXPECT_TRUE(editredo());
  EXPECT_EQ(buffer.text(), "\n\n \n\n\n");
}

TEST(Dentedit, ThePointStaysOnItsByte) {
  Buffer buffer("ab\ncd\nef");
  buffer.go(4);  // on "d"
  EXPECT_TRUE(opindent(0, 8, ' '));
  EXPECT_EQ(buffer.text(), " ab\n cd\n ef");
  EXPECT_EQ(buffer.point(), 6);
  buffer.go(0);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.point(), 4);
  buffer.go(3);  // on "c", the first of its line
  EXPECT_TRUE(opindent(0, 8, ' '));
  EXPECT_EQ(buffer.point(), 5);
}

TEST(Dentedit, ThePointOnASpaceTakenOffStaysAtTheLine) {
  Buffer buffer(" a\n b");
  buffer.go(3);
  EXPECT_TRUE(opindent(0, 5, '\n'));
  EXPECT_EQ(buffer.text(), "a\nb");
  EXPECT_EQ(buffer.point(), 2);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.point(), 3);
}

TEST(Dentedit, TheEndOfTheTextMovesWithThePoint) {
  Buffer buffer("a\nb");
  buffer.go(3);
  EXPECT_TRUE(opindent(0, 3, ' '));
  EXPECT_EQ(buffer.point(), 5);
}

TEST(Dentedit, RangesBeyondSixteenMillionBytes) {
  std::string text(17000000, 'x');
  Buffer buffer("a\n" + text);
  int64_t n = size(buffer.s());
  EXPECT_TRUE(opindent(0, n, ' '));
  EXPECT_EQ(size(buffer.s()), n + 2);
  EXPECT_EQ(byteat(buffer.s(), 3), ' ');
  EXPECT_TRUE(editback());
  EXPECT_TRUE(isclean(buffer.s()));
}

TEST(Dentedit, ATextWithoutRoomIsRefused) {
  Buffer buffer("");
  Str text = strsized(sizelimit - 1);
  text.own()[0] = 'a';
  text.own()[1] = '\n';
  text.own()[2] = 'b';
  text.own()[3] = '\n';
  buffer.s() = sheetnew(text);
  EXPECT_FALSE(opindent(0, 4, ' '));
  EXPECT_TRUE(opindent(0, 2, ' '));
  EXPECT_EQ(size(buffer.s()), sizelimit);
}

}  // namespace
}  // namespace tarn

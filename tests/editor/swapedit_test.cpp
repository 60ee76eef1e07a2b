// Replacing in a range, and taking it back.
#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(Swapedit, ReplacesFromLeftToRightWithoutOverlaps) {
  Buffer buffer("aaaaa");
  EXPECT_TRUE(opreplace(0, 5, Str("aa"), Str("b")));
  EXPECT_EQ(buffer.text(), "bba");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "aaaaa");
  EXPECT_TRUE(editredo());
  EXPECT_EQ(buffer.text(), "bba");
}

TEST(Swapedit, StaysInItsRange) {
  Buffer buffer("ababab");
  EXPECT_TRUE(opreplace(1, 5, Str("ab"), Str("xyz")));  // "baba" holds one
  EXPECT_EQ(buffer.text(), "abxyzab");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "ababab");
}

TEST(Swapedit, NothingFoundIsRefused) {
  Buffer buffer("abc");
  EXPECT_FALSE(opreplace(0, 3, Str("x"), Str("y")));
  EXPECT_FALSE(opreplace(0, 3, Str(), Str("y")));
  EXPECT_FALSE(opreplace(0, 1, Str("ab"), Str("y")));
  EXPECT_FALSE(opreplace(2, 2, Str("c"), Str("y")));
  EXPECT_FALSE(editback());
}

TEST(Swapedit, UndoTellsWhatWasMadeFromWhatWasThere) {
  Buffer buffer("ab");
  EXPECT_TRUE(opreplace(0, 2, Str("b"), Str("aa")));
  EXPECT_EQ(buffer.text(), "aaa");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "ab");
}

TEST(Swapedit, UndoKeepsBytesThatWereLikeTheNewText) {
  Buffer buffer("xayax");
  EXPECT_TRUE(opreplace(0, 5, Str("y"), Str("a")));
  EXPECT_EQ(buffer.text(), "xaaax");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "xayax");
}

TEST(Swapedit, TheNewTextMayBeEmpty) {
  Buffer buffer("xaxbx");
  EXPECT_TRUE(opreplace(0, 5, Str("x"), Str()));
  EXPECT_EQ(buffer.text(), "ab");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "xaxbx");
  EXPECT_TRUE(opreplace(0, 5, Str("xaxbx"), Str()));
  EXPECT_EQ(buffer.text(), "");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "xaxbx");
}

TEST(Swapedit, ThePointStaysOrGoesToTheEnd) {
  Buffer buffer("aaa");
  EXPECT_TRUE(opreplace(0, 3, Str("a"), Str("bb")));
  EXPECT_EQ(buffer.text(), "bbbbbb");
  EXPECT_EQ(buffer.point(), 0);
  buffer.go(6);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "aaa");
  EXPECT_EQ(buffer.point(), 3);
}

// A replacement is of type 1, as a root is: it can be undone all the same.
TEST(Swapedit, CanBeUndoneWhateverItsPosition) {
  Buffer buffer("xyzab");
  buffer.go(5);
  buffer.type("b");
  buffer.go(5);
  EXPECT_TRUE(opreplace(3, 5, Str("a"), Str("q")));
  EXPECT_EQ(operv(lastoper()), 3);
  EXPECT_EQ(opert(lastoper()), 3);
  EXPECT_EQ(buffer.text(), "xyzqbb");
  EXPECT_EQ(undodepth(), 1);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "xyzabb");
}

TEST(Swapedit, TextsOfAnyLength) {
  std::string old(300, 'o');
  std::string fresh(70000, 'f');
  Buffer buffer("<" + old + "|" + old + ">");
  EXPECT_TRUE(opreplace(0, size(buffer.s()), strof(old), strof(fresh)));
  EXPECT_EQ(buffer.text(), "<" + fresh + "|" + fresh + ">");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "<" + old + "|" + old + ">");
}

TEST(Swapedit, ATextThatWouldGrowTooLongIsRefused) {
  Buffer buffer(std::string(40000, 'a'));
  EXPECT_FALSE(opreplace(0, 40000, Str("a"), strof(std::string(40000, 'b'))));
  EXPECT_FALSE(editback());
}

TEST(Swapedit, BackAtTheSavedTextTheSheetIsClean) {
  Buffer buffer("one two one");
  EXPECT_TRUE(opreplace(0, 11, Str("one"), Str("three")));
  EXPECT_FALSE(isclean(buffer.s()));
  EXPECT_TRUE(editback());
  EXPECT_TRUE(isclean(buffer.s()));
}

}  // namespace
}  // namespace tarn

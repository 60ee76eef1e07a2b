// A buffer's text and its difference bounds, change by change.
#include "editor/sheet.h"

#include <gtest/gtest.h>

#include <string>

#include "editor/bounds.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

// A sheet of its own, with the keys that a user would press.
struct Page {
  sheet s;
  explicit Page(const std::string& text) : s(sheetnew(strof(text))) {}
  ~Page() { sheetdrop(s); }
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;

  void go(int64_t i) { s.point = static_cast<int32_t>(i); }
  void end() { go(size(s)); }
  void type(const std::string& keys) {
    for (char key : keys) insertbyte(s, static_cast<uint8_t>(key)), s.point++;
  }
  void backspace() { s.point--, deletebyte(s); }
  std::string text() { return textof(flatten(s)); }
};

#define EXPECT_BOUNDS(page, low, high) \
  do { \
    EXPECT_EQ((page).s.difflow, low); \
    EXPECT_EQ((page).s.diffhigh, high); \
    checkbounds((page).s); \
  } while (0)

TEST(Sheet, AnEmptyTextIsCleanAndHasNoTree) {
  Page page("");
  EXPECT_EQ(page.s.root, nullptr);
  EXPECT_EQ(size(page.s), 0);
  EXPECT_EQ(byteat(page.s, 0), 10);
  EXPECT_TRUE(isclean(page.s));
  EXPECT_EQ(flatten(page.s), Str());
}

TEST(Sheet, ANewOneIsOneCleanRun) {
  Str text("one\ntwo");
  sheet s = sheetnew(text);
  EXPECT_TRUE(s.saved.same(text));
  EXPECT_EQ(shardbytes(s.root), text.bytes());
  EXPECT_EQ(shardlength(s.root), 7);
  EXPECT_EQ(s.insertmode, 1);
  EXPECT_EQ(s.top, 0);
  EXPECT_EQ(s.point, 0);
  EXPECT_EQ(s.difflow, 7);
  EXPECT_EQ(s.diffhigh, 7);
  EXPECT_TRUE(flatten(s).same(text));
  sheetdrop(s);
}

TEST(Sheet, BytesOutsideTheTextAreNewlines) {
  Page page("ab");
  EXPECT_EQ(byteat(page.s, -1), 10);
  EXPECT_EQ(byteat(page.s, 0), 'a');
  EXPECT_EQ(byteat(page.s, 1), 'b');
  EXPECT_EQ(byteat(page.s, 2), 10);
  EXPECT_EQ(byteat(page.s, INT64_MAX), 10);
}

TEST(Sheet, AStretchCrossesPieces) {
  Page page("abcdef");
  page.go(3);
  page.type("XY");
  EXPECT_EQ(stretch(page.s, 0, 8), Str("abcXYdef"));
  EXPECT_EQ(stretch(page.s, 2, 6), Str("cXYd"));
  EXPECT_EQ(stretch(page.s, 4, 4), Str());
  EXPECT_DEATH(stretch(page.s, 5, 4), "ASSERTION FAILED");
  EXPECT_DEATH(stretch(page.s, 5, 9), "ASSERTION FAILED");
}

TEST(Sheet, InsertingLeavesThePointInFront) {
  Page page("ab");
  page.go(1);
  insertbyte(page.s, 'x');
  EXPECT_EQ(page.s.point, 1);
  EXPECT_EQ(page.text(), "axb");
}

TEST(Sheet, DeletingTheLastByteLeavesThePointAtTheEnd) {
  Page page("abc");
  page.go(2);
  deletebyte(page.s);
  EXPECT_EQ(page.text(), "ab");
  EXPECT_EQ(page.s.point, 2);
  EXPECT_EQ(size(page.s), 2);
}

TEST(Sheet, DeletingPastTheEndIsAFault) {
  Page page("abc");
  page.go(3);
  EXPECT_DEATH(deletebyte(page.s), "ASSERTION FAILED:editor/shard.cpp:");
  page.go(1);
  EXPECT_DEATH(deletecount(page.s, 3), "ASSERTION FAILED:editor/shard.cpp:");
}

TEST(Sheet, ReplacingStepsOverAndStopsAtTheEnd) {
  Page page("ab");
  page.go(1);
  replacebyte(page.s, '\n');
  EXPECT_EQ(page.text(), "a\n");
  EXPECT_EQ(page.s.point, 2);
  replacebyte(page.s, 'x');
  EXPECT_EQ(page.text(), "a\n");
  EXPECT_EQ(page.s.point, 2);
}

TEST(Sheet, BytesTypedInARowAreOneRun) {
  Page page("ab");
  page.go(1);
  page.type("x");
  EXPECT_FALSE(shardisrun(page.s.root));
  page.type("yz");
  ASSERT_TRUE(shardisrun(page.s.root));
  EXPECT_EQ(shardlength(page.s.root), 3);
  EXPECT_EQ(page.text(), "axyzb");
  // Not behind a byte taken out, in front of one, or behind a run of the file.
  deletecount(page.s, 0);
  page.go(3);
  deletebyte(page.s);
  page.type("Z");
  EXPECT_EQ(page.text(), "axyZb");
  page.go(1);
  page.type("1");
  EXPECT_EQ(page.text(), "a1xyZb");
  page.go(6);
  page.type("2");
  EXPECT_EQ(page.text(), "a1xyZb2");
  checkshards(page.s.root);
  checkbounds(page.s);
}

TEST(Sheet, TypingFillsBlockAfterBlock) {
  Page page("");
  std::string all;
  for (int i = 0; i < 20000; i++) all += static_cast<char>('a' + i % 26);
  page.type(all);
  EXPECT_EQ(page.text(), all);
  checkshards(page.s.root);
}

TEST(Sheet, ALongTextGoesInAsARunOverItself) {
  Page page("ab");
  page.go(1);
  insertstring(page.s, Str("xyz"));
  EXPECT_EQ(page.text(), "axyzb");
  EXPECT_EQ(page.s.point, 4);
  Str text = strof(std::string(256, 'q'));
  insertstring(page.s, text);
  EXPECT_EQ(page.text(), "axyz" + std::string(256, 'q') + "b");
  EXPECT_EQ(page.s.point, 260);
  ASSERT_NE(page.s.kept, nullptr);
  EXPECT_TRUE(page.s.kept->text.same(text));
  text = Str();  // the sheet keeps it alive
  EXPECT_EQ(page.text(), "axyz" + std::string(256, 'q') + "b");
}

TEST(Sheet, CopiesShareTheTree) {
  Page page("ab");
  sheet copy = page.s;
  insertbyte(copy, 'x');
  page.s = copy;
  EXPECT_EQ(page.text(), "xab");
}

// ---- The difference bounds.

TEST(Bounds, TypingAByteAndDeletingItIsClean) {
  Page page("abc");
  page.go(1);
  page.type("x");
  EXPECT_BOUNDS(page, 1, 2);
  EXPECT_FALSE(isclean(page.s));
  page.backspace();
  EXPECT_BOUNDS(page, 3, 3);
  EXPECT_TRUE(isclean(page.s));
}

TEST(Bounds, ChangingTheFirstByteAndBackIsClean) {
  Page page("abc");
  replacebyte(page.s, 'x');
  EXPECT_BOUNDS(page, 0, 1);
  page.go(0);
  replacebyte(page.s, 'a');
  EXPECT_BOUNDS(page, 3, 3);
  EXPECT_TRUE(isclean(page.s));
}

// A deletion alone leaves an empty range too, but not at the size.
TEST(Bounds, RetypingADeletedByteIsClean) {
  Page page("abc");
  page.go(1);
  deletebyte(page.s);
  EXPECT_BOUNDS(page, 1, 1);
  EXPECT_FALSE(isclean(page.s));
  page.type("b");
  EXPECT_BOUNDS(page, 3, 3);
  EXPECT_TRUE(isclean(page.s));
}

TEST(Bounds, AShorterTextIsNeverTakenForTheSavedOne) {
  Page page("ab");
  page.type("a");
  EXPECT_BOUNDS(page, 0, 1);  // aab
  page.go(0);
  page.type("b");
  EXPECT_BOUNDS(page, 0, 2);  // baab
  page.backspace();
  EXPECT_BOUNDS(page, 1, 2);  // aab
  page.end();
  page.backspace();
  EXPECT_EQ(page.text(), "aa");
  EXPECT_BOUNDS(page, 1, 2);
  EXPECT_FALSE(isclean(page.s));
}

TEST(Bounds, TypingOverADeletedEndIsAChange) {
  Page page("ab");
  page.type("a");
  page.end();
  page.backspace();
  EXPECT_EQ(page.text(), "aa");
  EXPECT_FALSE(isclean(page.s));
  checkbounds(page.s);
}

TEST(Bounds, AByteTypedIntoACleanTextShowsEvenBesideItsLike) {
  Page page("aab");
  page.type("a");
  EXPECT_BOUNDS(page, 0, 1);
  EXPECT_TRUE(ischanged(page.s, 0));
  EXPECT_FALSE(ischanged(page.s, 1));
}

// The lengths differ, so each byte of the range shows; further on the range tells it only roughly.
TEST(Bounds, RepeatsPushTheRangeOn) {
  Page page("aaaaaaaa");
  page.type("a");
  EXPECT_BOUNDS(page, 0, 1);
  page.type("a");
  EXPECT_BOUNDS(page, 2, 4);
  page.type("a");
  EXPECT_BOUNDS(page, 5, 8);
}

TEST(Bounds, OfEqualLengthsOnlyBytesThatDifferShow) {
  Page page("abcdef");
  page.go(1);
  replacebyte(page.s, 'X');
  page.go(4);
  replacebyte(page.s, 'Y');
  EXPECT_BOUNDS(page, 1, 5);
  std::string shown;
  for (int64_t i = -1; i < 7; i++) shown += ischanged(page.s, i) ? '1' : '0';
  EXPECT_EQ(shown, "00100100");
  EXPECT_TRUE(ischanged(page.s, 1, 'X'));
  EXPECT_FALSE(ischanged(page.s, 1, 'b'));
}

TEST(Bounds, OfOtherLengthsTheWholeRangeShows) {
  Page page("abcdef");
  page.go(1);
  page.type("X");
  page.go(4);
  page.type("Y");
  EXPECT_EQ(page.text(), "aXbcYdef");
  EXPECT_BOUNDS(page, 1, 5);
  for (int64_t i = 0; i < 8; i++) EXPECT_EQ(ischanged(page.s, i), i >= 1 && i < 5);
}

TEST(Bounds, NothingIsSavedUnderANewText) {
  Page page("");
  page.type("ab");
  EXPECT_BOUNDS(page, 0, 2);
  page.backspace();
  page.backspace();
  EXPECT_BOUNDS(page, 0, 0);
  EXPECT_TRUE(isclean(page.s));
}

TEST(Bounds, FarApartChangesSpanWhatIsBetween) {
  Page page("abcdefgh");
  page.type("X");
  page.end();
  page.type("Y");
  EXPECT_BOUNDS(page, 0, 10);
  page.backspace();
  EXPECT_BOUNDS(page, 0, 1);
}

// ---- The whole text at once.

TEST(Retext, KeepsThePointOrClampsIt) {
  Page page("abcdef");
  page.go(5);
  retext(page.s, Str("uvwxyz!"));
  EXPECT_EQ(page.s.point, 5);
  retext(page.s, Str("xy"));
  EXPECT_EQ(page.s.point, 2);
  retext(page.s, Str());
  EXPECT_EQ(page.s.point, 0);
  EXPECT_EQ(page.s.root, nullptr);
  EXPECT_BOUNDS(page, 0, 0);
  EXPECT_FALSE(isclean(page.s));
}

TEST(Retext, FindsTheBoundsAnew) {
  Page page("abcdef");
  retext(page.s, Str("abXXXef"));
  EXPECT_EQ(page.text(), "abXXXef");
  EXPECT_BOUNDS(page, 2, 5);
  retext(page.s, Str("abcdef"));
  EXPECT_TRUE(isclean(page.s));
  EXPECT_BOUNDS(page, 6, 6);
}

TEST(Retext, UsesTheSavedBytesAtBothEnds) {
  Page page("abcdef");
  retext(page.s, Str("abXef"));
  EXPECT_EQ(shardlength(page.s.root), 1);
  EXPECT_EQ(shardbytes(page.s.root->left), page.s.saved.bytes());
  EXPECT_EQ(shardbytes(page.s.root->right), page.s.saved.bytes() + 4);
  checkshards(page.s.root);
}

// ---- Saving.

TEST(Markclean, MakesOneRunOverTheText) {
  Page page("ab");
  page.type("xyz");
  insertstring(page.s, strof(std::string(300, 'k')));
  Str text = flatten(page.s);
  markclean(page.s, text);
  EXPECT_TRUE(isclean(page.s));
  EXPECT_TRUE(page.s.saved.same(text));
  EXPECT_EQ(shardbytes(page.s.root), text.bytes());
  EXPECT_EQ(shardlength(page.s.root), 305);
  EXPECT_EQ(page.s.kept, nullptr);
  EXPECT_EQ(page.s.point, 303);
  EXPECT_BOUNDS(page, 305, 305);
}

// ---- Long texts: what a key does must not grow with them.

TEST(Bounds, AnEditAtBothEndsOfALongTextComesBackClean) {
  std::string text(3000000, 'a');
  Page page(text);
  page.type("b");
  page.end();
  page.type("c");
  EXPECT_BOUNDS(page, 0, 3000002);
  page.backspace();
  EXPECT_BOUNDS(page, 0, 1);
  page.go(1);
  page.backspace();
  EXPECT_TRUE(isclean(page.s));
  page.end();
  page.backspace();
  page.go(0);
  page.type("a");
  EXPECT_TRUE(isclean(page.s));
}

TEST(Bounds, AreRoughOnlyFarBehindTheChange) {
  Page page(std::string(1000000, 'a'));
  insertstring(page.s, strof(std::string(300000, 'a')));
  EXPECT_LE(page.s.difflow, 300000);
  EXPECT_GE(page.s.difflow, 60000);
  checkbounds(page.s);
  page.go(0);
  deletecount(page.s, 300000);
  EXPECT_TRUE(isclean(page.s));
}

}  // namespace
}  // namespace tarn

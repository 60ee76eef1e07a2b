// The plain edits, carried out and reversed: what they store, the text, and where the point ends.
#include "editor/edits.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

// The newest oper, as "type:position:data".
std::string newest() {
  const oper& o = lastoper();
  return std::to_string(operw(o)) + ":" + std::to_string(opert(o)) + ":" + textof(o.data);
}

std::string bytes(char kind, char old, char fresh) { return {kind, old, fresh}; }

// Undoes with the point elsewhere, then does it again in the same way.
#define EXPECT_UNDONE(buffer, wanttext, wantpoint) \
  do { \
    (buffer).go(size((buffer).s()) / 2); \
    ASSERT_TRUE(editback()); \
    EXPECT_EQ((buffer).text(), wanttext); \
    EXPECT_EQ((buffer).point(), wantpoint); \
  } while (0)
#define EXPECT_REDONE(buffer, wanttext, wantpoint) \
  do { \
    (buffer).go(size((buffer).s()) / 2); \
    ASSERT_TRUE(editredo()); \
    EXPECT_EQ((buffer).text(), wanttext); \
    EXPECT_EQ((buffer).point(), wantpoint); \
  } while (0)

TEST(Edits, ATypedByteInInsertMode) {
  Buffer buffer("abc");
  buffer.go(1);
  EXPECT_TRUE(opinsert('x'));
  EXPECT_EQ(newest(), "6:1:" + bytes(':', 0, 'x'));
  EXPECT_EQ(buffer.text(), "axbc");
  EXPECT_EQ(buffer.point(), 2);
  EXPECT_UNDONE(buffer, "abc", 1);
  EXPECT_REDONE(buffer, "axbc", 2);
}

TEST(Edits, ATypedByteInOverwriteMode) {
  Buffer buffer("a\nc");
  buffer.s().insertmode = 0;
  buffer.go(1);
  EXPECT_TRUE(opinsert('x'));
  EXPECT_EQ(newest(), "6:1:" + bytes(';', '\n', 'x'));
  EXPECT_EQ(buffer.text(), "axc");
  EXPECT_EQ(buffer.point(), 2);
  EXPECT_UNDONE(buffer, "a\nc", 1);
  EXPECT_REDONE(buffer, "axc", 2);
  EXPECT_EQ(buffer.s().insertmode, 0);
}

TEST(Edits, ANewlineOverwritesLikeAnyByte) {
  Buffer buffer("abc");
  buffer.s().insertmode = 0;
  EXPECT_TRUE(opinsert('\n'));
  EXPECT_EQ(buffer.text(), "\nbc");
}

TEST(Edits, OverwritingAtTheEndIsRefused) {
  Buffer buffer("abc");
  buffer.s().insertmode = 0;
  buffer.go(3);
  EXPECT_FALSE(opinsert('x'));
  EXPECT_EQ(operv(lastoper()), 0);
}

TEST(Edits, OverwritingTestsTheOldByte) {
  Buffer buffer("abc");
  enteroper(opermake(optyped, 1, strof(bytes(';', 'q', 'x'))));
  EXPECT_DEATH(edittodo(1), "ASSERTION FAILED:editor/edits.cpp:");
  EXPECT_DEATH(editundo(1), "ASSERTION FAILED:editor/edits.cpp:");
}

TEST(Edits, BackspaceDeletesTheByteBefore) {
  Buffer buffer("abc");
  EXPECT_FALSE(opbackspace());
  buffer.go(2);
  EXPECT_TRUE(opbackspace());
  EXPECT_EQ(newest(), "6:1:" + bytes(',', 'b', 0));
  EXPECT_EQ(buffer.text(), "ac");
  EXPECT_EQ(buffer.point(), 1);
  EXPECT_UNDONE(buffer, "abc", 2);
  EXPECT_REDONE(buffer, "ac", 1);
}

TEST(Edits, TheKindOfADotDoesNothing) {
  Buffer buffer("abc");
  enteroper(opermake(optyped, 1, Str(".xy")));
  edittodo(1);
  EXPECT_EQ(buffer.text(), "abc");
  editundo(1);
  EXPECT_EQ(buffer.text(), "abc");
}

TEST(Edits, APastedText) {
  Buffer buffer("abc");
  buffer.go(1);
  EXPECT_TRUE(oppaste(Str("xyz")));
  EXPECT_EQ(newest(), "5:1:xyz");
  EXPECT_EQ(buffer.text(), "axyzbc");
  EXPECT_EQ(buffer.point(), 4);
  EXPECT_UNDONE(buffer, "abc", 1);
  EXPECT_REDONE(buffer, "axyzbc", 4);
}

TEST(Edits, AnEmptyPasteIsRefused) {
  Buffer buffer("abc");
  EXPECT_FALSE(oppaste(Str()));
  EXPECT_FALSE(opdelete(Str()));
  EXPECT_FALSE(editback());
}

TEST(Edits, ADeletedStretch) {
  Buffer buffer("one\ntwo");
  EXPECT_TRUE(opdelete(Str("one")));
  EXPECT_EQ(newest(), "4:0:one");
  EXPECT_EQ(buffer.text(), "\ntwo");
  EXPECT_EQ(buffer.point(), 0);
  EXPECT_UNDONE(buffer, "one\ntwo", 3);  // behind what came back
  EXPECT_REDONE(buffer, "\ntwo", 0);
}

TEST(Edits, ARunOfOneByte) {
  Buffer buffer("abc");
  buffer.go(1);
  EXPECT_TRUE(oprun(Str("0012"), 'x'));
  EXPECT_EQ(newest(), "2:1:0012x");
  EXPECT_EQ(buffer.text(), "axxxxxxxxxxxxbc");
  EXPECT_EQ(buffer.point(), 13);
  EXPECT_UNDONE(buffer, "abc", 1);
  EXPECT_REDONE(buffer, "axxxxxxxxxxxxbc", 13);
}

TEST(Edits, ARunOfDigits) {
  Buffer buffer("");
  EXPECT_TRUE(oprun(Str("2"), '7'));
  EXPECT_EQ(buffer.text(), "77");
  EXPECT_UNDONE(buffer, "", 0);
}

TEST(Edits, ARunOfNoneOrTooManyIsRefused) {
  Buffer buffer("a");
  EXPECT_FALSE(oprun(Str(), 'x'));
  EXPECT_FALSE(oprun(Str("0"), 'x'));
  EXPECT_FALSE(oprun(Str("000"), 'x'));
  EXPECT_FALSE(oprun(Str("1073741824"), 'x'));  // with the "a" one more than 2^30
  EXPECT_FALSE(oprun(Str("9999999999"), 'x'));
  EXPECT_FALSE(oprun(Str("99999999999999999999999999999999"), 'x'));
  EXPECT_EQ(operv(lastoper()), 0);
}

TEST(Edits, ALongRunIsOnePiece) {
  Buffer buffer("ab");
  buffer.go(1);
  EXPECT_TRUE(oprun(Str("50000000"), 'x'));
  EXPECT_EQ(size(buffer.s()), 50000002);
  EXPECT_TRUE(shardisrun(buffer.s().root));
  EXPECT_EQ(shardlength(buffer.s().root), 50000000);
  EXPECT_UNDONE(buffer, "ab", 1);
}

// Texts that are as long as a text can be; their bytes are never looked at.
struct FullBuffer : Buffer {
  explicit FullBuffer(int64_t room) : Buffer("") {
    s() = sheetnew(strsized(sizelimit - room));
    go(size(s()));
  }
};

TEST(Edits, TheLastByteFitsAndNoMore) {
  FullBuffer buffer(1);
  EXPECT_FALSE(oppaste(Str("xy")));
  EXPECT_FALSE(oprun(Str("2"), 'x'));
  EXPECT_TRUE(opinsert('x'));
  EXPECT_EQ(size(buffer.s()), sizelimit);
  EXPECT_EQ(buffer.point(), sizelimit);
  EXPECT_FALSE(opinsert('y'));
  EXPECT_FALSE(oppaste(Str("y")));
  EXPECT_FALSE(oprun(Str("1"), 'y'));
  EXPECT_EQ(operv(lastoper()), 1);
  EXPECT_TRUE(opbackspace());  // at an offset that just fits
  EXPECT_EQ(size(buffer.s()), sizelimit - 1);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.point(), sizelimit);
  EXPECT_TRUE(editback());
  EXPECT_TRUE(isclean(buffer.s()));
}

}  // namespace
}  // namespace tarn

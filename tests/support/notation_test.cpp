// The notations of keys and texts.
#include "tests/support/notation.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

std::string keys(const std::string& text) {
  std::string error, all;
  for (const std::string& key : readkeys(text, error)) all += "(" + key + ")";
  return error.empty() ? all : error;
}

std::string text(const std::string& notation) {
  std::string error;
  std::string bytes = readtext(notation, error);
  return error.empty() ? bytes : error;
}

TEST(Notation, PlainKeys) { EXPECT_EQ(keys("a B<SPC>c"), "(a)(B)( )(c)"); }

TEST(Notation, ControlKeys) {
  EXPECT_EQ(keys("<C-a><C-_><C-\\>"), "(\x01)(\x1f)(\x1c)");
  EXPECT_EQ(keys("<NUL>"), std::string("(\0)", 3));
}

TEST(Notation, NamedKeys) {
  EXPECT_EQ(keys("<RET><BS><UP>"), "(\r)(\x7f)(\x1b[A)");
  EXPECT_EQ(keys("<M-x>"), "(\x1bx)");
  EXPECT_EQ(keys("<0x8f>"), "(\x8f)");
  EXPECT_EQ(keys("<\\eOH>a"), "(\x1bOH)(a)");
  EXPECT_EQ(keys("<\\>"), "(\\)");
}

TEST(Notation, CountedKeys) {
  EXPECT_EQ(keys("<3 a>"), "(a)(a)(a)");
  EXPECT_EQ(keys("<2 C-f>"), "(\x06)(\x06)");
}

TEST(Notation, WrongKeys) {
  EXPECT_EQ(keys("a<FOO>"), "no such key: <FOO>");
  EXPECT_EQ(keys("a<C-b"), "no such key: <C-b");
}

TEST(Notation, Texts) {
  EXPECT_EQ(text(R"("a\tb\n\x41\"\\")"), "a\tb\nA\"\\");
  EXPECT_EQ(text(R"("ab"*3 "c")"), "abababc");
  EXPECT_EQ(text("9..11"), "9\n10\n11\n");
  EXPECT_EQ(text(R"("abc)"), "no text: \"abc");
}

TEST(Notation, InQuotes) { EXPECT_EQ(inquotes("a\n\x1b\"\x80"), R"("a\n\e\"\x80")"); }

}  // namespace
}  // namespace tarn

// Sorting definitions, and undoing it. The order of names is the language's own: "rust" for "rstu"
// and "vwzxy" for "vwxyz"; words come first, then capitals, other bytes, symbols.
#include "editor/vows.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

std::string sorted(const std::string& text) { return textof(vowsort(strof(text))); }

TEST(Vows, PutsDefinitionsInTheOrderOfTheirNames) {
  EXPECT_EQ(sorted("1,bb\\2,aa\\3"), "1,aa\\3,bb\\2");
  EXPECT_EQ(sorted(",xx\\1,zz\\2,uu\\3,ss\\4"), ",uu\\3,ss\\4,zz\\2,xx\\1");
  EXPECT_EQ(sorted(",[+]\\1,A\\2,aa\\3"), ",aa\\3,A\\2,[+]\\1");
}

TEST(Vows, CommasInsideGroupsAndStringsDoNotCount) {
  EXPECT_EQ(sorted(",b\\f(a,1),a\\2"), ",a\\2,b\\f(a,1)");
  EXPECT_EQ(sorted(",b\\[,],a\\2"), ",a\\2,b\\[,]");
}

TEST(Vows, EachDefinitionKeepsItsOwnBytes) {
  EXPECT_EQ(sorted("main ,\n bb \\ 1 + 2 ,\n\n aa\\3\n"), "main ,\n\n aa\\3\n,\n bb \\ 1 + 2 ");
}

TEST(Vows, StopsAtTheFirstPieceThatIsNoDefinition) {
  EXPECT_EQ(sorted("1,c\\1,b\\2,3+4,a\\5"), "1,b\\2,c\\1,3+4,a\\5");
  EXPECT_EQ(sorted("1,2+3,b\\1,a\\2"), "1,2+3,b\\1,a\\2");
  EXPECT_EQ(sorted("1,,b\\1,a\\2"), "1,,b\\1,a\\2");
  EXPECT_EQ(sorted(",b\\1,1\\2,a\\3"), ",b\\1,1\\2,a\\3");  // "1" is no name
}

TEST(Vows, LiveNamesCount) { EXPECT_EQ(sorted(",b()\\1,a\\2"), ",a\\2,b()\\1"); }

TEST(Vows, EqualNamesKeepTheirOrder) {
  EXPECT_EQ(sorted(",b\\1,a\\2,b\\3,a\\4"), ",a\\2,a\\4,b\\1,b\\3");
}

TEST(Vows, NothingToSort) {
  EXPECT_EQ(sorted(""), "");
  EXPECT_EQ(sorted("1+2"), "1+2");
  EXPECT_EQ(sorted(","), ",");
}

// A name of a green "9", byte 160, beside one of a red byte.
TEST(Vows, NamesOfAnyByteHaveTheirPlace) {
  EXPECT_EQ(sorted(",\xA0\\1,\xC1\\2").size(), 8u);
}

TEST(Sortedit, SortsAndComesBack) {
  Buffer buffer("1,\nbb\\2,aa\\3");
  buffer.go(6);
  opsort();
  EXPECT_EQ(buffer.text(), "1,aa\\3,\nbb\\2");
  EXPECT_EQ(buffer.point(), 0);  // offset 6 is on the first line now
  EXPECT_EQ(operw(lastoper()), opsorted);
  EXPECT_EQ(opert(lastoper()), 6);
  EXPECT_EQ(textof(lastoper().data), "1,\nbb\\2,aa\\3");
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "1,\nbb\\2,aa\\3");
  EXPECT_EQ(buffer.point(), 6);
  EXPECT_TRUE(editredo());
  EXPECT_EQ(buffer.text(), "1,aa\\3,\nbb\\2");
}

TEST(Sortedit, ASortedTextGetsAnOperToo) {
  Buffer buffer(",aa\\1,bb\\2");
  opsort();
  EXPECT_EQ(operv(lastoper()), 1);
  EXPECT_TRUE(isclean(buffer.s()));
}

}  // namespace
}  // namespace tarn

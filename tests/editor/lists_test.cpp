// The names of a list.
#include "editor/lists.h"

#include <gtest/gtest.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(List, StandsInTheOrderOfBytes) {
  listset({"b", "abc", "\xE4", "B", "ab"});
  ASSERT_EQ(listcount(), 5);
  EXPECT_EQ(textof(listname(0)), "B");
  EXPECT_EQ(textof(listname(1)), "ab");
  EXPECT_EQ(textof(listname(2)), "abc");
  EXPECT_EQ(textof(listname(3)), "b");
  EXPECT_EQ(textof(listname(4)), "\xE4");
  EXPECT_EQ(listwidth(), 3);
}

TEST(List, FindsTheFirstThatBeginsWithAText) {
  listset({"b", "abc", "ab", "c"});
  EXPECT_EQ(listfind(""), 0);
  EXPECT_EQ(listfind("a"), 0);
  EXPECT_EQ(listfind("abc"), 1);
  EXPECT_EQ(listfind("abcd"), -1);
  EXPECT_EQ(listfind("b"), 2);
  EXPECT_EQ(listfind("d"), -1);
}

TEST(List, CanBeEmpty) {
  listset({});
  EXPECT_EQ(listcount(), 0);
  EXPECT_EQ(listwidth(), 0);
  EXPECT_EQ(listfind(""), -1);
}

}  // namespace
}  // namespace tarn

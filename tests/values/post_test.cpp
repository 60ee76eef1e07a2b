// Posts: their length digits, and the trees of bytes and bits.
#include "values/post.h"

#include <gtest/gtest.h>

#include "tests/values/slow.h"

namespace tarn {
namespace {

CellRef post(const std::string& payload) { return postmake(strbytes(strof(payload))); }
std::string textof(Cell* x) { return stringof(celltext(x)); }

TEST(Post, HasItsLengthInTheOddDigits) {
  EXPECT_EQ(textof(post("")), "()");
  EXPECT_EQ(textof(post("x")), "(a)x");
  EXPECT_EQ(textof(post(std::string(18, 'x'))), "(r)" + std::string(18, 'x'));
  EXPECT_EQ(textof(post(std::string(19, 'x'))), "(u)" + std::string(19, 'x'));
  EXPECT_EQ(textof(post(std::string(20, 'x'))), "(s)" + std::string(20, 'x'));
  EXPECT_EQ(textof(post(std::string(63, 'x'))), "(~)" + std::string(63, 'x'));
  EXPECT_EQ(textof(post(std::string(64, 'x'))), "(a_)" + std::string(64, 'x'));
  EXPECT_EQ(textof(post(std::string(4096, 'x'))), "(a__)" + std::string(4096, 'x'));
}

TEST(Post, HoldsAnyBytesAndEndsWithANul) {
  CellRef x = post(std::string("a\0[\n]\xff", 6));
  EXPECT_EQ(postlen(x), 6);
  EXPECT_EQ(stringof(posttext(x)), std::string("a\0[\n]\xff", 6));
  EXPECT_EQ(postbytes(x).at[6], 0);
  EXPECT_EQ(cellkind(x), 'a');
}

TEST(Post, Joins) {
  CellRef x = postjoin(postbytes(post("ab")), postbytes(post("c")));
  EXPECT_EQ(textof(x), "(c)abc");
}

TEST(Post, SplitsAtTheLargestPowerOfTwoBelow) {
  EXPECT_EQ(postsplit(2), 1);
  EXPECT_EQ(postsplit(3), 2);
  EXPECT_EQ(postsplit(4), 2);
  EXPECT_EQ(postsplit(5), 4);
  EXPECT_EQ(postsplit(8), 4);
  EXPECT_EQ(postsplit(9), 8);
  EXPECT_EQ(postsplit(1000), 512);
}

TEST(Post, ReadsTheTreesOfAllBytesBack) {
  for (int b = 0; b < 256; b++) {
    std::vector<uint8_t> bytes;
    EXPECT_TRUE(bytesoftree(bytetree(static_cast<uint8_t>(b)), bytes));
    EXPECT_EQ(bytes, std::vector<uint8_t>{static_cast<uint8_t>(b)});
  }
}

// A list of a million bytes is a tree as deep as it is long.
TEST(Post, ReadsDeepTrees) {
  CellRef tree = leafbyte('K');
  CellRef byte = bytetree('x');
  for (int i = 0; i < 100000; i++) {
    tree = cellpairtake(cellpair(leafbyte('J'), byte), std::move(tree));
  }
  std::vector<uint8_t> bytes;
  EXPECT_TRUE(bytesoftree(tree, bytes));
  EXPECT_EQ(bytes, std::vector<uint8_t>(100000, 'x'));
}

}  // namespace
}  // namespace tarn

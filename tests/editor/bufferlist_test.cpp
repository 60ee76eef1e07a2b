// The names of the buffer list.
#include "editor/bufferlist.h"

#include <gtest/gtest.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(ReversedName, TheOwnNameComesFirst) {
  EXPECT_EQ(textof(reversedname("/a/b/c")), "c/b/a");
  EXPECT_EQ(textof(reversedname("/a")), "a");
  EXPECT_EQ(textof(reversedname(".")), ".");
}

TEST(ReversedName, AndBack) {
  EXPECT_EQ(textof(pathofreversed("c/b/a")), "/a/b/c");
  EXPECT_EQ(textof(pathofreversed("b.txt/tmp")), "/tmp/b.txt");
  EXPECT_EQ(textof(pathofreversed("a")), "/a");
  EXPECT_EQ(textof(pathofreversed(".")), ".");
  EXPECT_EQ(textof(pathofreversed("")), "/");
}

}  // namespace
}  // namespace tarn

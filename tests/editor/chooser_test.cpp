// What a typed path means.
#include "editor/chooser.h"

#include <gtest/gtest.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct ChooserPath : testing::Test {
  Str oldhome = home;
  Str oldcwd = cwdpath;
  ChooserPath() {
    home = "/h/";
    cwdpath = "/w/d/";
  }
  ~ChooserPath() override {
    home = oldhome;
    cwdpath = oldcwd;
  }
  static std::string path(const char* text) { return textof(chooserpath(text)); }
};

TEST_F(ChooserPath, Files) {
  EXPECT_EQ(path("/a/b.txt"), "/a/b.txt");
  EXPECT_EQ(path("/a/./b/../c"), "/a/c");
  EXPECT_EQ(path("/a//b"), "/a/b");
  EXPECT_EQ(path("x"), "/w/d/x");
  EXPECT_EQ(path("../x"), "/w/x");
  EXPECT_EQ(path("~/x"), "/h/x");
  EXPECT_EQ(path("~"), "/w/d/~");
  EXPECT_EQ(path("a..") , "/w/d/a..");
  EXPECT_EQ(path("a.") , "/w/d/a.");
}

TEST_F(ChooserPath, Directories) {
  EXPECT_EQ(path("/"), "/");
  EXPECT_EQ(path("/a/"), "/a/");
  EXPECT_EQ(path("/a/."), "/a/");
  EXPECT_EQ(path("/a/b/.."), "/a/");
  EXPECT_EQ(path("/a/.."), "/");
  EXPECT_EQ(path("."), "/w/d/");
  EXPECT_EQ(path(".."), "/w/");
  EXPECT_EQ(path("~/"), "/h/");
  EXPECT_EQ(path("../../"), "/");
}

TEST_F(ChooserPath, NothingAndAboveTheRoot) {
  EXPECT_EQ(path(""), "");
  EXPECT_EQ(path("/.."), "");
  EXPECT_EQ(path("/../x"), "");
  EXPECT_EQ(path("../../../x"), "");
}

}  // namespace
}  // namespace tarn

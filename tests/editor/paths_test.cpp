// The names of files.
#include "editor/paths.h"

#include <gtest/gtest.h>

#include "editor/state.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct Paths : testing::Test {
  void SetUp() override {
    home = "/home/me/";
    cwdpath = "/desk/dir/";
  }
};

TEST_F(Paths, NormaliseMakesPathsAbsolute) {
  EXPECT_EQ(normalise("a"), "/desk/dir/a");
  EXPECT_EQ(normalise("a/b.txt"), "/desk/dir/a/b.txt");
  EXPECT_EQ(normalise("/a"), "/a");
  EXPECT_EQ(normalise("~/x"), "/home/me/x");
  EXPECT_EQ(normalise("~"), "/desk/dir/~");
  EXPECT_EQ(normalise("~x/y"), "/desk/dir/~x/y");
  EXPECT_EQ(normalise("a/~/b"), "/desk/dir/a/~/b");
  home = "/";
  EXPECT_EQ(normalise("~/x"), "/x");
}

TEST_F(Paths, NormaliseWorksOutDots) {
  EXPECT_EQ(normalise("./a"), "/desk/dir/a");
  EXPECT_EQ(normalise("../a"), "/desk/a");
  EXPECT_EQ(normalise("../../a"), "/a");
  EXPECT_EQ(normalise("/a/../b"), "/b");
  EXPECT_EQ(normalise("/a/./b/."), "/a/b");
  EXPECT_EQ(normalise("/a/b/.."), "/a");
  EXPECT_EQ(normalise("/a/.b/..c/..."), "/a/.b/..c/...");
  EXPECT_EQ(normalise("~/../x"), "/home/x");
}

TEST_F(Paths, NormaliseDropsEmptySegments) {
  EXPECT_EQ(normalise("a//b"), "/desk/dir/a/b");
  EXPECT_EQ(normalise(".//a"), "/desk/dir/a");
  EXPECT_EQ(normalise("///a"), "/a");
  EXPECT_EQ(normalise("/a//../b"), "/b");
}

TEST_F(Paths, NormaliseGivesNothingAtTheRootOrAbove) {
  EXPECT_EQ(normalise("/.."), "");
  EXPECT_EQ(normalise("/../a"), "");
  EXPECT_EQ(normalise("../../.."), "");
  EXPECT_EQ(normalise("/a/.."), "");
  EXPECT_EQ(normalise("/."), "");
}

TEST_F(Paths, NormaliseFailsOnNoName) {
  EXPECT_FAILS(normalise(""), "editor/paths.cpp");
  EXPECT_FAILS(normalise("d/"), "editor/paths.cpp");
  EXPECT_FAILS(normalise("/"), "editor/paths.cpp");
}

TEST_F(Paths, NormalisedirEndsInASlash) {
  EXPECT_EQ(normalisedir("a"), "/desk/dir/a/");
  EXPECT_EQ(normalisedir("a/"), "/desk/dir/a/");
  EXPECT_EQ(normalisedir("/a/../b/"), "/b/");
  EXPECT_EQ(normalisedir("~/"), "/home/me/");
  EXPECT_EQ(normalisedir("."), "/desk/dir/");
  EXPECT_EQ(normalisedir(".."), "/desk/");
}

TEST_F(Paths, NormalisedirKnowsTheRoot) {
  EXPECT_EQ(normalisedir("/"), "/");
  EXPECT_EQ(normalisedir("/a/.."), "/");
  EXPECT_EQ(normalisedir("/a/../"), "/");
  EXPECT_EQ(normalisedir("/.."), "");
}

TEST_F(Paths, Parentdir) {
  EXPECT_EQ(parentdir("/a/b.txt"), "/a/");
  EXPECT_EQ(parentdir("/b.txt"), "/");
  EXPECT_EQ(parentdir("/a/"), "/a/");
  EXPECT_EQ(parentdir("."), "");
}

TEST_F(Paths, DrivelesspathTurnsTheSlashes) {
  EXPECT_EQ(drivelesspath("C:\\a\\b"), "/a/b/");
  EXPECT_EQ(drivelesspath("C:\\"), "/");
  EXPECT_EQ(drivelesspath("z:\\a\\"), "/a/");
  EXPECT_EQ(drivelesspath("C:\\a/b c"), "/a/b c/");
}

TEST_F(Paths, DrivelesspathFailsOnNoDrive) {
  for (const char* told : {"", "C", "C:", "C:a", "C:/a", "1:\\a", "[:\\a", "@:\\a", "\xC3:\\a",
                           "\\\\there\\a", "/a/b"}) {
    EXPECT_FAILS(drivelesspath(told), "editor/paths.cpp") << told;
  }
}

}  // namespace
}  // namespace tarn

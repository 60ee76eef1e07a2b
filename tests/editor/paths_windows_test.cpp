// What the file system of Windows says, and the places that the surroundings tell.
#include <direct.h>
#include <gtest/gtest.h>

#include <cstdio>

#include "editor/paths.h"

namespace tarn {
namespace {

struct PathsWindows : testing::Test {
  void SetUp() override {
    _mkdir("/tmp");
    _mkdir("/tmp/tarn.paths");
    fclose(fopen("/tmp/tarn.paths/file", "w"));
  }
  void TearDown() override {
    _chdir("/");
    remove("/tmp/tarn.paths/file");
    _rmdir("/tmp/tarn.paths");
  }
};

TEST_F(PathsWindows, KindsOfFiles) {
  EXPECT_TRUE(isdir("/"));
  EXPECT_TRUE(isdir("/tmp/tarn.paths"));
  EXPECT_TRUE(isdir("/tmp/tarn.paths/"));
  EXPECT_FALSE(isfile("/tmp/tarn.paths"));
  EXPECT_TRUE(isfile("/tmp/tarn.paths/file"));
  EXPECT_FALSE(isfile("/tmp/tarn.paths/file/"));
  EXPECT_FALSE(isdir("/tmp/tarn.paths/file"));
  EXPECT_FALSE(isdir("/no/such/place"));
  EXPECT_FALSE(isfile("/no/such/place"));
}

TEST_F(PathsWindows, WorkingDirectory) {
  ASSERT_EQ(_chdir("/tmp/tarn.paths"), 0);
  EXPECT_EQ(findcwd(), "/tmp/tarn.paths/");
  ASSERT_EQ(_chdir("\\"), 0);
  EXPECT_EQ(findcwd(), "/");
}

TEST_F(PathsWindows, HomeIsADirectoryFromTheRoot) {
  Str home = findhome();
  EXPECT_EQ(home, isdir("/Users/Admin/") ? "/Users/Admin/" : "/");
}

}  // namespace
}  // namespace tarn

// What the file system says, and the places that the surroundings tell.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>

#include "editor/mainloop.h"
#include "editor/paths.h"

namespace tarn {
namespace {

TEST(PathsPosix, KindsOfFiles) {
  EXPECT_TRUE(isdir("/"));
  EXPECT_TRUE(isdir("/tmp/"));
  EXPECT_FALSE(isfile("/tmp"));
  EXPECT_TRUE(isfile("/proc/self/exe"));
  EXPECT_FALSE(isdir("/proc/self/exe"));
  EXPECT_FALSE(isfile("/dev/null"));
  EXPECT_FALSE(isdir("/no/such/place"));
  EXPECT_FALSE(isfile("/no/such/place"));
}

TEST(PathsPosix, HomeIsADirectoryFromTheRoot) {
  setenv("HOME", "/usr", 1);
  EXPECT_EQ(findhome(), "/usr/");
  setenv("HOME", "/usr/", 1);
  EXPECT_EQ(findhome(), "/usr/");
  setenv("HOME", "/", 1);
  EXPECT_EQ(findhome(), "/");
  setenv("HOME", "/no/such/place", 1);
  EXPECT_EQ(findhome(), "/");
  setenv("HOME", "", 1);
  EXPECT_EQ(findhome(), "/");
  ASSERT_EQ(chdir("/"), 0);
  setenv("HOME", "usr", 1);
  EXPECT_EQ(findhome(), "/");
  unsetenv("HOME");
  EXPECT_EQ(findhome(), "/");
}

TEST(PathsPosix, WorkingDirectory) {
  ASSERT_EQ(chdir("/"), 0);
  EXPECT_EQ(findcwd(), "/");
  ASSERT_EQ(chdir("/usr"), 0);
  EXPECT_EQ(findcwd(), "/usr/");
}

TEST(Bail, SaysItAndEndsWithStatus1) {
  EXPECT_EXIT(
      {
        dup2(2, 1);
        bail("Cannot open file: /x\n");
      },
      testing::ExitedWithCode(1), "^Cannot open file: /x\n$");
}

}  // namespace
}  // namespace tarn

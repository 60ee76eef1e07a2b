// What the file system says, and the places that the surroundings tell.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

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

TEST(PathsPosix, ExistenceAndSize) {
  char made[] = "/tmp/tarnpathsXXXXXX";
  const std::string directory = mkdtemp(made);
  const std::string file = directory + "/file", link = directory + "/link";
  std::ofstream(file) << "12345";
  EXPECT_EQ(symlink("gone", link.c_str()), 0);
  EXPECT_TRUE(pathexists(file.c_str()));
  EXPECT_EQ(filesize(file.c_str()), 5);
  EXPECT_TRUE(pathexists(link.c_str()));  // though it leads nowhere
  EXPECT_EQ(filesize(link.c_str()), -1);
  EXPECT_TRUE(pathexists(directory.c_str()));
  EXPECT_FALSE(pathexists((directory + "/gone").c_str()));
  EXPECT_EQ(filesize((directory + "/gone").c_str()), -1);
  std::filesystem::remove_all(directory);
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

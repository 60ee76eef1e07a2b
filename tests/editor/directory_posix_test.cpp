// What is listed of a directory: files and directories, also through links, and nothing else.
#include "editor/directory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

struct Directory : testing::Test {
  std::string path;
  Directory() {
    char made[] = "/tmp/tarndirXXXXXX";
    path = std::string(mkdtemp(made)) + "/";
  }
  ~Directory() override { EXPECT_EQ(system(("rm -rf " + path).c_str()), 0); }
  void file(const std::string& name) { fclose(fopen((path + name).c_str(), "w")); }

  std::string list() {
    std::vector<DirectoryEntry> found;
    if (!readdirectory(strof(path), found)) return "none";
    std::vector<std::string> names;
    for (const DirectoryEntry& e : found) {
      names.push_back(textof(e.name) + (e.isdirectory ? "/" : ""));
    }
    std::sort(names.begin(), names.end());
    std::string all;
    for (const std::string& name : names) all += name + " ";
    return all;
  }
};

TEST_F(Directory, FilesAndDirectories) {
  file("b");
  file(".hidden");
  mkdir((path + "a").c_str(), 0700);
  EXPECT_EQ(list(), ".hidden a/ b ");
}

TEST_F(Directory, LinksCountAsWhatTheyLeadTo) {
  file("file");
  EXPECT_EQ(symlink("file", (path + "tofile").c_str()), 0);
  EXPECT_EQ(symlink("/", (path + "todir").c_str()), 0);
  EXPECT_EQ(symlink("gone", (path + "tonothing").c_str()), 0);
  EXPECT_EQ(mkfifo((path + "pipe").c_str(), 0600), 0);
  EXPECT_EQ(list(), "file todir/ tofile ");
}

TEST_F(Directory, NoDirectory) {
  file("a");
  path += "a";
  EXPECT_EQ(list(), "none");
}

}  // namespace
}  // namespace tarn

// Directories on Windows: our own record over the system's search.
#include "host/dirs.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cerrno>
#include <cstring>
#include <set>
#include <string>

namespace tarn {
namespace {

constexpr wchar_t folder[] = L"/tmp/tarn.dirs";
constexpr wchar_t plain[] = L"/tmp/tarn.dirs/plain.txt";
constexpr wchar_t foreign[] = L"/tmp/tarn.dirs/\u4E2D\u6587.txt";  // no bytes of the C locale

void touch(const wchar_t* path) {
  CloseHandle(CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
}

struct Dirs : testing::Test {
  void SetUp() override {
    CreateDirectoryW(L"/tmp", nullptr);
    CreateDirectoryW(folder, nullptr);
    touch(plain);
    touch(foreign);
  }
  void TearDown() override {
    DeleteFileW(plain);
    DeleteFileW(foreign);
    RemoveDirectoryW(folder);
  }
};

template <typename T>
T field(const void* record, size_t offset) {
  T value;
  memcpy(&value, static_cast<const char*>(record) + offset, sizeof value);
  return value;
}

std::string nameof(const void* record) { return static_cast<const char*>(record) + 28; }

// What stands for a name that has no bytes: the system's short one, or "?".
std::string shortname(const wchar_t* path) {
  WIN32_FIND_DATAW found;
  FindClose(FindFirstFileW(path, &found));
  std::string name;
  for (const wchar_t* c = found.cAlternateFileName; *c != 0; c++) name += static_cast<char>(*c);
  return name.empty() ? "?" : name;
}

TEST_F(Dirs, GivesEachEntryOnceInOneRecord) {
  void* dir = diropen("/tmp/tarn.dirs");
  ASSERT_NE(dir, nullptr);
  EXPECT_NE(field<void*>(dir, 296), nullptr) << "the search stands behind the record";
  std::set<std::string> names;
  while (void* record = dirread(dir)) {
    EXPECT_EQ(record, dir);
    EXPECT_EQ(field<int32_t>(record, 0), 0);
    EXPECT_EQ(field<int32_t>(record, 4), -1);
    EXPECT_EQ(field<uint16_t>(record, 8), 296);
    EXPECT_EQ(field<uint64_t>(record, 16), nameof(record).size());
    EXPECT_EQ(field<int32_t>(record, 24), 0);
    EXPECT_TRUE(names.insert(nameof(record)).second) << nameof(record);
  }
  EXPECT_EQ(dirread(dir), nullptr) << "the end stays";
  EXPECT_EQ(dirclose(dir), 0);
  EXPECT_EQ(names, (std::set<std::string>{".", "..", "plain.txt", shortname(foreign)}));
}

TEST_F(Dirs, ASlashAtTheEndIsNoMatter) {
  for (const char* path : {"/tmp/tarn.dirs/", "/tmp\\tarn.dirs\\", "/", "."}) {
    void* dir = diropen(path);
    ASSERT_NE(dir, nullptr) << path;
    EXPECT_EQ(dirclose(dir), 0);
  }
}

void expectnone(const char* path, int error) {
  errno = 0;
  EXPECT_EQ(diropen(path), nullptr);
  EXPECT_EQ(errno, error);
}

TEST_F(Dirs, SaysWhyThereIsNone) {
  expectnone(nullptr, 2);
  expectnone("", 2);
  expectnone("/tmp/tarn.dirs/none", 2);
  expectnone("/tmp/tarn.dirs/plain.txt", 20);
  EXPECT_EQ(diropen(std::string(300, 'a').c_str()), nullptr);
  EXPECT_EQ(dirread(nullptr), nullptr);
  EXPECT_EQ(dirsize(), 296);
}

}  // namespace
}  // namespace tarn

// Reading what has no size of its own, and what is no file.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <string>
#include <thread>

#include "editor/wholefile.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(WholeFile, APipeIsReadPieceByPiece) {
  std::string path = testing::TempDir() + "tarn_wholefile_pipe";
  unlink(path.c_str());
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  std::string text;
  for (int i = 0; i < 30000; i++) text += std::to_string(i);
  std::thread writer([&] { std::ofstream(path, std::ios::binary) << text; });
  EXPECT_EQ(textof(readwhole(strof(path))), text);
  writer.join();
  unlink(path.c_str());
}

TEST(WholeFile, AFileThatTellsNoSizeIsReadToItsEnd) {
  const char* path = "/proc/self/maps";
  if (access(path, R_OK) != 0) return;  // a system without it
  EXPECT_GT(readwhole(Str(path)).len(), 0);
}

TEST(WholeFile, ADirectoryIsAFault) {
  EXPECT_DEATH(readwhole(Str("/")), "ASSERTION FAILED:editor/wholefile.cpp:");
}

}  // namespace
}  // namespace tarn

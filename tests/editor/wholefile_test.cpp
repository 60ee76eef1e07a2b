// Reading, writing and saving whole files.
#include "editor/wholefile.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

std::string scratchpath(const char* name) { return testing::TempDir() + "tarn_wholefile_" + name; }

void put(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

std::string get(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string everybyte(size_t n) {
  std::string made(n, ' ');
  for (size_t i = 0; i < n; i++) made[i] = static_cast<char>(i * 7 % 256);
  return made;
}

TEST(WholeFile, ComesBackByteForByte) {
  std::string path = scratchpath("bytes");
  for (size_t n : {0u, 1u, 4095u, 4096u, 8190u, 100001u}) {
    put(path, everybyte(n));
    EXPECT_EQ(textof(readwhole(strof(path))), everybyte(n)) << n;
    writewhole(strof(path), strof(everybyte(n) + "!"));
    EXPECT_EQ(get(path), everybyte(n) + "!") << n;
  }
  remove(path.c_str());
}

TEST(WholeFile, AShorterTextLeavesNothingBehind) {
  std::string path = scratchpath("shorter");
  put(path, everybyte(5000));
  writewhole(strof(path), Str());
  EXPECT_EQ(get(path), "");
  remove(path.c_str());
}

TEST(WholeFile, WhatCannotBeReadOrWrittenIsAFault) {
  EXPECT_DEATH(readwhole(strof(scratchpath("missing"))), "ASSERTION FAILED:editor/wholefile.cpp:");
  EXPECT_DEATH(writewhole(strof(scratchpath("no/such/place")), Str("x")),
               "ASSERTION FAILED:editor/wholefile.cpp:");
}

TEST(SaveSheet, WritesAndMarksClean) {
  std::string path = scratchpath("save");
  put(path, "abc");
  Buffer buffer("abc", path.c_str());
  savesheet();
  EXPECT_EQ(get(path), "abc");
  buffer.type("x");
  savesheet();
  EXPECT_EQ(get(path), "xabc");
  EXPECT_TRUE(isclean(buffer.s()));
  EXPECT_EQ(buffer.point(), 1);
  remove(path.c_str());
}

TEST(SaveSheet, ACleanSheetIsNotWritten) {
  Buffer buffer("abc", scratchpath("no/such/place").c_str());
  savesheet();
  buffer.type("x");
  EXPECT_DEATH(savesheet(), "ASSERTION FAILED:editor/wholefile.cpp:");
}

TEST(SaveSheet, LeavesTheHistoryAsItIs) {
  std::string path = scratchpath("history");
  put(path, "abc");
  Buffer buffer("abc", path.c_str());
  buffer.type("x");
  savesheet();
  EXPECT_EQ(operv(lastoper()), 1);
  EXPECT_TRUE(editback());
  EXPECT_EQ(buffer.text(), "abc");
  EXPECT_FALSE(isclean(buffer.s()));
  EXPECT_TRUE(editredo());
  EXPECT_TRUE(isclean(buffer.s()));  // back to the saved text
  remove(path.c_str());
}

TEST(SaveSheet, TheScratchBufferIsOnNoDisk) {
  Buffer buffer("", ".");
  buffer.type("x");
  savesheet();
  EXPECT_TRUE(isclean(buffer.s()));
  EXPECT_EQ(buffer.text(), "x");
  std::ifstream file(".");
  EXPECT_FALSE(file.get() != EOF);
}

// A file beside the others, of the kind that a short read would spoil.
TEST(SaveSheet, EditsInTheMiddleReachTheFile) {
  std::string path = scratchpath("middle");
  std::string text = everybyte(100000);
  put(path, text);
  Buffer buffer(text, path.c_str());
  buffer.go(50000);
  buffer.type("!");
  buffer.go(0);
  buffer.type("<");
  buffer.go(size(buffer.s()));
  buffer.type(">");
  savesheet();
  EXPECT_EQ(get(path), "<" + text.substr(0, 50000) + "!" + text.substr(50000) + ">");
  remove(path.c_str());
}

}  // namespace
}  // namespace tarn

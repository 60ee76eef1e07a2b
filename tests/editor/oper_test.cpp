// The packed word of an oper, and the check of the histories.
#include "editor/oper.h"

#include <gtest/gtest.h>

#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(Oper, PacksPositionVersionAndType) {
  oper o = opermake(oppasted, 3, Str("x"));
  EXPECT_EQ(o.word, 0x5000000000000003u);
  opersetv(o, 7);
  EXPECT_EQ(o.word, 0x5000000000000003u | uint64_t{7} << 30);
  opersett(o, 0x3FFFFFFF);
  EXPECT_EQ(o.word, 0x5000000000000000u | uint64_t{7} << 30 | 0x3FFFFFFF);
  EXPECT_EQ(opert(o), 0x3FFFFFFF);
  EXPECT_EQ(operv(o), 7);
  EXPECT_EQ(operw(o), oppasted);
  opersetv(o, 0x3FFFFFFF);
  opersett(o, 0);
  EXPECT_EQ(o.word, 0x5FFFFFFFC0000000u);
}

TEST(Oper, ThirtyBitsAreTheLimit) {
  oper o = opermake(opdented, 0, Str());
  EXPECT_DEATH(opersett(o, 0x40000000), "ASSERTION FAILED:editor/oper.cpp:");
  EXPECT_DEATH(opersetv(o, 0x40000000), "ASSERTION FAILED:editor/oper.cpp:");
  EXPECT_DEATH(opermake(opcut, -1, Str()), "ASSERTION FAILED:editor/oper.cpp:");
}

TEST(Oper, TheCheckerSeesAGapInTheVersions) {
  Buffer buffer("");
  buffer.type("ab");
  checkopers();
  opersetv(lastoper(), 5);
  EXPECT_DEATH(checkopers(), "ASSERTION FAILED:editor/oper.cpp:");
  opersetv(lastoper(), 3);
}

}  // namespace
}  // namespace tarn

// The strict reader lets the editor's own sequences through and nothing else.
#include "tests/support/strictoutput.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

std::string fault(const std::string& bytes) {
  StrictOutput output = {20, 10, "", "", 0};
  readstrictly(output, bytes.data(), bytes.size());
  return output.fault;
}

TEST(StrictOutput, LetsThePainterThrough) {
  EXPECT_EQ(fault("\x1b[1;1H\x1b[0m\x1b[4m\x1b[1m\x1b[3m\x1b[31m\x1b[97m\x1b[40m\x1b[107mA ~"), "");
  EXPECT_EQ(fault("\x1b[10;20H\x1b[2F\x1b[20G\a"), "");
  EXPECT_EQ(fault("\x1b[1;1H\x1b[J\x1b[mEval\r\n"), "");
}

TEST(StrictOutput, SequencesMayComeInPieces) {
  StrictOutput output = {20, 10, "", "", 0};
  EXPECT_TRUE(readstrictly(output, "\x1b[3", 3));
  EXPECT_TRUE(readstrictly(output, ";4H", 3));
  EXPECT_FALSE(readstrictly(output, "\x1b[3;4x", 6));
}

TEST(StrictOutput, StopsRawBytes) {
  EXPECT_EQ(fault("ab\x80"), "\"\\x80\" at byte 2 of the output");
  EXPECT_NE(fault("\t"), "");
  EXPECT_NE(fault("\x7f"), "");
}

TEST(StrictOutput, StopsOtherSequences) {
  EXPECT_NE(fault("\x1b]0;title\a"), "");
  EXPECT_NE(fault("\x1b[?25l"), "");
  EXPECT_NE(fault("\x1b[7m"), "");
  EXPECT_NE(fault("\x1b[38;5;1m"), "");
  EXPECT_NE(fault("\x1b[2J"), "");
  EXPECT_NE(fault("\x1b[3F"), "");
  EXPECT_NE(fault("\x1b" "c"), "");
}

TEST(StrictOutput, StopsPlacesOutsideTheScreen) {
  EXPECT_NE(fault("\x1b[11;1H"), "");
  EXPECT_NE(fault("\x1b[1;21H"), "");
  EXPECT_NE(fault("\x1b[0;1H"), "");
}

}  // namespace
}  // namespace tarn

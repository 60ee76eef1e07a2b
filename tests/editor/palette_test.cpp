// The palette as text, and the odd arithmetic of reading one.
#include "editor/palette.h"

#include <gtest/gtest.h>

#include "editor/kink.h"
#include "tests/editor/buffer.h"

namespace tarn {
namespace {

TEST(KinkText, SixteenCapitalDigits) {
  EXPECT_EQ(textof(kinktext(defaultkink)), "76E948BA98800321");
  EXPECT_EQ(textof(kinktext(0)), "0000000000000000");
  EXPECT_EQ(textof(kinktext(0x0123456789ABCDEF)), "0123456789ABCDEF");
}

uint64_t parsed(const char* digits, bool sound = true) {
  uint64_t palette = 77;
  EXPECT_EQ(kinkparse(reinterpret_cast<const uint8_t*>(digits), palette), sound);
  return palette;
}

TEST(KinkParse, PlacesRepeatAfterEightDigits) {
  EXPECT_EQ(parsed("0100000000000000"), 0x10000000u);
  EXPECT_EQ(parsed("0000000100000000"), 0x10u);
  EXPECT_EQ(parsed("0000000000000001"), 0x10u);
  EXPECT_EQ(parsed("0100000001000000"), 0x20000000u);
}

TEST(KinkParse, TheFirstAndTheNinthDigitCountForNothing) {
  EXPECT_EQ(parsed("F0000000F0000000"), 0u);
}

// 8 * 0x10000000 is negative in 32 bits. In the second, 9 in the tenth place is: 0x12345670 +
// 0xFFFFFFFF9ABCDEF0.
TEST(KinkParse, ProductsAreSigned) {
  EXPECT_EQ(parsed("0800000000000000"), 0xFFFFFFFF80000000u);
  EXPECT_EQ(parsed("0123456789ABCDEF"), 0xFFFFFFFFACF13560u);
  EXPECT_EQ(parsed("0123456789abcdef"), 0xFFFFFFFFACF13560u);
}

TEST(KinkParse, WhatIsNoDigitAddsNothing) {
  EXPECT_EQ(parsed("01000000000000g0", false), 0x10000000u);
  EXPECT_EQ(parsed("\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n", false), 0u);
}

}  // namespace
}  // namespace tarn

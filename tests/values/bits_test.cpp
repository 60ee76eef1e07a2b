// Bit strings: single bits, arithmetic against the slow way, and the digit text of every list.
#include "values/bits.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"

namespace tarn {
namespace {

// A bit string from its bits, lowest first.
Str packed(const std::string& bits) {
  Str s;
  for (size_t i = 0; i < bits.size(); i++) bitset(static_cast<int64_t>(i), bits[i] == '1', s);
  return s;
}

Str numbered(uint64_t n) { return bittrim(Str(&n, 8)); }

TEST(Bits, ReadPastTheEndAsZeroAndGrowWhenWritten) {
  Str s = strbyte(0x81);
  EXPECT_TRUE(bitget(0, s) && bitget(7, s));
  EXPECT_FALSE(bitget(1, s) || bitget(8, s) || bitget(1000000, s));
  bitset(17, true, s);
  EXPECT_EQ(s, Str("\x81\0\x02", 3));
  bitset(7, false, s);
  EXPECT_EQ(s, Str("\x01\0\x02", 3));
  bitset(40, false, s);
  EXPECT_EQ(s.len(), 6);
}

TEST(Bits, TopIsTheHighestSetBit) {
  EXPECT_EQ(bittop(strbyte(1)), 0);
  EXPECT_EQ(bittop(strbyte(0x80)), 7);
  EXPECT_EQ(bittop(Str("\0\x01\0", 3)), 8);
  EXPECT_EQ(bitlen(Str("\0\x01\0", 3)), 9);
  EXPECT_EQ(bitlen(Str("\0\0", 2)), 0);
  EXPECT_EQ(bitlen(Str()), 0);
  EXPECT_TRUE(bitiszero(Str()) && bitiszero(Str("\0\0", 2)));
  EXPECT_TRUE(bitnonzero(Str("\0\x10", 2)));
}

TEST(Bits, TrimZerosAndShift) {
  EXPECT_EQ(bittrim(Str("\x01\0\0", 3)), Str("\x01"));
  EXPECT_EQ(bittrim(Str("\0\0", 2)), Str());
  EXPECT_EQ(bitzeros(3), Str("\0\0\0", 3));
  EXPECT_EQ(bitzeros(0), Str());
  EXPECT_EQ(bitshift(9, strbyte(0x81)), Str("\0\x02\x01", 3));
  EXPECT_EQ(bitshift(0, strbyte(0x81)), strbyte(0x81));
}

TEST(Bits, SumsMakeRoomForTheCarry) {
  EXPECT_EQ(bitadd(strbyte(250), strbyte(6)), Str("\0\x01", 2));
  EXPECT_EQ(bitaddsmall(strbyte(250), 6), Str("\0\x01", 2));
  EXPECT_EQ(bitinc(Str("\xFF\xFF")), Str("\0\0\x01", 3));
  EXPECT_EQ(bitinc(Str()), strbyte(1));
}

TEST(Bits, SmallFactorsAndDivisors) {
  EXPECT_EQ(bitmulsmall(numbered(1000001), 999999), numbered(999999999999));
  EXPECT_EQ(bitmulsmall(numbered(5), 0), Str());
  EXPECT_EQ(bitdivsmall(numbered(1000), 7), numbered(142));
  EXPECT_EQ(bitmodten(numbered(18446744073709551615u)), 5);
  EXPECT_EQ(bitmodten(Str()), 0);
}

TEST(Bits, DigitsOfEachForm) {
  struct {
    const char* text;
    uint64_t bits;
  } rows[] = {
      {"00", 2}, {"0", 3},  {"000", 4},  {"01", 5},   {"001", 6},   {"1", 7},
      {"2", 11}, {"3", 15}, {"02", 9},   {"002", 10}, {"003", 14},  {"004", 18},
      {"5", 23}, {"05", 21}, {"005", 22}, {"0017", 70}, {"0005", 44}, {"256", 1027},
  };
  for (auto& row : rows) {
    EXPECT_EQ(bitsofdigits(Str(row.text)), numbered(row.bits)) << row.text;
    EXPECT_EQ(digitsofbits(numbered(row.bits)), Str(row.text)) << row.bits;
  }
}

TEST(Bits, WhatIsNoListHasNoDigits) {
  EXPECT_FAILS(digitsofbits(strbyte(1)), "values/bits");
  EXPECT_FAILS(digitsofbits(Str()), "values/bits");
  EXPECT_FAILS(bitsofdigits(Str()), "values/bits");
  EXPECT_EQ(digitsofbits(Str("\x03\0\0", 3)), Str("0"));
}

TEST(Bits, EveryBitStringSurvivesItsDigits) {
  for (uint64_t s = 2; s < 20000; s++) {
    ASSERT_EQ(bitsofdigits(digitsofbits(numbered(s))), numbered(s)) << s;
  }
}

TEST(Bits, LongDigitsAgreeWithTheSlowWay) {
  Random random(4);
  for (int i = 0; i < 400; i++) {
    std::string x = randomdigits(random, 100);
    if (x == "0") continue;
    std::string bits = slowbits(x);
    struct {
      std::string text, bits;
    } forms[] = {{x, "11" + bits}, {"0" + x, "10" + bits}, {"0000" + x, "0001" + bits}};
    for (auto& form : forms) {
      ASSERT_EQ(bitsofdigits(strof(form.text)), packed(form.bits)) << form.text;
      ASSERT_EQ(stringof(digitsofbits(packed(form.bits))), form.text);
    }
  }
}

}  // namespace
}  // namespace tarn

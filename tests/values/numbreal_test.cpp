// Between integers, numbs and doubles.
#include "values/numbreal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/coerce.h"
#include "values/hint.h"
#include "values/numb.h"
#include "values/real.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }
double back(double d) { return realvalue(numbtoreal(numbofreal(d))); }
uint64_t pattern(double d) { return std::bit_cast<uint64_t>(d); }
double twoto(const char* exponent) {
  return realvalue(numbtoreal(numbpow(leaf("004"), leaf(exponent))));
}

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(NumbReal, NumbsOfIntegers) {
  EXPECT_EQ(textof(hinttonumb(leaf("0"))), "00");
  EXPECT_EQ(textof(hinttonumb(leaf("1"))), "001");
  EXPECT_EQ(textof(hinttonumb(leaf("01"))), "000");
  EXPECT_EQ(textof(hinttonumb(leaf("2"))), "004");
  EXPECT_EQ(textof(hinttonumb(leaf("3"))), "005");
  EXPECT_EQ(textof(hinttonumb(leaf("5"))), "0017");
  EXPECT_EQ(realvalue(numbtoreal(hinttonumb(leaf("0123456789")))), -123456789.0);
}

TEST(NumbReal, NumbsOfDoubles) {
  EXPECT_EQ(textof(numbofreal(0.5)), "002");
  EXPECT_EQ(textof(numbofreal(1.0)), "001");
  EXPECT_EQ(textof(numbofreal(-1.0)), "000");
  EXPECT_EQ(textof(numbofreal(-1.75)), "0005");
  EXPECT_EQ(textof(numbofreal(5.0)), "0017");
  EXPECT_EQ(textof(numbofreal(-0.0)), "00");
  EXPECT_EQ(textof(numbofreal(infinity)), "00");
  EXPECT_EQ(textof(numbofreal(-infinity)), "00");
  EXPECT_EQ(textof(numbofreal(std::nan(""))), "00");
}

TEST(NumbReal, PositiveZeroBecomesMinusOne) {
  EXPECT_EQ(textof(numbofreal(0.0)), "000");
  EXPECT_EQ(back(0.0), -1.0);
}

TEST(NumbReal, DoublesOfNumbs) {
  EXPECT_EQ(pattern(realvalue(numbtoreal(leaf("00")))), 0u);
  EXPECT_EQ(realvalue(numbtoreal(leaf("000"))), -1.0);
  EXPECT_EQ(realvalue(numbtoreal(leaf("004"))), 2.0);
  EXPECT_EQ(realvalue(numbtoreal(leaf("0033"))), 1.125);
}

TEST(NumbReal, NormalDoublesComeBack) {
  Random random(7);
  for (int i = 0; i < 3000; i++) {
    double d = std::bit_cast<double>(random());
    if (!std::isnormal(d)) continue;
    ASSERT_EQ(pattern(back(d)), pattern(d)) << d;
  }
  EXPECT_EQ(back(std::numeric_limits<double>::max()), std::numeric_limits<double>::max());
  EXPECT_EQ(back(std::numeric_limits<double>::min()), std::numeric_limits<double>::min());
}

// 2^53 + 1 needs a bit more than a double has; half of the last bit and more is dropped as well.
TEST(NumbReal, LowBitsAreCutOff) {
  EXPECT_EQ(realvalue(numbtoreal(hinttonumb(leaf("9007199254740993")))), 9007199254740992.0);
  EXPECT_EQ(realvalue(numbtoreal(hinttonumb(leaf("9007199254740995")))), 9007199254740994.0);
  EXPECT_EQ(realvalue(numbtoreal(hinttonumb(leaf("018014398509481987")))), -18014398509481984.0);
}

TEST(NumbReal, SubnormalsLoseTheirTopBitAndTurnRound) {
  EXPECT_EQ(pattern(back(5e-324)), 0u);
  EXPECT_EQ(back(1e-310), 9.230691516033977e-309);
  // The top bit is bit 3 of the last four; 2, 1, 0 below it are 0 1 1 and go to places 51 to 48 as
  // 0 1 1 0 read upward: 51 gets the missing bit below the last.
  EXPECT_EQ(pattern(back(std::bit_cast<double>(uint64_t{0xB}))), uint64_t{0x6} << 48);
  EXPECT_EQ(pattern(back(std::bit_cast<double>(0x800000000000000Bu))), 0x8006000000000000u);
}

TEST(NumbReal, OutOfRangeIsOneNaN) {
  EXPECT_EQ(pattern(twoto("1024")), 0x7FF9000000000000u);
  EXPECT_EQ(pattern(twoto("01075")), 0x7FF9000000000000u);
  EXPECT_EQ(pattern(realvalue(numbtoreal(numbneg(numbpow(leaf("004"), leaf("1024")))))),
            0x7FF9000000000000u);
  EXPECT_EQ(twoto("1023"), std::ldexp(1.0, 1023));
  EXPECT_EQ(twoto("01022"), std::ldexp(1.0, -1022));
  EXPECT_EQ(pattern(twoto("01074")), 0u);
}

TEST(Real, LeavesHoldTheBytesOfADouble) {
  CellRef x = realleaf(1.5);
  EXPECT_EQ(celltext(x), Str(" \0\0\0\0\0\0\xF8\x3F", 9));
  EXPECT_EQ(realvalue(x), 1.5);
  EXPECT_EQ(cellkind(x), 'r');
  EXPECT_FAILS(realvalue(leaf("1")), "values/real");
  EXPECT_FAILS(realvalue(cellpair(x, x)), "values/real");
}

TEST(Real, TruecastTakesNumbersOnly) {
  CellRef x = realleaf(1.5);
  EXPECT_EQ(truecast(x), x);
  EXPECT_EQ(realvalue(truecast(leaf("05"))), -5.0);
  EXPECT_EQ(realvalue(truecast(leaf("0"))), 0.0);
  EXPECT_EQ(realvalue(truecast(leaf("0033"))), 1.125);
  EXPECT_EQ(realvalue(truecast(leaf("1" + std::string(400, '0')))), infinity);
  EXPECT_EQ(realvalue(truecast(leaf("9007199254740993"))), 9007199254740992.0);  // to even
  EXPECT_EQ(realvalue(truecast(leaf("9007199254740995"))), 9007199254740996.0);
  EXPECT_DIES(truecast(leaf("[a]")));
  EXPECT_DIES(truecast(craynew(0)));
}

}  // namespace
}  // namespace tarn

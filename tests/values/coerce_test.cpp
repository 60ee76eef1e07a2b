// What builtins ask of their arguments.
#include "values/coerce.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/bitlist.h"
#include "values/bits.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }
CellRef listed(const char* text) { return listofbits(bitsofterm(leaf(text)), leafbyte('K')); }
CellRef cons(CellRef head, CellRef tail) { return cellapply2(leaf("J"), head, tail); }

TEST(Coerce, ShapesLookAtTheFirstElementOnly) {
  struct {
    CellRef x;
    bool hint, nat, numbish;
  } rows[] = {
      {leaf("K"), true, true, true},         {leaf("H"), false, false, false},
      {leaf("0"), true, true, true},         {leaf("5"), true, true, true},
      {leaf("01"), true, false, true},       {leaf("00"), false, false, true},
      {leaf("005"), false, false, true},     {leaf("[a]"), false, false, false},
      {leaf("Kx"), false, false, false},     {listed("2"), true, false, true},
      {listed("004"), false, true, true},    {leaf("()"), false, false, false},
      {cons(leaf("K"), leaf("foo")), true, false, true},
      {cons(leaf("H"), leaf("foo")), false, true, true},
      {cons(leaf("I"), leaf("K")), false, false, false},
      {cellpair(leaf("K"), leaf("K")), false, false, false},
  };
  for (auto& row : rows) {
    EXPECT_EQ(ishint(row.x), row.hint) << textof(row.x);
    EXPECT_EQ(isnat(row.x), row.nat) << textof(row.x);
    EXPECT_EQ(isnumbish(row.x), row.numbish) << textof(row.x);
  }
}

TEST(Coerce, SmallIntegersWrap) {
  EXPECT_EQ(hintsmall(leaf("K")), 0);
  EXPECT_EQ(hintsmall(leaf("0")), 0);
  EXPECT_EQ(hintsmall(leaf("123")), 123);
  EXPECT_EQ(hintsmall(leaf("0123")), -123);
  EXPECT_EQ(hintsmall(leaf("9223372036854775807")), INT64_MAX);
  EXPECT_EQ(hintsmall(leaf("9223372036854775808")), INT64_MIN);
  EXPECT_EQ(hintsmall(leaf("09223372036854775808")), INT64_MIN);
  EXPECT_EQ(hintsmall(leaf("18446744073709551615")), -1);
  EXPECT_EQ(hintsmall(leaf("18446744073709551616")), 0);
  EXPECT_EQ(hintsmall(leaf("018446744073709551619")), -3);
  EXPECT_EQ(hintlow(leaf("018446744073709551619")), 3u);
}

TEST(Coerce, SmallIntegersOfListsAreTheSame) {
  for (const char* text : {"0", "1", "01", "2", "123", "0123", "18446744073709551619",
                           "018446744073709551615", "99999999999999999999999999999"}) {
    EXPECT_EQ(hintsmall(listed(text)), hintsmall(leaf(text))) << text;
  }
  EXPECT_EQ(hintsmall(cons(leaf("K"), leaf("5"))), 11);  // K before K K K H: 47 = 4 * 11 + 3
  EXPECT_EQ(hintsmall(cons(leaf("K"), leaf("00"))), -1);
}

TEST(Coerce, SizesFromTheListsOfNumbs) {
  EXPECT_EQ(hintlow(listed("004")), 4u);  // 18 = 4 * 4 + 2
  EXPECT_EQ(hintlow(listed("00")), 0u);
}

TEST(Coerce, ListsThatAreNoNumbersAreZero) {
  CellRef bad = cons(leaf("K"), leaf("foo"));
  EXPECT_EQ(hintsmall(bad), 0);
  EXPECT_EQ(hinttext(bad), Str());
  EXPECT_FALSE(isnumber(bad));
  EXPECT_FALSE(isnumber(cons(leaf("K"), cons(leaf("I"), leaf("K")))));
  EXPECT_FALSE(isnumber(cons(leaf("H"), leaf("H"))));
  EXPECT_TRUE(isnumber(cons(leaf("H"), leaf("5"))));
  EXPECT_TRUE(isnumber(listed("0005")));
  EXPECT_TRUE(isnumber(leaf("5")));
}

TEST(Coerce, IntegersFromMachineWords) {
  EXPECT_EQ(textof(hintfrom(0)), "0");
  EXPECT_EQ(textof(hintfrom(42)), "42");
  EXPECT_EQ(textof(hintfrom(-42)), "042");
  EXPECT_EQ(textof(hintfrom(INT64_MAX)), "9223372036854775807");
  EXPECT_EQ(textof(hintfrom(INT64_MIN)), "09223372036854775808");
  EXPECT_EQ(textof(hintfromu(UINT64_MAX)), "18446744073709551615");
  EXPECT_EQ(textof(hintfromu(0)), "0");
}

TEST(Coerce, TextOfNumbersKeepsTheirZeros) {
  EXPECT_EQ(hinttext(leaf("05")), Str("05"));
  EXPECT_EQ(hinttext(listed("05")), Str("05"));
  EXPECT_EQ(hinttext(listed("0005")), Str("0005"));
}

TEST(Coerce, TruthValues) {
  EXPECT_EQ(truthof(leaf("K")), 1);
  EXPECT_EQ(truthof(leaf("H")), 0);
  EXPECT_FAILS(truthof(leaf("Z")), "values/coerce");
  EXPECT_FAILS(truthof(leaf("KK")), "values/coerce");
  CellRef yes = truthleaf(true);
  EXPECT_EQ(textof(yes), "K");
  EXPECT_EQ(textof(truthleaf(false)), "H");
  EXPECT_NE(yes, truthleaf(true));
}

}  // namespace
}  // namespace tarn

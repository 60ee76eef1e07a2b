// Magnitudes: the rules of their texts, and all arithmetic against the slow way.
#include "values/mag.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"

namespace tarn {
namespace {

std::string stored(const Str& m) { return stringof(magstore(m)); }
Str loaded(const std::string& text) { return magload(strof(text)); }

TEST(Mag, LoadsInReverseWithoutLeadingZeros) {
  EXPECT_EQ(magload(Str("123")), Str("321"));
  EXPECT_EQ(magload(Str("0123")), Str("321"));
  EXPECT_EQ(magload(Str("000120")), Str("021"));
  EXPECT_EQ(magload(Str("0")), Str());
  EXPECT_EQ(magload(Str("")), Str());
  EXPECT_EQ(magload(Str("12345678901234567")), Str("76543210987654321"));
}

TEST(Mag, StoresWithoutHighZeros) {
  EXPECT_EQ(magstore(Str("321")), Str("123"));
  EXPECT_EQ(magstore(Str("32100000000000")), Str("123"));
  EXPECT_EQ(magstore(Str("")), Str("0"));
  EXPECT_EQ(magstore(Str("000000000")), Str("0"));
}

TEST(Mag, SignGoesInFrontButNotOfZero) {
  EXPECT_EQ(magsign(true, Str("12")), Str("012"));
  EXPECT_EQ(magsign(false, Str("12")), Str("12"));
  EXPECT_EQ(magsign(true, Str("0")), Str("0"));
  EXPECT_FAILS(magsign(true, Str("")), "values/mag");
  EXPECT_FAILS(magsign(false, Str("012")), "values/mag");
}

TEST(Mag, HighZerosDoNotCountInTests) {
  EXPECT_TRUE(magless(Str("9"), Str("01")));
  EXPECT_TRUE(magless(Str("9000000000000"), Str("01")));
  EXPECT_FALSE(magless(Str("5"), Str("500")));
  EXPECT_TRUE(maggteq(Str("5"), Str("500")));
  EXPECT_FALSE(magless(Str(""), Str("0")));
  EXPECT_TRUE(magless(Str(""), Str("1")));
  EXPECT_TRUE(magiszero(Str("")) && magiszero(Str("000")));
  EXPECT_FALSE(magiszero(Str("0001")));
  EXPECT_TRUE(magisone(Str("1")) && magisone(Str("100")));
  EXPECT_FALSE(magisone(Str("")) || magisone(Str("101")) || magisone(Str("2")));
  EXPECT_TRUE(magiseven(Str("")) && magiseven(Str("0")) && magiseven(Str("81")));
  EXPECT_FALSE(magiseven(Str("12")));
}

TEST(Mag, TimesADigitAndPowersOfTen) {
  EXPECT_EQ(stored(magmuldigit(7, Str("54"))), "315");
  EXPECT_EQ(stored(magmuldigit(0, Str("54"))), "0");
  EXPECT_FAILS(magmuldigit(-1, Str("1")), "values/mag");
  EXPECT_FAILS(magmuldigit(10, Str("1")), "values/mag");
  EXPECT_EQ(magshift(Str("21"), 3), Str("00021"));
  EXPECT_EQ(magshift(Str("4321"), -3), Str("1"));
  EXPECT_EQ(magshift(Str("4321"), -4), Str("0"));
  EXPECT_EQ(magshift(Str("4321"), -5), Str("0"));
}

TEST(Mag, LessTakenFromMoreOnly) {
  EXPECT_EQ(stored(magsub(Str("001"), Str("1000"))), "99");
  EXPECT_EQ(stored(magsub(Str("5"), Str("5"))), "0");
  EXPECT_FAILS(magsub(Str("1"), Str("2")), "values/mag");
}

TEST(Mag, DivisionRoundsAsTold) {
  EXPECT_EQ(stored(magdiv(true, Str("7"), Str("2"))), "3");
  EXPECT_EQ(stored(magdiv(false, Str("7"), Str("2"))), "4");
  EXPECT_EQ(stored(magdiv(false, Str("8"), Str("2"))), "4");
  EXPECT_EQ(stored(magdiv(false, Str("1"), Str("9"))), "1");
  EXPECT_EQ(stored(magmod(Str("7"), Str("2"))), "1");
}

TEST(Mag, PowersBySquaring) {
  EXPECT_EQ(stored(magpow(Str("2"), Str(""))), "1");
  EXPECT_EQ(stored(magpow(Str(""), Str("0"))), "1");
  EXPECT_EQ(stored(magpow(Str("21"), Str("1"))), "12");
  EXPECT_EQ(stored(magpow(loaded("999999"), Str("9"))),
            "999991000035999916000125999874000083999964000008999999");
}

TEST(Mag, SumsAndDifferencesAgreeWithTheSlowWay) {
  Random random(1);
  for (int i = 0; i < 4000; i++) {
    std::string a = randomdigits(random, 70);
    std::string b = randomdigits(random, 70);
    ASSERT_EQ(stored(magadd(loaded(a), loaded(b))), slowadd(a, b)) << a << " + " << b;
    ASSERT_EQ(magless(loaded(a), loaded(b)), slowless(a, b)) << a << " < " << b;
    if (slowless(a, b)) std::swap(a, b);
    ASSERT_EQ(stored(magsub(loaded(a), loaded(b))), slowsub(a, b)) << a << " - " << b;
  }
}

TEST(Mag, ProductsAgreeWithTheSlowWay) {
  Random random(2);
  for (int i = 0; i < 500; i++) {
    std::string a = randomdigits(random, 90);
    std::string b = randomdigits(random, 90);
    ASSERT_EQ(stored(magmul(loaded(a), loaded(b))), slowmul(a, b)) << a << " * " << b;
  }
}

TEST(Mag, QuotientsAgreeWithTheSlowWay) {
  Random random(3);
  for (int i = 0; i < 1500; i++) {
    std::string a = randomdigits(random, 120);
    std::string b = randomdigits(random, 60);
    if (b == "0") continue;
    std::string rest;
    std::string quotient = slowdiv(a, b, rest);
    ASSERT_EQ(stored(magdiv(true, loaded(a), loaded(b))), quotient) << a << " / " << b;
    ASSERT_EQ(stored(magmod(loaded(a), loaded(b))), rest) << a << " % " << b;
  }
}

// What is left over after division by a prime, digit by digit.
uint64_t residue(const std::string& digits, uint64_t prime) {
  uint64_t rest = 0;
  for (char digit : digits) rest = (rest * 10 + static_cast<uint64_t>(digit - '0')) % prime;
  return rest;
}

std::string longdigits(Random& random, size_t n) {
  std::string digits = "7";
  while (digits.size() < n) digits += randomdigits(random, 100);
  return digits;
}

TEST(Mag, LongProductsLeaveTheRightResidues) {
  Random random(12);
  size_t sizes[][2] = {{2040, 2040}, {2056, 2048},  {4000, 2500}, {5000, 20000},
                       {9000, 9001}, {30000, 17000}, {20000, 20000}};
  for (auto [n, m] : sizes) {
    std::string a = longdigits(random, n);
    std::string b = longdigits(random, m);
    std::string product = stored(magmul(loaded(a), loaded(b)));
    for (uint64_t prime : {1000000007u, 998244353u, 2147483647u, 3u, 11u}) {
      ASSERT_EQ(residue(product, prime), residue(a, prime) * residue(b, prime) % prime) << n;
    }
  }
}

TEST(Mag, LongQuotientsUndoProducts) {
  Random random(13);
  for (size_t n : {2000u, 5000u, 9000u}) {
    Str a = loaded(longdigits(random, n));
    Str b = loaded(longdigits(random, 4000));
    Str rest = loaded(longdigits(random, 3000));
    Str sum = magadd(magmul(a, b), rest);
    EXPECT_EQ(stored(magdiv(true, sum, b)), stored(a));
    EXPECT_EQ(stored(magmod(sum, b)), stored(rest));
  }
}

// (10^n - 1)^2 fills every column sum to the brim; it is 99..9800..01.
TEST(Mag, TheLongestCarriesSettle) {
  size_t n = 30000;
  Str nines = strof(std::string(n, '9'));
  std::string square = std::string(n - 1, '9') + "8" + std::string(n - 1, '0') + "1";
  EXPECT_EQ(stored(magmul(nines, nines)), square);
  EXPECT_EQ(stored(magdiv(true, loaded(square), nines)), std::string(n, '9'));
  EXPECT_EQ(stored(magmod(loaded(square), nines)), "0");
}

}  // namespace
}  // namespace tarn

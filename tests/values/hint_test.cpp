// Integers: each rule by hand, and every operation against the slow way with all four pairs of
// signs.
#include "values/hint.h"

#include <gtest/gtest.h>

#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/bitlist.h"
#include "values/coerce.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }

using Operation = CellRef (*)(Cell*, Cell*);
std::string work(Operation operation, const std::string& x, const std::string& y) {
  return textof(operation(leaf(x), leaf(y)));
}

struct Row {
  const char* x;
  const char* y;
  const char* answer;
};

TEST(Hint, Sums) {
  for (Row row : {Row{"1", "2", "3"}, {"0", "0", "0"}, {"01", "1", "0"}, {"5", "05", "0"},
                  {"01", "02", "03"}, {"9", "1", "10"}, {"010", "3", "07"}, {"10", "03", "7"},
                  {"250", "6", "256"}, {"999999999999999999", "1", "1000000000000000000"},
                  {"0999999999999999999", "01", "01000000000000000000"},
                  {"1000000000000000000", "01", "999999999999999999"},
                  {"99999999999999999999", "099999999999999999999", "0"}}) {
    EXPECT_EQ(work(hintadd, row.x, row.y), row.answer) << row.x << " + " << row.y;
  }
}

TEST(Hint, Differences) {
  for (Row row : {Row{"0", "0", "0"}, {"5", "5", "0"}, {"05", "05", "0"}, {"1", "2", "01"},
                  {"0", "7", "07"}, {"0", "07", "7"}, {"01", "1", "02"},
                  {"10000000000000000000", "1", "9999999999999999999"},
                  {"10000000000000000000", "10000000000000000000", "0"},
                  {"0", "10000000000000000000", "010000000000000000000"}}) {
    EXPECT_EQ(work(hintsub, row.x, row.y), row.answer) << row.x << " - " << row.y;
  }
}

TEST(Hint, Products) {
  for (Row row : {Row{"01", "1", "01"}, {"01", "01", "1"}, {"1", "01", "01"}, {"100000", "0", "0"},
                  {"0", "05", "0"}, {"10", "100", "1000"}, {"3", "4", "12"}, {"3", "3", "9"},
                  {"0123456789", "987654321", "0121932631112635269"},
                  {"999999999", "999999999", "999999998000000001"},
                  {"9999999999", "09999999999", "099999999980000000001"}}) {
    EXPECT_EQ(work(hintmul, row.x, row.y), row.answer) << row.x << " * " << row.y;
  }
}

// 0xB6: a leaf with the code of arity 2. All others are not annotated, 0x80, until they are asked.
TEST(Hint, AProductIsBornWithArityTwo) {
  auto tag = [](CellRef x) { return static_cast<Cell*>(x)->header >> 56; };
  EXPECT_EQ(tag(hintmul(leaf("2"), leaf("3"))), 0xB6u);
  EXPECT_EQ(tag(hintmul(leaf("99999999999"), leaf("099999999999"))), 0xB6u);
  EXPECT_EQ(tag(hintmul(leaf("2"), leaf("0"))), 0x80u);
  EXPECT_EQ(tag(hintadd(leaf("2"), leaf("3"))), 0x80u);
  EXPECT_EQ(tag(hintpow(leaf("2"), leaf("3"))), 0x80u);
  EXPECT_EQ(tag(hintneg(hintmul(leaf("2"), leaf("3")))), 0x80u);
}

TEST(Hint, AnswersAreNewCells) {
  CellRef x = leaf("5");
  CellRef zero = leaf("0");
  EXPECT_NE(hintadd(x, zero), x);
  EXPECT_NE(hintmul(x, zero), zero);
  EXPECT_NE(hintpow(x, leaf("1")), x);
}

TEST(Hint, DivisionFloors) {
  for (Row row : {Row{"7", "2", "3"}, {"07", "2", "04"}, {"07", "02", "3"}, {"7", "02", "04"},
                  {"6", "02", "03"}, {"1", "2", "0"}, {"01", "2", "01"}, {"0", "05", "0"},
                  {"7", "0", "Z"}, {"0", "0", "Z"},
                  {"010000000000000000001", "10", "01000000000000000001"},
                  {"10000000000000000001", "010", "01000000000000000001"},
                  {"10000000000000000000", "010", "01000000000000000000"},
                  {"01", "10000000000000000000", "01"}}) {
    EXPECT_EQ(work(hintdiv, row.x, row.y), row.answer) << row.x << " / " << row.y;
  }
}

// On purpose: with a negative divisor this is not what the floored quotient leaves over.
TEST(Hint, RemaindersAreNeverNegative) {
  for (Row row : {Row{"7", "2", "1"}, {"07", "2", "1"}, {"7", "02", "1"}, {"07", "02", "1"},
                  {"7", "03", "2"}, {"07", "3", "2"}, {"6", "03", "0"}, {"0", "03", "0"},
                  {"7", "0", "Z"}, {"07", "03", "1"},
                  {"010000000000000000001", "10", "9"}, {"10000000000000000001", "010", "9"},
                  {"010000000000000000001", "010", "1"}, {"010000000000000000000", "10", "0"}}) {
    EXPECT_EQ(work(hintmod, row.x, row.y), row.answer) << row.x << " % " << row.y;
  }
}

TEST(Hint, Powers) {
  for (Row row : {Row{"2", "3", "8"}, {"01", "3", "01"}, {"01", "2", "1"}, {"2", "01", "0"},
                  {"1", "01", "0"}, {"0", "0", "1"}, {"0", "01", "0"}, {"0", "5", "0"},
                  {"07", "1", "07"}, {"012", "2", "144"}, {"03", "5", "0243"},
                  {"1", "99999999999999999999999", "1"}, {"01", "99999999999999999999999", "01"},
                  {"999999", "9", "999991000035999916000125999874000083999964000008999999"}}) {
    EXPECT_EQ(work(hintpow, row.x, row.y), row.answer) << row.x << " ^ " << row.y;
  }
}

TEST(Hint, SignsAndMagnitudes) {
  EXPECT_EQ(textof(hintneg(leaf("5"))), "05");
  EXPECT_EQ(textof(hintneg(leaf("05"))), "5");
  EXPECT_EQ(textof(hintneg(leaf("0"))), "0");
  EXPECT_EQ(textof(hintabs(leaf("05"))), "5");
  EXPECT_EQ(textof(hintabs(leaf("5"))), "5");
  EXPECT_EQ(textof(hintabs(leaf("0"))), "0");
  EXPECT_TRUE(hintsign(leaf("0")) && hintsign(leaf("5")));
  EXPECT_FALSE(hintsign(leaf("05")));
  EXPECT_TRUE(hintiszero(leaf("0")) && hintiszero(leaf("K")));
  EXPECT_FALSE(hintiszero(leaf("01")) || hintiszero(leaf("10")));
}

TEST(Hint, OrderGoesBySignAndMagnitude) {
  const char* rising[] = {"0100000000000000000000", "0100", "020", "03", "0", "1", "3", "19",
                          "20", "100", "100000000000000000000", "100000000000000000001"};
  for (auto x = std::begin(rising); x != std::end(rising); x++) {
    for (auto y = std::begin(rising); y != std::end(rising); y++) {
      EXPECT_EQ(hintless(leaf(*x), leaf(*y)), x < y) << *x << " < " << *y;
      EXPECT_EQ(hintgteq(leaf(*x), leaf(*y)), x >= y) << *x << " >= " << *y;
    }
  }
}

TEST(Hint, ListsArePackedFirst) {
  auto listed = [](const char* text) {
    return listofbits(bitsofterm(leaf(text)), leafbyte('K'));
  };
  EXPECT_EQ(textof(hintadd(listed("1"), leaf("2"))), "3");
  EXPECT_EQ(textof(hintmul(listed("07"), listed("6"))), "042");
  EXPECT_EQ(textof(hintneg(listed("12"))), "012");
  EXPECT_TRUE(hintless(listed("05"), listed("0")));
  EXPECT_TRUE(hintiszero(listed("0")));  // J K K
  EXPECT_FALSE(hintiszero(listed("1")));
  EXPECT_FALSE(hintsign(listed("01")));
}

TEST(Hint, ListsThatAreNoNumbersGiveZ) {
  CellRef bad = cellapply2(leaf("J"), leaf("K"), leaf("foo"));
  for (Operation operation : {hintadd, hintsub, hintmul, hintdiv, hintmod, hintpow}) {
    EXPECT_EQ(textof(operation(bad, leaf("1"))), "Z");
    EXPECT_EQ(textof(operation(leaf("1"), bad)), "Z");
  }
  EXPECT_EQ(textof(hintneg(bad)), "Z");
  EXPECT_EQ(textof(hintabs(bad)), "Z");
}

TEST(Hint, OnlyIntegersAreTaken) {
  EXPECT_FAILS(hintadd(leaf("00"), leaf("1")), "values/hint");
  EXPECT_FAILS(hintadd(leaf("1"), leaf("005")), "values/hint");
}

// --- Against the slow way ------------------------------------------------------------------------

struct Signed {
  std::string magnitude;
  bool negative;

  std::string text() const { return (negative ? "0" : "") + magnitude; }
};

Signed made(bool negative, const std::string& magnitude) {
  return {magnitude, negative && magnitude != "0"};
}

Signed randomsigned(Random& random, int most) {
  std::string magnitude = randomdigits(random, most);
  return made(random() % 2 != 0, magnitude);
}

Signed negated(Signed x) { return made(!x.negative, x.magnitude); }

Signed slowsum(const Signed& x, const Signed& y) {
  if (x.negative == y.negative) return made(x.negative, slowadd(x.magnitude, y.magnitude));
  if (slowless(x.magnitude, y.magnitude)) return slowsum(y, x);
  return made(x.negative, slowsub(x.magnitude, y.magnitude));
}

Signed slowproduct(const Signed& x, const Signed& y) {
  return made(x.negative != y.negative, slowmul(x.magnitude, y.magnitude));
}

TEST(Hint, AgreesWithTheSlowWay) {
  Random random(8);
  for (int i = 0; i < 4000; i++) {
    int most = i % 2 != 0 ? 22 : 60;  // around where the machine's integers end, and above
    Signed x = randomsigned(random, most);
    Signed y = randomsigned(random, most);
    ASSERT_EQ(work(hintadd, x.text(), y.text()), slowsum(x, y).text());
    ASSERT_EQ(work(hintsub, x.text(), y.text()), slowsum(x, negated(y)).text());
    ASSERT_EQ(work(hintmul, x.text(), y.text()), slowproduct(x, y).text());
    ASSERT_EQ(hintless(leaf(x.text()), leaf(y.text())), slowsum(x, negated(y)).negative);
  }
}

// x = q y + rest with rest between 0 and y, y left out: the law of floored division. The remainder
// that hintmod gives is that of the magnitudes, or its difference to the divisor's.
TEST(Hint, QuotientsObeyTheFlooredLaw) {
  Random random(9);
  for (int i = 0; i < 3000; i++) {
    Signed x = randomsigned(random, 50);
    Signed y = randomsigned(random, 30);
    if (y.magnitude == "0") continue;
    CellRef q = hintdiv(leaf(x.text()), leaf(y.text()));
    CellRef rest = hintsub(leaf(x.text()), hintmul(q, leaf(y.text())));
    ASSERT_TRUE(hintiszero(rest) || hintsign(rest) == !y.negative) << x.text() << " / " << y.text();
    ASSERT_TRUE(hintless(hintabs(rest), hintabs(leaf(y.text())))) << x.text() << " / " << y.text();
    std::string modulus;
    slowdiv(x.magnitude, y.magnitude, modulus);
    bool fromabove = x.negative != y.negative && modulus != "0";
    ASSERT_EQ(work(hintmod, x.text(), y.text()),
              fromabove ? slowsub(y.magnitude, modulus) : modulus);
  }
}

TEST(Hint, PowersAreRepeatedProducts) {
  Random random(10);
  for (int i = 0; i < 30; i++) {
    Signed x = randomsigned(random, 12);
    Signed power = made(false, "1");
    for (int64_t n = 0; n < 20; n++) {
      ASSERT_EQ(textof(hintpow(leaf(x.text()), hintfrom(n))), power.text());
      power = slowproduct(power, x);
    }
  }
}

}  // namespace
}  // namespace tarn

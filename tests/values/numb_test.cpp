// Numbs: their bodies, arithmetic against exact fractions, and all that is odd about them on
// purpose.
#include "values/numb.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <fstream>
#include <sstream>

#include "graph/definitions.h"
#include "tests/support/death.h"
#include "tests/values/slow.h"
#include "values/bitlist.h"
#include "values/bits.h"
#include "values/coerce.h"
#include "values/hint.h"
#include "values/numbbody.h"
#include "values/numbreal.h"
#include "values/real.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }
CellRef listed(const char* text) {
  return listofbits(bitsofterm(leaf(text)), leafbyte('K'));
}

using Operation = CellRef (*)(Cell*, Cell*);
std::string work(Operation operation, const char* x, const char* y) {
  return textof(operation(leaf(x), leaf(y)));
}

// The value of a small numb as a double, by the weights of its places; found without any gathering.
double valueof(Cell* x) {
  Str t = numbbits(x);
  double value = 0;
  for (int64_t i = 1; i < bitlen(t); i++) {
    int64_t position = i % 2 != 0 ? i / 2 : -i / 2;
    if (bitget(i, t)) value += std::ldexp(1.0, static_cast<int>(position));
  }
  return bitget(0, t) ? value : -value;
}

double texted(const char* text) { return valueof(leaf(text)); }

TEST(Numb, TextsAndValues) {
  EXPECT_EQ(texted("00"), 0);
  EXPECT_EQ(texted("000"), -1);
  EXPECT_EQ(texted("001"), 1);
  EXPECT_EQ(texted("002"), 0.5);
  EXPECT_EQ(texted("003"), 1.5);
  EXPECT_EQ(texted("004"), 2);
  EXPECT_EQ(texted("005"), 3);
  EXPECT_EQ(texted("0017"), 5);
  EXPECT_EQ(texted("0005"), -1.75);
  EXPECT_EQ(texted("0033"), 1.125);
}

TEST(Numb, BodiesOfLeavesAndLists) {
  EXPECT_EQ(numbbits(leaf("00")), strbyte(1));
  EXPECT_EQ(numbbits(leaf("001")), strbyte(3));
  EXPECT_EQ(numbbits(leaf("0005")), strbyte(22));
  EXPECT_EQ(numbbits(listed("0005")), strbyte(22));
  EXPECT_EQ(textof(numbleaf(strbyte(22))), "0005");
  EXPECT_FAILS(numbleaf(Str()), "values/numb");
  EXPECT_FAILS(numbbits(leaf("5")), "values/numb");
  EXPECT_FAILS(numbbits(leaf("K")), "values/numb");
  EXPECT_FAILS(numbbits(listed("5")), "values/numb");
}

TEST(Numb, PlacesInterleave) {
  EXPECT_EQ(numbindex(0), 1);
  EXPECT_EQ(numbindex(-1), 2);
  EXPECT_EQ(numbindex(1), 3);
  EXPECT_EQ(numbindex(-2), 4);
  EXPECT_EQ(numbindex(2), 5);
  EXPECT_EQ(numbtop(strbyte(3)), 0);
  EXPECT_EQ(numbtop(strbyte(5)), -1);
  EXPECT_EQ(numbtop(strbyte(0x17)), 0);   // 2^-1 and 2^-2 are below 2^0
  EXPECT_EQ(numbtop(strbyte(0x80)), 3);
  EXPECT_EQ(numbtop(strbyte(0x40)), -3);
  EXPECT_FAILS(numbtop(strbyte(1)), "values/numbbody");
}

TEST(Numb, GatheredAndSpreadAgain) {
  Random random(5);
  for (int i = 0; i < 2000; i++) {
    std::string bytes(1 + random() % 20, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    Str t = bittrim(strof(bytes));
    if (bittop(t) <= 0) continue;
    NumbRow row = numbgather(t, t.len() + static_cast<int64_t>(random() % 5));
    ASSERT_EQ(bittrim(numbspread(numbpositive(t), row)), t);
  }
  EXPECT_EQ(numbspread(false, {{0, 0}, 7}), strbyte(1));
}

TEST(Numb, SumsByHand) {
  EXPECT_EQ(work(numbadd, "002", "002"), "001");   // 0.5 + 0.5
  EXPECT_EQ(work(numbadd, "001", "001"), "004");   // 1 + 1
  EXPECT_EQ(work(numbadd, "003", "002"), "004");   // 1.5 + 0.5
  EXPECT_EQ(work(numbadd, "000", "001"), "00");    // -1 + 1
  EXPECT_EQ(work(numbadd, "00", "0005"), "0005");
  EXPECT_EQ(work(numbsub, "004", "002"), "003");   // 2 - 0.5, though 0.5 has the lower units bit
  EXPECT_EQ(work(numbsub, "002", "004"), "0001");  // -1.5: the bits of the list are 1100
  EXPECT_EQ(work(numbsub, "00", "00"), "00");
  EXPECT_EQ(textof(numbneg(leaf("001"))), "000");
  EXPECT_EQ(textof(numbneg(leaf("00"))), "00");
}

TEST(Numb, ProductsAndRemaindersByHand) {
  EXPECT_EQ(work(numbmul, "002", "004"), "001");   // 0.5 * 2
  EXPECT_EQ(work(numbmul, "002", "00"), "00");
  EXPECT_EQ(work(numbmul, "000", "000"), "001");   // -1 * -1
  EXPECT_EQ(work(numbmul, "000", "00"), "00");
  EXPECT_EQ(work(numbmod, "0017", "004"), "001");  // 5 % 2
  EXPECT_EQ(work(numbmod, "003", "001"), "002");   // 1.5 % 1
  EXPECT_EQ(work(numbmod, "0001", "001"), "002");  // -1.5 % 1: 1 - 0.5
  EXPECT_EQ(work(numbmod, "000", "001"), "00");
  EXPECT_EQ(work(numbmod, "005", "00"), "Z");
  EXPECT_EQ(textof(numbmod(numbpow(leaf("004"), leaf("60")), leaf("001"))), "00");
}

TEST(Numb, ListsThatAreNoNumbersGiveZ) {
  for (const char* name : {"J", "H", "foo"}) defset(Str(name), leaf("0"));  // to have a kind at all
  CellRef bad = cellapply2(leaf("J"), leaf("H"), leaf("foo"));
  for (Operation operation : {numbadd, numbsub, numbmul, numbmod}) {
    EXPECT_EQ(textof(operation(bad, leaf("001"))), "Z");
    EXPECT_EQ(textof(operation(leaf("001"), bad)), "Z");
  }
  EXPECT_EQ(textof(numbneg(bad)), "Z");
  EXPECT_EQ(textof(numbpow(bad, leaf("2"))), "Z");
  EXPECT_TRUE(numbtoreal(bad).null());
  EXPECT_TRUE(truecast(bad).null());
  defclear();
}

// A random numb whose value and products a double holds exactly.
CellRef randomnumb(Random& random) {
  double d = static_cast<double>(random() % 2000001) - 1000000;
  return d == 0 ? leaf("00") : numbofreal(std::ldexp(d, -static_cast<int>(random() % 12)));
}

TEST(Numb, ArithmeticAgreesWithExactFractions) {
  Random random(6);
  for (int i = 0; i < 2000; i++) {
    CellRef x = randomnumb(random);
    CellRef y = randomnumb(random);
    double a = valueof(x);
    double b = valueof(y);
    ASSERT_EQ(valueof(numbadd(x, y)), a + b);
    ASSERT_EQ(valueof(numbsub(x, y)), a - b);
    ASSERT_EQ(valueof(numbmul(x, y)), a * b);
    ASSERT_EQ(valueof(numbneg(x)), -a);
    if (b == 0) continue;
    double rest = std::fmod(std::fabs(a), std::fabs(b));
    bool fromabove = std::signbit(a) != std::signbit(b) && rest != 0;
    ASSERT_EQ(valueof(numbmod(x, y)), fromabove ? std::fabs(b) - rest : rest) << a << " % " << b;
  }
}

// --- Long numbs: the decimal way through integers leads to the same answers ----------------------

CellRef randomhint(Random& random) {
  std::string digits = randomdigits(random, 400);
  return leaf(digits != "0" && random() % 2 != 0 ? "0" + digits : digits);
}

// The integer moved down by so many binary places.
CellRef scaled(Cell* hint, const char* places) {
  return numbmul(hinttonumb(hint), numbpow(leaf("004"), leaf("0" + std::string(places))));
}

TEST(Numb, LongArithmeticAgreesWithIntegers) {
  Random random(14);
  const char* places[] = {"1", "7", "63", "64", "500", "2000"};
  for (int i = 0; i < 300; i++) {
    const char* by = places[i % 6];
    CellRef x = randomhint(random);
    CellRef y = randomhint(random);
    CellRef a = scaled(x, by);
    CellRef b = scaled(y, by);
    ASSERT_EQ(textof(numbadd(a, b)), textof(scaled(hintadd(x, y), by)));
    ASSERT_EQ(textof(numbsub(a, b)), textof(scaled(hintsub(x, y), by)));
    ASSERT_EQ(textof(numbmul(a, hinttonumb(y))), textof(scaled(hintmul(x, y), by)));
    if (hintiszero(y)) continue;
    ASSERT_EQ(textof(numbmod(a, b)), textof(scaled(hintmod(x, y), by)));
  }
}

TEST(Numb, PowersOfTwoAreExact) {
  EXPECT_EQ(work(numbpow, "004", "0"), "001");
  EXPECT_EQ(work(numbpow, "004", "1"), "004");
  EXPECT_EQ(work(numbpow, "004", "01"), "002");
  EXPECT_EQ(valueof(numbpow(leaf("004"), leaf("40"))), 1099511627776.0);
  EXPECT_EQ(valueof(numbpow(leaf("004"), leaf("040"))), 1 / 1099511627776.0);
  EXPECT_EQ(work(numbpow, "004", "576460752303423488"), "Z");      // 2^59 has a list of 61
  EXPECT_EQ(work(numbpow, "004", "0576460752303423488"), "Z");
  EXPECT_EQ(work(numbpow, "004", "99999999999999999999999"), "Z");
  EXPECT_EQ(textof(numbpow(listed("004"), leaf("1"))), "004");
}

TEST(Numb, OtherPowers) {
  EXPECT_EQ(work(numbpow, "005", "0"), "00");
  EXPECT_EQ(work(numbpow, "005", "01"), "Z");
  EXPECT_EQ(work(numbpow, "003", "1"), "003");
  EXPECT_EQ(valueof(numbpow(leaf("003"), leaf("2"))), std::pow(1.5, 2));
  EXPECT_EQ(valueof(numbpow(leaf("003"), leaf("5"))), std::pow(1.5, 6));
}

TEST(Numb, TheFirstDigitOfTheExponentMakesItOdd) {
  EXPECT_EQ(work(numbpow, "003", "6"), "00663");
  EXPECT_EQ(valueof(leaf("00663")), std::pow(1.5, 5));
  EXPECT_EQ(textof(numbpow(leaf("003"), listed("6"))), "00663");
  EXPECT_EQ(work(numbpow, "003", "12"), "0042105478");
  EXPECT_EQ(valueof(leaf("0042105478")), std::pow(1.5, 13));
  EXPECT_EQ(textof(numbpow(leaf("003"), listed("12"))), "00165052");
  EXPECT_EQ(valueof(leaf("00165052")), std::pow(1.5, 9));
}

TEST(Numb, TheSignBuiltinReadsTheUnitsBit) {
  EXPECT_FALSE(numbsign(leaf("00")));
  EXPECT_TRUE(numbsign(leaf("000")));   // -1
  EXPECT_TRUE(numbsign(leaf("001")));
  EXPECT_FALSE(numbsign(leaf("002")));  // 0.5
  EXPECT_FALSE(numbsign(leaf("004")));  // 2
}

TEST(Numb, TheOrderGoesByTheUnitsBit) {
  auto less = [](const char* x, const char* y) { return numbless(leaf(x), leaf(y)); };
  EXPECT_FALSE(less("001", "004"));
  EXPECT_TRUE(less("004", "001"));
  EXPECT_FALSE(less("002", "004"));  // both units 0: the greater magnitude is the less
  EXPECT_TRUE(less("004", "002"));
  EXPECT_TRUE(less("001", "0033"));  // both units 1: 1 < 1.125
  EXPECT_FALSE(less("0033", "001"));
  EXPECT_FALSE(less("000", "001"));  // -1 and 1
  EXPECT_FALSE(less("001", "000"));
  EXPECT_FALSE(less("001", "001"));
}

// --- The trace -----------------------------------------------------------------------------------

// What was appended to the file behind its first bytes.
std::string bugfile(std::streamoff from) {
  std::ifstream in("/tmp/both.bug", std::ios::binary);
  in.seekg(from);
  std::stringstream text;
  if (in) text << in.rdbuf();
  return text.str();
}

std::streamoff bugfilesize() {
  std::ifstream in("/tmp/both.bug", std::ios::binary | std::ios::ate);
  return in ? static_cast<std::streamoff>(in.tellg()) : 0;
}

// The work appends exactly these lines. Other processes may add theirs in between: then once more.
template <typename Work>
bool traces(const std::string& lines, Work work) {
  for (int attempt = 0; attempt < 1000; attempt++) {
    std::streamoff before = bugfilesize();
    work();
    if (bugfile(before) == lines) return true;
  }
  return false;
}

TEST(Numb, SumsAndDifferencesLeaveALine) {
  EXPECT_TRUE(traces("jjaa11\n", [] { work(numbadd, "002", "002"); }));
  EXPECT_TRUE(traces("jjaa01\n", [] { numbsub(hinttonumb(leaf("5")), leaf("001")); }));
  EXPECT_TRUE(traces("jjaa10\n", [] { work(numbadd, "000", "001"); }));
  EXPECT_TRUE(traces("jjaa11\n", [] { work(numbsub, "00", "00"); }));
}

TEST(Numb, AllElseLeavesNone) {
  EXPECT_TRUE(traces("", [] {
    work(numbmul, "005", "0017");
    work(numbmod, "0017", "003");
    work(numbpow, "005", "7");
    numbneg(leaf("005"));
    numbless(leaf("005"), leaf("001"));
    hintadd(leaf("5"), leaf("6"));
  }));
}

}  // namespace
}  // namespace tarn

// Comparison: that it orders all values totally. What it answers for each pair of kinds is told by
// programs, in tests/language/compare.cases.
#include "values/compare.h"

#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/values/slow.h"
#include "values/cray.h"
#include "values/post.h"
#include "values/real.h"

namespace tarn {
namespace {

std::string textof(Cell* x) { return stringof(celltext(x)); }
bool less(Cell* x, Cell* y) { return textof(valueless(x, y)) == "K"; }
bool gteq(Cell* x, Cell* y) { return textof(valuegteq(x, y)) == "K"; }
std::string same(Cell* x, Cell* y) { return textof(valuesame(x, y)); }
std::string diff(Cell* x, Cell* y) { return textof(valuediff(x, y)); }

struct Compare : testing::Test {
  Compare() {
    for (const char* name : {"J", "K", "H", "V"}) defset(Str(name), leafcstr("0"));
  }
  ~Compare() override { defclear(); }
};

std::string randomword(Random& random) {
  std::string s;
  for (uint64_t n = random() % 3; n > 0; n--) s += static_cast<char>('a' + random() % 3);
  return s;
}

CellRef randominteger(Random& random) {
  return leafstr(strof((random() % 2 == 0 ? "0" : "") + std::to_string(1 + random() % 20)));
}

// Any value but arrays of arrays below a depth; no numb, as its order is not that of its worth, and
// no NaN.
CellRef randomvalue(Random& random, int depth) {
  switch (random() % (depth > 0 ? 5 : 4)) {
    case 0: return postmake(strbytes(strof(randomword(random))));
    case 1: return leafstr(strof("[" + randomword(random) + "]"));
    case 2: return randominteger(random);
    case 3: return realleaf(static_cast<double>(random() % 9) / 2);
    default: break;
  }
  CellRef x = craynew(0);
  for (uint64_t n = random() % 3; n > 0; n--) x = crayappend(x, randomvalue(random, depth - 1));
  return x;
}

// Not as an element: two of kind void have no equality, and an array with them has no clear order.
CellRef randomsingle(Random& random) {
  if (random() % 5 == 0) return leafbyte(random() % 2 == 0 ? 'K' : 'H');
  return randomvalue(random, 0);
}

TEST_F(Compare, GreaterOrEqualIsNotLess) {
  Random random(4);
  for (int i = 0; i < 5000; i++) {
    CellRef x = randomsingle(random);
    CellRef y = randomsingle(random);
    EXPECT_NE(less(x, y), gteq(x, y));
    EXPECT_FALSE(less(x, y) && less(y, x));
    bool ordered = less(x, y) || less(y, x);
    std::string equal = same(x, y);
    EXPECT_EQ(diff(x, y), equal == "Z" ? "Z" : equal == "K" ? "H" : "K");
    EXPECT_TRUE(equal == "Z" || ordered == (equal == "H"));
  }
}

TEST_F(Compare, TheOrderIsTransitive) {
  Random random(5);
  for (int i = 0; i < 5000; i++) {
    CellRef x = randomvalue(random, 2);
    CellRef y = randomvalue(random, 2);
    CellRef z = randomvalue(random, 2);
    EXPECT_TRUE(!less(x, y) || !less(y, z) || less(x, z));
  }
}

TEST_F(Compare, AnArrayIsTheSameAsItself) {
  Random random(6);
  for (int i = 0; i < 1000; i++) {
    CellRef x = crayappend(crayempty(), randomvalue(random, 2));
    EXPECT_EQ(same(x, x), "K");
    EXPECT_EQ(diff(x, x), "H");
    EXPECT_FALSE(less(x, x));
    EXPECT_TRUE(gteq(x, x));
  }
}

}  // namespace
}  // namespace tarn

// Bracket texts: flattening, taking apart and the trees, each against a slow way by the letter.
#include "values/zits.h"

#include <gtest/gtest.h>

#include "foundation/codemap.h"
#include "tests/support/death.h"
#include "tests/values/slow.h"

namespace tarn {
namespace {

CellRef leaf(const std::string& text) { return leafstr(strof(text)); }
std::string textof(Cell* x) { return stringof(celltext(x)); }
std::string flat(Cell* x) { return textof(zitsflat(x)); }

// The text of a rope: that of its left part without the bracket, and its right part as one item.
std::string slowflat(Cell* x) {
  if (cellisleaf(x)) return textof(x);
  std::string left = slowflat(leftlink(x));
  std::string right = slowflat(rightlink(x));
  int32_t byte = byteofcode(strof(right));
  if (byte >= 0) right = std::string(1, static_cast<char>(byte));
  return left.substr(0, left.size() - 1) + right + "]";
}

// The tree of a text, from its last item back; pairs in parentheses.
std::string slowtree(Cell* x) {
  if (zitsempty(x)) return "K";
  return "(" + slowtree(zitsleft(x)) + slowtree(zitsright(x)) + ")";
}

std::string shown(Cell* tree) {
  if (cellisleaf(tree)) return textof(tree);
  EXPECT_EQ(textof(leftlink(leftlink(tree))), "J");
  return "(" + shown(rightlink(leftlink(tree))) + shown(rightlink(tree)) + ")";
}

std::string randomcontent(Random& random, int depth) {
  std::string s;
  for (uint64_t n = random() % 5; n > 0; n--) {
    if (depth > 0 && random() % 3 == 0) {
      s += "[" + randomcontent(random, depth - 1) + "]";
    } else {
      uint8_t c = static_cast<uint8_t>(random() % 256);
      if (c != '[' && c != ']') s += static_cast<char>(c);
    }
  }
  return s;
}

CellRef randomrope(Random& random, int depth) {
  if (depth == 0 || random() % 3 == 0) return leaf("[" + randomcontent(random, 2) + "]");
  if (random() % 4 == 0) return leafstr(codeofbyte(static_cast<uint8_t>('a' + random() % 26)));
  return cellpairtake(randomrope(random, depth - 1), randomrope(random, depth - 1));
}

TEST(Zits, MakesAndMeasures) {
  CellRef x = zitsmake(strbytes(Str("ab")));
  EXPECT_EQ(textof(x), "[ab]");
  EXPECT_EQ(stringof(zitstext(x)), "ab");
  EXPECT_EQ(zitslength(x), 4);
  EXPECT_TRUE(zitsempty(leaf("[]")));
  EXPECT_FALSE(zitsempty(x));
  EXPECT_FALSE(zitsempty(cellpair(leaf("[]"), leaf("[]"))));
}

TEST(Zits, FlatTextsStayTheCellThatTheyAre) {
  CellRef x = leaf("[ab]");
  EXPECT_EQ(zitsflat(x), x);
}

TEST(Zits, ARopeHasItsRightPartAsLastItem) {
  EXPECT_EQ(flat(cellpair(leaf("[a]"), leaf("[b]"))), "[a[b]]");
  EXPECT_EQ(flat(cellpair(leaf("[a]"), leafstr(codeofbyte('b')))), "[ab]");
  EXPECT_EQ(flat(cellpair(leaf("[]"), leaf("[]"))), "[[]]");
  EXPECT_EQ(flat(cellpair(leafstr(codeofbyte('a')), leaf("[]"))),
            stringof(codeofbyte('a')).substr(0, stringof(codeofbyte('a')).size() - 1) + "[]]");
}

// A rope on the right can come out as the word of a byte too.
TEST(Zits, ARopeThatSpellsAWordIsOneByte) {
  CellRef word = leafstr(codeofbyte('b'));
  CellRef spelled = cellpair(zitsleft(word), zitsright(word));
  EXPECT_EQ(flat(spelled), stringof(codeofbyte('b')));
  EXPECT_EQ(flat(cellpair(leaf("[a]"), spelled)), "[ab]");
}

TEST(Zits, FlattensLikeTheSlowWay) {
  Random random(1);
  for (int i = 0; i < 2000; i++) {
    CellRef rope = randomrope(random, 5);
    EXPECT_EQ(flat(rope), slowflat(rope));
    EXPECT_EQ(zitslength(rope), static_cast<int64_t>(slowflat(rope).size()));
  }
}

TEST(Zits, FlattensDeepRopesBothWays) {
  CellRef left = leaf("[]");
  CellRef right = leaf("[]");
  for (int i = 0; i < 100000; i++) {
    left = cellpair(left, leaf("[x]"));
    right = cellpair(leaf("[x]"), right);
  }
  EXPECT_EQ(zitslength(left), 2 + 3 * 100000);
  EXPECT_EQ(zitslength(right), 2 + 3 * 100000);
}

TEST(Zits, TakesTheLastItemOff) {
  EXPECT_EQ(textof(zitsleft(leaf("[ab]"))), "[a]");
  EXPECT_EQ(textof(zitsleft(leaf("[a[b]]"))), "[a]");
  EXPECT_EQ(textof(zitsright(leaf("[a[b[c]]]"))), "[b[c]]");
  EXPECT_EQ(textof(zitsright(leaf("[[]]"))), "[]");
  EXPECT_EQ(textof(zitsright(leaf("[ab]"))), "[[[[][]][[]]][]]");
}

TEST(Zits, BothPartsMakeTheTextAgain) {
  Random random(2);
  for (int i = 0; i < 2000; i++) {
    CellRef x = zitsflat(randomrope(random, 4));
    if (zitsempty(x)) continue;
    EXPECT_EQ(flat(cellpair(zitsleft(x), zitsright(x))), textof(x));
  }
}

TEST(Zits, TheTreeIsWhatTakingApartGives) {
  Random random(3);
  for (int i = 0; i < 500; i++) {
    CellRef x = randomrope(random, 3);
    EXPECT_EQ(shown(zitstree(x)), slowtree(x));
    EXPECT_EQ(textof(zitsoftree(zitstree(x))), flat(x));
  }
}

TEST(Zits, TreesOfAnythingElseFail) {
  EXPECT_EQ(textof(zitsoftree(leaf("K"))), "[]");
  EXPECT_EQ(textof(zitsoftree(leaf("H"))), "Z");
  EXPECT_EQ(textof(zitsoftree(leaf("[]"))), "Z");
  EXPECT_EQ(textof(zitsoftree(cellapply2(leaf("J"), leaf("K"), leaf("1")))), "Z");
  EXPECT_EQ(textof(zitsoftree(cellapply2(leaf("V"), leaf("K"), leaf("K")))), "Z");
}

// The cells of a tree are all its own: nobody else can see one of them.
TEST(Zits, TreesShareNothing) {
  CellRef tree = zitstree(leaf("[aa]"));
  EXPECT_NE(rightlink(tree), rightlink(rightlink(leftlink(tree))));
}

TEST(Zits, TextOutOfBalanceIsNotTakenApart) {
  EXPECT_FALSE(isbalanced(strbytes(Str("]["))));
  EXPECT_FALSE(isbalanced(strbytes(Str("["))));
  EXPECT_TRUE(isbalanced(strbytes(Str("a[]b"))));
  EXPECT_FAILS(zitsleft(leaf("[]")), "values/zits.cpp");
  EXPECT_FAILS(zitsright(leaf("[[]")), "values/zits.cpp");
  EXPECT_FAILS(zitsleft(leaf("[]]]")), "values/zits.cpp");
  EXPECT_FAILS(zitstree(leaf("[[]")), "values/zits.cpp");
  EXPECT_FAILS(zitstree(leaf("[a]b]")), "values/zits.cpp");
  EXPECT_EQ(textof(zitsleft(leaf("[a]]"))), "]");
}

}  // namespace
}  // namespace tarn

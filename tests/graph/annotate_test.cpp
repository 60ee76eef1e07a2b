// The cached description: each rule of it, at each kind of cell.
#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {

struct AnnotateTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { defclear(); }
};
using AnnotateDeathTest = AnnotateTest;

static int arity(const char* text) { return cellarity(term(text)); }
static bool pending(const char* text) { return cellpending(term(text)); }
static bool normal(const char* text) { return cellnormal(term(text)); }
static uint32_t letters(const char* text) { return cellfree(term(text)); }

static uint32_t set(const char* names) {
  uint32_t bits = 0;
  for (; *names != 0; names++) bits |= uint32_t{1} << (*names - 'a');
  return bits;
}

static int tag(Cell* c) {
  cellannotate(c);
  return static_cast<int>(c->header >> 56);
}

TEST_F(AnnotateTest, LeavesByTheirFirstByte) {
  EXPECT_EQ(arity("`"), 1);
  EXPECT_EQ(cellarity(craynew(3)), 1);
  EXPECT_EQ(cellarity(leafcstr(")name")), 1);
  EXPECT_EQ(cellarity(leafcstr("]any text")), 2);
  EXPECT_EQ(arity("12"), 1);
  EXPECT_EQ(cellarity(leafcstr("(a)x")), 1);
  EXPECT_EQ(cellarity(leafmade(" 12345678", 9)), 1);
  EXPECT_EQ(cellarity(leafempty()), 1);
  EXPECT_EQ(arity("x,"), 1);
}

TEST_F(AnnotateTest, TagBytes) {
  EXPECT_EQ(tag(term("12")), 0xb5);
  EXPECT_EQ(tag(term("[ab]")), 0xc0);
  EXPECT_EQ(tag(term("[ab] [c]")), 0x40);
  EXPECT_EQ(tag(term("a")), 0x80 | 63);
  EXPECT_EQ(tag(term("K 1")), 53);
  EXPECT_EQ(tag(term("+ 1 2")), 50);
  EXPECT_EQ(tag(term("plus 1 (plus 1 2)")), 0x40 | 52);
}

TEST_F(AnnotateTest, ANameHasTheArityOfItsLeadingAbstractions) {
  EXPECT_EQ(arity("K"), 2);
  EXPECT_EQ(arity("+"), 0);
  EXPECT_EQ(arity("plus"), 2);
  EXPECT_EQ(arity("todo"), 3);
  EXPECT_EQ(arity("\\"), 3);
  EXPECT_EQ(arity("four"), 0);
}

TEST_F(AnnotateTest, ArityStopsAtElevenAbstractions) {
  std::string text = "a";
  for (int i = 0; i < 10; i++) text = "\\ a (" + text + ")";
  define("ten", text);
  define("eleven", "\\ a (" + text + ")");
  define("twelve", "\\ a (\\ a (" + text + "))");
  EXPECT_EQ(arity("ten"), 10);
  EXPECT_EQ(arity("eleven"), 11);
  EXPECT_EQ(arity("twelve"), 11);
  EXPECT_EQ(arity("ten 1 2 3"), 7);
}

TEST_F(AnnotateTest, TheArityOfALeafStandsThoughTheNameIsDefinedAnew) {
  CellRef leaf = leafcstr("K");
  EXPECT_EQ(cellarity(leaf), 2);
  define("K", "1");
  EXPECT_EQ(cellarity(leaf), 2);
  EXPECT_EQ(arity("K"), 0);
}

TEST_F(AnnotateTest, ASingleLetterIsAVariable) {
  EXPECT_EQ(arity("a"), 11);
  EXPECT_EQ(letters("a"), 1u);
  EXPECT_EQ(letters("z"), uint32_t{1} << 25);
}

TEST_F(AnnotateTest, ALetterWithADefinitionIsNoVariable) {
  define("a", "1");
  EXPECT_EQ(arity("a"), 0);
  EXPECT_EQ(letters("a"), 0u);
}

TEST_F(AnnotateDeathTest, ANameWithoutDefinitionHasToBeALetter) {
  EXPECT_FAILS(arity("nobody"), "graph/annotate.cpp");
  EXPECT_FAILS(arity("G"), "graph/annotate.cpp");
  EXPECT_FAILS(arity("~"), "graph/annotate.cpp");
}

TEST_F(AnnotateTest, ApplicationTakesOneFromTheArity) {
  EXPECT_EQ(arity("plus 1"), 1);
  EXPECT_EQ(arity("plus 1 2"), 0);
  EXPECT_EQ(arity("plus 1 2 3"), -1);
  EXPECT_EQ(arity("5 1"), 0);
  EXPECT_EQ(arity("[ab] 1"), 0);
  EXPECT_EQ(arity("]x 1"), 1);
}

TEST_F(AnnotateTest, UnknownArityStaysUnknown) {
  EXPECT_EQ(arity("a 1"), 11);
  EXPECT_EQ(arity("a 1 2 3 4 5 6 7 8 9 10 11 12 13"), 11);
}

TEST_F(AnnotateTest, ArityHasAFloor) {
  CellRef f = leafcstr("+");
  for (int i = 1; i <= 60; i++) {
    f = cellpairtake(std::move(f), leafcstr("1"));
    EXPECT_EQ(cellarity(f), i <= 51 ? -i : -51);
    EXPECT_TRUE(cellannotated(f));
  }
}

TEST_F(AnnotateTest, DataIsStringsAndPairsOfThem) {
  EXPECT_TRUE(cellisdata(term("[ab]")));
  EXPECT_TRUE(cellisdata(term("[ab] ([c] [d])")));
  EXPECT_FALSE(cellisdata(term("[ab] 1")));
  EXPECT_FALSE(cellisdata(term("K [ab]")));
  EXPECT_EQ(arity("[ab] [c]"), 1);
  EXPECT_FALSE(pending("[ab] [c]"));
  EXPECT_TRUE(normal("[ab] [c]"));
}

TEST_F(AnnotateTest, DataPairsSumTheirSizes) {
  CellRef rope = term("[ab] ([c] [])");
  cellannotate(rope);
  EXPECT_EQ(cellfield(rope), 9u);
  EXPECT_EQ(cellfree(rope), 0u);
  CellRef big = leafcstr(("[" + std::string(0x2000000 - 2, 'x') + "]").c_str());
  CellRef under = cellpair(big, term("[]"));
  cellannotate(under);
  EXPECT_EQ(cellfield(under), 0x2000002u);
  CellRef over = cellpair(big, big);
  cellannotate(over);
  EXPECT_EQ(cellfield(over), 0u);
  CellRef above = cellpair(over, term("[]"));
  cellannotate(above);
  EXPECT_EQ(cellfield(above), 0u);
}

TEST_F(AnnotateTest, APartialApplicationOfValuesIsNormal) {
  EXPECT_TRUE(normal("plus 1"));
  EXPECT_FALSE(pending("plus 1"));
  EXPECT_TRUE(normal("plus (plus 1)"));
  EXPECT_TRUE(normal("12"));
  EXPECT_FALSE(normal("plus 1 2"));
  EXPECT_FALSE(normal("+"));
}

TEST_F(AnnotateTest, UnfinishedWorkPends) {
  EXPECT_TRUE(pending("plus (plus 1 2)"));
  EXPECT_TRUE(pending("plus +"));
  EXPECT_TRUE(pending("plus (K 1 2) 3"));
  EXPECT_FALSE(pending("plus 1 2"));  // a redex, with nothing to do in its arguments
  EXPECT_TRUE(pending("K (plus 1 2)"));
  EXPECT_TRUE(pending("K (K (plus 1 2))"));
}

TEST_F(AnnotateTest, AnAbstractionIsNeverPending) {
  EXPECT_FALSE(pending("\\ a (plus 1 2)"));
  EXPECT_TRUE(normal("\\ a (plus 1 2)"));
  EXPECT_EQ(arity("\\ a (plus 1 2)"), 1);
  EXPECT_EQ(arity("\\ a +"), 1);
  EXPECT_FALSE(pending("K (\\ a (plus 1 2))"));
}

TEST_F(AnnotateTest, AbstractionsBindTheirLetter) {
  EXPECT_EQ(letters("\\ a (a b)"), set("b"));
  EXPECT_EQ(letters("\\ a (\\ b (a b c))"), set("c"));
  EXPECT_EQ(letters("\\ a 1"), 0u);
  EXPECT_EQ(letters("K (\\ a (a b)) (c b)"), set("bc"));
}

TEST_F(AnnotateTest, LocalsBindInTheirBodyAndNotInTheirValue) {
  EXPECT_EQ(letters("{ a (a b) (a c)"), set("abc"));
  EXPECT_EQ(letters("{ a b (a c)"), set("bc"));
  EXPECT_EQ(letters("{ a b"), set("b"));
  EXPECT_EQ(letters("{ a (a b)"), set("ab"));
  EXPECT_EQ(letters("{ a 1 a"), 0u);
}

TEST_F(AnnotateTest, FieldsThatAreNoLetters) {
  EXPECT_EQ(letters("7777777"), 0u);
  EXPECT_EQ(letters("[aaaa]"), 0u);
  EXPECT_EQ(cellfree(craynew(9)), 0u);
  CellRef mark = leafcstr("`");
  setfield(mark, 7);
  EXPECT_EQ(cellfree(mark), 0u);
  EXPECT_EQ(cellfree(cellpair(mark, mark)), 0u);
  EXPECT_EQ(letters("K 7777777 [aaaa]"), 0u);
}

TEST_F(AnnotateTest, HeadsAreLeavesAndData) {
  EXPECT_TRUE(cellhead(term("K")));
  EXPECT_TRUE(cellhead(term("[a] [b]")));
  EXPECT_FALSE(cellhead(term("K 1")));
}

TEST_F(AnnotateTest, DeepTerms) {
  CellRef left = leafcstr("+");
  CellRef right = leafcstr("1");
  for (int i = 0; i < DEPTH; i++) {
    left = cellpairtake(std::move(left), leafcstr("b"));
    right = cellpairtake(leafcstr("K"), std::move(right));
  }
  EXPECT_EQ(cellfree(left), set("b"));
  EXPECT_EQ(cellarity(left), -51);
  EXPECT_TRUE(cellnormal(right));
}

TEST_F(AnnotateTest, ADoubledTermIsAnnotatedOnce) {
  CellRef b = term("a");
  for (int i = 0; i < 64; i++) b = cellpair(b, b);
  EXPECT_EQ(cellfree(b), set("a"));
}

}  // namespace tarn

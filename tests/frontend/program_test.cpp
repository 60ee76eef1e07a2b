// From texts to definitions: the prelude, items, live names, line marks, and the two refusals.
#include "frontend/program.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "frontend/driver.h"
#include "frontend/prelude.h"
#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {
namespace {

struct ProgramTest : testing::Test {
  void SetUp() override {
    loadtestdefs();
    loadprelude();
  }
  void TearDown() override { cleardefs(); }

  // The term of a name, "none" for a name without one.
  std::string defined(const char* name) {
    Cell* found = defterm(name);
    return found == nullptr ? "none" : shown(found);
  }

  std::string read(const char* text) {
    Report report = readprogram(text, 0);
    return report.message.text();
  }
};

TEST_F(ProgramTest, PreludeHasItsItems) {
  EXPECT_EQ(prelude.size(), 563u);
  EXPECT_EQ(globaldefs().size(), 52u);
  EXPECT_EQ(preludecopy().size(), 52u);
  for (const auto& [name, definition] : globaldefs()) {
    EXPECT_EQ(static_cast<Cell*>(preludecopy()[name]), static_cast<Cell*>(definition->term));
  }
  EXPECT_TRUE(alivenames().empty());
}

TEST_F(ProgramTest, PreludeEstablishesItsTerms) {
  EXPECT_EQ(defined("K"), "\\ a (\\ b a)");
  EXPECT_EQ(defined("H"), "\\ a I");
  EXPECT_EQ(defined("A"), "\\ a (a S (B K K))");
  EXPECT_EQ(defined("G"), "\\ a (V Z (B W (B C) (D D V) (V (X J))))");
  EXPECT_EQ(defined("P"), "\\ a (a (X S) I)");
  EXPECT_EQ(defined("U"), "\\ a (\\ b (\\ c (\\ d (\\ e (e (V a b) (V c d))))))");
  EXPECT_EQ(defined("X"), "\\ a (\\ b (\\ c (\\ d (V b (a d c)))))");
  EXPECT_EQ(defined("Y"), "\\ a (\\ b (a (Y a) b))");
  EXPECT_EQ(defined("!"), "\\ p (p H K)");
  EXPECT_EQ(defined("&"), "\\ q (\\ r (q r H))");
  EXPECT_EQ(defined("\\"), "\\ a (\\ b (\\ c Z))");
  EXPECT_EQ(defined("`"), "\\ a Z");
  EXPECT_EQ(defined("+"), "plus");
  EXPECT_EQ(defined("@"), "T");
  EXPECT_EQ(defined("\""), "I");
  EXPECT_EQ(defined(""), "none");
}

TEST_F(ProgramTest, LoadingThePreludeStartsAnew) {
  read("1,foo\\2,bar()\\3");
  loadprelude();
  EXPECT_EQ(globaldefs().size(), 52u);
  EXPECT_TRUE(alivenames().empty());
}

TEST_F(ProgramTest, BuiltinsAreStubsOfTheirArity) {
  EXPECT_EQ(read("1"), "");
  EXPECT_EQ(defined("four"), "Z");
  EXPECT_EQ(defined("tell"), "\\ a Z");
  EXPECT_EQ(defined("plus"), "\\ a (\\ b Z)");
  EXPECT_EQ(defined("todo"), "\\ a (\\ b (\\ c Z))");
}

TEST_F(ProgramTest, MainAndItems) {
  EXPECT_EQ(read("1+2,foo\\x\\x+1,[+]\\bar,K\\2"), "");
  EXPECT_EQ(defined(""), "+ 1 2");
  EXPECT_EQ(defined("foo"), "\\ x (+ x 1)");
  EXPECT_EQ(defined("+"), "bar");
  EXPECT_EQ(defined("K"), "2");
}

TEST_F(ProgramTest, AnEmptyTextHasAMissingMainExpression) {
  EXPECT_EQ(read(""), "");
  EXPECT_EQ(defined(""), "}");
  EXPECT_EQ(read(",foo\\1"), "");
  EXPECT_EQ(defined(""), "}");
  EXPECT_EQ(defined("foo"), "1");
}

TEST_F(ProgramTest, LiveNames) {
  EXPECT_EQ(read("1,foo()\\3,bar ()\\4,(zap)()\\5,zip()\\6,zip\\7,zag\\8,zag()\\9"), "");
  EXPECT_EQ(defined("foo"), "I 3");
  EXPECT_EQ(alivenames(), (std::set<Str>{"bar", "foo", "zag", "zap"}));
  EXPECT_EQ(defined("zip"), "7");
  EXPECT_EQ(defined("zag"), "I 9");
}

TEST_F(ProgramTest, OtherItemsArePassedOver) {
  EXPECT_EQ(read("1,foo+2,x1\\2,1\\2,foo()()\\3,foo-\\4,foo bar\\5,[ab]\\6,,AB\\7,x{1}foo\\8"), "");
  EXPECT_EQ(defined("foo"), "none");
  EXPECT_EQ(defined("x"), "none");
  EXPECT_EQ(globaldefs().size(), 52u + builtintable().size() + 1);
}

TEST_F(ProgramTest, OneSmallLetterCannotBeDefined) {
  Report report = readprogram("1, foo\\1 , a\\2,bar\\3", 100);
  EXPECT_EQ(report.message,
            Str("Single lowercase letters (a) cannot be defined as global variables."));
  EXPECT_EQ(report.word, Str("lower"));
  EXPECT_EQ(report.place, Str("___aH"));  // 100 + 8 in the tidied text 1,foo\1,a\2
  EXPECT_EQ(report.name, Str("a"));
  EXPECT_EQ(report.context, Str());
}

TEST_F(ProgramTest, BuiltinsCannotBeDefined) {
  Report report = readprogram("1,plus\\2", 0);
  EXPECT_EQ(report.message, Str("Built in function [plus] cannot be re-defined."));
  EXPECT_EQ(report.word, Str("built"));
  EXPECT_EQ(report.place, Str("____b"));
  EXPECT_EQ(report.name, Str("plus"));
  EXPECT_EQ(read("1,[\\]\\2"), "Built in function [\\] cannot be re-defined.");
  EXPECT_EQ(read("1,[{]\\2"), "Built in function [{] cannot be re-defined.");
  EXPECT_EQ(read("1,[`]\\2"), "");
}

TEST_F(ProgramTest, AnUnsoundTextChangesNothing) {
  EXPECT_EQ(read(")"), "Dangling right-parenthesis at [_____].");
  EXPECT_EQ(globaldefs().size(), 52u);
}

// The lines of all marks of a term, left before right.
std::string lines(Cell* c) {
  if (cellispair(c)) return lines(leftlink(c)) + lines(rightlink(c));
  return cellbyte(c) == '`' ? std::to_string(cellfield(c)) + " " : "";
}

TEST_F(ProgramTest, MarksGetTheirLines) {
  EXPECT_EQ(lines(parseprogram("\n\n`1\n\n\n\n+`2").main), "3 7 ");
  EXPECT_EQ(lines(parseprogram("`1+`2").main), "1 1 ");
  EXPECT_EQ(lines(parseprogram("[`]\n`1+[\n`]+\n`2").main), "2 4 ");
  // By the order of the tree, not of the text: the outer mark is written last.
  EXPECT_EQ(shown(parseprogram("(`x\n)`").main), "` (` x)");
  EXPECT_EQ(lines(parseprogram("(`x\n)`").main), "1 2 ");
}

TEST_F(ProgramTest, MarksOfItemsFollowThoseOfMain) {
  Program program = parseprogram("`1,\nfoo\\`2,\n`3,\nbar\\`4");
  EXPECT_EQ(lines(program.main), "1 ");
  ASSERT_EQ(program.items.size(), 2u);
  EXPECT_EQ(lines(program.items[0].value), "2 ");
  EXPECT_EQ(lines(program.items[1].value), "4 ");
}

}  // namespace
}  // namespace tarn

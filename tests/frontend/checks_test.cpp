// The checks: the fields of each report, and what the steps leave behind.
#include "frontend/checks.h"

#include <gtest/gtest.h>

#include <string>

#include "frontend/driver.h"
#include "frontend/program.h"
#include "frontend/typetable.h"
#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {
namespace {

struct ChecksTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { cleardefs(); }

  Report checked(const Str& text) {
    loadprelude();
    Report report = readprogram(text, 0);
    if (report.sound()) checkprogram(report);
    return report;
  }

  void expectreport(const Str& text, const std::vector<Str>& fields) {
    Report report = checked(text);
    EXPECT_EQ(report.message, fields[0]);
    EXPECT_EQ(report.word, fields[1]);
    EXPECT_EQ(report.place, fields[2]);
    EXPECT_EQ(report.name, fields[3]);
    EXPECT_EQ(report.context, Str());
  }

  std::string defined(const char* name) {
    Cell* found = defterm(name);
    return found == nullptr ? "none" : shown(found);
  }
};

TEST_F(ChecksTest, Funky) {
  expectreport("1+2\\3", {"Funky key in expression (\\ (+1 2) 3).", "funky", "", "(\\ (+1 2) 3)"});
  expectreport("foo,tests\\1\\2", {"Funky key in expression (\\1 2) in function tests.", "funky",
                                   "tests \"", "(\\1 2)"});
}

TEST_F(ChecksTest, FunkyShowsTheWholeTermAndNamesItShortly) {
  std::string key = "1";
  std::string tree = "1";
  for (int i = 0; i < 40; i++) key += "+2";
  Report report = checked((key + "\\3").c_str());
  EXPECT_EQ(report.name.len(), 72);
  EXPECT_GT(report.message.len(), 150);
}

TEST_F(ChecksTest, Alive) {
  expectreport("foo", {"Alive function TOP references undefined foo.", "alive", "TOP", "foo"});
  expectreport("tests,tests\\wrong", {"Alive function tests references undefined wrong.", "alive",
                                      "tests \"", "wrong \""});
}

TEST_F(ChecksTest, Place) {
  std::string text = "x{1}";
  for (char c = 'a'; c <= 'z'; c++) text += std::string(1, c) + "{1}";
  EXPECT_TRUE(checked((text + "a").c_str()).sound());
  expectreport((text + "foo{1}a").c_str(), {"Place error.", "place", "", ""});
  expectreport(("1,bar\\" + text + "foo{1}a").c_str(),
               {"Place error in function bar.", "place", "bar", ""});
}

TEST_F(ChecksTest, Arity) {
  expectreport("a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\k\\a",
               {"Arity of function  may not exceed ten.", "arity", "", ""});
  expectreport("1,foo\\a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\k\\a",
               {"Arity of function foo may not exceed ten.", "arity", "foo", ""});
  EXPECT_TRUE(checked("a\\b\\c\\d\\e\\f\\g\\h\\i\\j\\a").sound());
}

TEST_F(ChecksTest, Unbound) {
  expectreport("(foo\\foo)foo,foo\\3", {"Local variable a unbound.", "local", "", ""});
  expectreport("1,foo\\(bar\\bar)bar,bar\\3",
               {"Local variable a unbound in function foo.", "local", "foo", ""});
}

TEST_F(ChecksTest, LongNamesGetTheFirstFreeLettersInOrder) {
  EXPECT_TRUE(checked("b\\zap\\foo\\zap foo b").sound());
  EXPECT_EQ(defined(""), "\\ b (\\ c (\\ a (c a b)))");
}

TEST_F(ChecksTest, TheTypeTableStandsUnderItsName) {
  EXPECT_TRUE(checked("1,_\\2").sound());
  EXPECT_EQ(defterm("_") == nullptr ? Str() : celltext(defterm("_")), typetable());
}

TEST_F(ChecksTest, BrokenDefinitionsOutOfReachAreDropped) {
  EXPECT_TRUE(checked("1,foo\\bar zap,bar\\none,zap\\2,K()\\none,W\\foo").sound());
  EXPECT_EQ(defined("foo"), "none");
  EXPECT_EQ(defined("bar"), "none");
  EXPECT_EQ(defined("zap"), "2");
  EXPECT_EQ(defined("K"), "\\ a (\\ b a)");
  EXPECT_EQ(defined("W"), "\\ a (\\ b (a b b))");
  EXPECT_FALSE(isalive("K"));
  EXPECT_TRUE(preludecopy().empty());
}

TEST_F(ChecksTest, EntriesOfBuiltinsStayThoughZIsBroken) {
  EXPECT_TRUE(checked("1,Z\\none").sound());
  EXPECT_EQ(defined("plus"), "\\ a (\\ b Z)");
  EXPECT_EQ(defined("Z"), "\\ a Z");
}

TEST_F(ChecksTest, MarksKnowTheirDefinition) {
  EXPECT_TRUE(checked("`foo,\nfoo\\`1").sound());
  EXPECT_EQ(defined(""), "U 1 [] [foo] foo");
  EXPECT_EQ(defined("foo"), "U 2 [foo] [1] 1");
}

TEST_F(ChecksTest, EqualTermsOfTwoDefinitionsAreOneCell) {
  EXPECT_TRUE(checked("1,foo\\x\\K(1 2)x,bar\\y\\z\\1 2").sound());
  Cell* foo = rightlink(defterm("foo"));
  Cell* bar = rightlink(rightlink(defterm("bar")));
  EXPECT_EQ(rightlink(leftlink(foo)), bar);
}

TEST_F(ChecksTest, EverythingIsAnnotated) {
  EXPECT_TRUE(checked("1,foo\\x\\x").sound());
  for (const auto& [name, definition] : globaldefs())
    EXPECT_TRUE(cellannotated(definition->term)) << name.text();
}

TEST_F(ChecksTest, ManyDefinitionsAreOrdinary) {
  std::string text = "foo_a";
  std::string name = "foo_a";
  for (int i = 0; i < 20000; i++) {
    std::string next = name;
    size_t at = next.size() - 1;
    while (next[at] == 'z') next[at--] = 'a';
    if (next[at] == '_')
      next.insert(at + 1, 1, 'a');
    else
      next[at]++;
    text += "," + name + "\\" + next;
    name = next;
  }
  EXPECT_TRUE(checked((text + "," + name + "\\1").c_str()).sound());
}

}  // namespace
}  // namespace tarn

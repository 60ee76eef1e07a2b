// One evaluation from text to what is shown, its failures, and that nothing of it is left.
#include "frontend/driver.h"

#include <gtest/gtest.h>

#include <string>

#include "frontend/program.h"
#include "graph/definitions.h"
#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct DriverTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { cleardefs(); }

  Report ran(const char* text) {
    loadprelude();
    Report report = readprogram(text, 0);
    if (report.sound()) runcheck(report);
    return report;
  }

  std::string evaluated(const std::string& text) {
    return evaluate(Str(text.data(), static_cast<int64_t>(text.size())), 0).shown.text();
  }
};

TEST_F(DriverTest, TheValueTakesThePlaceOfTheMainExpression) {
  EXPECT_TRUE(ran("1+2").sound());
  EXPECT_EQ(shown(maindefinition()), "3");
  EXPECT_TRUE(ran("1,_\\1+3").sound());
  EXPECT_EQ(shown(maindefinition()), "4");
}

TEST_F(DriverTest, NoMainExpressionIsAFault) {
  cleardefs();
  EXPECT_FAILS(maindefinition(), "frontend/driver.cpp");
}

TEST_F(DriverTest, FailureValuesAreValues) {
  EXPECT_TRUE(ran("Z").sound());
  EXPECT_EQ(shown(maindefinition()), "Z");
  EXPECT_TRUE(ran("x{K}(x,x)").sound());
  EXPECT_EQ(shown(maindefinition()), "]x,");
}

TEST_F(DriverTest, CyclesAreReported) {
  Report report = ran("1+foo,foo\\foo");
  EXPECT_EQ(report.message, Str("Cycle detected on function foo."));
  EXPECT_EQ(report.word, Str("cycle"));
  EXPECT_EQ(report.place, Str("foo"));
  EXPECT_EQ(report.name, Str());
}

TEST_F(DriverTest, RaisedReportsComeBack) {
  Report report = ran("1+raise(['[\"Oh.][\"alive][\"TOP][\"foo][\"yes]])");
  EXPECT_EQ(report.message, Str("Oh."));
  EXPECT_EQ(report.word, Str("alive"));
  EXPECT_EQ(report.place, Str("TOP"));
  EXPECT_EQ(report.name, Str("foo"));
  EXPECT_EQ(report.context, Str("yes"));
  report = ran("raise 17");
  EXPECT_EQ(report.message, Str("17"));
  EXPECT_FALSE(report.sound());
  EXPECT_EQ(ran("raise(K 1)").message, Str());
}

TEST_F(DriverTest, ReportValuesAreRaisedByBuiltins) {
  CellRef value = reportvalue({"Oh.", "alive", "TOP", "foo", "yes"});
  EXPECT_EQ(shown(value), "] ['[\"Oh.][\"alive][\"TOP][\"foo][\"yes]]");
}

TEST_F(DriverTest, EvaluationShowsValueOrMessage) {
  Evaluation good = evaluate("1+2", 0);
  EXPECT_TRUE(good.ok);
  EXPECT_EQ(good.shown, Str("3"));
  Evaluation bad = evaluate(")", 64);
  EXPECT_FALSE(bad.ok);
  EXPECT_EQ(bad.shown, Str("Dangling right-parenthesis at [___a_]."));
  EXPECT_EQ(bad.place, Str("___a_"));
}

TEST_F(DriverTest, NothingIsLeftOfARun) {
  evaluate("1", 0);
  int64_t before = cellcounts().alive;
  for (const char* text : {"1+2", ")", "foo", "1,plus\\2", "1\\2", "foo,foo\\foo", "raise 1",
                           "(foo\\foo)foo,foo\\1", "foo,foo()\\K 1,bar\\foo", "a\\`1"}) {
    evaluate(text, 0);
    EXPECT_EQ(cellcounts().alive, before) << text;
    EXPECT_TRUE(globaldefs().empty() && alivenames().empty() && preludecopy().empty()) << text;
  }
}

TEST_F(DriverTest, NoFinaliserRunsBesideEvaluation) {
  told = "";
  evaluated("foo,foo\\todo tell 1");       // in the value
  evaluated("1,foo\\todo tell 1");         // in a definition
  evaluated("1,todo tell 1");              // in an item that is passed over
  evaluated("1,foo\\todo tell 1,foo\\2");  // in a definition that is replaced
  evaluated("-1,foo\\todo tell 1");        // in a program with a fault
  EXPECT_EQ(told, "");
  evaluated("foo 1,foo\\a\\K(2)(todo tell a)");  // dropped by the program
  EXPECT_EQ(told, "1 ");
}

TEST_F(DriverTest, DepthIsOrdinary) {
  const int depth = 100000;
  EXPECT_EQ(evaluated(std::string(depth, '(') + "1" + std::string(depth, ')')), "1");
  std::string sum = "1";
  for (int i = 1; i < depth; i++) sum += "+1";
  EXPECT_EQ(evaluated(sum), "100000");
  std::string nested;
  for (int i = 0; i < depth; i++) nested += "J(1)(";
  EXPECT_EQ(evaluated(nested + "K" + std::string(depth, ')')).size(), 5u * (depth - 1) + 3);
}

}  // namespace
}  // namespace tarn

// The passes over terms, and what the checks ask of a term. Terms as in tests/graph/terms.h.
#include "frontend/passes.h"

#include <gtest/gtest.h>

#include <string>

#include "frontend/program.h"
#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {
namespace {

std::string names(const CellRef& list) {
  std::string text;
  Cell* l = list;
  for (; cellispair(l); l = rightlink(l)) text += shown(leftlink(l)) + " ";
  return text;
}

std::string patterned(const char* text) { return shown(patternpass(term(text))); }

TEST(PatternPass, TakesPairsApart) {
  EXPECT_EQ(patterned("{ (x y) 1 b"), "{ y 1 ({ x (y K) ({ y (y H) b))");
  EXPECT_EQ(patterned("{ (x [+]) 1 b"), "{ [+] 1 ({ x (+ K) ({ [+] (+ H) b))");
  EXPECT_EQ(patterned("{ (p p) 1 p"), "{ p 1 ({ p (p K) ({ p (p H) p))");
}

TEST(PatternPass, WorksAtEveryDepth) {
  EXPECT_EQ(patterned("f ({ (x y) 1 b)"), "f ({ y 1 ({ x (y K) ({ y (y H) b)))");
  EXPECT_EQ(patterned("{ (x y) ({ (p q) 1 p) b"),
            "{ y ({ q 1 ({ p (q K) ({ q (q H) p))) ({ x (y K) ({ y (y H) b))");
}

TEST(PatternPass, LeavesAllElse) {
  for (const char* text :
       {"x", "f x", "\\ (x y) b", "{ x 1 b", "{ (1 x) 1 b", "{ (x y z) 1 b", "{ (x (y z)) 1 b"}) {
    CellRef t = term(text);
    EXPECT_EQ(static_cast<Cell*>(patternpass(t)), static_cast<Cell*>(t)) << text;
  }
}

TEST(FindFunky, FindsTheFirstBadKey) {
  auto found = [](const char* text) {
    CellRef t = term(text);
    Cell* f = findfunky(t);
    return f == nullptr ? std::string() : shown(f);
  };
  EXPECT_EQ(found("\\ 1 2"), "\\ 1 2");
  EXPECT_EQ(found("\\ (a b) c"), "\\ (a b) c");
  EXPECT_EQ(found("f (\\ a (\\ } 2))"), "\\ } 2");
  EXPECT_EQ(found("\\ 1 (\\ 2 3)"), "\\ 1 (\\ 2 3)");
  EXPECT_EQ(found("{ x (\\ 1 2) (\\ 3 4)"), "\\ 1 2");
  EXPECT_EQ(found("{ x 1 (\\ 3 4)"), "\\ 3 4");
  EXPECT_EQ(found("{ 1 x y"), "{ 1 x y");
  EXPECT_EQ(found("(\\ 1 2) (\\ 3 4)"), "\\ 1 2");
  EXPECT_EQ(found("\\ [+] (\\ K (\\ foo 1))"), "");
  EXPECT_EQ(found("x"), "");
}

TEST(Binders, OneLetterAndOthers) {
  CellRef t = term("{ foo (\\ a 1) (\\ [+] (\\ b (\\ a K)))");
  EXPECT_EQ(names(binders(t, true)), "a b ");
  EXPECT_EQ(names(binders(t, false)), "+ foo ");
  EXPECT_EQ(names(binders(term("f x"), true)), "");
}

TEST(FreeNames, LooksThroughBinders) {
  EXPECT_EQ(names(freenames(term("\\ a (a b)"))), "b ");
  EXPECT_EQ(names(freenames(term("{ x x x"))), "x ");
  EXPECT_EQ(names(freenames(term("{ x 1 x"))), "");
  EXPECT_EQ(names(freenames(term("(\\ a a) a"))), "a ");
  EXPECT_EQ(names(freenames(term("\\ a (\\ b (a b c))"))), "c ");
  EXPECT_EQ(names(freenames(term("\\ [+] (+ 1 2)"))), "");
  EXPECT_EQ(names(freenames(term("{ [+] (+ 1) (+ 2)"))), "+ ");
}

TEST(FreeNames, ListsNamesOnly) {
  EXPECT_EQ(names(freenames(term("f 1 [ab] + K } , foo f"))), "+ , K f foo } ");
  EXPECT_EQ(names(freenames(leafcstr("\\"))), "");
  EXPECT_EQ(names(freenames(leafcstr("{"))), "");
  EXPECT_EQ(names(freenames(leafcstr("`"))), "` ");
}

TEST(FreeNames, ListsAtomsThatNothingCanDefine) {
  EXPECT_EQ(names(freenames(term("1, A, a, 12"))), "1, A, ");
}

TEST(RenameBinder, ReachesEveryPlace) {
  auto renamed = [](const char* text) { return shown(renamebinder(term(text), "foo", 'a')); };
  EXPECT_EQ(renamed("\\ foo (+ foo 1)"), "\\ a (+ a 1)");
  EXPECT_EQ(renamed("{ foo foo foo"), "{ a a a");
  EXPECT_EQ(renamed("{ x foo (\\ foo (bar foo))"), "{ x a (\\ a (bar a))");
  EXPECT_EQ(renamed("[foo] fo food"), "[foo] fo food");
  EXPECT_EQ(shown(renamebinder(term("\\ [+] (+ [+])"), "+", 'q')), "\\ q (q [+])");
}

TEST(RenameBinder, KeepsWhatDoesNotChange) {
  CellRef t = term("\\ b (b foo)");
  EXPECT_EQ(static_cast<Cell*>(renamebinder(t, "bar", 'a')), static_cast<Cell*>(t));
}

struct MarkPass : testing::Test {
  void SetUp() override {
    loadtestdefs();
    define("U", "\\ a (\\ b (\\ c (\\ d (\\ e (e (V a b) (V c d))))))");
  }
  void TearDown() override { defclear(); }

  std::string marked(const char* text) {
    CellRef t = term(text);
    if (cellispair(t) && cellbyte(leftlink(t)) == '`') setfield(leftlink(t), 7);
    return shown(markpass("key", t));
  }
};

TEST_F(MarkPass, MakesRecords) {
  EXPECT_EQ(marked("` 1"), "U 7 [key] [1] 1");
  EXPECT_EQ(marked("` (K 1)"), "U 7 [key] [K1] (K 1)");
  EXPECT_EQ(marked("K (` 1)"), "K (U 0 [key] [1] 1)");
  EXPECT_EQ(marked("` (` 1)"), "U 7 [key] [`1] (U 0 [key] [1] 1)");
}

TEST_F(MarkPass, MarksOfOpenTermsVanish) {
  EXPECT_EQ(marked("` a"), "a");
  EXPECT_EQ(marked("\\ a (` (K a))"), "\\ a (K a)");
  EXPECT_EQ(marked("` U"), "U");
  EXPECT_EQ(marked("` (\\ a a)"), "U 7 [key] [(\\a a)] (\\ a a)");
}

TEST_F(MarkPass, KeepsWhatDoesNotChange) {
  CellRef t = term("K (f x) 1");
  EXPECT_EQ(static_cast<Cell*>(markpass("key", t)), static_cast<Cell*>(t));
}

}  // namespace
}  // namespace tarn

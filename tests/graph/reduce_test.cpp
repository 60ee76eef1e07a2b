// The abstract machine: which redex goes next, what each head does, and what a step may not show.
#include "graph/reduce.h"

#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/graph/lettermachine.h"
#include "tests/graph/terms.h"
#include "tests/support/death.h"

namespace tarn {

struct ReduceTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override {
    defclear();
    aliveclear();
  }
};
using ReduceDeathTest = ReduceTest;

static std::string toldby(const std::string& text) {
  told.clear();
  reduced(text);
  return told;
}

static int64_t stepsof(const std::string& text) {
  int64_t before = reducesteps();
  reduced(text);
  return reducesteps() - before;
}

// --- Values, and what waits for them -------------------------------------------------------------

TEST_F(ReduceTest, ValuesAreTheirOwnNormalForm) {
  EXPECT_EQ(reduced("I"), "I");
  EXPECT_EQ(reduced("K 1"), "K 1");
  EXPECT_EQ(reduced("[ab]"), "[ab]");
  EXPECT_EQ(reduced("\\ a (M M)"), "\\ a (M M)");
  EXPECT_EQ(stepsof("K 1"), 0);
}

TEST_F(ReduceTest, ApplyingTheIdentityToItselfEnds) {
  EXPECT_EQ(reduced("I I"), "I");
  EXPECT_EQ(stepsof("I I"), 1);
}

TEST_F(ReduceTest, AValueThatIsSpelledLikeAFrameIsAValue) {
  EXPECT_EQ(reduced("B K K"), "B K K");
  EXPECT_EQ(reduced("I (T 1)"), "T 1");
  EXPECT_EQ(reduced("T 1 (T K)"), "V 12 K");  // T K 1, that is 1 K
}

TEST_F(ReduceTest, OperatorsAreNamesOfBuiltins) {
  EXPECT_EQ(reduced("+ 1 2"), "3");
  EXPECT_EQ(reduced("+ (+ 1 2) (+ 3 (+ 4 5))"), "15");
}

TEST_F(ReduceTest, AnOperatorIsAConstantAndItsArgumentsWaitInFrames) {
  // + 1 2: to the frames go 2, then 1; + unfolds; 1 and 2 come back, two steps each; then plus.
  EXPECT_EQ(stepsof("+ 1 2"), 2 + 1 + 4 + 1);
}

TEST_F(ReduceTest, BuiltinOfNoArgumentsIsCalledWithItsLeaf) { EXPECT_EQ(reduced("four"), "4"); }

TEST_F(ReduceTest, DefinitionsRecur) {
  define("fib", "\\ n (; (? (< n 2) n) (+ (fib (- n 1)) (fib (- n 2))))");
  EXPECT_EQ(reduced("fib 15"), "610");
}

// --- Who is evaluated, and when ------------------------------------------------------------------

TEST_F(ReduceTest, LazyHeadsLeaveTheirArgumentsAlone) {
  EXPECT_EQ(toldby("K 1 (tell 2)"), "");
  EXPECT_EQ(reduced("K 1 (M M)"), "1");
  EXPECT_EQ(reduced("& H (M M)"), "H");
  EXPECT_EQ(reduced("| K (M M)"), "K");
  EXPECT_EQ(reduced("K 5 (S K K (M M))"), "5");
}

TEST_F(ReduceTest, StrictHeadsEvaluateTheirArgumentsFromTheLeft) {
  EXPECT_EQ(toldby("plus (tell 1) (tell 2)"), "1 2 ");
  EXPECT_EQ(toldby("S (tell K) (tell K) (tell 5)"), "K K 5 ");
  define("third", "\\ a (\\ b (\\ c c))");
  EXPECT_EQ(toldby("third (tell 1) (tell 2) (tell 3)"), "1 2 3 ");
  EXPECT_EQ(toldby("third (tell 1) 2 (tell 3)"), "1 3 ");
  EXPECT_EQ(toldby("(\\ a (\\ b 0)) (tell 1) (tell 2)"), "1 2 ");
}

TEST_F(ReduceTest, LazinessGoesByTheFirstByteEvenIfRedefined) {
  define("K", "\\ a (\\ b b)");
  EXPECT_EQ(reduced("K (M M) 1"), "1");
  define("M", "\\ a 7");
  EXPECT_EQ(toldby("M (tell 1)"), "1 ");
}

TEST_F(ReduceTest, ArgumentsThatAreUsedTwiceAreEvaluatedTwiceUnderALazyHead) {
  define("D", "\\ a (\\ b (plus a a))");
  EXPECT_EQ(toldby("D (tell 3) 1"), "3 3 ");
  EXPECT_EQ(toldby("W plus (tell 3)"), "3 ");  // W is strict
}

TEST_F(ReduceTest, APartialApplicationUnderALazyHeadIsEvaluatedWithin) {
  EXPECT_EQ(reduced("K (+ 1 2)"), "K 3");
  EXPECT_EQ(reduced("J (+ 1 2) (+ 3 4)"), "J 3 7");
  EXPECT_EQ(toldby("J (tell 1) (tell 2)"), "1 2 ");
  EXPECT_EQ(reduced("plus (+ 1 2)"), "plus 3");
}

TEST_F(ReduceTest, EnoughFramesCompleteALazyHeadWithNothingEvaluated) {
  // `C K (M M) 5` is `K 5 (M M)`; a head that stands in a function's place takes what waits.
  EXPECT_EQ(reduced("C K (M M) 5"), "5");
  EXPECT_EQ(toldby("(\\ a a) (K 1) (tell 2)"), "");
  // I (K (tell 1)) (tell 2): K's first argument is evaluated only as the result.
  EXPECT_EQ(toldby("I (K (tell 1)) (tell 2)"), "1 ");
}

TEST_F(ReduceTest, FramesCountOnlyInAnUnbrokenRun) {
  // V misses two, and only one frame gives, as the other waits for the value of plus's argument.
  EXPECT_EQ(toldby("tell (I (J (tell 1)) 2)"), "1 J 1 2 ");
}

TEST_F(ReduceTest, OverApplicationLeavesItsSurplusInFrames) {
  define("two", "\\ a K");
  EXPECT_EQ(reduced("two 0 1 2"), "1");
  EXPECT_EQ(toldby("two (tell 0) (tell 1) (tell 2)"), "0 1 ");
  EXPECT_EQ(reduced("I I I I I 5"), "5");
}

// --- Abstractions and locals ---------------------------------------------------------------------

TEST_F(ReduceTest, AbstractionsAreStrict) {
  EXPECT_EQ(reduced("(\\ a (+ a 1)) (+ 2 3)"), "6");
  EXPECT_EQ(toldby("(\\ a 1) (tell 2)"), "2 ");
}

TEST_F(ReduceTest, LocalsEvaluateTheirValueFirst) {
  EXPECT_EQ(reduced("{ a (+ 1 2) (+ a a)"), "6");
  EXPECT_EQ(toldby("{ a (tell 1) 5"), "1 ");
  EXPECT_EQ(toldby("{ a (tell 1) (tell (+ a a))"), "1 2 ");
  EXPECT_EQ(reduced("{ a 1 ({ a (+ a 1) (+ a 10))"), "12");
  // To evaluate e and hand it to the abstraction are two steps, the abstraction's is the third.
  EXPECT_EQ(stepsof("{ a (I 1) a"), 1 + 1 + 1 + 1);
  EXPECT_EQ(stepsof("{ a 1 a"), 1);
}

// --- Constants -----------------------------------------------------------------------------------

TEST_F(ReduceTest, AConstantIsEvaluatedAtMostOnce) {
  define("foo", "tell (+ 1 2)");
  EXPECT_EQ(toldby("+ foo (+ foo foo)"), "3 ");
  EXPECT_EQ(shown(defterm("foo")), "3");
}

TEST_F(ReduceTest, ALiveNameIsEvaluatedAtEachUse) {
  define("foo", "I (tell 3)");
  aliveadd("foo");
  EXPECT_EQ(toldby("+ foo foo"), "3 3 ");
  EXPECT_EQ(shown(defterm("foo")), "I (tell 3)");
}

TEST_F(ReduceTest, ALiveNameDefinedByItselfIsNoCycle) {
  define("foo", "I foo");
  aliveadd("foo");
  reducelimit(reducesteps() + 1000);
  EXPECT_EQ(reduced("foo"), "]");
  reducelimit(INT64_MAX);
}

TEST_F(ReduceTest, ARunWithoutEndIsCutOffAtTheLimit) {
  int64_t before = cellcounts().alive;
  define("foo", "\\ a (plus 1 (foo a))");
  define("goo", "\\ a (goo a)");
  reducelimit(reducesteps() + 1000);
  EXPECT_EQ(reduced("plus 1 (foo 1)"), "]");
  EXPECT_EQ(reduced("goo 1"), "]");
  EXPECT_EQ(reduced("1"), "1");
  reducelimit(INT64_MAX);
  EXPECT_EQ(reduced("plus 1 2"), "3");
  deferase("foo");
  deferase("goo");
  EXPECT_EQ(cellcounts().alive, before);
}

TEST_F(ReduceTest, AConstantDefinedByItselfIsACycle) {
  define("foo", "foo");
  EXPECT_EQ(reduced("foo"), ")foo");
  loadtestdefs();
  define("foo", "+ 1 goo");
  define("goo", "+ 1 foo");
  EXPECT_EQ(reduced("+ 1 (plus foo 2)"), ")foo");
  EXPECT_EQ(shown(defterm("foo")), ")");  // and stays one
  EXPECT_EQ(reduced("goo"), ")goo");
}

TEST_F(ReduceTest, AnAbstractionIsStoredSoThatItsNameStaysAConstant) {
  define("fun", "I (\\ x x)");
  EXPECT_EQ(reduced("fun"), "B I (\\ x x)");
  EXPECT_EQ(shown(defterm("fun")), "B I (\\ x x)");
  EXPECT_EQ(reduced("fun 3"), "3");
  EXPECT_EQ(reduced("I (\\ x x)"), "\\ x x");
}

TEST_F(ReduceTest, ACycleLeafIsAPlainValueThatStoresItsArgument) {
  define("foo", "1");
  CellRef result;
  reduceterm(result, cellpairtake(leafcstr(")foo"), term("+ 2 3")));
  EXPECT_EQ(shown(result), "5");
  EXPECT_EQ(shown(defterm("foo")), "5");
}

TEST_F(ReduceDeathTest, MemoMarksAreForDefinedNamesThatAreNotLive) {
  CellRef result;
  CellRef mark = leafcstr(")nobody");
  CellRef one = leafcstr("1");
  EXPECT_FAILS(reduceterm(result, cellpair(mark, one)), "graph/prims.cpp");
  define("foo", "1");
  aliveadd("foo");
  mark = leafcstr(")foo");
  EXPECT_FAILS(reduceterm(result, cellpair(mark, one)), "graph/prims.cpp");
}

// --- Failures that are values --------------------------------------------------------------------

TEST_F(ReduceTest, AnUnknownNameCutsOff) {
  CellRef unknown = leafcstr("x,");  // no name at all, so it needs no definition
  CellRef result;
  reduceterm(result, cellpair(term("plus 1"), cellpair(unknown, leafcstr("2"))));
  EXPECT_EQ(shown(result), "]x,");
}

TEST_F(ReduceTest, AFailureTakesTwoArgumentsAndKeepsTheTextOfTheFirst) {
  CellRef result;
  reduceterm(result, cellapply2(leafcstr("]"), leafcstr("[why]"), leafcstr("2")));
  EXPECT_EQ(shown(result), "][why]");
  reduceterm(result, cellapply1(leafcstr("]"), leafcstr("[why]")));
  EXPECT_EQ(shown(result), "] [why]");
}

TEST_F(ReduceTest, ARaisedTermCutsOff) {
  EXPECT_EQ(reduced("+ 1 (+ (raise [oh]) 2)"), "] [oh]");
  EXPECT_EQ(toldby("S (tell 1) (raise [oh]) (tell 2)"), "1 ");
}

TEST_F(ReduceTest, ZEatsWhatItMeets) { EXPECT_EQ(reduced("Z 1 (M M) 3"), "Z"); }

// --- Atoms ---------------------------------------------------------------------------------------

TEST_F(ReduceTest, EachKindOfAtomHasItsOwnFunction) {
  struct {
    CellRef head;
    const char* result;
  } cases[] = {
      {leafcstr("(a)x"), "V 11 7"}, {leafcstr("5"), "V 12 7"},         {leafcstr("[ab]"), "V 13 7"},
      {term("[a] [b]"), "V 13 7"},  {leafmade(" 12345678", 9), "V 14 7"}, {craynew(2), "V 15 7"},
      {leafstr("\n"), "V 15 7"},
  };
  for (const auto& c : cases) {
    CellRef result;
    reduceterm(result, cellpair(c.head, term("I 7")));  // atoms are strict
    EXPECT_EQ(shown(result), c.result);
  }
}

// --- Redefinition --------------------------------------------------------------------------------

TEST_F(ReduceTest, AUsersTChangesEveryOverApplication) {
  define("T", "\\ a (\\ b a)");
  // + 1 2: T 1 plus is 1; T 2 1 is 2.
  EXPECT_EQ(reduced("+ 1 2"), "2");
  define("T", "\\ a (\\ b (a b))");
  EXPECT_EQ(reduced("I K 5"), "V 12 K");  // T 5 K is 5 K
}

TEST_F(ReduceTest, AUsersTOfAnotherArity) {
  define("T", "\\ a (\\ b (\\ c b))");
  EXPECT_EQ(reduced("I K 5"), "T 5 K");  // one argument short: a value
  define("T", "\\ a 8");
  // `I K 5`: K meets the frame of 5. T 5 K has one argument too many, so K waits in a frame of its
  // own; T 5 is 8; then T K 8, and so on without end. Enough of it to see that no T is skipped:
  EXPECT_EQ(reduced("T 5"), "8");
}

TEST_F(ReduceTest, TheDefinitionsOfBAndIAreNotAskedForFrames) {
  define("B", "\\ a Z");
  define("I", "\\ a Z");
  define("?", "\\ a a");
  EXPECT_EQ(reduced("+ (+ 1 2) (plus 3 4)"), "10");
}

TEST_F(ReduceTest, ANameDefinedDuringTheRunIsSeen) {
  define("foo", "\\ a (+ a 1)");
  EXPECT_EQ(reduced("foo 1"), "2");
  define("foo", "\\ a (+ a 2)");
  EXPECT_EQ(reduced("foo 1"), "3");
}

// --- What a builtin may rely on ------------------------------------------------------------------

TEST_F(ReduceTest, NobodyButTheApplicationHoldsAPrivateArgument) {
  EXPECT_EQ(reduced("alone (+ 1 2)"), "K");
  EXPECT_EQ(reduced("(\\ a (alone (+ a 1))) 5"), "K");
  EXPECT_EQ(reduced("(\\ a (V a (alone a))) (+ 1 2)"), "V 3 H");
  define("foo", "+ 1 2");
  EXPECT_EQ(reduced("alone foo"), "H");
}

// --- Limits --------------------------------------------------------------------------------------

TEST_F(ReduceDeathTest, OnlyClosedTermsAreReduced) {
  EXPECT_FAILS(reduced("K a 1"), "graph/prims.cpp");
}

TEST_F(ReduceDeathTest, TheArityOfALeafHasToMatchTheDefinition) {
  CellRef leaf = leafcstr("foo");
  define("foo", "\\ a a");
  cellannotate(leaf);
  define("foo", "\\ a (\\ b a)");
  CellRef result;
  EXPECT_FAILS(reduceterm(result, cellpair(leaf, leafcstr("1"))), "graph/prims.cpp");
}

TEST_F(ReduceTest, ADeepContinuationIsDroppedByAFailure) {
  define("count", "\\ n (; (? (= n 0) (raise [oh])) (plus 1 (count (- n 1))))");
  int64_t before = cellcounts().alive;
  EXPECT_EQ(reduced("count " + std::to_string(DEPTH)), "] [oh]");
  EXPECT_EQ(cellcounts().alive, before);
}

TEST_F(ReduceTest, WhatTakesElevenArgumentsIsNeverARedex) {
  std::string text = "1";
  for (int i = 0; i < 11; i++) text = "\\ a (" + text + ")";
  define("eleven", text);
  define("E", text);
  EXPECT_EQ(reduced("eleven 1 2 3 4 5 6 7 8 9 10 11 (+ 1 11) 13"),
            "eleven 1 2 3 4 5 6 7 8 9 10 11 12 13");
  EXPECT_EQ(reduced("I E 1 2 3 4 5 6 7 8 9 10 11 12 13"), "E 1 2 3 4 5 6 7 8 9 10 11 12 13");
}

TEST_F(ReduceTest, DeepTermsAreEvaluated) {
  CellRef sum = leafcstr("0");
  for (int i = 0; i < DEPTH; i++) sum = cellpairtake(term("plus 1"), std::move(sum));
  CellRef result;
  reduceterm(result, std::move(sum));
  EXPECT_EQ(shown(result), std::to_string(DEPTH));
  CellRef chain = leafcstr("I");
  for (int i = 0; i < DEPTH; i++) chain = cellpairtake(std::move(chain), leafcstr("I"));
  reduceterm(result, std::move(chain));
  EXPECT_EQ(shown(result), "I");
}

TEST_F(ReduceTest, EvaluationIsReentrant) {
  define("foo", "\\ a (K 1 (todo goo a))");
  define("goo", "\\ a (tell (+ a (foo (- a 1))))");
  define("zero", "\\ a 0");
  EXPECT_EQ(reduced("+ 1 (plus 2 (K 3 (foo 0)))"), "6");
}

TEST_F(ReduceTest, NothingIsLeftBehind) {
  define("fib", "\\ n (; (? (< n 2) n) (+ (fib (- n 1)) (fib (- n 2))))");
  reduced("+ 1 (- 2 1)");  // the operators become values
  int64_t before = cellcounts().alive;
  reduced("fib 10");
  reduced("{ a (fib 5) (V a a)");
  reduced("J (+ 1 2) (J [a] (\\ a a))");
  EXPECT_EQ(cellcounts().alive, before);
}

// --- Against the letter --------------------------------------------------------------------------

// A random closed term of about n atoms over combinators, operators, numbers and the letters bound
// so far.
static std::string randomterm(unsigned& seed, int n, int bound) {
  auto roll = [&seed](int sides) {
    seed = seed * 1103515245u + 12345u;
    return static_cast<int>((seed >> 16) % static_cast<unsigned>(sides));
  };
  static const char* const atoms[] = {"K", "I", "S", "B",    "C",    "T",    "V",
                                      "J", "W", "H", "Z",    "+",    "&",    "1",
                                      "2", "plus", "tell", "less", "con", "fun", "T 1"};
  if (n <= 1) {
    if (bound > 0 && roll(3) == 0) return std::string(1, static_cast<char>('a' + roll(bound)));
    return atoms[roll(static_cast<int>(sizeof atoms / sizeof atoms[0]))];
  }
  int left = 1 + roll(n - 1);
  std::string letter(1, static_cast<char>('a' + bound));
  if (bound < 4 && roll(6) == 0) {
    return "(\\ " + letter + " (" + randomterm(seed, n - 1, bound + 1) + "))";
  }
  if (bound < 4 && roll(8) == 0) {
    return "({ " + letter + " (" + randomterm(seed, left, bound) + ") (" +
           randomterm(seed, n - left, bound + 1) + "))";
  }
  return "(" + randomterm(seed, left, bound) + ") (" + randomterm(seed, n - left, bound) + ")";
}

static void loadrandomdefs(unsigned seed) {
  loadtestdefs();
  define("con", randomterm(seed, 6, 0));
  define("fun", "\\ a (\\ b (" + randomterm(seed, 6, 2) + "))");
  if (seed % 7 == 0) define("T", "\\ a (\\ b (" + randomterm(seed, 3, 2) + "))");
}

TEST_F(ReduceTest, AgreesWithTheMachineWhoseStateIsATerm) {
  int ended = 0;
  for (unsigned i = 0; i < 6000; i++) {
    unsigned seed = i * 2654435761u;
    loadrandomdefs(i);
    std::string text = randomterm(seed, 3 + static_cast<int>(i % 18), 0);
    LetterRun want = letterreduce(term(text), 500);
    if (!want.ended) continue;
    ended++;
    std::string wanttold = told;
    loadrandomdefs(i);
    int64_t before = reducesteps();
    ASSERT_EQ(reduced(text), want.result) << text;
    ASSERT_EQ(reducesteps() - before, want.steps) << text;
    ASSERT_EQ(told, wanttold) << text;
  }
  EXPECT_GT(ended, 3000);
}

}  // namespace tarn

// The abstract machine: which redex goes next, what each head does, and what a step may not show.
#include "graph/reduce.h"

#include <gtest/gtest.h>

#include "graph/definitions.h"
#include "tests/graph/terms.h"

namespace tarn {

struct ReduceTest : testing::Test {
  void SetUp() override { loadtestdefs(); }
  void TearDown() override { defclear(); }
};

TEST_F(ReduceTest, ValuesAreTheirOwnNormalForm) {
  EXPECT_EQ(reduced("I"), "I");
  EXPECT_EQ(reduced("K 1"), "K 1");
  EXPECT_EQ(reduced("[ab]"), "[ab]");
  EXPECT_EQ(reduced("\\ a (M M)"), "\\ a (M M)");
}

TEST_F(ReduceTest, ApplyingTheIdentityToItselfEnds) { EXPECT_EQ(reduced("I I"), "I"); }

TEST_F(ReduceTest, OperatorsAreNamesOfBuiltins) {
  EXPECT_EQ(reduced("+ 1 2"), "3");
  EXPECT_EQ(reduced("+ (+ 1 2) (+ 3 (+ 4 5))"), "15");
}

TEST_F(ReduceTest, BuiltinOfNoArgumentsIsCalledWithItsLeaf) { EXPECT_EQ(reduced("four"), "4"); }

TEST_F(ReduceTest, DefinitionsRecur) {
  define("fib", "\\ n (? (< n 2) n (; (+ (fib (- n 1)) (fib (- n 2)))))");
  EXPECT_EQ(reduced("fib 15"), "610");
}

}  // namespace tarn

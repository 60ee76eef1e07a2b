// Programs that end the process, on purpose: what they break is a rule of the program itself.
#include <gtest/gtest.h>

#include "frontend/driver.h"
#include "host/builtintable.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct Deaths : testing::Test {
  void SetUp() override { hostinstall(); }
};

Str shown(const char* program) { return evaluate(program, 0).shown; }

// No operator gives a real and an array a meaning together; it is tried as two numbers.
TEST_F(Deaths, AnArrayIsNoReal) {
  EXPECT_DIES(shown("1/cray"));
  EXPECT_DIES(shown("1^cray"));
  EXPECT_DIES(shown("001/cray"));
  EXPECT_DIES(shown("001^cray"));
  EXPECT_DIES(shown("real[1]/cray"));
  EXPECT_DIES(shown("real[1]^cray"));
  EXPECT_DIES(shown("real[1]-cray"));
  EXPECT_DIES(shown("real[1]*cray"));
  EXPECT_DIES(shown("cray-real[1]"));
  EXPECT_DIES(shown("cray*real[1]"));
  EXPECT_DIES(shown("cray%real[1]"));
}

TEST_F(Deaths, AnArrayIsNoNumb) {
  EXPECT_FAILS(shown("1-cray"), "values/numb");
  EXPECT_FAILS(shown("001-cray"), "values/numb");
  EXPECT_FAILS(shown("cray-001"), "values/numb");
  EXPECT_FAILS(shown("cray*001"), "values/numb");
  EXPECT_FAILS(shown("001*cray"), "values/numb");
  EXPECT_FAILS(shown("cray%1"), "values/numb");
  EXPECT_FAILS(shown("cray%001"), "values/numb");
}

TEST_F(Deaths, TheEmptyTextHasNoItems) {
  EXPECT_FAILS(shown("left[]"), "values/zits.cpp");
  EXPECT_FAILS(shown("rght[]"), "values/zits.cpp");
}

// A text out of balance is a value like any other until it is taken apart.
TEST_F(Deaths, ABracketAloneIsNoItem) {
  EXPECT_FAILS(shown("(cork[abc]0 91)K"), "values/zits.cpp");
  EXPECT_FAILS(shown("~([[a]]-02)"), "values/zits.cpp");
  EXPECT_FAILS(shown("lots(cork[abc]0 91)"), "values/zits.cpp");
}

TEST_F(Deaths, WhatIsLeftOfATextOutOfBalanceMayBeNoText) {
  EXPECT_FAILS(shown("([a[b]]-2)K"), "values/zits.cpp");
  EXPECT_FAILS(shown("(cork[abc]1 93)K"), "values/zits.cpp");
}

TEST_F(Deaths, TheWalkToTheLastItemStopsAtTheFirstByte) {
  EXPECT_FAILS(shown("$([[[a]]]-3)"), "values/zits.cpp");
  EXPECT_FAILS(shown("$([[[]]]-2)"), "values/zits.cpp");
  EXPECT_EQ(shown("$([a[b]]-2)"), Str("()"));
}

// Of a program that drops it while it runs; what is left when it is over does not run.
TEST_F(Deaths, AFinaliserThatAsserts) {
  EXPECT_FAILS(shown("foo H,foo\\a\\K(1)(todo assert a)"), "host/systemcalls.cpp");
  EXPECT_EQ(shown("foo K,foo\\a\\K(1)(todo assert a)"), Str("1"));
}

// The results of malloc are used as they are.
TEST_F(Deaths, BeyondAllMemory) {
  EXPECT_DEATH(shown("[a]*(2^50)"), "");
  EXPECT_DEATH(shown("cape[a]*(2^50)"), "");
  EXPECT_DEATH(shown("cray/1*(2^50)"), "");
  EXPECT_DEATH(shown("cray/1*(2^62)"), "");
  EXPECT_DEATH(shown("[ab]*(2^62)"), "");
  EXPECT_DEATH(shown("cork(0,2^60,K)"), "");
}

}  // namespace
}  // namespace tarn

// The builtins that end the process, and those that keep a cell alive for good: what data files of
// programs cannot hold.
#include <gtest/gtest.h>

#include <cstdlib>

#include "frontend/driver.h"
#include "host/builtintable.h"
#include "tests/support/death.h"

namespace tarn {
namespace {

struct Calls : testing::Test {
  void SetUp() override { hostinstall(); }
};

Str shown(const char* program) { return evaluate(program, 0).shown; }

TEST_F(Calls, AFailedAssertIsAFailedCheck) {
  EXPECT_EQ(shown("assert K"), Str("I"));
  EXPECT_FAILS(shown("assert H"), "host/systemcalls.cpp");
  EXPECT_FAILS(shown("assert(1=2)"), "host/systemcalls.cpp");
}

TEST_F(Calls, FunctionsThatReadMoreThanTheirArity) {
  EXPECT_FAILS(shown("fd_set"), "graph/cell.cpp");
  EXPECT_FAILS(shown("strtol 0 0"), "graph/cell.cpp");
  EXPECT_FAILS(shown("strtoul 0 0"), "graph/cell.cpp");
}

TEST_F(Calls, EndsOfTheProcess) {
  EXPECT_EXIT(shown("exit 0"), testing::ExitedWithCode(0), "");
  EXPECT_EXIT(shown("exit 3"), testing::ExitedWithCode(3), "");
  EXPECT_EXIT(shown("abort"), endedbyabort, "");
#ifndef GTEST_OS_WINDOWS
  EXPECT_EXIT(shown("raise 6"), testing::KilledBySignal(SIGABRT), "");
  EXPECT_EXIT(shown("raise 15"), testing::KilledBySignal(SIGTERM), "");
#endif
}

// A leaked cell outlives its run; this gives up the reference that keeps it.
void unleak(const Str& address) {
  cellunhold(reinterpret_cast<Cell*>(strtoll(address.text(), nullptr, 10)));
}

TEST_F(Calls, ALeakedCellOutlivesItsRun) {
  Str address = shown("leak[abc]");
  EXPECT_EQ(evaluate("bond " + address, 0).shown, Str("[abc]"));
  EXPECT_EQ(evaluate("x{bond " + address + Str("}raws(x,bond ") + address + Str(")"), 0).shown,
            Str("K"));
  EXPECT_EQ(evaluate("raws([abc],bond " + address + Str(")"), 0).shown, Str("H"));
  unleak(address);
}

TEST_F(Calls, NoCellIsAtZero) { EXPECT_FAILS(shown("bond 0"), "host/memory.cpp"); }

}  // namespace
}  // namespace tarn

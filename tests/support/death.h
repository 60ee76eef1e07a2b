// How a test expects the fatal paths: the words on descriptor 2, and the status of `abort`.
#pragma once

#include <gtest/gtest.h>

#include <csignal>

// Ends as `abort` ends a process: by its signal, or with the status that Windows gives it.
inline bool endedbyabort(int status) {
#ifdef GTEST_OS_WINDOWS
  return status == 3;
#else
  return testing::KilledBySignal(SIGABRT)(status);
#endif
}

// The statement breaks a rule that is checked in a source whose path begins with `where`.
#define EXPECT_FAILS(statement, where) \
  EXPECT_EXIT(statement, endedbyabort, "ASSERTION FAILED:" where)

// The statement dies with a word or sentence of its own, which goes to descriptor 1.
#define EXPECT_DIES(statement) EXPECT_FAILS(statement, "foundation/diag.cpp")

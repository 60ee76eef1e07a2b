// What a program that evaluates says and does where the sockets do not start.
#include "host/start.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace tarn {
namespace {

#ifdef GTEST_OS_WINDOWS
constexpr int minusone = -1;
#else
constexpr int minusone = 255;  // the byte that is left of it
#endif

TEST(Start, EndsWhereTheSocketsDoNotStart) {
  EXPECT_EXIT((dup2(2, 1), socketsfailed(10091)), testing::ExitedWithCode(minusone),
              "^WSAStartup failed: 10091\n$");
}

}  // namespace
}  // namespace tarn

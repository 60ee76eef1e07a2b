// Resizes in quick succession, some with keys between them: none may be lost or wait for a key.
#include <gtest/gtest.h>

#include <csignal>

#include "tests/support/picture.h"
#include "tests/support/session.h"

namespace tarn {
namespace {

constexpr int height = 8;

Launch scratch(int width) {
  Launch launch;
  launch.argv = {TARN};
  launch.width = width;
  launch.height = height;
  return launch;
}

// In a black window the bottom right cell, and it alone, is never black: it tells how wide a screen
// was painted.
bool paintedat(const Terminal& terminal) {
  return terminal.at(height - 1, terminal.width - 1).back == 5;
}

TEST(Resize, EachIsShownWithoutAKey) {
  Session session(scratch(40));
  ASSERT_TRUE(session.settle());
  for (int i = 0; i < 1000; i++) {
    session.resize(40 + i % 50, height);
    bool painted = session.until([&] { return paintedat(session.terminal); }, 10000);
    ASSERT_TRUE(painted) << "resize " << i;
  }
}

TEST(Resize, TheLastOfManyIsShown) {
  Session session(scratch(40));
  ASSERT_TRUE(session.settle());
  for (int i = 0; i < 300; i++) {
    for (int k = 0; k < 10; k++) {
      session.resize(20 + (i * 7 + k * 13) % 90, height);
      if ((i + k) % 3 == 0) session.keys(k % 2 == 0 ? "a" : "\x7f");
    }
    ASSERT_TRUE(session.settle());
    ASSERT_TRUE(paintedat(session.terminal)) << "round " << i;
  }
  std::string before = picture(session.terminal, true);
  session.signal(SIGWINCH);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(picture(session.terminal, true), before);
}

}  // namespace
}  // namespace tarn

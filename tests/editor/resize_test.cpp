// Resizes in quick succession, some with keys between them: none may be lost or wait for a key.
#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <sstream>

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
  return terminal.at(terminal.height - 1, terminal.width - 1).back == 5;
}

std::string contents(const std::string& path) {
  std::stringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
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

// A window dragged about while somebody types, faster than either can be answered: every key
// counts, and the screen is that of the last size.
TEST(Resize, TenThousandInABurstLoseNoKey) {
  std::string path = testing::TempDir() + "tarn_resize_burst", typed;
  std::ofstream(path).close();
  Launch launch = scratch(40);
  launch.argv.push_back(path);
  Session session(launch);
  ASSERT_TRUE(session.settle());
  for (int i = 0; i < 10000; i++) {
    session.resize(7 + i * 37 % 103, 2 + i * 13 % 40);
    std::string key(1, i % 50 == 49 ? '\n' : static_cast<char>('a' + i % 26));
    typed += key;
    session.keys(key);
  }
  session.resize(61, 17);
  ASSERT_TRUE(session.settle());
  EXPECT_TRUE(paintedat(session.terminal));
  // The last line is the empty one behind the last newline, and the window is full of those before.
  std::string line = typed.substr(typed.size() - 50, 49) + ",";
  EXPECT_EQ(session.terminal.row(session.terminal.cursorrow() - 1), line);
  EXPECT_EQ(session.terminal.cursorcolumn(), 0);
  std::string before = picture(session.terminal, true);
  session.signal(SIGWINCH);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(picture(session.terminal, true), before);
  session.keys("\x17");  // C-w
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(contents(path), typed);
}

}  // namespace
}  // namespace tarn

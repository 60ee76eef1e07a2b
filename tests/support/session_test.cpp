// The session and the player of scenarios, against the little echo program.
#include "tests/support/session.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>

#include "tests/support/play.h"

namespace tarn {
namespace {

Launch echo(int width, int height) {
  Launch launch;
  launch.argv = {ECHO};
  launch.width = width;
  launch.height = height;
  return launch;
}

TEST(Session, KeysAreAnsweredWhenSettled) {
  Session session(echo(20, 4));
  ASSERT_TRUE(session.settle());
  for (char c = 'a'; c <= 'p'; c++) {
    session.keys(std::string(1, c));
    ASSERT_TRUE(session.settle());
    EXPECT_EQ(session.terminal.row(1).size(), static_cast<size_t>(c - 'a' + 1));
  }
  EXPECT_EQ(session.terminal.row(1), "abcdefghijklmnop");
  EXPECT_EQ(session.terminal.cursorrow(), 1);
  EXPECT_EQ(session.terminal.cursorcolumn(), 16);
}

TEST(Session, ReadsColoursAndAttributes) {
  Session session(echo(20, 4));
  ASSERT_TRUE(session.settle());
  session.keys("\x1b[1;31;44mA\x1b[0;3;92;100mB\x1b[0;4mC");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.at(1, 0), (ScreenCell{'A', 1, 4, true, false, false}));
  EXPECT_EQ(session.terminal.at(1, 1), (ScreenCell{'B', 10, 8, false, true, false}));
  EXPECT_EQ(session.terminal.at(1, 2), (ScreenCell{'C', -1, -1, false, false, true}));
}

TEST(Session, CountsBells) {
  Session session(echo(20, 4));
  ASSERT_TRUE(session.settle());
  session.keys("a\t\t");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.bells, 2);
}

TEST(Session, ResizesAreSeen) {
  Session session(echo(20, 4));
  ASSERT_TRUE(session.settle());
  session.resize(30, 7);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "30x7");
}

TEST(Session, EndsByItselfAndBySignal) {
  Session quits(echo(20, 4));
  ASSERT_TRUE(quits.settle());
  quits.keys("\x04");
  ASSERT_TRUE(quits.settle());
  ASSERT_TRUE(quits.ended);
  EXPECT_TRUE(WIFEXITED(quits.status));
  EXPECT_FALSE(quits.cooked());  // it leaves the modes as they are

  Session killed(echo(20, 4));
  ASSERT_TRUE(killed.settle());
  killed.signal(SIGTERM);
  ASSERT_TRUE(killed.finish());
  EXPECT_EQ(WTERMSIG(killed.status), SIGTERM);
}

TEST(Session, AProgramThatIsNotThere) {
  Launch launch = echo(20, 4);
  launch.argv = {"/nosuchprogram"};
  Session session(launch);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(WEXITSTATUS(session.status), 127);
}

// What the player says of a scenario with these lines.
std::string played(const std::string& lines) {
  std::string path = testing::TempDir() + "played" + std::to_string(getpid()) + ".scene";
  std::ofstream(path) << "size 20 4\nstart\n" << lines;
  std::string said = play(readscenario(path), {ECHO, Pace::apart});
  unlink(path.c_str());
  return said.substr(0, said.find('\n'));
}

std::string at(int line, const std::string& words) {
  return testing::TempDir() + "played" + std::to_string(getpid()) + ".scene:" +
         std::to_string(line) + ": " + words;
}

TEST(Player, PassesWhatIsRight) {
  EXPECT_EQ(played("keys abc\nrow 1 |abc\ncursor 1 3\ntext\n|abc\nscreen\n~\n:ab\n"), "");
  EXPECT_EQ(played("keys <TAB>\nbells 1\nsent \"\\x07\"\n"), "");
  EXPECT_EQ(played("keys <C-d>\nexit 0\n"), "");
}

TEST(Player, FindsWhatIsWrong) {
  EXPECT_EQ(played("keys abc\nrow 1 |abd\n"), at(4, "row 1, column 2: glyph"));
  EXPECT_EQ(played("keys abc\ntext\n|abcd\n"), at(4, "row 1, column 3: glyph"));
  EXPECT_EQ(played("keys abc\nrow 1 |abc\nF 1\n"), at(4, "row 1, column 1: colour or attribute"));
  EXPECT_EQ(played("keys abc\ncursor 1 4\n"), at(4, "the cursor is at 1 3"));
  EXPECT_EQ(played("keys abc\nsays \"abd\"\n"), at(4, "it said \"\\e[2;1Habc\""));
  EXPECT_EQ(played("keys <C-d>\nexit 1\n"), at(4, "the program ended with status 0"));
  EXPECT_EQ(played("disk a \"x\"\n"), at(3, "a holds \"\""));
  EXPECT_EQ(played("keys <FOO>\n"), at(3, "no such key: <FOO>"));
  EXPECT_EQ(played("jump\n"), at(3, "no such word: jump"));
}

TEST(Player, FindsWhatNobodyAskedFor) {
  EXPECT_EQ(played("keys <TAB>\nkeys a\n"), at(4, "the bell rang 1 times"));
  EXPECT_EQ(played("keys <TAB>\n"), at(3, "the bell rang 1 times"));
  EXPECT_EQ(played("keys <0x80>\n"),
            at(3, "not for a terminal: \"\\x80\" at byte 6 of the output"));
  EXPECT_EQ(played("keys <C-d>\n"), at(3, "the program has ended, status 0"));
}

}  // namespace
}  // namespace tarn

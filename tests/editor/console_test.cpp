// Descriptors that are not what the program expects: each is told or made do with.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>

#include "tests/support/session.h"

namespace tarn {
namespace {

// The program as a shell starts it, with something around it.
Launch shell(const std::string& before, const std::string& after) {
  Launch launch;
  launch.argv = {"/bin/sh", "-c", before + "'" TARN "'" + after};
  launch.height = 30;
  return launch;
}

bool failedcheck(const Session& session) {
  return session.terminal.log.find("ASSERTION FAILED:") != std::string::npos &&
         WIFSIGNALED(session.status) && WTERMSIG(session.status) == SIGABRT;
}

TEST(Console, InputMustBeATerminal) {
  Session session(shell("exec ", " </dev/null"));
  ASSERT_TRUE(session.finish());
  EXPECT_TRUE(failedcheck(session));
}

TEST(Console, TheWorkingDirectoryMustBeThere) {
  std::string gone = testing::TempDir() + "gone";
  Session session(shell("mkdir " + gone + "; cd " + gone + "; rmdir " + gone + "; exec ", ""));
  ASSERT_TRUE(session.finish());
  EXPECT_TRUE(failedcheck(session));
}

// What descriptor 1 is cannot be asked for a size: 80 by 24 then, its last cell on magenta.
TEST(Console, OutputIntoAPipeIs80By24) {
  Session session(shell("", " | cat"));
  ASSERT_TRUE(session.until([&] { return session.terminal.at(23, 79).back == 5; }));
  EXPECT_EQ(session.terminal.row(0),
            "Tarn Escape-O_opens_an_existing_file._Escape-W_writes_to_a_new_file.");
}

// The program over a file with a text of its own.
Launch editing(const std::string& name, const std::string& text) {
  std::string path = testing::TempDir() + name;
  std::ofstream(path) << text;
  Launch launch;
  launch.argv = {TARN, path};
  return launch;
}

bool says(Session& session, const std::string& words) {
  return session.until([&] { return session.terminal.log.find(words) != std::string::npos; });
}

// A program of the language that never ends is left by the ways of the terminal alone.
const char* const endless = "foo,foo()\\foo";

TEST(Console, AHangUpEndsAnEvaluationThatDoesNot) {
  Session session(editing("tarn_console_endless", endless));
  ASSERT_TRUE(session.settle());
  session.keys("\x1b" "e");
  ASSERT_TRUE(says(session, "Eval\r\n"));
  session.hangup();
  ASSERT_TRUE(session.finish());
  EXPECT_TRUE(WIFSIGNALED(session.status) && WTERMSIG(session.status) == SIGHUP);
}

TEST(Console, InterruptEndsAnEvaluationThatDoesNot) {
  Session session(editing("tarn_console_interrupted", endless));
  ASSERT_TRUE(session.settle());
  session.keys("\x1b" "e");
  ASSERT_TRUE(says(session, "Eval\r\n"));
  session.keys("\x03");
  ASSERT_TRUE(session.finish());
  EXPECT_TRUE(WIFSIGNALED(session.status) && WTERMSIG(session.status) == SIGINT);
  EXPECT_TRUE(session.cooked());
}

// The end of the program, which nobody reads the output of.
bool endsunread(Session& session) {
  for (int64_t end = Session::now() + 30000; !session.ended && Session::now() < end;) {
    session.ended = waitpid(session.pid, &session.status, WNOHANG) == session.pid;
    if (!session.ended) poll(nullptr, 0, 5);
  }
  return session.ended;
}

// A terminal that takes nothing more, as when a connection is lost: the program stands still in the
// middle of a paint, and ends all the same when it is told to. Whether there is room for its last
// words is a matter of chance.
TEST(Console, ASignalEndsItWhereTheTerminalStandsStill) {
  for (int i = 0; i < 8; i++) {
    Launch launch;
    launch.argv = {TARN};
    launch.width = 500 + i;
    launch.height = 400;
    Session session(launch);
    ASSERT_TRUE(session.settle());
    session.resize(500, 400 + i);
    int64_t before = 0;
    for (int64_t spent = session.cputime(); spent != before; spent = session.cputime()) {
      before = spent;
      poll(nullptr, 0, 30);
    }
    session.signal(SIGTERM);
    ASSERT_TRUE(endsunread(session));
    EXPECT_TRUE(WIFSIGNALED(session.status) && WTERMSIG(session.status) == SIGTERM);
    EXPECT_TRUE(session.cooked());
  }
}

// Where no signal tells that the terminal is gone, the next write does. The program waits in the
// meantime for the other end of a pipe.
TEST(Console, AHangUpWhileBusyEndsItAtTheNextWrite) {
  std::string pipe = testing::TempDir() + "tarn_console_pipe";
  unlink(pipe.c_str());
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  Launch launch = editing("tarn_console_waiting", "fopen(cape[" + pipe + "],cape[r])");
  launch.loose = true;
  Session session(launch);
  ASSERT_TRUE(session.settle());
  session.keys("\x1b" "e");
  ASSERT_TRUE(says(session, "Eval\r\n"));
  session.hangup();
  int otherend = open(pipe.c_str(), O_WRONLY);  // waits for the program to be there
  EXPECT_TRUE(session.finish());
  EXPECT_TRUE(WIFEXITED(session.status) && WEXITSTATUS(session.status) == 1);
  close(otherend);
  unlink(pipe.c_str());
}

}  // namespace
}  // namespace tarn

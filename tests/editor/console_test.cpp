// Descriptors that are not what the program expects: each is told or made do with.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <csignal>

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

}  // namespace
}  // namespace tarn

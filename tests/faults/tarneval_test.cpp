// tarneval, and the one file that programs of the language append to, under faults.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

namespace tarn {
namespace {

struct Outcome {
  std::string said;  // on both descriptors
  int status;        // as wait gives it
};

bool ended(const Outcome& run, int status) {
  return WIFEXITED(run.status) && WEXITSTATUS(run.status) == status;
}

// As a shell tells it of its child.
bool aborted(const Outcome& run) { return ended(run, 128 + SIGABRT); }

Outcome shell(const std::string& command) {
  Outcome run;
  FILE* pipe = popen(("{ " + command + "; } 2>&1; exit $?").c_str(), "r");
  char piece[4096];
  for (size_t n; (n = fread(piece, 1, sizeof piece, pipe)) > 0;) run.said.append(piece, n);
  run.status = pclose(pipe);
  return run;
}

struct Tarneval : testing::Test {
  std::string path = testing::TempDir() + "tarn_faults_" +
                     testing::UnitTest::GetInstance()->current_test_info()->name();
  std::string log = path + ".log";
  ~Tarneval() override {
    unlink(path.c_str());
    unlink(log.c_str());
  }
  // Runs a program under the faults, each of which must come.
  Outcome run(const std::string& program, const std::string& faults) {
    std::ofstream(path) << program;
    unlink(log.c_str());
    Outcome done = shell("env LD_PRELOAD=" PRELOAD " TARN_FAULTS='" + faults +
                         "' TARN_FAULTS_LOG=" + log + " " TARNEVAL " " + path);
    std::stringstream came;
    came << std::ifstream(log).rdbuf();
    std::istringstream rules(faults);
    for (std::string rule; rules >> rule;) {
      EXPECT_NE(("\n" + came.str()).find("\n" + rule + "\n"), std::string::npos) << rule;
    }
    return done;
  }
};

TEST_F(Tarneval, ReadsOnBehindAShortRead) {
  Outcome done = run("1+2", "read@ShortRead:1+:short=1");
  EXPECT_EQ(done.said, "3\n");
  EXPECT_TRUE(ended(done, 0));
}

TEST_F(Tarneval, TellsWhatItCannotOpen) {
  Outcome done = run("1+2", "fopen@Open:1:EACCES");
  EXPECT_EQ(done.said, "Cannot open file: " + path + "\n");
  EXPECT_TRUE(ended(done, 1));
}

TEST_F(Tarneval, TellsItsUsage) {
  for (const char* arguments : {"--help", "one two", "--stats -x", "one --stats two"}) {
    Outcome done = shell(std::string(TARNEVAL " ") + arguments + " </dev/null");
    EXPECT_EQ(done.said, "usage: tarneval [--stats] [file]\n") << arguments;
    EXPECT_TRUE(ended(done, 2)) << arguments;
  }
}

TEST_F(Tarneval, TellsWhatAProgramTook) {
  std::ofstream(path) << "1+2";
  Outcome done = shell(TARNEVAL " --stats " + path);
  EXPECT_TRUE(ended(done, 0));
  std::istringstream lines(done.said);
  std::string line;
  for (const char* start : {"3", "steps ", "cells made ", "peak cells ", "seconds 0."}) {
    ASSERT_TRUE(std::getline(lines, line)) << start;
    EXPECT_EQ(line.rfind(start, 0), 0u) << line;
  }
  EXPECT_FALSE(std::getline(lines, line)) << line;
}

TEST_F(Tarneval, EvaluatesNoHalfOfAProgram) {
  Outcome done = run("1+2", "read@Program:1:short=1 read@Program:2:EIO");
  EXPECT_EQ(done.said, "Cannot read file: " + path + "\n");
  EXPECT_TRUE(ended(done, 1));
  done = shell(TARNEVAL " </");
  EXPECT_EQ(done.said, "Cannot read file: standard input\n");
  EXPECT_TRUE(ended(done, 1));
}

TEST_F(Tarneval, TellsThatTheResultIsLost) {
  if (access("/dev/full", W_OK) != 0) return;  // a system without it
  std::ofstream(path) << "1+2";
  Outcome done = shell(TARNEVAL " " + path + " 2>&1 >/dev/full");
  EXPECT_EQ(done.said, "Cannot write file: standard output\n");
  EXPECT_TRUE(ended(done, 1));
  std::ofstream(path) << "1+foo";
  done = shell(TARNEVAL " " + path + " 2>/dev/full");
  EXPECT_TRUE(ended(done, 1));
}

// Each sum of two exact binary numbers adds a line to a file of traces.
const char* const sum = "001+001";

TEST_F(Tarneval, TheTraceIsWrittenOnBehindInterruptions) {
  Outcome done = run(sum, "write@/tmp/both.bug:1:short=1 write@/tmp/both.bug:2:EINTR");
  EXPECT_TRUE(ended(done, 0)) << done.said;
}

TEST_F(Tarneval, ATraceThatCannotBeWrittenIsAFault) {
  for (const char* fault :
       {"fopen@/tmp/both.bug:1:EACCES", "write@/tmp/both.bug:1:ENOSPC", "write@/tmp/both.bug:1:end",
        "fclose@/tmp/both.bug:1:EIO"}) {
    Outcome done = run(sum, fault);
    EXPECT_EQ(done.said.substr(0, 37), "ASSERTION FAILED:foundation/diag.cpp:") << fault;
    EXPECT_TRUE(aborted(done)) << fault;
  }
}

// What fails for a program of the language is a value.
TEST_F(Tarneval, AProgramSeesItsOwnFaults) {
  EXPECT_EQ(run("opendir(cape[/])", "opendir@/:1:EMFILE").said, "0\n");
  EXPECT_EQ(run("d{opendir(cape[/])}c{closedir d}c", "closedir@/:1:EIO").said, "01\n");
  EXPECT_EQ(run("f{fopen(cape[/dev/null],cape[w])}c{fclose f}c", "fclose@/dev/null:1:EIO").said,
            "01\n");
}

}  // namespace
}  // namespace tarn

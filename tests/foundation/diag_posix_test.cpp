// The fatal paths: the words, the descriptor, the status; and the chunks of the diagnostic stream.
#include "foundation/diag.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <string>

#include "foundation/str.h"

namespace tarn {
namespace {

struct Ended {
  std::string out;  // what went to descriptor 1
  std::string err;  // to descriptor 2
  int status;       // as wait gives it
};

std::string drain(int fd) {
  std::string got;
  char piece[65536];
  for (ssize_t n; (n = read(fd, piece, sizeof piece)) > 0;) {
    got.append(piece, static_cast<size_t>(n));
  }
  close(fd);
  return got;
}

// Runs work in a child process whose descriptors 1 and 2 are read back.
Ended runapart(const std::function<void()>& work) {
  int out[2], err[2];
  EXPECT_EQ(pipe(out), 0);
  EXPECT_EQ(pipe(err), 0);
  pid_t child = fork();
  if (child == 0) {
    dup2(out[1], 1);
    dup2(err[1], 2);
    close(out[0]);
    close(err[0]);
    close(out[1]);
    close(err[1]);
    work();
    _exit(0);
  }
  close(out[1]);
  close(err[1]);
  Ended ended;
  ended.out = drain(out[0]);
  ended.err = drain(err[0]);
  waitpid(child, &ended.status, 0);
  return ended;
}

bool aborted(int status) { return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT; }

// The sizes of the separate writes that work makes to descriptor 1, by way of a socket that keeps
// the borders of messages.
std::vector<int64_t> writesizes(const std::function<void()>& work) {
  int ends[2];
  EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends), 0);
  pid_t child = fork();
  if (child == 0) {
    dup2(ends[1], 1);
    close(ends[0]);
    close(ends[1]);
    work();
    _exit(0);
  }
  close(ends[1]);
  std::vector<int64_t> sizes;
  char piece[65536];
  for (ssize_t n; (n = read(ends[0], piece, sizeof piece)) > 0;) sizes.push_back(n);
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return sizes;
}

Str filled(int64_t n) {
  Str s = strsized(n);
  if (n > 0) memset(s.own(), 'x', static_cast<size_t>(n));
  return s;
}

TEST(Diag, FailNamesThePlaceAndAborts) {
  Ended ended = runapart([] { fail("some/file.cpp", 42); });
  EXPECT_EQ(ended.err, "ASSERTION FAILED:some/file.cpp:42\n");
  EXPECT_EQ(ended.out, "");
  EXPECT_TRUE(aborted(ended.status));
}

TEST(Diag, CheckPrintsThePathWithinTheProject) {
  Ended ended = runapart([] { check(1 + 1 == 3); });
  EXPECT_EQ(ended.err.substr(0, 44), "ASSERTION FAILED:tests/foundation/diag_posix");
  EXPECT_TRUE(aborted(ended.status));
}

TEST(Diag, DieSpeaksOnOneAndFailsOnTwo) {
  Ended ended = runapart([] { die("Bad oper type in edittodo"); });
  EXPECT_EQ(ended.out, "TARNFAIL: Bad oper type in edittodo\n");
  EXPECT_EQ(ended.err.substr(0, 36), "ASSERTION FAILED:foundation/diag.cpp");
  EXPECT_TRUE(aborted(ended.status));
}

TEST(Diag, FailingWithDescriptorTwoClosedStillAborts) {
  Ended ended = runapart([] {
    close(2);
    fail("x", 1);
  });
  EXPECT_EQ(ended.err, "");
  EXPECT_TRUE(aborted(ended.status));
}

TEST(Diag, ChunksAreOf4096Bytes) {
  EXPECT_EQ(writesizes([] { outstream << filled(4096); }), (std::vector<int64_t>{4096}));
  EXPECT_EQ(writesizes([] { outstream << filled(4097); }), (std::vector<int64_t>{4096, 1}));
  EXPECT_EQ(writesizes([] { outstream << filled(0); }), (std::vector<int64_t>{}));
  EXPECT_EQ(writesizes([] { outstream << filled(9000).text(); }),
            (std::vector<int64_t>{4096, 4096, 808}));
}

TEST(Diag, StreamsChainAndKeepNuls) {
  Ended ended = runapart([] { outstream << Str("a\0b", 3) << "c" << INT32_MIN << 7 << ""; });
  EXPECT_EQ(ended.out, std::string("a\0bc-21474836487", 16));
}

TEST(Diag, WritingToAClosedDescriptorIsAFailure) {
  Ended ended = runapart([] {
    close(1);
    outstream << "lost";
  });
  EXPECT_EQ(ended.err.substr(0, 36), "ASSERTION FAILED:foundation/diag.cpp");
  EXPECT_TRUE(aborted(ended.status));
}

TEST(Diag, ShortWritesAreGoneOnFrom) {
  Ended ended = runapart([] {
    fcntl(1, F_SETPIPE_SZ, 4096);
    fcntl(1, F_SETFL, O_WRONLY | O_NONBLOCK);
    outstream << filled(300000);
  });
  EXPECT_EQ(ended.out, std::string(300000, 'x'));
  EXPECT_EQ(ended.status, 0);
}

// Whether the end of the bug file holds a text. Other tests may append to it at the same time, so
// that texts of this one carry its process number.
bool bugfileholds(const std::string& text) {
  int fd = open("/tmp/both.bug", O_RDONLY);
  if (fd < 0) return false;
  lseek(fd, -std::min<off_t>(1 << 20, lseek(fd, 0, SEEK_END)), SEEK_END);
  return drain(fd).find(text) != std::string::npos;
}

std::string mine(const char* text) { return std::to_string(getpid()) + text; }

Str strof(const std::string& text) { return Str(text.data(), static_cast<int64_t>(text.size())); }

TEST(Diag, TheBugFileGrows) {
  errno = ENOTSUP;
  appendbug(strof(mine(" one line\n")));
  appendbug(strof(mine(" two\nlines\n")));
  EXPECT_EQ(errno, ENOTSUP) << "errno is left as it was";
  EXPECT_TRUE(bugfileholds(mine(" one line\n")));
  EXPECT_TRUE(bugfileholds(mine(" two\nlines\n")));
}

TEST(Diag, TheBugFileWantsANewlineAfterWriting) {
  std::string text = mine(" no newline");
  Ended ended = runapart([&] { appendbug(strof(text)); });
  EXPECT_TRUE(aborted(ended.status));
  EXPECT_TRUE(bugfileholds(text));
  EXPECT_TRUE(aborted(runapart([] { appendbug(Str()); }).status));
}

}  // namespace
}  // namespace tarn

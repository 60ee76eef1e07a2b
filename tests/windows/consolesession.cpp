// The session's side of the driver: a child with pipes on descriptors 0 and 1, and a terminal on 2,
// which is what makes wine give it a console.
#include "tests/windows/consolesession.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tarn {

[[noreturn]] static void giveup(const std::string& why) {
  fprintf(stderr, "console session: %s\n", why.c_str());
  exit(1);
}

// A key of a US keyboard for each byte of a row, with Shift or without.
struct KeyRun {
  const char* bytes;
  int keys[12];
  unsigned control;
};

constexpr unsigned shift = 0x10;
constexpr unsigned ctrl = 0x08;

static const KeyRun keyruns[] = {
    {")!@#$%^&*(", {48, 49, 50, 51, 52, 53, 54, 55, 56, 57}, shift},
    {";=,-./`[\\]'", {186, 187, 188, 189, 190, 191, 192, 219, 220, 221, 222}, 0},
    {":+<_>?~{|}\"", {186, 187, 188, 189, 190, 191, 192, 219, 220, 221, 222}, shift},
    {"\n\x7F\x1C", {13, 8, 46}, 0},
};

static bool keyof(unsigned char c, int& key, unsigned& control) {
  control = 0;
  key = c;
  for (const KeyRun& run : keyruns) {
    const char* found = c == 0 ? nullptr : strchr(run.bytes, c);
    if (found == nullptr) continue;
    key = run.keys[found - run.bytes];
    control = run.control;
    return true;
  }
  if (c >= 'a' && c <= 'z') {
    key = c - 32;
  } else if (c >= 'A' && c <= 'Z') {
    control = shift;
  } else if (c == 0) {
    key = 32;
    control = ctrl;
  } else if (c == 0x1F) {
    key = 189;
    control = ctrl | shift;
  } else if (c < 27 && c != 9) {
    key = c + 64;
    control = ctrl;
  } else {
    return c == 9 || c == 27 || c == ' ' || (c >= '0' && c <= '9');
  }
  return true;
}

ConsoleSession::ConsoleSession(const std::string& driver, const std::string& command, int columns,
                               int rows)
    : terminal(columns, rows) {
  int in[2], out[2], slave;
  winsize size = {static_cast<unsigned short>(rows), static_cast<unsigned short>(columns), 0, 0};
  if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0 ||
      openpty(&tty, &slave, nullptr, nullptr, &size) != 0) {
    giveup("no pipes");
  }
  pid = fork();
  if (pid == 0) {
    setsid();
    ioctl(slave, TIOCSCTTY, 0);
    dup2(in[0], 0);
    dup2(out[1], 1);
    dup2(slave, 2);
    close(slave);
    close(tty);
    unsetenv("DISPLAY");
    setenv("WINEDEBUG", "-all", 0);
    execlp("wine", "wine", driver.c_str(), nullptr);
    _exit(127);
  }
  close(in[0]);
  close(out[1]);
  close(slave);
  commands = in[1];
  answers = out[0];
  while (line() != "ready") {
  }
  ask("size " + std::to_string(columns) + " " + std::to_string(rows));
  ask("start " + command);
  settle();
}

ConsoleSession::~ConsoleSession() {
  if (write(commands, "quit\n", 5) != 5) kill(pid, SIGKILL);
  close(commands);
  close(answers);
  close(tty);
  waitpid(pid, nullptr, 0);
}

// Reads on; what wine paints on the terminal itself is not looked at.
void ConsoleSession::more() {
  for (;;) {
    pollfd ready[2] = {{answers, POLLIN, 0}, {tty, POLLIN, 0}};
    if (poll(ready, 2, 120000) <= 0) giveup("no answer");
    char piece[65536];
    if ((ready[1].revents & POLLIN) != 0 && read(tty, piece, sizeof piece) < 0) giveup("terminal");
    if ((ready[0].revents & (POLLIN | POLLHUP)) == 0) continue;
    ssize_t n = read(answers, piece, sizeof piece);
    if (n <= 0) giveup("closed");
    unread.append(piece, static_cast<size_t>(n));
    return;
  }
}

std::string ConsoleSession::line() {
  size_t end;
  while ((end = unread.find('\n')) == std::string::npos) more();
  std::string text = unread.substr(0, end);
  unread.erase(0, end + 1);
  return text;
}

std::string ConsoleSession::ask(const std::string& command) {
  std::string text = command + "\n";
  if (write(commands, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    giveup("cannot write");
  }
  std::string answer = line();
  if (answer.compare(0, 3, "err") == 0) giveup(command + ": " + answer);
  return answer;
}

// Takes the bytes behind an answer; false if it says that time is up.
bool ConsoleSession::take(const std::string& answer) {
  char word[16] = "";
  size_t n = 0;
  if (sscanf(answer.c_str(), "%15s %zu %lu", word, &n, &status) < 2) giveup(answer);
  while (unread.size() < n) more();
  terminal.feed(unread.data(), n);
  output.append(unread, 0, n);
  unread.erase(0, n);
  ended = strcmp(word, "exit") == 0;
  return strcmp(word, "late") != 0;
}

void ConsoleSession::key(int virtualkey, unsigned control, int repeat) {
  ask("key " + std::to_string(virtualkey) + " " + std::to_string(control) + " " +
      std::to_string(repeat));
}

void ConsoleSession::burst(int virtualkey, int n) {
  ask("burst " + std::to_string(virtualkey) + " " + std::to_string(n));
}

void ConsoleSession::letgo(int virtualkey) { ask("up " + std::to_string(virtualkey)); }

void ConsoleSession::type(const std::string& bytes) {
  for (char c : bytes) {
    int virtualkey;
    unsigned control;
    if (!keyof(static_cast<unsigned char>(c), virtualkey, control)) giveup("no such key");
    key(virtualkey, control);
  }
}

void ConsoleSession::resize(int columns, int rows) {
  terminal.resize(columns, rows);
  ask("window " + std::to_string(columns) + " " + std::to_string(rows));
}

void ConsoleSession::interrupt() { ask("break"); }
bool ConsoleSession::settle(int ms) { return take(ask("sync " + std::to_string(ms))); }
bool ConsoleSession::finish(int ms) { return take(ask("wait " + std::to_string(ms))) && ended; }

void ConsoleSession::modes(unsigned long& in, unsigned long& out) {
  if (sscanf(ask("modes").c_str(), "modes %lu %lu", &in, &out) != 2) giveup("modes");
}

}  // namespace tarn

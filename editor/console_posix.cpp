// The console on POSIX systems: descriptors 0 and 1, a terminal.
//
// The signals that tell of a resize and of a continued process are let in only while waiting for
// input, so that none comes between a test and a read. Those that end the process are let in at any
// time: their handler puts the terminal back and lets the process die of the same signal.
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "editor/console.h"
#include "editor/termkeys.h"
#include "foundation/diag.h"
#include "foundation/system.h"

namespace tarn {

namespace {

struct Console {
  termios found;     // the modes before, put back at the end
  termios mine;      // the modes of the editor
  sigset_t waiting;  // the signals blocked while waiting: those of the start
  KeyText ahead;     // a key decoded and not yet asked for; n 0 for none
  bool pressed;      // the last read brought no more than one press of a key does
  TermKeys keys;
};

Console console;

volatile sig_atomic_t resized = 0;    // the window has another size
volatile sig_atomic_t continued = 0;  // the process was stopped, and the terminal in other hands
volatile sig_atomic_t lastrow = 24;   // where the cursor goes at the end
volatile sig_atomic_t modesset = 0;   // there is something to put back

void noteresize(int) { resized = 1; }
void notecontinue(int) { continued = 1; }

// Sets the terminal's modes, however often a signal comes between; false on a real error.
bool changemodes(const termios& modes) {
  while (tcsetattr(0, TCSANOW, &modes) != 0) {
    if (errno != EINTR) return false;
  }
  return true;
}

// Whether the terminal takes some last words, given a second. One that stands still, such as that
// of a connection that is lost, must not keep the process from ending.
bool takeswords() {
  pollfd output = {1, POLLOUT, 0};
  return poll(&output, 1, 1000) > 0;
}

// Plain colours, the cursor on the last row, the modes as they were. Safe within a signal handler.
void putback() {
  if (!modesset) return;
  modesset = 0;
  char words[32];
  char* at = words + sizeof words;
  *--at = 'H';
  *--at = '1';
  *--at = ';';
  for (int row = lastrow; row > 0; row /= 10) *--at = static_cast<char>('0' + row % 10);
  for (const char* c = "[\x1Bm0[\x1B"; *c != 0; c++) *--at = *c;
  if (takeswords()) systemwrite(1, at, words + sizeof words - at);
  changemodes(console.found);  // a terminal that is gone has no modes
}

void dieofsignal(int number) {
  putback();
  signal(number, SIG_DFL);
  raise(number);  // held back until the handler returns
}

void handle(int number, void (*handler)(int), int flags) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = flags;
  sigfillset(&action.sa_mask);
  check(sigaction(number, &action, nullptr) == 0);
}

void installsignals() {
  sigset_t held;
  sigemptyset(&held);
  sigaddset(&held, SIGWINCH);
  sigaddset(&held, SIGCONT);
  check(pthread_sigmask(SIG_BLOCK, &held, &console.waiting) == 0);
  sigdelset(&console.waiting, SIGWINCH);
  sigdelset(&console.waiting, SIGCONT);
  handle(SIGWINCH, noteresize, 0);  // no SA_RESTART: the wait is to end
  handle(SIGCONT, notecontinue, 0);
  handle(SIGINT, dieofsignal, SA_RESTART);
  handle(SIGTERM, dieofsignal, SA_RESTART);
  handle(SIGHUP, dieofsignal, SA_RESTART);
  signal(SIGPIPE, SIG_IGN);
}

// The modes of the editor: single bytes, none of them changed or taken away, but for C-c.
termios editormodes(const termios& found) {
  termios modes = found;
  modes.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | IEXTEN);
  modes.c_lflag |= ISIG;
  modes.c_iflag &= ~static_cast<tcflag_t>(IXON | INLCR | IGNCR | ISTRIP | PARMRK);
  modes.c_iflag |= ICRNL;
  modes.c_cc[VINTR] = 3;
  modes.c_cc[VQUIT] = _POSIX_VDISABLE;
  modes.c_cc[VSUSP] = _POSIX_VDISABLE;
#ifdef VDSUSP
  modes.c_cc[VDSUSP] = _POSIX_VDISABLE;
#endif
  modes.c_cc[VMIN] = 1;
  modes.c_cc[VTIME] = 0;
  return modes;
}

void setmodes() {
  check(changemodes(console.mine));
  modesset = 1;
}

// Lets a resize in that came while keys were waiting: a wait with nothing to wait for.
void admitsignals() {
  sigset_t pending;
  sigpending(&pending);
  if (sigismember(&pending, SIGWINCH) != 1 && sigismember(&pending, SIGCONT) != 1) return;
  timespec now = {};
  ppoll(nullptr, 0, &now, &console.waiting);
}

[[noreturn]] void hangup() { exit(1); }

// Whether the terminal is gone, which a write to it tells as any other error.
bool hungup() {
  pollfd input = {0, POLLIN, 0};
  return poll(&input, 1, 0) > 0 && (input.revents & POLLHUP) != 0;
}

// A read takes all that has come, so that after one press nothing is left to ask for. Only a paste
// or keys that came faster than they were taken are longer than this.
constexpr ssize_t pressbytes = 8;

void readkeys() {
  uint8_t* room = termbuffer(console.keys);
  ssize_t n = read(0, room, termroom);
  console.pressed = n <= pressbytes;
  if (n > 0) return termread(console.keys, static_cast<int32_t>(n));
  if (n == 0 || errno == EIO) hangup();
  check(errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK);
}

void tellresize(ConsoleEvent& event) {
  if (continued) setmodes();
  resized = 0;
  continued = 0;
  event.kind = ConsoleEventKind::resize;
  consolesize(event.width, event.height);
}

void tellkey(ConsoleEvent& event) {
  event.kind = ConsoleEventKind::key;
  event.key = console.ahead;
  event.repeat = 1;
  console.ahead.n = 0;
}

bool lookahead() {
  if (console.ahead.n == 0) console.ahead = termkey(console.keys);
  return console.ahead.n > 0;
}

}  // namespace

void consoleopen() {
  check(tcgetattr(0, &console.found) == 0);
  console.keys.swapback = console.found.c_cc[VERASE] == 8;
  console.mine = editormodes(console.found);
  installsignals();
  check(atexit(putback) == 0);
  setmodes();
}

void consolesize(int64_t& columns, int64_t& rows) {
  winsize size = {};
  bool known = ioctl(1, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 && size.ws_row > 0;
  columns = known ? size.ws_col : 80;
  rows = known ? size.ws_row : 24;
  lastrow = static_cast<sig_atomic_t>(rows);
}

bool consolewaiting() {
  if (lookahead()) return true;
  if (console.pressed) return false;
  pollfd input = {0, POLLIN, 0};
  return poll(&input, 1, 0) > 0;
}

void consolenext(ConsoleEvent& event) {
  event.kind = ConsoleEventKind::none;
  if (lookahead()) return tellkey(event);
  pollfd input = {0, POLLIN, 0};
  int ready = ppoll(&input, 1, nullptr, &console.waiting);
  check(ready >= 0 || errno == EINTR);
  if (ready > 0) admitsignals();
  if (resized || continued) return tellresize(event);
  if (ready > 0) readkeys();
  if (lookahead()) tellkey(event);
}

void consolewrite(const void* bytes, int64_t n) {
  if (systemwrite(1, bytes, n)) return;
  if (hungup()) hangup();
  check(false);
}

}  // namespace tarn

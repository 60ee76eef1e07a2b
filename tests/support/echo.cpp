// A program that stands at the floor of what any editor can do: it takes keys in raw mode, puts
// them on the screen, rings the bell for a tab, shows its window's size when that changes, and ends
// on C-d. The tests of the session drive it, and the benches measure it beside the editors.
#include <poll.h>
#include <pthread.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

volatile sig_atomic_t resized = 0;

void say(const char* bytes, size_t n) {
  if (write(1, bytes, n) < 0) _exit(1);
}

void showsize() {
  winsize size = {};
  ioctl(1, TIOCGWINSZ, &size);
  char text[64];
  int n = snprintf(text, sizeof text, "\x1b[1;1H%dx%d ", size.ws_col, size.ws_row);
  say(text, static_cast<size_t>(n));
}

void echo(const char* bytes, ssize_t n) {
  char out[8192];
  size_t length = 0;
  for (ssize_t i = 0; i < n; i++) {
    if (bytes[i] == 4) _exit(0);
    out[length++] = bytes[i] == '\t' ? '\a' : bytes[i];
  }
  say(out, length);
}

}  // namespace

int main() {
  termios modes;
  if (tcgetattr(0, &modes) != 0) return 1;
  modes.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
  tcsetattr(0, TCSANOW, &modes);
  sigset_t winch, open;
  sigemptyset(&winch);
  sigaddset(&winch, SIGWINCH);
  pthread_sigmask(SIG_BLOCK, &winch, &open);
  signal(SIGWINCH, [](int) { resized = 1; });
  say("\x1b[2;1H", 6);
  for (;;) {
    if (resized) {
      resized = 0;
      showsize();
    }
    pollfd input = {0, POLLIN, 0};
    if (ppoll(&input, 1, nullptr, &open) <= 0) continue;
    char bytes[4096];
    ssize_t n = read(0, bytes, sizeof bytes);
    if (n <= 0) return 0;
    echo(bytes, n);
  }
}

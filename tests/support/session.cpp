// The session over forkpty. What a process is doing is read from /proc.
#include "tests/support/session.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <utmp.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace tarn {

namespace {

// What a user's terminal is like when a shell starts a program in it.
termios shellmodes(bool oldbackspace) {
  termios modes = {};
  modes.c_iflag = ICRNL | IXON | BRKINT;
  modes.c_oflag = OPOST | ONLCR;
  modes.c_cflag = CS8 | CREAD | B38400;
  modes.c_lflag = ICANON | ECHO | ECHOE | ECHOK | ISIG | IEXTEN;
  modes.c_cc[VINTR] = 3;
  modes.c_cc[VQUIT] = 28;
  modes.c_cc[VERASE] = oldbackspace ? 8 : 127;
  modes.c_cc[VKILL] = 21;
  modes.c_cc[VEOF] = 4;
  modes.c_cc[VSUSP] = 26;
  modes.c_cc[VSTART] = 17;
  modes.c_cc[VSTOP] = 19;
  modes.c_cc[VMIN] = 1;
  return modes;
}

// Modes that swallow, change and strip keys, end nothing, and read without waiting.
void makeodd(termios& modes) {
  modes.c_iflag = INLCR | IGNCR | ISTRIP | PARMRK | IXON;
  modes.c_lflag &= ~static_cast<tcflag_t>(ISIG | ICANON);
  modes.c_cc[VINTR] = _POSIX_VDISABLE;
  modes.c_cc[VMIN] = 0;
  modes.c_cc[VTIME] = 1;
#ifdef VDSUSP
  modes.c_cc[VDSUSP] = 25;
#endif
}

winsize windowsize(int columns, int rows) {
  winsize size = {};
  size.ws_col = static_cast<unsigned short>(columns);
  size.ws_row = static_cast<unsigned short>(rows);
  return size;
}

// The terminal as the three descriptors, but not as the one that controls the session.
bool takeloose(int terminal) {
  return setsid() >= 0 && dup2(terminal, 0) == 0 && dup2(terminal, 1) == 1 &&
         dup2(terminal, 2) == 2;
}

[[noreturn]] void become(const Launch& launch) {
  if (launch.home.empty()) unsetenv("HOME");
  else setenv("HOME", launch.home.c_str(), 1);
  setenv("TERM", "xterm-256color", 1);
  setenv("LC_ALL", "C", 1);
  if (!launch.directory.empty() && chdir(launch.directory.c_str()) != 0) _exit(126);
  std::vector<char*> argv;
  for (const std::string& word : launch.argv) argv.push_back(const_cast<char*>(word.c_str()));
  argv.push_back(nullptr);
  execvp(argv[0], argv.data());
  _exit(127);
}

std::string slurp(const std::string& path) {
  std::string text;
  FILE* file = fopen(path.c_str(), "r");
  if (file == nullptr) return text;
  char piece[4096];
  for (size_t n; (n = fread(piece, 1, sizeof piece, file)) > 0;) text.append(piece, n);
  fclose(file);
  return text;
}

// What the threads of a process are at.
struct Doing {
  bool asleep = true;   // each of them waits for something that a signal would interrupt
  int64_t sleeps = 0;   // how often they went to sleep by themselves, all together
};

void look(const std::string& task, Doing& doing) {
  std::string status = slurp(task + "/status");
  size_t state = status.find("\nState:\t");
  size_t sleeps = status.find("\nvoluntary_ctxt_switches:\t");
  if (state == std::string::npos || sleeps == std::string::npos) return;
  if (status[state + strlen("\nState:\t")] != 'S') doing.asleep = false;
  doing.sleeps += atoll(status.c_str() + sleeps + strlen("\nvoluntary_ctxt_switches:\t"));
}

template <class Visit>
void eachtask(pid_t pid, Visit visit) {
  std::string tasks = "/proc/" + std::to_string(pid) + "/task";
  DIR* dir = opendir(tasks.c_str());
  if (dir == nullptr) return;
  while (dirent* entry = readdir(dir))
    if (entry->d_name[0] != '.') visit(tasks + "/" + entry->d_name);
  closedir(dir);
}

Doing doingof(pid_t pid) {
  Doing doing;
  eachtask(pid, [&](const std::string& task) { look(task, doing); });
  return doing;
}

}  // namespace

Session::Session(const Launch& launch)
    : terminal(launch.width, launch.height), oldbackspace(launch.oldbackspace) {
  termios modes = shellmodes(launch.oldbackspace);
  if (launch.oddmodes) makeodd(modes);
  winsize size = windowsize(launch.width, launch.height);
  if (openpty(&master, &slave, nullptr, &modes, &size) != 0) {
    perror("openpty");
    abort();
  }
  fcntl(master, F_SETFD, FD_CLOEXEC);
  pid = fork();
  if (pid == 0) {
    if (!(launch.loose ? takeloose(slave) : login_tty(slave) == 0)) _exit(125);
    become(launch);
  }
  fcntl(slave, F_SETFD, FD_CLOEXEC);
  fcntl(master, F_SETFL, O_NONBLOCK);
}

// Where coverage is counted, the program must come to its own end.
#ifdef TARN_COVERAGE
static constexpr int64_t lastwords = 5000;  // milliseconds
#else
static constexpr int64_t lastwords = 0;
#endif

Session::~Session() {
  if (!ended && lastwords > 0) {
    kill(pid, SIGTERM);
    finish(lastwords);
  }
  if (!ended) {
    kill(pid, SIGKILL);
    waitpid(pid, &status, 0);
  }
  if (master >= 0) close(master);
  if (slave >= 0) close(slave);
}

int64_t Session::now() { return nanoseconds() / 1000000; }

int64_t Session::nanoseconds() {
  timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return t.tv_sec * 1000000000 + t.tv_nsec;
}

int64_t Session::cputime() const {
  int64_t spent = 0;
  eachtask(pid, [&](const std::string& task) {
    spent += atoll(slurp(task + "/schedstat").c_str());
  });
  return spent;
}

void Session::ask() {
  if (asked) return;
  sleeps = doingof(pid).sleeps;
  asked = true;
}

void Session::keys(const std::string& bytes) {
  if (bytes.empty()) return;
  ask();
  for (size_t done = 0; done < bytes.size() && !ended;) {
    ssize_t n = write(master, bytes.data() + done, bytes.size() - done);
    if (n > 0) done += static_cast<size_t>(n);
    else if (errno == EAGAIN) pump(1);
    else return;
  }
}

int64_t Session::bytesread() const {
  std::string told = slurp("/proc/" + std::to_string(pid) + "/io");
  size_t at = told.find("rchar: ");
  return at == std::string::npos ? -1 : atoll(told.c_str() + at + strlen("rchar: "));
}

void Session::paste(const std::string& bytes) {
  int64_t before = bytesread();
  if (before >= 0) due = before + static_cast<int64_t>(bytes.size());
  keys(bytes);
}

void Session::resize(int columns, int rows) {
  ask();
  terminal.resize(columns, rows);
  winsize size = windowsize(columns, rows);
  ioctl(master, TIOCSWINSZ, &size);
}

void Session::signal(int number) {
  ask();
  if (!ended) kill(pid, number);
}

void Session::hangup() {
  close(master);
  master = -1;
}

void Session::suspend() {
  ask();
  int stopped = 0;
  kill(pid, SIGSTOP);
  if (waitpid(pid, &stopped, WUNTRACED) == pid && !WIFSTOPPED(stopped)) {
    ended = true;
    status = stopped;
    return;
  }
  termios modes = shellmodes(oldbackspace);
  tcsetattr(slave, TCSANOW, &modes);
  terminal.clear();
  kill(pid, SIGCONT);
}

bool Session::reap() {
  if (!ended && waitpid(pid, &status, WNOHANG) == pid) ended = true;
  return ended;
}

bool Session::pump(int ms) {
  if (master < 0) {
    reap();
    poll(nullptr, 0, ms);
    return false;
  }
  bool gone = reap();  // asked before the last read, so that no last words are lost
  pollfd p = {master, POLLIN, 0};
  if (poll(&p, 1, gone ? 0 : ms) <= 0) return false;
  char piece[65536];
  ssize_t n = read(master, piece, sizeof piece);
  if (n <= 0) return false;
  lastoutput = nanoseconds();
  terminal.feed(piece, static_cast<size_t>(n));
  return true;
}

bool Session::idle() const {
  int unread = 0;
  if (ioctl(slave, FIONREAD, &unread) != 0 || unread > 0) return false;
  if (due > 0 && bytesread() < due) return false;
  Doing doing = doingof(pid);
  return doing.asleep && (!asked || doing.sleeps > sleeps) && !terminal.log.empty();
}

bool Session::settle(int ms) {
  for (int64_t end = now() + ms; now() < end;) {
    while (pump(0)) {}
    if (ended) return true;
    if (!idle()) {
      pump(1);
    } else if (!pump(0)) {
      asked = false;
      return true;
    }
  }
  return false;
}

bool Session::finish(int ms) {
  for (int64_t end = now() + ms; now() < end;)
    if (!pump(1) && reap()) {
      while (pump(0)) {}
      return true;
    }
  return false;
}

bool Session::cooked() const {
  termios modes;
  constexpr tcflag_t wanted = ICANON | ECHO | ISIG | IEXTEN;
  return tcgetattr(slave, &modes) == 0 && (modes.c_lflag & wanted) == wanted &&
         (modes.c_iflag & (IXON | ICRNL)) == (IXON | ICRNL) && modes.c_cc[VQUIT] == 28 &&
         modes.c_cc[VSUSP] == 26;
}

}  // namespace tarn

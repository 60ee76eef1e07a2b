// Faults put in on purpose: a library to be preloaded into a program, between it and the C library.
// Calls that a rule names do not succeed, or not in full; all others go through untouched.
//
//   TARN_FAULTS      the rules, with blanks between them: CALL@TARGET:WHEN:WHAT
//   TARN_FAULTS_LOG  a file that gets a line for each fault as it comes: its rule
//
//   CALL    a name of the table `callnames`
//   TARGET  a descriptor, or the end of the path of what was opened by fopen or opendir, or that is
//           asked about by stat and its kin; `poll` and `ppoll` have none, and no "@"
//   WHEN    3 the third such call, 3+ it and all after it, odd the first, third, fifth and so on
//   WHAT    an error of the table `errors`; end, for a read that gives nothing; short=7, for a read
//           or write of no more than 7 bytes
//
// A call that fails has done nothing, but for close and its kin, which have closed. What is opened
// for reading is read through this library even behind fopen, whose own reads no library sees.
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// ---- The C library's own

template <class Function>
Function* genuine(const char* name, Function*) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

#define GENUINE(name) \
  static auto* const real = genuine(#name, static_cast<decltype(::name)*>(nullptr))

// ---- The rules

struct Rule {
  char text[160];        // as it was given, with a newline for the log
  char call[16];
  char target[128];      // "" for any
  long from, to;         // of the calls counted from 1
  bool odd;              // of those, the odd ones
  int error;             // 0: no failure, but `most` bytes
  size_t most;
  long met;              // calls so far
};

struct Error {
  const char* name;
  int number;
};

constexpr Error errors[] = {
    {"EACCES", EACCES}, {"EAGAIN", EAGAIN}, {"EBADF", EBADF},   {"EDQUOT", EDQUOT},
    {"EINTR", EINTR},   {"EINVAL", EINVAL}, {"EIO", EIO},       {"EMFILE", EMFILE},
    {"ENFILE", ENFILE}, {"ENOENT", ENOENT}, {"ENOSPC", ENOSPC}, {"ENOTTY", ENOTTY},
    {"ESPIPE", ESPIPE},
};

// Of ioctl only the question for the window's size.
constexpr const char* callnames[] = {
    "fopen",   "fclose", "read",  "write",     "opendir",   "readdir", "closedir", "stat",
    "lstat",   "fstatat", "ioctl", "tcgetattr", "tcsetattr", "poll",    "ppoll",
};

constexpr int mostrules = 16;
Rule rules[mostrules];
int rulecount = -1;  // below 0: the environment was not looked at yet
int journal = -1;    // the log

[[noreturn]] void refuse(const char* rule) {
  fprintf(stderr, "no such fault: %s\n", rule);
  _exit(120);
}

bool iscall(const char* name) {
  for (const char* known : callnames) {
    if (strcmp(known, name) == 0) return true;
  }
  return false;
}

bool readwhen(Rule& rule, const char* when) {
  rule.odd = strcmp(when, "odd") == 0;
  rule.from = rule.odd ? 1 : atol(when);
  rule.to = rule.odd || strchr(when, '+') != nullptr ? __LONG_MAX__ : rule.from;
  return rule.from > 0;
}

bool readwhat(Rule& rule, const char* what) {
  if (strcmp(what, "end") == 0) return true;
  if (sscanf(what, "short=%zu", &rule.most) == 1) return rule.most > 0;
  for (const Error& e : errors) {
    if (strcmp(e.name, what) == 0) rule.error = e.number;
  }
  return rule.error != 0;
}

void readrule(Rule& rule, const char* text) {
  char when[16], what[16];
  snprintf(rule.text, sizeof rule.text, "%s\n", text);
  const char* aimed = "%15[a-z]@%127[^:]:%15[^:]:%15s";
  bool whole = sscanf(text, aimed, rule.call, rule.target, when, what) == 4 ||
               sscanf(text, "%15[a-z]:%15[^:]:%15s", rule.call, when, what) == 3;
  if (!whole || !iscall(rule.call) || !readwhen(rule, when) || !readwhat(rule, what)) refuse(text);
}

void readrules() {
  rulecount = 0;
  const char* given = getenv("TARN_FAULTS");
  if (given == nullptr) return;
  char text[2048];
  snprintf(text, sizeof text, "%s", given);
  for (char* word = strtok(text, " "); word != nullptr; word = strtok(nullptr, " ")) {
    if (rulecount == mostrules) refuse(word);
    readrule(rules[rulecount++], word);
  }
  const char* path = getenv("TARN_FAULTS_LOG");
  if (path != nullptr) journal = open(path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
}

bool endswith(const char* text, const char* end) {
  size_t n = strlen(text), m = strlen(end);
  return n >= m && strcmp(text + n - m, end) == 0;
}

// Descriptors are matched whole: 1 is not the end of 21.
bool concerns(const Rule& rule, const char* call, const char* target) {
  if (strcmp(rule.call, call) != 0) return false;
  if (rule.target[0] == 0) return true;
  return target[0] == '/' ? endswith(target, rule.target) : strcmp(target, rule.target) == 0;
}

// The fault that is due for this call, null for none. errno is the fault's then.
const Rule* due(const char* call, const char* target) {
  GENUINE(write);
  if (rulecount < 0) readrules();
  const Rule* found = nullptr;
  for (Rule& rule : rules) {
    if (!concerns(rule, call, target)) continue;
    long n = ++rule.met;
    bool now = n >= rule.from && n <= rule.to && (!rule.odd || n % 2 == 1);
    if (now && found == nullptr) found = &rule;
  }
  if (found == nullptr) return nullptr;
  if (journal >= 0 && real(journal, found->text, strlen(found->text)) < 0) _exit(121);
  errno = found->error;
  return found;
}

// ---- What is open, and under which path

struct Opened {
  const void* handle;  // the FILE or DIR; null for a free place
  int fd;
  char path[256];
};

Opened opened[64];

void noteopened(const void* handle, int fd, const char* path) {
  for (Opened& place : opened) {
    if (place.handle != nullptr) continue;
    place.handle = handle;
    place.fd = fd;
    snprintf(place.path, sizeof place.path, "%s", path);
    return;
  }
}

// The path that a handle was opened under, "" for none; forgotten if it is closed now.
const char* pathof(const void* handle, bool closing) {
  for (Opened& place : opened) {
    if (place.handle != handle) continue;
    if (closing) place.handle = nullptr;
    return place.path;
  }
  return "";
}

const char* targetof(int fd) {
  static char digits[12];
  for (const Opened& place : opened) {
    if (place.handle != nullptr && place.fd == fd) return place.path;
  }
  snprintf(digits, sizeof digits, "%d", fd);
  return digits;
}

// ---- Files opened for reading, through the calls below

int fdof(void* cookie) { return static_cast<int>(reinterpret_cast<intptr_t>(cookie)); }

ssize_t fileread(void* cookie, char* bytes, size_t n) { return read(fdof(cookie), bytes, n); }

int fileseek(void* cookie, off64_t* offset, int whence) {
  off64_t at = lseek64(fdof(cookie), *offset, whence);
  if (at >= 0) *offset = at;
  return at < 0 ? -1 : 0;
}

int fileclose(void* cookie) { return close(fdof(cookie)); }

FILE* openforreading(const char* path) {
  int fd = open(path, O_RDONLY);
  if (fd < 0) return nullptr;
  void* cookie = reinterpret_cast<void*>(static_cast<intptr_t>(fd));
  FILE* file = fopencookie(cookie, "r", {fileread, nullptr, fileseek, fileclose});
  if (file != nullptr) noteopened(file, fd, path);
  return file;
}

}  // namespace

// ---- The calls

extern "C" {

FILE* fopen(const char* path, const char* mode) {
  GENUINE(fopen);
  if (due("fopen", path) != nullptr) return nullptr;
  if (rulecount > 0 && mode[0] == 'r' && strchr(mode, '+') == nullptr) return openforreading(path);
  FILE* file = real(path, mode);
  if (file != nullptr) noteopened(file, fileno(file), path);
  return file;
}

int fclose(FILE* file) {
  GENUINE(fclose);
  const Rule* rule = due("fclose", pathof(file, true));
  int result = real(file);
  if (rule == nullptr) return result;
  errno = rule->error;
  return EOF;
}

ssize_t read(int fd, void* bytes, size_t n) {
  GENUINE(read);
  const Rule* rule = due("read", targetof(fd));
  if (rule == nullptr) return real(fd, bytes, n);
  if (rule->error != 0) return -1;
  return rule->most == 0 ? 0 : real(fd, bytes, n < rule->most ? n : rule->most);
}

ssize_t write(int fd, const void* bytes, size_t n) {
  GENUINE(write);
  const Rule* rule = due("write", targetof(fd));
  if (rule == nullptr) return real(fd, bytes, n);
  if (rule->error != 0) return -1;
  return rule->most == 0 ? 0 : real(fd, bytes, n < rule->most ? n : rule->most);
}

DIR* opendir(const char* path) {
  GENUINE(opendir);
  if (due("opendir", path) != nullptr) return nullptr;
  DIR* directory = real(path);
  if (directory != nullptr) noteopened(directory, dirfd(directory), path);
  return directory;
}

dirent* readdir(DIR* directory) {
  GENUINE(readdir);
  return due("readdir", pathof(directory, false)) != nullptr ? nullptr : real(directory);
}

int closedir(DIR* directory) {
  GENUINE(closedir);
  const Rule* rule = due("closedir", pathof(directory, true));
  int result = real(directory);
  if (rule == nullptr) return result;
  errno = rule->error;
  return -1;
}

int stat(const char* path, struct stat* found) noexcept {
  static auto* const real =
      genuine("stat", static_cast<int (*)(const char*, struct stat*)>(nullptr));
  return due("stat", path) != nullptr ? -1 : real(path, found);
}

int lstat(const char* path, struct stat* found) noexcept {
  GENUINE(lstat);
  return due("lstat", path) != nullptr ? -1 : real(path, found);
}

int fstatat(int directory, const char* name, struct stat* found, int flags) noexcept {
  GENUINE(fstatat);
  char path[512];
  snprintf(path, sizeof path, "/%s", name);  // of the path no more than this is known
  return due("fstatat", path) != nullptr ? -1 : real(directory, name, found, flags);
}

int tcgetattr(int fd, termios* modes) noexcept {
  GENUINE(tcgetattr);
  return due("tcgetattr", targetof(fd)) != nullptr ? -1 : real(fd, modes);
}

int tcsetattr(int fd, int when, const termios* modes) noexcept {
  GENUINE(tcsetattr);
  return due("tcsetattr", targetof(fd)) != nullptr ? -1 : real(fd, when, modes);
}

int ioctl(int fd, unsigned long request, ...) noexcept {
  static auto* const real =
      genuine("ioctl", static_cast<int (*)(int, unsigned long, void*)>(nullptr));
  va_list rest;
  va_start(rest, request);
  void* argument = va_arg(rest, void*);
  va_end(rest);
  bool failing = request == TIOCGWINSZ && due("ioctl", targetof(fd)) != nullptr;
  return failing ? -1 : real(fd, request, argument);
}

int poll(pollfd* fds, nfds_t n, int ms) {
  GENUINE(poll);
  return due("poll", "") != nullptr ? -1 : real(fds, n, ms);
}

int ppoll(pollfd* fds, nfds_t n, const timespec* time, const sigset_t* mask) {
  GENUINE(ppoll);
  return due("ppoll", "") != nullptr ? -1 : real(fds, n, time, mask);
}

}  // extern "C"

// The fatal paths. None of them allocates before its words are out.
#include "foundation/diag.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "foundation/str.h"
#include "foundation/system.h"

namespace tarn {

constinit const DiagStream outstream = {1};
constinit const DiagStream errstream = {2};

static bool failing = false;  // set by the first failure, for a failure on the way out

void fail(const char* file, int32_t line) {
  if (failing) abort();
  failing = true;
  errstream << "ASSERTION FAILED:" << file << ":" << line << "\n";
  abort();
}

void die(const Str& reason) {
  outstream << "TARNFAIL: " << reason << "\n";
  fail(__FILE__, __LINE__);
}

static void writechunks(int fd, const char* bytes, int64_t n) {
  constexpr int64_t chunk = 4096;
  for (int64_t done = 0; done < n; done += chunk) {
    check(systemwrite(fd, bytes + done, n - done < chunk ? n - done : chunk));
  }
}

const DiagStream& operator<<(const DiagStream& stream, const char* text) {
  writechunks(stream.fd, text, static_cast<int64_t>(strlen(text)));
  return stream;
}

const DiagStream& operator<<(const DiagStream& stream, const Str& text) {
  writechunks(stream.fd, text.text(), text.len());
  return stream;
}

const DiagStream& operator<<(const DiagStream& stream, int32_t number) {
  char digits[12];
  int n = snprintf(digits, sizeof digits, "%d", number);
  check(systemwrite(stream.fd, digits, n));
  return stream;
}

// errno belongs to the last C builtin of a running program, so it is put back.
void appendbug(const Str& text) {
  int kept = errno;
  systemmakedir("/tmp");  // most often it is there already
  FILE* file = fopen("/tmp/both.bug", "a");
  check(file != nullptr);
  check(systemwrite(systemdescriptor(file), text.text(), text.len()));
  check(fclose(file) == 0);
  check(text.len() > 0 && text.at(text.len() - 1) == '\n');
  errno = kept;
}

}  // namespace tarn

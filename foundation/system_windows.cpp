// The low-level calls on Windows.
#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <stdlib.h>

#include "foundation/system.h"

namespace tarn {

static void ignorewrong(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {}

void systemstart() {
  _fmode = _O_BINARY;
  for (int fd = 0; fd <= 2; fd++) _setmode(fd, _O_BINARY);
  _set_invalid_parameter_handler(ignorewrong);
}

bool systemwrite(int fd, const void* bytes, int64_t n) {
  constexpr int64_t most = 1 << 30;  // the count is an unsigned int there
  const char* at = static_cast<const char*>(bytes);
  while (n > 0) {
    int done = _write(fd, at, static_cast<unsigned>(n < most ? n : most));
    if (done <= 0) return false;
    at += done;
    n -= done;
  }
  return true;
}

bool systemmakedir(const char* path) { return _mkdir(path) == 0; }

int systemdescriptor(FILE* file) { return _fileno(file); }

}  // namespace tarn

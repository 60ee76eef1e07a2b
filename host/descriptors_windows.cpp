// Files by descriptor on Windows.
#include <io.h>

#include "host/descriptors.h"

namespace tarn {

FILE* fileopened(int fd, const char* mode) { return _fdopen(fd, mode); }
int filedescriptor(FILE* file) { return _fileno(file); }
char* filetempname(char* out) { return tmpnam(out); }
int64_t fileread(int fd, void* to, size_t n) { return _read(fd, to, static_cast<unsigned>(n)); }
int64_t filewrite(int fd, const void* from, size_t n) {
  return _write(fd, from, static_cast<unsigned>(n));
}

}  // namespace tarn

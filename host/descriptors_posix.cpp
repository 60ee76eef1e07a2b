// Files by descriptor on POSIX systems.
#include <unistd.h>

#include <cstdlib>
#include <cstring>

#include "host/descriptors.h"

namespace tarn {

FILE* fileopened(int fd, const char* mode) { return fdopen(fd, mode); }
int filedescriptor(FILE* file) { return fileno(file); }
int64_t fileread(int fd, void* to, size_t n) { return read(fd, to, n); }
int64_t filewrite(int fd, const void* from, size_t n) { return write(fd, from, n); }

// A name that no file has, as tmpnam gives one; the linker warns of every program that calls that.
char* filetempname(char* out) {
  static char own[L_tmpnam];
  if (out == nullptr) out = own;
  strcpy(out, "/tmp/fileXXXXXX");
  int fd = mkstemp(out);
  if (fd < 0) return nullptr;
  close(fd);
  unlink(out);
  return out;
}

}  // namespace tarn

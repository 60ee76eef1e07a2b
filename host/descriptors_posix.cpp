// Files by descriptor on POSIX systems.
#include <unistd.h>

#include "host/descriptors.h"

namespace tarn {

FILE* fileopened(int fd, const char* mode) { return fdopen(fd, mode); }
int filedescriptor(FILE* file) { return fileno(file); }
int64_t fileread(int fd, void* to, size_t n) { return read(fd, to, n); }
int64_t filewrite(int fd, const void* from, size_t n) { return write(fd, from, n); }

// tmpnam by address: the linker warns of its name, and programs are told of its races in the docs.
char* filename(char* out) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
  return tmpnam(out);
#pragma GCC diagnostic pop
}

}  // namespace tarn

// The low-level calls on POSIX systems.
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "foundation/system.h"

namespace tarn {

void systemstart() {}  // it is so from the start

bool systemwrite(int fd, const void* bytes, int64_t n) {
  const char* at = static_cast<const char*>(bytes);
  while (n > 0) {
    ssize_t done = write(fd, at, static_cast<size_t>(n));
    if (done > 0) {
      at += done;
      n -= done;
    } else if (done == 0) {
      return false;  // the next one would take no more
    } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
      pollfd ready = {fd, POLLOUT, 0};
      poll(&ready, 1, -1);
    } else if (errno != EINTR) {
      return false;
    }
  }
  return true;
}

bool systemmakedir(const char* path) { return mkdir(path, 0777) == 0; }

int systemdescriptor(FILE* file) { return fileno(file); }

}  // namespace tarn

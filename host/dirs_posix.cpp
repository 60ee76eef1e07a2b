// Directories on POSIX systems, which have the calls. The one rule of our own is that an empty path
// is no directory; the C library would follow a null one.
#include <dirent.h>

#include <cerrno>

#include "host/dirs.h"

namespace tarn {

void* diropen(const char* path) {
  if (path == nullptr || *path == 0) {
    errno = ENOENT;
    return nullptr;
  }
  return opendir(path);
}

void* dirread(void* dir) {
  return dir == nullptr ? nullptr : static_cast<void*>(readdir(static_cast<DIR*>(dir)));
}

int dirclose(void* dir) { return closedir(static_cast<DIR*>(dir)); }

int64_t dirsize() { return sizeof(dirent); }

}  // namespace tarn

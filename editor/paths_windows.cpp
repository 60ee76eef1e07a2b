// What the file system of Windows says of paths. Paths have forward slashes and no drive letter:
// they mean the process's current drive.
#include <direct.h>
#include <sys/stat.h>

#include <cstdlib>

#include "editor/paths.h"
#include "foundation/diag.h"

namespace tarn {

// The system's `stat` knows a directory by its bare name only, unless it is the root.
static bool hasmode(const Str& path, unsigned short kind) {
  int64_t n = path.len();
  bool slash = n > 1 && path.at(n - 1) == '/';
  if (slash && kind != _S_IFDIR) return false;
  struct _stat64 found;
  return _stat64((slash ? path.substr(0, n - 1) : path).text(), &found) == 0 &&
         (found.st_mode & _S_IFMT) == kind;
}

bool isdir(const Str& path) { return hasmode(path, _S_IFDIR); }
bool isfile(const Str& path) { return hasmode(path, _S_IFREG); }

bool pathexists(const Str& path) {
  struct _stat64 found;
  return _stat64(path.text(), &found) == 0;
}

int64_t filesize(const Str& path) {
  struct _stat64 found;
  return _stat64(path.text(), &found) == 0 ? found.st_size : -1;
}

Str findhome() { return isdir("/Users/Admin/") ? "/Users/Admin/" : "/"; }

Str findcwd() {
  char* told = _getcwd(nullptr, 0);
  check(told != nullptr);
  Str path = drivelesspath(told);
  free(told);
  return path;
}

}  // namespace tarn

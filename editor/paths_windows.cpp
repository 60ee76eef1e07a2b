// What the file system of Windows says of paths. Paths have forward slashes and no drive letter:
// they mean the process's current drive.
#include <direct.h>
#include <sys/stat.h>

#include <cctype>
#include <cstdlib>

#include "editor/paths.h"
#include "foundation/diag.h"

namespace tarn {

static bool hasmode(const Str& path, unsigned short kind) {
  struct _stat64 found;
  return _stat64(path.text(), &found) == 0 && (found.st_mode & _S_IFMT) == kind;
}

bool isdir(const Str& path) { return hasmode(path, _S_IFDIR); }
bool isfile(const Str& path) { return hasmode(path, _S_IFREG); }

Str findhome() { return isdir("/Users/Admin/") ? "/Users/Admin/" : "/"; }

Str findcwd() {
  char* told = _getcwd(nullptr, 0);
  check(told != nullptr);
  Str path = told;
  free(told);
  check(path.len() >= 3);
  check(isalpha(path.at(0)) && path.at(0) < 0x80 && path.at(1) == ':' && path.at(2) == '\\');
  path = path.substr(2);
  uint8_t* bytes = path.own();
  for (int64_t i = 0; i < path.len(); i++) {
    if (bytes[i] == '\\') bytes[i] = '/';
  }
  return path.at(path.len() - 1) == '/' ? path : path + "/";
}

}  // namespace tarn

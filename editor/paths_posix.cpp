// What the file system of a POSIX system says of paths.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

#include "editor/paths.h"
#include "foundation/diag.h"

namespace tarn {

static bool hasmode(const Str& path, mode_t kind) {
  struct stat found;
  return ::stat(path.text(), &found) == 0 && (found.st_mode & S_IFMT) == kind;
}

bool isdir(const Str& path) { return hasmode(path, S_IFDIR); }
bool isfile(const Str& path) { return hasmode(path, S_IFREG); }

bool pathexists(const Str& path) {
  struct stat found;
  return lstat(path.text(), &found) == 0;
}

int64_t filesize(const Str& path) {
  struct stat found;
  return ::stat(path.text(), &found) == 0 ? found.st_size : -1;
}

Str findhome() {
  const char* told = getenv("HOME");
  if (told == nullptr || told[0] != '/' || !isdir(told)) return "/";
  Str path = told;
  return path.at(path.len() - 1) == '/' ? path : path + "/";
}

Str findcwd() {
  char* told = getcwd(nullptr, 0);
  check(told != nullptr);
  Str path = told;
  free(told);
  check(path.at(0) == '/');  // Linux says "(unreachable)..." outside the root
  return path.at(path.len() - 1) == '/' ? path : path + "/";
}

}  // namespace tarn

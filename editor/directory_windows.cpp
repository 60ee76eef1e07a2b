// Directories of Windows, through the C run-time's own emulation of the POSIX calls.
#include <dirent.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "editor/directory.h"

namespace tarn {

// What a path names, as the system's `stat` tells it; 0 for nothing.
static int32_t kindof(const Str& path) {
  struct _stat64 found;
  return _stat64(path.text(), &found) == 0 ? found.st_mode & S_IFMT : 0;
}

bool readdirectory(const Str& path, std::vector<DirectoryEntry>& found) {
  DIR* directory = opendir(path.text());
  if (directory == nullptr) return false;
  while (const dirent* entry = readdir(directory)) {
    if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0) continue;
    int32_t kind = kindof(path + entry->d_name);
    if (kind == S_IFDIR || kind == S_IFREG) found.push_back({entry->d_name, kind == S_IFDIR});
  }
  if (closedir(directory) != 0) {
    perror("closedir");
    exit(1);
  }
  return true;
}

}  // namespace tarn

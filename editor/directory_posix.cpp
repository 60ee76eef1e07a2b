// Directories of a POSIX system.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "editor/directory.h"

namespace tarn {

// What an entry is, by its type where the system tells it, else by looking; 0 for neither kind.
static mode_t entrykind(int directory, const dirent& entry, bool trusted) {
  if (trusted && entry.d_type == DT_DIR) return S_IFDIR;
  if (trusted && entry.d_type == DT_REG) return S_IFREG;
  struct stat found;
  if (fstatat(directory, entry.d_name, &found, 0) != 0) return 0;
  return found.st_mode & S_IFMT;
}

// The next entry, null behind the last one and where no more can be read; errno is 0 at the last.
static const dirent* nextentry(DIR* directory) {
  errno = 0;
  return readdir(directory);
}

bool readdirectory(const Str& path, std::vector<DirectoryEntry>& found) {
  DIR* directory = opendir(path.text());
  if (directory == nullptr) return false;
  // Without the right to search a directory, nothing in it can be looked at, though types are told.
  struct stat self;
  bool trusted = fstatat(dirfd(directory), ".", &self, 0) == 0;
  while (const dirent* entry = nextentry(directory)) {
    if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0) continue;
    mode_t kind = entrykind(dirfd(directory), *entry, trusted);
    if (kind == S_IFDIR || kind == S_IFREG) found.push_back({entry->d_name, kind == S_IFDIR});
  }
  bool whole = errno == 0;
  if (closedir(directory) != 0) {
    perror("closedir");
    exit(1);
  }
  return whole;
}

}  // namespace tarn

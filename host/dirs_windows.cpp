// Directories on Windows: a `dirent` record of our own over the system's file search.
//
//   handle   0 .......... 295   296 .. 303
//            dirent             pointer to the search
//
//   dirent   d_ino 0, d_off 4, d_reclen 8, d_namlen 16, d_type 24, d_name 28 .. 288
#include <windows.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "host/dirs.h"

namespace tarn {

namespace {

constexpr size_t namesize = 261;  // MAX_PATH and a NUL

struct Entry {
  int32_t ino;       // 0
  int32_t off;       // -1
  uint16_t reclen;   // the size of this record
  uint64_t namelen;  // without the NUL
  int32_t type;      // 0
  char name[namesize];
};
static_assert(sizeof(Entry) == 296);

struct Search {
  HANDLE find;
  WIN32_FIND_DATAW found;  // the entry to give next; valid while `waiting`
  bool waiting;
};

struct Dir {
  Entry entry;
  Search* search;
};
static_assert(sizeof(Dir) == 304);

int errorof(DWORD error) {
  switch (error) {
    case ERROR_PATH_NOT_FOUND: return ENOENT;
    case ERROR_ACCESS_DENIED: return EACCES;
    case ERROR_DIRECTORY:
    case ERROR_INVALID_NAME: return ENOTDIR;  // the latter is what wine says
    default: return ENOENT;
  }
}

// The full path with the pattern for all that it holds, from malloc; null if there is none.
wchar_t* pattern(const wchar_t* path) {
  DWORD size = GetFullPathNameW(path, 0, nullptr, nullptr);
  if (size == 0) return nullptr;
  wchar_t* full = static_cast<wchar_t*>(malloc((size + 3) * sizeof(wchar_t)));
  DWORD n = GetFullPathNameW(path, size, full, nullptr);
  if (n == 0) {
    free(full);
    return nullptr;
  }
  wchar_t last = full[n - 1];
  if (last != L'/' && last != L':' && last != L'\\') full[n++] = L'\\';
  full[n++] = L'*';
  full[n] = 0;
  return full;
}

Search* opensearch(const wchar_t* path) {
  wchar_t* all = pattern(path);
  if (all == nullptr) {
    errno = ENOENT;
    return nullptr;
  }
  Search* search = static_cast<Search*>(malloc(sizeof(Search)));
  search->waiting = true;
  search->find =
      FindFirstFileExW(all, FindExInfoStandard, &search->found, FindExSearchNameMatch, nullptr, 0);
  DWORD error = GetLastError();
  free(all);
  if (search->find != INVALID_HANDLE_VALUE) return search;
  free(search);
  errno = errorof(error);
  return nullptr;
}

// Writes the name, or the short one, or "?"; gives its length.
size_t convert(char* out, const WIN32_FIND_DATAW& found) {
  size_t n = wcstombs(out, found.cFileName, namesize);
  if (n >= namesize) n = wcstombs(out, found.cAlternateFileName, namesize);
  if (n == 0 || n >= namesize) {
    strcpy(out, "?");
    n = 1;
  }
  return n;
}

}  // namespace

void* diropen(const char* path) {
  if (path == nullptr || *path == 0) {
    errno = ENOENT;
    return nullptr;
  }
  wchar_t wide[namesize];
  size_t n = mbstowcs(wide, path, namesize);
  if (n >= namesize) return nullptr;
  Search* search = opensearch(wide);
  if (search == nullptr) return nullptr;
  Dir* dir = static_cast<Dir*>(calloc(1, sizeof(Dir)));
  dir->search = search;
  return dir;
}

void* dirread(void* handle) {
  if (handle == nullptr) return nullptr;
  Dir* dir = static_cast<Dir*>(handle);
  Search* search = dir->search;
  if (!search->waiting && FindNextFileW(search->find, &search->found) == 0) return nullptr;
  search->waiting = false;
  dir->entry.ino = 0;
  dir->entry.off = -1;
  dir->entry.reclen = sizeof(Entry);
  dir->entry.type = 0;
  dir->entry.namelen = convert(dir->entry.name, search->found);
  return &dir->entry;
}

int dirclose(void* handle) {
  Dir* dir = static_cast<Dir*>(handle);
  FindClose(dir->search->find);
  free(dir->search);
  free(dir);
  return 0;
}

int64_t dirsize() { return sizeof(Entry); }

}  // namespace tarn

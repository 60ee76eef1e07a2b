// The entries of a directory, as the file prompts list them.
#pragma once

#include <vector>

#include "foundation/str.h"

namespace tarn {

struct DirectoryEntry {
  Str name;          // without the directory, and without "/" at its end
  bool isdirectory;  // else a regular file; links count as what they lead to
};

// Adds the entries of the directory that are directories or regular files, in any order, without
// "." and "..". Entries that cannot be looked at are left out. False if the directory cannot be
// read, at all or to its end; what was found till then is added. A directory that cannot be closed
// ends the process with status 1, after the word "closedir".
bool readdirectory(const Str& path, std::vector<DirectoryEntry>& found);

}  // namespace tarn

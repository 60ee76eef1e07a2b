// Names of files. Buffers are named by absolute paths with forward slashes, such as "/a/b.txt", so
// that a file is open once.
#pragma once

#include "foundation/str.h"

namespace tarn {

// The absolute path of a file. "~/" in front stands for `home`, a relative path starts at
// `cwdpath`, and the segments "", "." and ".." are worked out. Empty where ".." climbs to the root
// itself or above it. A text that is empty or ends in "/" is a program fault.
Str normalise(const Str& text);

// The same for a directory, whose text may be empty or end in "/". The result ends in "/"; the root
// is "/". Empty only above the root.
Str normalisedir(const Str& text);

bool isdir(const Str& path);   // an existing directory
bool isfile(const Str& path);  // an existing regular file

// The directory of a file: the path up to and with its last "/".
Str parentdir(const Str& path);

// The user's home directory, ending in "/"; "/" where there is none.
Str findhome();

// The working directory, ending in "/". One that has no absolute path is a program fault.
Str findcwd();

// A directory's path as Windows tells it, "C:\a\b", as the program has it, "/a/b/". One that does
// not begin with a drive is a failure.
Str drivelesspath(const Str& told);

}  // namespace tarn

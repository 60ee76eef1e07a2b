// Names of files, and what the system says of them. Buffers are named by absolute paths with
// forward slashes, such as "/a/b.txt", so that a file is open once.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// The absolute path of a file. "~/" in front stands for `home`, a relative path starts at
// `cwdpath`, and the segments "", "." and ".." are worked out. Empty where ".." climbs to the root
// itself or above it. A text that is empty or ends in "/" is a program fault.
Str normalise(const Str& text);

// The same for a directory, whose text may be empty or end in "/". The result ends in "/"; the root
// is "/". Empty only above the root.
Str normalisedir(const Str& text);

// What the file system says of a path; links count as what they lead to.
bool isdir(const Str& path);        // it is an existing directory
bool isfile(const Str& path);       // it is an existing regular file
bool pathexists(const Str& path);   // it names anything at all, be it a link that leads nowhere
int64_t filesize(const Str& path);  // in bytes; -1 if it cannot be told

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

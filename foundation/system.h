// The few low-level calls that every folder may need, the same on every platform.
#pragma once

#include <cstdint>
#include <cstdio>

namespace tarn {

// From here on files and streams give and keep bytes as they are, and a wrong argument to the C
// library is an error result. Call it once, before the first file is opened.
void systemstart();

// Writes all n bytes to the descriptor, past all buffering. A short write, an interruption or a
// descriptor that is not ready is gone on from; false only on a real error, or where a write takes
// nothing at all.
bool systemwrite(int fd, const void* bytes, int64_t n);

// Makes a directory; false if that fails, as it does when it exists.
bool systemmakedir(const char* path);

int systemdescriptor(FILE* file);  // of an open file

}  // namespace tarn

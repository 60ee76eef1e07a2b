// Files by descriptor, and what else of files the C standard leaves to the platform. Each has the
// meaning of the C function beside it; what programs hand in is passed on untested.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace tarn {

FILE* fileopened(int fd, const char* mode);                // fdopen
int filedescriptor(FILE* file);                            // fileno
char* filetempname(char* out);                             // tmpnam
int64_t fileread(int fd, void* to, size_t n);              // read
int64_t filewrite(int fd, const void* from, size_t n);     // write

}  // namespace tarn

// Directories as programs of the language read them: by the address of a handle, and of a `dirent`
// record for each entry. A null answer is a failure, with errno set, or the end.
#pragma once

#include <cstdint>

namespace tarn {

void* diropen(const char* path);  // null or empty: no such file
void* dirread(void* dir);         // the next entry; null at the end, and for a null handle
int dirclose(void* dir);          // 0
int64_t dirsize();                // of a `dirent` record

}  // namespace tarn

// A fresh directory below the one for temporary files.
#include "fuzz/directory.h"

#include <stdlib.h>

#include <cstdio>
#include <filesystem>

#include "foundation/diag.h"

namespace tarn {

static std::string makedirectory() {
  char path[] = "/tmp/tarnfuzzXXXXXX";
  check(mkdtemp(path) != nullptr);
  atexit([] {
    std::error_code error;
    std::filesystem::remove_all(targetdirectory(), error);
  });
  return path;
}

const std::string& targetdirectory() {
  static const std::string& path = *new std::string(makedirectory());
  return path;
}

void cleardirectory() {
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(targetdirectory(), error)) {
    std::filesystem::remove_all(entry.path(), error);
  }
}

void fillfile(const std::string& name, const std::string& bytes) {
  FILE* file = fopen((targetdirectory() + "/" + name).c_str(), "w");
  check(file != nullptr);
  check(fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size());
  check(fclose(file) == 0);
}

}  // namespace tarn

// corpus: from the directory of files that libFuzzer works on to the one file that is kept, with an
// input a line, and back.
//
//   corpus pack DIRECTORY FILE.inputs
//   corpus unpack FILE.inputs DIRECTORY
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/support/notation.h"

namespace tarn {

namespace {

std::string wholefile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The shortest first.
bool isbefore(const std::string& a, const std::string& b) {
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

int pack(const char* directory, const char* path) {
  std::vector<std::string> inputs;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    inputs.push_back(wholefile(entry.path()));
  }
  std::sort(inputs.begin(), inputs.end(), isbefore);
  std::ofstream file(path, std::ios::binary);
  for (const std::string& input : inputs) file << inquotes(input) << "\n";
  return file.flush() ? 0 : 1;
}

int unpack(const char* path, const std::string& directory) {
  std::ifstream file(path, std::ios::binary);
  std::filesystem::create_directories(directory);
  std::string error;
  int number = 0;
  for (std::string record; std::getline(file, record); number++) {
    std::ofstream out(directory + "/" + std::to_string(number), std::ios::binary);
    out << readtext(record, error);
  }
  if (!error.empty()) fprintf(stderr, "%s: %s\n", path, error.c_str());
  return error.empty() ? 0 : 1;
}

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  std::string command = argc == 4 ? argv[1] : "";
  if (command == "pack") return tarn::pack(argv[2], argv[3]);
  if (command == "unpack") return tarn::unpack(argv[2], argv[3]);
  fputs("usage: corpus pack DIRECTORY FILE.inputs\n", stderr);
  fputs("       corpus unpack FILE.inputs DIRECTORY\n", stderr);
  return 2;
}

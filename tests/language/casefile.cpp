// The forms of the data files.
#include "tests/language/casefile.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tarn {

namespace {

std::string readall(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    fprintf(stderr, "Cannot open file: %s\n", path.c_str());
    exit(1);
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

// The bytes that a piece of a line stands for: «0A0D» are two of them.
std::string unescaped(const std::string& text) {
  const std::string open = "\u00ab";
  const std::string close = "\u00bb";
  std::string bytes;
  size_t from = 0;
  for (size_t at; (at = text.find(open, from)) != text.npos;) {
    bytes.append(text, from, at - from);
    size_t end = text.find(close, at);
    for (size_t i = at + open.size(); i + 2 <= end; i += 2) {
      bytes += static_cast<char>(strtol(text.substr(i, 2).c_str(), nullptr, 16));
    }
    from = end + close.size();
  }
  return bytes.append(text, from);
}

std::string place(const std::string& path, int line) { return path + ":" + std::to_string(line); }

void readcases(const std::string& path, std::vector<Case>& cases) {
  std::istringstream lines(readall(path));
  std::string line;
  for (int n = 1; std::getline(lines, line); n++) {
    if (line.empty() || line.starts_with("# ")) continue;
    size_t tab = line.find('\t');
    std::string wanted = tab == line.npos ? "(no tab in this line)" : line.substr(tab + 1);
    cases.push_back({place(path, n), unescaped(line.substr(0, tab)), unescaped(wanted)});
  }
}

void readpair(const std::string& path, std::vector<Case>& cases) {
  std::string wanted = readall(path.substr(0, path.size() - 5) + ".want");
  if (wanted.ends_with('\n')) wanted.pop_back();
  cases.push_back({path, readall(path), wanted});
}

void readdocument(const std::string& path, std::vector<Case>& cases) {
  std::istringstream lines(readall(path));
  std::string line;
  std::string program;
  bool inside = false;
  for (int n = 1; std::getline(lines, line); n++) {
    if (line.starts_with("```")) {
      inside = line == "```tarn";
      program.clear();
    } else if (inside && line.starts_with("=> ")) {
      cases.push_back({place(path, n), program, line.substr(3)});
      program.clear();
    } else if (inside) {
      program += line + "\n";
    }
  }
}

}  // namespace

std::vector<Case> readcasefile(const std::string& path) {
  std::vector<Case> cases;
  if (path.ends_with(".tarn")) {
    readpair(path, cases);
  } else if (path.ends_with(".md")) {
    readdocument(path, cases);
  } else {
    readcases(path, cases);
  }
  return cases;
}

}  // namespace tarn

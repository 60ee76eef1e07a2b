// languagecases: runs programs of the language from data files and compares what they show. The
// README beside it has the forms of the files.
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/bigstack.h"
#include "foundation/str.h"
#include "frontend/driver.h"
#include "graph/cell.h"
#include "host/start.h"

namespace tarn {

namespace {

struct Case {
  std::string where;  // file and line
  std::string program;
  std::string wanted;
};

std::string current;  // where the case stands that is being run

void tellcurrent(int) { fprintf(stderr, "%s: died\n", current.c_str()); }

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

std::vector<Case> readfile(const std::string& path) {
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

std::string evaluated(const std::string& program) {
  Str text = evaluate(Str(program.data(), static_cast<int64_t>(program.size())), 0).shown;
  return std::string(text.text(), static_cast<size_t>(text.len()));
}

// Whether memory that is lost from here on counts as a leak.
void leakcheck([[maybe_unused]] bool on) {
#ifdef __SANITIZE_ADDRESS__
  if (on) __lsan_enable();
  if (!on) __lsan_disable();
#endif
}

// The builtin `leak` keeps its argument alive for good; no other program may lose a cell.
bool runcase(const Case& c) {
  current = c.where;
  bool leaks = c.program.find("leak") != c.program.npos;
  int64_t before = cellcounts().alive;
  if (leaks) leakcheck(false);
  std::string shown = evaluated(c.program);
  if (leaks) leakcheck(true);
  int64_t after = leaks ? before : cellcounts().alive;
  if (shown == c.wanted && before == after) return true;
  printf("%s: %s\n  wanted %s\n  shown  %s\n", c.where.c_str(), c.program.c_str(), c.wanted.c_str(),
         shown.c_str());
  if (before != after) printf("  cells  %+lld\n", static_cast<long long>(after - before));
  return false;
}

struct Job {
  std::vector<std::string> paths;
  int failed;
};

void work(void* argument) {
  Job& job = *static_cast<Job*>(argument);
  hoststart();
  evaluate("cray", 0);  // what is made once for the process does not count
  int run = 0;
  for (const std::string& path : job.paths) {
    for (const Case& c : readfile(path)) {
      bool good = runcase(c) && runcase(c);
      job.failed += !good;
      run++;
    }
  }
  printf("%d cases, %d failed\n", run, job.failed);
  if (run == 0) job.failed = 1;
}

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  signal(SIGABRT, tarn::tellcurrent);
  tarn::Job job = {{argv + 1, argv + argc}, 0};
  tarn::runonbigstack(tarn::work, &job);
  return job.failed != 0;
}

// languagecases: evaluates programs of the language from data files and compares what they show.
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "foundation/bigstack.h"
#include "foundation/str.h"
#include "frontend/driver.h"
#include "graph/cell.h"
#include "host/start.h"
#include "tests/language/casefile.h"

namespace tarn {

namespace {

std::string current;  // where the case stands that is being run

void tellcurrent(int) { fprintf(stderr, "%s: died\n", current.c_str()); }

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
    for (const Case& c : readcasefile(path)) {
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

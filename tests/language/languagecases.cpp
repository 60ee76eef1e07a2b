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
#include "foundation/checking.h"
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

bool kept(const char* what, int64_t before, int64_t after) {
  if (before != after) printf("  %s %+lld\n", what, static_cast<long long>(after - before));
  return before == after;
}

// The builtin `leak` keeps its argument alive for good; no other program may lose a cell. Nor a
// Str, but that the first run leaves a record of each name that no program before had used.
bool runcase(const Case& c, bool again) {
  current = c.where;
  bool leaks = c.program.find("leak") != c.program.npos;
  int64_t cells = cellcounts().alive;
  int64_t strs = strcounts().alive;
  if (leaks) leakcheck(false);
  std::string shown = evaluated(c.program);
  if (leaks) leakcheck(true);
  if constexpr (checking) checkdead();
  bool good = shown == c.wanted;
  if (!leaks) good = kept("cells", cells, cellcounts().alive) && good;
  if (again) good = kept("Strs ", strs, strcounts().alive) && good;
  if (good) return true;
  printf("%s: %s\n  wanted %s\n  shown  %s\n", c.where.c_str(), c.program.c_str(), c.wanted.c_str(),
         shown.c_str());
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
      bool good = runcase(c, false) && runcase(c, true);
      job.failed += !good;
      run++;
    }
  }
  printf("%d cases, %d failed\n", run, job.failed);
  if constexpr (checking) {
    printf("%lld cells and %lld Strs lived and died\n", static_cast<long long>(cellcounts().made),
           static_cast<long long>(strcounts().made));
  }
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

// languagestorm: throws made-up programs at the language, without end or as many as it is told,
// from a seed, so that a run can be repeated.
//
//   languagestorm [programs [seed]]
//   languagestorm file ...             the files instead, as they are
//
// The program under way is on standard error when the process ends by a signal.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "foundation/bigstack.h"
#include "fuzz/language.h"

namespace tarn {

namespace {

uint64_t state = 1;

uint64_t next() {
  state ^= state << 13;
  state ^= state >> 7;
  state ^= state << 17;
  return state >> 11;
}

std::string current;

void tellcurrent(int) { fprintf(stderr, "died in: %s\n", current.c_str()); }

void throwone(const std::string& text) {
  current = text;
  fuzzprogram(text);
}

struct Job {
  int64_t programs;
  std::vector<std::string> files;
};

void storm(void* argument) {
  const Job& job = *static_cast<Job*>(argument);
  fuzzinstall();
  for (const std::string& path : job.files) {
    std::ifstream file(path, std::ios::binary);
    throwone({std::istreambuf_iterator<char>(file), {}});
  }
  for (int64_t n = job.programs; n-- > 0;) throwone(fuzztext(next));
}

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  tarn::Job job = {INT64_MAX, {}};
  if (argc > 1 && atoll(argv[1]) == 0) {
    job = {0, {argv + 1, argv + argc}};
  } else if (argc > 1) {
    job.programs = atoll(argv[1]);
  }
  tarn::state = (argc > 2 ? strtoull(argv[2], nullptr, 10) : 1) * 0x9e3779b97f4a7c15 + 1;
  signal(SIGABRT, tarn::tellcurrent);
  signal(SIGTERM, [](int) { tarn::tellcurrent(0); _Exit(1); });
  tarn::runonbigstack(tarn::storm, &job);
}

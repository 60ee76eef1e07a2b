// NAMEstorm: throws inputs at a target.
//
//   NAMEstorm [inputs [seed]]    made-up ones, without end or as many as it is told, from a seed,
//                                so that a run can be repeated
//   NAMEstorm FILE.inputs ...    those kept in the files, one a line, in quotes
//   NAMEstorm FILE ...           the files, each an input as it is
//
// With `--tell FILE` in front of these, each input and what came of it are written to FILE: two
// builds must tell the same.
//
// The input under way is on standard error when the process dies.
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "foundation/bigstack.h"
#include "foundation/checking.h"
#include "foundation/diag.h"
#include "foundation/str.h"
#include "fuzz/target.h"
#include "tests/support/notation.h"
#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/common_interface_defs.h>
#endif

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

// Past the streams of C, which a target may have taken away.
void tellcurrent() { errstream << "died of: " << inquotes(current).c_str() << "\n"; }

FILE* told;  // null: nothing is told

void throwone(const std::string& input) {
  current = input;
  std::string outcome = targetrun(input);
  if constexpr (checking) checkdead();
  if (told == nullptr) return;
  fprintf(told, "%s\n=> %s\n", inquotes(input).c_str(), inquotes(outcome).c_str());
}

void throwkept(std::ifstream& file, const std::string& path) {
  std::string input, error;
  for (std::string record; std::getline(file, record);) {
    input = readtext(record, error);
    if (!error.empty()) errstream << path.c_str() << ": " << error.c_str() << "\n";
    check(error.empty());
    throwone(input);
  }
}

void throwfile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  check(file.is_open());
  if (path.ends_with(".inputs")) return throwkept(file, path);
  throwone({std::istreambuf_iterator<char>(file), {}});
}

struct Job {
  int64_t made;
  std::vector<std::string> files;
};

void storm(void* argument) {
  const Job& job = *static_cast<Job*>(argument);
  targetstart();
  for (const std::string& path : job.files) throwfile(path);
  for (int64_t n = job.made; n-- > 0;) throwone(targetmade(next));
  if (told != nullptr) check(fclose(told) == 0);
}

void tellatdeath() {
#ifdef __SANITIZE_ADDRESS__
  __sanitizer_set_death_callback(tellcurrent);
#endif
  signal(SIGABRT, [](int) { tellcurrent(); });
  signal(SIGTERM, [](int) { tellcurrent(); _Exit(1); });
}

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  if (argc > 2 && strcmp(argv[1], "--tell") == 0) {
    tarn::told = fopen(argv[2], "wb");
    check(tarn::told != nullptr);
    argv += 2;
    argc -= 2;
  }
  tarn::Job job = {INT64_MAX, {}};
  if (argc > 1 && atoll(argv[1]) == 0) {
    job = {0, {argv + 1, argv + argc}};
  } else if (argc > 1) {
    job.made = atoll(argv[1]);
  }
  tarn::state = (argc > 2 ? strtoull(argv[2], nullptr, 10) : 1) * 0x9e3779b97f4a7c15 + 1;
  tarn::tellatdeath();
  tarn::runonbigstack(tarn::storm, &job);
}

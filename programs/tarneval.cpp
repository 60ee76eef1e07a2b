// tarneval: evaluates a file, or standard input, as Escape-e does, for scripts, tests and
// benchmarks. The value goes to standard output, status 0; the message of a report to standard
// error, status 1.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "foundation/bigstack.h"
#include "foundation/str.h"
#include "frontend/driver.h"
#include "graph/cell.h"
#include "graph/reduce.h"
#include "host/start.h"

namespace tarn {

namespace {

struct Command {
  bool stats;
  const char* file;  // null: standard input
};

[[noreturn]] void usage() {
  fputs("usage: tarneval [--stats] [file]\n", stderr);
  exit(2);
}

Command readcommand(int argc, char** argv) {
  Command command = {false, nullptr};
  for (int i = 1; i < argc; i++) {
    if (strcmp(argv[i], "--stats") == 0) {
      command.stats = true;
    } else if (command.file == nullptr && argv[i][0] != '-') {
      command.file = argv[i];
    } else {
      usage();
    }
  }
  return command;
}

// Ends the process over a file that cannot be used.
[[noreturn]] void giveup(const char* words, const char* path) {
  fprintf(stderr, "%s: %s\n", words, path);
  exit(1);
}

Str readall(const char* path) {
  FILE* file = path == nullptr ? stdin : fopen(path, "rb");
  if (file == nullptr) giveup("Cannot open file", path);
  std::string text;
  char piece[65536];
  for (size_t n; (n = fread(piece, 1, sizeof piece, file)) > 0;) text.append(piece, n);
  if (ferror(file)) giveup("Cannot read file", path == nullptr ? "standard input" : path);
  if (file != stdin) fclose(file);
  return Str(text.data(), static_cast<int64_t>(text.size()));
}

void putline(FILE* out, const Str& text) {
  fwrite(text.bytes(), 1, static_cast<size_t>(text.len()), out);
  fputc('\n', out);
  if (fflush(out) != 0 || ferror(out)) giveup("Cannot write file", "standard output");
}

void putstats(double seconds) {
  CellCounts cells = cellcounts();
  fprintf(stderr, "steps %lld\ncells made %lld\npeak cells %lld\nseconds %.6f\n",
          static_cast<long long>(reducesteps()), static_cast<long long>(cells.made),
          static_cast<long long>(cells.peak), seconds);
}

int work(const Command& command) {
  hoststart();
  Str text = readall(command.file);
  auto start = std::chrono::steady_clock::now();
  Evaluation evaluation = evaluate(text, 0);
  std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  fflush(stdout);  // what the program itself printed comes first
  putline(evaluation.ok ? stdout : stderr, evaluation.shown);
  if (command.stats) putstats(took.count());
  return evaluation.ok ? 0 : 1;
}

struct Job {
  Command command;
  int status;
};

}  // namespace

}  // namespace tarn

int main(int argc, char** argv) {
  tarn::Job job = {tarn::readcommand(argc, argv), 0};
  tarn::runonbigstack(
      [](void* argument) {
        tarn::Job* j = static_cast<tarn::Job*>(argument);
        j->status = tarn::work(j->command);
      },
      &job);
  return job.status;
}

// tarnevalcases COMMAND... -- FILES...: gives the programs of data files to tarneval, a process
// each, and compares what it prints and its status. The command is tarneval itself, or what starts
// it.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "tests/language/casefile.h"

namespace tarn {

namespace {

struct Ended {
  std::string out, err;  // descriptors 1 and 2
  int status;            // -1: by a signal
};

FILE* scratch() {
  FILE* file = tmpfile();
  if (file != nullptr) return file;
  perror("tmpfile");
  exit(1);
}

std::string taken(FILE* file) {
  std::string text;
  char piece[65536];
  rewind(file);
  for (size_t n; (n = fread(piece, 1, sizeof piece, file)) > 0;) text.append(piece, n);
  fclose(file);
  return text;
}

[[noreturn]] void become(char** command, FILE* in, FILE* out, FILE* err) {
  dup2(fileno(in), 0);
  dup2(fileno(out), 1);
  dup2(fileno(err), 2);
  execvp(command[0], command);
  perror(command[0]);
  _exit(127);
}

Ended evaluated(char** command, const std::string& program) {
  FILE *in = scratch(), *out = scratch(), *err = scratch();
  fwrite(program.data(), 1, program.size(), in);
  rewind(in);
  pid_t child = fork();
  if (child == 0) become(command, in, out, err);
  int status = 0;
  waitpid(child, &status, 0);
  fclose(in);
  return {taken(out), taken(err), WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

// Whether a text ends in these lines; what the program itself prints may stand before them.
bool endsinlines(const std::string& text, const std::string& lines) {
  if (!text.ends_with(lines + "\n")) return false;
  size_t start = text.size() - lines.size() - 1;
  return start == 0 || text[start - 1] == '\n';
}

// A value goes to standard output, a message to standard error.
bool asexpected(const Ended& ended, const std::string& wanted) {
  if (ended.status == 0) return endsinlines(ended.out, wanted);
  return ended.status == 1 && ended.out.empty() && endsinlines(ended.err, wanted);
}

bool runcase(char** command, const Case& c) {
  Ended ended = evaluated(command, c.program);
  if (asexpected(ended, c.wanted)) return true;
  printf("%s: %s\n  wanted %s\n  status %d\n  out    %s\n  err    %s\n", c.where.c_str(),
         c.program.c_str(), c.wanted.c_str(), ended.status, ended.out.c_str(), ended.err.c_str());
  return false;
}

int runfiles(char** command, char** paths) {
  int run = 0, failed = 0;
  for (; *paths != nullptr; paths++) {
    for (const Case& c : readcasefile(*paths)) {
      failed += !runcase(command, c);
      run++;
    }
  }
  printf("%d cases, %d failed\n", run, failed);
  return run == 0 || failed != 0;
}

}  // namespace

}  // namespace tarn

int main(int, char** argv) {
  char** border = argv + 1;
  while (*border != nullptr && strcmp(*border, "--") != 0) border++;
  if (border == argv + 1 || *border == nullptr) {
    fputs("usage: tarnevalcases COMMAND... -- FILES...\n", stderr);
    return 2;
  }
  *border = nullptr;
  return tarn::runfiles(argv + 1, border + 1);
}

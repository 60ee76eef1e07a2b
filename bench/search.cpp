// searchbench TARN: a file of 100 MB, a million lines. How long until a text that stands only at
// its end is found, until a word has been replaced in every line, until that is undone, and until
// the text is saved; beside other editors, and beside what the memory itself takes for as much.
// Behind each time stands the most memory held till then, as a multiple of the file.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/session.h"

namespace {

using namespace tarn;

constexpr int64_t lines = 1000000;
constexpr int64_t linebytes = 100;
constexpr double bytes = double{lines} * linebytes;

std::string textline(int64_t number) {
  std::string text = std::to_string(number);
  text.resize(10, ' ');
  text += "the quick brown fox jumps over the lazy dog and then looks for another one";
  text.resize(linebytes - 1, '.');
  return text + "\n";
}

std::string maketext() {
  std::string text;
  text.reserve(lines * linebytes);
  for (int64_t i = 0; i < lines; i++) text += textline(i);
  text.replace(text.size() - 20, 5, "zebra");
  return text;
}

// What an editor is asked to do: each job is the keys that lead up to it and the one that starts
// it.
struct Job {
  std::string before;
  std::string start;
};

struct Editor {
  std::string name;
  std::vector<std::string> argv;
  std::vector<Job> jobs;  // find, replace, undo, save
};

std::vector<Editor> editors(const std::string& tarn) {
  return {
      {"tarn", {tarn}, {{"", "\x1bszebra"}, {"\x1bxfox\twolf", "\t"}, {"", "\x1f"}, {"X", "\x17"}}},
      {"vim",
       {"vim", "-u", "NONE", "-n"},
       {{"/zebra", "\r"}, {":%s/fox/wolf/g", "\r"}, {"", "u"}, {"iX\x1b:w!", "\r"}}},
      {"nano",
       {"nano", "-I"},
       {{"\x17zebra", "\r"}, {"\x1c" "fox\rwolf\r", "a"}, {"", "\x1bu"}, {"X\x0f", "\r"}}},
  };
}

double peak(const Session& session) {
  std::ifstream status("/proc/" + std::to_string(session.pid) + "/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("VmHWM:", 0) == 0) return static_cast<double>(atoll(line.c_str() + 6)) * 1024;
  return 0;
}

void measure(const Editor& editor, const std::string& path) {
  Launch launch;
  launch.argv = editor.argv;
  launch.argv.push_back(path);
  Session session(launch);
  session.settle(120000);
  printf("%-8s", editor.name.c_str());
  for (const Job& job : editor.jobs) {
    for (char key : job.before) {
      session.keys(std::string(1, key));
      session.settle(120000);
    }
    int64_t start = Session::nanoseconds();
    session.keys(job.start);
    if (!session.settle(120000) || session.ended) break;
    printf("%10.1f%6.1f", static_cast<double>(session.lastoutput - start) / 1e6,
           peak(session) / bytes);
    fflush(stdout);
  }
  printf("\n");
}

template <class Work>
double timed(Work work) {
  int64_t start = Session::nanoseconds();
  work();
  return static_cast<double>(Session::nanoseconds() - start) / 1e6;
}

// Finding by memmem, and one copy into fresh memory: what no editor can go below.
void measurememory(const std::string& text) {
  const void* found = nullptr;
  double find = timed([&] { found = memmem(text.data(), text.size(), "zebra", 5); });
  std::string copy;
  double moved = timed([&] { copy = text; });
  bool right = found != nullptr && copy.size() == text.size();
  printf("%-8s", right ? "memory" : "wrong");
  for (double took : {find, moved, moved, moved}) printf("%10.1f%6s", took, "");
  printf("\n");
}

bool installed(const Editor& editor) {
  return system(("command -v " + editor.argv[0] + " >/dev/null").c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: searchbench TARN\n");
    return 2;
  }
  char name[] = "/tmp/tarnXXXXXX";
  if (mkdtemp(name) == nullptr) return 2;
  std::string path = std::string(name) + "/text";
  std::string text = maketext();
  printf("100 MB, a million lines: ms, and the most memory so far as a multiple of the file\n");
  printf("%-8s%10s%6s%10s%6s%10s%6s%10s%6s\n", "", "find", "mem", "replace", "mem", "undo", "mem",
         "save", "mem");
  measurememory(text);
  for (const Editor& editor : editors(std::filesystem::absolute(argv[1]))) {
    if (!installed(editor)) continue;
    std::ofstream(path, std::ios::binary) << text;
    measure(editor, path);
  }
  std::error_code error;
  std::filesystem::remove_all(name, error);
  return 0;
}

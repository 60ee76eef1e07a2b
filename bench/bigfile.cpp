// bigfilebench TARN: a file of one byte less than the largest text, 1 GiB. How long until its first
// screen stands, beside a bare loop that reads the file into fresh memory and beside other editors;
// the memory it takes to open and to save; and that an edit in its middle is saved right to the
// byte. Ends non-zero if the file is wrong or a gate is missed.
#include <fcntl.h>
#include <unistd.h>

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

constexpr int64_t bytes = (int64_t{1} << 30) - 1;
constexpr int rounds = 3;

// Line by line the file: 64 bytes each, with its number in front.
std::string block(int64_t line) {
  char text[80];
  snprintf(text, sizeof text, "%-12lldThe quick brown fox jumps over the lazy dog, again.\n",
           static_cast<long long>(line));
  return std::string(text, 63) + "\n";
}

void makefile(const std::string& path) {
  std::ofstream file(path, std::ios::binary);
  for (int64_t line = 0; line < (bytes + 1) / 64; line++) file << block(line);
  file.close();
  std::filesystem::resize_file(path, static_cast<uintmax_t>(bytes));
}

// ---- Times

double bareread(const std::string& path) {
  int64_t start = Session::nanoseconds();
  int fd = open(path.c_str(), O_RDONLY);
  char* memory = static_cast<char*>(malloc(bytes));
  if (fd < 0 || memory == nullptr) exit(1);
  for (int64_t done = 0; done < bytes;) {
    ssize_t n = read(fd, memory + done, static_cast<size_t>(bytes - done));
    if (n <= 0) exit(1);
    done += n;
  }
  double took = static_cast<double>(Session::nanoseconds() - start) / 1e9;
  free(memory);
  close(fd);
  return took;
}

Launch launchof(const std::vector<std::string>& argv, const std::string& path) {
  Launch launch;
  launch.argv = argv;
  launch.argv.push_back(path);
  return launch;
}

// Until the program rests behind its first screen.
double firstscreen(const std::vector<std::string>& argv, const std::string& path) {
  int64_t start = Session::nanoseconds();
  Session session(launchof(argv, path));
  if (!session.settle(120000) || session.ended) return -1;
  return static_cast<double>(session.lastoutput - start) / 1e9;
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

// ---- Memory, and the edit

// The most that the process has had resident, as a multiple of the file.
double peak(const Session& session) {
  std::ifstream status("/proc/" + std::to_string(session.pid) + "/status");
  std::string line;
  while (std::getline(status, line))
    if (line.rfind("VmHWM:", 0) == 0)
      return static_cast<double>(atoll(line.c_str() + 6)) * 1024 / static_cast<double>(bytes);
  return 0;
}

bool holds(const std::string& path, int64_t typedat) {
  FILE* file = fopen(path.c_str(), "r");
  std::vector<char> piece(64);
  bool right = file != nullptr && std::filesystem::file_size(path) == uintmax_t{bytes} + 1;
  for (int64_t line = 0; right && line < (bytes + 1) / 64; line++) {
    std::string wanted = block(line);
    if (line * 64 <= typedat && typedat < line * 64 + 64)
      wanted.insert(static_cast<size_t>(typedat % 64), "X");
    if (line == (bytes + 1) / 64 - 1) wanted.pop_back();
    piece.resize(wanted.size());
    right = fread(piece.data(), 1, piece.size(), file) == piece.size() &&
            memcmp(piece.data(), wanted.data(), piece.size()) == 0;
  }
  if (file != nullptr) fclose(file);
  return right;
}

// Types a byte at the end, the start and the middle, undoes all but the last, and saves.
bool editandsave(const std::string& tarn, const std::string& path, double& opened, double& saved) {
  Session session(launchof({tarn}, path));
  if (!session.settle(120000)) return false;
  opened = peak(session);
  constexpr int64_t lines = (bytes + 1) / 64, middle = lines / 2 * 64;
  std::string end = "\x1b" "b~~~~~\r", start = "\x1bl1\r", undo = "\x1f";
  session.keys(end + "X" + undo + start + "X" + undo);
  session.settle(120000);
  session.keys("\x1bl" + std::to_string(lines / 2 + 1) + "\rX\x17");
  if (!session.settle(120000) || session.ended) return false;
  saved = peak(session);
  return holds(path, middle);
}

bool gate(const char* what, double figure, double limit) {
  bool met = figure <= limit;
  printf("%-44s%8.2f   at most %.1f: %s\n", what, figure, limit, met ? "met" : "MISSED");
  return met;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    fprintf(stderr, "usage: bigfilebench TARN\n");
    return 2;
  }
  char name[] = "/tmp/tarnXXXXXX";
  if (mkdtemp(name) == nullptr) return 2;
  std::string path = std::string(name) + "/big", tarn = std::filesystem::absolute(argv[1]);
  makefile(path);
  bareread(path);  // into the system's cache
  std::vector<double> bare, screen;
  for (int i = 0; i < rounds; i++) {
    bare.push_back(bareread(path));
    screen.push_back(firstscreen({tarn}, path));
  }
  printf("Start to the first screen of 1 GiB, s\n");
  printf("%-6s%8.2f\n%-6s%8.2f\n", "bare", median(bare), "tarn", median(screen));
  const std::vector<std::string> peers[] = {{"mg", "-n"}, {"vim", "-u", "NONE", "-n"}};
  for (const std::vector<std::string>& peer : peers) {
    if (system(("command -v " + peer[0] + " >/dev/null").c_str()) != 0) continue;
    printf("%-6s%8.2f\n", peer[0].c_str(), firstscreen(peer, path));
    fflush(stdout);
  }
  double opened = 0, saved = 0;
  bool right = editandsave(tarn, path, opened, saved);
  printf("a byte typed in the middle, and saved: the file is %s\n", right ? "right" : "WRONG");
  right &= gate("first screen, as a multiple of the bare read", median(screen) / median(bare), 1.3);
  right &= gate("memory once opened, as a multiple of the file", opened, 1.1);
  right &= gate("memory at most while saving", saved, 2.2);
  std::error_code error;
  std::filesystem::remove_all(name, error);
  return right ? 0 : 1;
}

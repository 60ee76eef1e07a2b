// keystorm PROGRAM [KEYS [SEED]]: throws random keys at the editor, with resizes between them. It
// must live, send nothing to the terminal but its own sequences, and show at the end of each bout
// what painting from nothing shows. Keys go in bouts of 2000, each with a seed of its own in a
// fresh directory, so that a failure can be thrown again by itself.
//
// Left out are the keys that would reach beyond that directory or never come back: C-c; C-w and
// "w", which could save over a file of the system; and ESC e, since a random program may run for
// ever. Saving and evaluating are done by deliberate strokes instead.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "tests/support/notation.h"
#include "tests/support/picture.h"
#include "tests/support/session.h"
#include "tests/support/strictoutput.h"

namespace {

using namespace tarn;

constexpr int boutkeys = 2000;

struct Storm {
  std::mt19937_64 random;
  std::string directory;  // deep enough that no prompt climbs out of it by chance
  std::string sent;       // all keys of the bout
  std::string fault;
};

int below(Storm& storm, size_t n) { return static_cast<int>(storm.random() % n); }

std::string onebyte(int value) { return std::string(1, static_cast<char>(value)); }

std::string pick(Storm& storm, const std::string& from) {
  return onebyte(from[static_cast<size_t>(below(storm, from.size()))]);
}

// ---- Keys, by the share of each sort

std::string printable(Storm& storm) { return onebyte(0x20 + below(storm, 95)); }
std::string control(Storm& storm) { return onebyte(below(storm, 32)); }
std::string anybyte(Storm& storm) { return onebyte(below(storm, 256)); }
std::string meta(Storm& storm) { return "\x1b" + pick(storm, "abcdfghijklmnopqrsutvzxyabghirysx"); }
std::string arrow(Storm& storm) { return "\x1b[" + pick(storm, "ABCD"); }

// Those that move and change much.
std::string busy(Storm& storm) {
  return pick(storm, "\x01\x02\x04\x05\x06\x0b\x0c\x0e\x10\x15\x1c\x1f\x12\x7f\r");
}

std::string functionkey(Storm& storm) {
  static const std::string keys[] = {"\x1b[H",  "\x1b[F",  "\x1b[5~", "\x1b[6~",
                                     "\x1b[2~", "\x1b[3~", "\x1bOP",  "\x1bOA",
                                     "\x1b[[A", "\x1b\x1b[B", "\x1b[1;5C", "\x1b[15~"};
  return keys[below(storm, 12)];
}

std::string wide(Storm& storm) {
  static const std::string keys[] = {"\xc3\xa4", "\xe2\x82\xac", "\xf0\x9f\x98\x80", "\xc3",
                                     "\x80"};
  return keys[below(storm, 5)];
}

struct Share {
  int percent;
  std::string (*key)(Storm&);
};

const Share shares[] = {{50, printable}, {18, busy}, {10, control}, {10, meta},
                        {5, arrow},      {3, functionkey}, {2, wide}, {2, anybyte}};

std::string onekey(Storm& storm) {
  int n = below(storm, 100);
  for (const Share& share : shares)
    if ((n -= share.percent) < 0) return share.key(storm);
  return "x";
}

bool allowed(const std::string& before, char c) {
  if (c == 3 || c == 0x17 || c == 'w') return false;
  return c != 'e' || before.empty() || before.back() != '\x1b';
}

void addkey(Storm& storm, std::string& burst) {
  for (char c : onekey(storm))
    if (allowed(burst.empty() ? storm.sent : burst, c)) burst += c;
}

// To the buffer of the bout's own file, whatever was going on, and there a save, or one under
// another name.
std::string save(Storm& storm) {
  std::string path = storm.directory + "/source", name;
  for (size_t end = path.size(); end > 0;) {
    size_t slash = path.rfind('/', end - 1);
    name += (name.empty() ? "" : "/") + path.substr(slash + 1, end - slash - 1);
    end = slash;
  }
  std::string strokes = "\x07\x07\t" + name + "\r";
  if (below(storm, 2) == 0) return strokes + "\x17";
  return strokes + "\x1bw" + pick(storm, "abcde") + "\r";
}

// A program that is known to end, in a buffer of its own, and a look along its result.
std::string evaluate(Storm& storm) {
  static const std::string programs[] = {"1+2", "f 3,f\\x\\x*x", "(1", "[abc]+[def]", "2^1000"};
  return "\x07\x07\x1by\x1bn" + programs[below(storm, 5)] + "\x1b" "e\x14\x14\x08\x1b" "c";
}

// ---- A bout

void makefiles(const Storm& storm) {
  std::filesystem::create_directories(storm.directory + "/sub");
  std::ofstream source(storm.directory + "/source", std::ios::binary);
  for (int line = 0; line < 8; line++) {
    for (int i = 0; i < 32; i++) source << static_cast<char>(line * 32 + i);
    source << "\n(a + b[c]) \\ x, f \\ y\n";
  }
  std::ofstream lines(storm.directory + "/lines");
  for (int line = 0; line < 200; line++) lines << "line " << line << "\n";
  std::ofstream wide(storm.directory + "/wide");
  wide << std::string(3000, 'm') << "\n\n" << std::string(80, 'n');
  std::ofstream(storm.directory + "/empty");
}

struct Bout {
  Session session;
  StrictOutput strict;
  size_t checked = 0;
};

void look(Storm& storm, Bout& bout) {
  if (!bout.session.settle()) storm.fault = "it does not come to rest";
  const std::string& log = bout.session.terminal.log;
  readstrictly(bout.strict, log.data() + bout.checked, log.size() - bout.checked);
  bout.checked = log.size();
  if (!bout.strict.fault.empty()) storm.fault = "not for a terminal: " + bout.strict.fault;
  if (bout.session.ended)
    storm.fault = "it ended with status " + std::to_string(bout.session.status);
}

void throwkeys(Storm& storm, Bout& bout, const std::string& burst) {
  storm.sent += burst;
  bout.session.keys(burst);
}

// Some keys in one piece, and sometimes a resize before they can all be answered.
int oneburst(Storm& storm, Bout& bout) {
  int keys = 1 + below(storm, below(storm, 4) == 0 ? 100 : 12);
  std::string burst = below(storm, 4) == 0 ? "\x07" : "";  // prompts are sticky
  for (int i = 0; i < keys; i++) addkey(storm, burst);
  throwkeys(storm, bout, burst);
  if (below(storm, 15) != 0) return keys;
  int width = 7 + below(storm, 90), height = 2 + below(storm, 40);
  Terminal& terminal = bout.session.terminal;
  bout.strict.width = std::max(terminal.width, width);
  bout.strict.height = std::max(terminal.height, height);
  bout.session.resize(width, height);
  look(storm, bout);
  bout.strict.width = width;
  bout.strict.height = height;
  return keys;
}

void paintanew(Storm& storm, Bout& bout) {
  throwkeys(storm, bout, "\x07\x07");  // out of half a key and of any prompt
  look(storm, bout);
  std::string before = picture(bout.session.terminal, true);
  bout.session.signal(SIGWINCH);
  look(storm, bout);
  if (before != picture(bout.session.terminal, true))
    storm.fault = "painted anew the screen is another; it was\n" + before;
}

void leave(Storm& storm, Bout& bout) {
  bout.session.keys("\x03");
  if (!bout.session.finish() || !WIFSIGNALED(bout.session.status) ||
      WTERMSIG(bout.session.status) != SIGINT)
    storm.fault = "C-c does not end it";
}

void runbout(Storm& storm, const std::string& program, int keys) {
  makefiles(storm);
  Launch launch;
  launch.argv = {program, "empty", "wide", "lines", "source"};
  launch.directory = launch.home = storm.directory;
  launch.width = 7 + below(storm, 90);
  launch.height = 2 + below(storm, 40);
  Bout bout = {Session(launch), {launch.width, launch.height, "", "", 0}};
  for (look(storm, bout); keys > 0 && storm.fault.empty(); look(storm, bout)) {
    keys -= oneburst(storm, bout);
    if (below(storm, 40) == 0) throwkeys(storm, bout, save(storm));
    if (below(storm, 40) == 0) throwkeys(storm, bout, evaluate(storm));
  }
  if (storm.fault.empty()) paintanew(storm, bout);
  if (storm.fault.empty()) leave(storm, bout);
  if (storm.fault.empty()) return;
  size_t last = storm.sent.size() > 400 ? storm.sent.size() - 400 : 0;
  printf("%s\nlast keys: %s\n%s", storm.fault.c_str(), inquotes(storm.sent.substr(last)).c_str(),
         picture(bout.session.terminal, false).c_str());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    fprintf(stderr, "usage: keystorm PROGRAM [KEYS [SEED]]\n");
    return 2;
  }
  long keys = argc > 2 ? atol(argv[2]) : 1000000;
  uint64_t seed = argc > 3 ? strtoull(argv[3], nullptr, 10) : 1;
  for (; keys > 0; keys -= boutkeys, seed++) {
    char top[] = "/tmp/tarnXXXXXX";
    if (mkdtemp(top) == nullptr) return 2;
    Storm storm = {std::mt19937_64(seed), std::string(top) + "/a/b/c/d/e/f/g/h", "", ""};
    runbout(storm, std::filesystem::absolute(argv[1]),
            static_cast<int>(std::min<long>(keys, boutkeys)));
    std::error_code error;
    std::filesystem::remove_all(top, error);
    if (storm.fault.empty()) continue;
    printf("keystorm: seed %llu\n", static_cast<unsigned long long>(seed));
    return 1;
  }
  return 0;
}

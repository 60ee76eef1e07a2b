// editorbench TARN ECHO: how long a key takes in Tarn and beside it in nano, ne, mg, vim and joe,
// where they are installed, all in one run. Each editor runs in a terminal as users run it. A key
// is answered when the last byte of the answer has come; the processor time is the editor's own,
// over all its threads. `echo` only puts out what comes in: the floor.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/session.h"

namespace {

using namespace tarn;

// What an editor needs to be told. {} stands for a number.
struct Peer {
  const char* name;
  std::vector<std::string> argv;  // before the file
  const char* atline;             // argument that starts it at a line, or null
  const char* atcolumn;           // at a column of the first line, or null
  const char* ready;              // keys before typing can begin
  const char* linekeys;           // keys that go to a line, where there is no argument
  const char* columnkeys;         // keys that go to a column
  const char* pagedown;           // the key, or null where it asks questions
};

constexpr int64_t bigbytes = 100'000'000;
constexpr const char* base64digits =
    "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY~";

std::vector<Peer> allpeers(const char* tarn, const char* echo) {
  return {
      {"tarn", {tarn}, nullptr, nullptr, "", "\x1bl{}\r", "\x1b" "b{}\r", "\x1b[6~"},
      {"echo", {echo}, nullptr, nullptr, "", "", "", nullptr},
      {"nano", {"nano", "-I"}, "+{}", "+1,{}", "", nullptr, nullptr, "\x1b[6~"},
      {"ne", {"ne", "--no-config"}, "+{}", "+1,{}", "", nullptr, nullptr, "\x1b[6~"},
      {"mg", {"mg", "-n"}, "+{}", nullptr, "", nullptr, nullptr, "\x16"},
      {"vim", {"vim", "-u", "NONE", "-i", "NONE", "-n"}, "+{}", "+call cursor(1,{})", "i", nullptr,
       nullptr, "\x1b[6~"},
      {"joe", {"joe", "-nobackups", "-noxon"}, "+{}", nullptr, "", nullptr, nullptr, "\x1b[6~"},
  };
}

bool installed(const Peer& peer) {
  if (peer.argv[0].find('/') != std::string::npos) return access(peer.argv[0].c_str(), X_OK) == 0;
  std::string test = "command -v " + peer.argv[0] + " >/dev/null";
  return system(test.c_str()) == 0;
}

std::string with(const char* pattern, const std::string& number) {
  std::string text = pattern;
  size_t at = text.find("{}");
  return at == std::string::npos ? text : text.replace(at, 2, number);
}

std::string inbase64(int64_t n) {
  std::string digits;
  for (; n > 0; n /= 64) digits.insert(digits.begin(), base64digits[n % 64]);
  return digits;
}

// ---- Where typing takes place

enum Place { emptyfile, middleofmany, middleofone };

struct Files {
  std::string directory, empty, many, one;
};

Files makefiles() {
  char name[] = "/tmp/tarnXXXXXX";
  if (mkdtemp(name) == nullptr) exit(1);
  std::string top = name;
  Files files = {top, top + "/empty", top + "/many", top + "/one"};
  std::ofstream(files.empty).flush();
  std::string line = "The quick brown fox jumps over the lazy dog again";  // 49 bytes
  std::ofstream many(files.many), one(files.one);
  for (int64_t i = 0; i < bigbytes / 50; i++) {
    many << line << '\n';
    one << line << ' ';
  }
  return files;
}

Launch launchof(const Peer& peer, const Files& files, Place place) {
  Launch launch;
  launch.argv = peer.argv;
  launch.directory = launch.home = files.directory;
  if (place == middleofmany && peer.atline != nullptr)
    launch.argv.push_back(with(peer.atline, std::to_string(bigbytes / 100)));
  if (place == middleofone && peer.atcolumn != nullptr)
    launch.argv.push_back(with(peer.atcolumn, std::to_string(bigbytes / 2)));
  launch.argv.push_back(place == emptyfile       ? files.empty
                        : place == middleofmany ? files.many
                                                : files.one);
  return launch;
}

// Brings a fresh session to the place; false if it does not get there.
bool goes(Session& session, const Peer& peer, Place place) {
  if (!session.settle(120000) || session.ended) return false;
  std::string keys;
  if (place == middleofmany && peer.linekeys != nullptr)
    keys = with(peer.linekeys, std::to_string(bigbytes / 100));
  if (place == middleofone && peer.columnkeys != nullptr)
    keys = with(peer.columnkeys, inbase64(bigbytes / 2));
  session.keys(keys + peer.ready);
  return session.settle(120000) && !session.ended;
}

// ---- One key after the other

struct Sample {
  std::vector<double> micros;  // of each key
  double cpu = 0, bytes = 0;   // of a key
};

constexpr int64_t patience = 3000;  // milliseconds for the keys of one measurement

bool answered(Session& session, const std::string& key, Sample& sample) {
  int64_t start = Session::nanoseconds();
  session.keys(key);
  session.pump(5000);
  if (!session.settle(30000) || session.ended || session.lastoutput < start) return false;
  sample.micros.push_back(static_cast<double>(session.lastoutput - start) / 1e3);
  return true;
}

// `key` up to n times, `back` after each of them not counted.
Sample typed(Session& session, const std::string& key, const std::string& back, int n) {
  Sample sample;
  for (int warm = 0; warm < 3; warm++) answered(session, key, sample);
  sample.micros.clear();
  int64_t end = Session::now() + patience;
  double cpu = 0, bytes = 0;
  while (n-- > 0 && Session::now() < end) {
    int64_t cpubefore = session.cputime();
    size_t sent = session.terminal.log.size();
    if (!answered(session, key, sample)) break;
    cpu += static_cast<double>(session.cputime() - cpubefore) / 1e3;
    bytes += static_cast<double>(session.terminal.log.size() - sent);
    if (back.empty()) continue;
    session.keys(back);
    session.settle(30000);
  }
  double count = static_cast<double>(std::max<size_t>(sample.micros.size(), 1));
  sample.cpu = cpu / count;
  sample.bytes = bytes / count;
  std::sort(sample.micros.begin(), sample.micros.end());
  return sample;
}

double quantile(const std::vector<double>& sorted, double q) {
  if (sorted.empty()) return 0;
  return sorted[static_cast<size_t>(q * static_cast<double>(sorted.size() - 1))];
}

// ---- What is measured, and how it is shown

constexpr int keycount = 500;

void headline(const char* title, const char* columns) {
  printf("\n%s\n%-6s%s\n", title, "", columns);
}

void showkeys(const Peer& peer, const Sample& sample, double& tarn) {
  double median = quantile(sample.micros, 0.5);
  if (std::string(peer.name) == "tarn") tarn = median;
  if (sample.micros.empty()) {
    printf("%-6s%10s\n", peer.name, "-");
    return;
  }
  printf("%-6s%10.0f%10.0f%10.0f%10.0f%9.2f x\n", peer.name, median, quantile(sample.micros, 0.9),
         sample.cpu, sample.bytes, tarn > 0 ? median / tarn : 0);
  fflush(stdout);
}

void benchkeys(const std::vector<Peer>& peers, const Files& files, const char* title, Place place,
               const std::string& key, const std::string& back) {
  headline(title, "    median   90th p.       cpu     bytes  to Tarn");
  double tarn = 0;
  for (const Peer& peer : peers) {
    Session session(launchof(peer, files, place));
    Sample sample;
    if (goes(session, peer, place)) sample = typed(session, key, back, keycount);
    showkeys(peer, sample, tarn);
  }
}

void showtime(const Peer& peer, double milliseconds, double& tarn) {
  if (std::string(peer.name) == "tarn") tarn = milliseconds;
  if (milliseconds < 0) printf("%-6s%10s\n", peer.name, "-");
  else printf("%-6s%10.2f%10.2f x\n", peer.name, milliseconds, tarn > 0 ? milliseconds / tarn : 0);
  fflush(stdout);
}

// From the start of the program until its first screen stands.
double starttime(const Peer& peer, const Files& files) {
  std::vector<double> times;
  for (int i = 0; i < 21; i++) {
    int64_t start = Session::nanoseconds();
    Session session(launchof(peer, files, emptyfile));
    if (!session.settle(30000) || session.ended) return -1;
    times.push_back(static_cast<double>(session.lastoutput - start) / 1e6);
  }
  std::sort(times.begin(), times.end());
  return quantile(times, 0.5);
}

void benchstart(const std::vector<Peer>& peers, const Files& files) {
  headline("Start to the first screen, an empty file, ms", "    median   to Tarn");
  double tarn = 0;
  for (const Peer& peer : peers) showtime(peer, starttime(peer, files), tarn);
}

// Some 100,000 bytes typed by the terminal at once; the mark at their end must be seen.
double pastetime(const Peer& peer, const Files& files) {
  std::string text;
  while (text.size() < 100000) text += "The quick brown fox jumps over the lazy dog again\r";
  text += "@end@";
  Session session(launchof(peer, files, emptyfile));
  if (!goes(session, peer, emptyfile)) return -1;
  Terminal& terminal = session.terminal;
  int64_t start = Session::nanoseconds();
  session.keys(text);
  bool seen = session.until(
      [&] {
        int row = terminal.cursorrow();
        return terminal.row(row).find("@end@") != std::string::npos;
      },
      60000);
  return seen ? static_cast<double>(session.lastoutput - start) / 1e6 : -1;
}

void benchpaste(const std::vector<Peer>& peers, const Files& files) {
  headline("100,000 bytes pasted into an empty file, until the last is seen, ms",
           "      time   to Tarn");
  double tarn = 0;
  for (const Peer& peer : peers) showtime(peer, pastetime(peer, files), tarn);
}

double pagetime(const Peer& peer, const Files& files) {
  Launch launch = launchof(peer, files, emptyfile);
  launch.argv.back() = files.many;
  Session pages(launch);
  if (peer.pagedown == nullptr || !pages.settle(120000) || pages.ended) return -1;
  std::string keys;
  for (int i = 0; i < 2000; i++) keys += peer.pagedown;
  int64_t start = Session::nanoseconds();
  pages.keys(keys);
  if (!pages.settle(120000) || pages.ended) return -1;
  return static_cast<double>(pages.lastoutput - start) / 1e6;
}

void benchpages(const std::vector<Peer>& peers, const Files& files) {
  headline("Page Down held over 2,000 pages of 100 MB, ms", "      time   to Tarn");
  double tarn = 0;
  for (const Peer& peer : peers)
    if (peer.pagedown != nullptr) showtime(peer, pagetime(peer, files), tarn);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    fprintf(stderr, "usage: editorbench TARN ECHO\n");
    return 2;
  }
  std::vector<Peer> peers;
  std::string tarn = std::filesystem::absolute(argv[1]), echo = std::filesystem::absolute(argv[2]);
  for (const Peer& peer : allpeers(tarn.c_str(), echo.c_str()))
    if (installed(peer)) peers.push_back(peer);
  Files files = makefiles();
  benchstart(peers, files);
  benchkeys(peers, files, "A letter in an empty file, µs", emptyfile, "x", "");
  benchkeys(peers, files, "A letter in the middle of 100 MB, µs", middleofmany, "x", "");
  benchkeys(peers, files, "A letter in the middle of a line of 100 MB, µs", middleofone, "x", "");
  benchkeys(peers, files, "Return in the middle of 100 MB, µs", middleofmany, "\r", "\x7f");
  benchpaste(peers, files);
  benchpages(peers, files);
  std::error_code error;
  std::filesystem::remove_all(files.directory, error);
  return 0;
}

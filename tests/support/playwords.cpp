// The words of a scenario: what each does or demands.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/support/notation.h"
#include "tests/support/picture.h"
#include "tests/support/player.h"

namespace tarn {

namespace {

std::string pathof(const Play& p, const std::string& name) {
  return name[0] == '/' ? name : p.directory + "/" + name;
}

// The first word of a text; what is behind it stays in the text.
std::string nextword(std::string& text) {
  size_t end = text.find(' ');
  std::string word = text.substr(0, end);
  size_t next = end == std::string::npos ? end : text.find_first_not_of(' ', end);
  text = next == std::string::npos ? "" : text.substr(next);
  return word;
}

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string abridged(const std::string& text) {
  std::string all = inquotes(text);
  if (all.size() <= 2000) return all;
  return all.substr(0, 2000) + "... (" + std::to_string(text.size()) + ")";
}

// ---- What is prepared

void dosize(Play& p, std::string rest) {
  p.launch.width = atoi(nextword(rest).c_str());
  p.launch.height = atoi(rest.c_str());
}

void dohome(Play& p, std::string rest) { p.launch.home = rest == "none" ? "" : rest; }
void docwd(Play& p, std::string rest) { p.launch.directory = pathof(p, rest); }
void doloose(Play& p, std::string) { p.launch.loose = true; }
void dooldbackspace(Play& p, std::string) { p.launch.oldbackspace = true; }
void dooddmodes(Play& p, std::string) { p.launch.oddmodes = true; }

void dofaults(Play& p, std::string rest) { p.faults = rest; }

void dofile(Play& p, std::string rest) {
  std::string path = pathof(p, nextword(rest));
  std::string text = readtext(rest, p.fault);
  std::ofstream(path, std::ios::binary) << text;
  if (access(path.c_str(), F_OK) != 0) p.fault = "cannot write " + path;
}

void dodir(Play& p, std::string rest) {
  if (mkdir(pathof(p, rest).c_str(), 0777) != 0) p.fault = "cannot make " + rest;
}

void doremove(Play& p, std::string rest) {
  std::error_code error;
  if (std::filesystem::remove_all(pathof(p, rest), error) == 0) p.fault = "cannot remove " + rest;
}

void dohole(Play& p, std::string rest) {
  std::string path = pathof(p, nextword(rest));
  std::ofstream(path).close();
  std::error_code error;
  std::filesystem::resize_file(path, std::stoull(rest), error);
  if (error) p.fault = "cannot make " + path;
}

void dolink(Play& p, std::string rest) {
  std::string path = pathof(p, nextword(rest));
  if (symlink(rest.c_str(), path.c_str()) != 0) p.fault = "cannot link " + path;
}

// ---- What is done

std::string faultlog(const Play& p) { return p.directory + ".faults"; }

// The program, and in front of it what puts the faults in.
std::vector<std::string> programwords(const Play& p) {
  if (p.faults.empty()) return {p.program};
  return {"/usr/bin/env", "LD_PRELOAD=" PRELOAD, "TARN_FAULTS=" + p.faults,
          "TARN_FAULTS_LOG=" + faultlog(p), p.program};
}

void dostart(Play& p, std::string rest) {
  checkfaults(p);
  unlink(faultlog(p).c_str());
  p.faultsnow = p.faults;
  p.launch.argv = programwords(p);
  while (!rest.empty() && p.fault.empty()) {
    if (rest[0] == '"') {
      size_t end = rest.find('"', 1);
      p.launch.argv.push_back(readtext(rest.substr(0, end + 1), p.fault));
      rest.erase(0, end + 1);
      nextword(rest);
    } else {
      p.launch.argv.push_back(nextword(rest));
    }
  }
  p.session = std::make_unique<Session>(p.launch);
  p.strict = {p.launch.width, p.launch.height, "", "", 0};
  p.checked = 0;
  p.lasting = true;
  beginstep(p);
  settle(p);
}

// A terminal hands over some 200 bytes in one piece.
void dokeys(Play& p, std::string rest) {
  constexpr size_t most = 200;
  std::string pending;
  std::vector<std::string> keys = readkeys(rest, p.fault);
  if (!p.fault.empty()) return;
  for (const std::string& key : keys) {
    if (pending.size() + key.size() > most || (p.pace != Pace::together && !pending.empty())) {
      p.session->keys(pending);
      pending.clear();
      settle(p);
    }
    pending += key;
  }
  p.session->keys(pending);
  settle(p);
}

// Bytes that come as fast as the program takes them, as a terminal pastes.
void dopaste(Play& p, std::string rest) {
  std::string text = readtext(rest, p.fault);
  replaceall(text, "\n", "\r");
  p.session->paste(text);
  settle(p);
}

void doresize(Play& p, std::string rest) {
  int width = atoi(nextword(rest).c_str());
  int height = atoi(rest.c_str());
  checkoutput(p);  // what came so far was for the old size
  p.session->resize(width, height);
  settle(p);
  p.strict.width = width;
  p.strict.height = height;
}

struct SignalName {
  const char* name;
  int number;
};
const SignalName signalnames[] = {
    {"SIGABRT", SIGABRT}, {"SIGCONT", SIGCONT}, {"SIGHUP", SIGHUP},     {"SIGINT", SIGINT},
    {"SIGPIPE", SIGPIPE}, {"SIGTERM", SIGTERM}, {"SIGWINCH", SIGWINCH},
};

int signalof(Play& p, const std::string& name) {
  for (const SignalName& s : signalnames)
    if (name == s.name) return s.number;
  p.fault = "no such signal: " + name;
  return 0;
}

void dosignal(Play& p, std::string rest) {
  p.session->signal(signalof(p, rest));
  settle(p);
}

void dohangup(Play& p, std::string) { p.session->hangup(); }

void dosuspend(Play& p, std::string) {
  p.session->suspend();
  settle(p);
}

void doshow(Play& p, std::string) { printf("%s", picture(p.session->terminal, true).c_str()); }

// ---- What is demanded

void wantcursor(Play& p, std::string rest) {
  int row = p.session->terminal.cursorrow(), column = p.session->terminal.cursorcolumn();
  std::string seen = std::to_string(row) + " " + std::to_string(column);
  if (rest != seen) p.fault = "the cursor is at " + seen;
}

void wantbells(Play& p, std::string rest) {
  int rung = p.session->terminal.bells - p.bellsbefore;
  if (atoi(rest.c_str()) != rung) p.fault = "the bell rang " + std::to_string(rung) + " times";
  p.bellstold = true;
}

void wantsent(Play& p, std::string rest) {
  std::string sent = p.session->terminal.log.substr(p.sentbefore);
  if (readtext(rest, p.fault) != sent) p.fault = "sent was " + inquotes(sent);
}

// Row 0 as every mode but the lists shows it: the word, the ink cell, and the field.
void wantfield(Play& p, const std::string& word, std::string field) {
  RowWanted row;
  replaceall(field, " ", "_");
  row.text = word + " " + field;
  p.fault = rowfault(p.session->terminal, 0, row);
}

void wantstatus(Play& p, std::string rest) {
  std::string word = nextword(rest);
  size_t room = static_cast<size_t>(p.session->terminal.width) - 6;
  if (rest.size() > room) rest.erase(0, rest.size() - room);
  wantfield(p, word, rest);
}

void wantstatushead(Play& p, std::string rest) {
  std::string word = nextword(rest);
  size_t room = static_cast<size_t>(p.session->terminal.width) - 5;
  wantfield(p, word, rest.substr(0, room));
}

void wantdisk(Play& p, std::string rest) {
  std::string name = nextword(rest);
  std::string wanted = readtext(rest, p.fault);
  std::string seen = contents(pathof(p, name));
  if (p.fault.empty() && seen != wanted) p.fault = name + " holds " + abridged(seen);
}

void wantnodisk(Play& p, std::string rest) {
  if (access(pathof(p, rest).c_str(), F_OK) == 0) p.fault = rest + " exists";
}

void wantsays(Play& p, std::string rest) {
  std::string seen = p.session->terminal.log;
  replaceall(seen, "\r\n", "\n");
  std::string wanted = readtext(rest, p.fault);
  if (seen.find(wanted) == std::string::npos) p.fault = "it said " + abridged(seen);
}

void wantend(Play& p, bool right) {
  p.lasting = false;
  if (!p.session->finish(20000)) p.fault = "the program still runs";
  else if (!right) p.fault = "the program ended with status " + std::to_string(p.session->status);
}

void wantexit(Play& p, std::string rest) {
  p.session->finish(20000);
  int status = p.session->status;
  wantend(p, WIFEXITED(status) && WEXITSTATUS(status) == atoi(rest.c_str()));
}

void wantdied(Play& p, std::string rest) {
  p.session->finish(20000);
  int status = p.session->status;
  wantend(p, WIFSIGNALED(status) && WTERMSIG(status) == signalof(p, rest));
}

void wantcooked(Play& p, std::string) {
  if (!p.session->cooked()) p.fault = "the terminal's modes are not back";
}

// ---- The table

const Word words[] = {
    {"size", prepare, dosize},
    {"home", prepare, dohome},
    {"cwd", prepare, docwd},
    {"loose", prepare, doloose},
    {"oldbackspace", prepare, dooldbackspace},
    {"oddmodes", prepare, dooddmodes},
    {"faults", prepare, dofaults},
    {"file", prepare, dofile},
    {"dir", prepare, dodir},
    {"hole", prepare, dohole},
    {"link", prepare, dolink},
    {"remove", prepare, doremove},
    {"start", prepare, dostart},
    {"show", demand, doshow},
    {"keys", act, dokeys},
    {"paste", act, dopaste},
    {"resize", act, doresize},
    {"signal", act, dosignal},
    {"hangup", act, dohangup},
    {"suspend", act, dosuspend},
    {"cursor", demand, wantcursor},
    {"bells", demand, wantbells},
    {"sent", demand, wantsent},
    {"status", demand, wantstatus},
    {"statushead", demand, wantstatushead},
    {"row", demand, nullptr},
    {"text", demand, nullptr},
    {"screen", demand, nullptr},
    {"disk", demand, wantdisk},
    {"nodisk", demand, wantnodisk},
    {"says", demand, wantsays},
    {"exit", demand, wantexit},
    {"died", demand, wantdied},
    {"cooked", demand, wantcooked},
};

}  // namespace

void checkfaults(Play& p) {
  std::string came = "\n" + contents(faultlog(p)), rest = p.faultsnow;
  while (!rest.empty() && p.fault.empty()) {
    std::string fault = nextword(rest);
    if (came.find("\n" + fault + "\n") == std::string::npos) p.fault = "it never came: " + fault;
  }
}

void wantrows(Play& p, const Statement& statement, int y) {
  for (RowWanted row : statement.rows) {
    row.text = filled(p, row.text);
    if (y >= p.session->terminal.height) p.fault = "more rows drawn than there are";
    else p.fault = rowfault(p.session->terminal, y++, row);
    if (!p.fault.empty()) return;
  }
  if (statement.word == "row") return;
  for (; y < p.session->terminal.height && p.fault.empty(); y++)
    p.fault = rowfault(p.session->terminal, y, RowWanted());
}

const Word* findword(const std::string& name) {
  for (const Word& word : words)
    if (name == word.name) return &word;
  return nullptr;
}

}  // namespace tarn

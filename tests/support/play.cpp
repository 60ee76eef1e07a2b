// The player: a table of the words of a scenario and what each does or demands.
#include "tests/support/play.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "tests/support/notation.h"
#include "tests/support/picture.h"
#include "tests/support/session.h"
#include "tests/support/strictoutput.h"

namespace tarn {

namespace {

struct Play {
  const Scenario& scenario;
  std::string program;
  Pace pace;
  std::string directory;             // where the files of the scenario are
  Launch launch = {};
  std::unique_ptr<Session> session = nullptr;  // null before start
  StrictOutput strict = {};
  size_t checked = 0;        // bytes of output that the strict reader has had
  size_t sentbefore = 0;     // bytes of output before the present step
  int bellsbefore = 0;       // bells before it
  bool bellstold = false;    // the step says how many bells it rings
  bool lasting = true;       // the program is not expected to be gone
  std::string fault = "";
};

void replaceall(std::string& text, const std::string& old, const std::string& with) {
  for (size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += with.size())
    text.replace(at, old.size(), with);
}

// The names that a scenario can use for what differs from run to run.
std::string filled(const Play& p, std::string text) {
  replaceall(text, "{dir}", p.directory);
  replaceall(text, "{base}", p.directory.substr(p.directory.rfind('/') + 1));
  return text;
}

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

void settle(Play& p) {
  if (p.session && !p.session->settle()) p.fault = "the program does not come to rest";
}

void checkoutput(Play& p) {
  const std::string& log = p.session->terminal.log;
  readstrictly(p.strict, log.data() + p.checked, log.size() - p.checked);
  p.checked = log.size();
  if (!p.strict.fault.empty()) p.fault = "not for a terminal: " + p.strict.fault;
}

void beginstep(Play& p) {
  p.sentbefore = p.session->terminal.log.size();
  p.bellsbefore = p.session->terminal.bells;
  p.bellstold = false;
}

void dostart(Play& p, std::string rest) {
  p.launch.argv = {p.program};
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
  p.session->keys(text);
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

// ---- The table

enum Sort { prepare, act, demand };

struct Word {
  const char* name;
  Sort sort;
  void (*run)(Play&, std::string rest);  // null for the three that have rows
};

const Word words[] = {
    {"size", prepare, dosize},
    {"home", prepare, dohome},
    {"cwd", prepare, docwd},
    {"loose", prepare, doloose},
    {"oldbackspace", prepare, dooldbackspace},
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

const Word* findword(const std::string& name) {
  for (const Word& word : words)
    if (name == word.name) return &word;
  return nullptr;
}

// ---- What holds at the end of every step, told or not

// Once more from nothing: no cell may differ, nor the cursor.
void checkrepaint(Play& p) {
  if (p.session->terminal.width < 7 || p.session->terminal.height < 2) return;  // no such resize
  std::string before = picture(p.session->terminal, true);
  p.session->signal(SIGWINCH);
  settle(p);
  std::string after = picture(p.session->terminal, true);
  if (p.fault.empty() && before != after)
    p.fault = "painted anew the screen is another; it was\n" + before;
}

void endstep(Play& p) {
  if (!p.session || !p.lasting) return;
  int rung = p.session->terminal.bells - p.bellsbefore;
  if (p.session->ended)
    p.fault = "the program has ended, status " + std::to_string(p.session->status);
  else if (rung != 0 && !p.bellstold) p.fault = "the bell rang " + std::to_string(rung) + " times";
  if (p.fault.empty()) checkoutput(p);
  if (p.fault.empty() && p.pace == Pace::repainted) checkrepaint(p);
}

void carryout(Play& p, const Word& word, const Statement& statement) {
  if (word.run != nullptr) word.run(p, filled(p, statement.rest));
  else if (statement.word == "row") wantrows(p, statement, atoi(statement.rest.c_str()));
  else wantrows(p, statement, statement.word == "text" ? 1 : 0);
}

void run(Play& p, const Statement& statement) {
  const Word* word = findword(statement.word);
  if (word == nullptr) {
    p.fault = "no such word: " + statement.word;
    return;
  }
  if (word->sort != prepare && !p.session) {
    p.fault = "nothing was started";
    return;
  }
  if (word->sort == act || word->run == dostart) {
    endstep(p);
    if (!p.fault.empty()) return;
    if (word->sort == act) beginstep(p);
  }
  carryout(p, *word, statement);
  // A long paste can lie in the system's buffers while the program rests: give it a moment.
  int64_t end = Session::now() + 500;
  while (word->sort == demand && !p.fault.empty() && !p.session->ended && Session::now() < end) {
    p.session->pump(5);
    p.fault.clear();
    carryout(p, *word, statement);
  }
}

std::string makedirectory(const std::string& wanted) {
  char fresh[] = "/tmp/tarnXXXXXX";
  if (wanted.empty()) return mkdtemp(fresh) == nullptr ? "" : fresh;
  return mkdir(wanted.c_str(), 0777) == 0 ? wanted : "";
}

std::string report(const Play& p, int line) {
  std::string text = p.scenario.path + ":" + std::to_string(line) + ": " + p.fault + "\n";
  if (p.session) text += picture(p.session->terminal, false);
  return text;
}

}  // namespace

std::string play(const Scenario& scenario, const Stage& stage) {
  if (!scenario.error.empty()) return scenario.error + "\n";
  std::string program = std::filesystem::absolute(stage.program);
  Play p = {scenario, program, stage.pace, makedirectory(stage.directory)};
  if (p.directory.empty()) return "cannot make a directory for " + scenario.path + "\n";
  p.launch.home = p.launch.directory = p.directory;
  int line = 0;
  for (const Statement& statement : scenario.statements) {
    line = statement.line;
    run(p, statement);
    if (!p.fault.empty()) break;
  }
  if (p.fault.empty()) endstep(p);
  std::string said = p.fault.empty() ? "" : report(p, line);
  if (said.empty() && stage.lastscreen && p.session) stage.lastscreen(p.session->terminal);
  p.session.reset();
  std::error_code error;
  std::filesystem::remove_all(p.directory, error);
  return said;
}

}  // namespace tarn

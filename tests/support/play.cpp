// The player: goes through a scenario, and holds what must hold at every step.
#include "tests/support/play.h"

#include <sys/stat.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "tests/support/picture.h"
#include "tests/support/player.h"

namespace tarn {

void replaceall(std::string& text, const std::string& old, const std::string& with) {
  for (size_t at = 0; (at = text.find(old, at)) != std::string::npos; at += with.size())
    text.replace(at, old.size(), with);
}

std::string filled(const Play& p, std::string text) {
  replaceall(text, "{dir}", p.directory);
  replaceall(text, "{base}", p.directory.substr(p.directory.rfind('/') + 1));
  return text;
}

void settle(Play& p) {
  if (p.session && !p.session->settle()) p.fault = "the program does not come to rest";
}

void beginstep(Play& p) {
  p.sentbefore = p.session->terminal.log.size();
  p.bellsbefore = p.session->terminal.bells;
  p.bellstold = false;
}

void checkoutput(Play& p) {
  const std::string& log = p.session->terminal.log;
  readstrictly(p.strict, log.data() + p.checked, log.size() - p.checked);
  p.checked = log.size();
  if (!p.strict.fault.empty()) p.fault = "not for a terminal: " + p.strict.fault;
}

namespace {

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
  if (word->sort == act || statement.word == "start") {
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
  if (p.fault.empty()) checkfaults(p);
  std::string said = p.fault.empty() ? "" : report(p, line);
  if (said.empty() && stage.lastscreen && p.session) stage.lastscreen(p.session->terminal);
  p.session.reset();
  std::error_code error;
  std::filesystem::remove_all(p.directory, error);
  std::filesystem::remove(p.directory + ".faults", error);
  return said;
}

}  // namespace tarn

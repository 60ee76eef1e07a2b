// The player's inside: where a scenario stands, and the words that it is made of. For play.cpp and
// playwords.cpp alone; tests go by play.h.
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "tests/support/play.h"
#include "tests/support/session.h"
#include "tests/support/strictoutput.h"

namespace tarn {

struct Play {
  const Scenario& scenario;
  std::string program;    // an absolute path
  Pace pace;
  std::string directory;  // where the files of the scenario are
  Launch launch = {};     // how the next `start` starts
  std::string faults = "";     // what is put in then, as tests/faults/faults.cpp reads it
  std::string faultsnow = "";  // what was put in at the last start
  std::unique_ptr<Session> session = nullptr;  // null before the first
  StrictOutput strict = {};
  size_t checked = 0;      // bytes of output that the strict reader has had
  size_t sentbefore = 0;   // bytes of output before the present step
  int bellsbefore = 0;     // bells before it
  bool bellstold = false;  // the step says how many bells it rings
  bool lasting = true;     // the program is not expected to be gone
  std::string fault = "";  // what went wrong, "" while all is well
};

// Preparing and demanding can stand anywhere; an act begins a step.
enum Sort { prepare, act, demand };

struct Word {
  const char* name;
  Sort sort;
  void (*run)(Play&, std::string rest);  // null for the three that have rows
};

const Word* findword(const std::string& name);  // null if there is none of that name

// The names that a scenario can use for what differs from run to run, put in.
std::string filled(const Play& p, std::string text);

void replaceall(std::string& text, const std::string& old, const std::string& with);

void settle(Play& p);       // waits till all has been answered
void beginstep(Play& p);    // what is demanded next speaks of what comes from here on
void checkoutput(Play& p);  // reads strictly what came so far
void checkfaults(Play& p);  // each fault put in at the last start must have come

// The rows of a statement `row`, `text` or `screen`, from row y on.
void wantrows(Play& p, const Statement& statement, int y);

}  // namespace tarn

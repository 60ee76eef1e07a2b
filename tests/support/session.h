// A program run as a user runs it: in a terminal of a given size, with a home, a directory and
// arguments; fed with keys, resized, signalled, and its screen read back.
//
// Nothing here sleeps for a guessed time. `settle` knows when a key has been answered: the terminal
// holds no input that the program has not read, the program has gone to sleep since, and all of its
// output has been taken. So a key that changes nothing is tested as surely as one that does.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "tests/support/terminal.h"

namespace tarn {

struct Launch {
  std::vector<std::string> argv;  // argv[0] is the path of the program
  std::string directory;          // where it starts; "" for here
  std::string home;               // $HOME; "" for none
  int width = 80, height = 24;
  bool loose = false;             // the terminal is not its session's: no signals come from it
  bool oldbackspace = false;      // a terminal whose Backspace sends byte 8 instead of 127
  bool oddmodes = false;          // a terminal left in modes that no shell would leave it in
};

struct Session {
  Terminal terminal;
  pid_t pid = -1;
  bool ended = false;  // the program is gone and status holds
  int status = 0;      // as waitpid gives it
  int64_t lastoutput = 0;  // when output last came, by nanoseconds()

  explicit Session(const Launch& launch);
  ~Session();  // kills the program if it still runs
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Types the bytes. They reach the program in one piece up to about 200 of them.
  void keys(const std::string& bytes);
  // Types any number of bytes, none of which is a signal: what the system still holds of them,
  // where no one sees it, is waited for as well.
  void paste(const std::string& bytes);
  void resize(int columns, int rows);
  void signal(int number);
  void hangup();  // closes the terminal under the program
  void suspend();  // stops it, gives the terminal to a shell that clears the screen, and resumes it

  // Waits till all that was asked has been answered, or the program has ended; false if that does
  // not come about within the milliseconds.
  bool settle(int ms = 60000);
  // Waits for the end of the program; false if it does not come.
  bool finish(int ms = 60000);
  // Takes what output there is, waiting at most so long for some; true if some came.
  bool pump(int ms);
  // Pumps till the predicate holds; false if it does not within the milliseconds.
  template <class Predicate>
  bool until(Predicate holds, int ms = 60000) {
    for (int64_t end = now() + ms; !holds();) {
      if (ended || now() > end) return holds();
      pump(5);
    }
    return true;
  }

  // The terminal's modes as the program left them: canonical input and echo, as a shell wants.
  bool cooked() const;

  // Nanoseconds that the program has spent on processors, all its threads together.
  int64_t cputime() const;

  static int64_t now();          // milliseconds of a clock that only goes forward
  static int64_t nanoseconds();  // the same clock

 private:
  int master = -1;     // our end of the terminal
  int slave = -1;      // the program's end, held open to ask for unread input
  bool oldbackspace;
  int64_t sleeps = 0;  // how often the program had gone to sleep before it was last asked
  bool asked = false;  // since then keys or a signal were sent
  int64_t due = 0;     // how much the program will have read, by bytesread, after what was pasted

  int64_t bytesread() const;  // from its terminal and from files; -1 where the system does not tell
  bool idle() const;
  void ask();
  bool reap();
};

}  // namespace tarn

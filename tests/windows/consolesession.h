// A Windows program on a console of its own, under wine: fed with console records, its bytes read
// back and shown on a terminal in memory. See condrive.cpp for what happens on the other side.
#pragma once

#include <sys/types.h>

#include <string>

#include "tests/support/terminal.h"

namespace tarn {

struct ConsoleSession {
  Terminal terminal;
  std::string output;   // all bytes that the program has written
  bool ended = false;   // the program is gone and status holds
  unsigned long status = 0;

  // Starts the command line (paths as Windows has them) through the driver, in a console of that
  // size, and waits until it waits for keys.
  ConsoleSession(const std::string& driver, const std::string& command, int columns, int rows);
  ~ConsoleSession();
  ConsoleSession(const ConsoleSession&) = delete;
  ConsoleSession& operator=(const ConsoleSession&) = delete;

  // Queue records; they are handled by the next settle.
  void key(int virtualkey, unsigned control = 0, int repeat = 1);
  void burst(int virtualkey, int n);  // n presses, in one go
  void letgo(int virtualkey);
  void type(const std::string& bytes);  // by the keys of a US keyboard that give them
  void resize(int columns, int rows);
  void interrupt();

  bool settle(int ms = 30000);  // all records have been handled; false if that takes longer
  bool finish(int ms = 30000);  // the program has ended
  void modes(unsigned long& in, unsigned long& out);

 private:
  int commands = -1, answers = -1, tty = -1;
  pid_t pid = -1;
  std::string unread;

  void more();
  std::string line();
  std::string ask(const std::string& command);
  bool take(const std::string& answer);
};

}  // namespace tarn

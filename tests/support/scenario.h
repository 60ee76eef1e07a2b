// A scenario: a file that a person can read, which says what is typed into the editor and what must
// then be seen. tests/editor/README.md tells its language; this is the file as statements.
#pragma once

#include <string>
#include <vector>

namespace tarn {

// One row of a screen as a scenario draws it. The strings of colours and attributes hold a symbol
// for each column and are empty where nothing is said.
struct RowWanted {
  enum Kind { whole, prefix, any };
  Kind kind = whole;
  int line = 0;            // in the file
  std::string text;
  std::string fore, back;  // hexadecimal digits, '-' the terminal's own, ' ' anything
  std::string attributes;  // '-' none, u b i, U underlined italic, B bold italic, ' ' anything
};

struct Statement {
  int line = 0;
  std::string word;             // what to do
  std::string rest;             // to what
  std::vector<RowWanted> rows;  // behind row, text and screen
};

struct Scenario {
  std::string path;
  std::string error;  // "" if the file could be read
  std::vector<Statement> statements;
};

Scenario readscenario(const std::string& path);

}  // namespace tarn

// Cuts a scenario file into statements: a line each, rows of a screen going to the one before.
#include "tests/support/scenario.h"

#include <fstream>

namespace tarn {

namespace {

void startrow(Statement& statement, const std::string& line, int number) {
  RowWanted row;
  row.line = number;
  if (line[0] == ':') row.kind = RowWanted::prefix;
  if (line[0] == '~') row.kind = RowWanted::any;
  row.text = line.substr(1);
  statement.rows.push_back(row);
}

// The symbols of a row; the last one stands for all that follow if a '+' is behind it.
std::string symbols(const std::string& line) {
  std::string text = line.substr(1);
  if (text.size() < 2 || text.back() != '+') return text;
  text.pop_back();
  return text + std::string(1000, text.back());
}

bool colourrow(Statement& statement, const std::string& line) {
  if (statement.rows.empty()) return false;
  RowWanted& row = statement.rows.back();
  std::string& which = line[0] == 'F' ? row.fore : line[0] == 'B' ? row.back : row.attributes;
  which = symbols(line);
  return true;
}

void startstatement(Scenario& scenario, const std::string& line, int number) {
  Statement statement;
  statement.line = number;
  size_t end = line.find(' ');
  statement.word = line.substr(0, end);
  if (end != std::string::npos) statement.rest = line.substr(line.find_first_not_of(' ', end));
  size_t row = statement.rest.find_first_of("|:");
  if (statement.word == "row" && row != std::string::npos) {  // "row 3 |text"
    startrow(statement, statement.rest.substr(row), number);
    statement.rest.erase(row);
  }
  scenario.statements.push_back(statement);
}

bool takeline(Scenario& scenario, const std::string& line, int number) {
  if (line.empty() || line[0] == '#') return true;
  bool first = scenario.statements.empty();
  switch (line[0]) {
    case '|': case ':': case '~':
      if (!first) startrow(scenario.statements.back(), line, number);
      return !first;
    case 'F': case 'B': case 'A':
      return !first && colourrow(scenario.statements.back(), line);
    default:
      startstatement(scenario, line, number);
      return true;
  }
}

}  // namespace

Scenario readscenario(const std::string& path) {
  Scenario scenario;
  scenario.path = path;
  std::ifstream file(path);
  if (!file) scenario.error = path + ": cannot be read";
  std::string line;
  for (int number = 1; std::getline(file, line); number++)
    if (!takeline(scenario, line, number)) {
      scenario.error = path + ":" + std::to_string(number) + ": a row without a screen";
      break;
    }
  return scenario;
}

}  // namespace tarn

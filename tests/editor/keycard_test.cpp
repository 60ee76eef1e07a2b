// The card of keys and the manual page against the key table: every key of the table is on them,
// and no other.
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "editor/dispatch.h"

namespace tarn {
namespace {

// The plain keys that the first column of its tables names, as the key table writes them; those of
// prompts, which come last, are not among them.
std::set<std::string> cardkeys() {
  std::ifstream file(KEYCARD);
  std::set<std::string> keys;
  for (std::string row; std::getline(file, row) && row != "## In every prompt";) {
    if (row.rfind("| ", 0) != 0) continue;
    std::string cell = row.substr(2, row.find(" |", 2) - 2);
    for (char& c : cell) c = c == ',' || c == ';' ? '\n' : c;
    std::istringstream names(cell);
    for (std::string name; std::getline(names, name);) {
      name.erase(0, name.find_first_not_of(' '));
      if (name == "C-\\\\") name = "C-\\";
      bool plain = name.rfind("C-", 0) == 0 || name.rfind("ESC ", 0) == 0 || name == "TAB";
      if (plain) keys.insert(name);
    }
  }
  return keys;
}

TEST(KeyCard, HoldsTheKeyTable) {
  std::set<std::string> table;
  for (int64_t row = 0; row < keyrows; row++) table.insert(keytable[row].name);
  EXPECT_EQ(cardkeys(), table);
}

// The keys that the table of the manual page names, between .TS and .TE.
std::set<std::string> manualkeys() {
  std::ifstream file(MANUAL);
  std::set<std::string> keys;
  std::string row;
  while (std::getline(file, row) && row != "l l.") continue;
  while (std::getline(file, row) && row != ".TE") {
    std::string cell = row.substr(0, row.find('\t'));
    for (size_t at; (at = cell.find("Esc ")) != std::string::npos;) cell.replace(at, 4, "ESC_");
    for (char& c : cell) c = c == ',' || c == ';' ? ' ' : c;
    std::istringstream names(cell);
    for (std::string name; names >> name;) {
      if (name.rfind("ESC_", 0) == 0) name[3] = ' ';
      if (name == "C-\\e") name = "C-\\";
      if (name == "C-Space") name = "C-SP";
      if (name == "Tab") name = "TAB";
      bool plain = name.rfind("C-", 0) == 0 || name.rfind("ESC ", 0) == 0 || name == "TAB";
      if (plain && name != "C-c") keys.insert(name);
    }
  }
  return keys;
}

TEST(KeyCard, TheManualPageHoldsTheKeyTable) {
  std::set<std::string> table;
  for (int64_t row = 0; row < keyrows; row++) table.insert(keytable[row].name);
  EXPECT_EQ(manualkeys(), table);
}

}  // namespace
}  // namespace tarn

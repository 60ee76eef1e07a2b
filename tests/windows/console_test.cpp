// The Windows build on a Windows console, under wine: every key as a record in the console's queue,
// and the editor's screen. TARN_WINDOWS names the folder of the build, WINEPREFIX wine's own.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/windows/consolesession.h"

namespace tarn {
namespace {

std::string build() {
  const char* folder = getenv("TARN_WINDOWS");
  return folder == nullptr ? "build/windows" : folder;
}

std::string driver() { return build() + "/tests/windows/condrive.exe"; }
std::string editor() { return build() + "/programs/tarn.exe"; }

// The path as programs under wine see it.
std::string windowspath(const std::string& path) {
  std::string out = "Z:";
  for (char c : path) out += c == '/' ? '\\' : c;
  return out;
}

std::string absolute(const std::string& path) {
  if (path[0] == '/') return path;
  char here[4096];
  return std::string(getcwd(here, sizeof here)) + "/" + path;
}

std::string command(const std::string& program, const std::string& arguments = "") {
  return windowspath(absolute(program)) + (arguments.empty() ? "" : " " + arguments);
}

struct Folder {
  std::string path;
  Folder() {
    char name[] = "/tmp/tarnwinXXXXXX";
    path = mkdtemp(name);
  }
  ~Folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  void write(const std::string& name, const std::string& text) {
    std::ofstream(path + "/" + name, std::ios::binary) << text;
  }
  std::string read(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(path + "/" + name, std::ios::binary).rdbuf();
    return text.str();
  }
};

bool screenhas(const ConsoleSession& session, const std::string& text) {
  for (int row = 1; row < session.terminal.height; row++) {
    if (session.terminal.row(row).find(text) != std::string::npos) return true;
  }
  return false;
}

// --- Keys ----------------------------------------------------------------------------------------

constexpr unsigned shift = 0x10, lock = 0x80, leftctrl = 0x08, rightctrl = 0x04, alt = 0x02;

struct Row {
  int key;
  const char *plain, *shifted;
};

const Row rows[] = {
    {8, "7f", "7f"},         {9, "09", "09"},         {13, "0a", "0a"},
    {27, "1b", "1b"},        {32, "20", "20"},        {33, "15", "15"},
    {34, "04", "04"},        {35, "05", "05"},        {36, "01", "01"},
    {37, "1b5b44", "1b5b44"}, {38, "1b5b41", "1b5b41"}, {39, "1b5b43", "1b5b43"},
    {40, "1b5b42", "1b5b42"}, {45, "18", "18"},        {46, "1c", "1c"},
    {48, "30", "29"},        {49, "31", "21"},        {50, "32", "40"},
    {51, "33", "23"},        {52, "34", "24"},        {53, "35", "25"},
    {54, "36", "5e"},        {55, "37", "26"},        {56, "38", "2a"},
    {57, "39", "28"},        {96, "30", "29"},        {97, "31", "21"},
    {98, "32", "40"},        {99, "33", "23"},        {100, "34", "24"},
    {101, "35", "25"},       {102, "36", "5e"},       {103, "37", "26"},
    {104, "38", "2a"},       {105, "39", "28"},
    {107, "3d", "2b"},       {109, "2d", "5f"},
    {110, "2e", "3e"},       {111, "2f", "3f"},       {186, "3b", "3a"},
    {187, "3d", "2b"},       {188, "2c", "3c"},       {189, "2d", "5f"},
    {190, "2e", "3e"},       {191, "2f", "3f"},       {192, "60", "7e"},
    {219, "5b", "7b"},       {220, "5c", "7c"},       {221, "5d", "7d"},
    {222, "27", "22"},
};

struct KeySession {
  ConsoleSession session{driver(), command(build() + "/tests/windows/keyecho.exe"), 80, 24};
  std::string want;

  void press(int key, unsigned control, int repeat, const std::string& bytes, int count) {
    session.key(key, control, repeat);
    if (!bytes.empty()) want += bytes + " " + std::to_string(count) + "\n";
  }
  void expect() {
    ASSERT_TRUE(session.settle());
    EXPECT_EQ(session.output, want);
  }
};

TEST(Keys, EveryRowPlainAndShifted) {
  KeySession keys;
  for (const Row& row : rows) {
    keys.press(row.key, 0, 1, row.plain, 1);
    keys.press(row.key, shift, 1, row.shifted, 1);
    keys.press(row.key, alt, 1, row.plain, 1);  // Alt is not looked at
  }
  keys.expect();
}

std::string hex(int byte) {
  char digits[3];
  snprintf(digits, sizeof digits, "%02x", static_cast<unsigned>(byte));
  return digits;
}

TEST(Keys, Letters) {
  KeySession keys;
  for (int letter = 'A'; letter <= 'Z'; letter++) {
    keys.press(letter, 0, 1, hex(letter + 0x20), 1);
    keys.press(letter, shift, 1, hex(letter), 1);
    keys.press(letter, alt, 1, hex(letter + 0x20), 1);
  }
  keys.expect();
}

TEST(Keys, CapsLockShiftsLettersOnly) {
  KeySession keys;
  for (int letter = 'A'; letter <= 'Z'; letter++) {
    keys.press(letter, lock, 1, hex(letter), 1);
    keys.press(letter, lock | shift, 1, hex(letter), 1);
  }
  keys.press(49, lock, 1, "31", 1);
  keys.press(186, lock, 1, "3b", 1);
  keys.expect();
}

TEST(Keys, CtrlGivesControlCodes) {
  KeySession keys;
  for (int letter = 'A'; letter <= 'Z'; letter++) {
    if (letter == 'C') continue;  // that is the interrupt
    keys.press(letter, leftctrl, 1, hex(letter - 0x40), 1);
    keys.press(letter, rightctrl | shift, 1, hex(letter - 0x40), 1);
  }
  keys.press(32, leftctrl, 1, "00", 1);
  keys.press(109, leftctrl | shift, 1, "1f", 1);
  keys.press(189, rightctrl | shift, 1, "1f", 1);
  keys.press(189, leftctrl, 1, "2d", 1);
  keys.press(49, leftctrl, 1, "31", 1);  // a digit stays one
  keys.expect();
}

TEST(Keys, CountsRepeatsAndSkipsTheRest) {
  KeySession keys;
  keys.press('X', 0, 3, "78", 3);
  keys.press('Y', 0, 0, "79", 1);  // a count of 0 is 1
  keys.press(112, 0, 1, "", 0);    // F1
  keys.press(16, shift, 1, "", 0);
  keys.press(91, 0, 1, "", 0);
  keys.session.letgo('Q');
  keys.session.resize(100, 30);
  keys.want += "100 by 30\n";
  keys.expect();
}

// Three reads of 128 records, the last of them not full.
TEST(Keys, TakesMoreRecordsThanOneReadHolds) {
  KeySession keys;
  keys.session.burst('X', 300);
  for (int i = 0; i < 300; i++) keys.want += "78 1\n";
  keys.expect();
}

TEST(Keys, TheConsoleReportsKeysAndSizesAndKeepsTheInterrupt) {
  KeySession keys;
  unsigned long in = 0, out = 0;
  keys.session.modes(in, out);
  EXPECT_EQ(in & 2, 0u) << "no lines";
  EXPECT_EQ(in & 4, 0u) << "no echo";
  EXPECT_EQ(in & 1, 1u) << "C-c still ends the process";
  EXPECT_EQ(in & 8, 8u) << "sizes are reported";
  EXPECT_EQ(out & 1, 1u) << "output is processed; wine knows no sequences, which is no failure";
}

// --- The editor ----------------------------------------------------------------------------------

TEST(Editor, EditsAndSavesAFile) {
  Folder folder;
  folder.write("a.txt", "one\r\ntwo\n");
  ConsoleSession session(driver(), command(editor(), folder.path + "/a.txt"), 40, 8);
  EXPECT_EQ(session.terminal.row(0), "File " + folder.path + "/a.txt");
  EXPECT_EQ(session.terminal.row(1), "oneM,");  // a carriage return is a byte like any other
  EXPECT_EQ(session.terminal.row(2), "two,");
  session.type("x!");
  session.key(35);
  session.type("y\n");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(1), "x!oneMy,");
  session.type("\x17");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(folder.read("a.txt"), "x!one\ry\n\ntwo\n");
  EXPECT_FALSE(session.ended);
}

TEST(Editor, OpensFromTheListAndSavesUnderANewName) {
  Folder folder;
  folder.write("a.txt", "one\n");
  folder.write("b.txt", "two\n");
  mkdir((folder.path + "/inner").c_str(), 0777);
  ConsoleSession session(driver(), command(editor(), folder.path + "/a.txt"), 40, 8);
  session.type("\x1b" "o");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "Open " + folder.path + "/");
  for (const char* entry : {"./", "../", "a.txt", "b.txt", "inner/"}) {
    EXPECT_TRUE(screenhas(session, entry)) << entry;
  }
  session.type("inner/\n");  // into a directory
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "Open " + folder.path + "/inner/");
  session.type("../b.txt\n");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "File " + folder.path + "/b.txt");
  EXPECT_EQ(session.terminal.row(1), "two,");
  session.type("\x1b" "wc.txt\n");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "File " + folder.path + "/c.txt");
  EXPECT_EQ(folder.read("c.txt"), "two\n");
}

TEST(Editor, AKeyHeldDownIsAsManyPresses) {
  ConsoleSession session(driver(), command(editor()), 40, 6);
  session.key('X', 0, 3);
  session.key('Y', 0, 0);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(1), "xxxy");
}

TEST(Editor, EvaluatesAndShowsTheResult) {
  ConsoleSession session(driver(), command(editor()), 40, 6);
  session.type("1+2");
  session.type("\x1b" "e");
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(0), "Eval 3");
  EXPECT_EQ(session.terminal.row(1), "1+2");
}

TEST(Editor, FollowsTheWindow) {
  Folder folder;
  folder.write("a.txt", "0123456789abcdef\n");
  ConsoleSession session(driver(), command(editor(), folder.path + "/a.txt"), 40, 8);
  EXPECT_EQ(session.terminal.row(1), "0123456789abcdef,");
  session.resize(10, 6);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(1), "0123456789");
  EXPECT_EQ(session.terminal.row(2), "abcdef,");
  session.resize(60, 20);
  ASSERT_TRUE(session.settle());
  EXPECT_EQ(session.terminal.row(1), "0123456789abcdef,");
}

TEST(Editor, EndsInAWindowTooSmall) {
  ConsoleSession session(driver(), command(editor()), 40, 8);
  session.resize(6, 8);
  ASSERT_TRUE(session.finish());
  EXPECT_EQ(session.status, 1u);
  EXPECT_NE(session.output.find("\x1b[1;1HTarn cannot recover from windows less than 7,2\n"),
            std::string::npos);
}

TEST(Editor, EndsByTheInterrupt) {
  ConsoleSession session(driver(), command(editor()), 40, 8);
  session.interrupt();
  EXPECT_TRUE(session.finish());
}

TEST(Editor, RefusesWhatIsNoFile) {
  ConsoleSession session(driver(), command(editor(), "/tmp"), 40, 8);
  ASSERT_TRUE(session.finish());
  EXPECT_EQ(session.status, 1u);
  EXPECT_EQ(session.output, "Cannot open file: /tmp\n");
}

}  // namespace
}  // namespace tarn

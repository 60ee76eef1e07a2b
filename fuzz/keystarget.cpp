// Bytes as a file and the keys of a session with it, resizes and pauses between them:
//
//   columns, rows, the text of the file, 255, what the played console takes (console.h)
//
// At the end everything must be in order, painting from nothing must show what is shown, and
// undoing all must give the file's text back. Kept from the editor are the keys that would reach
// beyond the directory of the target, end the process by rule, or make too much text.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "editor/chooser.h"
#include "editor/commands.h"
#include "editor/grid.h"
#include "editor/history.h"
#include "editor/kink.h"
#include "editor/mainloop.h"
#include "editor/paint.h"
#include "editor/paths.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/wholefile.h"
#include "editor/window.h"
#include "foundation/diag.h"
#include "fuzz/console.h"
#include "fuzz/directory.h"
#include "fuzz/language.h"
#include "fuzz/target.h"
#include "graph/reduce.h"

namespace tarn {

namespace {

constexpr int64_t mosttext = 20000;
constexpr int64_t mostclip = 2000;
constexpr int64_t mostdigits = 3;    // of a count
constexpr int64_t moststeps = 300;   // of all evaluations of a session

bool touched;    // a file may have changed
bool forgotten;  // some of what was done to the file's text cannot be undone

// --- The keys that are kept away -----------------------------------------------------------------

constexpr KeyText quit = {1, {7}};

bool inprompt(uint8_t key) { return line.len() >= 2 && line.at(0) == 0x1B && line.at(1) == key; }

// A plain name in the directory or the one below it.
bool iswithin(const Str& path) {
  std::string top = targetdirectory() + "/";
  std::string text(path.text(), static_cast<size_t>(path.len()));
  if (text + "/" == top) return true;
  if (!text.starts_with(top)) return false;
  text = text.substr(text.starts_with(top + "sub/") ? top.size() + 4 : top.size());
  return text.size() < 60 && text.find('/') == text.npos && text.find('\0') == text.npos;
}

bool maysave() { return currentname == dotname || iswithin(currentname); }

bool isendless(uint8_t key) {
  return inprompt('t') && (key < '0' || key > '9') && stat.len() > mostdigits;
}

bool istoolong() { return size(currentsheet()) > mosttext || clip.len() > mostclip; }

bool isallowed(uint8_t key) {
  if (key == 3) return false;
  if (key == '\n' && (inprompt('o') || inprompt('w'))) return iswithin(chooserpath(stat));
  if (key == 0x17) return maysave();
  if (istoolong()) return key == 0x1F || key == 7;
  return !isendless(key);
}

// What cannot be undone: forgetting, closing, saving under another name.
void notekey(uint8_t key, bool meta) {
  if (key == '\n' && inprompt('w')) touched = forgotten = true;
  if (key == 0x17) touched = true;
  if (inprompt('b') || key == '\t' || (meta && (key == 'd' || key == 'c'))) forgotten = true;
}

void filterkey(KeyText& key) {
  for (int i = 0; i < key.n; i++) {
    if (!isallowed(key.bytes[i])) key = quit;
  }
  bool meta = line.len() == 1 && line.at(0) == 0x1B;
  for (int i = 0; i < key.n; i++) {
    notekey(key.bytes[i], meta);
    meta = key.bytes[i] == 0x1B;
  }
}

// --- A session -----------------------------------------------------------------------------------

void makefiles() {
  cleardirectory();
  fillfile("other", "(a + b[c]) \\ x, f \\ y\nz");
  std::filesystem::create_directory(targetdirectory() + "/sub");
  touched = false;
}

void closeall() {
  std::vector<Str> names;
  for (const auto& [name, s] : sheets) names.push_back(name);
  for (const Str& name : names) closefile(name);
}

void resetstate() {
  closeall();
  line = stat = clip = Str();
  repaint = paintfile;
  suppressed = painted = showsfault = false;
  killchain = true;
  statshift = selected = 0;
  mark = -1;
  inkmode = 3;
  kink = defaultkink;
  srand(0);
}

void opentext(const Str& path, const Str& text) {
  openrecord(path);
  sheets[path] = sheetnew(text);
  currentname = path;
}

Str filepath(const char* name) {
  return Str(targetdirectory().c_str()) + "/" + name;
}

Str opensession(Source& input) {
  width = columnsof(onebyte(input));
  height = rowsof(onebyte(input));
  const uint8_t* end = std::find(input.at, input.end, 255);
  fillfile("file", std::string(input.at, end));
  input.at = end == input.end ? end : end + 1;
  sheets[dotname] = openrecord(dotname);
  Str text = readwhole(filepath("file"));
  opentext(filepath("file"), text);
  forgotten = false;
  return text;
}

void openscreen() {
  gridreset();
  showpoint(currentsheet());
  stat = currentname;
  repaint();
}

void play(Source input) {
  consoleplay(input, width, height, filterkey);
  while (consolemore()) mainloop();
  mainloop();  // paints what is owed
}

// Out of half a key and of any prompt.
void leaveall() {
  static constexpr uint8_t keys[] = {7, 7, 7};
  play({keys, keys + sizeof keys});
  check(line.empty());
}

// --- What must hold at the end -------------------------------------------------------------------

void checksheets() {
  for (const auto& [name, s] : sheets) {
    check(s.point >= 0 && s.point <= size(s));
    check(s.top >= 0 && s.top <= s.point);
    check(flatten(s).len() == size(s));
    if (isclean(s)) check(flatten(s) == s.saved);
  }
  sheet& s = currentsheet();
  check(mark >= -1 && mark <= size(s));
  check(rowstart(s, s.top) == s.top);
  check(pointshows(s));
}

void checkscreen() {
  size_t cells = static_cast<size_t>(width * height);
  std::vector<Cell16> before(showngrid(), showngrid() + cells);
  gridreset();
  repaint();
  check(std::equal(before.begin(), before.end(), showngrid()));
}

void checkundo(const Str& path, const Str& text) {
  if (forgotten || !sheets.contains(path)) return;
  currentname = path;
  while (editback()) continue;
  check(flatten(currentsheet()) == text);
}

}  // namespace

void targetstart() {
  home = cwdpath = Str(targetdirectory().c_str()) + "/";
  makefiles();
  Source nothing = {nullptr, nullptr};
  opensession(nothing);
  openscreen();
  static constexpr uint8_t evaluate[] = {0x1B, 'e'};
  play({evaluate, evaluate + 2});  // the first evaluation hands in all builtins
  fuzzinstall();
}

std::string targetrun(const std::string& input) {
  resetstate();
  if (touched) makefiles();
  reducelimit(reducesteps() + moststeps);
  Source source = sourceof(input);
  Str text = opensession(source);
  openscreen();
  play(source);
  leaveall();
  checksheets();
  checkscreen();
  checkundo(filepath("file"), text);
  return {};
}

// Half of the keys are printable, the rest of all kinds.
static std::string madekey(uint64_t (*next)()) {
  static constexpr const char* sequences[] = {
      "\x1b[A",  "\x1b[B",  "\x1b[C",  "\x1b[D",  "\x1b[5~",     "\x1b[6~", "\x1b[3~",
      "\x1bo",   "\x1bwnew\n", "\x1bt9x", "\x1b\x65", "\x1bxa\tbc\t", "\xff\x01"};
  std::string byte(1, static_cast<char>(next() % 32));
  switch (next() % 10) {
    case 0: return "\xff\xf0" + byte + std::string(1, static_cast<char>(next()));
    case 1: return sequences[next() % std::size(sequences)];
    case 2: return "\x1b" + std::string(1, static_cast<char>('a' + next() % 26));
    case 3:
    case 4: return byte;
    default: return std::string(1, static_cast<char>(32 + next() % 96));
  }
}

std::string targetmade(uint64_t (*next)()) {
  std::string input = {static_cast<char>(next()), static_cast<char>(next())};
  for (uint64_t n = next() % 200; n > 0; n--) input += static_cast<char>(next() % 255);
  input += '\xff';
  for (uint64_t n = next() % 100; n > 0; n--) input += madekey(next);
  return input;
}

}  // namespace tarn

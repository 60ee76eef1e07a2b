// Tab: the list of all buffers, and the name typed to pick one.
//
// The list stands below row 0, page by page, and row 0 is the typed name on every page. So with a
// height of 4 the index `selected` counts like this:
//
//   0  the typed name       4  the typed name
//   1  entry 0              5  entry 3
//   2  entry 1              6  entry 4
//   3  entry 2              7  entry 5
#include "editor/bufferlist.h"

#include <algorithm>
#include <vector>

#include "editor/commands.h"
#include "editor/grid.h"
#include "editor/lists.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"

namespace tarn {

using namespace std::literals;

// The segments of a text between its "/", in reverse, joined by "/".
static Str reversesegments(const Str& text) {
  Str result;
  int64_t end = text.len();
  for (int64_t i = text.len() - 1; i >= 0; i--) {
    if (text.at(i) != '/') continue;
    result += text.substr(i + 1, end - i - 1) + "/";
    end = i;
  }
  return result + text.substr(0, end);
}

Str reversedname(const Str& path) {
  if (path.empty() || path.at(0) != '/') return path;
  return reversesegments(path.substr(1));
}

Str pathofreversed(const Str& name) {
  if (name == ".") return name;
  return "/" + reversesegments(name);
}

// The height that `selected` counts by: that of the screen when it was set.
static int64_t tabsheight = 0;

// The first byte of each name that is shown.
static int64_t entryshift = 0;

static int64_t pagerows() { return tabsheight - 1; }
static int64_t indexof(int64_t entry) {
  return entry / pagerows() * tabsheight + entry % pagerows() + 1;
}
static bool ontyped() { return selected % tabsheight == 0; }
static int64_t firstofpage() { return selected / tabsheight * pagerows(); }
static int64_t pickedentry() { return firstofpage() + selected % tabsheight - 1; }

// After a resize, lets `selected` stand for the same entry again, or for the typed name of the page
// that begins with the same one.
static void followresize() {
  if (tabsheight == height) return;
  bool typed = ontyped();
  int64_t entry = typed ? firstofpage() : pickedentry();
  tabsheight = height;
  selected = indexof(entry);
  if (typed) selected -= selected % tabsheight;
}

static int64_t typedcolumn() { return std::min(width - 1, 5 + stat.len() - statshift); }

static Str shifted(const Str& name) { return name.substr(std::min(entryshift, name.len())); }

static void painttabs() {
  if (deferpaint()) return;
  followresize();
  listground("Tabs");
  int64_t first = firstofpage();
  for (int64_t row = 1; row < height && first + row - 1 < listcount(); row++) {
    listfield(row, 0, width, shifted(listname(first + row - 1)), row == selected % height);
  }
  paintdiff(ontyped() ? typedcolumn() : 0, selected % height);
}

static void entertabs() {
  std::vector<Str> names;
  for (const auto& [name, s] : sheets) names.push_back(reversedname(name));
  listset(std::move(names));
  selected = 0;
  entryshift = 0;
  tabsheight = height;
  repaint = painttabs;
  setstat("");
}

static void picktyped() {
  Str path = pathofreversed(stat);
  if (sheets.contains(path)) return switchbuffer(path);
  int64_t found = listfind(stat);
  if (found < 0) return chirp();
  setstat(listname(found));
}

static void pick() {
  followresize();
  if (ontyped()) return picktyped();
  switchbuffer(pathofreversed(listname(pickedentry())));
}

static void typetabs(uint8_t key) {
  Str typed = stat + strbyte(key);
  selected = 0;
  if (listfind(typed) < 0) return chirp();
  setstat(typed);
}

static void previousentry() {
  followresize();
  if (selected == 0) return chirp();
  selected--;
}

static void nextentry() {
  followresize();
  if (selected == indexof(listcount() - 1)) return chirp();
  selected++;
}

static void topofpage() {
  followresize();
  selected -= selected % tabsheight;
}

static void shiftright() {
  if (entryshift + 1 >= listwidth()) return chirp();
  entryshift++;
}

static void shiftleft() {
  if (entryshift == 0) return chirp();
  entryshift--;
}

static constexpr PromptKey tabskeys[] = {
    {"\n"sv, pick},
    {"\x7F"sv, dropstat},
    {"\x08"sv, topofpage},      // C-h
    {"\x10"sv, previousentry},  // C-p
    {"\x0E"sv, nextentry},      // C-n
    {"\x06"sv, shiftright},     // C-f
    {"\x02"sv, shiftleft},      // C-b
    {"\x1Br"sv, redink},
    {"\x1Bg"sv, greenink},
    {"\x1By"sv, yellowink},
};
static constexpr Prompt tabsprompt = {1, entertabs, tabskeys, typetabs, chirp};

void tarndoci() { runprompt(tabsprompt); }

}  // namespace tarn

// Open and Save: the prompts for files, with the list of a directory.
//
// The list fills the rows below row 0 column by column, as many columns as fit, and shows the page
// that holds the picked entry. `stat` is the path: typed, or of the picked entry.
#include "editor/chooser.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "editor/commands.h"
#include "editor/directory.h"
#include "editor/grid.h"
#include "editor/history.h"
#include "editor/lists.h"
#include "editor/paint.h"
#include "editor/paths.h"
#include "editor/prompts.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/wholefile.h"

namespace tarn {

using namespace std::literals;

static bool endswith(const Str& text, const char* tail) {
  Str end = tail;
  return text.len() >= end.len() && text.substr(text.len() - end.len()) == end;
}

Str chooserpath(const Str& text) {
  if (text.empty()) return "";
  bool directory = text == "." || text == ".." || endswith(text, "/") || endswith(text, "/.") ||
                   endswith(text, "/..");
  return directory ? normalisedir(text) : normalise(text);
}

// --- The list ------------------------------------------------------------------------------------

static bool saving = false;  // which of the two prompts it is; Save lists directories only
static Str listed = "/";     // the directory listed, with "/" at its end

// Lists a directory, which ends in "/", and picks its first entry; the bell if it cannot be read.
// On purpose: "../" comes before "./", as all entries are sorted alike.
static void listdirectory(const Str& path) {
  listed = path;
  selected = 0;
  std::vector<Str> names = {"./"};
  if (path != "/") names.push_back("../");
  std::vector<DirectoryEntry> found;
  if (!readdirectory(path, found)) chirp();
  for (const DirectoryEntry& entry : found) {
    if (entry.isdirectory) names.push_back(entry.name + "/");
    if (!entry.isdirectory && !saving) names.push_back(entry.name);
  }
  listset(std::move(names));
}

static int64_t columnrows() { return height - 1; }
static int64_t columnwidth() { return listwidth() + 1; }
static int64_t pagecolumns() { return std::max<int64_t>(1, (width + 1) / columnwidth()); }
static int64_t pagesize() { return columnrows() * pagecolumns(); }

static void paintlist(const char* word) {
  if (deferpaint()) return;
  listground(word);
  int64_t first = selected / pagesize() * pagesize();
  int64_t last = std::min(listcount(), first + pagesize());
  for (int64_t i = first; i < last; i++) {
    int64_t column = (i - first) / columnrows();
    bool atedge = column == pagecolumns() - 1;
    int64_t col = column * columnwidth();
    listfield(1 + (i - first) % columnrows(), col, atedge ? width - col : columnwidth(),
              listname(i), i == selected);
  }
  paintdiff(0, 1 + (selected - first) % columnrows());
}

static void paintopen() { paintlist("Open"); }
static void paintsave() { paintlist("Save"); }

// --- The keys of the list ------------------------------------------------------------------------

// Every move shows the path of the entry picked, so that Return opens what is lit.
static void pick(int64_t entry) {
  selected = entry;
  setstat(chooserpath(listed + listname(entry)));
}

static void previousentry() { pick(selected == 0 ? listcount() - 1 : selected - 1); }
static void nextentry() { pick(selected == listcount() - 1 ? 0 : selected + 1); }

static void nextcolumn() {
  if (selected + columnrows() < listcount()) pick(selected + columnrows());
}

static void previouscolumn() {
  if (selected - columnrows() >= 0) pick(selected - columnrows());
}

static void nextpage() { pick(std::min(listcount() - 1, selected + pagesize())); }
static void previouspage() { pick(std::max<int64_t>(0, selected - pagesize())); }

static void typepath(uint8_t key) { setstat(stat + strbyte(key)); }

// Shows another directory in the same prompt.
static void godirectory(const Str& path) {
  listdirectory(path);
  setstat(path);
}

static void enterchooser(bool forsave, const Str& directory) {
  saving = forsave;
  repaint = saving ? paintsave : paintopen;
  godirectory(directory);
}

// --- Open ----------------------------------------------------------------------------------------

// Whether a file can be opened and fits in a text.
static bool readable(const Str& path) {
  if (filesize(path) > sizelimit) return false;
  FILE* file = fopen(path.text(), "r");
  if (file == nullptr) return false;
  fclose(file);
  return true;
}

static void openfile(const Str& path) {
  if (!readable(path)) return chirp();
  sheet made = sheetnew(readwhole(path));
  openrecord(path);
  sheets[path] = made;
  switchbuffer(path);
}

// An open buffer comes first, whether its file still exists or not.
static void openpicked() {
  Str path = chooserpath(stat);
  if (sheets.contains(path)) return switchbuffer(path);
  if (isfile(path)) return openfile(path);
  if (isdir(path)) return godirectory(normalisedir(path));
  chirp();
}

static void enteropen() {
  enterchooser(false, currentname == dotname ? cwdpath : parentdir(currentname));
}

// --- Save ----------------------------------------------------------------------------------------

// Saves the current buffer under its own name, changed or not.
static void saveagain(const Str& path) {
  sheet& s = currentsheet();
  Str text = flatten(s);
  writewhole(path, text);
  markclean(s, text);
  leave();
}

// Saves the current buffer under a new name. On purpose: an existing file is replaced without a
// question, and the old buffer is closed, history and all. The scratch buffer stays as it is.
static void savenew(const Str& path) {
  Str text = flatten(currentsheet());
  writewhole(path, text);
  Str old = currentname;
  openrecord(path);
  sheets[path] = sheetnew(text);
  switchbuffer(path);
  if (old != dotname) closefile(old);
}

// Closes a buffer of that name, if there is one; false if its changes would be lost.
static bool freename(const Str& path) {
  auto open = sheets.find(path);
  if (open == sheets.end()) return true;
  if (!isclean(open->second)) return false;
  closefile(path);
  return true;
}

static void savepicked() {
  Str path = chooserpath(stat);
  if (isdir(path)) return godirectory(normalisedir(path));
  if (path.empty() || endswith(path, "/")) return chirp();
  if (path == currentname) return saveagain(path);
  if (!freename(path)) return chirp();
  savenew(path);
}

static void entersave() {
  enterchooser(true, currentname == dotname ? "/" : parentdir(currentname));
}

static void pickpath() { saving ? savepicked() : openpicked(); }

static constexpr PromptKey chooserkeys[] = {
    {"\n"sv, pickpath},
    {"\x7F"sv, dropstat},
    {"\x10"sv, previousentry},   // C-p
    {"\x0E"sv, nextentry},       // C-n
    {"\x06"sv, nextcolumn},      // C-f
    {"\x02"sv, previouscolumn},  // C-b
    {"\x04"sv, nextpage},        // C-d
    {"\x15"sv, previouspage},    // C-u
};
static constexpr Prompt openprompt = {2, enteropen, chooserkeys, typepath, replay};
static constexpr Prompt saveprompt = {2, entersave, chooserkeys, typepath, replay};

void tarndomo() { runprompt(openprompt); }
void tarndomw() { runprompt(saveprompt); }

}  // namespace tarn

// Find and Mark: the prompts that search with every key. Find goes to what is typed and lights
// every match; Mark selects from where it began to where the search has led.
#include <algorithm>
#include <vector>

#include "editor/commands.h"
#include "editor/grid.h"
#include "editor/match.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "editor/window.h"
#include "foundation/alphabet.h"

namespace tarn {

using namespace std::literals;

// What Find lights in the window; made anew for each paint.
struct Lit {
  int64_t from;           // the offset of the first byte that has a flag
  std::vector<bool> lit;  // a flag for each byte from there on: it lies in a match
};

static Lit lit;

// Walks over the window and somewhat beyond both its ends: a match may begin above it, and one that
// ends below it is known by its last byte only.
static void lightmatches(sheet& s) {
  int64_t end = std::min(size(s), windowbottom(s));
  lit.from = s.top;
  lit.lit.assign(static_cast<size_t>(std::max<int64_t>(0, end - s.top)), false);
  if (stat.empty()) return;
  Pattern p = patternmake(stat);
  reader r = readsheet(s);
  uint64_t state = 1;
  int64_t done = s.top;  // all flags before it are as they will be
  int64_t stop = std::min(size(s), end + p.length - 1);
  for (int64_t i = std::max<int64_t>(0, s.top - p.length); i < stop; i++) {
    state = patternstep(p, state, readbyte(r, i));
    if (!patternhit(p, state)) continue;
    for (done = std::max(done, i + 1 - p.length); done < std::min(end, i + 1); done++) {
      lit.lit[static_cast<size_t>(done - lit.from)] = true;
    }
  }
}

static bool islit(int64_t offset) {
  int64_t i = offset - lit.from;
  return i < static_cast<int64_t>(lit.lit.size()) && lit.lit[static_cast<size_t>(i)];
}

static void paintfind() {
  if (deferpaint()) return;
  lightmatches(currentsheet());
  Spot spot = drawtext(islit);
  paintword("Find");
  paintdiff(spot.col, spot.row);
}

static void paintmark() { paintsheet("Mark"); }

// --- The parts of both ---------------------------------------------------------------------------

// Goes to the next match, or the one before. False, with the bell, if there is none or if the
// search has come round.
static bool searchon(bool forward) {
  sheet& s = currentsheet();
  int64_t before = s.point;
  bool found = !stat.empty() && searchfrom(s, stat, forward);
  bool straight = found && (forward ? s.point > before : s.point < before);
  if (!straight) chirp();
  return straight;
}

static void nextmatch() { searchon(true); }
static void previousmatch() { searchon(false); }

// Takes one byte more into the pattern and goes to the next match; the byte is dropped if there is
// none. A full pattern takes no more.
static void typepattern(uint8_t byte) {
  if (stat.len() == patternlimit) return;
  Str shorter = stat;
  int64_t before = currentsheet().point;
  setstat(stat + strbyte(byte));
  searchon(true);
  if (currentsheet().point == before) setstat(shorter);
}

static void droppattern() {
  dropstat();
  showpoint(currentsheet());
}

// --- Find ----------------------------------------------------------------------------------------

static int64_t origin = 0;  // the point at the start of the search

static void enterfind() {
  origin = currentsheet().point;
  repaint = paintfind;
  setstat("");
}

// On purpose: takes no ink, unlike Mark, as the letters of a pattern stand for classes.
static void typefind(uint8_t key) { typepattern(key); }

static void goorigin() { movepoint(currentsheet(), origin); }

static void cancelfind() {
  goorigin();
  leave();
}

// Goes on to the first match above the window, or below it, as the window stands when the key
// comes.
static void matchesabove() {
  int64_t top = currentsheet().top;
  while (searchon(false) && currentsheet().point >= top) {}
}

static void matchesbelow() {
  int64_t bottom = windowbottom(currentsheet());
  while (searchon(true) && currentsheet().point < bottom) {}
}

static void gostart() { movepoint(currentsheet(), 0); }
static void goend() { movepoint(currentsheet(), size(currentsheet())); }

static constexpr PromptKey findkeys[] = {
    {"\x14"sv, nextmatch},      // C-t
    {"\x08"sv, previousmatch},  // C-h
    {"\x15"sv, matchesabove},   // C-u
    {"\x04"sv, matchesbelow},   // C-d
    {"\x7F"sv, droppattern},
    {"\x07"sv, cancelfind},     // C-g
    {"\x1Br"sv, redink},
    {"\x1Bg"sv, greenink},
    {"\x1By"sv, yellowink},
    {"\t"sv, goorigin},
    {"\x1Bh"sv, gostart},
    {"\x1B" "f"sv, goend},
};
static constexpr Prompt findprompt = {2, enterfind, findkeys, typefind, replay};

void tarndoms() { runprompt(findprompt); }

// --- Mark ----------------------------------------------------------------------------------------

static void setmark() { mark = currentsheet().point; }

static void entermark() {
  setmark();
  repaint = paintmark;
  setstat("");
}

static void typemark(uint8_t key) { typepattern(nopqchar(inkmode, key)); }

static void othermark() {
  mark = -1;
  replay();
}

static constexpr PromptKey markkeys[] = {
    {"\t"sv, setmark},
    {"\x14"sv, nextmatch},      // C-t
    {"\x1Bh"sv, previousmatch},
    {"\x7F"sv, droppattern},
    {"\x18"sv, tarndocx},       // C-x
    {"\x07"sv, leaveunmarked},     // C-g
    {"\x1Bx"sv, replay},        // the commands that take the selection
    {"\x1B" "e"sv, replay},
    {"\x1Bi"sv, replay},
    {"\x0B"sv, replay},         // C-k
};
static constexpr Prompt markprompt = {2, entermark, markkeys, typemark, othermark};

void tarndomj() { runprompt(markprompt); }

}  // namespace tarn

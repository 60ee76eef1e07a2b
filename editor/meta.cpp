// Meta: where the point is, and a way to type a control key as Escape, m and its letter.
#include "editor/commands.h"
#include "editor/paint.h"
#include "editor/prompts.h"
#include "editor/reader.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "foundation/place.h"

namespace tarn {

using namespace std::literals;

static constexpr int64_t bytelength = 16;  // of "byte:" and two places of five digits

static void paintmeta() { paintsheet("Meta"); }

static void entermeta() {
  const sheet& s = currentsheet();
  repaint = paintmeta;
  setstat("byte:" + placename(s.point) + "/" + placename(size(s)));
}

// Lines are counted from 1; the text behind the last newline is one, even if it is empty.
static int64_t pointline(reader& r, const sheet& s) { return newlinecount(r, 0, s.point) + 1; }

static void addline() {
  if (stat.len() != bytelength) return chirp();
  const sheet& s = currentsheet();
  reader r = readsheet(s);
  setstat(stat + " line:" + strnumber(pointline(r, s)));
}

static void addlines() {
  const sheet& s = currentsheet();
  reader r = readsheet(s);
  int64_t pointed = pointline(r, s);
  int64_t lines = pointed + newlinecount(r, s.point, size(s));
  setstat(stat.substr(0, bytelength) + " line:" + strnumber(pointed) + "/" + strnumber(lines));
}

// Lets a letter act as its control key, "_" as C-_, and a space as NUL.
static void control(uint8_t key) {
  bool letter = key >= 'a' && key <= 'z';
  if (letter || key == '_' || key == ' ') {
    line = line.substr(0, 2) + strbyte(letter || key == '_' ? key & 0x1F : 0);
  }
  replay();
}

static constexpr PromptKey metakeys[] = {{"\t"sv, addline}, {"\n"sv, addlines}};
static constexpr Prompt metaprompt = {2, entermeta, metakeys, control, replay};

void tarndomm() { runprompt(metaprompt); }

}  // namespace tarn

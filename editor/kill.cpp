// The cut buffer: what fills it, and the paste that puts it into a text.
#include "editor/commands.h"
#include "editor/history.h"
#include "editor/reader.h"
#include "editor/selection.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "editor/status.h"
#include "foundation/strbuilder.h"

namespace tarn {

// What an unbroken row of C-k has cut since the first of them; null for nothing. It is joined to
// `clip` only when that is pasted, so that each C-k costs no more than what it cuts.
static StrBuilder* gathered = nullptr;

static void setclip(const Str& text) {
  StrBuilder::free(gathered);
  gathered = nullptr;
  clip = text;
}

static const Str& joinedclip() {
  if (gathered != nullptr) clip += StrBuilder::take(gathered);
  gathered = nullptr;
  return clip;
}

// Cuts the selection, leaving the point where it began.
static void killselection(sheet& s) {
  Range cut = selection(s);
  mark = -1;
  setstat(currentname);
  if (cut.low == cut.high) return chirp();
  setclip(stretch(s, cut.low, cut.high));
  setpoint(s, cut.low);
  opdelete(clip);
}

// The rest of the line, or its newline where nothing else is left of it.
static Str restofline(const sheet& s) {
  int64_t end = lineend(s, s.point);
  return stretch(s, s.point, end == s.point ? end + 1 : end);
}

void tarndock() {
  sheet& s = currentsheet();
  if (mark >= 0) return killselection(s);
  if (s.point == size(s)) {
    killchain = true;
    return chirp();
  }
  Str cut = restofline(s);
  if (killchain) {
    setclip(cut);
  } else {
    gathered = StrBuilder::add(gathered, cut);
  }
  killchain = false;
  opdelete(cut);
}

void tarnpaste() {
  if (!oppaste(joinedclip())) chirp();
}

void tarndoma() { setclip(stat); }

void tarndomz() { setclip(flatten(currentsheet())); }

}  // namespace tarn

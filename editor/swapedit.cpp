// Replacing all occurrences of one text within a range by another.
//
// The data of the oper, whose t is the start of the range; numbers are 32-bit words:
//
//   end of the range │ its end afterwards │ length, old │ length, fresh │ the range as it stood
//
// The range is stored whole, as what was made cannot be told from what was there: in "ab", "b" for
// "aa" gives "aaa".
#include <cstring>
#include <string_view>

#include "editor/edits.h"
#include "editor/history.h"
#include "editor/window.h"
#include "foundation/diag.h"
#include "foundation/text.h"

namespace tarn {

using View = std::string_view;

static View viewof(const Str& s) { return {s.text(), static_cast<size_t>(s.len())}; }

static int64_t occurrences(View text, View old) {
  int64_t count = 0;
  for (size_t i = text.find(old); i != View::npos; i = text.find(old, i + old.size())) count++;
  return count;
}

static uint8_t* putbytes(uint8_t* out, View from) {
  if (!from.empty()) memcpy(out, from.data(), from.size());
  return out + from.size();
}

static void putreplaced(uint8_t* out, View text, View old, View fresh) {
  size_t from = 0;
  for (size_t i; (i = text.find(old, from)) != View::npos; from = i + old.size()) {
    out = putbytes(out, text.substr(from, i - from));
    out = putbytes(out, fresh);
  }
  putbytes(out, text.substr(from));
}

// The parts of an oper's data. The texts lie in the data, so that a large one is not held twice.
struct SwapData {
  int64_t end;       // of the range
  int64_t endafter;  // of what it has become
  View old;          // never empty
  View fresh;        // may be empty
  View before;       // the range as it stood
};

static Str number(int64_t n) { return str4(static_cast<uint32_t>(n)); }

static Str packswap(int64_t end, int64_t endafter, const Str& old, const Str& fresh,
                    const Str& before) {
  return number(end) + number(endafter) + number(old.len()) + old + number(fresh.len()) + fresh +
         before;
}

static int64_t numberat(const Str& data, int64_t i) { return word4(data.substr(i, 4)); }

static SwapData unpackswap(const Str& data) {
  check(data.len() >= 16);
  View all = viewof(data);
  size_t oldlength = static_cast<size_t>(numberat(data, 8));
  check(16 + oldlength <= all.size());
  size_t freshlength = static_cast<size_t>(numberat(data, 12 + static_cast<int64_t>(oldlength)));
  check(16 + oldlength + freshlength <= all.size());
  return {numberat(data, 0), numberat(data, 4), all.substr(12, oldlength),
          all.substr(16 + oldlength, freshlength), all.substr(16 + oldlength + freshlength)};
}

// The data of a replacement; empty if it has no place, or the text would grow too long.
static Str swapdata(int64_t from, int64_t to, const Str& old, const Str& fresh) {
  const sheet& s = currentsheet();
  Str before = stretch(s, from, to);
  int64_t count = occurrences(viewof(before), viewof(old));
  int64_t growth = count * (fresh.len() - old.len());
  if (count == 0 || !fits(s, growth)) return Str();
  return packswap(to, to + growth, old, fresh, before);
}

bool opreplace(int64_t from, int64_t to, const Str& old, const Str& fresh) {
  if (old.empty()) return false;
  Str data = swapdata(from, to, old, fresh);
  return !data.empty() && carry(opswapped, from, data);
}

// The text with n bytes, not yet set, in the place of those from `from` to `to`.
static Str gapped(const sheet& s, int64_t from, int64_t to, int64_t n) {
  int64_t behind = size(s) - to;
  if (from + n + behind == 0) return Str();
  Str text = strsized(from + n + behind);
  copybytes(s, 0, from, text.own());
  copybytes(s, to, size(s), text.own() + from + n);
  return text;
}

// Both keep the point at its offset.

void todoswapped(sheet& s, const oper& o) {
  SwapData d = unpackswap(o.data);
  Str text = gapped(s, opert(o), d.end, d.endafter - opert(o));
  putreplaced(text.own() + opert(o), d.before, d.old, d.fresh);
  retext(s, text);
  showpoint(s);
}

void undoswapped(sheet& s, const oper& o) {
  SwapData d = unpackswap(o.data);
  Str text = gapped(s, opert(o), d.endafter, static_cast<int64_t>(d.before.size()));
  putbytes(text.own() + opert(o), d.before);
  retext(s, text);
  showpoint(s);
}

}  // namespace tarn

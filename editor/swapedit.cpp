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
#include "foundation/text.h"

namespace tarn {

static std::string_view viewof(const Str& s) {
  return {s.text(), static_cast<size_t>(s.len())};
}

static int64_t occurrences(const Str& text, const Str& old) {
  int64_t count = 0;
  size_t i = viewof(text).find(viewof(old));
  while (i != std::string_view::npos) {
    count++;
    i = viewof(text).find(viewof(old), i + viewof(old).size());
  }
  return count;
}

static uint8_t* putbytes(uint8_t* out, const uint8_t* from, size_t n) {
  if (n != 0) memcpy(out, from, n);
  return out + n;
}

static Str replaced(const Str& text, const Str& old, const Str& fresh) {
  int64_t growth = occurrences(text, old) * (fresh.len() - old.len());
  if (text.len() + growth == 0) return Str();
  Str made = strsized(text.len() + growth);
  uint8_t* out = made.own();
  size_t from = 0;
  for (;;) {
    size_t i = viewof(text).find(viewof(old), from);
    if (i == std::string_view::npos) break;
    out = putbytes(out, text.bytes() + from, i - from);
    out = putbytes(out, fresh.bytes(), static_cast<size_t>(fresh.len()));
    from = i + static_cast<size_t>(old.len());
  }
  putbytes(out, text.bytes() + from, static_cast<size_t>(text.len()) - from);
  return made;
}

struct SwapData {
  int64_t end;
  int64_t endafter;
  Str old;
  Str fresh;
  Str before;
};

static Str number(int64_t n) { return str4(static_cast<uint32_t>(n)); }

static Str packswap(const SwapData& d) {
  return number(d.end) + number(d.endafter) + number(d.old.len()) + d.old + number(d.fresh.len()) +
         d.fresh + d.before;
}

static int64_t numberat(const Str& data, int64_t i) { return word4(data.substr(i, 4)); }

static SwapData unpackswap(const Str& data) {
  check(data.len() >= 16);
  SwapData d = {numberat(data, 0), numberat(data, 4), Str(), Str(), Str()};
  int64_t oldlength = numberat(data, 8);
  d.old = data.substr(12, oldlength);
  int64_t freshlength = numberat(data, 12 + oldlength);
  d.fresh = data.substr(16 + oldlength, freshlength);
  d.before = data.substr(16 + oldlength + freshlength);
  return d;
}

bool opreplace(int64_t from, int64_t to, const Str& old, const Str& fresh) {
  const sheet& s = currentsheet();
  if (old.empty()) return false;
  Str before = stretch(s, from, to);
  int64_t count = occurrences(before, old);
  int64_t growth = count * (fresh.len() - old.len());
  if (count == 0 || !fits(s, growth)) return false;
  return carry(opswapped, from, packswap({to, to + growth, old, fresh, before}));
}

// Puts `middle` in the place of the bytes from `from` to `to`; the point stays at its offset.
static void splice(sheet& s, int64_t from, int64_t to, const Str& middle) {
  int64_t n = size(s) - (to - from) + middle.len();
  Str text = strsized(n);
  if (n != 0) {
    uint8_t* out = text.own();
    copybytes(s, 0, from, out);
    putbytes(out + from, middle.bytes(), static_cast<size_t>(middle.len()));
    copybytes(s, to, size(s), out + from + middle.len());
  }
  retext(s, text);
  showpoint(s);
}

void todoswapped(sheet& s, const oper& o) {
  SwapData d = unpackswap(o.data);
  splice(s, opert(o), d.end, replaced(d.before, d.old, d.fresh));
}

void undoswapped(sheet& s, const oper& o) {
  SwapData d = unpackswap(o.data);
  splice(s, opert(o), d.endafter, d.before);
}

}  // namespace tarn

// Tidying, in one walk over the text.
#include "frontend/tidy.h"

#include <string>

#include "foundation/chars.h"
#include "frontend/brackets.h"

namespace tarn {

static bool iswhite(uint8_t c) { return c == ' ' || c == '\n'; }

// Whether a run of white space between these two bytes has no meaning. A wing needs none on either
// side.
static bool isloose(uint8_t before, uint8_t after) {
  if (isgluebyte(before) || isgluebyte(after)) return true;
  bool afteropening = before == '(' || before == '{' || before == '}';
  bool beforeclosing = after == ')' || after == '}' || after == '{';
  return afteropening || beforeclosing;
}

Str tidytext(const Str& text) {
  int64_t from = 0;
  int64_t to = text.len();
  while (from < to && iswhite(text.bytes()[from])) from++;
  while (from < to && iswhite(text.bytes()[to - 1])) to--;
  std::string out;
  out.reserve(static_cast<size_t>(to - from));
  for (int64_t i = from; i < to;) {
    uint8_t c = text.bytes()[i];
    int64_t next = i + 1;
    if (iswhite(c)) {
      while (iswhite(text.bytes()[next])) next++;
      if (!isloose(text.bytes()[i - 1], text.bytes()[next])) out += ' ';
    } else {
      if (c == '[') next = skipgroup(text, i) + 1;
      out.append(text.text() + i, static_cast<size_t>(next - i));
    }
    i = next;
  }
  return Str(out.data(), static_cast<int64_t>(out.size()));
}

}  // namespace tarn

// The tests on names.
#include "foundation/chars.h"

#include "foundation/text.h"

namespace tarn {

static bool isoneof(const Str& text, uint8_t classes) {
  return text.len() == 1 && (byteclasses[text.bytes()[0]] & classes) != 0;
}

static bool isbracketed(const Str& text) {
  return text.len() == 3 && text.bytes()[0] == '[' && text.bytes()[2] == ']' &&
         issymbolbyte(text.bytes()[1]);
}

bool isdefinable(const Str& text) {
  return isloweridentifier(text) || isoneof(text, solebyte) || isbracketed(text);
}

Str defname(const Str& text) {
  check(isdefinable(text));
  return text.bytes()[0] == '[' ? text.substr(1, 1) : text;
}

bool isname(const Str& text) {
  return isloweridentifier(text) || isoneof(text, solebyte | symbolbyte);
}

bool isvariable(const Str& text) {
  return text.len() == 1 && text.bytes()[0] >= 'a' && text.bytes()[0] <= 'z';
}

}  // namespace tarn

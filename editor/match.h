// Searching. Each byte of a pattern stands for a class of bytes (charmatch.h). A walk over a text
// follows all matches under way at once, as the bits of a word; where the classes allow it, most of
// the text is passed over by two quick tests.
#pragma once

#include <cstdint>

#include "editor/sheet.h"
#include "foundation/str.h"

namespace tarn {

inline constexpr int64_t patternlimit = 63;  // bytes; with the empty prefix the 64 bits of a word

// Tests one position of a pattern on many bytes at once: byte b can match there only if
// (b & masks[i]) == values[i] for one of the two pairs, or if it is 128 or more. That lets through
// more than match, but little of it stands in texts.
struct Probe {
  int64_t offset;  // of the position in the pattern
  uint8_t masks[2];
  uint8_t values[2];
};

// A pattern made ready. Bit n of the state of a match says that the last n bytes read match the
// first n of the pattern; a byte takes it to `masks[byte] & (state * 2 + 1)`, from 1 at the start.
struct Pattern {
  int64_t length;       // 1 to patternlimit
  uint64_t masks[256];  // bit i + 1: the byte matches at position i; bit 0 always
  bool probed;          // the probes are set
  Probe probe[2];       // of the two positions that tell most, or twice of the only one
};

// The text must not be empty and no longer than the limit.
Pattern patternmake(const Str& text);

inline uint64_t patternstep(const Pattern& p, uint64_t state, uint8_t byte) {
  return p.masks[byte] & (state * 2 + 1);
}
inline bool patternhit(const Pattern& p, uint64_t state) { return (state >> p.length & 1) != 0; }

// The end of the first match that ends behind `from`, going on from the start of the text up to
// `from`; backward the other way round. -1 if there is none. A match that ends at `from` itself
// does not count. On purpose: a search goes round the text, and its end counts as its start does,
// so that from the one a match at the other is not found, and a text of one byte holds none.
int64_t matchfrom(const sheet& s, const Pattern& p, int64_t from, bool forward);

// Moves the point to the next match from it, just behind its last byte, and shows it; false, and
// nothing has moved, if there is none.
bool searchfrom(sheet& s, const Str& pattern, bool forward);

}  // namespace tarn

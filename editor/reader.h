// Reads a text in sequence, in either direction, without a descent of the tree for each byte: it
// holds the stretch of contiguous bytes that was read last, and steps to the shard beside it. Use
// it for every walk: painting, motions, searching. A reader is valid until the text changes.
//
//   reader r = readsheet(s);
//   while (readbyte(r, i) != 10) i++;        // any order of offsets; neighbours are cheapest
#pragma once

#include <cstdint>

#include "editor/sheet.h"

namespace tarn {

struct reader {
  const shard* root;     // the text, lent; null if empty
  const shard* at;       // the shard of the stretch; null before the first read
  const uint8_t* bytes;  // the stretch: text offset start + k is bytes[k]
  int64_t start;         // where the stretch begins in the text
  int64_t length;        // of the stretch; 0 before the first read
};

inline reader readsheet(const sheet& s) {
  if (s.hand == nullptr) return {s.root, nullptr, nullptr, 0, 0};
  return {s.root, s.hand, shardbytes(s.hand), s.handstart, shardlength(s.hand)};
}

// Makes the stretch the one that holds offset i; false, and the reader as it was, outside the text.
bool readto(reader& r, int64_t i);

// The byte at i; 10 for every i outside the text, as byteat.
inline uint8_t readbyte(reader& r, int64_t i) {
  int64_t within = i - r.start;
  if (within >= 0 && within < r.length) return r.bytes[within];
  return readto(r, i) ? r.bytes[i - r.start] : 10;
}

// Searches for newlines remember the longest stretches of memory that had none, so that a key in a
// very long line need not walk it each time. This forgets them; it must be called before bytes that
// runs point into are freed.
void forgetplains();

// The first newline at or behind i that lies before `end`, else `end`, which is at most the size.
int64_t newlinefrom(reader& r, int64_t i, int64_t end);

// The last newline before i that lies at or behind `start`, else start - 1; start is 0 or more and
// at most i, i at most the size.
int64_t newlinebefore(reader& r, int64_t i, int64_t start);

// The newlines in [from, to), which lies within the text.
int64_t newlinecount(reader& r, int64_t from, int64_t to);

// The start and the end of the line that i, 0 to size, stands in: behind the newline before it, and
// at the newline at or behind it (or the end of the text).
int64_t linestart(const sheet& s, int64_t i);
int64_t lineend(const sheet& s, int64_t i);

}  // namespace tarn

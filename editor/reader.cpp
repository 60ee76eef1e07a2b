// Sequential reading, and the searches for newlines on top of it: each stretch of contiguous bytes is
// searched at once.
#include "editor/reader.h"

#include <cstring>

#include "foundation/diag.h"

namespace tarn {

bool readto(reader& r, int64_t i) {
  int64_t within = i - r.start;
  if (within >= 0 && within < r.length) return true;
  const shard* s = nullptr;
  int64_t start = 0;
  if (r.at != nullptr && within == r.length) {
    s = shardnext(r.at);
    start = i;
  } else if (r.at != nullptr && within == -1) {
    s = shardback(r.at);
    start = s == nullptr ? 0 : r.start - shardlength(s);
  } else {
    s = shardfind(const_cast<shard*>(r.root), i, within);
    start = i - within;
  }
  if (s == nullptr) return false;
  r = {r.root, s, shardbytes(s), start, shardlength(s)};
  return true;
}

int64_t newlinefrom(reader& r, int64_t i, int64_t end) {
  while (i < end && readto(r, i)) {
    int64_t stop = r.start + r.length < end ? r.start + r.length : end;
    const uint8_t* from = r.bytes + (i - r.start);
    const void* found = memchr(from, 10, static_cast<size_t>(stop - i));
    if (found != nullptr) return i + (static_cast<const uint8_t*>(found) - from);
    i = stop;
  }
  return end;
}

// The last newline among n bytes, or null: whole words first, as no C library call searches
// backwards everywhere.
static const uint8_t* lastnewline(const uint8_t* bytes, int64_t n) {
  constexpr uint64_t ones = 0x0101010101010101;
  while (n >= 8) {
    uint64_t word = 0;
    memcpy(&word, bytes + n - 8, 8);
    word ^= ones * 10;
    if (((word - ones) & ~word & (ones << 7)) != 0) break;  // a byte of the eight is zero now
    n -= 8;
  }
  while (n > 0 && bytes[n - 1] != 10) n--;
  return n > 0 ? bytes + n - 1 : nullptr;
}

int64_t newlinebefore(reader& r, int64_t i, int64_t start) {
  while (i > start && readto(r, i - 1)) {
    int64_t from = r.start > start ? r.start : start;
    const uint8_t* bytes = r.bytes + (from - r.start);
    const uint8_t* found = lastnewline(bytes, i - from);
    if (found != nullptr) return from + (found - bytes);
    i = from;
  }
  return start - 1;
}

int64_t newlinecount(reader& r, int64_t from, int64_t to) {
  int64_t count = 0;
  while (from < to && readto(r, from)) {
    int64_t stop = r.start + r.length < to ? r.start + r.length : to;
    const uint8_t* bytes = r.bytes + (from - r.start);
    for (int64_t k = 0; k < stop - from; k++) count += bytes[k] == 10;
    from = stop;
  }
  return count;
}

int64_t linestart(const sheet& s, int64_t i) {
  reader r = readsheet(s);
  return newlinebefore(r, i, 0) + 1;
}

int64_t lineend(const sheet& s, int64_t i) {
  reader r = readsheet(s);
  return newlinefrom(r, i, size(s));
}

}  // namespace tarn

// Sequential reading, and the searches for newlines on top of it: each stretch of contiguous bytes
// is searched at once.
#include "editor/reader.h"

#include <cstring>

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

// --- Stretches without a newline -----------------------------------------------------------------

// The longest that searches have met.

struct Plain {
  const uint8_t* from;  // null for none
  const uint8_t* to;    // behind the last byte
};
static Plain plains[4] = {};

static constexpr int64_t worthnoting = 65536;  // bytes: a shorter stretch is searched as fast

void forgetplains() {
  for (Plain& p : plains) p = {nullptr, nullptr};
}

// Notes that there is no newline from `from` to `to`: joins that to a stretch which it meets, or
// lets it take the place of a shorter one.
static void noteplain(const uint8_t* from, const uint8_t* to) {
  Plain* shortest = plains;
  for (Plain& p : plains) {
    if (from <= p.to && to >= p.from) {
      p = {from < p.from ? from : p.from, to > p.to ? to : p.to};
      return;
    }
    if (p.to - p.from < shortest->to - shortest->from) shortest = &p;
  }
  if (to - from > shortest->to - shortest->from) *shortest = {from, to};
}

// Where a search from `from` up to `to` needs to begin, and one from `to` down to `from`.
static const uint8_t* skipplains(const uint8_t* from, const uint8_t* to) {
  for (const Plain& p : plains) {
    if (from >= p.from && from < p.to) from = p.to < to ? p.to : to;
  }
  return from;
}

static const uint8_t* skipplainsback(const uint8_t* from, const uint8_t* to) {
  for (const Plain& p : plains) {
    if (to > p.from && to <= p.to) to = p.from > from ? p.from : from;
  }
  return to;
}

// The first newline from `from` on, or `to`.
static const uint8_t* firstin(const uint8_t* from, const uint8_t* to) {
  const uint8_t* p = to - from < worthnoting ? from : skipplains(from, to);
  const void* found = p == to ? nullptr : memchr(p, 10, static_cast<size_t>(to - p));
  const uint8_t* at = found != nullptr ? static_cast<const uint8_t*>(found) : to;
  if (at - p >= worthnoting) noteplain(from, at);
  return at;
}

constexpr uint64_t everybyte = 0x0101010101010101;

// The eight bytes at p, each newline among them made zero.
static uint64_t newlineszero(const uint8_t* p) {
  uint64_t word = 0;
  memcpy(&word, p, 8);
  return word ^ everybyte * 10;
}

// The place behind the last newline before `to`, or `from`. Whole words first, as no C library call
// searches backwards everywhere.
static const uint8_t* behindlastin(const uint8_t* from, const uint8_t* to) {
  const uint8_t* p = to - from < worthnoting ? to : skipplainsback(from, to);
  const uint8_t* searched = p;
  while (p - from >= 8) {
    uint64_t word = newlineszero(p - 8);
    if (((word - everybyte) & ~word & everybyte << 7) != 0) break;  // a byte is zero
    p -= 8;
  }
  while (p > from && p[-1] != 10) p--;
  if (searched - p >= worthnoting) noteplain(p, to);
  return p;
}

// --- The searches --------------------------------------------------------------------------------

int64_t newlinefrom(reader& r, int64_t i, int64_t end) {
  while (i < end && readto(r, i)) {
    int64_t stop = r.start + r.length < end ? r.start + r.length : end;
    const uint8_t* from = r.bytes + (i - r.start);
    int64_t found = i + (firstin(from, from + (stop - i)) - from);
    if (found < stop) return found;
    i = stop;
  }
  return end;
}

int64_t newlinebefore(reader& r, int64_t i, int64_t start) {
  while (i > start && readto(r, i - 1)) {
    int64_t from = r.start > start ? r.start : start;
    const uint8_t* bytes = r.bytes + (from - r.start);
    int64_t behind = from + (behindlastin(bytes, bytes + (i - from)) - bytes);
    if (behind > from) return behind - 1;
    i = from;
  }
  return start - 1;
}

// The sum of the eight bytes of a word.
static int64_t bytesum(uint64_t word) {
  constexpr uint64_t pairs = 0x00FF00FF00FF00FF;
  return static_cast<int64_t>(((word & pairs) + (word >> 8 & pairs)) * 0x0001000100010001 >> 48);
}

// The newlines among n bytes: eight at once, each counted in a byte of its own.
static int64_t newlinesin(const uint8_t* bytes, int64_t n) {
  constexpr uint64_t low7 = everybyte * 0x7F;
  int64_t count = 0;
  while (n >= 8) {
    uint64_t counts = 0;
    for (int32_t k = 0; k < 255 && n >= 8; k++, bytes += 8, n -= 8) {
      uint64_t word = newlineszero(bytes);
      counts += ~(((word & low7) + low7) | word | low7) >> 7;
    }
    count += bytesum(counts);
  }
  for (; n > 0; bytes++, n--) count += *bytes == 10;
  return count;
}

int64_t newlinecount(reader& r, int64_t from, int64_t to) {
  int64_t count = 0;
  while (from < to && readto(r, from)) {
    int64_t stop = r.start + r.length < to ? r.start + r.length : to;
    count += newlinesin(r.bytes + (from - r.start), stop - from);
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

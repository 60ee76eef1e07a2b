// The matcher: a bit-parallel walk, and the leaps over what cannot match.
#include "editor/match.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "editor/charmatch.h"
#include "editor/reader.h"
#include "editor/window.h"
#include "foundation/diag.h"

namespace tarn {

// --- Making a pattern ready ----------------------------------------------------------------------

// What a pattern byte matches, worked out when it is first used.
struct MatchRow {
  bool known;         // the rest is valid
  bool matches[256];  // by the byte of the text
};

static MatchRow matchrows[256];

static const MatchRow& matchrow(uint8_t p) {
  MatchRow& row = matchrows[p];
  if (row.known) return row;
  for (int32_t b = 0; b < 256; b++) row.matches[b] = charmatch(p, static_cast<uint8_t>(b));
  row.known = true;
  return row;
}

static bool matchesat(const Pattern& p, int64_t position, int32_t byte) {
  return (p.masks[byte] >> (position + 1) & 1) != 0;
}

// The mask for a probe that covers `byte` and, if the position matches that too, its other case or
// its neighbour in folding.
static uint8_t widestmask(const Pattern& p, int64_t position, int32_t byte) {
  if (matchesat(p, position, byte ^ 0x20)) return 0xDF;
  return matchesat(p, position, byte ^ 1) ? 0xFE : 0xFF;
}

// A probe of a position; false if its bytes are too many for one.
static bool probemake(const Pattern& p, int64_t position, Probe& probe) {
  int32_t pairs = 0;
  bool covered[128] = {};
  probe.offset = position;
  for (int32_t byte = 0; byte < 128; byte++) {
    if (covered[byte] || !matchesat(p, position, byte)) continue;
    if (pairs == 2) return false;
    uint8_t mask = widestmask(p, position, byte);
    uint8_t value = static_cast<uint8_t>(byte & mask);
    for (int32_t other = 0; other < 128; other++) covered[other] |= (other & mask) == value;
    probe.masks[pairs] = mask;
    probe.values[pairs++] = value;
  }
  if (pairs == 1) {
    probe.masks[1] = probe.masks[0];
    probe.values[1] = probe.values[0];
  }
  return pairs > 0;
}

// How common what a pattern byte matches is in texts and programs, the rarest first. What is not in
// the list is rarer still.
static int64_t commonness(uint8_t p) {
  static constexpr std::string_view common = "zqxjkvwybgpf0123456789m,.udclhrsinoat\ne ";
  size_t at = common.find(static_cast<char>(p));
  return at == common.npos ? -1 : static_cast<int64_t>(at);
}

// Picks the two rarest positions that can be probed; a pattern with only one of them probes it
// twice.
static void pickprobes(Pattern& p, const Str& text) {
  int64_t best[2] = {INT64_MAX, INT64_MAX};
  for (int64_t i = 0; i < text.len(); i++) {
    Probe probe;
    int64_t rank = commonness(text.at(i));
    if (rank >= best[1] || !probemake(p, i, probe)) continue;
    int32_t place = rank < best[0] ? 0 : 1;
    if (place == 0) {
      best[1] = best[0];
      p.probe[1] = p.probe[0];
    }
    best[place] = rank;
    p.probe[place] = probe;
  }
  if (best[0] == INT64_MAX) return;
  if (best[1] == INT64_MAX) p.probe[1] = p.probe[0];
  p.probed = true;
}

Pattern patternmake(const Str& text) {
  check(!text.empty() && text.len() <= patternlimit);
  Pattern p;
  p.length = text.len();
  p.probed = false;
  for (uint64_t& mask : p.masks) mask = 1;
  for (int64_t i = 0; i < text.len(); i++) {
    const MatchRow& row = matchrow(text.at(i));
    for (int32_t b = 0; b < 256; b++) p.masks[b] |= uint64_t{row.matches[b]} << (i + 1);
  }
  pickprobes(p, text);
  return p;
}

// --- Searching -----------------------------------------------------------------------------------

// A search goes over the places where a match can start, block by block.

static constexpr int64_t probeblock = 64;    // starts that are probed at once
static constexpr int64_t plainblock = 4096;  // starts that are walked at once without probes

// Sixteen bytes at once. Of the result of a probe only the highest bit of each byte counts.
using Bytes = uint8_t __attribute__((vector_size(16)));
static constexpr uint64_t highbits = 0x8080808080808080;
static constexpr int64_t vectors = probeblock / static_cast<int64_t>(sizeof(Bytes));

// A probe with its bytes spread over vectors.
struct WideProbe {
  int64_t offset;
  Bytes masks[2];
  Bytes values[2];
};

static WideProbe widen(const Probe& probe) {
  return {probe.offset,
          {Bytes{} + probe.masks[0], Bytes{} + probe.masks[1]},
          {Bytes{} + probe.values[0], Bytes{} + probe.values[1]}};
}

static inline Bytes probed(const WideProbe& probe, const uint8_t* starts) {
  Bytes b;
  memcpy(&b, starts + probe.offset, sizeof b);
  return b | Bytes((b & probe.masks[0]) == probe.values[0]) |
         Bytes((b & probe.masks[1]) == probe.values[1]);
}

// Whether the whole pattern matches at a place.
static bool matchesall(const Pattern& p, const uint8_t* bytes) {
  for (int64_t i = 0; i < p.length; i++) {
    if (!matchesat(p, i, bytes[i])) return false;
  }
  return true;
}

// The first of the places of a block that passed the probes and matches, or the last; -1 for none.
static int64_t pickplace(const Pattern& p, const uint8_t* starts, const Bytes* passed, bool last) {
  constexpr int64_t words = probeblock / 8;
  uint64_t flags[words];
  memcpy(flags, passed, sizeof flags);
  for (int64_t w = 0; w < words; w++) {
    int64_t word = last ? words - 1 - w : w;
    if ((flags[word] & highbits) == 0) continue;
    for (int64_t k = 0; k < 8; k++) {
      int64_t i = word * 8 + (last ? 7 - k : k);
      if (passed[i / 16][i % 16] >= 0x80 && matchesall(p, starts + i)) return i;
    }
  }
  return -1;
}

// Skips whole blocks of places in `bytes` that hold no match, from the front or, with `last`, from
// the back. Gives the number of blocks skipped. `place` is where a match starts in the block that
// stopped it, counted from that block's first place; -1 if none did.
static int64_t skipblocks(const Pattern& p, const uint8_t* bytes, int64_t blocks, bool last,
                          int64_t& place) {
  const WideProbe first = widen(p.probe[0]);
  const WideProbe second = widen(p.probe[1]);
  for (int64_t n = 0; n < blocks; n++) {
    const uint8_t* starts = bytes + (last ? blocks - 1 - n : n) * probeblock;
    Bytes passed[vectors];
    Bytes any = {};
    for (int64_t v = 0; v < vectors; v++) {
      const uint8_t* at = starts + v * static_cast<int64_t>(sizeof(Bytes));
      passed[v] = probed(first, at) & probed(second, at);
      any |= passed[v];
    }
    uint64_t halves[2];
    memcpy(halves, &any, sizeof halves);
    if (((halves[0] | halves[1]) & highbits) == 0) continue;
    place = pickplace(p, starts, passed, last);
    if (place >= 0) return n;
  }
  place = -1;
  return blocks;
}

// The end of the first match, or the last, that starts among the `count` places from `start` on;
// -1 if there is none. A match that starts at the last of these places must fit in the text.
static int64_t walkblock(reader& r, const Pattern& p, int64_t start, int64_t count, bool last) {
  const uint64_t hit = uint64_t{1} << p.length;
  int64_t stop = start + count + p.length - 1;
  int64_t found = -1;
  uint64_t state = 1;
  for (int64_t i = start; i < stop && readto(r, i); i = r.start + r.length) {
    const uint8_t* from = r.bytes + (i - r.start);
    const uint8_t* end = r.bytes + std::min(stop - r.start, r.length);
    for (const uint8_t* at = from; at < end; at++) {
      state = patternstep(p, state, *at);
      if ((state & hit) == 0) continue;
      found = i + (at - from) + 1;
      if (!last) return found;
    }
  }
  return found;
}

// The places where a match can start and that are still to be looked at.
struct Places {
  int64_t from;  // the first of them
  int64_t to;    // behind the last; not below `from`
  bool last;     // they are looked at from the back
};

static void drop(Places& places, int64_t count) {
  places.last ? places.to -= count : places.from += count;
}

// Leaps over what the probes rule out, as far as the present stretch of the text goes. Gives the
// start of a match, or -1.
static int64_t leap(reader& r, const Pattern& p, Places& places) {
  if (!readto(r, places.last ? places.to + p.length - 2 : places.from)) return -1;
  int64_t low = std::max(places.from, r.start);
  int64_t high = std::min(places.to, r.start + r.length - p.length - probeblock);
  if (places.last ? high < places.to : low > places.from) return -1;
  int64_t blocks = std::max<int64_t>(0, high - low) / probeblock;
  int64_t base = places.last ? high - blocks * probeblock : low;
  int64_t place = -1;
  int64_t skipped = skipblocks(p, r.bytes + (base - r.start), blocks, places.last, place);
  if (place < 0) {
    drop(places, skipped * probeblock);
    return -1;
  }
  return base + (places.last ? blocks - 1 - skipped : skipped) * probeblock + place;
}

// The end of the first match that ends in [low, high], or of the last.
static int64_t matchwithin(reader& r, const Pattern& p, int64_t low, int64_t high, bool last) {
  Places places = {std::max<int64_t>(0, low - p.length), high - p.length + 1, last};
  while (places.from < places.to) {
    int64_t start = p.probed ? leap(r, p, places) : -1;
    if (start >= 0) return start + p.length;
    int64_t count = std::min(p.probed ? probeblock : plainblock, places.to - places.from);
    int64_t found = walkblock(r, p, last ? places.to - count : places.from, count, last);
    if (found >= 0) return found;
    drop(places, count);
  }
  return -1;
}

int64_t matchfrom(const sheet& s, const Pattern& p, int64_t from, bool forward) {
  int64_t end = size(s);
  reader r = readsheet(s);
  int64_t behind = from == 0 ? end - 1 : end;  // the end of the text is the start come round again
  int64_t found = forward ? matchwithin(r, p, from + 1, behind, false)
                          : matchwithin(r, p, 1, from - 1, true);
  if (found >= 0) return found;
  return forward ? matchwithin(r, p, 1, from - 1, false)
                 : matchwithin(r, p, from + 1, behind, true);
}

bool searchfrom(sheet& s, const Str& pattern, bool forward) {
  int64_t found = matchfrom(s, patternmake(pattern), s.point, forward);
  if (found < 0) return false;
  movepoint(s, found);
  return true;
}

}  // namespace tarn

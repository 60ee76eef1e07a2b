// How the difference bounds follow the changes. Each change first widens them to hold it; then they
// are tightened from both ends against the saved text. So a byte typed back makes the sheet clean
// again, without any record of the past.
#include "editor/bounds.h"

#include <cstring>

#include "editor/reader.h"
#include "foundation/diag.h"

namespace tarn {

// A key must not walk the text. Runs over the saved text itself are passed in one step. Anything
// else, such as a long stretch that repeats, is walked only so far: bounds that are too wide do no
// harm but that more bytes show as changed. Only the walk that can find the sheet clean is never
// cut short.
static constexpr int64_t usualeffort = 65536;     // bytes compared
static constexpr int64_t effortofshard = 16;      // a step to the next shard costs as many
static constexpr int64_t noteffort = INT64_MAX;   // walk as far as it goes
static constexpr int64_t blocksize = 4096;

// How many bytes from the start are the same.
static int64_t samestart(const uint8_t* a, const uint8_t* b, int64_t n) {
  int64_t k = 0;
  while (n - k >= blocksize && memcmp(a + k, b + k, blocksize) == 0) k += blocksize;
  while (k < n && a[k] == b[k]) k++;
  return k;
}

// How many bytes at the end are the same.
static int64_t sameend(const uint8_t* a, const uint8_t* b, int64_t n) {
  int64_t k = n;
  while (k >= blocksize && memcmp(a + k - blocksize, b + k - blocksize, blocksize) == 0) {
    k -= blocksize;
  }
  while (k > 0 && a[k - 1] == b[k - 1]) k--;
  return n - k;
}

static int64_t smaller(int64_t a, int64_t b) { return a < b ? a : b; }

// Goes from i up to `end` while the text has the bytes of `saved` at the same offsets. Tells in
// `differs` whether it has met one that differs.
static int64_t goup(const sheet& s, int64_t i, int64_t end, int64_t effort, bool& differs) {
  reader r = readsheet(s);
  while (i < end && effort > 0 && readto(r, i)) {
    const uint8_t* ours = r.bytes + (i - r.start);
    const uint8_t* theirs = s.saved.bytes() + i;
    int64_t n = smaller(r.start + r.length, end) - i;
    effort -= effortofshard;
    if (ours != theirs) {
      n = smaller(n, effort > 1 ? effort : 1);
      int64_t same = samestart(ours, theirs, n);
      differs = same < n;
      if (differs) return i + same;
      effort -= n;
    }
    i += n;
  }
  return i;
}

// Goes from i down to `end` while the text has the bytes of `saved` at the same distance from the
// end of the text.
static int64_t godown(const sheet& s, int64_t i, int64_t end, int64_t effort) {
  int64_t shift = s.saved.len() - size(s);
  reader r = readsheet(s);
  while (i > end && effort > 0 && readto(r, i - 1)) {
    int64_t from = r.start > end ? r.start : end;
    const uint8_t* ours = r.bytes + (from - r.start);
    const uint8_t* theirs = s.saved.bytes() + from + shift;
    effort -= effortofshard;
    if (ours != theirs) {
      int64_t n = smaller(i - from, effort > 1 ? effort : 1);
      int64_t skipped = i - from - n;
      int64_t same = sameend(ours + skipped, theirs + skipped, n);
      if (same < n) return i - same;
      effort -= n;
      from += skipped;
    }
    i = from;
  }
  return i;
}

static void setbounds(sheet& s, int64_t low, int64_t high, bool lowdiffers) {
  s.difflow = static_cast<int32_t>(low);
  s.diffhigh = static_cast<int32_t>(high);
  s.lowdiffers = lowdiffers;
}

void boundsempty(sheet& s) { setbounds(s, size(s), size(s), false); }

// Makes the range from `low` to `high`, for which the first two rules of sheet.h hold, as narrow as
// the effort allows. `lowdiffers`: the byte at `low` is known to differ.
static void tighten(sheet& s, int64_t low, int64_t high, bool lowdiffers, int64_t effort) {
  int64_t n = size(s);
  int64_t both = smaller(s.saved.len(), n);
  bool samesize = n == s.saved.len();
  if (!lowdiffers) {
    low = goup(s, low, smaller(both, high), samesize ? noteffort : effort, lowdiffers);
  }
  if (low == high && samesize) return boundsempty(s);
  int64_t limit = n - (both - low);  // so that no byte of `saved` counts for both ends
  if (high < limit) high = limit;
  setbounds(s, low, godown(s, high, limit, effort), lowdiffers);
}

// Whether the byte at difflow is known to differ, and a change at the point leaves it as it was.
static bool lowstays(const sheet& s) { return s.lowdiffers && s.difflow < s.point; }

// On purpose: the first byte put into a clean text is not compared, so that a typed byte shows as
// changed even if it equals its neighbour.
void boundsinserted(sheet& s, int64_t n, bool wasclean) {
  int64_t point = s.point;
  if (wasclean && n == 1) return setbounds(s, point, point + 1, false);
  int64_t low = wasclean ? point : smaller(s.difflow, point);
  int64_t high = wasclean || s.diffhigh < point ? point : s.diffhigh;
  tighten(s, low, high + n, lowstays(s), usualeffort);
}

void boundsdeleted(sheet& s, int64_t n) {
  int64_t point = s.point;
  int64_t low = smaller(s.difflow, point);
  int64_t high = s.diffhigh - n < point ? point : s.diffhigh - n;
  tighten(s, low, high, lowstays(s), usualeffort);
}

void boundsanew(sheet& s) { tighten(s, 0, size(s), false, noteffort); }

void checkbounds(const sheet& s) {
  int64_t n = size(s);
  int64_t tail = n - s.diffhigh;
  check(!s.lowdiffers || byteat(s, s.difflow) != s.saved.at(s.difflow));
  check(0 <= s.difflow && s.difflow <= s.diffhigh && tail >= 0);
  check(s.difflow + tail <= s.saved.len());
  check(stretch(s, 0, s.difflow) == s.saved.substr(0, s.difflow));
  check(stretch(s, s.diffhigh, n) == s.saved.substr(s.saved.len() - tail));
  check(isclean(s) == (stretch(s, 0, n) == s.saved));
}

}  // namespace tarn

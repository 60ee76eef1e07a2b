// The open buffers: their texts, the changes to them, and how each change keeps the difference
// bounds.
#include "editor/sheet.h"

#include <cstring>

#include "editor/bounds.h"
#include "editor/reader.h"
#include "editor/state.h"

namespace tarn {

// Lives to the end of the process: nothing frees the trees of open buffers on the way out.
std::map<Str, sheet>& sheets = *new std::map<Str, sheet>;

// Where the current sheet was found last: a key asks for it many times.
static Str foundname;
static sheet* foundsheet = nullptr;

sheet& currentsheet() {
  if (foundsheet != nullptr && foundname.same(currentname)) return *foundsheet;
  auto found = sheets.find(currentname);
  check(found != sheets.end());
  foundname = currentname;
  foundsheet = &found->second;
  return *foundsheet;
}

// --- Making and dropping -------------------------------------------------------------------------

// The tree of one run over text.
static shard* runover(const Str& text) {
  shard* root = nullptr;
  if (!text.empty()) shardinsert(root, 0, shardrun(text.bytes(), text.len()));
  return root;
}

// Lets runs point into text for as long as the tree lives.
static void keep(sheet& s, const Str& text) { s.kept = new kepttext{text, s.kept}; }

// Frees the tree and what it points into but `saved`.
static void droptree(sheet& s) {
  forgetplains();
  shardfree(s.root);
  s.root = s.hand = nullptr;
  while (s.kept != nullptr) {
    kepttext* next = s.kept->next;
    delete s.kept;
    s.kept = next;
  }
  s.room = nullptr;
  s.roomleft = 0;
}

sheet sheetnew(const Str& text) {
  sheet made;
  made.root = runover(text);
  made.saved = text;
  boundsempty(made);
  return made;
}

void sheetdrop(sheet& s) {
  droptree(s);
  s = sheet();
}

void sheetclose(const Str& name) {
  auto found = sheets.find(name);
  if (found == sheets.end()) return;
  sheetdrop(found->second);
  sheets.erase(found);
  foundsheet = nullptr;
}

// The tree is replaced before the old saved text goes, as its runs point into that.
void markclean(sheet& s, const Str& text) {
  check(text.len() == size(s));
  droptree(s);
  s.root = runover(text);
  s.saved = text;
  boundsempty(s);
}

void markclean(sheet& s) { markclean(s, flatten(s)); }

// --- Reading -------------------------------------------------------------------------------------

uint8_t byteat(const sheet& s, int64_t i) {
  int64_t within = 0;
  const shard* found = shardfind(s.root, i, within);
  return found == nullptr ? 10 : shardbytes(found)[within];
}

Str flatten(const sheet& s) { return isclean(s) ? s.saved : stretch(s, 0, size(s)); }

Str stretch(const sheet& s, int64_t from, int64_t to) {
  check(from >= 0 && from <= to && to <= size(s));
  Str made = strsized(to - from);
  if (from < to) copybytes(s, from, to, made.own());
  return made;
}

void copybytes(const sheet& s, int64_t from, int64_t to, uint8_t* out) {
  check(from >= 0 && from <= to && to <= size(s));
  for (reader r = readsheet(s); from < to && readto(r, from);) {
    int64_t stop = r.start + r.length < to ? r.start + r.length : to;
    memcpy(out, r.bytes + (from - r.start), static_cast<size_t>(stop - from));
    out += stop - from;
    from = stop;
  }
}

bool ischanged(const sheet& s, int64_t i) { return ischanged(s, i, byteat(s, i)); }

bool ischanged(const sheet& s, int64_t i, uint8_t byte) {
  if (i < s.difflow || i >= s.diffhigh) return false;
  return size(s) != s.saved.len() || s.saved.bytes()[i] != byte;
}

void setpoint(sheet& s, int64_t i) {
  check(i >= 0 && i <= size(s));
  s.point = static_cast<int32_t>(i);
}

// --- Changing ------------------------------------------------------------------------------------

static void touch(sheet& s, int32_t from) {
  if (from < s.touched) s.touched = from;
}

// Puts a fresh shard in at the point. Most go right behind the one put in last.
static void insertshard(sheet& s, shard* fresh) {
  bool wasclean = isclean(s);
  int64_t within = s.point - s.handstart;
  if (s.hand != nullptr && within >= 0 && within <= shardlength(s.hand)) {
    shardinsertat(s.root, s.hand, within, fresh);
  } else {
    shardinsert(s.root, s.point, fresh);
  }
  s.hand = fresh;
  s.handstart = s.point;
  touch(s, s.point);
  boundsinserted(s, shardlength(fresh), wasclean);
}

static constexpr int32_t roomblock = 4096;

static void makeroom(sheet& s) {
  Str block = strsized(roomblock);
  s.room = block.own();
  s.roomleft = roomblock;
  keep(s, block);
}

// Puts a byte behind the one typed just before: they need no shard each, and a text typed in a row
// is read as fast as one from a file.
static bool typebehind(sheet& s, uint8_t byte) {
  if (s.hand == nullptr || s.point != s.handstart + shardlength(s.hand)) return false;
  if (s.roomleft < 2) makeroom(s);
  bool wasclean = isclean(s);
  check(size(s) < sizelimit);
  int32_t used = shardgrow(s.hand, s.room, byte);
  if (used == 0) return false;
  s.room += used;
  s.roomleft -= used;
  touch(s, s.point);
  boundsinserted(s, 1, wasclean);
  return true;
}

void insertbyte(sheet& s, uint8_t byte) {
  if (!typebehind(s, byte)) insertshard(s, shardsingle(byte));
}

void deletebyte(sheet& s) { deletecount(s, 1); }

void replacebyte(sheet& s, uint8_t byte) {
  if (s.point == size(s)) return;
  deletebyte(s);
  insertbyte(s, byte);
  s.point++;
}

// From this many bytes on a text goes in as one run over itself, however long it is.
static constexpr int64_t runfloor = 256;

static void insertrun(sheet& s, const Str& text) {
  keep(s, text);
  insertshard(s, shardrun(text.bytes(), text.len()));
  s.point += static_cast<int32_t>(text.len());
}

void insertstring(sheet& s, const Str& text) {
  if (text.len() >= runfloor) return insertrun(s, text);
  for (uint8_t byte : text) {
    insertbyte(s, byte);
    s.point++;
  }
}

void deletecount(sheet& s, int64_t n) {
  if (n == 0) return;
  if (s.hand != nullptr && s.point < s.handstart + shardlength(s.hand)) s.hand = nullptr;
  shardremove(s.root, s.point, n);
  touch(s, s.point);
  boundsdeleted(s, n);
}

// What the new text has in common with the saved one at either end is made of runs over that, so
// that a text that comes back to the saved one costs no memory, and comparing the two costs no
// time.
void retext(sheet& s, const Str& text) {
  droptree(s);
  s.root = runover(text);
  boundsanew(s);
  int64_t n = text.len();
  int64_t low = s.difflow;
  int64_t high = s.diffhigh;
  shardfree(s.root);
  s.root = nullptr;
  if (high < n) shardinsert(s.root, 0, shardrun(s.saved.end() - (n - high), n - high));
  if (low < high) {
    keep(s, text);
    shardinsert(s.root, 0, shardrun(text.bytes() + low, high - low));
  }
  if (low > 0) shardinsert(s.root, 0, shardrun(s.saved.bytes(), low));
  touch(s, 0);
  if (s.point > n) s.point = static_cast<int32_t>(n);
}

}  // namespace tarn

// One open buffer: the text as a tree of pieces, the text as it was last saved, and the offsets
// that the editor works with. Bytes are raw, offsets count them from 0, and a newline is byte 10;
// there is no table of lines.
//
// The difference bounds tell where the text can differ from `saved`, without any record of edits:
//
//   saved   ┌───────────┬─────────────┬────────────────┐
//           │   equal   │             │     equal      │
//   text    └───────────┴─────────────────┴────────────────┘
//                       difflow           diffhigh
//
//   - before difflow the text equals the start of `saved`
//   - from diffhigh on it equals the end of `saved`
//   - the sheet is clean, that is the text equals `saved`, exactly when difflow == size and
//     size == length of `saved`
//
// Only the functions below change a text, and only the opers (history.h) call them; commands make
// opers. A sheet may be copied, but the copy shares the tree: keep none across a change of the
// text.
#pragma once

#include <cstdint>
#include <map>

#include "editor/shard.h"
#include "foundation/str.h"

namespace tarn {

// A text beside `saved` that runs of the tree point into: a large insertion, which is one run over
// it, or a block whose room bytes typed in a row fill.
struct kepttext {
  Str text;
  kepttext* next;  // owned; null at the end
};

// No change since the window (window.h) looked.
inline constexpr int32_t untouched = 0x7FFFFFFF;

struct sheet {
  int32_t diffhigh = 0;    // end of the range that may differ from `saved`
  uint8_t insertmode = 1;  // 1 insert, 0 overwrite
  int32_t top = 0;         // the first byte shown, the start of a wrapped row
  int32_t touched = 0;     // the lowest offset changed since the window looked last, or `untouched`
  int32_t difflow = 0;     // start of the range that may differ from `saved`
  int32_t point = 0;       // the cursor, 0 to the size inclusive
  shard* root = nullptr;   // the text, owned; its runs point into `saved` and the kept texts
  kepttext* kept = nullptr;  // owned, the newest first; null for none
  shard* hand = nullptr;   // the shard put in last, where reading starts; null after other changes
  int32_t handstart = 0;   // its offset; valid while there is a hand
  bool lowdiffers = false;  // the byte at difflow is known not to be that of `saved`
  uint8_t* room = nullptr;  // the unused rest of the newest block for typed bytes
  int32_t roomleft = 0;     // its length
  Str saved;               // the text as read or last saved; never written to
};

// Every open buffer by its name: an absolute path, or "." for the scratch buffer.
extern std::map<Str, sheet>& sheets;

// The sheet of the buffer on the screen, which must be open (`currentname` in state.h).
sheet& currentsheet();

// A clean sheet over text: one run, however long it is. At most 2^30 bytes.
sheet sheetnew(const Str& text);

// Frees the tree and what is kept for it. Copies of the sheet must not be used afterwards.
void sheetdrop(sheet& s);

// Drops the sheet of that name and takes it out of `sheets`; nothing where there is none. This is
// the only way to erase one.
void sheetclose(const Str& name);

inline int64_t size(const sheet& s) { return shardtotal(s.root); }

// Whether the text equals `saved`.
inline bool isclean(const sheet& s) { return s.difflow == size(s) && size(s) == s.saved.len(); }

// The byte at i, and 10 for every i outside the text, so that a walk over lines stops at the ends
// by itself. A descent of the tree: to read many bytes in a row use a reader (reader.h).
uint8_t byteat(const sheet& s, int64_t i);

// The whole text; of a clean sheet it is `saved` itself, not a copy.
Str flatten(const sheet& s);

// The bytes from `from` to `to`, 0 <= from <= to <= size.
Str stretch(const sheet& s, int64_t from, int64_t to);
void copybytes(const sheet& s, int64_t from, int64_t to, uint8_t* out);  // the same, to out

// Whether byte i shows as changed: it lies in the difference bounds, and is not the same byte as in
// `saved` if the text is as long as that. Pass the byte where it is at hand.
bool ischanged(const sheet& s, int64_t i);
bool ischanged(const sheet& s, int64_t i, uint8_t byte);

// Puts the point at i, 0 to the size; the window is not looked at.
void setpoint(sheet& s, int64_t i);

// The changes. Each lowers `touched` to where it begins, and keeps the difference bounds; none
// looks at the window. The size limit is the caller's to test: more than 2^30 bytes are a program
// fault.
void insertbyte(sheet& s, uint8_t byte);    // in front of the byte at the point, which stays
void deletebyte(sheet& s);                  // the byte at the point; the point stays
void replacebyte(sheet& s, uint8_t byte);   // the byte at the point, stepping over; not at the end
void insertstring(sheet& s, const Str& text);  // at the point, which ends behind it
void deletecount(sheet& s, int64_t n);      // n bytes from the point on, all of which must exist
void retext(sheet& s, const Str& text);     // the whole text; the point stays, or goes to the end

// Takes text, which must be what the sheet holds, as the saved one. The tree is then one run.
void markclean(sheet& s, const Str& text);
void markclean(sheet& s);

}  // namespace tarn

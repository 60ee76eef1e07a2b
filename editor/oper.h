// The record of one edit, and the histories that hold them: one for each buffer, in order of
// version. Every change of a text is an oper, entered first and then carried out (history.h).
//
// Position, version and type share one word:
//
//    63   62   60 59                           30 29                            0
//   ┌────┬───────┬───────────────────────────────┬───────────────────────────────┐
//   │ 0  │   w   │               v               │               t               │
//   └────┴───────┴───────────────────────────────┴───────────────────────────────┘
//
//   t  a position in the text; for a marker the version pointer (history.h). The end of a full
//      text, 2^30, does not fit and is not needed: nothing can be put in there, and what is taken
//      out begins before it
//   v  the version: 0 for the root oper of a buffer, then 1, 3, 5 ... without gaps
//   w  the type, below
//
// The versions leave no gap, so an oper stands at the index (v + 1) / 2 of its history.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "foundation/str.h"

namespace tarn {

//  type        what it did                        data                                t
enum opertype : uint32_t {
  opmarker = 0,   // an undo, or the undo of one   empty                               version
  opswapped = 1,  // replaced in a range, or root  see swapedit.cpp; empty for a root  range start
  opran = 2,      // put in a run of one byte      decimal count, then the byte        point
  opsorted = 3,   // reordered the definitions     the whole text before it            point
  opcut = 4,      // deleted a stretch             the deleted bytes                   point
  oppasted = 5,   // put in a text                 the text                            point
  optyped = 6,    // one byte                      a kind and two, see edits.cpp       point
  opdented = 7,   // indented or outdented lines   see dentedit.cpp                    range start
};

struct oper {
  Str data;       // by the type, as told above
  uint64_t word;  // drawn above
};

inline constexpr uint64_t opermask = 0x3FFFFFFF;
inline int64_t opert(const oper& o) { return static_cast<int64_t>(o.word & opermask); }
inline int64_t operv(const oper& o) { return static_cast<int64_t>(o.word >> 30 & opermask); }
inline opertype operw(const oper& o) { return static_cast<opertype>(o.word >> 60 & 7); }

// An oper of version 0; t is 0 to 2^30 - 1.
oper opermake(opertype w, int64_t t, Str data);
void opersett(oper& o, int64_t t);
void opersetv(oper& o, int64_t v);

// Every history by the name of its buffer; the first oper of each is the root oper.
extern std::map<Str, std::vector<oper>>& opers;

// For tests: fails if a history is empty, its root is wrong, or a version is.
void checkopers();

}  // namespace tarn

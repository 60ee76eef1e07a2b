// The state of the abstract machine, `C F`: a continuation and a focus. It is a term of the
// language: a continuation is `I`, or `B k f` to go on with `f v` under `k` when the focus has
// become the value v. The machine keeps the continuation as an array of frames, the nearest last,
// and not as cells; nothing of a program can tell.
//
//   frames         as a term                  when the focus is the value v
//   (none)         I                          v is the result
//   .. wait l      B C l                      go on with l v
//   .. give b      B C (T b)                  go on with T b v, which T makes v b
//
// A frame is one word: the address of a cell, and in its lowest bit whether it gives.
#pragma once

#include <cstdint>

#include "graph/annotate.h"
#include "graph/cell.h"

namespace tarn {

struct State {
  Cell* focus;       // owned, annotated
  uint64_t* frames;  // the first frame; owned, as is the cell of each; null until there is one
  uint64_t* top;     // behind the last frame
  uint64_t* end;     // behind the room for frames
};

constexpr uint64_t givesbit = 1;  // the lowest bit of a frame

inline bool framegives(uint64_t frame) { return (frame & givesbit) != 0; }
inline Cell* framecell(uint64_t frame) { return reinterpret_cast<Cell*>(frame & ~givesbit); }

void growframes(State& s);

inline void pushframe(State& s, uint64_t frame) {
  if (s.top == s.end) growframes(s);
  *s.top++ = frame;
}

// Takes over the reference to the argument b.
inline void pushgive(State& s, Cell* b) {
  pushframe(s, reinterpret_cast<uint64_t>(b) | givesbit);
}

// Takes over the reference to l. A frame of `T a` that the program itself spells is one that gives.
inline void pushwait(State& s, Cell* l) {
  if (cellispair(l) && cellbyte(leftlink(l)) == 'T') {
    pushgive(s, cellhold(rightlink(l)));
    cellunhold(l);
  } else {
    pushframe(s, reinterpret_cast<uint64_t>(l));
  }
}

// Makes another term the focus, taking over the reference to it, and drops the old one.
inline void focuson(State& s, Cell* made) {
  Cell* old = s.focus;
  s.focus = made;
  cellannotate(made);
  cellunhold(old);
}

// How many of the frames, from the last one back and without a gap, give; counted up to n.
inline int givesupply(const State& s, int n) {
  int count = 0;
  while (count < n && s.top - count != s.frames && framegives(s.top[-1 - count])) count++;
  return count;
}

// Throws the continuation away, the frames from the first.
void dropframes(State& s);

}  // namespace tarn

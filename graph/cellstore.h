// Where cells come from and go to: a free list of 24-byte records, filled a block at a time, for
// all Pairs and the short leaves, and malloc for the longer leaves. For the files of graph/ that
// make and free cells; all others use the makers of cell.h.
//
//   Pair        header, left, right
//   short leaf  hidden word, header, up to 7 bytes of text and their NUL
//
// Under an address checker, and in the checking build, each record is a block of its own, so that a
// use after the last reference is found.
#pragma once

#include <cstdint>
#include <cstring>

#include "graph/cell.h"

namespace tarn {

struct CellStore {
  void** free;      // records given back, each holding the address of the next; null: none
  int64_t made;     // cells ever made
  int64_t freed;    // cells ever freed
  int64_t room;     // records ever taken from the blocks: as many as were in use at once
  int64_t longs;    // long leaves alive
  int64_t longest;  // most long leaves alive at once
  int64_t todos;    // leaves alive with the text "todo": while there is none, nobody looks for them
};
extern CellStore cellstore;

constexpr uint64_t cellshortbit = 1;  // in the hidden word: the leaf is a record of the store
constexpr int64_t cellshorttext = 7;  // most bytes of text in one

#ifdef __SANITIZE_ADDRESS__
constexpr bool recordsapart = true;
#else
constexpr bool recordsapart = checking;
#endif

void* storefresh();            // a record never used before
void storedropapart(void* r);  // r was a block of its own

inline void* storerecord() {
  cellstore.made++;
  void** r = cellstore.free;
  if (r == nullptr) return storefresh();
  cellstore.free = static_cast<void**>(*r);
  return r;
}

// r can be handed out again.
inline void storegiveback(void* r) {
  if constexpr (recordsapart) return storedropapart(r);
  *static_cast<void**>(r) = cellstore.free;
  cellstore.free = static_cast<void**>(r);
}

// A Pair with that header, taking over the references that the caller holds to both links.
inline Cell* storepair(Cell* left, Cell* right, uint64_t header) {
  Cell* c = static_cast<Cell*>(storerecord());
  c->header = header;
  leftlink(c) = left;
  rightlink(c) = right;
  return c;
}
inline void storefreepair(Cell* c) {
  cellstore.freed++;
  storegiveback(c);
}

// A leaf for n bytes of text, 0 or more, and a NUL; nothing is set but the hidden word.
Cell* storeleaf(int64_t n);
// The same leaf with room for n bytes, more than it had; it may move. Its text is kept.
Cell* storeregrown(Cell* c, int64_t n);
void storefreeleaf(Cell* c);

// A leaf with exactly the text "todo".
inline bool istodo(const Cell* c) {
  return cellbyte(c) == 't' && strcmp(reinterpret_cast<const char*>(leafbytes(c)), "todo") == 0;
}

}  // namespace tarn

// The blocks behind the cells.
#include "graph/cellstore.h"

#include <cstdlib>
#include <cstring>

namespace tarn {

CellStore cellstore = {};

constexpr int64_t recordsize = 24;                // bytes
constexpr int64_t blocksize = 4096 * recordsize;  // what one malloc gets

static int64_t apart = 0;  // records in use that are blocks of their own

[[maybe_unused]] static void* freshapart() {
  apart++;
  if (apart > cellstore.room) cellstore.room = apart;
  return blockmake(recordsize);
}

void storedropapart(void* r) {
  apart--;
  blockdrop(r);
}

void* storefresh() {
  if constexpr (recordsapart) return freshapart();
  static char* at = nullptr;
  static char* end = nullptr;
  if (at == end) {
    at = static_cast<char*>(malloc(blocksize));
    end = at + blocksize;
  }
  cellstore.room++;
  void* r = at;
  at += recordsize;
  return r;
}

// The hidden word, the header, the text and its NUL; all ones where that wraps, so that malloc
// refuses. An array has the NUL too, though it needs none: an empty one then reads as the text
// "\n".
static size_t leafblock(int64_t n) {
  constexpr size_t around = 2 * sizeof(uint64_t) + 1;
  size_t size = 0;
  return __builtin_add_overflow(static_cast<size_t>(n), around, &size) ? SIZE_MAX : size;
}

Cell* storeleaf(int64_t n) {
  if (n <= cellshorttext) {
    uint64_t* r = static_cast<uint64_t*>(storerecord());
    r[0] = cellshortbit;
    return reinterpret_cast<Cell*>(r + 1);
  }
  cellstore.made++;
  cellstore.longs++;
  if (cellstore.longs > cellstore.longest) cellstore.longest = cellstore.longs;
  uint64_t* block = static_cast<uint64_t*>(blockmake(leafblock(n)));
  block[0] = 0;
  return reinterpret_cast<Cell*>(block + 1);
}

Cell* storeregrown(Cell* c, int64_t n) {
  if ((leafhint(c) & cellshortbit) == 0) {
    uint64_t* block = static_cast<uint64_t*>(blockgrow(c - 1, leafblock(n)));
    return reinterpret_cast<Cell*>(block + 1);
  }
  Cell* grown = storeleaf(n);
  memcpy(grown, c, sizeof(Cell) + cellshorttext + 1);
  storefreeleaf(c);
  return grown;
}

void storefreeleaf(Cell* c) {
  cellstore.freed++;
  if (istodo(c)) cellstore.todos--;
  void* block = c - 1;
  if ((leafhint(c) & cellshortbit) != 0) {
    storegiveback(block);
  } else {
    cellstore.longs--;
    blockdrop(block);
  }
}

CellCounts cellcounts() {
  return {cellstore.made, cellstore.made - cellstore.freed, cellstore.room + cellstore.longest};
}

}  // namespace tarn

// The graveyard of the checking build: a queue of the blocks given up last, each with its size in
// front.
//
//   head           block
//   size  unused   bytes ..      16 bytes, then `size` of them
#include "foundation/checking.h"

#include <cstring>
#include <deque>

#include "foundation/diag.h"

namespace tarn {

namespace {

struct Head {
  size_t size;
  uint64_t unused;  // so that the block is aligned as malloc's own
};

constexpr size_t mostblocks = 16384;
constexpr size_t mostbytes = size_t{64} << 20;
constexpr int freshbyte = 0xA5;

struct Graveyard {
  std::deque<Head*> blocks;  // the oldest first
  size_t bytes;              // in all of them
};

Graveyard& graveyard() {
  static Graveyard& yard = *new Graveyard();
  return yard;
}

void filldead(Head* head) {
  uint8_t* bytes = reinterpret_cast<uint8_t*>(head + 1);
  size_t first = head->size < sizeof deadword ? head->size : sizeof deadword;
  memcpy(bytes, &deadword, first);
  for (size_t done = first; done < head->size;) {  // twice as many each time
    size_t more = done < head->size - done ? done : head->size - done;
    memcpy(bytes + done, bytes, more);
    done += more;
  }
}

// The first word is right, and each byte is that of a word before it.
bool isdead(const Head* head) {
  const uint8_t* bytes = reinterpret_cast<const uint8_t*>(head + 1);
  size_t first = head->size < sizeof deadword ? head->size : sizeof deadword;
  if (memcmp(bytes, &deadword, first) != 0) return false;
  return head->size == first || memcmp(bytes + first, bytes, head->size - first) == 0;
}

}  // namespace

void* gravemake(size_t n) {
  size_t size = n + sizeof(Head);
  Head* head = static_cast<Head*>(malloc(size < n ? n : size));
  head->size = n;
  memset(head + 1, freshbyte, n);
  return head + 1;
}

void* gravegrow(void* block, size_t n) {
  size_t old = (static_cast<Head*>(block) - 1)->size;
  void* grown = gravemake(n);
  memcpy(grown, block, old < n ? old : n);
  gravedrop(block);
  return grown;
}

void gravedrop(void* block) {
  Graveyard& yard = graveyard();
  Head* head = static_cast<Head*>(block) - 1;
  filldead(head);
  yard.blocks.push_back(head);
  yard.bytes += head->size;
  while (yard.blocks.size() > mostblocks || yard.bytes > mostbytes) {
    Head* oldest = yard.blocks.front();
    check(isdead(oldest));
    yard.blocks.pop_front();
    yard.bytes -= oldest->size;
    free(oldest);
  }
}

void checkdead() {
  for (const Head* head : graveyard().blocks) check(isdead(head));
}

}  // namespace tarn

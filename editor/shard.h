// The tree of pieces that a text is made of: a red-black tree with parent links whose in-order
// position is the order of the text. A piece, a shard, is a run of bytes that stand elsewhere, or
// holds one byte itself. An edit adds, cuts and removes shards; bytes typed in a row become a run.
//
//   "a file" as read, with "X" typed at offset 2:       single 'X'
//                                                      /          \       .
//                                      run "a " ► bytes[0]     run "file" ► bytes[2]
//
// The size word of a shard:
//
//    31   30                              1    0
//   ┌────┬─────────────────────────────────┬─────┐
//   │run │ total - 1                       │ red │
//   └────┴─────────────────────────────────┴─────┘
//
//   run    set: `bytes` points to the run; clear: `byte` is the only byte
//   total  bytes in the whole subtree; kept less one, so that 2^30 of them fit in 30 bits
//   red    set: a red node
//
// A tree is known by its root; a null root is the empty text. A tree owns its shards, and each
// function that changes it gets the root by reference. The bytes of runs are lent by whoever makes
// them, until no run points there. Offsets and counts are in bytes, and one out of range is a
// program fault.
#pragma once

#include <cstdint>

namespace tarn {

// The most bytes that a tree can hold; more are a program fault.
inline constexpr int64_t sizelimit = 0x40000000;

struct shard {
  shard* parent;  // null at the root
  shard* left;    // owned, as is right; null for none
  shard* right;
  uint32_t word;    // the size word drawn above
  uint32_t length;  // the bytes of a run less one; 0 for a single byte
  union {
    const uint8_t* bytes;  // a run: its first byte, which the sheet keeps alive
    uint8_t byte;          // a single: the byte
  };
};
static_assert(sizeof(shard) == 40);  // 48 with malloc's own word

inline bool shardisrun(const shard* s) { return (s->word >> 31) != 0; }
inline bool shardisred(const shard* s) { return (s->word & 1) != 0; }
inline int64_t shardlength(const shard* s) { return static_cast<int64_t>(s->length) + 1; }
inline const uint8_t* shardbytes(const shard* s) { return shardisrun(s) ? s->bytes : &s->byte; }

// The bytes in the tree below and at s; 0 for null.
inline int64_t shardtotal(const shard* s) {
  return s == nullptr ? 0 : static_cast<int64_t>((s->word >> 1) & 0x3FFFFFFF) + 1;
}

// Give a shard outside any tree: one byte, or a run of n bytes, 1 to 2^30.
shard* shardsingle(uint8_t byte);
shard* shardrun(const uint8_t* bytes, int64_t n);

// The shard that holds offset i, and in `within` the offset inside it; null outside the text.
shard* shardfind(shard* root, int64_t i, int64_t& within);

// The shards next to s in the order of the text, null at its ends.
shard* shardnext(const shard* s);
shard* shardback(const shard* s);

// Makes offset i begin a shard, by cutting the run that holds it in two over the same bytes.
void shardsplit(shard*& root, int64_t i);

// Takes a fresh shard and puts it in front of the byte at offset i, 0 to the total inclusive.
void shardinsert(shard*& root, int64_t i, shard* fresh);

// The same, `within` bytes into the shard s of the tree, 0 to its length: without a search.
void shardinsertat(shard*& root, shard* s, int64_t within, shard* fresh);

// Makes the shard s of the tree one byte longer at its end. A run that ends at `room` goes on
// there; a single byte moves to `room`, and the new one goes behind it. Gives how many bytes of
// `room` are used now, 1 or 2; 0, with nothing changed, for a run that ends elsewhere.
int32_t shardgrow(shard* s, uint8_t* room, uint8_t byte);

// Removes n bytes from offset i on; all of them must be there.
void shardremove(shard*& root, int64_t i, int64_t n);

// Frees the whole tree.
void shardfree(shard* root);

// For tests: fails if a link, a colour, a total or the balance of the tree is wrong.
void checkshards(const shard* root);

}  // namespace tarn

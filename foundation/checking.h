// The checking build (-DTARN_CHECKING=ON): what it does otherwise than the build that users get, in
// the few places that ask here. Elsewhere all of it is constant and leaves no code behind.
//
//   - what one reference allows, a change in place instead of a copy, is never done: `alone` is
//     false
//   - the blocks of cells and Strs come from the graveyard below, which finds uses after their
//     death
//   - cellhold and its like, and Str, refuse what is dead at once; live Strs are counted
//
// A block that is given up is filled with `deadword`, and kept for a while. It is tested when it
// goes back to malloc in the end, and by checkdead: a byte that has changed is a program fault. As
// a header the word has no references, as an address it faults, as a length it is beyond all
// memory. A fresh block is filled as well, so that nothing can lean on what stood there before.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace tarn {

#ifdef TARN_CHECKING
constexpr bool checking = true;
#else
constexpr bool checking = false;
#endif

// What has so many references may be treated as nobody else's.
constexpr bool alone(uint64_t refs) { return refs == 1 && !checking; }

constexpr uint64_t deadword = 0x5DEADCE100000000;

// --- The graveyard: tested in every build, used by the checking build alone ----------------------

// As malloc, realloc and free do. An impossible size is for malloc to refuse, and faults here.
void* gravemake(size_t n);
void* gravegrow(void* block, size_t n);
void gravedrop(void* block);

// All blocks that were given up are as they were left, or it is a program fault.
void checkdead();

// --- Blocks --------------------------------------------------------------------------------------

inline void* blockmake(size_t n) {
  if constexpr (checking) return gravemake(n);
  return malloc(n);
}
inline void* blockgrow(void* block, size_t n) {
  if constexpr (checking) return gravegrow(block, n);
  return realloc(block, n);
}
inline void blockdrop(void* block) {
  if constexpr (checking) return gravedrop(block);
  free(block);
}

}  // namespace tarn

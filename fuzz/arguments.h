// The arguments of a call, by the letters of its signature, and what they are taken from.
#pragma once

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "fuzz/source.h"
#include "graph/cell.h"

namespace tarn {

// What the calls work with.
struct Things {
  Source source;
  std::vector<CellRef> values;
  std::vector<void*> blocks;
  std::vector<FILE*> streams;
  std::vector<void*> directories;
  std::vector<int> descriptors;
  std::vector<Cell*> leaked;
  void* fields;   // the address of a time in fields
  time_t seconds;
  bool compiled;  // definitions were added
  std::string told;  // the answers, as far as they are the same in every build
  bool wild;         // what the values are depends on addresses, or on the system
};

// Once, before the others: takes the standard streams away, since calls read and write them.
void openthings();

// The things of one input, none yet. The memory that calls write to is all 0 again.
Things thingsof(Source source);

// An argument for a letter; now and then one of a wrong kind, where that is harmless.
CellRef argument(Things& t, char letter);

// Any value, or the answer of an earlier call.
CellRef knownvalue(Things& t);

// Closes and frees what is left in the end. The values go as well.
void givebackthings(Things& t);

}  // namespace tarn

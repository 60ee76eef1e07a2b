// The keys of a terminal that delivers bytes. Function keys arrive as escape sequences, maybe
// split over several reads; they become the bytes of the editor's own keys, and those that mean
// nothing are dropped whole, so that none types a letter. Nothing here waits for a clock: what may
// still become a function key waits for its next byte.
#pragma once

#include <cstdint>

#include "editor/keys.h"

namespace tarn {

inline constexpr int32_t termroom = 4096;  // the most bytes of one read
inline constexpr int32_t termheld = 8;     // an unfinished key has fewer

struct TermKeys {
  uint8_t bytes[termheld + termroom];
  int32_t start;   // of the bytes not yet taken
  int32_t end;     // behind the bytes read
  int32_t fresh;   // where the bytes of the last read begin
  bool swapback;   // the Backspace key of this terminal sends 8: 8 and 0x7F change places
  bool splitkey;   // the last key taken was ESC O at the end of a read, maybe half a function key
};

// The place for up to termroom bytes of the next read; termkey has given everything it can before.
uint8_t* termbuffer(TermKeys& t);

// n bytes have been read to that place.
void termread(TermKeys& t, int32_t n);

// The next key or part of a longer one; n is 0 when that takes more bytes than have been read.
KeyText termkey(TermKeys& t);

}  // namespace tarn

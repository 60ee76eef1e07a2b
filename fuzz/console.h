// A console that plays an input: the bytes of a terminal, with pauses and resizes between them. It
// stands in for the real one; programs link either.
//
//   byte below 255        a byte of a key
//   255 255               a key byte 255
//   255 n, n 200 to 254   a resize: two more bytes tell width and height
//   255 n, n below 200    a pause, in which the editor paints what it owes
#pragma once

#include "editor/console.h"
#include "fuzz/source.h"

namespace tarn {

// Starts to play what follows in `input`, in a window of this size. `filter` may replace each key.
void consoleplay(Source input, int64_t columns, int64_t rows, void (*filter)(KeyText& key));

// Whether there is more to come.
bool consolemore();

// Sizes that a byte each stands for: 7 to 106 columns, 2 to 41 rows.
inline int64_t columnsof(uint8_t byte) { return 7 + byte % 100; }
inline int64_t rowsof(uint8_t byte) { return 2 + byte % 40; }

}  // namespace tarn

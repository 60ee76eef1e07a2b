// The window onto a sheet: which wrapped rows of the text stand on the screen. A row is a line, or
// a piece of exactly `width` bytes of one. The newline of a line belongs to its last row; behind a
// full row it stands alone on a row of its own. `top` is always the start of a row.
//
//   width 4, text "abcdef\nwxyz\n":     abcd     offsets  0 to  3
//                                       ef,               4 to  6, the comma is the newline
//                                       wxyz              7 to 10
//                                       ,                11 to 11
//                                                        12, the end of the text
#pragma once

#include <cstdint>

namespace tarn {

struct sheet;

// Keeps the window if the point is in it, else recentres. The sheet must be one in `sheets`.
void showpoint(sheet& s);

// Puts the point at `to`, 0 to the size inclusive, and keeps it in the window.
void movepoint(sheet& s, int64_t to);

// Whether the point is in the window.
bool pointshows(sheet& s);

// Puts the row of the point in the middle of the window.
void recentre(sheet& s);

// Moves `top` back to the start of its row, after the text before it or the width has changed.
void aligntop(sheet& s);

// The offset behind the last row shown, which is the start of the row below the window. Each empty
// row behind the end of the text counts as one byte: so it is larger than the size when the text
// ends within the window.
int64_t windowbottom(sheet& s);

// The start of the row that holds offset i, 0 to size inclusive.
int64_t rowstart(sheet& s, int64_t i);

// The start of the row below the row that starts at `start`, or -1 if it is the last.
int64_t nextrow(sheet& s, int64_t start);

// The start of the row above the row that starts at `start`; -1 at the start of the text.
int64_t previousrow(sheet& s, int64_t start);

// The start of the row `rows` above the row that holds i, or 0.
int64_t rowsabove(sheet& s, int64_t i, int64_t rows);

}  // namespace tarn

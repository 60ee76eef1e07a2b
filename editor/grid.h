// The screen as the program knows it: two grids of cells, the one being drawn and the one that the
// terminal shows. paintdiff sends their difference and lets them change places.
//
// A cell is 16 bits:
//
//   15        12 11         8  7  6           0
//   ┌───────────┬───────────┬───┬──────────────┐
//   │ background│ foreground│ c │    glyph     │     c: the byte differs from the saved text
//   └───────────┴───────────┴───┴──────────────┘
//
//   0x0161   background 0, foreground 1, "a"       a red "a" on black
//   0x44A0   background 4, foreground 4, c, " "    changed, but hidden: an underlined blank
//
// A cell whose two colours are equal shows its glyph in the opposite colour and in italics; only
// a space with equal colours is a real blank.
#pragma once

#include <cstdint>

namespace tarn {

using Cell16 = uint16_t;

inline constexpr Cell16 cellchanged = 0x80;

constexpr Cell16 gridcell(uint32_t back, uint32_t fore, uint32_t low) {
  return static_cast<Cell16>(back << 12 | fore << 8 | low);
}

// Sets all cells from `from` up to `to` to one cell; nothing if `to` is not behind `from`.
void fillcells(Cell16* from, Cell16* to, Cell16 cell);

// Makes both grids anew for a window of `width` by `height`, all zero, so that the next paintdiff
// sends every cell that is not zero.
void gridreset();

// The grid to draw, `width * height` cells, row after row; valid until paintdiff or gridreset. It
// holds what was drawn two paints ago, so a painter draws every cell.
Cell16* drawngrid();

// What the terminal shows, as far as is known.
Cell16* showngrid();

// Sends the difference, leaves the cursor at the column and row (counted from 0), and lets the
// grids change places. One write, of the bytes that gridbytes tells.
void paintdiff(int64_t col, int64_t row);

// The bytes that turn the screen `shown` into `drawn`, grids of `cells` cells in rows of `columns`,
// and leave the cursor at col and row. `out` takes up to gridroom(cells) bytes; gives their number.
int64_t gridbytes(const Cell16* drawn, const Cell16* shown, int64_t cells, int64_t columns,
                  int64_t col, int64_t row, uint8_t* out);
int64_t gridroom(int64_t cells);

}  // namespace tarn

// The two grids, and the escape sequences of their difference.
#include "editor/grid.h"

#include <cstdlib>
#include <cstring>

#include "editor/console.h"
#include "editor/state.h"

namespace tarn {

struct Grids {
  Cell16* drawn;  // both hold width * height cells
  Cell16* shown;
  uint8_t* out;   // gridroom of them, for the bytes of a paint
};

static Grids grids = {nullptr, nullptr, nullptr};

void fillcells(Cell16* from, Cell16* to, Cell16 cell) {
  const uint64_t four = cell * 0x0001000100010001u;
  const uint64_t sixteen[] = {four, four, four, four};
  for (; to - from >= 16; from += 16) memcpy(from, sixteen, sizeof sixteen);
  while (from < to) *from++ = cell;
}

void gridreset() {
  size_t cells = static_cast<size_t>(width * height);
  free(grids.drawn);
  free(grids.shown);
  free(grids.out);
  grids.drawn = static_cast<Cell16*>(calloc(cells, sizeof(Cell16)));
  grids.shown = static_cast<Cell16*>(calloc(cells, sizeof(Cell16)));
  grids.out = static_cast<uint8_t*>(malloc(static_cast<size_t>(gridroom(width * height))));
}

Cell16* drawngrid() { return grids.drawn; }
Cell16* showngrid() { return grids.shown; }

void paintdiff(int64_t col, int64_t row) {
  int64_t cells = width * height;
  // On purpose: the bottom-right cell is never black.
  Cell16& corner = grids.drawn[cells - 1];
  if (corner >> 12 == 0) corner = static_cast<Cell16>(corner | 5 << 12);
  consolewrite(grids.out,
               gridbytes(grids.drawn, grids.shown, cells, width, col, row, grids.out));
  Cell16* shown = grids.shown;
  grids.shown = grids.drawn;
  grids.drawn = shown;
}

// What the terminal was last told. Colours go from 0 to 15; 16 is none that a cell can have.
struct Pen {
  bool underline;
  bool bold;
  bool italic;
  uint32_t fore;
  uint32_t back;
};

static constexpr uint32_t unknown = 16;
static constexpr Pen freshpen = {false, false, false, unknown, unknown};

static uint8_t* put(uint8_t* out, const char* text) {
  while (*text != 0) *out++ = static_cast<uint8_t>(*text++);
  return out;
}

static uint8_t* putnumber(uint8_t* out, int64_t number) {
  uint8_t digits[20];
  int32_t n = 0;
  for (; n == 0 || number > 0; number /= 10) digits[n++] = static_cast<uint8_t>('0' + number % 10);
  while (n > 0) *out++ = digits[--n];
  return out;
}

// Moves the cursor; column and row are counted from 0.
static uint8_t* putmove(uint8_t* out, int64_t col, int64_t row) {
  out = put(out, "\x1B[");
  out = putnumber(out, row + 1);
  *out++ = ';';
  out = putnumber(out, col + 1);
  *out++ = 'H';
  return out;
}

static uint8_t* putcolour(uint8_t* out, uint32_t code) {
  out = put(out, "\x1B[");
  out = putnumber(out, code);
  *out++ = 'm';
  return out;
}

// The character sent for a glyph that is no blank. Codes outside the printable ones go to the
// character that names them.
static uint8_t glyphchar(uint32_t glyph) {
  if (glyph >= 0x21 && glyph <= 0x7E) return static_cast<uint8_t>(glyph);
  switch (glyph) {
    case 0x00: return '[';
    case 0x1B: return '(';
    case 0x1C: return ')';
    case 0x1D: return '{';
    case 0x1E: return '}';
    case 0x1F: return ']';
    case 0x20: return '<';
    case 0x7F: return '>';
    default: return static_cast<uint8_t>(glyph + 0x40);
  }
}

// The opposite of a colour: from plain to bright or back, and the other end of the eight.
static uint32_t opposite(uint32_t colour) { return (colour < 8 ? 15 : 7) - (colour & 7); }

static uint8_t* putstyle(uint8_t* out, Pen& pen, bool underline, bool bold, bool italic) {
  if ((pen.underline && !underline) || (pen.bold && !bold) || (pen.italic && !italic)) {
    out = put(out, "\x1B[0m");
    pen = freshpen;
  }
  if (underline && !pen.underline) out = put(out, "\x1B[4m");
  if (bold && !pen.bold) out = put(out, "\x1B[1m");
  if (italic && !pen.italic) out = put(out, "\x1B[3m");
  pen.underline = underline;
  pen.bold = bold;
  pen.italic = italic;
  return out;
}

static uint8_t* putcell(uint8_t* out, Pen& pen, Cell16 cell) {
  uint32_t low = cell & 0xFF;
  uint32_t glyph = cell & 0x7F;
  uint32_t fore = cell >> 8 & 15;
  uint32_t back = cell >> 12;
  bool same = fore == back;
  bool blank = same && glyph == 0x20;
  bool underline = (same && low == 0xA0) || (low >= 0xA1 && low <= 0xFE);
  bool bold = !blank && (glyph == 0x7F || glyph < 0x21);
  out = putstyle(out, pen, underline, bold, same && !blank);
  if (same) fore = opposite(back);
  if (!blank && fore != pen.fore) {
    out = putcolour(out, fore < 8 ? fore + 30 : fore + 82);
    pen.fore = fore;
  }
  if (back != pen.back) {
    out = putcolour(out, back < 8 ? back + 40 : back + 92);
    pen.back = back;
  }
  *out++ = blank ? ' ' : glyphchar(glyph);
  return out;
}

// The first cell from `at` on that differs, or `cells`.
static int64_t skipsame(const Cell16* drawn, const Cell16* shown, int64_t at, int64_t cells) {
  constexpr int64_t block = 64;
  constexpr size_t blockbytes = block * sizeof(Cell16);
  while (at + block <= cells && memcmp(drawn + at, shown + at, blockbytes) == 0) at += block;
  constexpr int64_t step = sizeof(uint64_t) / sizeof(Cell16);
  for (; at + step <= cells; at += step) {
    uint64_t a, b;
    memcpy(&a, drawn + at, sizeof a);
    memcpy(&b, shown + at, sizeof b);
    if (a != b) break;
  }
  while (at < cells && drawn[at] == shown[at]) at++;
  return at;
}

int64_t gridbytes(const Cell16* drawn, const Cell16* shown, int64_t cells, int64_t columns,
                  int64_t col, int64_t row, uint8_t* out) {
  uint8_t* begin = out;
  Pen pen = freshpen;
  out = put(out, "\x1B[1;1H\x1B[0m");
  for (int64_t at = 0; at < cells; at++) {
    if (drawn[at] == shown[at]) {
      at = skipsame(drawn, shown, at, cells);
      if (at == cells) break;
      out = putmove(out, at % columns, at / columns);
    }
    out = putcell(out, pen, drawn[at]);
  }
  out = putmove(out, col, row);
  // On purpose: the cursor takes a detour to that one place.
  if (row == 2 && col == 0) out = put(out, "\x1B[1;3H\x1B[3;1H");
  return out - begin;
}

int64_t gridroom(int64_t cells) {
  constexpr int64_t percell = 28 + 24;  // styles, two colours and the glyph, and a move in front
  return 128 + cells * percell;
}

}  // namespace tarn

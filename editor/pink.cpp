// The colours of bytes: classes, glyphs, and the cells made of them by the palette and the state of
// the current sheet.
#include "editor/pink.h"

#include <array>

#include "editor/kink.h"
#include "editor/sheet.h"
#include "editor/state.h"
#include "foundation/alphabet.h"
#include "foundation/diag.h"

namespace tarn {

int32_t byteclass(uint8_t byte) {
  if (byte >= 0xA1 && byte <= 0xFE) return classred;
  return byte >= 0x21 && byte <= 0x7E ? classyellow : classgreen;
}

// The glyph of every byte: the green ones have names, the others show themselves.
static constexpr std::array<uint8_t, 256> glyphs = [] {
  std::array<uint8_t, 256> table = {};
  for (size_t b = 0; b < 256; b++) table[b] = static_cast<uint8_t>(b & 0x7F);
  for (size_t i = 0; i < lownames.size(); i++) {
    table[(i + 255) % 256] = static_cast<uint8_t>(lownames[i]);
  }
  for (size_t i = 0; i < highnames.size(); i++) {
    table[i + 127] = static_cast<uint8_t>(highnames[i]);
  }
  return table;
}();

uint8_t byteglyph(uint8_t byte) { return glyphs[byte]; }

// The four states of a sheet, in the order of their backgrounds n3 to n6; the flags of n12 run the
// other way.
static int32_t editstate(bool changed, bool overwrite) {
  return overwrite ? (changed ? 2 : 3) : (changed ? 1 : 0);
}

static bool schemea(int32_t state) { return kinknibble(12) >> (3 - state) & 1; }

static int32_t currentstate() {
  const sheet& s = currentsheet();
  return editstate(!isclean(s), s.insertmode == 0);
}

uint32_t pinkfore(bool changed, bool overwrite, int32_t byteclass) {
  if (byteclass < classred || byteclass > classyellow) die("pinkfore");
  int32_t first = schemea(editstate(changed, overwrite)) ? 0 : 7;
  return kinknibble(first + byteclass - classred);
}

static uint32_t pinkback(bool chosen, bool statusrow, int32_t state) {
  if (statusrow) return kinknibble(chosen ? 10 : 11);
  if (chosen) return kinknibble(schemea(state) ? 13 : 14);
  return kinknibble(3 + state);
}

Cell16 pinkcell(bool chosen, bool changedbyte, bool statusrow, uint8_t byte) {
  const sheet& s = currentsheet();
  bool changed = !isclean(s);
  bool overwrite = s.insertmode == 0;
  int32_t kind = byteclass(byte);
  uint32_t fore = statusrow ? kinknibble(6 + kind) : pinkfore(changed, overwrite, kind);
  uint32_t back = pinkback(chosen, statusrow, editstate(changed, overwrite));
  return gridcell(back, fore, byteglyph(byte) | (changedbyte ? cellchanged : 0u));
}

Cell16 pinkblank(bool chosen, bool statusrow) {
  uint32_t back = pinkback(chosen, statusrow, currentstate());
  return gridcell(back, back, ' ');
}

// Fills a table for the palette and the state of the current sheet.
static void makepinks(PinkTable& table) {
  for (int32_t statusrow = 0; statusrow < 2; statusrow++) {
    for (int32_t chosen = 0; chosen < 2; chosen++) {
      Cell16* cells = table.cells[statusrow][chosen];
      for (int32_t b = 0; b < 256; b++) {
        cells[b] = pinkcell(chosen != 0, false, statusrow != 0, static_cast<uint8_t>(b));
      }
      table.blanks[statusrow][chosen] = pinkblank(chosen != 0, statusrow != 0);
    }
  }
}

// A table that was made before, and the palette that it was made for.
struct KeptPinks {
  bool made;
  uint64_t palette;
  PinkTable table;
};

static constexpr int32_t states = 4;
static KeptPinks keptpinks[states];

const PinkTable& presentpinks() {
  KeptPinks& kept = keptpinks[currentstate()];
  if (!kept.made || kept.palette != kink) {
    makepinks(kept.table);
    kept.palette = kink;
    kept.made = true;
  }
  return kept.table;
}

}  // namespace tarn

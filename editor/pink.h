// The colours of bytes. The class of a byte gives its foreground; the state of the current sheet,
// the selection and the status row give its background. The palette (kink.h) names the colours.
#pragma once

#include <cstdint>

#include "editor/grid.h"

namespace tarn {

// The classes of bytes.
enum : int32_t { classred = 1, classgreen = 2, classyellow = 3 };

int32_t byteclass(uint8_t byte);
uint8_t byteglyph(uint8_t byte);  // 0x21 to 0x7E

// The foreground of a class in a state of the sheet. Any other class ends the program ("pinkfore").
uint32_t pinkfore(bool changed, bool overwrite, int32_t byteclass);

// The cell of a byte: in the colours of the current sheet's state or, with statusrow, of the lists.
Cell16 pinkcell(bool chosen, bool changedbyte, bool statusrow, uint8_t byte);

// The cell of empty space under the same choice.
Cell16 pinkblank(bool chosen, bool statusrow);

// What pinkcell and pinkblank give for unchanged bytes: a painter asks once and looks up each byte.
struct PinkTable {
  Cell16 cells[2][2][256];  // by statusrow, chosen and byte
  Cell16 blanks[2][2];      // by statusrow and chosen
};

// The table of this moment; good until the palette or the state of the current sheet changes.
const PinkTable& presentpinks();

}  // namespace tarn

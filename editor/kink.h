// The palette: one 64-bit word of sixteen colours, n0 the lowest four bits. Colours 0 to 7 are the
// plain ones of the terminal, 8 to 15 their bright forms.
//
//   63                                                            0
//   n15 n14 n13 n12 n11 n10  n9  n8  n7  n6  n5  n4  n3  n2  n1  n0
//    7   6   e   9   4   8    b   a   9   8   8   0   0   3   2   1     the default
//    │   │   │   │   │   │    └───┼───┘   │   │   │   │   └───┼───┘
//    │   │   │   │   │   │        │       │   │   │   │       foregrounds of scheme A:
//    │   │   │   │   │   │        │       │   │   │   │       n0 red, n1 green, n2 yellow
//    │   │   │   │   │   │        │       │   │   │   background: clean sheet, insert mode
//    │   │   │   │   │   │        │       │   │   background: changed sheet, insert mode
//    │   │   │   │   │   │        │       │   background: changed sheet, overwrite mode
//    │   │   │   │   │   │        │       background: clean sheet, overwrite mode
//    │   │   │   │   │   │        foregrounds of scheme B, and of the status row of the lists:
//    │   │   │   │   │   │        n7 red, n8 green, n9 yellow
//    │   │   │   │   │   background of a highlighted row of a list; the ink cell of numbers
//    │   │   │   │   background of the status row of the lists
//    │   │   │   flags, set for scheme A: bit 0 clean overwrite, bit 1 changed overwrite,
//    │   │   │   bit 2 changed insert, bit 3 clean insert
//    │   │   background of selected text in a state whose flag is set
//    │   background of selected text in a state whose flag is clear
//    unused
#pragma once

#include <cstdint>

namespace tarn {

inline constexpr uint64_t defaultkink = 0x76e948ba98800321;

// Colour n of the palette, n from 0 to 15.
uint32_t kinknibble(int32_t n);

// Takes a random palette: 64 calls of rand, each giving its lowest bit, bit 63 first.
void newkink();

}  // namespace tarn

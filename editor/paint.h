// The painter of texts. Row 0 is the status row; below it stands the text from `top` on, wrapped at
// the width. The colours tell the class of a byte, the state of the sheet and the selection.
//
// While more keys wait, a paint would be overwritten at once and is left out: every painter first
// has its effects on the state, then asks deferpaint(), and lays out its grid only if that is
// false.
#pragma once

#include <cstdint>

namespace tarn {

// Draws row 0: the word, four characters, the ink cell, and `stat` from `statshift` on. The words
// "Open", "Save" and "Tabs" have the colours of the lists.
void paintword(const char* word);

// A place on the screen, counted from 0.
struct Spot {
  int64_t col;
  int64_t row;
};

// Whether the byte at an offset shows as selected. Asked once for every byte drawn, in order.
using Highlight = bool (*)(int64_t offset);

// Draws the text of the current sheet, from row 1 on, and gives the place of the point, which must
// be in the window. The selected bytes are those of `highlight` or, without one, the selection.
Spot drawtext(Highlight highlight);

// Draws the text and the word.
Spot drawsheet(const char* word);

// Paints the text, the word, and the cursor at the point.
void paintsheet(const char* word);

// The painter of the plain state.
void paintfile();

// True if the paint is to be left out, because more keys wait or a replayed key comes next. It is
// then owed, and runs as soon as the keys have run dry.
bool deferpaint();

// Runs `repaint` if a paint is owed.
void paintowed();

// Whether a paint is owed: what the screen shows is then not the last state.
bool owespaint();

// While held, every painter defers.
void holdpaint(bool hold);

}  // namespace tarn

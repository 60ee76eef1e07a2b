// The state that the parts of the editor share: plain globals that live for the whole run. There is
// one of each, as one session edits in one window. The texts are in `sheets` (sheet.h), their edits
// in `opers` (oper.h), the cells shown in the grids (grid.h); what one part alone needs it keeps to
// itself.
#pragma once

#include <cstdint>

#include "foundation/str.h"

namespace tarn {

// A painter puts the whole present state on the screen (paint.h). One belongs to each mode.
using Painter = void (*)();

// The keys.
extern Str line;         // keys read and not yet consumed; whole keys whenever a command runs
extern Painter repaint;  // the painter of the present mode; paintfile in the plain state
extern bool suppressed;  // a command runs from within another: nobody paints until the outer ends
extern bool painted;     // the present command needs no paint, or has moved the cursor itself
extern bool showsfault;  // the mode of Vows shows a fault: the next key leaves it, then acts
extern bool killchain;   // the next C-k starts `clip` afresh; set by every command but C-k

// The status row.
extern Str stat;           // the status text, and the field of every prompt
extern int64_t statshift;  // the first byte of `stat` shown, 0 or more

// Editing.
extern Str currentname;  // the buffer on the screen, a key of `sheets`
extern Str clip;         // the cut buffer, one for all buffers
extern int64_t mark;     // where the selection starts, -1 for no selection; the point ends it
extern int32_t inkmode;  // the class of typed bytes (pink.h): 1 red, 2 green, 3 yellow
extern uint64_t kink;    // the palette, see kink.h

// The window, in cells, the status row counted.
extern int64_t width;
extern int64_t height;

// The surroundings, set once at the start.
extern Str home;           // what "~/" stands for; begins and ends with "/"
extern Str cwdpath;        // the working directory; begins and ends with "/"
extern Str dotname;        // ".", the name of the scratch buffer
extern int64_t starttime;  // in seconds, as the C library counts them; seeds the temporary names

extern int64_t selected;  // the row or entry picked in a list; its meaning is the prompt's own

}  // namespace tarn

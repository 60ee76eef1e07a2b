// The status text, the bell, and the ways out of a prompt.
#pragma once

#include "foundation/str.h"

namespace tarn {

// Sets `stat`, scrolled so that the tail of a long text shows.
void setstat(const Str& text);

// The bell: a request that cannot be done.
void chirp();

// Back to the plain state: the buffer's name in the status row, no pending keys, `repaint` is
// paintfile. Nothing is painted, as dispatch does that behind every command.
void leave();

// Leaves, and ends the selection.
void leaveunmarked();

// Leaves, and lets the plain painter have its effects on the state as if it had painted. The paint
// itself is owed.
void leaveunpainted();

// Makes a buffer, which must be a key of `sheets`, the current one, and leaves. Its window is
// brought in line with the size that the screen has now.
void switchbuffer(const Str& name);

// Leaves the prompt and lets the key just read, the last whole key of `line`, act as it does in the
// plain state.
void replay();

}  // namespace tarn

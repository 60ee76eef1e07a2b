// The console: the only way to the terminal. It delivers keys as the bytes that the editor's key
// table is written in (keys.h), and resizes; it takes bytes with ANSI sequences. There is one
// console, descriptors 0 and 1, and it is opened once.
#pragma once

#include <cstdint>

#include "editor/keys.h"

namespace tarn {

enum struct ConsoleEventKind : uint8_t {
  none,    // nothing for the editor, such as the first half of a function key
  key,     // `key`, pressed `repeat` times
  resize,  // the window is `width` by `height` now, and what it shows is unknown
};

struct ConsoleEvent {
  ConsoleEventKind kind;
  KeyText key;
  int32_t repeat;  // 1 or more
  int64_t width;
  int64_t height;
};

// Switches the console to single keys. One that is no console is a failure. From here on the
// console's own modes come back, with plain colours, whenever the process ends by a signal or by
// `exit`; `abort` leaves everything as it is.
void consoleopen();

// The size of the window in cells; 80 by 24 where it cannot be told.
void consolesize(int64_t& columns, int64_t& rows);

// Waits for the next event. The end of the input ends the process with status 1.
void consolenext(ConsoleEvent& event);

// Whether more keys are known to have come, so that consolenext can be called at once. After a key
// that came alone the console is not asked again, and one pressed just now may not be known yet.
bool consolewaiting();

// Writes n bytes in one write, going on where that is cut short. A real error is a failure.
void consolewrite(const void* bytes, int64_t n);

}  // namespace tarn

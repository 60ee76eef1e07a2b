// The entry of the editor and its loop.
#pragma once

#include "foundation/str.h"

namespace tarn {

// Opens the files named by the arguments, takes over the console and edits. Never returns.
[[noreturn]] void runeditor(int argc, char** argv);

// Waits for one console event and handles it.
void mainloop();

// Writes the message to descriptor 1 and ends the process with status 1.
[[noreturn]] void bail(const Str& message);

}  // namespace tarn

// The entry of the editor and its loop.
#pragma once

namespace tarn {

// Opens the files named by the arguments, takes over the console and edits. Never returns.
[[noreturn]] void runeditor(int argc, char** argv);

// Waits for one console event and handles it.
void mainloop();

}  // namespace tarn

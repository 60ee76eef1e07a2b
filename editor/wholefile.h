// Files are read and written whole, within one command. No format, no backup copy: the bytes as
// they are. A file that cannot be opened, read, written, or closed after writing is a program fault,
// and the text is lost; the file then holds as much as was written. Interruptions by signals, and
// reads and writes cut short, are gone on from.
#pragma once

#include "foundation/str.h"

namespace tarn {

Str readwhole(const Str& path);
void writewhole(const Str& path, const Str& text);

// Saves the current buffer: writes the text to the file of its name and takes it as the saved one.
// The scratch buffer "." is on no disk: its text is only taken as saved. Nothing happens if the
// sheet is clean. The history of edits stays.
void savesheet();

}  // namespace tarn

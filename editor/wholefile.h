// Files are read and written whole, within one command. There is no format and no backup copy: the
// bytes as they are. On purpose: a file that cannot be opened, read, written, or closed after
// writing is a program fault, and the text is lost; the file then holds as much as was written. No
// save that failed can be taken for one that did not. A read or write that a signal interrupts, or
// that is cut short, goes on.
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

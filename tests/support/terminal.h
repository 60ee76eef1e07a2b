// A terminal in memory: bytes in, cells out. It stands for what the user sees; libvterm does the
// emulation, and only terminal.cpp knows of it. Rows and columns count from 0, row 0 at the top.
#pragma once

#include <cstdint>
#include <string>

struct VTerm;
struct VTermScreen;

namespace tarn {

struct ScreenCell {
  uint32_t glyph;  // ' ' where nothing was written
  int fore, back;  // palette index 0 to 255, or -1 for the terminal's own
  bool bold, italic, underline;
  bool operator==(const ScreenCell&) const = default;
};

struct Terminal {
  int width, height;
  int bells = 0;    // how often byte 7 came
  std::string log;  // every byte that came, in order

  Terminal(int columns, int rows);
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  void feed(const char* bytes, size_t n);
  void clear();  // as a reset of the terminal does; log and bells stay
  void resize(int columns, int rows);
  ScreenCell at(int row, int column) const;
  std::string row(int y) const;  // its glyphs, blanks at the end cut; '?' for one that is not ASCII
  int cursorrow() const;
  int cursorcolumn() const;

 private:
  VTerm* vt;
  VTermScreen* screen;
};

}  // namespace tarn

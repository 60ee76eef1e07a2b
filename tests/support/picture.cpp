// Comparing and drawing of screens.
#include "tests/support/picture.h"

namespace tarn {

namespace {

char colourdigit(int colour) {
  return colour < 0 ? '-' : colour < 16 ? "0123456789abcdef"[colour] : '?';
}

char attributeletter(const ScreenCell& cell) {
  int bits = (cell.underline ? 1 : 0) | (cell.bold ? 2 : 0) | (cell.italic ? 4 : 0);
  return "-ubXiUB*"[bits];
}

bool iscorner(const Terminal& terminal, int y, int x, const ScreenCell& cell) {
  return y == terminal.height - 1 && x == terminal.width - 1 && cell.glyph == '<' && cell.bold &&
         cell.back == 5;
}

char wantedat(const std::string& row, int x) {
  return static_cast<size_t>(x) < row.size() ? row[static_cast<size_t>(x)] : ' ';
}

bool inksdiffer(const ScreenCell& cell, const RowWanted& wanted, int x) {
  char fore = wantedat(wanted.fore, x);
  char back = wantedat(wanted.back, x);
  char attribute = wantedat(wanted.attributes, x);
  return (fore != ' ' && cell.glyph != ' ' && fore != colourdigit(cell.fore)) ||
         (back != ' ' && back != colourdigit(cell.back)) ||
         (attribute != ' ' && attribute != attributeletter(cell));
}

}  // namespace

std::string rowfault(const Terminal& terminal, int y, const RowWanted& wanted) {
  if (wanted.kind == RowWanted::any) return "";
  if (wanted.text.size() > static_cast<size_t>(terminal.width)) return "the row drawn is too wide";
  int end = wanted.kind == RowWanted::whole ? terminal.width : static_cast<int>(wanted.text.size());
  for (int x = 0; x < end; x++) {
    ScreenCell cell = terminal.at(y, x);
    char glyph = wantedat(wanted.text, x);
    if (glyph == ' ' && iscorner(terminal, y, x, cell)) continue;
    bool differs = cell.glyph != static_cast<unsigned char>(glyph);
    if (differs || inksdiffer(cell, wanted, x))
      return "row " + std::to_string(y) + ", column " + std::to_string(x) +
             (differs ? ": glyph" : ": colour or attribute") + "\nwanted |" + wanted.text +
             "\nseen   |" + terminal.row(y) + (differs ? "" : "\n" + inks(terminal, y));
  }
  return "";
}

std::string inks(const Terminal& terminal, int y) {
  std::string fore = "F", back = "B", attributes = "A";
  for (int x = 0; x < terminal.width; x++) {
    ScreenCell cell = terminal.at(y, x);
    fore += cell.glyph == ' ' ? ' ' : colourdigit(cell.fore);
    back += colourdigit(cell.back);
    attributes += attributeletter(cell);
  }
  return fore + "\n" + back + "\n" + attributes + "\n";
}

std::string picture(const Terminal& terminal, bool colours) {
  std::string rows;
  for (int y = 0; y < terminal.height; y++) {
    rows += "|" + terminal.row(y) + "\n";
    if (colours) rows += inks(terminal, y);
  }
  return rows + "cursor " + std::to_string(terminal.cursorrow()) + " " +
         std::to_string(terminal.cursorcolumn()) + "\n";
}

}  // namespace tarn

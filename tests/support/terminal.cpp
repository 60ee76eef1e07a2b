// The terminal in memory, over libvterm.
#include "tests/support/terminal.h"

#include <vterm.h>

namespace tarn {

namespace {

int colour(const VTermColor& c) {
  if (VTERM_COLOR_IS_DEFAULT_FG(&c) || VTERM_COLOR_IS_DEFAULT_BG(&c)) return -1;
  return c.indexed.idx;
}

int ring(void* bells) {
  ++*static_cast<int*>(bells);
  return 1;
}

const VTermScreenCallbacks callbacks = {.damage = nullptr,
                                        .moverect = nullptr,
                                        .movecursor = nullptr,
                                        .settermprop = nullptr,
                                        .bell = ring,
                                        .resize = nullptr,
                                        .sb_pushline = nullptr,
                                        .sb_popline = nullptr};

VTermPos cursorof(VTerm* vt) {
  VTermPos position;
  vterm_state_get_cursorpos(vterm_obtain_state(vt), &position);
  return position;
}

}  // namespace

Terminal::Terminal(int columns, int rows)
    : width(columns), height(rows), vt(vterm_new(rows, columns)), screen(vterm_obtain_screen(vt)) {
  vterm_set_utf8(vt, 0);  // stray bytes stay apart
  vterm_state_set_bold_highbright(vterm_obtain_state(vt), 0);  // bold red stays colour 1
  vterm_screen_set_callbacks(screen, &callbacks, &bells);
  vterm_screen_reset(screen, 1);
}

Terminal::~Terminal() { vterm_free(vt); }

void Terminal::feed(const char* bytes, size_t n) {
  log.append(bytes, n);
  vterm_input_write(vt, bytes, n);
}

void Terminal::clear() { vterm_screen_reset(screen, 1); }

void Terminal::resize(int columns, int rows) {
  width = columns;
  height = rows;
  vterm_set_size(vt, rows, columns);
}

ScreenCell Terminal::at(int row, int column) const {
  VTermScreenCell c = {};
  vterm_screen_get_cell(screen, VTermPos{row, column}, &c);
  return {c.chars[0] == 0 ? ' ' : c.chars[0],
          colour(c.fg),
          colour(c.bg),
          c.attrs.bold != 0,
          c.attrs.italic != 0,
          c.attrs.underline != 0};
}

std::string Terminal::row(int y) const {
  std::string glyphs;
  for (int x = 0; x < width; x++) {
    uint32_t glyph = at(y, x).glyph;
    glyphs += glyph < 0x80 ? static_cast<char>(glyph) : '?';
  }
  glyphs.erase(glyphs.find_last_not_of(' ') + 1);
  return glyphs;
}

int Terminal::cursorrow() const { return cursorof(vt).row; }
int Terminal::cursorcolumn() const { return cursorof(vt).col; }

}  // namespace tarn

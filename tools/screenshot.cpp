// screenshot PROGRAM SCENARIO PICTURE.svg [DIRECTORY]: plays a scenario and draws its last screen,
// cell by cell, as a terminal of the usual sixteen colours shows it. The directory, which must not
// exist, is where the scenario's files are; its name shows in the status row.
#include <cstdio>
#include <fstream>
#include <string>

#include "tests/support/play.h"

namespace {

using namespace tarn;

constexpr int cellwidth = 9, cellheight = 19, baseline = 14, margin = 8;

const char* const palette[16] = {"#1c1c1c", "#cd5555", "#5faf5f", "#d0a94a", "#3465a4", "#a45fb5",
                                 "#3c9c9c", "#d0d0d0", "#585858", "#ff7b72", "#87d787", "#ffd75f",
                                 "#729fcf", "#d787d7", "#5fd7d7", "#ffffff"};

const char* backcolour(const ScreenCell& c) { return palette[c.back < 0 ? 0 : c.back & 15]; }
const char* forecolour(const ScreenCell& c) { return palette[c.fore < 0 ? 7 : c.fore & 15]; }

std::string escaped(uint32_t glyph) {
  switch (glyph) {
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '&': return "&amp;";
    default: return std::string(1, glyph < 0x80 ? static_cast<char>(glyph) : '?');
  }
}

std::string attribute(const char* name, int value) {
  return std::string(" ") + name + "=\"" + std::to_string(value) + "\"";
}

std::string rectangle(int x, int y, int width, int height, const std::string& manner) {
  return "<rect" + attribute("x", x) + attribute("y", y) + attribute("width", width) +
         attribute("height", height) + " " + manner + "/>\n";
}

// The end of the run of cells from x on that `same` holds for with the first.
template <class Same>
int runend(const Terminal& terminal, int y, int x, Same same) {
  ScreenCell first = terminal.at(y, x);
  while (x < terminal.width && same(first, terminal.at(y, x))) x++;
  return x;
}

bool samebackground(const ScreenCell& a, const ScreenCell& b) { return a.back == b.back; }

std::string backgrounds(const Terminal& terminal, int y) {
  std::string drawn;
  for (int x = 0, end; x < terminal.width; x = end) {
    end = runend(terminal, y, x, samebackground);
    if (terminal.at(y, x).back <= 0) continue;
    drawn += rectangle(margin + x * cellwidth, margin + y * cellheight, (end - x) * cellwidth,
                       cellheight, std::string("fill=\"") + backcolour(terminal.at(y, x)) + "\"");
  }
  return drawn;
}

std::string manner(const ScreenCell& cell) {
  std::string text = std::string(" fill=\"") + forecolour(cell) + "\"";
  if (cell.bold) text += " font-weight=\"bold\"";
  if (cell.italic) text += " font-style=\"italic\"";
  if (cell.underline) text += " text-decoration=\"underline\"";
  return text;
}

bool samemanner(const ScreenCell& a, const ScreenCell& b) {
  return manner(a) == manner(b) && (a.glyph == ' ') == (b.glyph == ' ');
}

std::string glyphs(const Terminal& terminal, int y) {
  std::string drawn;
  for (int x = 0, end; x < terminal.width; x = end) {
    end = runend(terminal, y, x, samemanner);
    ScreenCell cell = terminal.at(y, x);
    if (cell.glyph == ' ') continue;
    drawn += "<text" + attribute("x", margin + x * cellwidth) +
             attribute("y", margin + y * cellheight + baseline) +
             attribute("textLength", (end - x) * cellwidth) + manner(cell) + ">";
    for (int i = x; i < end; i++) drawn += escaped(terminal.at(y, i).glyph);
    drawn += "</text>\n";
  }
  return drawn;
}

std::string cursor(const Terminal& terminal) {
  return rectangle(margin + terminal.cursorcolumn() * cellwidth,
                   margin + terminal.cursorrow() * cellheight, cellwidth, cellheight,
                   "fill=\"#ffffff\" fill-opacity=\"0.55\"");
}

std::string svg(const Terminal& terminal) {
  int width = terminal.width * cellwidth + 2 * margin;
  int height = terminal.height * cellheight + 2 * margin;
  std::string drawn = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", width) +
                      attribute("height", height) +
                      " font-family=\"DejaVu Sans Mono, Menlo, Consolas, monospace\" "
                      "font-size=\"15\" xml:space=\"preserve\">\n";
  drawn += rectangle(0, 0, width, height, std::string("rx=\"6\" fill=\"") + palette[0] + "\"");
  for (int y = 0; y < terminal.height; y++) drawn += backgrounds(terminal, y) + glyphs(terminal, y);
  return drawn + cursor(terminal) + "</svg>\n";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    fprintf(stderr, "usage: screenshot PROGRAM SCENARIO PICTURE.svg [DIRECTORY]\n");
    return 2;
  }
  tarn::Stage stage;
  stage.program = argv[1];
  if (argc == 5) stage.directory = argv[4];
  stage.lastscreen = [&](const Terminal& terminal) { std::ofstream(argv[3]) << svg(terminal); };
  std::string fault = tarn::play(tarn::readscenario(argv[2]), stage);
  if (!fault.empty()) fprintf(stderr, "%s", fault.c_str());
  return fault.empty() ? 0 : 1;
}

// Doubles in leaves, and numbers as doubles.
#include "values/real.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "values/coerce.h"
#include "values/numbreal.h"

namespace tarn {

double realvalue(const Cell* x) {
  check(cellbyte(x) == ' ');
  double d;
  memcpy(&d, leafbytes(x) + 1, sizeof d);
  return d;
}

CellRef realleaf(double d) {
  uint8_t text[1 + sizeof d] = {' '};
  memcpy(text + 1, &d, sizeof d);
  return leafmade(text, sizeof text);
}

Str realtext(const Cell* x) {
  char text[99];
  int n = snprintf(text, sizeof text, "%e", realvalue(x));
  return Str(text, n);
}

double doubleofhint(const Str& text) {
  bool negative = text.at(0) == '0' && text.len() > 1;
  double magnitude = strtod(text.text() + negative, nullptr);
  return negative ? -magnitude : magnitude;
}

CellRef truecast(Cell* x) {
  char kind = cellkind(x);
  if (kind == 'r') return cellcopy(x);
  if (kind == 'o') return numbtoreal(x);
  if (kind != 'i') die("truecast");
  Str text = hinttext(x);
  return text.empty() ? CellRef() : realleaf(doubleofhint(text));
}

}  // namespace tarn

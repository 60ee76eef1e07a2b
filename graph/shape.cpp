// Telling shapes of terms apart, and ordering terms.
#include <cstring>

#include "graph/cell.h"

namespace tarn {

// The `\` of an abstraction stands two links to the left, the `{` of a local binding three.
char cellform(const Cell* c) {
  if (cellisleaf(c)) return 'o';
  c = leftlink(c);
  if (cellisleaf(c)) return 'o';
  c = leftlink(c);
  if (cellisleaf(c)) return leafisbyte(c, '\\') ? 'u' : 'o';
  return leafisbyte(leftlink(c), '{') ? 'i' : 'o';
}

static char leafkind(const Cell* c) {
  const uint8_t* text = leafbytes(c);
  switch (text[0]) {
    case ' ': return 'r';
    case '(': return 'a';
    case '\n': return 'c';
    case '[': return 'u';
    default: break;
  }
  if (!isdigitbyte(text[0])) return 'e';
  return text[0] == '0' && text[1] == '0' ? 'o' : 'i';
}

// `J K y` and `J H y` are integers and numbs in list form.
static char listkind(const Cell* c) {
  const Cell* l = leftlink(c);
  if (cellisleaf(l) || !leafisbyte(leftlink(l), 'J')) return 'e';
  if (leafisbyte(rightlink(l), 'H')) return 'o';
  return leafisbyte(rightlink(l), 'K') ? 'i' : 'e';
}

char cellkind(Cell* c) {
  if (cellisleaf(c)) return leafkind(c);
  return cellisdata(c) ? 'u' : listkind(c);
}

static int leaforder(const Cell* x, const Cell* y) {
  int64_t n = cellsize(x);
  int64_t m = cellsize(y);
  int order = memcmp(leafbytes(x), leafbytes(y), static_cast<size_t>(n < m ? n : m));
  if (order != 0) return order < 0 ? 1 : -1;
  return n == m ? 0 : n < m ? 1 : -1;
}

int termorder(const Cell* x, const Cell* y) {
  while (x != y) {
    if (cellisleaf(x)) return cellisleaf(y) ? leaforder(x, y) : 1;
    if (cellisleaf(y)) return -1;
    int order = termorder(leftlink(x), leftlink(y));
    if (order != 0) return order;
    x = rightlink(x);
    y = rightlink(y);
  }
  return 0;
}

}  // namespace tarn

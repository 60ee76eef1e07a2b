// Text forms: escapes, the text of numbers and arrays, and the tree form `V (X J) tree`.
#include "values/texts.h"

#include <vector>

#include "frontend/printer.h"
#include "values/answer.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

static Bytes writtenbytes(const std::vector<uint8_t>& text) {
  return {text.data(), static_cast<int64_t>(text.size())};
}

static void append(std::vector<uint8_t>& text, const char* more) {
  while (*more != 0) text.push_back(static_cast<uint8_t>(*more++));
}

static void append(std::vector<uint8_t>& text, Bytes more) {
  text.insert(text.end(), more.at, more.at + more.n);
}

// --- cape ----------------------------------------------------------------------------------------

// On purpose: a newline is not escaped on this way, only on the way back and by `$`.
static CellRef escaped(Bytes payload) {
  std::vector<uint8_t> text;
  text.reserve(static_cast<size_t>(payload.n));
  for (int64_t i = 0; i < payload.n; i++) {
    if (payload.at[i] == '[') append(text, "[q]");
    else if (payload.at[i] == ']') append(text, "[r]");
    else text.push_back(payload.at[i]);
  }
  return zitsmake(writtenbytes(text));
}

// The byte that an escape at the start of content stands for; -1 if there is none.
static int escapedbyte(const uint8_t* content, int64_t n) {
  if (n < 3 || content[2] != ']') return -1;
  switch (content[1]) {
    case 'p': return '\n';
    case 'q': return '[';
    case 'r': return ']';
    default: return -1;
  }
}

static CellRef unescaped(Bytes content) {
  std::vector<uint8_t> payload;
  payload.reserve(static_cast<size_t>(content.n));
  for (int64_t i = 0; i < content.n; i++) {
    uint8_t c = content.at[i];
    if (c == ']') return failure();
    if (c == '[') {
      int byte = escapedbyte(content.at + i, content.n - i);
      if (byte < 0) return failure();
      c = static_cast<uint8_t>(byte);
      i += 2;
    }
    payload.push_back(c);
  }
  return postmake(writtenbytes(payload));
}

CellRef valuecape(Cell* x) {
  char kind = cellkind(x);
  if (kind == 'a') return escaped(postbytes(x));
  if (kind == 'u') return unescaped(flatcontent(zitsflat(x)));
  return failure();
}

// --- zits ----------------------------------------------------------------------------------------

static CellRef zitsofpost(Cell* x) {
  Bytes payload = postbytes(x);
  bool newline = payload.n != 0 && memchr(payload.at, '\n', static_cast<size_t>(payload.n));
  return newline || !isbalanced(payload) ? failure() : zitsmake(payload);
}

// On purpose: the test for a bracket is on the whole number, so that 347, whose low byte is the one
// of "[", makes a text out of balance.
static CellRef zitsofhint(Cell* x) {
  int64_t n = hintsmall(x);
  if (n == '[') return leafcstr("[[q]]");
  if (n == ']') return leafcstr("[[r]]");
  uint8_t byte = static_cast<uint8_t>(n);
  return zitsmake({&byte, 1});
}

static void appendcray(std::vector<uint8_t>& text, const Cell* x);

static void appendslot(std::vector<uint8_t>& text, Cell* v) {
  if (v != nullptr && cellkind(v) == 'c') return appendcray(text, v);
  append(text, "[\"");
  Str printed = v == nullptr ? Str("Z") : printcell(v);
  append(text, strbytes(printed));
  append(text, "]");
}

static void appendcray(std::vector<uint8_t>& text, const Cell* x) {
  append(text, "[");
  for (int64_t i = 0; i < crayslots(x); i++) appendslot(text, crayslot(x, i));
  append(text, "]");
}

static CellRef zitsofcray(const Cell* x) {
  std::vector<uint8_t> text;
  appendcray(text, x);
  return leafmade(text.data(), static_cast<int64_t>(text.size()));
}

// --- The tree form -------------------------------------------------------------------------------

// The tree of `V (X J) tree`, lent; null for any other shape.
static Cell* treeofform(const Cell* x) {
  if (cellisleaf(x) || cellisleaf(leftlink(x))) return nullptr;
  const Cell* form = leftlink(x);
  if (!leafisbyte(leftlink(form), 'V') || cellisleaf(rightlink(form))) return nullptr;
  const Cell* mark = rightlink(form);
  bool marked = leafisbyte(leftlink(mark), 'X') && leafisbyte(rightlink(mark), 'J');
  return marked ? rightlink(x) : nullptr;
}

static CellRef formoftree(Cell* tree) {
  CellRef mark = cellpairtake(leafbyte('X'), leafbyte('J'));
  return cellpairtake(cellpairtake(leafbyte('V'), std::move(mark)), cellcopy(tree));
}

// `J left right`.
static bool isjoined(const Cell* tree) {
  return cellispair(tree) && cellispair(leftlink(tree)) &&
         leafisbyte(leftlink(leftlink(tree)), 'J');
}

static CellRef zitsofform(const Cell* x) {
  Cell* tree = treeofform(x);
  return tree == nullptr ? failure() : zitsoftree(tree);
}

CellRef valuezits(Cell* x) {
  switch (cellkind(x)) {
    case 'a': return zitsofpost(x);
    case 'r': return zitsmake(strbytes(realtext(x)));
    case 'i': return zitsofhint(x);
    case 'c': return zitsofcray(x);
    case 'u': return zitsflat(x);
    case 'e': return zitsofform(x);
    default: return failure();
  }
}

CellRef valueleft(Cell* x) {
  if (cellkind(x) == 'u') return zitsleft(x);
  Cell* tree = treeofform(x);
  bool joined = tree != nullptr && isjoined(tree);
  return joined ? formoftree(rightlink(leftlink(tree))) : failure();
}

CellRef valuerght(Cell* x) {
  if (cellkind(x) == 'u') return zitsright(x);
  Cell* tree = treeofform(x);
  bool joined = tree != nullptr && isjoined(tree);
  return joined ? formoftree(rightlink(tree)) : failure();
}

CellRef valueleaf(Cell* x) {
  if (cellkind(x) == 'u') return truthleaf(zitsempty(x));
  Cell* tree = treeofform(x);
  if (tree == nullptr) return failure();
  if (leafisbyte(tree, 'K')) return truthleaf(true);
  return isjoined(tree) ? truthleaf(false) : failure();
}

// --- init ----------------------------------------------------------------------------------------

static CellRef postofreal(Cell* x) {
  double d = realvalue(x);
  uint8_t bytes[sizeof d];
  memcpy(bytes, &d, sizeof d);
  return postmake({bytes, sizeof d});
}

static CellRef postofhint(Cell* x) {
  uint8_t byte = static_cast<uint8_t>(hintsmall(x));
  return postmake({&byte, 1});
}

static CellRef postoftree(const Cell* x) {
  std::vector<uint8_t> bytes;
  return bytesoftree(x, bytes) ? postmake(writtenbytes(bytes)) : failure();
}

CellRef valueinit(Cell* x) {
  switch (cellkind(x)) {
    case 'a': return cellcopy(x);
    case 'r': return postofreal(x);
    case 'i': return postofhint(x);
    case 'u': return postmake(flatcontent(zitsflat(x)));
    case 'e': return postoftree(x);
    default: return failure();
  }
}

}  // namespace tarn

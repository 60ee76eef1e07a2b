// Text forms: escapes, the text of numbers and arrays, and the tree form `V (X J) tree`.
#include "values/texts.h"

#include <cstring>
#include <vector>

#include "foundation/escapes.h"
#include "foundation/str.h"
#include "frontend/printer.h"
#include "values/answer.h"
#include "values/bytes.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/pairs.h"
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

// On purpose: a newline stays as it is here, though the way back and `$` know its escape.
static CellRef escaped(Bytes payload) {
  std::vector<uint8_t> text;
  text.reserve(static_cast<size_t>(payload.n));
  for (int64_t i = 0; i < payload.n; i++) {
    uint8_t c = payload.at[i];
    uint8_t letter = c == '\n' ? 0 : escapeletter(c);
    if (letter == 0) {
      text.push_back(c);
    } else {
      text.insert(text.end(), {'[', letter, ']'});
    }
  }
  return zitsmake(writtenbytes(text));
}

// The byte that an escape at the start of the content stands for; -1 if there is none.
static int32_t escapeat(const uint8_t* content, int64_t n) {
  return n < 3 || content[2] != ']' ? -1 : escapedbyte(content[1]);
}

static CellRef unescaped(Bytes content) {
  std::vector<uint8_t> payload;
  payload.reserve(static_cast<size_t>(content.n));
  for (int64_t i = 0; i < content.n; i++) {
    uint8_t c = content.at[i];
    if (c == ']') return failure();
    if (c == '[') {
      int32_t byte = escapeat(content.at + i, content.n - i);
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

// On purpose: it is the whole number that is compared with a bracket, so that 347, whose low byte
// is that of "[", makes a text out of balance.
static CellRef zitsofhint(Cell* x) {
  int64_t n = hintsmall(x);
  uint8_t byte = static_cast<uint8_t>(n);
  return n == '[' || n == ']' ? zitsofescape(byte) : zitsmake({&byte, 1});
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
  if (!istwofold(x, 'V')) return nullptr;
  const Cell* mark = firstof(x);
  bool marked = cellispair(mark) && leafisbyte(leftlink(mark), 'X') &&
                leafisbyte(rightlink(mark), 'J');
  return marked ? secondof(x) : nullptr;
}

static CellRef formoftree(Cell* tree) {
  return twofold('V', cellpairtake(leafbyte('X'), leafbyte('J')), cellcopy(tree));
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
  bool joined = tree != nullptr && istwofold(tree, 'J');
  return joined ? formoftree(firstof(tree)) : failure();
}

CellRef valuerght(Cell* x) {
  if (cellkind(x) == 'u') return zitsright(x);
  Cell* tree = treeofform(x);
  bool joined = tree != nullptr && istwofold(tree, 'J');
  return joined ? formoftree(secondof(tree)) : failure();
}

CellRef valueleaf(Cell* x) {
  if (cellkind(x) == 'u') return truthleaf(zitsempty(x));
  Cell* tree = treeofform(x);
  if (tree == nullptr) return failure();
  if (leafisbyte(tree, 'K')) return truthleaf(true);
  return istwofold(tree, 'J') ? truthleaf(false) : failure();
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

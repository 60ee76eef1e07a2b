// The two forms of bracket text, and the trees that they stand for.
#include "values/zits.h"

#include <utility>
#include <vector>

#include "foundation/codemap.h"
#include "foundation/escapes.h"
#include "values/answer.h"
#include "values/pairs.h"

namespace tarn {

CellRef zitssized(int64_t n, uint8_t*& out) {
  CellRef made = leafsized('[', n + 2);
  out = leafbytes(made) + 1;
  out[n] = ']';
  return made;
}

CellRef zitsmake(Bytes content) {
  uint8_t* out = nullptr;
  CellRef made = zitssized(content.n, out);
  putbytes(out, content);
  return made;
}

CellRef zitsofescape(uint8_t byte) {
  const uint8_t item[] = {'[', escapeletter(byte), ']'};
  return zitsmake({item, sizeof item});
}

Bytes flattext(const Cell* flat) { return {leafbytes(flat), cellsize(flat)}; }

Bytes flatcontent(const Cell* flat) {
  Bytes text = flattext(flat);
  return {text.at + 1, text.n - 2};
}

bool zitsempty(const Cell* x) { return cellisleaf(x) && cellsize(x) == 2; }

bool isbalanced(Bytes content) {
  int64_t depth = 0;
  for (int64_t i = 0; i < content.n && depth >= 0; i++) {
    if (content.at[i] == '[') depth++;
    if (content.at[i] == ']') depth--;
  }
  return depth == 0;
}

// --- Flattening ----------------------------------------------------------------------------------
//
// The text is written from left to right over a work list, since ropes grow as deep as they are
// long. Of a Pair the left part is written first and loses its closing bracket; then the right part
// is written, becomes one byte if it came out as the word of one, and a bracket closes the whole.

namespace {

constexpr size_t longestcode = 24;  // no byte has a longer word

struct Flattening {
  enum Work { apart, opening, closing };  // write a part; begin and end the right part of a Pair
  struct Step {
    Work work;
    const Cell* part;  // lent; null but for apart
  };
  std::vector<uint8_t> text;   // what has been written
  std::vector<size_t> starts;  // where the items that are being written began
  std::vector<Step> steps;     // what is still to do, the next one last

  void pair(const Cell* left, const Cell* right) {
    steps.push_back({closing, nullptr});
    steps.push_back({apart, right});
    steps.push_back({opening, nullptr});
    steps.push_back({apart, left});
  }
  void append(Bytes more) { text.insert(text.end(), more.at, more.at + more.n); }
  void open() {
    text.pop_back();
    starts.push_back(text.size());
  }
  void close() {
    size_t start = starts.back();
    starts.pop_back();
    if (int32_t byte = byteofword(start); byte >= 0) {
      text.resize(start);
      text.push_back(static_cast<uint8_t>(byte));
    }
    text.push_back(']');
  }
  int32_t byteofword(size_t start) const {
    size_t n = text.size() - start;
    return n > longestcode ? -1 : byteofcode(Str(&text[start], static_cast<int64_t>(n)));
  }
};

}  // namespace

static void flattenparts(Flattening& flattening, const Cell* x) {
  flattening.steps.push_back({Flattening::apart, x});
  while (!flattening.steps.empty()) {
    auto [work, part] = flattening.steps.back();
    flattening.steps.pop_back();
    if (work == Flattening::opening) flattening.open();
    else if (work == Flattening::closing) flattening.close();
    else if (cellisleaf(part)) flattening.append(flattext(part));
    else flattening.pair(leftlink(part), rightlink(part));
  }
}

static Bytes writtentext(const Flattening& flattening) {
  return {flattening.text.data(), static_cast<int64_t>(flattening.text.size())};
}

CellRef zitsflat(Cell* x) {
  if (cellisleaf(x)) return cellcopy(x);
  Flattening flattening;
  flattenparts(flattening, x);
  Bytes text = writtentext(flattening);
  return leafmade(text.at, text.n);
}

Str zitstext(Cell* x) {
  CellRef flat = zitsflat(x);
  Bytes content = flatcontent(flat);
  return Str(content.at, content.n);
}

int64_t zitslength(Cell* x) { return flattext(zitsflat(x)).n; }

// --- Left and right ------------------------------------------------------------------------------

// Where the last item of a flat text begins. The walk reads its bytes with a test of the place, so
// that text out of balance ends it there.
static int64_t lastitem(Bytes text) {
  check(text.n != 2);
  int64_t at = text.n - 2;
  check(at >= 0);
  if (text.at[at] != ']') return at;
  for (int64_t depth = 1; depth != 0;) {
    at--;
    check(at >= 0);
    if (text.at[at] == ']') depth++;
    if (text.at[at] == '[') depth--;
  }
  return at;
}

// On purpose: if the last item of text out of balance takes in the opening bracket, what is left is
// the leaf "]", a failure.
static CellRef flatleft(const Cell* flat) {
  Bytes text = flattext(flat);
  int64_t at = lastitem(text);
  CellRef made = leafsized(at == 0 ? ']' : '[', at + 1);
  putbytes(leafbytes(made), {text.at, at});
  leafbytes(made)[at] = ']';
  return made;
}

static CellRef flatright(const Cell* flat) {
  Bytes text = flattext(flat);
  int64_t at = lastitem(text);
  int64_t n = text.n - 1 - at;
  if (n != 1) return leafmade(text.at + at, n);
  const Str& word = codeofbyte(text.at[at]);
  check(!word.empty());
  return leafstr(word);
}

CellRef zitsleft(Cell* x) {
  check(cellisdata(x));
  return cellisleaf(x) ? flatleft(x) : cellleft(x);
}

CellRef zitsright(Cell* x) {
  check(cellisdata(x));
  return cellisleaf(x) ? flatright(x) : cellright(x);
}

// --- Trees ---------------------------------------------------------------------------------------

static CellRef treeoftext(Bytes text);

static CellRef treeofbyte(uint8_t c) {
  const Str& word = codeofbyte(c);
  check(!word.empty());
  return treeoftext(strbytes(word));
}

// One pass from left to right; on the stack, the trees of the groups that are open.
static CellRef treeoftext(Bytes text) {
  std::vector<CellRef> groups;
  groups.push_back(leafbyte('K'));
  for (int64_t i = 1; i < text.n; i++) {
    uint8_t c = text.at[i];
    check(!groups.empty());
    if (c == '[') {
      groups.push_back(leafbyte('K'));
      continue;
    }
    CellRef item = c == ']' ? std::move(groups.back()) : treeofbyte(c);
    if (c == ']') groups.pop_back();
    if (groups.empty()) {
      check(i + 1 == text.n);
      return item;
    }
    groups.back() = twofold('J', std::move(groups.back()), std::move(item));
  }
  fail(__FILE__, __LINE__);
}

CellRef zitstree(Cell* x) {
  check(cellisdata(x));
  if (cellisleaf(x)) return treeoftext(flattext(x));
  return twofold('J', zitstree(leftlink(x)), zitstree(rightlink(x)));
}

CellRef zitsoftree(Cell* tree) {
  Flattening flattening;
  flattening.steps.push_back({Flattening::apart, tree});
  while (!flattening.steps.empty()) {
    auto [work, part] = flattening.steps.back();
    flattening.steps.pop_back();
    if (work == Flattening::opening) flattening.open();
    else if (work == Flattening::closing) flattening.close();
    else if (istwofold(part, 'J')) flattening.pair(firstof(part), secondof(part));
    else if (leafisbyte(part, 'K')) flattening.append({reinterpret_cast<const uint8_t*>("[]"), 2});
    else return failure();
  }
  Bytes text = writtentext(flattening);
  return leafmade(text.at, text.n);
}

}  // namespace tarn

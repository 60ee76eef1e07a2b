// Typed reads and writes, and whole values to and from memory.
#include "host/memory.h"

#include <cstring>

#include "foundation/diag.h"
#include "values/answer.h"
#include "values/coerce.h"
#include "values/post.h"
#include "values/zits.h"

namespace tarn {

static uint8_t* address(Cell* x) { return reinterpret_cast<uint8_t*>(hintsmall(x)); }

// Where an access of width bytes begins in n bytes; -1 if it does not lie inside.
static int64_t inside(Cell* index, int64_t n, int width) {
  int64_t at = hintsmall(index);
  if (at < 0) at += n;
  return at < 0 || at > n - width ? -1 : at;
}

static CellRef readnumber(const uint8_t* from, int width) {
  uint64_t n = 0;
  memcpy(&n, from, static_cast<size_t>(width));
  return hintfromu(n);
}

static void writenumber(uint8_t* to, int width, Cell* value) {
  int64_t n = hintsmall(value);
  memcpy(to, &n, static_cast<size_t>(width));
}

static bool iscray(Cell* x) { return cellkind(x) == 'c'; }
static bool ispost(const Cell* x) { return cellbyte(x) == '('; }
static uint8_t* payload(const Cell* x) { return const_cast<uint8_t*>(postbytes(x).at); }
static uint8_t* slots(const Cell* x) { return leafbytes(x) + 1; }

// --- rec: the content of a zits ------------------------------------------------------------------

template <int width>
CellRef& recread(CellRef& out, CellRef application) {
  Cell* x = secondlastarg(application);
  Cell* i = lastarg(application);
  if (!cellisdata(x) || !ishint(i)) return out = failure();
  CellRef flat = zitsflat(x);
  Bytes content = flatcontent(flat);
  int64_t at = inside(i, content.n, width);
  return out = at < 0 ? failure() : readnumber(content.at + at, width);
}

template <int width>
CellRef& recwrite(CellRef& out, CellRef application) {
  Cell* x = thirdlastarg(application);
  Cell* i = secondlastarg(application);
  Cell* v = lastarg(application);
  if (!cellisdata(x) || !ishint(i) || !ishint(v)) return out = failure();
  Str content = zitstext(x);
  int64_t at = inside(i, content.len(), width);
  if (at < 0) return out = failure();
  writenumber(content.own() + at, width, v);
  return out = isbalanced(strbytes(content)) ? zitsmake(strbytes(content)) : failure();
}

// --- red, rem: inside a leaf, at a raw index -----------------------------------------------------

template <int width>
static CellRef rawread(uint8_t* base, Cell* i) {
  return ishint(i) ? readnumber(base + hintsmall(i), width) : failure();
}

template <int width>
static CellRef rawwrite(Cell* x, uint8_t* base, Cell* i, Cell* v) {
  if (!ishint(i) || !ishint(v)) return failure();
  writenumber(base + hintsmall(i), width, v);
  return cellcopy(x);
}

template <int width>
CellRef& redread(CellRef& out, CellRef application) {
  Cell* x = secondlastarg(application);
  return out = iscray(x) ? rawread<width>(slots(x), lastarg(application)) : failure();
}

template <int width>
CellRef& redwrite(CellRef& out, CellRef application) {
  Cell* x = thirdlastarg(application);
  if (!iscray(x)) return out = failure();
  return out = rawwrite<width>(x, slots(x), secondlastarg(application), lastarg(application));
}

template <int width>
CellRef& remread(CellRef& out, CellRef application) {
  Cell* x = secondlastarg(application);
  return out = ispost(x) ? rawread<width>(payload(x), lastarg(application)) : failure();
}

template <int width>
CellRef& remwrite(CellRef& out, CellRef application) {
  Cell* x = thirdlastarg(application);
  if (!ispost(x)) return out = failure();
  return out = rawwrite<width>(x, payload(x), secondlastarg(application), lastarg(application));
}

// --- ref: an address -----------------------------------------------------------------------------

template <int width>
CellRef& refread(CellRef& out, CellRef application) {
  Cell* a = lastarg(application);
  return out = ishint(a) ? readnumber(address(a), width) : failure();
}

template <int width>
CellRef& refwrite(CellRef& out, CellRef application) {
  Cell* a = secondlastarg(application);
  Cell* v = lastarg(application);
  if (!ishint(a) || !ishint(v)) return out = failure();
  writenumber(address(a), width, v);
  return out = leafbyte('I');
}

// --- rel: the payload of a post, as a value ------------------------------------------------------

template <int width>
CellRef& relread(CellRef& out, CellRef application) {
  Cell* x = secondlastarg(application);
  Cell* i = lastarg(application);
  if (!ispost(x) || !ishint(i)) return out = failure();
  int64_t at = inside(i, postlen(x), width);
  return out = at < 0 ? failure() : readnumber(payload(x) + at, width);
}

template <int width>
CellRef& relwrite(CellRef& out, CellRef application) {
  Cell* x = thirdlastarg(application);
  Cell* i = secondlastarg(application);
  Cell* v = lastarg(application);
  if (!ispost(x) || !ishint(i) || !ishint(v)) return out = failure();
  int64_t at = inside(i, postlen(x), width);
  if (at < 0) return out = failure();
  CellRef target = ownsfirst(application, 3) ? cellcopy(x) : postmake(postbytes(x));
  writenumber(payload(target) + at, width, v);
  return out = std::move(target);
}

// The headers of the templates stand in memory.h, so that their four widths are made here.
#define FAMILY(width) \
  template CellRef& recread<width>(CellRef&, CellRef); \
  template CellRef& recwrite<width>(CellRef&, CellRef); \
  template CellRef& redread<width>(CellRef&, CellRef); \
  template CellRef& redwrite<width>(CellRef&, CellRef); \
  template CellRef& refread<width>(CellRef&, CellRef); \
  template CellRef& refwrite<width>(CellRef&, CellRef); \
  template CellRef& relread<width>(CellRef&, CellRef); \
  template CellRef& relwrite<width>(CellRef&, CellRef); \
  template CellRef& remread<width>(CellRef&, CellRef); \
  template CellRef& remwrite<width>(CellRef&, CellRef);
FAMILY(1)
FAMILY(2)
FAMILY(4)
FAMILY(8)
#undef FAMILY

// --- Whole values --------------------------------------------------------------------------------

CellRef memorypost(Cell* a, Cell* count) {
  if (!ishint(a) || !ishint(count) || hintsmall(count) < 0) return failure();
  return postmake({address(a), hintsmall(count)});
}

static void copybytes(Cell* a, Bytes bytes) { putbytes(address(a), bytes); }

// An array goes as the raw addresses in its slots; no reference is taken.
CellRef memorycopy(Cell* x, Cell* a) {
  if (!ishint(a)) return failure();
  switch (cellkind(x)) {
    case 'a': copybytes(a, postbytes(x)); break;
    case 'c': copybytes(a, {slots(x), 8 * crayslots(x)}); break;
    case 'i':
    case 'o': {
      if (!isnumber(x)) return failure();
      Str text = hinttext(x);
      copybytes(a, strbytes(text));
      break;
    }
    case 'r': copybytes(a, {leafbytes(x) + 1, 8}); break;
    case 'u': {
      Str text = zitstext(x);
      copybytes(a, strbytes(text));
      break;
    }
    default: return failure();
  }
  return leafbyte('I');
}

CellRef memoryleak(Cell* x) {
  cellhold(x);
  return hintfrom(reinterpret_cast<int64_t>(x));
}

CellRef memorybond(Cell* a) {
  if (!ishint(a)) return failure();
  Cell* cell = reinterpret_cast<Cell*>(hintsmall(a));
  check(cell != nullptr);
  return cellcopy(cell);
}

}  // namespace tarn

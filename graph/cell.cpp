// Making cells and reading their text.
#include "graph/cell.h"

#include <cstring>

#include "foundation/alphabet.h"
#include "graph/cellstore.h"

namespace tarn {

CellRef cellcopy(Cell* c) { return c == nullptr ? CellRef() : CellRef::adopt(cellhold(c)); }

void celldrop(CellRef r) { check(!r.null()); }

void cellassign(CellRef& to, const CellRef& from) {
  check(!to.null());
  check(!from.null());
  to = from;
}

CellRef cellleft(Cell* c) {
  check(cellispair(c));
  return CellRef::adopt(cellhold(leftlink(c)));
}

CellRef cellright(Cell* c) {
  check(cellispair(c));
  return CellRef::adopt(cellhold(rightlink(c)));
}

// --- Pairs ---------------------------------------------------------------------------------------

CellRef cellpairtake(CellRef left, CellRef right) {
  check(!left.null());
  check(!right.null());
  return CellRef::adopt(storepair(left.give(), right.give(), 1));
}

CellRef cellpair(Cell* left, Cell* right) { return cellpairtake(cellcopy(left), cellcopy(right)); }

CellRef cellapply1(Cell* a, Cell* b) { return cellpair(a, b); }

CellRef cellapply2(Cell* a, Cell* b, Cell* c) {
  return cellpairtake(cellapply1(a, b), cellcopy(c));
}

CellRef cellapply3(Cell* a, Cell* b, Cell* c, Cell* d) {
  return cellpairtake(cellapply2(a, b, c), cellcopy(d));
}

CellRef cellapply4(Cell* a, Cell* b, Cell* c, Cell* d, Cell* e) {
  return cellpairtake(cellapply3(a, b, c, d), cellcopy(e));
}

// --- Leaves --------------------------------------------------------------------------------------

static bool storeslength(uint8_t first) { return (first >= '0' && first <= '9') || first == '['; }

static CellRef leafheaded(Cell* c, int64_t n) {
  leafbytes(c)[n] = 0;
  c->header = CELLLEAF | 1;
  uint64_t length = static_cast<uint64_t>(n);
  if (storeslength(leafbytes(c)[0]) && length < CELLFIELDLIMIT) setfield(c, length);
  return CellRef::adopt(c);
}

CellRef leafmade(const void* bytes, int64_t n) {
  Cell* c = storeleaf(n);
  if (n != 0) memcpy(leafbytes(c), bytes, static_cast<size_t>(n));
  CellRef made = leafheaded(c, n);
  if (istodo(c)) cellstore.todos++;
  return made;
}

CellRef leafsized(uint8_t first, int64_t n) {
  Cell* c = storeleaf(n);
  leafbytes(c)[0] = first;
  return leafheaded(c, n);
}

CellRef leafempty() { return leafmade("", 0); }

CellRef leafcstr(const char* text) {
  check(text != nullptr);
  return leafmade(text, static_cast<int64_t>(strlen(text)));
}

CellRef leafstr(Str text) { return leafmade(text.bytes(), text.len()); }

CellRef leafbyte(uint8_t byte) { return leafmade(&byte, 1); }

CellRef leafdigits(uint64_t n) {
  char digits[24];
  char* at = digits + sizeof digits;
  do {
    *--at = static_cast<char>('0' + n % 10);
    n /= 10;
  } while (n != 0);
  return leafmade(at, digits + sizeof digits - at);
}

// --- Arrays --------------------------------------------------------------------------------------

CellRef craynew(int64_t slots) {
  check(slots >= 0);
  int64_t n = 0;  // and a NUL, so that the text of an empty array ends
  if (__builtin_mul_overflow(slots, 8, &n)) n = INT64_MAX - 64;
  n++;
  Cell* c = storeleaf(n);
  memset(leafbytes(c), 0, static_cast<size_t>(n) + 1);
  leafbytes(c)[0] = '\n';
  c->header = CELLLEAF | 1;
  setfield(c, static_cast<uint64_t>(slots) % CELLFIELDLIMIT);
  return CellRef::adopt(c);
}

// The slots that a grown block has room for stand in its hidden word; 0 for any other block.
static int64_t crayroom(const Cell* c) { return static_cast<int64_t>(leafhint(c) >> 3); }

static Cell* crayroomier(Cell* c, int64_t room) {
  Cell* grown = storeregrown(c, 8 * room + 1);
  leafhint(grown) = (leafhint(grown) & ~CELLHINT) | static_cast<uint64_t>(room) << 3;
  return grown;
}

Cell* craygrown(Cell* c) {
  int64_t n = crayslots(c);
  check(cellrefs(c) == 1);
  if (n >= crayroom(c)) c = crayroomier(c, 2 * n + 8);
  setfield(c, static_cast<uint64_t>(n) + 1);
  memset(leafbytes(c) + 1 + 8 * n, 0, 8 + 1);  // and the NUL
  return c;
}

Cell* crayslot(const Cell* c, int64_t i) {
  Cell* v = nullptr;
  memcpy(&v, leafbytes(c) + 1 + 8 * i, 8);  // the slots are not aligned
  return v;
}

void crayfill(Cell* c, int64_t i, CellRef v) {
  CellRef old = CellRef::adopt(crayslot(c, i));
  Cell* given = v.give();
  memcpy(leafbytes(c) + 1 + 8 * i, &given, 8);
}

// --- Text ----------------------------------------------------------------------------------------

int64_t postpayload(const Cell* c, int64_t& n) {
  const uint8_t* text = leafbytes(c);
  int64_t at = 1;
  n = 0;
  while (text[at] != ')') n = 64 * n + digitvalue(text[at++]);
  return at + 1;
}

// The length of a string leaf without a stored one: its text is balanced.
static int64_t balancedlength(const uint8_t* text) {
  int64_t at = 1;
  int64_t depth = 1;
  while (depth != 0) {
    if (text[at] == '[') depth++;
    if (text[at] == ']') depth--;
    at++;
  }
  return at;
}

// A length too long for the header, found by a scan; a shorter one would stand there.
static int64_t scannedlength(const uint8_t* text) {
  int64_t n = text[0] == '[' ? balancedlength(text)
                             : static_cast<int64_t>(strlen(reinterpret_cast<const char*>(text)));
  check(static_cast<uint64_t>(n) >= CELLFIELDLIMIT);
  return n;
}

static int64_t textlength(const Cell* c) {
  const uint8_t* text = leafbytes(c);
  if (storeslength(text[0])) {
    uint64_t stored = cellfield(c);
    return stored != 0 ? static_cast<int64_t>(stored) : scannedlength(text);
  }
  if (text[0] == ' ') return 9;
  if (text[0] == '\n') return 1;
  if (text[0] == '(') {
    int64_t n = 0;
    int64_t at = postpayload(c, n);
    return at + n;
  }
  return static_cast<int64_t>(strlen(reinterpret_cast<const char*>(text)));
}

Str celltext(const Cell* c) {
  if (cellispair(c)) return Str();
  return Str(leafbytes(c), textlength(c));
}

int64_t cellsize(const Cell* c) {
  if (cellispair(c)) return 0;
  if (leafbytes(c)[0] == '\n') return 8 * crayslots(c) + 1;
  return textlength(c);
}

// --- Header --------------------------------------------------------------------------------------

void setarity(Cell* c, int n) {
  check(n <= CELLMAXARITY);
  check(n >= -CELLNOARITY);
  c->header = (c->header & ~CELLCODE) | static_cast<uint64_t>(n + CELLNOARITY) << CELLCODESHIFT;
}

void setfield(Cell* c, uint64_t v) {
  check(v < CELLFIELDLIMIT);
  c->header = (c->header & ~CELLFIELD) | v << CELLFIELDSHIFT;
}

}  // namespace tarn

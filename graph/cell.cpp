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

static bool storeslength(uint8_t first) { return isdigitbyte(first) || first == '['; }

// Gives the leaf whose n bytes of text are set, or at least the first of them.
static CellRef leafheaded(Cell* c, int64_t n) {
  leafbytes(c)[n] = 0;
  c->header = cellleafbit | 1;
  uint64_t length = static_cast<uint64_t>(n);
  if (storeslength(leafbytes(c)[0]) && length < cellfieldlimit) setfield(c, length);
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

CellRef leafstr(const Str& text) { return leafmade(text.bytes(), text.len()); }

CellRef leafbyte(uint8_t byte) { return leafmade(&byte, 1); }

CellRef leafdigits(uint64_t magnitude, bool negative) {
  uint8_t digits[24];  // 64 bits are at most 20 digits, and the sign
  uint8_t* end = digits + sizeof digits;
  uint8_t* at = end;
  do {
    *--at = static_cast<uint8_t>('0' + magnitude % 10);
    magnitude /= 10;
  } while (magnitude != 0);
  if (negative) *--at = '0';
  return leafmade(at, end - at);
}

// --- Arrays --------------------------------------------------------------------------------------

constexpr int64_t slotsize = 8;  // bytes of a link

static uint8_t* slotbytes(const Cell* c, int64_t i) { return leafbytes(c) + 1 + slotsize * i; }

CellRef craynew(int64_t slots) {
  check(slots >= 0);
  int64_t size = 0;
  // Where that wraps: more than malloc grants.
  if (__builtin_mul_overflow(slots, slotsize, &size)) size = INT64_MAX - 1;
  int64_t n = 1 + size;
  Cell* c = storeleaf(n);
  memset(leafbytes(c), 0, static_cast<size_t>(n) + 1);  // and the NUL
  leafbytes(c)[0] = '\n';
  c->header = cellleafbit | 1;
  setfield(c, static_cast<uint64_t>(slots) % cellfieldlimit);
  return CellRef::adopt(c);
}

static Cell* crayroomier(Cell* c, int64_t room) {
  Cell* grown = storeregrown(c, 1 + slotsize * room);
  setleafcount(grown, room);
  return grown;
}

Cell* craygrown(Cell* c) {
  int64_t n = crayslots(c);
  check(cellrefs(c) == 1);
  if (n >= leafcount(c)) c = crayroomier(c, 2 * n + 8);
  setfield(c, static_cast<uint64_t>(n) + 1);
  memset(slotbytes(c, n), 0, slotsize + 1);  // and the NUL
  return c;
}

Cell* crayslot(const Cell* c, int64_t i) {
  Cell* v = nullptr;
  memcpy(&v, slotbytes(c, i), slotsize);  // the slots are not aligned
  return v;
}

void crayput(Cell* c, int64_t i, Cell* link) { memcpy(slotbytes(c, i), &link, slotsize); }

// The old element goes last, when the new one is in: it may run a finaliser.
void crayfill(Cell* c, int64_t i, CellRef v) {
  CellRef old = CellRef::adopt(crayslot(c, i));
  crayput(c, i, v.give());
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
  check(static_cast<uint64_t>(n) >= cellfieldlimit);
  return n;
}

static int64_t textlength(const Cell* c) {
  const uint8_t* text = leafbytes(c);
  if (storeslength(text[0])) {
    uint64_t stored = cellfield(c);
    return stored != 0 ? static_cast<int64_t>(stored) : scannedlength(text);
  }
  if (text[0] == ' ') return 1 + sizeof(double);
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
  if (leafbytes(c)[0] == '\n') return 1 + slotsize * crayslots(c);
  return textlength(c);
}

// --- Header --------------------------------------------------------------------------------------

void setarity(Cell* c, int n) {
  check(n <= cellmaxarity);
  check(n >= -cellnoarity);
  c->header = (c->header & ~cellcodemask) | static_cast<uint64_t>(n + cellnoarity) << cellcodeshift;
}

void setfield(Cell* c, uint64_t v) {
  check(v < cellfieldlimit);
  c->header = (c->header & ~cellfieldmask) | v << cellfieldshift;
}

}  // namespace tarn

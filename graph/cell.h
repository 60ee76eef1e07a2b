// The node that every value and every program of the language is made of: a Pair, the application
// of its left link to its right one, or a Leaf, an atom whose text says what it is. Numbers,
// strings, arrays, lambda abstractions, continuations and errors are all spelled with these two.
// Only this file and cell.cpp know where things stand in a cell.
//
//   header   63    62    61 .. 56   55 ........ 30   29 ........ 0
//            leaf  flag  code       field            refs
//            └──── tag byte ─────┘
//
//   refs   how many references hold the cell; it dies with the last
//   field  text length, slot count, line number or free letters, by the kind of cell (below)
//   code   arity + 52; 0 with flag clear: not annotated yet; 0 with flag set: data
//   flag   pending: the term still holds unevaluated work
//   leaf   1 for a Leaf
//
//   Pair   header, left, right                          "f x"    [..][f][x]
//   Leaf   header, text, NUL                            "plus"   [..]plus0
//   cray   header, newline, field links of 8 bytes, 0   two      [..]\n[a][b]0
//
// In front of a leaf's header stands one hidden word (see CELLHINT), which no program can see. The
// rest is laid out for good: programs of the language read cells through raw memory.
//
// Leaf forms, by the first text byte:
//   '0'-'9'  integer    decimal digits                              field: length
//   '['      string     bracket-balanced text, its ']' included     field: length
//   ' '      real       then the 8 bytes of a double                field: 0
//   '('      post       base-64 digits of the length, ')', payload  field: 0
//   '\n'     cray       array: then field slots, each a link or 0   field: slots
//   ')'      memo mark  the name of a global definition             field: 0
//   ']'      failure    its text                                    field: 0
//   '`'      line mark                                              field: line number
//   other    name       of a definition, a builtin, a variable      field: free letters, bit 0: 'a'
// A length of 0x4000000 or more does not fit; field is 0 then and the length is found by a scan.
//
// Ownership, in three words: a function *takes* a reference (a CellRef by value: the caller's is
// gone), *lends* one (a Cell*: the caller's stays, and must outlive the call) or *gives* one (a
// CellRef returned). A CellRef turns into a lent Cell* by itself.
#pragma once

#include <cstdint>
#include <cstring>

#include "foundation/checking.h"
#include "foundation/diag.h"
#include "foundation/str.h"

namespace tarn {

struct Cell {
  uint64_t header;
};

constexpr int CELLFIELDSHIFT = 30;
constexpr int CELLCODESHIFT = 56;
constexpr uint64_t CELLREFS = (uint64_t{1} << CELLFIELDSHIFT) - 1;
constexpr uint64_t CELLFIELDLIMIT = 0x4000000;  // what field cannot hold any more
constexpr uint64_t CELLFIELD = (CELLFIELDLIMIT - 1) << CELLFIELDSHIFT;
constexpr uint64_t CELLCODE = uint64_t{63} << CELLCODESHIFT;
constexpr uint64_t CELLFLAG = uint64_t{1} << 62;
constexpr uint64_t CELLLEAF = uint64_t{1} << 63;
constexpr int CELLNOARITY = 52;     // the code of arity 0
constexpr int CELLMAXARITY = 11;    // unknown, or 11 and more; application does not change it
constexpr int CELLMINARITY = -51;   // application does not lower it any further

// --- References ---------------------------------------------------------------------------------

void cellfreed(Cell* c);  // its last reference is gone: see release.cpp

inline void cellcheckalive(const Cell* c) {
  if constexpr (checking) check((c->header & CELLREFS) != 0);
}

// One more reference to c, for the caller to keep somewhere. A billion of them is the limit.
inline Cell* cellhold(Cell* c) {
  cellcheckalive(c);
  c->header++;
  check((c->header & CELLREFS) != 0);
  return c;
}

// Gives up one reference to c. The last one frees the cell, and may run a finaliser (release.cpp).
inline void cellunhold(Cell* c) {
  cellcheckalive(c);
  if ((--c->header & CELLREFS) == 0) cellfreed(c);
}

// An owning pointer. Null only in a slot that is being filled, or read from an empty array slot.
struct CellRef {
  CellRef() = default;
  CellRef(const CellRef& other) : cell(other.cell) {
    if (cell != nullptr) cellhold(cell);
  }
  CellRef(CellRef&& other) noexcept : cell(other.cell) { other.cell = nullptr; }
  CellRef& operator=(const CellRef& other) { return *this = CellRef(other); }
  CellRef& operator=(CellRef&& other) noexcept {
    if (&other == this) return *this;
    Cell* old = cell;
    cell = other.cell;
    other.cell = nullptr;
    if (old != nullptr) cellunhold(old);
    return *this;
  }
  ~CellRef() {
    if (cell != nullptr) cellunhold(cell);
  }

  operator Cell*() const { return cell; }  // lends
  bool null() const { return cell == nullptr; }

  // Hands the reference itself out; this one is null then.
  Cell* give() {
    Cell* given = cell;
    cell = nullptr;
    return given;
  }

  // Takes over a reference that the caller holds already.
  static CellRef adopt(Cell* held) {
    CellRef made;
    made.cell = held;
    return made;
  }

 private:
  Cell* cell = nullptr;
};

CellRef cellcopy(Cell* c);    // gives one more reference; null stays null
void celldrop(CellRef r);     // takes; null is a program fault
void cellassign(CellRef& to, const CellRef& from);  // neither may be null

// --- Looking at a cell: all of these lend -------------------------------------------------------

inline uint64_t cellrefs(const Cell* c) { return c->header & CELLREFS; }
inline uint64_t cellfield(const Cell* c) { return (c->header & CELLFIELD) >> CELLFIELDSHIFT; }
inline bool cellisleaf(const Cell* c) { return (c->header & CELLLEAF) != 0; }
inline bool cellispair(const Cell* c) { return (c->header & CELLLEAF) == 0; }
inline bool cellannotated(const Cell* c) {
  cellcheckalive(c);
  return (c->header & (CELLCODE | CELLFLAG)) != 0;
}

// The text bytes of a leaf, NUL behind them; not for a Pair.
inline uint8_t* leafbytes(const Cell* c) {
  return reinterpret_cast<uint8_t*>(const_cast<Cell*>(c) + 1);
}

// The first text byte, which tells the form; 0 for a Pair.
inline uint8_t cellbyte(const Cell* c) { return cellisleaf(c) ? leafbytes(c)[0] : uint8_t{0}; }

// A leaf whose text up to the NUL is that one byte.
inline bool leafisbyte(const Cell* c, char byte) {
  return cellisleaf(c) && leafbytes(c)[0] == static_cast<uint8_t>(byte) && leafbytes(c)[1] == 0;
}

// The two links of a Pair, lent; not for a leaf, and without a test of it.
inline Cell*& leftlink(const Cell* c) {
  return reinterpret_cast<Cell**>(const_cast<Cell*>(c))[1];
}
inline Cell*& rightlink(const Cell* c) {
  return reinterpret_cast<Cell**>(const_cast<Cell*>(c))[2];
}

// The links, given; a leaf is a program fault.
CellRef cellleft(Cell* c);
CellRef cellright(Cell* c);

// The text: all bytes of a leaf, the empty text for a Pair, the one byte newline for a cray.
Str celltext(const Cell* c);
// The bytes of text: 0 for a Pair, 8 times the slots plus 1 for a cray.
int64_t cellsize(const Cell* c);
// The length digits of a post leaf are post[1] .. ; gives where its payload begins, counted from
// the '(', and the payload's length in n.
int64_t postpayload(const Cell* c, int64_t& n);

// --- Making cells: all give, with one reference, not annotated -----------------------------------

CellRef cellpair(Cell* left, Cell* right);             // lends both
CellRef cellpairtake(CellRef left, CellRef right);     // takes both
CellRef cellapply1(Cell* a, Cell* b);                  // a b
CellRef cellapply2(Cell* a, Cell* b, Cell* c);         // a b c, that is (a b) c
CellRef cellapply3(Cell* a, Cell* b, Cell* c, Cell* d);
CellRef cellapply4(Cell* a, Cell* b, Cell* c, Cell* d, Cell* e);

CellRef leafempty();                            // the empty text
CellRef leafcstr(const char* text);             // up to the NUL; null is a program fault
CellRef leafstr(Str text);                      // may hold NULs
CellRef leafbyte(uint8_t byte);                 // that one byte
CellRef leafmade(const void* bytes, int64_t n); // n bytes, copied
// n bytes, 1 or more, of which only the first is set, as it tells the form, and the NUL behind all.
// Not for names.
CellRef leafsized(uint8_t first, int64_t n);
CellRef leafdigits(uint64_t n);                 // a digit leaf of n in decimal

// --- Arrays --------------------------------------------------------------------------------------

// All slots null. A count of 0x4000000 or more keeps its low 26 bits in the header: the slots above
// them are there, but nothing reads or releases them. One beyond all memory fails in malloc.
CellRef craynew(int64_t slots);
inline int64_t crayslots(const Cell* c) { return static_cast<int64_t>(cellfield(c)); }
// Takes the only reference to an array of less than 0x3ffffff slots, gives it back with one more,
// empty, slot at the end, maybe at another place. A block that grows gets spare room, so that many
// appends cost little each.
Cell* craygrown(Cell* c);
Cell* crayslot(const Cell* c, int64_t i);     // lends; null where empty; i is not tested
void crayfill(Cell* c, int64_t i, CellRef v); // takes v, which may be null; drops what was there

// --- Writing the header --------------------------------------------------------------------------

void setarity(Cell* c, int n);         // -52 to 11; flag and leaf bit stay
void setfield(Cell* c, uint64_t v);    // below 0x4000000

// --- The cached description: these lend and, but for cellform and termorder, annotate first ------

void cellannotatenew(Cell* c);  // annotate.cpp
inline void cellannotate(Cell* c) {
  if (!cellannotated(c)) cellannotatenew(c);
}

// A string, or a Pair of two data: a rope of strings, which counts as one.
inline bool cellisdata(Cell* c) {
  cellannotate(c);
  return (c->header & (CELLCODE | CELLFLAG)) == CELLFLAG;
}
// How many arguments are missing, -51 to 11; 0 is a redex, less has too many; 1 for data.
inline int cellarity(Cell* c) {
  cellannotate(c);
  int code = static_cast<int>((c->header & CELLCODE) >> CELLCODESHIFT);
  return code == 0 ? 1 : code - CELLNOARITY;
}
// Holds unevaluated work, and is not data.
inline bool cellpending(Cell* c) {
  cellannotate(c);
  return (c->header & CELLFLAG) != 0 && (c->header & CELLCODE) != 0;
}
// Needs no further evaluation: data, or not pending and of arity 1 or more.
inline bool cellnormal(Cell* c) {
  cellannotate(c);
  uint64_t word = c->header & (CELLCODE | CELLFLAG);
  uint64_t redex = uint64_t{CELLNOARITY} << CELLCODESHIFT;
  return word == CELLFLAG || (word > redex && word < CELLFLAG);
}
// The free one-letter variables, bit 0 for 'a'. 0 for integers, strings, arrays, line marks, data.
uint32_t cellfree(Cell* c);
// A leaf, or data: the walk down the left spine stops here.
inline bool cellhead(Cell* c) { return cellisleaf(c) || cellisdata(c); }

// 'u' for an abstraction `\ v body`, 'i' for a local binding `{ v e body`, 'o' for all else. Does
// not annotate.
char cellform(const Cell* c);
// The kind of a value: 'a' post, 'c' cray, 'e' void, 'i' hint, 'o' numb, 'r' real, 'u' zits.
char cellkind(Cell* c);
// The one order of terms: 0 for equal, 1 if x is the lower, -1 if y is. On purpose this way round.
// A leaf is lower than a Pair. Does not annotate.
int termorder(const Cell* x, const Cell* y);

// --- The hidden word of a leaf -------------------------------------------------------------------

struct Definition;

// What stands in front of a leaf's header: the record of a name leaf once it has been looked up
// (definitions.h), the slots that the block of a grown array has room for, else 0; and in the lowest
// three bits, how the leaf was allocated.
constexpr uint64_t CELLHINT = ~uint64_t{7};

inline uint64_t& leafhint(const Cell* c) { return const_cast<Cell*>(c)[-1].header; }

inline Definition* leafdefinition(const Cell* c) {
  return reinterpret_cast<Definition*>(leafhint(c) & CELLHINT);
}
inline void setleafdefinition(Cell* c, Definition* d) {
  leafhint(c) = (leafhint(c) & ~CELLHINT) | reinterpret_cast<uint64_t>(d);
}

// --- Counts --------------------------------------------------------------------------------------

// How many cells there are and were, since the start of the process.
struct CellCounts {
  int64_t made;
  int64_t alive;
  int64_t peak;  // most short ones alive at once, and most long leaves alive at once, added up
};
CellCounts cellcounts();

}  // namespace tarn

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
// In front of a leaf's header stands one hidden word (see below), of which no program knows. The
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

#include "foundation/chars.h"
#include "foundation/checking.h"
#include "foundation/diag.h"
#include "foundation/str.h"

namespace tarn {

struct Cell {
  uint64_t header;  // what follows it is told by its highest bit, and by the first text byte
};

constexpr int cellfieldshift = 30;
constexpr int cellcodeshift = 56;
constexpr uint64_t cellrefsmask = (uint64_t{1} << cellfieldshift) - 1;
constexpr uint64_t cellfieldlimit = 0x4000000;  // what field cannot hold any more
constexpr uint64_t cellfieldmask = (cellfieldlimit - 1) << cellfieldshift;
constexpr uint64_t cellcodemask = uint64_t{63} << cellcodeshift;
constexpr uint64_t cellflagbit = uint64_t{1} << 62;
constexpr uint64_t cellleafbit = uint64_t{1} << 63;
constexpr uint64_t celltold = cellcodemask | cellflagbit;  // all 0: not annotated yet
constexpr int cellnoarity = 52;    // the code of arity 0
constexpr int cellmaxarity = 11;   // unknown, or 11 and more; application does not change it
constexpr int cellminarity = -51;  // application does not lower it any further

// --- References ---------------------------------------------------------------------------------

void cellfreed(Cell* c);  // its last reference is gone: see release.cpp

inline void cellcheckalive(const Cell* c) {
  if constexpr (checking) check((c->header & cellrefsmask) != 0);
}

// One more reference to c, for the caller to keep somewhere. A billion of them is the limit.
inline Cell* cellhold(Cell* c) {
  cellcheckalive(c);
  c->header++;
  check((c->header & cellrefsmask) != 0);
  return c;
}

// Gives up one reference to c. The last one frees the cell, and may run a finaliser (release.cpp).
inline void cellunhold(Cell* c) {
  cellcheckalive(c);
  if ((--c->header & cellrefsmask) == 0) cellfreed(c);
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

CellRef cellcopy(Cell* c);                          // gives one more reference; null stays null
void celldrop(CellRef r);                           // takes; null is a program fault
void cellassign(CellRef& to, const CellRef& from);  // neither may be null

// --- Looking at a cell: all of these lend -------------------------------------------------------

inline uint64_t cellrefs(const Cell* c) { return c->header & cellrefsmask; }
inline uint64_t cellfield(const Cell* c) { return (c->header & cellfieldmask) >> cellfieldshift; }
inline bool cellisleaf(const Cell* c) { return (c->header & cellleafbit) != 0; }
inline bool cellispair(const Cell* c) { return (c->header & cellleafbit) == 0; }
inline bool cellannotated(const Cell* c) {
  cellcheckalive(c);
  return (c->header & celltold) != 0;
}

// The text bytes of a leaf, NUL behind them; not for a Pair.
inline uint8_t* leafbytes(const Cell* c) {
  return reinterpret_cast<uint8_t*>(const_cast<Cell*>(c) + 1);
}

// The first text byte, which tells the form; 0 for a Pair.
inline uint8_t cellbyte(const Cell* c) { return cellisleaf(c) ? leafbytes(c)[0] : uint8_t{0}; }

// A leaf of digits: an integer, or a numb.
inline bool isdigitleaf(const Cell* c) { return isdigitbyte(cellbyte(c)); }

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
// Where the payload of a post leaf begins, counted from its '('; n becomes the payload's length.
int64_t postpayload(const Cell* c, int64_t& n);

// --- Making cells: all give, with one reference, not annotated -----------------------------------

CellRef cellpair(Cell* left, Cell* right);          // lends both
CellRef cellpairtake(CellRef left, CellRef right);  // takes both
CellRef cellapply1(Cell* a, Cell* b);               // a b; this and the next three lend all
CellRef cellapply2(Cell* a, Cell* b, Cell* c);      // a b c, that is (a b) c
CellRef cellapply3(Cell* a, Cell* b, Cell* c, Cell* d);
CellRef cellapply4(Cell* a, Cell* b, Cell* c, Cell* d, Cell* e);

CellRef leafempty();                             // the empty text
CellRef leafcstr(const char* text);              // up to the NUL; null is a program fault
CellRef leafstr(const Str& text);                // may hold NULs
CellRef leafbyte(uint8_t byte);                  // that one byte
CellRef leafmade(const void* bytes, int64_t n);  // n bytes, copied
// n bytes, 1 or more, of which only the first is set, as it tells the form, and the NUL behind all.
// Not for names.
CellRef leafsized(uint8_t first, int64_t n);
// A digit leaf in decimal, with a '0' in front for the minus sign.
CellRef leafdigits(uint64_t magnitude, bool negative = false);

// --- Arrays --------------------------------------------------------------------------------------

// An array of empty slots. Of a count of 0x4000000 or more the header keeps the low 26 bits: the
// slots above those are there, but nothing reads or releases them. A count beyond all memory makes
// malloc fail; a negative one is a program fault.
CellRef craynew(int64_t slots);
inline int64_t crayslots(const Cell* c) { return static_cast<int64_t>(cellfield(c)); }
// Takes the only reference to an array of less than 0x3ffffff slots and gives it back with one more
// slot at the end, an empty one; the cell may have moved. A block that grows gets spare room, so
// that many appends cost little each.
Cell* craygrown(Cell* c);
// The link in slot i, lent; null where the slot is empty. In none of the three is i tested.
Cell* crayslot(const Cell* c, int64_t i);
void crayput(Cell* c, int64_t i, Cell* link);  // writes the link alone; no count changes
void crayfill(Cell* c, int64_t i, CellRef v);  // takes v, which may be null; drops what was there

// --- Writing the header --------------------------------------------------------------------------

void setarity(Cell* c, int n);       // -52 to 11; flag and leaf bit stay
void setfield(Cell* c, uint64_t v);  // below 0x4000000

// --- The cached description of a cell that is annotated: a load and a compare each; all lend -----

constexpr uint64_t codebits(int arity) {
  return static_cast<uint64_t>(arity + cellnoarity) << cellcodeshift;
}
inline uint64_t codeof(const Cell* c) { return c->header & cellcodemask; }

// A string, or a Pair of two data: a rope of strings, which counts as one.
inline bool knowndata(const Cell* c) { return (c->header & celltold) == cellflagbit; }
// How many arguments are missing, -51 to 11; 0 is a redex, less has too many; 1 for data.
inline int knownarity(const Cell* c) {
  uint64_t code = codeof(c);
  return code == 0 ? 1 : static_cast<int>(code >> cellcodeshift) - cellnoarity;
}
// Holds unevaluated work, and is not data.
inline bool knownpending(const Cell* c) { return (c->header & cellflagbit) != 0 && codeof(c) != 0; }
// Needs no further evaluation: data, or not pending and of arity 1 or more.
inline bool knownnormal(const Cell* c) {
  uint64_t word = c->header & celltold;
  return word == cellflagbit || (word > codebits(0) && word < cellflagbit);
}

// --- The same of any cell: these lend and, but for cellform and termorder, annotate first --------

void cellannotatenew(Cell* c);  // annotate.cpp
inline void cellannotate(Cell* c) {
  if (!cellannotated(c)) cellannotatenew(c);
}

inline bool cellisdata(Cell* c) {
  cellannotate(c);
  return knowndata(c);
}
inline int cellarity(Cell* c) {
  cellannotate(c);
  return knownarity(c);
}
inline bool cellpending(Cell* c) {
  cellannotate(c);
  return knownpending(c);
}
inline bool cellnormal(Cell* c) {
  cellannotate(c);
  return knownnormal(c);
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
// The one order of terms: 0 for equal, 1 if x is the lower, -1 if y is. On purpose: the sign stands
// the other way round than in C, and programs get to see it. A leaf is lower than a Pair. Does not
// annotate.
int termorder(const Cell* x, const Cell* y);

// --- The hidden word of a leaf -------------------------------------------------------------------

struct Definition;

//   63 .................. 3   2 .. 0
//   record, count or 0        how the leaf was allocated (cellstore.h)
//
//   name, memo mark   the address of its record, once it has been looked up (definitions.h)
//   cray              how many slots its block has room for, if it has ever grown; of a dead one,
//                     how many have been released (release.cpp)
//   any other         0
constexpr int cellhintshift = 3;
constexpr uint64_t cellhintmask = ~uint64_t{0} << cellhintshift;

inline uint64_t& leafhint(const Cell* c) { return const_cast<Cell*>(c)[-1].header; }

// Of a name: null before the first look-up.
inline Definition* leafdefinition(const Cell* c) {
  return reinterpret_cast<Definition*>(leafhint(c) & cellhintmask);
}
inline void setleafdefinition(Cell* c, Definition* d) {
  leafhint(c) = (leafhint(c) & ~cellhintmask) | reinterpret_cast<uint64_t>(d);
}

// The same word of an array.
inline int64_t leafcount(const Cell* c) {
  return static_cast<int64_t>(leafhint(c) >> cellhintshift);
}
inline void setleafcount(Cell* c, int64_t n) {
  leafhint(c) = (leafhint(c) & ~cellhintmask) | static_cast<uint64_t>(n) << cellhintshift;
}

// --- Counts --------------------------------------------------------------------------------------

// How many cells there are and were, since the start of the process.
struct CellCounts {
  int64_t made;
  int64_t alive;
  int64_t peak;  // the most short ones alive at once plus the most long leaves alive at once
};
CellCounts cellcounts();

}  // namespace tarn

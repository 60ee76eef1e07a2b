// The rewriting of terms between parsing and evaluation. Binders stay in the term in their shapes
// `\ key body` and `{ key value body`; the passes only bring a term into the form that the machine
// takes: no pair patterns, one letter for each local name, marks turned into records.
//
// All lend their term. Those that rewrite it give a new one, which shares with the old what did not
// change: a term that is fine as it is comes back as the same cell. None but markpass annotates.
// Keys of binders are names as in definitions: [+] binds "+".
#pragma once

#include "foundation/str.h"
#include "graph/cell.h"

namespace tarn {

// Takes pair patterns apart. A local binding (x y){e}b becomes y{e}x{y K}y{y H}b.
CellRef patternpass(Cell* term);

// The first binder, from outside and from the left, whose key is no name; lent, null for none.
Cell* findfunky(Cell* term);

// The names that binders of the term bind, as a name list: those of one small letter if `single` is
// set, all others if not.
CellRef binders(Cell* term, bool single);

// The names that the term refers to from outside, as a name list. The value of a local binding is
// outside of it. Numbers and strings name nothing; an atom that is neither they nor a name is
// listed as well, so that it is found undefined.
CellRef freenames(Cell* term);

// Gives a local name a letter, "a" to "z", wherever it stands in the term, bound or free.
CellRef renamebinder(Cell* term, const Str& name, uint8_t letter);

// Turns each test mark, "`" applied to x, into the record `U line [key] [text] x`: where it stands,
// in which definition, and what it holds, as text and as value. A mark vanishes where x has free
// letters or is U. Annotates.
CellRef markpass(const Str& key, Cell* term);

}  // namespace tarn

// The global definitions of one run, and which of them are live. This is data only: the front end
// fills it in, the machine reads it and keeps the values of constants in it.
//
// Each name has one record for the life of the process; a name leaf that has been looked up points
// to it, so that the machine searches no map. A record without a term is a name without a
// definition. Only the functions here change a record or a map, since they keep both in step.
#pragma once

#include <array>
#include <map>
#include <set>
#include <string_view>

#include "foundation/str.h"
#include "graph/builtins.h"
#include "graph/cell.h"

namespace tarn {

// The most parameters that a definition is unfolded with: with more its arity is not known.
constexpr int definitionparams = cellmaxarity - 1;

struct Definition {
  Str name;
  CellRef term;                 // null: not defined. To be read; defset and deferase change it.
  const BuiltinEntry* builtin;  // null: no builtin has that name
  bool named;                   // the name passes `isname`, so that its leaves have an arity
  bool alive;                   // evaluated anew at each use
  bool known;                   // the rest has been worked out from term, and is good only then

  uint8_t arity;                      // the number of leading abstractions; 11 for 11 and more
  uint8_t letters[definitionparams];  // their variables, outermost first, set up to arity
  Cell* body;                         // what is below them; lent by term
  bool flips;                         // term is `\a\b b a`, of any two letters; not for a builtin
};

// From name to record, of exactly those that have a term, in the byte order of Str. The key "" is
// the main expression.
using DefinitionMap = std::map<Str, Definition*>;

const DefinitionMap& globaldefs();
const std::set<Str>& alivenames();
std::map<Str, CellRef>& preludecopy();  // name to term, as they stood after the prelude

// The record of a name, made on first asking; its term may be null.
Definition* definitionof(const Str& name);
// The record of a name leaf, which points to it from then on.
Definition* definitionlookup(Cell* leaf);
inline Definition* definitionof(Cell* leaf) {
  Definition* d = leafdefinition(leaf);
  return d != nullptr ? d : definitionlookup(leaf);
}
// Works out arity, letters and body of a record that has a term, if that is not done yet.
void definitionlearn(Definition* d);
inline void definitionknow(Definition* d) {
  if (!d->known) definitionlearn(d);
}

// The term of a name, lent; null where there is none.
Cell* defterm(const Str& name);
void defset(const Str& name, CellRef term);  // adds or replaces; the term may not be null
void defset(Definition* d, CellRef term);    // the same, for a record
void deferase(const Str& name);              // also where there is none; liveness stays
void defclear();                             // erases all, in key order; liveness stays

bool isalive(const Str& name);
void aliveadd(const Str& name);
void aliveremove(const Str& name);  // also where there is none
void aliveclear();

// Looks the builtins of all records up again, since the registry was replaced.
void definitionsrelink();

// A head is lazy if the first byte of its text is one of these: & | and all capitals but G M O P S
// W and Y. All others want their arguments evaluated first. On purpose: what the program has
// defined under the name makes no difference.
inline constexpr std::array<bool, 256> lazybytes = [] {
  std::array<bool, 256> table = {};
  for (char c : std::string_view("&ABCDEFHIJKLNQRTUVXZ|")) table[static_cast<uint8_t>(c)] = true;
  return table;
}();
constexpr bool islazybyte(uint8_t first) { return lazybytes[first]; }

}  // namespace tarn

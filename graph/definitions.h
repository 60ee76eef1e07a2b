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

constexpr int DEFINITIONPARAMS = 10;  // most leading abstractions whose letters are kept

struct Definition {
  Str name;
  CellRef term;                 // null: not defined. Read it; defset and deferase change it.
  const BuiltinEntry* builtin;  // null: no builtin has that name
  bool named;                   // the name passes `isname`, so that its leaves have an arity
  bool alive;                   // evaluated anew at each use
  bool known;                   // whether what follows has been worked out from term
  uint8_t arity;                      // number of leading abstractions, at most 11
  uint8_t letters[DEFINITIONPARAMS];  // their variables, outermost first; 0 behind the last
  Cell* body;                         // what is below them; lent by term
  bool flips;                         // term is `\a\b (b a)`, for two letters, and no builtin
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

void definitionsrelink();  // the registry of builtins was replaced

// The head of a term is lazy if its first text byte is one of & A B C D E F H I J K L N Q R T U V X
// Z and |. All others want their arguments evaluated first.
inline constexpr std::array<bool, 256> lazybytes = [] {
  std::array<bool, 256> table = {};
  for (char c : std::string_view("&ABCDEFHIJKLNQRTUVXZ|")) table[static_cast<uint8_t>(c)] = true;
  return table;
}();
constexpr bool islazybyte(uint8_t first) { return lazybytes[first]; }

}  // namespace tarn

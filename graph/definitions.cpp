// The records of names, and the maps of those that are defined.
#include "graph/definitions.h"

#include <memory>
#include <utility>

#include "foundation/chars.h"

namespace tarn {

// The records live as long as the process: leaves point to them. There is one for each name that
// any program has used.
static std::map<Str, std::unique_ptr<Definition>>& records() {
  static std::map<Str, std::unique_ptr<Definition>> map;
  return map;
}

static Definition* shortnames[256];  // the records of names of one byte, null until asked for

static DefinitionMap& defined() {
  static DefinitionMap map;
  return map;
}

static std::set<Str>& alive() {
  static std::set<Str> set;
  return set;
}

const DefinitionMap& globaldefs() { return defined(); }

const std::set<Str>& alivenames() { return alive(); }

std::map<Str, CellRef>& preludecopy() {
  static std::map<Str, CellRef> map;
  return map;
}

// --- Records -------------------------------------------------------------------------------------

static Definition* recordmade(const Str& name) {
  std::unique_ptr<Definition>& r = records()[name];
  if (r != nullptr) return r.get();
  r = std::make_unique<Definition>();
  r->name = name;
  r->builtin = builtinfind(name);
  r->named = isname(name);
  return r.get();
}

static Definition* shortrecord(uint8_t name) {
  if (shortnames[name] == nullptr) shortnames[name] = recordmade(strbyte(name));
  return shortnames[name];
}

Definition* definitionof(const Str& name) {
  return name.len() == 1 ? shortrecord(name.at(0)) : recordmade(name);
}

Definition* definitionlookup(Cell* leaf) {
  const uint8_t* text = leafbytes(leaf);
  bool isshort = text[0] != 0 && text[1] == 0;
  Definition* d = isshort ? shortrecord(text[0]) : recordmade(celltext(leaf));
  setleafdefinition(leaf, d);
  return d;
}

// Whether a definition takes two parameters and applies the second to the first.
static bool isflip(const Definition* d) {
  if (d->arity != 2 || d->letters[0] == d->letters[1] || d->builtin != nullptr) return false;
  if (cellisleaf(d->body)) return false;
  return leafisbyte(leftlink(d->body), static_cast<char>(d->letters[1])) &&
         leafisbyte(rightlink(d->body), static_cast<char>(d->letters[0]));
}

void definitionlearn(Definition* d) {
  Cell* body = d->term;
  int n = 0;
  for (; cellform(body) == 'u'; body = rightlink(body)) {
    if (n < definitionparams) d->letters[n] = cellbyte(rightlink(leftlink(body)));
    if (n < cellmaxarity) n++;
  }
  d->arity = static_cast<uint8_t>(n);
  d->body = body;
  d->flips = isflip(d);
  d->known = true;
}

void definitionsrelink() {
  for (auto& [name, record] : records()) record->builtin = builtinfind(name);
}

// --- Definitions ---------------------------------------------------------------------------------

Cell* defterm(const Str& name) {
  auto found = defined().find(name);
  return found == defined().end() ? nullptr : static_cast<Cell*>(found->second->term);
}

void defset(Definition* d, CellRef term) {
  check(!term.null());
  if (d->term.null()) defined()[d->name] = d;
  d->known = false;
  d->term = std::move(term);
}

void defset(const Str& name, CellRef term) { defset(definitionof(name), std::move(term)); }

void deferase(const Str& name) {
  auto found = defined().find(name);
  if (found == defined().end()) return;
  Definition* d = found->second;
  defined().erase(found);
  d->known = false;
  d->term = CellRef();
}

void defclear() {
  while (!defined().empty()) deferase(Str(defined().begin()->first));
}

// --- Live names ----------------------------------------------------------------------------------

bool isalive(const Str& name) { return alive().contains(name); }

void aliveadd(const Str& name) {
  alive().insert(name);
  definitionof(name)->alive = true;
}

void aliveremove(const Str& name) {
  alive().erase(name);
  definitionof(name)->alive = false;
}

void aliveclear() {
  while (!alive().empty()) aliveremove(Str(*alive().begin()));
}

}  // namespace tarn

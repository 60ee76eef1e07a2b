// The table of shared terms. Terms are told apart by a hash of their whole structure, which the
// pass works out on its way up, and then by the order of terms; since the links of what is looked
// up are shared already, that comparison hardly ever goes deeper than one level.
#include "frontend/share.h"

#include <functional>
#include <iterator>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tarn {

namespace {

struct ShareTable {
  std::unordered_multimap<uint64_t, CellRef> terms;  // by hash
  std::unordered_map<const Cell*, uint64_t> hashes;  // of exactly the cells in terms
};

ShareTable& sharetable() {
  static ShareTable& table = *new ShareTable;
  return table;
}

struct Shared {
  CellRef term;
  uint64_t hash;
};

uint64_t hashleaf(Cell* leaf) {
  std::string_view text(reinterpret_cast<const char*>(leafbytes(leaf)),
                        static_cast<size_t>(cellsize(leaf)));
  return std::hash<std::string_view>()(text);
}

// Not symmetric: `a b` and `b a` differ. The factor is 2^64 divided by the golden ratio, which
// spreads its bits well.
uint64_t hashpair(uint64_t left, uint64_t right) {
  constexpr uint64_t golden = 0x9e3779b97f4a7c15;
  uint64_t h = (left ^ (left >> 29)) * golden + (right ^ (right >> 31)) + 1;
  return h ^ (h >> 32);
}

// The entry that equals the term; if there is none, the term itself becomes one.
Shared enter(CellRef term, uint64_t hash) {
  ShareTable& table = sharetable();
  auto [from, to] = table.terms.equal_range(hash);
  for (auto entry = from; entry != to; ++entry) {
    if (termorder(entry->second, term) == 0) return {entry->second, hash};
  }
  table.terms.emplace(hash, term);
  table.hashes.emplace(term, hash);
  return {std::move(term), hash};
}

// What became of the cells that several others hold, so that a graph is not walked as a tree.
using Seen = std::unordered_map<const Cell*, Shared>;

Shared share(Cell* term, Seen& seen);

Shared sharepair(Cell* term, Seen& seen) {
  Shared left = share(leftlink(term), seen);
  Shared right = share(rightlink(term), seen);
  uint64_t hash = hashpair(left.hash, right.hash);
  bool same = left.term == leftlink(term) && right.term == rightlink(term);
  if (same) return enter(cellcopy(term), hash);
  return enter(cellpairtake(std::move(left.term), std::move(right.term)), hash);
}

Shared share(Cell* term, Seen& seen) {
  auto known = sharetable().hashes.find(term);
  if (known != sharetable().hashes.end()) return {cellcopy(term), known->second};
  if (cellisleaf(term)) return enter(cellcopy(term), hashleaf(term));
  if (alone(cellrefs(term))) return sharepair(term, seen);
  auto before = seen.find(term);
  if (before != seen.end()) return before->second;
  return seen.emplace(term, sharepair(term, seen)).first->second;
}

// Takes the cell out of the table; false if it was not in it.
bool leave(const Cell* term) {
  ShareTable& table = sharetable();
  auto known = table.hashes.find(term);
  if (known == table.hashes.end()) return false;
  auto entry = table.terms.equal_range(known->second).first;
  while (entry->second != term) ++entry;
  table.hashes.erase(known);
  table.terms.erase(entry);
  return true;
}

}  // namespace

CellRef sharepass(Cell* term) {
  Seen seen;
  return share(term, seen).term;
}

void sharetrim() {
  ShareTable& table = sharetable();
  for (auto entry = table.terms.begin(); entry != table.terms.end();) {
    bool stays = cellnormal(entry->second);
    if (!stays) table.hashes.erase(entry->second);
    entry = stays ? std::next(entry) : table.terms.erase(entry);
  }
}

void unsharepass(Cell* term) {
  if (cellnormal(term) || !leave(term) || cellisleaf(term)) return;
  unsharepass(leftlink(term));
  unsharepass(rightlink(term));
}

// Made anew, since emptied tables would keep the room of the largest run.
void shareclear() { sharetable() = ShareTable(); }

}  // namespace tarn

// The passes. All recurse along the term.
#include "frontend/passes.h"

#include <cstring>
#include <utility>

#include "foundation/chars.h"
#include "frontend/namelist.h"
#include "frontend/printer.h"

namespace tarn {

// A Pair of new links, or the old Pair if they are the ones it has.
static CellRef rebuilt(Cell* pair, CellRef left, CellRef right) {
  if (left == leftlink(pair) && right == rightlink(pair)) return cellcopy(pair);
  return cellpairtake(std::move(left), std::move(right));
}

// The parts of `\ key body` or `{ key value body`, lent.
struct Binder {
  char form;    // that of cellform: 'u', 'i', or 'o' for a term that is neither
  Cell* key;    // null for 'o'
  Cell* value;  // null for 'o' and in an abstraction
  Cell* body;   // null for 'o'
};

static Binder binderof(Cell* term) {
  char form = cellform(term);
  if (form == 'o') return {form, nullptr, nullptr, nullptr};
  Cell* left = leftlink(term);
  if (form == 'u') return {form, rightlink(left), nullptr, rightlink(term)};
  return {form, rightlink(leftlink(left)), rightlink(left), rightlink(term)};
}

static bool isnameleaf(Cell* c) { return cellisleaf(c) && isdefinable(celltext(c)); }

// The name that a key binds, as a leaf; the key must be a name leaf.
static CellRef boundname(Cell* key) {
  return cellbyte(key) == '[' ? leafstr(defname(celltext(key))) : cellcopy(key);
}

// --- Patterns ------------------------------------------------------------------------------------

static CellRef local(Cell* key, Cell* value, Cell* body) {
  return cellapply3(leafbyte('{'), key, value, body);
}

static bool ispattern(const Binder& b) {
  return b.form == 'i' && cellispair(b.key) && isnameleaf(leftlink(b.key)) &&
         isnameleaf(rightlink(b.key));
}

CellRef patternpass(Cell* term) {
  if (cellisleaf(term)) return cellcopy(term);
  CellRef plain = rebuilt(term, patternpass(leftlink(term)), patternpass(rightlink(term)));
  Binder b = binderof(plain);
  if (!ispattern(b)) return plain;
  Cell* x = leftlink(b.key);
  Cell* y = rightlink(b.key);
  CellRef pair = boundname(y);
  CellRef first = cellpair(pair, leafbyte('K'));
  CellRef second = cellpair(pair, leafbyte('H'));
  return local(y, b.value, local(x, first, local(y, second, b.body)));
}

Cell* findfunky(Cell* term) {
  if (cellisleaf(term)) return nullptr;
  if (cellisleaf(leftlink(term))) return findfunky(rightlink(term));
  Binder b = binderof(term);
  if (b.form == 'o') {
    Cell* found = findfunky(leftlink(term));
    return found != nullptr ? found : findfunky(rightlink(term));
  }
  if (!isnameleaf(b.key)) return term;
  Cell* found = b.form == 'i' ? findfunky(b.value) : nullptr;
  return found != nullptr ? found : findfunky(b.body);
}

// --- Names ---------------------------------------------------------------------------------------

static bool isbinderhead(Cell* c) { return leafisbyte(c, '\\') || leafisbyte(c, '{'); }

static void collectbinders(Cell* term, bool single, CellRef& found) {
  for (; cellispair(term); term = rightlink(term)) {
    if (isbinderhead(leftlink(term)) && cellisleaf(rightlink(term))) {
      CellRef name = boundname(rightlink(term));
      if (isvariable(celltext(name)) == single) found = listinsert(found, name);
      return;
    }
    collectbinders(leftlink(term), single, found);
  }
}

CellRef binders(Cell* term, bool single) {
  CellRef found = emptylist();
  collectbinders(term, single, found);
  return found;
}

// Whether a leaf stands for something defined elsewhere. So does a digit leaf or a symbol with a
// stray comma in it: as nothing can define it, it is found undefined.
static bool refers(Cell* leaf) {
  if (isbinderhead(leaf)) return false;
  Str text = celltext(leaf);
  if (isname(text)) return true;
  if (text.empty() || isnamebyte(text.at(0)) || text.at(0) == '[') return false;
  for (uint8_t c : text) {
    if (!isdigitbyte(c)) return true;
  }
  return false;
}

// `bound` are the names bound around the term.
static void collectfree(Cell* term, Cell* bound, CellRef& found) {
  if (cellisleaf(term)) {
    if (!listhas(bound, term) && !listhas(found, term) && refers(term)) {
      found = listinsert(found, term);
    }
    return;
  }
  Binder b = binderof(term);
  if (b.form == 'o') {
    collectfree(leftlink(term), bound, found);
    return collectfree(rightlink(term), bound, found);
  }
  if (b.value != nullptr) collectfree(b.value, bound, found);
  collectfree(b.body, listinsert(bound, boundname(b.key)), found);
}

CellRef freenames(Cell* term) {
  CellRef found = emptylist();
  collectfree(term, emptylist(), found);
  return found;
}

static CellRef renameleaf(Cell* leaf, const Str& name, uint8_t letter) {
  bool same = strcmp(reinterpret_cast<const char*>(leafbytes(leaf)), name.text()) == 0;
  return same ? leafbyte(letter) : cellcopy(leaf);
}

static CellRef renamekey(Cell* key, const Str& name, uint8_t letter) {
  return defname(celltext(key)) == name ? leafbyte(letter) : cellcopy(key);
}

static CellRef rename(Cell* term, const Str& name, uint8_t letter) {
  if (cellisleaf(term)) return renameleaf(term, name, letter);
  Binder b = binderof(term);
  Cell* left = leftlink(term);
  CellRef right = rename(rightlink(term), name, letter);
  if (b.form == 'o') return rebuilt(term, rename(left, name, letter), std::move(right));
  Cell* keyed = b.form == 'u' ? left : leftlink(left);
  CellRef head = rebuilt(keyed, cellcopy(leftlink(keyed)), renamekey(b.key, name, letter));
  if (b.form == 'i') head = rebuilt(left, std::move(head), rename(b.value, name, letter));
  return rebuilt(term, std::move(head), std::move(right));
}

CellRef renamebinder(Cell* term, const Str& name, uint8_t letter) {
  check(letter >= 'a' && letter <= 'z');
  check(isname(name));
  return rename(term, name, letter);
}

// --- Marks ---------------------------------------------------------------------------------------

static CellRef stringleaf(const Str& inside) { return leafstr("[" + inside + "]"); }

static CellRef marked(const Str& key, Cell* mark, Cell* operand) {
  CellRef value = markpass(key, operand);
  if (cellfree(value) != 0 || leafisbyte(value, 'U')) return value;
  CellRef line = leafdigits(cellfield(mark));
  CellRef record = cellapply3(leafbyte('U'), line, stringleaf(key), stringleaf(printcell(operand)));
  return cellpairtake(std::move(record), std::move(value));
}

CellRef markpass(const Str& key, Cell* term) {
  if (cellisleaf(term)) return cellcopy(term);
  if (cellbyte(leftlink(term)) == '`') return marked(key, leftlink(term), rightlink(term));
  return rebuilt(term, markpass(key, leftlink(term)), markpass(key, rightlink(term)));
}

}  // namespace tarn

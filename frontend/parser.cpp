// The tiers of the grammar. Each function works on a piece of one text and has the rule it
// implements above it; where a group begins, the table of partners says where it ends, so that the
// inside of a group is not looked at until its own turn comes.
#include "frontend/parser.h"

#include <array>
#include <iterator>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/chars.h"
#include "frontend/brackets.h"

namespace tarn {

namespace {

// The whole text, lent.
struct Source {
  const uint8_t* bytes;
  const int64_t* partners;  // for each byte: the place of a bracket's partner, -1 for other bytes
};

// The bytes of a source from `from` up to but not including `to`.
struct Piece {
  int64_t from;
  int64_t to;

  bool empty() const { return from == to; }
};

// --- Tiers of operators between two operands, loosest first --------------------------------------

struct Tier {
  std::string_view operators;  // a byte each
  bool fromright;              // a;b;c is ; a (; b c), while a+b+c is + (+ a b) c
};

constexpr Tier tiers[] = {
    {",", true},      // in wings only: {a,b}
    {";\\{", true},   // "{" stands for a whole wing: a{defs}b
    {"?\n", false},   // newline is T; tidied text has none
    {"&|", true},     // and, or
    {"=<>#", true},   // comparisons
    {"@ ", false},    // space is plain application
    {"+-:.", false},  // sums
    {"*/%'", false},  // products
    {"^", true},      // powers
};
constexpr uint8_t commatier = 0;
constexpr uint8_t expressiontier = 1;
constexpr uint8_t notier = std::size(tiers);

// The tier of each operator byte; notier for other bytes.
constexpr std::array<uint8_t, 256> tierofbyte = [] {
  std::array<uint8_t, 256> table = {};
  table.fill(notier);
  for (uint8_t tier = 0; tier < notier; tier++) {
    for (char c : tiers[tier].operators) table[static_cast<uint8_t>(c)] = tier;
  }
  return table;
}();

struct Operators {
  uint8_t tier;                 // notier if none was found
  std::vector<int64_t> places;  // of the operators of that tier, rising
};

CellRef parsetiers(const Source& s, Piece p, uint8_t tier);
CellRef parsepostfix(const Source& s, Piece p);
CellRef parseprefix(const Source& s, Piece p);
CellRef parseinner(const Source& s, Piece p);
CellRef parseatoms(const Source& s, Piece p);

// The place after the byte, or after the group that it opens.
int64_t past(const Source& s, int64_t i) { return (s.partners[i] > i ? s.partners[i] : i) + 1; }

// The top-level operators of the loosest tier, from `tier` on, that has any.
Operators findoperators(const Source& s, Piece p, uint8_t tier) {
  Operators found = {notier, {}};
  for (int64_t i = p.from; i < p.to; i = past(s, i)) {
    uint8_t t = tierofbyte[s.bytes[i]];
    if (t < tier || t > found.tier || t == notier) continue;
    if (t < found.tier) found.places.clear();
    found.tier = t;
    found.places.push_back(i);
  }
  return found;
}

// a op b, for the operator at q.
CellRef operate(const Source& s, int64_t q, Cell* a, Cell* b) {
  switch (s.bytes[q]) {
    case ' ':
      return cellapply1(a, b);
    case '\n':
      return cellapply2(leafbyte('T'), a, b);
    case '{':
      return cellapply3(leafbyte('{'), a, parsetiers(s, {q + 1, s.partners[q]}, commatier), b);
    default:
      return cellapply2(leafbyte(s.bytes[q]), a, b);
  }
}

// tier = next { operator next }, grouped from the right
CellRef joinright(const Source& s, Piece p, const Operators& found) {
  uint8_t next = static_cast<uint8_t>(found.tier + 1);
  CellRef term = parsetiers(s, {past(s, found.places.back()), p.to}, next);
  for (size_t k = found.places.size(); k-- > 0;) {
    int64_t q = found.places[k];
    int64_t from = k == 0 ? p.from : past(s, found.places[k - 1]);
    term = operate(s, q, parsetiers(s, {from, q}, next), term);
  }
  return term;
}

// tier = next { operator next }, grouped from the left
CellRef joinleft(const Source& s, Piece p, const Operators& found) {
  uint8_t next = static_cast<uint8_t>(found.tier + 1);
  CellRef term = parsetiers(s, {p.from, found.places.front()}, next);
  for (size_t k = 0; k < found.places.size(); k++) {
    int64_t q = found.places[k];
    int64_t to = k + 1 == found.places.size() ? p.to : found.places[k + 1];
    term = operate(s, q, term, parsetiers(s, {q + 1, to}, next));
  }
  return term;
}

CellRef parsetiers(const Source& s, Piece p, uint8_t tier) {
  Operators found = findoperators(s, p, tier);
  if (found.tier == notier) return parsepostfix(s, p);
  return tiers[found.tier].fromright ? joinright(s, p, found) : joinleft(s, p, found);
}

// --- Operators of one operand --------------------------------------------------------------------

// postfix = [ prefix ] { prefixbyte }
CellRef parsepostfix(const Source& s, Piece p) {
  if (p.empty()) return leafbyte('}');
  uint8_t last = s.bytes[p.to - 1];
  if (!isprefixbyte(last)) return parseprefix(s, p);
  return cellpairtake(leafbyte(last), parsepostfix(s, {p.from, p.to - 1}));
}

// prefix = { prefixbyte } inner
CellRef parseprefix(const Source& s, Piece p) {
  check(!p.empty());
  uint8_t first = s.bytes[p.from];
  if (!isprefixbyte(first)) return parseinner(s, p);
  return cellpairtake(leafbyte(first), parseprefix(s, {p.from + 1, p.to}));
}

// run = prefixbyte { prefixbyte } atoms
CellRef parserun(const Source& s, Piece p) {
  check(p.to - p.from > 1);
  Piece rest = {p.from + 1, p.to};
  CellRef operand = isprefixbyte(s.bytes[rest.from]) ? parserun(s, rest) : parseatoms(s, rest);
  return cellpairtake(leafbyte(s.bytes[p.from]), std::move(operand));
}

// inner = atoms { run }, each run applied to what stands before it
CellRef parseinner(const Source& s, Piece p) {
  auto nextrun = [&s, &p](int64_t i) {
    while (i < p.to && !isprefixbyte(s.bytes[i])) i = past(s, i);
    return i;
  };
  int64_t cut = nextrun(p.from);
  CellRef term = parseatoms(s, {p.from, cut});
  while (cut < p.to) {
    int64_t operand = cut;
    while (isprefixbyte(s.bytes[operand])) operand++;
    int64_t end = nextrun(operand);
    term = cellpairtake(std::move(term), parserun(s, {cut, end}));
    cut = end;
  }
  return term;
}

// --- Atoms ---------------------------------------------------------------------------------------

// Whether an atom begins at the byte c, which stands behind another. Operators begin none: a comma
// that got here sticks to what stands before it.
bool startsatom(uint8_t before, uint8_t c) {
  if (before == ']' || before == ')' || c == '[' || c == '(') return true;
  if (isnamebyte(c)) return !isnamebyte(before);
  if (isdigitbyte(c)) return !isdigitbyte(before);
  return !issplitbyte(c);
}

int64_t atomend(const Source& s, Piece p) {
  int64_t i = past(s, p.from);
  while (i < p.to && !startsatom(s.bytes[i - 1], s.bytes[i])) i++;
  return i;
}

// atom = word | digits | string | byte | "(" expression ")"
// On purpose: an atom with a stray comma in it, as in !(A,1), is a leaf of its whole text, which
// nothing can define. A NUL cannot be a name; it reads as a newline.
CellRef parseatom(const Source& s, Piece p) {
  check(!p.empty());
  uint8_t first = s.bytes[p.from];
  if (first == '(') return parsetiers(s, {p.from + 1, p.to - 1}, expressiontier);
  if (first == 0) return leafbyte('\n');
  return leafmade(s.bytes + p.from, p.to - p.from);
}

// arguments = "(" expression { "," expression } ")"
CellRef parsearguments(const Source& s, Piece p, CellRef function) {
  int64_t from = p.from + 1;
  for (int64_t i = from; i < p.to; i = past(s, i)) {
    if (s.bytes[i] != ',' && i != p.to - 1) continue;
    function = cellpairtake(std::move(function), parsetiers(s, {from, i}, expressiontier));
    from = i + 1;
  }
  return function;
}

// atoms = atom { atom | arguments }, each applied to what stands before it
CellRef parseatoms(const Source& s, Piece p) {
  int64_t end = atomend(s, p);
  CellRef term = parseatom(s, {p.from, end});
  for (int64_t from = end; from < p.to; from = end) {
    end = atomend(s, {from, p.to});
    if (s.bytes[from] == '(') {
      term = parsearguments(s, {from, end}, std::move(term));
    } else {
      term = cellpairtake(std::move(term), parseatom(s, {from, end}));
    }
  }
  return term;
}

}  // namespace

CellRef parseterm(const Str& text) {
  std::vector<int64_t> partners = pairbrackets(text);
  return parsetiers({text.bytes(), partners.data()}, {0, text.len()}, expressiontier);
}

}  // namespace tarn

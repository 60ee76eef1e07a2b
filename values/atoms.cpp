// The five rules of applied atoms.
#include "values/atoms.h"

#include <bit>
#include <utility>
#include <vector>

#include "values/answer.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/pairs.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

// --- Integers ------------------------------------------------------------------------------------
//
// With s the number that has the elements of the list as bits (bits.h), the rest is s halved. That
// can be told of the decimal text alone; each line is the shape of s, what it spells, and the rest:
//
//   4x + 3         x       half of x; if x is even, with the sign
//   4x + 1         0x      the numb 2x: a zero for each time x can be halved, half of the odd rest
//   numb 4y        000..   the same with one zero less
//   numb 4m + 2    00m     half of m; if m is even, with the sign

namespace {

// The digit text of an answer that is being written.
struct Digits {
  std::vector<uint8_t> text;

  void zero() { text.push_back('0'); }
  CellRef leaf() const { return leafmade(text.data(), static_cast<int64_t>(text.size())); }
};

}  // namespace

static bool iseven(Bytes digits) { return (digits.at[digits.n - 1] - '0') % 2 == 0; }

// Half of a number, rounded down, without leading zeros: no digits for 0.
static void appendhalf(std::vector<uint8_t>& out, Bytes digits) {
  size_t start = out.size();
  int carry = 0;
  for (int64_t i = 0; i < digits.n; i++) {
    int d = digits.at[i] - '0' + 10 * carry;
    if (d >= 2 || out.size() > start) out.push_back(static_cast<uint8_t>('0' + d / 2));
    carry = d % 2;
  }
}

// Half of a number as an integer: negative if the number is even.
static CellRef signedhalf(Bytes digits) {
  Digits half;
  if (iseven(digits)) half.zero();
  appendhalf(half.text, digits);
  if (half.text.empty()) half.zero();
  return half.leaf();
}

static CellRef restofnegative(Bytes digits) {
  Digits rest;
  rest.zero();
  rest.zero();
  std::vector<uint8_t> odd(digits.at, digits.at + digits.n);
  auto oddbytes = [&odd] { return Bytes{odd.data(), static_cast<int64_t>(odd.size())}; };
  while (iseven(oddbytes())) {
    rest.zero();
    std::vector<uint8_t> half;
    appendhalf(half, oddbytes());
    odd = std::move(half);
  }
  appendhalf(rest.text, oddbytes());
  return rest.leaf();
}

CellRef intrest(Bytes text) {
  if (text.at[0] != '0') return signedhalf(text);
  if (text.n == 1) return leafbyte('K');
  if (text.at[1] != '0') return restofnegative({text.at + 1, text.n - 1});
  if (text.n == 2) return leafbyte('K');
  if (text.at[2] == '0') return leafmade(text.at + 1, text.n - 1);
  return signedhalf({text.at + 2, text.n - 2});
}

static CellRef inthead(Bytes text) {
  bool numb = text.n >= 2 && text.at[0] == '0' && text.at[1] == '0';
  return leafbyte(numb ? 'H' : 'K');
}

CellRef integerapplied(Cell* head, CellRef) {
  Bytes text = {leafbytes(head), cellsize(head)};
  return twofold('V', inthead(text), intrest(text));
}

// --- Strings -------------------------------------------------------------------------------------

// On purpose: `G` takes the fast way, one step into the string; all others get the whole list.
CellRef dataapplied(Cell* head, CellRef a) {
  if (!zitsempty(head) && cellbyte(a) == 'G') return twofold('V', zitsleft(head), zitsright(head));
  CellRef mark = cellpairtake(leafbyte('X'), leafbyte('J'));
  return cellpairtake(cellpairtake(std::move(a), std::move(mark)), zitstree(head));
}

CellRef postapplied(Cell* head, CellRef) {
  Bytes payload = postbytes(head);
  if (payload.n == 0) return failure();
  if (payload.n == 1) return bytetree(payload.at[0]);
  int64_t k = postsplit(payload.n);
  return twofold('V', postmake({payload.at, k}), postmake({payload.at + k, payload.n - k}));
}

// --- Reals ---------------------------------------------------------------------------------------

// The tree of n bits, a power of two of them, the lowest leftmost.
static CellRef treeofbits(uint64_t bits, int n) {
  if (n == 1) return leafbyte((bits & 1) != 0 ? 'K' : 'H');
  return twofold('V', treeofbits(bits, n / 2), treeofbits(bits >> n / 2, n / 2));
}

CellRef realapplied(Cell* head, CellRef a) {
  return cellpairtake(treeofbits(std::bit_cast<uint64_t>(realvalue(head)), 64), std::move(a));
}

// --- Arrays --------------------------------------------------------------------------------------

static CellRef sizedcray(Cell* a) {
  if (!isnat(a)) return failure();
  uint64_t slots = hintlow(a);
  return slots < cellfieldlimit ? craynew(static_cast<int64_t>(slots)) : failure();
}

static CellRef slotset(Cell* head, Cell* a) {
  if (!ishint(a)) return failure();
  int64_t n = crayslots(head);
  int64_t at = hintsmall(a);
  if (at < 0) at += n;
  if (at < 0 || at >= n) return failure();
  return leafbyte(crayslot(head, at) != nullptr ? 'K' : 'H');
}

CellRef crayapplied(Cell* head, CellRef a) {
  if (cellbyte(a) == 'Z') return craylist(head);
  return crayslots(head) == 0 ? sizedcray(a) : slotset(head, a);
}

}  // namespace tarn

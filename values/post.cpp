// Building posts, and the two trees that a post can be seen as.
#include "values/post.h"

#include "foundation/alphabet.h"
#include "values/pairs.h"

namespace tarn {

CellRef postsized(int64_t n, uint8_t*& out) {
  uint8_t digits[12];  // 64 bits are at most eleven digits
  int64_t count = 0;
  for (int64_t rest = n; rest != 0; rest /= 64) {
    digits[count++] = static_cast<uint8_t>(digitalphabet[static_cast<size_t>(rest % 64)]);
  }
  CellRef made = leafsized('(', count + 2 + n);
  uint8_t* text = leafbytes(made) + 1;
  while (count != 0) *text++ = digits[--count];
  *text++ = ')';
  out = text;
  return made;
}

CellRef postmake(Bytes payload) {
  uint8_t* out = nullptr;
  CellRef made = postsized(payload.n, out);
  putbytes(out, payload);
  return made;
}

int64_t postlen(const Cell* x) { return postbytes(x).n; }

Bytes postbytes(const Cell* x) {
  int64_t n = 0;
  int64_t at = postpayload(x, n);
  return {leafbytes(x) + at, n};
}

Str posttext(const Cell* x) {
  Bytes payload = postbytes(x);
  return Str(payload.at, payload.n);
}

CellRef postjoin(Bytes a, Bytes b) {
  uint8_t* out = nullptr;
  CellRef made = postsized(a.n + b.n, out);
  putbytes(putbytes(out, a), b);
  return made;
}

int64_t postsplit(int64_t n) {
  int64_t k = 1;
  while (k < n - k) k *= 2;
  return k;
}

// --- Bits ----------------------------------------------------------------------------------------

static CellRef bitleaf(uint8_t b, int bit) { return leafbyte((b >> bit & 1) != 0 ? 'I' : 'H'); }

// The bits high and high - 1.
static CellRef twobits(uint8_t b, int high) {
  return twofold('J', bitleaf(b, high), bitleaf(b, high - 1));
}

static CellRef fourbits(uint8_t b, int high) {
  return twofold('J', twobits(b, high), twobits(b, high - 2));
}

CellRef bytetree(uint8_t b) { return twofold('V', fourbits(b, 7), fourbits(b, 3)); }

// --- Trees back to bytes -------------------------------------------------------------------------

static bool bitofleaf(const Cell* x, uint8_t& byte) {
  if (!leafisbyte(x, 'I') && !leafisbyte(x, 'H')) return false;
  byte = static_cast<uint8_t>(byte << 1 | leafisbyte(x, 'I'));
  return true;
}

// Shifts the bits of x, 2 to the power of depth of them, into byte.
static bool bitsoftree(const Cell* x, int depth, uint8_t& byte) {
  if (depth == 0) return bitofleaf(x, byte);
  return istwofold(x, 'J') && bitsoftree(firstof(x), depth - 1, byte) &&
         bitsoftree(secondof(x), depth - 1, byte);
}

static bool byteoftree(const Cell* x, uint8_t& byte) {
  return istwofold(x, 'V') && bitsoftree(firstof(x), 2, byte) &&
         bitsoftree(secondof(x), 2, byte);
}

bool bytesoftree(const Cell* x, std::vector<uint8_t>& out) {
  for (; istwofold(x, 'J'); x = secondof(x)) {
    if (!bytesoftree(firstof(x), out)) return false;
  }
  if (leafisbyte(x, 'K')) return true;
  uint8_t byte = 0;
  if (!byteoftree(x, byte)) return false;
  out.push_back(byte);
  return true;
}

}  // namespace tarn

// Arithmetic on magnitudes. Each operation sizes its result once and works on raw rows of digits.
#include "values/mag.h"

#include <cstring>

#include "values/digitrow.h"
#include "values/digitwords.h"

namespace tarn {

static int64_t significant(const Str& m) { return rowlength(m.bytes(), m.len()); }

// --- Between texts and magnitudes ----------------------------------------------------------------

Str magload(const uint8_t* digits, int64_t n) {
  while (n > 0 && *digits == '0') {
    digits++;
    n--;
  }
  Str m = strsized(n);
  if (n != 0) rowreverse(m.own(), digits, n);
  return m;
}

Str magload(const Str& text) { return magload(text.bytes(), text.len()); }

Str magstore(const Str& m) {
  int64_t n = significant(m);
  if (n == 0) return Str("0");
  Str text = strsized(n);
  rowreverse(text.own(), m.bytes(), n);
  return text;
}

Str magsign(bool negative, const Str& text) {
  check(!text.empty());
  bool zero = text.len() == 1 && text.at(0) == '0';
  check(zero || text.at(0) != '0');
  return negative && !zero ? "0" + text : text;
}

// --- Tests ---------------------------------------------------------------------------------------

static int compare(const Str& a, const Str& b) {
  return rowcompare(a.bytes(), significant(a), b.bytes(), significant(b));
}

bool magless(const Str& a, const Str& b) { return compare(a, b) < 0; }
bool maggteq(const Str& a, const Str& b) { return compare(a, b) >= 0; }
bool magiszero(const Str& m) { return significant(m) == 0; }
bool magisone(const Str& m) { return significant(m) == 1 && m.at(0) == '1'; }
bool magiseven(const Str& m) { return m.empty() || (m.at(0) - '0') % 2 == 0; }

// --- Sum and difference --------------------------------------------------------------------------

Str magadd(const Str& a, const Str& b) {
  if (a.len() < b.len()) return magadd(b, a);
  Str sum = strsized(a.len() + 1);
  uint8_t* out = sum.own();
  uint8_t carry = rowadd(out, a.bytes(), a.len(), b.bytes(), b.len());
  out[a.len()] = '1';
  return carry != 0 ? sum : sum.substr(0, a.len());
}

Str magsub(const Str& a, const Str& b) {
  check(maggteq(a, b));
  int64_t n = significant(b);
  Str difference = strsized(a.len());
  if (!a.empty()) rowsub(difference.own(), a.bytes(), a.len(), b.bytes(), n);
  return difference;
}

// --- Products ------------------------------------------------------------------------------------

static Str rowof(const DigitWords& words) {
  Str m = strsized(8 * static_cast<int64_t>(words.size()));
  if (!words.empty()) rowofwords(m.own(), words);
  return m;
}

static DigitWords wordsof(const Str& m) { return wordsofrow(m.bytes(), m.len()); }

Str magmul(const Str& a, const Str& b) { return rowof(wordsproduct(wordsof(a), wordsof(b))); }

Str magmuldigit(int digit, const Str& a) {
  check(digit >= 0);
  check(digit <= 9);
  return magmul(a, strbyte(static_cast<uint8_t>('0' + digit)));
}

Str magshift(const Str& m, int64_t n) {
  if (n < 0) return -n >= m.len() ? Str("0") : m.substr(-n);
  Str shifted = strsized(m.len() + n);
  uint8_t* out = shifted.own();
  memset(out, '0', static_cast<size_t>(n));
  memcpy(out + n, m.bytes(), static_cast<size_t>(m.len()));
  return shifted;
}

// By squares, from the highest bit of the exponent down, as it is halved.
Str magpow(const Str& a, const Str& exponent) {
  if (magiszero(exponent)) return Str("1");
  if (magisone(exponent)) return a;
  Str root = magpow(a, magdiv(true, exponent, Str("2")));
  Str square = magmul(root, root);
  return magiseven(exponent) ? square : magmul(square, a);
}

// --- Quotients -----------------------------------------------------------------------------------

Str magdiv(bool down, const Str& a, const Str& b) {
  DigitWords rest = wordsof(a);
  Str quotient = rowof(wordsquotient(rest, wordsof(b)));
  return down || rest.empty() ? quotient : magadd(quotient, Str("1"));
}

Str magmod(const Str& a, const Str& b) {
  DigitWords rest = wordsof(a);
  wordsquotient(rest, wordsof(b));
  return rowof(rest);
}

}  // namespace tarn

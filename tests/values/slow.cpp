// Arithmetic on paper.
#include "tests/values/slow.h"

#include <algorithm>

namespace tarn {

static std::string reversed(const std::string& s) { return std::string(s.rbegin(), s.rend()); }

static std::string stripped(const std::string& s) {
  size_t first = s.find_first_not_of('0');
  return first == s.npos ? "0" : s.substr(first);
}

static int digitat(const std::string& reverse, size_t i) {
  return i < reverse.size() ? reverse[i] - '0' : 0;
}

std::string slowadd(const std::string& a, const std::string& b) {
  std::string x = reversed(a);
  std::string y = reversed(b);
  std::string sum;
  int carry = 0;
  for (size_t i = 0; i <= std::max(x.size(), y.size()); i++) {
    carry += digitat(x, i) + digitat(y, i);
    sum += static_cast<char>('0' + carry % 10);
    carry /= 10;
  }
  return stripped(reversed(sum));
}

std::string slowsub(const std::string& a, const std::string& b) {
  std::string x = reversed(a);
  std::string y = reversed(b);
  std::string difference;
  int borrow = 0;
  for (size_t i = 0; i < x.size(); i++) {
    int digit = digitat(x, i) - digitat(y, i) - borrow;
    borrow = digit < 0;
    difference += static_cast<char>('0' + digit + 10 * borrow);
  }
  return stripped(reversed(difference));
}

std::string slowmul(const std::string& a, const std::string& b) {
  std::string product = "0";
  for (char digit : b) {
    product = stripped(product + "0");
    for (char times = '0'; times < digit; times++) product = slowadd(product, a);
  }
  return product;
}

bool slowless(const std::string& a, const std::string& b) {
  return a.size() != b.size() ? a.size() < b.size() : a < b;
}

std::string slowdiv(const std::string& a, const std::string& b, std::string& rest) {
  std::string quotient;
  rest = "0";
  for (char digit : a) {
    rest = stripped(rest + digit);
    char q = '0';
    for (; !slowless(rest, b); q++) rest = slowsub(rest, b);
    quotient += q;
  }
  return stripped(quotient);
}

std::string slowbits(std::string digits) {
  std::string bits;
  while (digits != "0") {
    int rest = 0;
    for (char& digit : digits) {
      int value = rest * 10 + digit - '0';
      digit = static_cast<char>('0' + value / 2);
      rest = value % 2;
    }
    bits += static_cast<char>('0' + rest);
    digits = stripped(digits);
  }
  return bits;
}

std::string randomdigits(Random& random, int most) {
  size_t n = 1 + random() % static_cast<uint64_t>(most);
  uint64_t sort = random() % 8;
  if (sort == 0) return std::string(n, '9');
  if (sort == 1) return "1" + std::string(n - 1, '0');
  std::string digits;
  bool edges = sort == 2;  // only zeros and nines
  for (size_t i = 0; i < n; i++) {
    uint64_t digit = edges ? random() % 2 * 9 : random() % 10;
    digits += static_cast<char>('0' + digit);
  }
  return stripped(digits);
}

}  // namespace tarn

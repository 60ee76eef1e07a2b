// A run of bytes that someone else owns: the inside of a leaf or of a Str, lent.
#pragma once

#include <cstdint>
#include <cstring>

#include "foundation/str.h"

namespace tarn {

struct Bytes {
  const uint8_t* at;
  int64_t n;
};

inline Bytes strbytes(const Str& s) { return {s.bytes(), s.len()}; }

// Copies the bytes to out and gives the place behind them.
inline uint8_t* putbytes(uint8_t* out, Bytes b) {
  if (b.n != 0) memcpy(out, b.at, static_cast<size_t>(b.n));
  return out + b.n;
}

// Unsigned bytes, the first difference decides, and of two where one begins the other the shorter
// is less. Negative, 0 or positive.
inline int bytescompare(Bytes a, Bytes b) {
  int64_t shorter = a.n < b.n ? a.n : b.n;
  int order = shorter == 0 ? 0 : memcmp(a.at, b.at, static_cast<size_t>(shorter));
  if (order != 0) return order;
  return a.n < b.n ? -1 : a.n > b.n;
}

inline bool bytesequal(Bytes a, Bytes b) {
  return a.n == b.n && (a.n == 0 || memcmp(a.at, b.at, static_cast<size_t>(a.n)) == 0);
}

}  // namespace tarn

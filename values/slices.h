// What cutting and repeating share, for bytes and slots alike.
#pragma once

#include <cstdint>

#include "values/bytes.h"

namespace tarn {

// The items that a cut leaves, from `from` up to but not including `to`.
struct Cut {
  int64_t from;
  int64_t to;
  bool good;  // false: there are fewer items than should go
};

// Of `length` items a positive n takes away the first n, any other n the last -n. The magnitude is
// worked out unsigned, so that the lowest n there is has one.
inline Cut cutof(int64_t n, int64_t length) {
  uint64_t count = n < 0 ? 0 - static_cast<uint64_t>(n) : static_cast<uint64_t>(n);
  if (count > static_cast<uint64_t>(length)) return {0, 0, false};
  int64_t gone = static_cast<int64_t>(count);
  return n > 0 ? Cut{gone, length, true} : Cut{0, length - gone, true};
}

// The number of bytes in n copies; where no memory can hold them, one that malloc refuses, and that
// does not wrap when a little is added.
inline int64_t repeatedsize(int64_t length, int64_t n) {
  int64_t size = 0;
  constexpr int64_t impossible = INT64_MAX - 64;
  return __builtin_mul_overflow(length, n, &size) || size > impossible ? impossible : size;
}

// Writes n copies, by doubling what is written.
inline void putrepeated(uint8_t* out, Bytes bytes, int64_t n) {
  int64_t all = bytes.n * n;
  if (all == 0) return;
  putbytes(out, bytes);
  for (int64_t done = bytes.n; done < all;) {
    int64_t more = done < all - done ? done : all - done;
    putbytes(out + done, {out, more});
    done += more;
  }
}

}  // namespace tarn

// The byte string of the whole system. It is reference counted and copied on write; its length is
// stored, so that it may hold NULs, and a NUL follows its bytes, so that they can go to a C library
// call as they are. Only str.cpp knows how a record is allocated.
//
//   Str ──► StrRecord { len, bytes, refs } ──► 'T' 'a' 'r' 'n' 0     len 4
//           └──────── one malloc block ───────────────────────┘
//
// All empty texts share one record that is never freed, so that making one costs no allocation.
// Positions and lengths are signed 64-bit; a position out of range is a program fault (see diag.h).
// A function that has a Str parameter takes it, one that has a const Str& lends it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

#include "foundation/checking.h"
#include "foundation/diag.h"

namespace tarn {

struct StrRecord {
  int64_t len;     // bytes in the text, the final NUL not counted; 0 or more
  uint8_t* bytes;  // len + 1 of them, bytes[len] is 0
  uint64_t refs;   // Str values that share this record; it is freed with the last
};

struct Str {
  Str() noexcept : record(&emptyrecord) { record->refs++; }
  Str(const char* text);              // up to the NUL
  Str(const void* bytes, int64_t n);  // n bytes, copied
  Str(const Str& other) noexcept : record(other.record) {
    checkalive(record);
    record->refs++;
  }
  Str(Str&& other) noexcept : Str() { std::swap(record, other.record); }
  Str& operator=(const Str& other) noexcept {
    checkalive(other.record);
    other.record->refs++;  // before the release, so that assigning to itself is safe
    release();
    record = other.record;
    return *this;
  }
  Str& operator=(Str&& other) noexcept {
    std::swap(record, other.record);
    return *this;
  }
  ~Str() { release(); }

  int64_t len() const { return record->len; }
  bool empty() const { return record->len == 0; }
  const uint8_t* bytes() const { return record->bytes; }
  const char* text() const { return reinterpret_cast<const char*>(record->bytes); }
  const uint8_t* begin() const { return record->bytes; }
  const uint8_t* end() const { return record->bytes + record->len; }

  // The byte at i, 0 to len inclusive: the final NUL can be read.
  uint8_t at(int64_t i) const {
    check(i >= 0);
    check(i <= record->len);
    return record->bytes[i];
  }
  // The byte at i to write to, same range. A shared record is cloned first, so that no other
  // holder sees the change.
  uint8_t& ref(int64_t i) {
    check(i >= 0);
    check(i <= record->len);
    return own()[i];
  }
  // All bytes to write to, unshared as for ref. The pointer is good until this Str is copied or
  // assigned.
  uint8_t* own() {
    if (!alone(record->refs)) unshare();
    return record->bytes;
  }

  // n bytes from pos, fewer where the text ends before; pos is 0 to len, n is 0 or more.
  Str substr(int64_t pos, int64_t n) const;
  Str substr(int64_t pos) const;

  // Appending makes a new record of both texts: there is no spare capacity.
  Str& operator+=(const Str& tail);
  Str& operator+=(char c);
  Str& operator+=(uint8_t c) { return *this += static_cast<char>(c); }

  bool same(const Str& other) const { return record == other.record; }  // one record, not one text

 private:
  friend Str strsized(int64_t n);

  StrRecord* record;  // never null

  static StrRecord emptyrecord;  // holds a reference to itself, so that its count never gets to 0

  explicit Str(StrRecord* made) noexcept : record(made) {}
  static void checkalive(const StrRecord* r) {
    if constexpr (checking) check(r->refs != 0 && r->refs < deadword);
  }
  void release() {
    checkalive(record);
    if (--record->refs == 0) free(record);
  }
  static void free(StrRecord* dead);
  void unshare();
};

// n bytes, to be written through own(); only the final NUL is set. A negative n, or one that no
// memory can hold, makes malloc fail, and the process dies of the null pointer.
Str strsized(int64_t n);
Str strbyte(uint8_t c);    // the text of that one byte
Str strnumber(int64_t n);  // decimal, "-" in front of a negative one

// How many records there are and were, since the start of the process. Only the checking build
// (checking.h) counts them; all 0 otherwise.
struct StrCounts {
  int64_t made;
  int64_t alive;
};
StrCounts strcounts();

Str operator+(const Str& a, const Str& b);
Str operator+(const char* a, const Str& b);

// The one order of texts: unsigned bytes, the first difference decides, and of two where one
// begins the other the shorter is less. Negative, 0 or positive.
int strcompare(const Str& a, const Str& b);

bool operator==(const Str& a, const Str& b);  // lengths first, then bytes
inline bool operator<(const Str& a, const Str& b) { return strcompare(a, b) < 0; }
inline bool operator>(const Str& a, const Str& b) { return strcompare(a, b) > 0; }
inline bool operator<=(const Str& a, const Str& b) { return a.same(b) || strcompare(a, b) <= 0; }
inline bool operator>=(const Str& a, const Str& b) { return a.same(b) || strcompare(a, b) >= 0; }

}  // namespace tarn

// The records behind Str: how they are allocated, cloned and compared.
#include "foundation/str.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tarn {

static uint8_t emptybytes[1] = {0};

constinit StrRecord Str::emptyrecord = {0, emptybytes, 1};

static StrCounts counts = {};

StrCounts strcounts() { return counts; }

// The size to ask malloc for: all ones where the true size would wrap or n is negative, so that an
// impossible request fails there. The result of malloc is used without a test.
static size_t recordsize(int64_t n) {
  int64_t size = 0;
  bool wraps = __builtin_add_overflow(n, static_cast<int64_t>(sizeof(StrRecord)) + 1, &size);
  return wraps || n < 0 ? SIZE_MAX : static_cast<size_t>(size);
}

// With room for n bytes; neither they nor the NUL are set.
static StrRecord* recordmade(int64_t n) {
  if constexpr (checking) {
    counts.made++;
    counts.alive++;
  }
  StrRecord* record = static_cast<StrRecord*>(blockmake(recordsize(n)));
  record->len = n;
  record->bytes = reinterpret_cast<uint8_t*>(record + 1);
  record->refs = 1;
  return record;
}

Str strsized(int64_t n) {
  if (n == 0) return Str();
  StrRecord* record = recordmade(n);
  record->bytes[n] = 0;
  return Str(record);
}

Str strbyte(uint8_t c) {
  Str made = strsized(1);
  *made.own() = c;
  return made;
}

Str strnumber(int64_t n) {
  char digits[24];
  int size = snprintf(digits, sizeof digits, "%lld", static_cast<long long>(n));
  return Str(digits, size);
}

Str::Str(const char* text) : Str(text, static_cast<int64_t>(strlen(text))) {}

Str::Str(const void* bytes, int64_t n) : Str(strsized(n)) {
  if (n != 0) memmove(record->bytes, bytes, static_cast<size_t>(n));
}

void Str::free(StrRecord* dead) {
  if constexpr (checking) counts.alive--;
  blockdrop(dead);
}

// An empty text is cloned too: its one writable byte is the NUL, and that must be its own.
void Str::unshare() {
  StrRecord* clone = recordmade(record->len);
  memcpy(clone->bytes, record->bytes, static_cast<size_t>(record->len) + 1);
  release();
  record = clone;
}

Str Str::substr(int64_t pos, int64_t n) const {
  check(pos >= 0);
  check(n >= 0);
  check(pos <= record->len);
  int64_t rest = record->len - pos;
  if (n >= rest) {
    if (pos == 0) return *this;
    n = rest;
  }
  return Str(record->bytes + pos, n);
}

Str Str::substr(int64_t pos) const {
  check(pos >= 0);
  check(pos <= record->len);
  return substr(pos, record->len - pos);
}

static Str joined(const void* a, int64_t n, const void* b, int64_t m) {
  int64_t size = 0;
  if (__builtin_add_overflow(n, m, &size)) size = -1;  // which malloc refuses
  Str made = strsized(size);
  uint8_t* out = made.own();
  if (n != 0) memcpy(out, a, static_cast<size_t>(n));
  if (m != 0) memcpy(out + n, b, static_cast<size_t>(m));
  return made;
}

Str& Str::operator+=(const Str& tail) { return *this = *this + tail; }

Str& Str::operator+=(char c) { return *this = joined(bytes(), len(), &c, 1); }

Str operator+(const Str& a, const Str& b) {
  if (a.empty()) return b;
  if (b.empty()) return a;
  return joined(a.bytes(), a.len(), b.bytes(), b.len());
}

Str operator+(const char* a, const Str& b) {
  return joined(a, static_cast<int64_t>(strlen(a)), b.bytes(), b.len());
}

int strcompare(const Str& a, const Str& b) {
  if (a.same(b)) return 0;
  int64_t shorter = a.len() < b.len() ? a.len() : b.len();
  int order = memcmp(a.bytes(), b.bytes(), static_cast<size_t>(shorter));
  if (order != 0) return order;
  return a.len() < b.len() ? -1 : a.len() > b.len();
}

bool operator==(const Str& a, const Str& b) {
  if (a.same(b)) return true;
  return a.len() == b.len() && memcmp(a.bytes(), b.bytes(), static_cast<size_t>(a.len())) == 0;
}

}  // namespace tarn

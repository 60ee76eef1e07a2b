// Choices, taken from the bytes of an input: the same bytes choose the same. When they are used up
// every choice is the first, so the first must be the simplest.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarn {

struct Source {
  const uint8_t* at;
  const uint8_t* end;
};

inline Source sourceof(const std::string& input) {
  const uint8_t* bytes = reinterpret_cast<const uint8_t*>(input.data());
  return {bytes, bytes + input.size()};
}

inline bool isdry(const Source& s) { return s.at == s.end; }
inline uint8_t onebyte(Source& s) { return isdry(s) ? uint8_t{0} : *s.at++; }

// 0 to n - 1; n is 1 to 65536.
inline int64_t below(Source& s, int64_t n) {
  int64_t value = onebyte(s);
  if (n > 256) value |= onebyte(s) << 8;
  return value % n;
}

// Seldom: once in n bytes.
inline bool seldom(Source& s, int64_t n) { return below(s, n) == n - 1; }

template <typename T, size_t N>
const T& oneof(Source& s, const T (&choices)[N]) {
  return choices[below(s, N)];
}

}  // namespace tarn

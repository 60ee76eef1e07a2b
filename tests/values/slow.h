// Arithmetic as slow and plain as on paper, one digit or bit at a time, to hold the fast routines
// against; and random numbers for it. Naturals are texts of digits, highest first, without leading
// zeros but for "0" itself.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "foundation/str.h"

namespace tarn {

using Random = std::mt19937_64;

std::string slowadd(const std::string& a, const std::string& b);
std::string slowsub(const std::string& a, const std::string& b);  // a is not below b
std::string slowmul(const std::string& a, const std::string& b);
std::string slowdiv(const std::string& a, const std::string& b, std::string& rest);
bool slowless(const std::string& a, const std::string& b);

// The bits of a natural, lowest first, none for 0; found by halving it digit by digit.
std::string slowbits(std::string digits);

// 1 to most digits; now and then all nines or a one and zeros, where the carries are.
std::string randomdigits(Random& random, int most);

inline Str strof(const std::string& s) { return Str(s.data(), static_cast<int64_t>(s.size())); }
inline std::string stringof(const Str& s) {
  return std::string(s.text(), static_cast<size_t>(s.len()));
}

}  // namespace tarn

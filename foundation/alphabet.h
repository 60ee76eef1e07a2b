// The alphabets of the language, and the printable names of all 256 bytes.
//
// The alphabets are not in the usual order: wherever one lists letters, the run "rust" stands for
// "rstu" and "vwzxy" for "vwxyz", in small letters and in capitals alike. On purpose: programs
// compute with these orders. Only the names of the bytes below 33 are plain alphabetical.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "foundation/str.h"

namespace tarn {

// The digits of a base-64 number, value 0 to 63.
inline constexpr std::string_view digitalphabet =
    "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY~";
static_assert(digitalphabet.size() == 64);

// The value of a digit, 0 to 63. A byte that is no digit is a program fault.
int32_t digitvalue(uint8_t c);
bool isdigitvalue(uint8_t c);  // c is one of the 64 digits

// The names of the bytes that do not print, of two runs of bytes. "J" is the name of 0, where the
// row of letters passes 10: that is the newline, whose name is ",".
inline constexpr std::string_view lownames = "]JABCDEFGHI,KLMNOPQRSTUVWXYZ(){}[_";     // 255, 0..32
inline constexpr std::string_view highnames = "~!@#$%^&*<>-|+/=\\.`'\":;?0123456789";  // 127..160
static_assert(lownames.size() == 34 && highnames.size() == 34);

namespace detail {
[[noreturn]] void namelessbyte();  // ends the program with the failure word "nopqchar"
}

// The byte that the character c stands for: mode 3 c itself, mode 1 the byte 128 below it (modulo
// 256), any other mode the byte that c names, small letters like capitals. Space and newline stand
// for themselves in every mode. In the last mode a c outside 33 to 126 ends the program with the
// failure word "nopqchar".
constexpr uint8_t nopqchar(int32_t mode, uint8_t c) {
  if (c == ' ' || c == '\n' || mode == 3) return c;
  if (mode == 1) return static_cast<uint8_t>(c - 128);
  if (c >= 'a' && c <= 'z') c = static_cast<uint8_t>(c - 'a' + 'A');
  char name = static_cast<char>(c);
  size_t low = lownames.find(name);
  if (low != lownames.npos) return static_cast<uint8_t>(low - 1);
  size_t high = highnames.find(name);
  if (high != highnames.npos) return static_cast<uint8_t>(high + 127);
  detail::namelessbyte();
}

// The printable character that stands for a byte. Several bytes share one: this is for ordering
// and showing, not for reading back. Byte 160 ends the program with the failure word "charnopq".
uint8_t charnopq(uint8_t b);

// Every byte value in the language's own order. It opens with bytes that do not print; the plain
// text begins at 53; the high bytes follow at 145 in the same order, 128 above.
inline constexpr std::array<uint8_t, 256> bytelist = [] {
  struct Run {
    int32_t mode;
    std::string_view chars;
  };
  constexpr Run runs[] = {
      {2, "0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY~!@#$%^&*<>-|+/=_"},
      {3, "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY"
          "~!@#$%^&*<>-|+/=\\.`'\":;?(){},"},
      {1, "_abcdefghijklmnopqrustvwzxy0123456789ABCDEFGHIJKLMNOPQRUSTVWZXY"
          "~!@#$%^&*<>-|+/=\\.`'\":;?(){},[]"},
      {2, "[](){},"},
      {3, "[]"},
      {2, "\\.`'\":;?"},
  };
  std::array<uint8_t, 256> list = {};
  size_t place = 0;
  for (const Run& run : runs) {
    for (char c : run.chars) list[place++] = nopqchar(run.mode, static_cast<uint8_t>(c));
  }
  return list;
}();

// The order in which the editor lists names: words, capitals, control and high bytes, symbols.
// Both texts must pass isname, else it is a program fault.
bool namebefore(const Str& a, const Str& b);

}  // namespace tarn

// What a byte and a short text mean in a program: which bytes make words and numbers, which are
// operators, and which texts are names. Bytes are unsigned; only newline and space are white, and
// every byte from 127 up, as well as a tab, is a name of its own.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "foundation/str.h"

namespace tarn {

// The sets of bytes. A byte can be in several.
inline constexpr std::string_view namebytes = "_abcdefghijklmnopqrstuvwxyz";  // words
inline constexpr std::string_view digitbytes = "0123456789";                  // integers
inline constexpr std::string_view gluebytes = "\n #%&'*+,-./:;<=>?@\\^|";     // drop white beside
inline constexpr std::string_view prefixbytes = "~!\"$`";  // stand before or after one operand
inline constexpr std::string_view symbolbytes = "{,}~!@#$%^&*<>-|+/=\\.`'\":;?";  // "[+]\..."
inline constexpr std::string_view splitbytes = "~!@#$%^&*<>-|+/=\\.`'\":;?(){},[] \n";  // no atoms

static_assert(gluebytes.size() == 22 && symbolbytes.size() == 27 && splitbytes.size() == 33);

enum ByteClass : uint8_t {
  namebyte = 1,
  digitbyte = 2,
  gluebyte = 4,
  prefixbyte = 8,
  symbolbyte = 16,
  splitbyte = 32,
  solebyte = 64,  // 1 to 31, "A" to "Z", 127 and up: a name alone
};

// The classes of each byte, or-ed together.
inline constexpr std::array<uint8_t, 256> byteclasses = [] {
  std::array<uint8_t, 256> table = {};
  auto enter = [&table](std::string_view set, ByteClass c) {
    for (char byte : set) table[static_cast<uint8_t>(byte)] |= c;
  };
  enter(namebytes, namebyte);
  enter(digitbytes, digitbyte);
  enter(gluebytes, gluebyte);
  enter(prefixbytes, prefixbyte);
  enter(symbolbytes, symbolbyte);
  enter(splitbytes, splitbyte);
  for (size_t c = 1; c < 256; c++) {
    if (c < 32 || (c >= 'A' && c <= 'Z') || c >= 127) table[c] |= solebyte;
  }
  return table;
}();

constexpr bool isnamebyte(uint8_t c) { return (byteclasses[c] & namebyte) != 0; }
constexpr bool isdigitbyte(uint8_t c) { return (byteclasses[c] & digitbyte) != 0; }
constexpr bool isgluebyte(uint8_t c) { return (byteclasses[c] & gluebyte) != 0; }
constexpr bool isprefixbyte(uint8_t c) { return (byteclasses[c] & prefixbyte) != 0; }
constexpr bool issymbolbyte(uint8_t c) { return (byteclasses[c] & symbolbyte) != 0; }
constexpr bool issplitbyte(uint8_t c) { return (byteclasses[c] & splitbyte) != 0; }

// A text that can be given a definition: a word, a sole byte, or a symbol in brackets ("[+]").
bool isdefinable(const Str& text);

// The key of a definable text: the symbol without its brackets, any other text as it is. A text
// that is not definable is a program fault.
Str defname(const Str& text);

// A text that names something: like isdefinable, but a symbol stands bare.
bool isname(const Str& text);

// One byte "a" to "z".
bool isvariable(const Str& text);

}  // namespace tarn

// The character classes of the C library.
//
// On purpose: these are stricter than C. A value outside 0 to 255 is of no class and keeps its
// case. C leaves such a call undefined, and libraries read past the end of their tables.
#pragma once

#include <ctype.h>

#include "host/wrap.h"

namespace tarn {

template <int (*classof)(int)>
int inclass(int64_t c) {
  return c >= 0 && c <= 255 ? classof(static_cast<int>(c)) : 0;
}

template <int (*caseof)(int)>
int64_t incase(int64_t c) {
  return c >= 0 && c <= 255 ? caseof(static_cast<int>(c)) : c;
}

inline int asciiclass(int c) { return c < 128; }
inline int64_t asciicut(int64_t c) { return c & 127; }

using ClassFn = int(int64_t);
using CaseFn = int64_t(int64_t);

inline constexpr BuiltinFn hostisalnum = call<"n", 'K', ClassFn, inclass<isalnum>>;
inline constexpr BuiltinFn hostisalpha = call<"n", 'K', ClassFn, inclass<isalpha>>;
inline constexpr BuiltinFn hostisascii = call<"n", 'K', ClassFn, inclass<asciiclass>>;
inline constexpr BuiltinFn hostisblank = call<"n", 'K', ClassFn, inclass<isblank>>;
inline constexpr BuiltinFn hostisdigit = call<"n", 'K', ClassFn, inclass<isdigit>>;
inline constexpr BuiltinFn hostisgraph = call<"n", 'K', ClassFn, inclass<isgraph>>;
inline constexpr BuiltinFn hostislower = call<"n", 'K', ClassFn, inclass<islower>>;
inline constexpr BuiltinFn hostisprint = call<"n", 'K', ClassFn, inclass<isprint>>;
inline constexpr BuiltinFn hostispunct = call<"n", 'K', ClassFn, inclass<ispunct>>;
inline constexpr BuiltinFn hostisspace = call<"n", 'K', ClassFn, inclass<isspace>>;
inline constexpr BuiltinFn hostisupper = call<"n", 'K', ClassFn, inclass<isupper>>;

inline constexpr BuiltinFn hosttolower = call<"n", 'i', CaseFn, incase<tolower>>;
inline constexpr BuiltinFn hosttoupper = call<"n", 'i', CaseFn, incase<toupper>>;
inline constexpr BuiltinFn hosttoascii = call<"n", 'i', CaseFn, asciicut>;

}  // namespace tarn

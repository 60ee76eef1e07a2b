// The strings and the memory of the C library. Addresses are integers; a text that is written to is
// always given as one.
#pragma once

#include <stdlib.h>
#include <string.h>
#include <strings.h>

#include "host/wrap.h"

namespace tarn {

// The searches, whose C++ signatures differ from library to library.
inline const char* chrintext(const char* s, int c) { return strchr(s, c); }
inline const char* lastchrintext(const char* s, int c) { return strrchr(s, c); }
inline const char* anyintext(const char* s, const char* set) { return strpbrk(s, set); }
inline const char* textintext(const char* s, const char* part) { return strstr(s, part); }
inline const void* byteinmemory(const void* p, int c, size_t n) { return memchr(p, c, n); }

using CompareFn = int(const char*, const char*);
using ChrFn = const char*(const char*, int);
using SearchFn = const char*(const char*, const char*);
using CompareFnN = int(const char*, const char*, size_t);

// Numbers in texts. `atoi` is the same as `atol`.
inline constexpr BuiltinFn hostatof = call<"s", 'r', double(const char*), atof>;
inline constexpr BuiltinFn hostatol = call<"s", 'i', long(const char*), atol>;
inline constexpr BuiltinFn hoststrtod = call<"sn", 'r', double(const char*, char**), strtod>;
// On purpose: these two read three arguments and stand in the table with two: a program that calls
// one of them ends in the failure of asking a leaf for its right link.
inline constexpr BuiltinFn hoststrtol = call<"snn", 'i', long(const char*, char**, int), strtol>;
inline constexpr BuiltinFn hoststrtoul =
    call<"snn", 'u', unsigned long(const char*, char**, int), strtoul>;

// Looking at texts.
inline constexpr BuiltinFn hoststrlen = call<"s", 'i', size_t(const char*), strlen>;
inline constexpr BuiltinFn hoststrnlen = call<"sn", 'i', size_t(const char*, size_t), strnlen>;
inline constexpr BuiltinFn hoststrcmp = call<"ss", 'i', CompareFn, strcmp>;
inline constexpr BuiltinFn hoststrcasecmp = call<"ss", 'i', CompareFn, strcasecmp>;
inline constexpr BuiltinFn hoststrncmp = call<"ssn", 'i', CompareFnN, strncmp>;
inline constexpr BuiltinFn hoststrncasecmp = call<"ssn", 'i', CompareFnN, strncasecmp>;
inline constexpr BuiltinFn hoststrchr = call<"sn", 'i', ChrFn, chrintext>;
inline constexpr BuiltinFn hoststrrchr = call<"sn", 'i', ChrFn, lastchrintext>;
inline constexpr BuiltinFn hoststrpbrk = call<"ss", 'i', SearchFn, anyintext>;
inline constexpr BuiltinFn hoststrspn = call<"ss", 'i', size_t(const char*, const char*), strspn>;
inline constexpr BuiltinFn hoststrstr = call<"ss", 'i', SearchFn, textintext>;
inline constexpr BuiltinFn hoststrerror = call<"n", 'i', char*(int), strerror>;

// Writing texts.
inline constexpr BuiltinFn hoststrdup = call<"s", 'i', char*(const char*), strdup>;
inline constexpr BuiltinFn hoststrcat = call<"ns", 'i', char*(char*, const char*), strcat>;
inline constexpr BuiltinFn hoststrcpy = call<"ns", 'i', char*(char*, const char*), strcpy>;
inline constexpr BuiltinFn hoststrncat =
    call<"nsn", 'i', char*(char*, const char*, size_t), strncat>;
inline constexpr BuiltinFn hoststrncpy =
    call<"nnn", 'i', char*(char*, const char*, size_t), strncpy>;
inline constexpr BuiltinFn hoststrtok = call<"ns", 'i', char*(char*, const char*), strtok>;
inline constexpr BuiltinFn hoststrtok_r =
    call<"nsn", 'i', char*(char*, const char*, char**), strtok_r>;

// Memory. `memcpy` is the same as `memmove`.
inline constexpr BuiltinFn hostmemchr =
    call<"nnn", 'i', const void*(const void*, int, size_t), byteinmemory>;
inline constexpr BuiltinFn hostmemcmp =
    call<"nnn", 'i', int(const void*, const void*, size_t), memcmp>;
inline constexpr BuiltinFn hostmemmove =
    call<"nnn", 'i', void*(void*, const void*, size_t), memmove>;
inline constexpr BuiltinFn hostmemset = call<"nnw", 'i', void*(void*, int, size_t), memset>;
inline constexpr BuiltinFn hostmalloc = call<"w", 'i', void*(size_t), malloc>;
inline constexpr BuiltinFn hostcalloc = call<"ww", 'i', void*(size_t, size_t), calloc>;
inline constexpr BuiltinFn hostrealloc = call<"nw", 'i', void*(void*, size_t), realloc>;
inline constexpr BuiltinFn hostfree = call<"n", 'I', void(void*), free>;

// Clears memory; a negative count answers `Z`.
CellRef& hostbzero(CellRef& out, CellRef application);

}  // namespace tarn

// The files of the C library: streams are addresses, descriptors small integers.
#pragma once

#include <stdio.h>

#include "host/descriptors.h"
#include "host/wrap.h"

namespace tarn {

using StreamFn = int(FILE*);
using PutFn = int(int, FILE*);

inline constexpr BuiltinFn hostfopen = call<"ss", 'i', FILE*(const char*, const char*), fopen>;
inline constexpr BuiltinFn hostfdopen = call<"ns", 'i', FILE*(int, const char*), fileopened>;
inline constexpr BuiltinFn hosttmpfile = call<"", 'i', FILE*(), tmpfile>;
inline constexpr BuiltinFn hosttmpnam = call<"n", 'i', char*(char*), filetempname>;
inline constexpr BuiltinFn hostremove = call<"s", 'i', int(const char*), remove>;
inline constexpr BuiltinFn hostrename = call<"ss", 'i', int(const char*, const char*), rename>;

inline constexpr BuiltinFn hostfclose = call<"n", 'i', StreamFn, fclose>;
inline constexpr BuiltinFn hostfeof = call<"n", 'i', StreamFn, feof>;
inline constexpr BuiltinFn hostferror = call<"n", 'i', StreamFn, ferror>;
inline constexpr BuiltinFn hostfflush = call<"n", 'i', StreamFn, fflush>;
inline constexpr BuiltinFn hostfileno = call<"n", 'i', StreamFn, filedescriptor>;
inline constexpr BuiltinFn hostclearerr = call<"n", 'I', void(FILE*), clearerr>;
inline constexpr BuiltinFn hostsetbuf = call<"nn", 'I', void(FILE*, char*), setbuf>;

inline constexpr BuiltinFn hostfgetc = call<"n", 'i', StreamFn, fgetc>;
inline constexpr BuiltinFn hostgetc = call<"n", 'i', StreamFn, getc>;
inline constexpr BuiltinFn hostgetchar = call<"", 'i', int(), getchar>;
inline constexpr BuiltinFn hostungetc = call<"nn", 'i', PutFn, ungetc>;
inline constexpr BuiltinFn hostfgets = call<"nnn", 'i', char*(char*, int, FILE*), fgets>;
inline constexpr BuiltinFn hostfread =
    call<"nwwn", 'u', size_t(void*, size_t, size_t, FILE*), fread>;

inline constexpr BuiltinFn hostfputc = call<"nn", 'i', PutFn, fputc>;
inline constexpr BuiltinFn hostputc = call<"nn", 'i', PutFn, putc>;
inline constexpr BuiltinFn hostputchar = call<"n", 'i', int(int), putchar>;
inline constexpr BuiltinFn hostfputs = call<"nn", 'i', int(const char*, FILE*), fputs>;
inline constexpr BuiltinFn hostputs = call<"s", 'i', int(const char*), puts>;
inline constexpr BuiltinFn hostperror = call<"s", 'I', void(const char*), perror>;
inline constexpr BuiltinFn hostfwrite =
    call<"snnn", 'i', size_t(const void*, size_t, size_t, FILE*), fwrite>;

inline constexpr BuiltinFn hostfseek = call<"nnn", 'i', int(FILE*, long, int), fseek>;
inline constexpr BuiltinFn hostftell = call<"n", 'i', long(FILE*), ftell>;
inline constexpr BuiltinFn hostrewind = call<"n", 'I', void(FILE*), rewind>;
inline constexpr BuiltinFn hostfgetpos = call<"nn", 'i', int(FILE*, fpos_t*), fgetpos>;
inline constexpr BuiltinFn hostfsetpos = call<"nn", 'i', int(FILE*, const fpos_t*), fsetpos>;

// By descriptor, past the streams.
inline constexpr BuiltinFn hostread = call<"nnn", 'i', int64_t(int, void*, size_t), fileread>;
inline constexpr BuiltinFn hostwrite =
    call<"nsn", 'i', int64_t(int, const void*, size_t), filewrite>;

}  // namespace tarn

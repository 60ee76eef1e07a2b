// The process, its environment and its clock, and `assert`, which may end the process.
#pragma once

#include <signal.h>
#include <stdlib.h>
#include <time.h>

#include "host/wrap.h"

namespace tarn {

inline constexpr BuiltinFn hostgetenv = call<"s", 'i', char*(const char*), getenv>;
inline constexpr BuiltinFn hostsystem = call<"s", 'i', int(const char*), system>;
inline constexpr BuiltinFn hostexit = call<"n", 'I', void(int), exit>;
inline constexpr BuiltinFn hostabort = call<"", 'I', void(), abort>;
inline constexpr BuiltinFn hostraise = call<"n", 'i', int(int), raise>;
inline constexpr BuiltinFn hostrand = call<"", 'i', int(), rand>;
inline constexpr BuiltinFn hostsrand = call<"n", 'I', void(unsigned), srand>;

// Time. `gmtime` and its like answer the address of the C library's record.
inline constexpr BuiltinFn hosttime = call<"n", 'i', time_t(time_t*), time>;
inline constexpr BuiltinFn hostgmtime = call<"n", 'i', tm*(const time_t*), gmtime>;
inline constexpr BuiltinFn hostlocaltime = call<"n", 'i', tm*(const time_t*), localtime>;
inline constexpr BuiltinFn hostctime = call<"n", 'i', char*(const time_t*), ctime>;
inline constexpr BuiltinFn hostasctime = call<"n", 'i', char*(const tm*), asctime>;
inline constexpr BuiltinFn hostmktime = call<"n", 'i', time_t(tm*), mktime>;
inline constexpr BuiltinFn hoststrftime =
    call<"nnsn", 'u', size_t(char*, size_t, const char*, const tm*), strftime>;

// `I` on `K`; a failed check on `H`; `Z` on anything else.
CellRef& hostassert(CellRef& out, CellRef application);

}  // namespace tarn

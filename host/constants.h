// The builtins of no argument that answer a number of the platform: error numbers, sizes and
// limits. Three of them, errno and the two streams, are read anew at each use.
#pragma once

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "host/wrap.h"

namespace tarn {

inline constexpr BuiltinFn hosteacces = constant<EACCES>;
inline constexpr BuiltinFn hostebadf = constant<EBADF>;
inline constexpr BuiltinFn hosteconnaborted = constant<ECONNABORTED>;
inline constexpr BuiltinFn hostefault = constant<EFAULT>;
inline constexpr BuiltinFn hosteintr = constant<EINTR>;
inline constexpr BuiltinFn hosteinval = constant<EINVAL>;
inline constexpr BuiltinFn hosteio = constant<EIO>;
inline constexpr BuiltinFn hostemfile = constant<EMFILE>;
inline constexpr BuiltinFn hostenfile = constant<ENFILE>;
inline constexpr BuiltinFn hostenodev = constant<ENODEV>;
inline constexpr BuiltinFn hostenomem = constant<ENOMEM>;
inline constexpr BuiltinFn hostenotsock = constant<ENOTSOCK>;
inline constexpr BuiltinFn hostenxio = constant<ENXIO>;
inline constexpr BuiltinFn hosteopnotsupp = constant<EOPNOTSUPP>;
inline constexpr BuiltinFn hosteoverflow = constant<EOVERFLOW>;
inline constexpr BuiltinFn hostewouldblock = constant<EWOULDBLOCK>;

inline constexpr BuiltinFn hostrand_max = constant<RAND_MAX>;
inline constexpr BuiltinFn hosttime_t = constant<sizeof(time_t)>;

inline int64_t errnovalue() { return errno; }
inline FILE* stderrvalue() { return stderr; }
inline FILE* stdoutvalue() { return stdout; }

inline constexpr BuiltinFn hosterrno = call<"", 'i', int64_t(), errnovalue>;
inline constexpr BuiltinFn hoststderr = call<"", 'i', FILE*(), stderrvalue>;
inline constexpr BuiltinFn hoststdout = call<"", 'i', FILE*(), stdoutvalue>;

}  // namespace tarn

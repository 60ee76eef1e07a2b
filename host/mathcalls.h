// The mathematics of the C library.
#pragma once

#include <math.h>
#include <stdlib.h>
#include <time.h>

#include "host/wrap.h"

namespace tarn {

using RealFn = double(double);
using RealFn2 = double(double, double);

inline constexpr BuiltinFn hostacos = call<"d", 'r', RealFn, acos>;
inline constexpr BuiltinFn hostasin = call<"d", 'r', RealFn, asin>;
inline constexpr BuiltinFn hostatan = call<"d", 'r', RealFn, atan>;
inline constexpr BuiltinFn hostceil = call<"d", 'r', RealFn, ceil>;
inline constexpr BuiltinFn hostcos = call<"d", 'r', RealFn, cos>;
inline constexpr BuiltinFn hostcosh = call<"d", 'r', RealFn, cosh>;
inline constexpr BuiltinFn hosterf = call<"d", 'r', RealFn, erf>;
inline constexpr BuiltinFn hosterfc = call<"d", 'r', RealFn, erfc>;
inline constexpr BuiltinFn hostexp = call<"d", 'r', RealFn, exp>;
inline constexpr BuiltinFn hostfabs = call<"d", 'r', RealFn, fabs>;
inline constexpr BuiltinFn hostfloor = call<"d", 'r', RealFn, floor>;
inline constexpr BuiltinFn hostlog = call<"d", 'r', RealFn, log>;
inline constexpr BuiltinFn hostsin = call<"d", 'r', RealFn, sin>;
inline constexpr BuiltinFn hostsinh = call<"d", 'r', RealFn, sinh>;
inline constexpr BuiltinFn hostsqrt = call<"d", 'r', RealFn, sqrt>;
inline constexpr BuiltinFn hosttan = call<"d", 'r', RealFn, tan>;
inline constexpr BuiltinFn hosttanh = call<"d", 'r', RealFn, tanh>;

inline constexpr BuiltinFn hostfmod = call<"dd", 'r', RealFn2, fmod>;
inline constexpr BuiltinFn hosthypot = call<"dd", 'r', RealFn2, hypot>;
inline constexpr BuiltinFn hostnextafter = call<"dd", 'r', RealFn2, nextafter>;
inline constexpr BuiltinFn hostpow = call<"dd", 'r', RealFn2, pow>;

inline constexpr BuiltinFn hostldexp = call<"dn", 'r', double(double, int), ldexp>;
// The second argument is the address that takes the exponent, or the whole part.
inline constexpr BuiltinFn hostfrexp = call<"dn", 'r', double(double, int*), frexp>;
inline constexpr BuiltinFn hostmodf = call<"dn", 'r', double(double, double*), modf>;

inline constexpr BuiltinFn hostabs = call<"n", 'i', int(int), abs>;
inline constexpr BuiltinFn hostlabs = call<"n", 'i', long(long), labs>;
inline constexpr BuiltinFn hostdifftime = call<"nn", 'r', double(time_t, time_t), difftime>;

}  // namespace tarn

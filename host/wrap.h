// From a C function to a builtin. A row of a table names the classes of the arguments, the class of
// the result, the C signature and the function, and the template below does the rest:
//
//   {"strchr", 2, call<"sn", 'i', char*(char*, int), strchr>},
//
//   argument classes                              result classes
//   n  an integer: its low 64 bits, signed        i  an integer; an address is one; null is 0
//   w  an integer: its low 64 bits, unsigned      u  an unsigned integer
//   s  a text: the address of its first byte      r  a real
//   d  a real                                     K  a truth value: `K` for anything but 0
//                                                 I  the leaf `I`, of a void function
//
// An argument of another kind makes the answer `Z`, before anything is called. A failure of the C
// function is an ordinary result: programs read `errno`. What an address points to is the program's
// own business; there is no layer of checks.
//
// A text that is a post is handed over as its payload, one that is a zits as its text with the
// brackets around it, one that is an integer as that address. It lives as long as the call.
#pragma once

#include <cerrno>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "graph/builtins.h"
#include "graph/cell.h"
#include "values/answer.h"
#include "values/coerce.h"
#include "values/real.h"

namespace tarn {

// What a class letter makes of an argument. One of the two values holds, by the letter.
struct CallArgument {
  int64_t word;    // n, w, s: the integer, or the address
  double real;     // d
  CellRef holder;  // s: the flat form of a zits, kept for as long as the call; else null
};

// Lends x. False, and nothing is set, if x is not of the letter's class.
bool callargument(CallArgument& out, char letter, Cell* x);

// The letters of a row, as a template argument.
template <size_t n>
struct Letters {
  char at[n];
  constexpr Letters(const char (&text)[n]) {
    for (size_t i = 0; i < n; i++) at[i] = text[i];
  }
  static constexpr size_t count = n - 1;
};

// An argument as the C function wants it: cut to the width of an integer, or as a pointer.
template <typename C>
C callvalue(const CallArgument& x) {
  if constexpr (std::is_floating_point_v<C>) {
    return x.real;
  } else if constexpr (std::is_pointer_v<C>) {
    return reinterpret_cast<C>(x.word);
  } else {
    return static_cast<C>(x.word);
  }
}

// The answer that the letter of a result makes of what the C function gave back.
template <char result, typename R>
CellRef callresult(R r) {
  if constexpr (result == 'r') {
    return realleaf(r);
  } else if constexpr (result == 'K') {
    return truthleaf(r != 0);
  } else if constexpr (result == 'u') {
    return hintfromu(static_cast<uint64_t>(r));
  } else if constexpr (std::is_pointer_v<R>) {
    return hintfrom(reinterpret_cast<int64_t>(r));
  } else {
    return hintfrom(static_cast<int64_t>(r));
  }
}

// Calls the C function. errno is left as it left it, whatever making the answer does.
template <char result, typename R, typename... P, size_t... i>
CellRef callmade(R (*function)(P...), const CallArgument* arguments, std::index_sequence<i...>) {
  (void)arguments;
  if constexpr (std::is_void_v<R>) {
    function(callvalue<P>(arguments[i])...);
    return leafbyte('I');
  } else {
    R r = function(callvalue<P>(arguments[i])...);
    int kept = errno;
    CellRef made = callresult<result>(r);
    errno = kept;
    return made;
  }
}

// The builtin itself. The arguments are tested from the first to the last.
template <Letters letters, char result, typename Signature, Signature* function>
CellRef& call(CellRef& out, CellRef application) {
  constexpr size_t count = letters.count;
  CallArgument arguments[count + 1];
  Cell* values[count + 1] = {};
  Cell* spine = application;
  for (size_t i = count; i-- > 0; spine = cellleft(spine)) values[i] = cellright(spine);
  for (size_t i = 0; i < count; i++) {
    if (!callargument(arguments[i], letters.at[i], values[i])) return out = failure();
  }
  return out = callmade<result>(function, arguments, std::make_index_sequence<count>());
}

// A builtin of no arguments that answers a number known to the platform.
template <int64_t number>
CellRef& constant(CellRef& out, CellRef) {
  return out = hintfrom(number);
}

}  // namespace tarn

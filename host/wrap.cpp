// How an argument of a wrapped C function is read, by its class.
#include "host/wrap.h"

#include "values/post.h"
#include "values/zits.h"

namespace tarn {

static int64_t address(const void* p) { return reinterpret_cast<int64_t>(p); }

static bool textargument(CallArgument& out, Cell* x) {
  switch (cellkind(x)) {
    case 'a':
      out.word = address(postbytes(x).at);
      return true;
    case 'i':
      out.word = hintsmall(x);
      return true;
    case 'u':
      out.holder = zitsflat(x);
      out.word = address(leafbytes(out.holder));
      return true;
    default:
      return false;
  }
}

bool callargument(CallArgument& out, char letter, Cell* x) {
  if (letter == 's') return textargument(out, x);
  if (letter == 'd') {
    if (cellbyte(x) != ' ') return false;
    out.real = realvalue(x);
    return true;
  }
  if (!ishint(x)) return false;
  out.word = hintsmall(x);
  return true;
}

}  // namespace tarn

// The rules, by builtin and by the kinds of its arguments.
#include "fuzz/told.h"

#include "values/bytes.h"
#include "values/coerce.h"
#include "values/zits.h"

namespace tarn {

static bool among(char kind, std::string_view kinds) { return kinds.find(kind) != kinds.npos; }

bool isunbalanced(Cell* x) {
  if (cellispair(x)) return isunbalanced(leftlink(x)) || isunbalanced(rightlink(x));
  return !isbalanced(flatcontent(x));
}

static bool isnumber(Cell* x) { return among(cellkind(x), "io"); }

// A count wraps, an exponent does not.
bool ishuge(Cell* x) { return isnumber(x) && hintlow(x) > 1000; }

// A text, an array, or a number that a few more products would make too long to wait for.
static bool islarge(Cell* x) { return cellsize(x) > 4000; }

// A power of more digits than anyone waits for.
static bool isvast(Cell* x, Cell* power) {
  if (!isnumber(x) || !isnumber(power)) return false;
  return hinttext(power).len() > 6 ||
         static_cast<uint64_t>(hinttext(x).len()) * hintlow(power) > 20000;
}

static bool arrayandnumber(char a, char b, std::string_view numbers) {
  return (a == 'c' && among(b, numbers)) || (b == 'c' && among(a, numbers));
}

static bool isfork(Cell* x) {
  return cellispair(x) && cellispair(leftlink(x)) && leafisbyte(leftlink(leftlink(x)), 'V');
}

// Within the eight bytes of a real, as a tree, a bit is K or H.
static bool isbadbyte(Cell* x, int depth) {
  if (depth == 0) return !leafisbyte(x, 'K') && !leafisbyte(x, 'H');
  return !isfork(x) || isbadbyte(rightlink(leftlink(x)), depth - 1) ||
         isbadbyte(rightlink(x), depth - 1);
}

static bool isbadreal(Cell* x, int depth) {
  if (!isfork(x)) return false;
  if (depth == 0) return isbadbyte(x, 3);
  return isbadreal(rightlink(leftlink(x)), depth - 1) || isbadreal(rightlink(x), depth - 1);
}

bool callends(std::string_view builtin, Cell* const* args, int n) {
  if (n == 0) return false;
  char a = cellkind(args[0]);
  char b = n > 1 ? cellkind(args[1]) : ' ';
  bool text = a == 'u';
  bool large = islarge(args[0]) || (n > 1 && islarge(args[1]));
  if (builtin == "plus") return large;
  if (builtin == "dash") return arrayandnumber(a, b, a == 'c' ? "or" : "ior");
  if (builtin == "mult") {
    return large || arrayandnumber(a, b, "or") || (!isnumber(args[1]) && ishuge(args[0])) ||
           (!isnumber(args[0]) && ishuge(args[1]));
  }
  if (builtin == "over") return b == 'c' && among(a, "ior");
  if (builtin == "powa") return (b == 'c' && among(a, "ior")) || isvast(args[0], args[1]);
  if (builtin == "cent") return a == 'c' && among(b, "ior");
  if (builtin == "real") return a == 'e' && isbadreal(args[0], 3);
  if (builtin == "left" || builtin == "rght") {
    return text && (zitsempty(args[0]) || isunbalanced(args[0]));
  }
  if (builtin == "buck" || builtin == "wave" || builtin == "lots") {
    return text && isunbalanced(args[0]);
  }
  if (builtin == "cork") return among(a, "io") && ishuge(args[1]);
  return false;
}

}  // namespace tarn

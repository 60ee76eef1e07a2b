// One function for each kind of value.
#include "fuzz/values.h"

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

#include "values/bytes.h"
#include "values/coerce.h"
#include "values/cray.h"
#include "values/post.h"
#include "values/real.h"
#include "values/zits.h"

namespace tarn {

static constexpr int nests = 3;  // how deep values are made of values

static CellRef valueofdepth(Source& s, int depth);

static Bytes bytesof(const std::string& s) {
  return {reinterpret_cast<const uint8_t*>(s.data()), static_cast<int64_t>(s.size())};
}

static CellRef name(std::string_view text) {
  return leafmade(text.data(), static_cast<int64_t>(text.size()));
}

CellRef nameleaf(const char* text) { return name(text); }

static CellRef pair(CellRef left, CellRef right) {
  return cellpairtake(std::move(left), std::move(right));
}

static CellRef listed(CellRef head, CellRef tail) {
  return pair(pair(name("J"), std::move(head)), std::move(tail));
}

// --- Texts ---------------------------------------------------------------------------------------

static std::string anybytes(Source& s) {
  static constexpr std::string_view often = "ab[]pqr \n\0\xff";
  std::string bytes;
  for (int64_t n = below(s, 12); n > 0; n--) {
    if (seldom(s, 8)) bytes += static_cast<char>(onebyte(s));
    else bytes += often[static_cast<size_t>(below(s, static_cast<int64_t>(often.size())))];
  }
  return bytes;
}

static std::string balanced(Source& s, int depth) {
  static constexpr char often[] = {'a', 'b', 'p', 'q', 'r', ' ', '\n', '\0', '\x7f', '1'};
  std::string text;
  for (int64_t n = below(s, 5); n > 0; n--) {
    if (depth > 0 && seldom(s, 3)) text += "[" + balanced(s, depth - 1) + "]";
    else text += oneof(s, often);
  }
  return text;
}

CellRef anypost(Source& s) { return postmake(bytesof(anybytes(s))); }

static CellRef textofdepth(Source& s, int depth) {
  if (depth > 0 && seldom(s, 3)) return pair(textofdepth(s, depth - 1), textofdepth(s, depth - 1));
  return zitsmake(bytesof(seldom(s, 12) ? anybytes(s) : balanced(s, 2)));
}

CellRef anytext(Source& s) { return zitsmake(bytesof(balanced(s, 2))); }

// --- Numbers -------------------------------------------------------------------------------------

CellRef anyinteger(Source& s) {
  static constexpr std::string_view odd[] = {
      "18446744073709551615", "18446744073709551616", "018446744073709551617",
      "9223372036854775808",  "09223372036854775808", "2147483648",
      "02147483649",          "67108863",             "67108864"};
  if (seldom(s, 8)) return name(oneof(s, odd));
  std::string digits = std::to_string(below(s, seldom(s, 2) ? 400 : 12));
  return name(seldom(s, 3) && digits != "0" ? "0" + digits : digits);
}

static CellRef anynumb(Source& s) {
  std::string text = "00" + std::string(static_cast<size_t>(below(s, 3)), '0');
  return name(seldom(s, 4) ? text : text + std::to_string(1 + below(s, 200)));
}

CellRef anyreal(Source& s) {
  static constexpr double odd[] = {0.0,
                                   1.0,
                                   -2.5,
                                   -0.0,
                                   1.0 / 3,
                                   1e300,
                                   -1e-310,
                                   5e-324,
                                   HUGE_VAL,
                                   -HUGE_VAL,
                                   std::numeric_limits<double>::quiet_NaN()};
  return realleaf(oneof(s, odd));
}

// A number in list form; now and then one that is none.
static CellRef anylist(Source& s) {
  CellRef list = seldom(s, 2) ? anyinteger(s) : seldom(s, 2) ? anynumb(s) : name("K");
  for (int64_t n = below(s, 6); n > 0; n--) {
    list = listed(name(seldom(s, 20) ? "I" : seldom(s, 2) ? "H" : "K"), std::move(list));
  }
  return list;
}

// --- Arrays, trees and combinators ---------------------------------------------------------------

static CellRef arrayofdepth(Source& s, int depth) {
  CellRef array = seldom(s, 4) ? craynew(below(s, 4)) : craynew(0);
  for (int64_t n = depth > 0 ? below(s, 5) : 0; n > 0; n--) {
    array = crayappend(array, valueofdepth(s, depth - 1));
  }
  return array;
}

CellRef anyarray(Source& s) { return arrayofdepth(s, 2); }

static CellRef treeofdepth(Source& s, int depth) {
  if (depth == 0 || seldom(s, 3)) return name(seldom(s, 8) ? "Z" : "K");
  return listed(treeofdepth(s, depth - 1), treeofdepth(s, depth - 1));
}

// The eight bytes of a real as `real` reads them, all bits K or H.
static CellRef forkofdepth(Source& s, int depth) {
  if (depth == 0) return name(seldom(s, 2) ? "H" : "K");
  CellRef half = forkofdepth(s, depth - 1);
  return pair(pair(name("V"), half), seldom(s, 2) ? forkofdepth(s, depth - 1) : half);
}

static CellRef anyvoid(Source& s, int depth) {
  static constexpr std::string_view names[] = {"K", "H", "Z", "U", "I",
                                               "G", "J", "V", "rank", "todo"};
  switch (depth > 0 ? below(s, 8) : 0) {
    case 1: return pair(name("K"), valueofdepth(s, depth - 1));
    case 2: return pair(pair(name("V"), pair(name("X"), name("J"))), treeofdepth(s, 4));
    case 3: return bytetree(onebyte(s));
    case 4: return listed(bytetree(onebyte(s)), anyvoid(s, depth - 1));
    case 5: return forkofdepth(s, 6);
    case 6: return pair(pair(name("V"), valueofdepth(s, depth - 1)), valueofdepth(s, depth - 1));
    default: return name(oneof(s, names));
  }
}

static CellRef valueofdepth(Source& s, int depth) {
  switch (below(s, 9)) {
    case 1: return anypost(s);
    case 2: return textofdepth(s, depth);
    case 3: return arrayofdepth(s, depth);
    case 4: return anyvoid(s, depth);
    case 5: return anynumb(s);
    case 6: return anyreal(s);
    case 7: return anylist(s);
    case 8: return hintfrom(below(s, 6) - 3);
    default: return anyinteger(s);
  }
}

CellRef anyvalue(Source& s) { return valueofdepth(s, nests); }

}  // namespace tarn

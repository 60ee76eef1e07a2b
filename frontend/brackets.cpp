// The check of brackets and commas, and the scanners.
#include "frontend/brackets.h"

#include "foundation/chars.h"
#include "foundation/place.h"

namespace tarn {

namespace {

struct Pairing {
  uint8_t open;
  uint8_t close;
  const char* name;  // in messages
};

constexpr Pairing pairings[] = {
    {'(', ')', "parenthesis"},
    {'[', ']', "bracket"},
    {'{', '}', "wing"},
};

const Pairing* pairingof(uint8_t c) {
  for (const Pairing& p : pairings) {
    if (c == p.open || c == p.close) return &p;
  }
  return nullptr;
}

// One call of bracketcheck: its arguments, and what is open at the place that it has come to.
struct Checker {
  const Str& text;
  int64_t base;
  Report& report;
  int64_t& place;
  std::vector<int64_t> stack;  // places of brackets, and of commas, that are still open

  uint8_t topbyte() const { return text.bytes()[stack.back()]; }
  Str shown(int64_t p) const { return placename(base + p); }

  bool refuse(const char* word, int64_t p, const Str& message) {
    report.message = message;
    report.word = word;
    report.place = shown(p);
    place = base + p;
    return false;
  }

  bool refusedangling(const char* side, int64_t p) {
    const char* name = pairingof(text.bytes()[p])->name;
    return refuse("match", p, Str("Dangling ") + side + "-" + name + " at [" + shown(p) + "].");
  }

  bool refusemismatch(int64_t p, int64_t q) {
    report.name = shown(q);
    return refuse("match", p,
                  "'" + strbyte(text.bytes()[p]) + "' at [" + shown(p) + "] doesn't fit '" +
                      strbyte(text.bytes()[q]) + "' at [" + shown(q) + "].");
  }

  bool refusecomma(int64_t p) {
    return refuse("comma", p, "Comma at [" + shown(p) + "] is not part of a valid call list.");
  }

  bool checknesting();
  bool checkcommas();
  bool checkgroup(int64_t i);
};

// From left to right: the stack holds the open brackets. Inside a string only "[" and "]" count.
bool Checker::checknesting() {
  for (int64_t i = 0; i < text.len(); i++) {
    uint8_t c = text.bytes()[i];
    const Pairing* pairing = pairingof(c);
    bool instring = !stack.empty() && topbyte() == '[';
    if (pairing == nullptr || (instring && c != '[' && c != ']')) continue;
    if (c == pairing->open) {
      stack.push_back(i);
    } else if (stack.empty()) {
      return refusedangling("right", i);
    } else if (topbyte() != pairing->open) {
      return refusemismatch(stack.back(), i);
    } else {
      stack.pop_back();
    }
  }
  return stack.empty() || refusedangling("left", stack.back());
}

// From right to left: the stack holds the open ")" and "}", and above a ")" at most one comma, the
// leftmost of its group so far.
bool Checker::checkcommas() {
  for (int64_t i = text.len(); i-- > 0;) {
    switch (text.bytes()[i]) {
      case ']':
        i = skipgroup(text, i);
        break;
      case ')':
      case '}':
        stack.push_back(i);
        break;
      case ',':
        if (!stack.empty() && topbyte() == ',') stack.pop_back();
        if (!stack.empty() && topbyte() == ')') stack.push_back(i);
        break;
      case '{':
        stack.pop_back();
        break;
      case '(':
        if (!checkgroup(i)) return false;
        break;
    }
  }
  return true;
}

// At a "(": a comma in its group wants something before it that can be called.
bool Checker::checkgroup(int64_t i) {
  if (topbyte() == ',') {
    if (i == 0 || isgluebyte(text.bytes()[i - 1])) return refusecomma(stack.back());
    stack.pop_back();
  }
  stack.pop_back();
  return true;
}

}  // namespace

bool bracketcheck(const Str& text, int64_t base, Report& report, int64_t& place) {
  Checker checker = {text, base, report, place, {}};
  return checker.checknesting() && checker.checkcommas();
}

// From the bracket at p to its partner, counting only "[" and "]".
static int64_t skipstring(const Str& text, int64_t p, int64_t step) {
  int64_t depth = 0;
  for (int64_t i = p;; i += step) {
    check(i >= 0 && i < text.len());
    uint8_t c = text.bytes()[i];
    depth += c == '[' ? step : c == ']' ? -step : 0;
    check(depth >= 0);
    if (depth == 0) return i;
  }
}

// The same for parentheses and wings, which are not told apart here; strings are jumped over.
static int64_t skipnest(const Str& text, int64_t p, int64_t step) {
  int64_t depth = 0;
  for (int64_t i = p;; i += step) {
    check(i >= 0 && i < text.len());
    uint8_t c = text.bytes()[i];
    if (c == '[' || c == ']') i = skipstring(text, i, step);
    depth += c == '(' || c == '{' ? step : c == ')' || c == '}' ? -step : 0;
    check(depth >= 0);
    if (depth == 0) return i;
  }
}

int64_t skipgroup(const Str& text, int64_t p) {
  check(p >= 0 && p < text.len());
  switch (text.bytes()[p]) {
    case '[':
      return skipstring(text, p, 1);
    case ']':
      return skipstring(text, p, -1);
    case '(':
    case '{':
      return skipnest(text, p, 1);
    case ')':
    case '}':
      return skipnest(text, p, -1);
    default:
      return p;
  }
}

static bool inset(std::string_view set, uint8_t c) {
  return set.find(static_cast<char>(c)) != set.npos;
}

std::vector<int64_t> scantop(const Str& text, std::string_view set) {
  std::vector<int64_t> found;
  for (int64_t p = 0; p < text.len(); p = skipgroup(text, p) + 1) {
    if (inset(set, text.bytes()[p])) found.push_back(p);
  }
  return found;
}

int64_t scanprefix(const Str& text, int64_t from, std::string_view set) {
  for (int64_t p = from; p < text.len(); p = skipgroup(text, p) + 1) {
    if (inset(set, text.bytes()[p])) return p;
  }
  return -1;
}

std::vector<int64_t> pairbrackets(const Str& text) {
  std::vector<int64_t> partners(static_cast<size_t>(text.len()), -1);
  std::vector<int64_t> open;
  auto pair = [&partners](int64_t p, int64_t q) {
    partners[static_cast<size_t>(p)] = q;
    partners[static_cast<size_t>(q)] = p;
  };
  for (int64_t i = 0; i < text.len(); i++) {
    uint8_t c = text.bytes()[i];
    if (c == '[') {
      int64_t q = skipstring(text, i, 1);
      pair(i, q);
      i = q;
    } else if (c == '(' || c == '{') {
      open.push_back(i);
    } else if (c == ')' || c == '}') {
      check(!open.empty());
      pair(open.back(), i);
      open.pop_back();
    }
  }
  check(open.empty());
  return partners;
}

}  // namespace tarn

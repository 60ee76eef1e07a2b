// Brackets: the check that they match, and the scanners that find bytes at the top level of a text.
// The check reports to the user; all that comes after it relies on it, and a bracket out of place
// is then a program fault.
//
//   ( )  parenthesis  an expression, or a list of arguments
//   [ ]  bracket      a string atom: only "[" and "]" mean anything inside
//   { }  wing         local definitions
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "foundation/str.h"
#include "frontend/report.h"

namespace tarn {

// Whether all brackets of a raw program text match and all commas in parentheses separate
// arguments. If not, the report tells of the first fault, its place counted from `base`, and place
// is that number; all nesting faults come before any comma fault.
bool bracketcheck(const Str& text, int64_t base, Report& report, int64_t& place);

// The place of the partner of the bracket at p, p itself for any other byte. p must lie in the
// text, and its group in it too.
int64_t skipgroup(const Str& text, int64_t p);

// The places of the bytes of `set` at the top level, rising. An opening bracket can be in the set:
// it is found, and its group passed over.
std::vector<int64_t> scantop(const Str& text, std::string_view set);

// The first place at or after `from`, itself at the top level, of a byte of `set` at the top level;
// -1 if there is none.
int64_t scanprefix(const Str& text, int64_t from, std::string_view set);

// The partners of all brackets outside strings, and of those around strings, at once; -1 for other
// bytes. The text must be balanced.
std::vector<int64_t> pairbrackets(const Str& text);

}  // namespace tarn

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
// arguments. If not, the report tells the first fault, and place becomes its place, counted from
// `base`; a fault of nesting, wherever it stands, comes before one of commas.
bool bracketcheck(const Str& text, int64_t base, Report& report, int64_t& place);

// The place of the partner of the bracket at p; p itself for any other byte. A p outside the text,
// or a bracket without a partner, is a program fault.
int64_t skipgroup(const Str& text, int64_t p);

// The places of the bytes of `set` at the top level, rising. An opening bracket may be in the set:
// it is found, and its group is passed over.
std::vector<int64_t> scantop(const Str& text, std::string_view set);

// The first of these places at or after `from`, which must lie at the top level; -1 if there is
// none.
int64_t scanprefix(const Str& text, int64_t from, std::string_view set);

// For each byte of the text: the place of its partner if it is a bracket outside of all strings, or
// the bracket at either end of one; -1 for any other byte. The text must be balanced.
std::vector<int64_t> pairbrackets(const Str& text);

}  // namespace tarn

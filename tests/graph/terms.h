// Terms for the tests, written down plainly: atoms with blanks between them, and brackets. There
// are no operators: application is to the left, and an abstraction is spelled as the cells have it.
//
//   term("plus 1 (f a)")        Pair(Pair(plus, 1), Pair(f, a))
//   term("\\ a (\\ b a)")       the term that K has
#pragma once

#include <string>

#include "graph/cell.h"

namespace tarn {

// How deep the terms are nested that nothing may die of.
#ifdef __SANITIZE_ADDRESS__
inline constexpr int DEPTH = 100000;
#else
inline constexpr int DEPTH = 1000000;
#endif

CellRef term(const std::string& text);
std::string shown(Cell* c);  // back again, with the brackets that are needed

// Clears everything, then gives all combinators and operators their meaning and hands in the
// builtins of the tests: plus, dash, less and same of small integers, todo, and those below.
void loadtestdefs();
void define(const char* name, const std::string& text);

// The normal form of a term, shown.
std::string reduced(const std::string& text);

// What the builtin `tell` was given so far, one after another with a blank behind each; it answers
// its argument. Cleared by loadtestdefs.
extern std::string told;

}  // namespace tarn

// Any bytes at all as a program: what may not happen, whatever they are.
#pragma once

#include <cstdint>
#include <string>

#include "graph/cell.h"

namespace tarn {

// Hands in the builtins that a wild program may use: all but those that reach out of the language,
// can end the process by rule, or can ask for more memory than there is in one step. Once, before
// the others.
void fuzzinstall();

// Takes the text through brackets, tidying, parsing, checks and an evaluation of some thousand
// steps, and gives what it shows: the value, or the place and the message of the report. A crash is
// for the sanitizers to tell; a cell that is lost, a tidy text that is not tidy, and a report
// without words end the process here.
std::string fuzzprogram(const std::string& text);

// Whether a term is short enough to show. A small graph can be an endless text.
bool isprintable(Cell* term);

// A program out of the numbers that `next` gives: tokens of the language for the most part in an
// order that parses, now and then with some bytes spoiled.
std::string fuzztext(uint64_t (*next)());

}  // namespace tarn

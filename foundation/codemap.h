// Bracket words: string atoms made of "[" and "]" alone, one for each small natural number, and the
// two-way map between them and the bytes of text. A plain byte in a string atom is shorthand for
// its word. "[" and "]" have none: they cannot stand in a string atom as data.
//
//   0 "[]"   1 "[[]]"   2 "[[][]]"   3 "[[[]]]"   4 "[[[]][]]"   5 "[[][][]]"
//
// The numbers stand for the binary trees: a word is the list of a first and a rest, "[" + word of
// the first + word of the rest less its "[", and the pairs are numbered along growing squares.
#pragma once

#include <cstdint>
#include <map>

#include "foundation/str.h"

namespace tarn {

// The word of n, 0 to 676; any other n is a program fault.
Str bracketcode(int32_t n);

// One-byte texts to words and words to one-byte texts: the byte at place p of bytelist stands for
// the word of p + 145. Built on first use, never freed.
const std::map<Str, Str>& codemap();

// The same map, without a text to be made for the byte: the word of a byte, empty for "[" and "]";
// and the byte of a word, -1 for a text that is no byte's word.
const Str& codeofbyte(uint8_t c);
int32_t byteofcode(const Str& word);

}  // namespace tarn

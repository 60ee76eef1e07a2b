// What one byte of a pattern matches. A small letter matches either case; a capital is a class of
// bytes, and never matches just itself; whatever else prints matches itself. A byte of the text
// that does not print counts as the character that it folds to. A byte of the pattern that does not
// print matches that byte alone.
//
//   G  \ ;                J  < = > #          N  ^ ? @              Q  any symbol
//   I  & |                L  + - . ;          O  ! " $ ` ~          P  ( ) [ ] { }
//                         M  % ' * /
//
//   R, U, S, T, V, W, Z, X, Y, A, B, C, D, E, F   kinds of characters: by their number in this row,
//                  from 1, the sum of 1 small letter or "_", 2 capital, 4 digit, 8 anything else.
//                  So R is a name letter, T a digit, F anything. Only bytes above 127 fold to
//                  capitals: a plain capital counts as small.
//   H, K           two halves of the letters, digits and symbols
#pragma once

#include <cstdint>

namespace tarn {

// Whether the pattern byte p matches the text byte b.
bool charmatch(uint8_t p, uint8_t b);

}  // namespace tarn

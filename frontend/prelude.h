// The definitions that every program starts from: the combinators of one capital letter, and the
// meaning of every operator.
#pragma once

#include <string_view>

namespace tarn {

// In the language's own alphabet, with "U" before "S" and "Z" before "X". The text before the first
// comma is the main expression, empty here; each item is a definition. What they establish:
//
//   K H          true and false: the first and the second of two
//   V a b        the pair: waits for a selector
//   J x y, K     the list with head x and tail y, and the empty one
//   Z            failure: swallows its argument and stays Z
//   Y            the fixed point
//   I M W U S B C T ...   the usual combinators
//   ! & |        by selection; + - * ... by a builtin each; @ and . apply backwards
//   : ? ; ' " ,  the identity, so that a?b is a b at the rank of "?"
//   \ { `        never entered: their entries give the arity of the binders and of the mark
inline constexpr std::string_view prelude =
    ",A\\a\\aS BKK"
    ",B\\a\\b\\c\\a b(c)"
    ",C\\a\\b\\c\\a c b"
    ",D\\a\\b\\c\\d\\a b c(d)"
    ",E\\a\\b\\c\\d\\e\\a b c(d)e"
    ",F\\a\\b\\Vb a"
    ",G\\a\\VZ(BW BC DDV V(XJ))"
    ",H\\a\\I"
    ",I\\a\\a"
    ",J\\a\\b\\c\\Va b"
    ",K\\a\\b\\a"
    ",L\\a\\aK K(KH)"
    ",M\\a\\a a"
    ",N\\a\\K"
    ",O\\a\\b\\b a(b)"
    ",P\\a\\a XS I"
    ",Q\\a\\aZK"
    ",R\\a\\aZH"
    ",U\\a\\b\\c\\d\\e\\e(Va b,Vc d)"
    ",S\\a\\b\\c\\a c b(c)"
    ",T\\a\\b\\b a"
    ",V\\a\\b\\c\\c a b"
    ",W\\a\\b\\a b b"
    ",Z\\a\\Z"
    ",X\\a\\b\\c\\d\\Vb a(d)c"
    ",Y\\a\\b\\a Ya b"
    ",[\\]\\a\\b\\c\\Z"
    ",[{]\\a\\b\\c\\Z"
    ",[`]\\a\\Z"
    ",[!]\\p\\   p H K"
    ",[&]\\q\\r\\q r H"
    ",[|]\\q\\r\\q K r"
    ",[+]\\plus"
    ",[-]\\dash"
    ",[*]\\mult"
    ",[/]\\over"
    ",[%]\\cent"
    ",[^]\\powa"
    ",[<]\\less"
    ",[>]\\gteq"
    ",[=]\\same"
    ",[#]\\diff"
    ",[$]\\buck"
    ",[~]\\wave"
    ",[.]\\T"
    ",[@]\\T"
    ",[:]\\I"
    ",[?]\\I"
    ",[;]\\I"
    ",[']\\I"
    ",[\"]\\I"
    ",[,]\\I";
static_assert(prelude.size() == 563);

}  // namespace tarn

// The notations in which tests write bytes so that a person can read them: keys as they are
// typed, and quoted texts.
#pragma once

#include <string>
#include <vector>

namespace tarn {

// Keys: each printable character is itself; spaces between keys are nothing. In angle brackets:
//   <C-a> <C-_> <C-\>   Ctrl with that key, as the terminal sends it
//   <M-x>               Escape, then x
//   <RET> <TAB> <ESC> <SPC> <BS> <LF> <NUL> <LT>
//   <UP> <DOWN> <LEFT> <RIGHT> <HOME> <END> <PGUP> <PGDN> <INS> <DEL>
//   <0x80>              a byte
//   <\eOH>              a sequence that comes in one piece, as in quotes; it begins with "\"
//   <20 C-f>            any of these, or a character, 20 times
// Gives the bytes of each key; says what is wrong in `error`, which stays empty otherwise.
std::vector<std::string> readkeys(const std::string& text, std::string& error);

// Quoted texts, one after the other: "a\tb\n" with \n \r \t \e \\ \" \x41, each perhaps with a
// repetition ("ab"*100), and number ranges (1..20), which stand for "1\n2\n...20\n".
std::string readtext(const std::string& text, std::string& error);

// The bytes in quotes, as readtext reads them.
std::string inquotes(const std::string& bytes);

}  // namespace tarn

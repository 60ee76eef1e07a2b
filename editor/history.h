// The history of edits. Commands never change a text themselves: a builder below makes an oper,
// enters it in the history of the current buffer and carries it out. Undo is not a stack that
// shrinks: it enters an oper too, a marker, so nothing is ever lost, and the undo of an undo is
// simply further history.
//
//   typed a, b, c      versions 1, 3, 5
//   C-_                marker 7, t 7:  undoes 2 * (7 - 1) - 7 = 5
//   C-_                marker 9, t 7:  undoes 2 * (7 - 1) - 9 = 3
//   typed d            version 11: ends the chain of markers
//   C-_ C-_ C-_        13 undoes 11, then 15 redoes 3 and 17 redoes 5, by undoing their markers
//
// All of these work on the current buffer, move its point and keep it in the window. A builder
// gives false, with nothing changed, for what would grow the text beyond 2^30 bytes or would change
// nothing at all: the caller then rings the bell.
#pragma once

#include <cstdint>

#include "editor/oper.h"
#include "editor/sheet.h"

namespace tarn {

// The builders.
bool opinsert(uint8_t byte);     // a typed byte, by the insert mode; false in overwrite at the end
bool opbackspace();              // deletes the byte before the point; false at 0
bool opdelete(const Str& text);  // deletes text, which must stand at the point; false if empty
bool oprun(const Str& digits, uint8_t byte);  // byte, as many times as the decimal digits say
bool oppaste(const Str& text);   // puts text in at the point

// Replaces every `old` within [from, to) by `fresh`, from left to right without overlaps. False if
// there is none, or `old` is empty.
bool opreplace(int64_t from, int64_t to, const Str& old, const Str& fresh);

// Puts the definitions of the text in the order of their names (vows.h).
void opsort();

// Puts `key` in front of every non-empty line with a byte in [from, to), or of the line that holds
// `from` if the range is empty. With a newline for key it takes a space off the front of each;
// false if one of them has none there. The point stays on its byte.
bool opindent(int64_t from, int64_t to, uint8_t key);

// C-_: undoes one oper more. False when nothing is left to undo.
bool editback();

// C-r: takes the newest oper back if it is a marker, redoing what it undid. False if it is none.
bool editredo();

// The life of a history. openrecord writes the root oper of a new buffer and gives the empty
// sheet, which the caller puts into `sheets`; the name must have neither sheet nor opers.
sheet openrecord(const Str& name);
void closefile(const Str& name);  // drops the sheet, the text and all opers of that name
bool forgetall();                 // M-d: every oper of every buffer but the roots; false if none

// The parts that the above are made of.
void enteroper(oper made);              // gives it the next version: 1, then the last + 2
oper& firstoper();                      // of the current buffer: its root oper
oper& lastoper();                       // the one of the highest version
oper& findoper(int64_t version);        // exactly that one, which must exist
void edittodo(int64_t version);         // carries it out
void editundo(int64_t version);         // reverses it
int64_t undodepth();                    // 0 when nothing can be undone; never below

}  // namespace tarn

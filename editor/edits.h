// What carries out the opers of each type, and what reverses them. Only edittodo and editundo
// (history.h) call these. Each puts the point where the oper says, wherever it was, and keeps it in
// the window. Reversing expects the text just as carrying out left it, and the other way round. An
// oper whose data has a wrong form is a program fault.
#pragma once

#include "editor/oper.h"
#include "editor/sheet.h"

namespace tarn {

// Where the point then stands, when carried out | when reversed:
//
//   typed    at or behind
//   ran      behind | at t
//   pasted   behind | at t
//   cut      at t | behind
//   swapped  where it was
//   dented   on its byte
//   sorted   line start | t
void todotyped(sheet& s, const oper& o);   void undotyped(sheet& s, const oper& o);
void todoran(sheet& s, const oper& o);     void undoran(sheet& s, const oper& o);
void todopasted(sheet& s, const oper& o);  void undopasted(sheet& s, const oper& o);
void todocut(sheet& s, const oper& o);     void undocut(sheet& s, const oper& o);
void todoswapped(sheet& s, const oper& o); void undoswapped(sheet& s, const oper& o);
void tododented(sheet& s, const oper& o);  void undodented(sheet& s, const oper& o);
void todosorted(sheet& s, const oper& o);  void undosorted(sheet& s, const oper& o);

// Enters an oper at t in the current buffer and carries it out; true.
bool carry(opertype w, int64_t t, const Str& data);

// Whether the text can grow by that many bytes.
bool fits(const sheet& s, int64_t more);

}  // namespace tarn
